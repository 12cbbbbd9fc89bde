#include "column_inputs.h"

#include <gmock/gmock.h>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class FakeSaver final : public Saver {
public:
    explicit FakeSaver(int lockedRow)
        : lockedRow_(lockedRow)
    {
    }

    std::optional<std::string> WhyReadOnly() const override { return whyReadOnly; }
    bool CanChange(int row, int) const override { return row != lockedRow_; }
    SaveOutcome Save(const Changes&) override { return {}; }

    std::optional<std::string> whyReadOnly;

private:
    int lockedRow_;
};

using Texts = std::vector<std::u16string>;

// A document of one column.
Document With(const Texts& texts, ColumnKind kind = ColumnKind::Text, ForeignKeys keys = {}, int lockedRow = -1,
    std::optional<std::string> whyReadOnly = {})
{
    auto table = std::make_unique<Table>();
    table->Columns() = { { u"a", kind, kind == ColumnKind::Boolean ? u"yes" : u"", u"" } };
    for (const std::u16string& text : texts)
        table->AppendRow(std::vector<Field> { { text } });
    auto saver = std::make_unique<FakeSaver>(lockedRow);
    saver->whyReadOnly = std::move(whyReadOnly);
    return Document({ std::move(table), std::move(saver), std::move(keys) });
}

// `different` texts, each `uses` times.
Texts Repeated(int different, int uses)
{
    Texts texts;
    for (int i = 0; i < different * uses; ++i)
        texts.push_back(std::u16string(1, static_cast<char16_t>(u'a' + i % different)));
    return texts;
}

InputKind KindOf(const Document& document)
{
    return ColumnInputs(document).Kind(0);
}

} // namespace

TEST(ColumnInputs, OfferTextsThatRepeat)
{
    EXPECT_EQ(KindOf(With(Repeated(3, 3))), InputKind::Choice);
    EXPECT_EQ(KindOf(With(Repeated(4, 2))), InputKind::Text) << "each twice only";
    EXPECT_EQ(KindOf(With(Repeated(1, 7))), InputKind::Text) << "too few rows";
    EXPECT_EQ(KindOf(With(Repeated(1, 8))), InputKind::Choice);
    EXPECT_EQ(KindOf(With(Repeated(20, 3))), InputKind::Choice);
    EXPECT_EQ(KindOf(With(Repeated(21, 3))), InputKind::Text) << "too many to look through";
    EXPECT_EQ(KindOf(With({})), InputKind::Text);
}

TEST(ColumnInputs, CountNoEmptyTexts)
{
    Texts texts = Repeated(2, 4);
    texts.insert(texts.end(), 30, u"");
    texts.push_back(u"  ");
    Document filled = With(texts);
    EXPECT_EQ(KindOf(filled), InputKind::Choice);
    EXPECT_THAT(ColumnInputs(filled).List(0), ElementsAre(u"a", u"b"));
    texts[0] = texts[1] = u"";
    EXPECT_EQ(KindOf(With(texts)), InputKind::Text);
}

TEST(ColumnInputs, OfferNothingThatALineOfAListCannotShow)
{
    Texts texts = Repeated(2, 6);
    texts[3] = u"two\nlines";
    EXPECT_EQ(KindOf(With(texts)), InputKind::Text);
    texts[3] = std::u16string(61, u'x');
    EXPECT_EQ(KindOf(With(texts)), InputKind::Text);
    texts[3].pop_back();
    EXPECT_EQ(KindOf(With(texts)), InputKind::Choice);
}

TEST(ColumnInputs, OfferOnlyTextsOfTextColumnsThatCanBeChanged)
{
    const Texts numbers(9, u"1");
    EXPECT_EQ(KindOf(With(numbers, ColumnKind::Integer)), InputKind::Text);
    EXPECT_EQ(KindOf(With(numbers, ColumnKind::Boolean)), InputKind::Text);
    EXPECT_EQ(KindOf(With(Repeated(3, 3), ColumnKind::Text, {}, -1, "it is a view")), InputKind::Text);
    Texts withBlob = Repeated(3, 4);
    withBlob[5] = u"<blob, 2 bytes>";
    const Document document = With(withBlob, ColumnKind::Text, {}, 5);
    EXPECT_THAT(ColumnInputs(document).List(0), ElementsAre(u"a", u"b", u"c"));
}

TEST(ColumnInputs, ListWhatTheColumnBeganWithAndWhatItHasNow)
{
    Texts texts = Repeated(2, 4);
    texts.push_back(u"rare");
    Document document = With(texts);
    const ColumnInputs inputs(document);
    document.Change(8, 0, u"B");
    EXPECT_THAT(inputs.List(0), ElementsAre(u"B", u"a", u"b", u"rare"));
}

TEST(ColumnInputs, OfferKeysBeforeAllElse)
{
    const Document document = With(Repeated(3, 3), ColumnKind::Text, { { 0, { u"", u"7" } } });
    EXPECT_EQ(KindOf(document), InputKind::Key);
    EXPECT_THAT(ColumnInputs(document).List(0), ElementsAre(u"", u"7"));
    const Document truth = With({ u"-1" }, ColumnKind::Boolean, { { 0, { u"0", u"1" } } });
    EXPECT_EQ(KindOf(truth), InputKind::Text) << "a check box says as much";
}

TEST(ColumnInputs, HaveAListOfKeysAsLongAsThereIsOne)
{
    Document document = With(Repeated(3, 3), ColumnKind::Text, { { 0, { u"", u"7" } } });
    const ColumnInputs inputs(document);
    document.Change(0, 0, u"7");
    document.Save(); // which tells of none
    EXPECT_EQ(document.KeysFor(0), nullptr);
    EXPECT_EQ(inputs.Kind(0), InputKind::Text);
    EXPECT_THAT(inputs.List(0), IsEmpty());
}

TEST(ColumnInputs, HaveAFormWhereAllDatesFitIt)
{
    const Document document = With({ u"2024-01-31", u"", u"2024-02-29" }, ColumnKind::Date);
    EXPECT_EQ(KindOf(document), InputKind::Date);
    EXPECT_THAT(ColumnInputs(document).List(0), IsEmpty());
    EXPECT_EQ(KindOf(With({ u"2024-01-31", u"NA" }, ColumnKind::Date)), InputKind::Text);
    EXPECT_EQ(KindOf(With({ u"2024-01-31", u"2024-2-1" }, ColumnKind::Date)), InputKind::Text);
    EXPECT_EQ(KindOf(With({ u"2024-01-31", u" " }, ColumnKind::Date)), InputKind::Text);
    EXPECT_EQ(KindOf(With({ u"31.1.2024" }, ColumnKind::Date)), InputKind::Text);
    EXPECT_EQ(KindOf(With({ u"2024-01-31 10:00" }, ColumnKind::DateTime)), InputKind::Text);
}
