#include "entered_text.h"

#include <gtest/gtest.h>

using namespace vornix::viewer;

namespace {

class OpenSaver final : public Saver {
public:
    std::optional<std::string> WhyReadOnly() const override { return {}; }
    bool CanChange(int row, int) const override { return row != 1; }
    SaveOutcome Save(const Changes&) override { return {}; }
};

Document MakeDocument()
{
    auto table = std::make_unique<Table>();
    table->Columns() = { { u"name" }, { u"day", ColumnKind::Date }, { u"paid", ColumnKind::Boolean, u"yes", u"no" },
        { u"country" } };
    table->AppendRow(std::vector<Field> { { u"a" }, { u"2024-12-31" }, { u"-1" }, { u"no" } });
    table->AppendRow(std::vector<Field> { { u"b" }, { u"2024-12-31" }, { {}, true }, { u"at" } });
    table->AppendRow(std::vector<Field> { { u"c" }, { u"2024-12-31" }, { {}, true }, { u"at" } });
    return Document({ std::move(table), std::make_unique<OpenSaver>(), { { 3, { u"at", u"no" } } } });
}

class EnteredTextTest : public testing::Test {
protected:
    // The text that the document takes, or why it takes none.
    std::string Enter(int row, int column, std::u16string_view text)
    {
        const EnteredText entered = EnterText(document, inputs, row, column, text);
        if (!entered.text)
            return entered.reason;
        return "[" + std::string(entered.text->begin(), entered.text->end()) + "]";
    }

    Document document = MakeDocument();
    ColumnInputs inputs { document };
};

} // namespace

TEST_F(EnteredTextTest, TakesAnyTextOfAPlainCell)
{
    EXPECT_EQ(Enter(0, 0, u"x\ny"), "[x\ny]");
    EXPECT_EQ(Enter(0, 0, u""), "[]");
    EXPECT_EQ(Enter(0, 0, std::u16string((1 << 20) + 1, u'x')), "the text is too long for a cell");
    EXPECT_EQ(Enter(0, 0, std::u16string(1, u'\0')), "a NUL is no text");
}

TEST_F(EnteredTextTest, TakesNothingWhereNothingCanBeTyped)
{
    EXPECT_EQ(Enter(1, 0, u"x"), "the cell cannot be changed");
}

TEST_F(EnteredTextTest, TakesWholeDatesAndNone)
{
    EXPECT_EQ(Enter(0, 1, u"2024-02-29"), "[2024-02-29]");
    EXPECT_EQ(Enter(0, 1, u" "), "[]");
    EXPECT_EQ(Enter(0, 1, u"2023-02-29"), "\"2023-02-29\" is no date such as 2024-12-31");
    EXPECT_EQ(Enter(0, 1, u"soon"), "\"soon\" is no date such as 2024-12-31");
}

TEST_F(EnteredTextTest, TakesTruthValuesInACheckBox)
{
    EXPECT_EQ(Enter(0, 2, u"No"), "[0]");
    EXPECT_EQ(Enter(0, 2, u"TRUE"), "[-1]");
    EXPECT_EQ(Enter(0, 2, u"-1"), "[-1]");
    EXPECT_EQ(Enter(0, 2, u""), "\"\" is neither true nor false");
    EXPECT_EQ(Enter(2, 2, u"maybe"), "[maybe]") << "a cell without a box takes a text";
}

TEST_F(EnteredTextTest, TakesKeysThatThereAre)
{
    EXPECT_EQ(Enter(0, 3, u"at"), "[at]");
    EXPECT_EQ(Enter(0, 3, u"xx"), "\"xx\" is no key of the table that the column refers to");
    EXPECT_EQ(Enter(0, 3, u""), "\"\" is no key of the table that the column refers to") << "it may not be null";
    EXPECT_EQ(Enter(0, 3, std::u16string(41, u'x') + u"\n"),
        "\"" + std::string(40, 'x') + "…\" is no key of the table that the column refers to");
}
