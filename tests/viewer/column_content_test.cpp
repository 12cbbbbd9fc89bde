#include "column_content.h"

#include <gtest/gtest.h>

using namespace vornix::viewer;

namespace {

ColumnKind KindOf(std::initializer_list<const char16_t*> texts)
{
    ColumnContent content;
    for (const char16_t* text : texts)
        content.Add(text);
    return content.Kind();
}

} // namespace

TEST(ColumnContent, IsTheNarrowestKindThatFitsEveryText)
{
    EXPECT_EQ(KindOf({ u"1", u"-2", u"3,000" }), ColumnKind::Integer);
    EXPECT_EQ(KindOf({ u"1", u"2.5" }), ColumnKind::Real);
    EXPECT_EQ(KindOf({ u"1", u"2.5", u"$3" }), ColumnKind::Money);
    EXPECT_EQ(KindOf({ u"2024-01-01", u"1.2.2024" }), ColumnKind::Date);
    EXPECT_EQ(KindOf({ u"2024-01-01", u"2024-01-01 10:00" }), ColumnKind::DateTime);
    EXPECT_EQ(KindOf({ u"1", u"2024-01-01" }), ColumnKind::Text);
    EXPECT_EQ(KindOf({ u"true", u"maybe" }), ColumnKind::Text);
}

TEST(ColumnContent, KeepsToOneDecimalMark)
{
    EXPECT_EQ(KindOf({ u"1.5", u"2,5" }), ColumnKind::Text);
    EXPECT_EQ(KindOf({ u"1.234,5", u"2,5", u"1.234" }), ColumnKind::Real);
    EXPECT_EQ(KindOf({ u"1,234", u"2,5" }), ColumnKind::Real);
}

TEST(ColumnContent, PassesOverBlanksAndPlaceholders)
{
    EXPECT_EQ(KindOf({ u"", u"  ", u"5", u"NA", u"n/a" }), ColumnKind::Integer);
    EXPECT_EQ(KindOf({ u"", u"NULL" }), ColumnKind::Text);
    EXPECT_EQ(KindOf({}), ColumnKind::Text);
}

TEST(ColumnContent, TakesWordsForTruthValuesAndLettersOnlyInPairs)
{
    EXPECT_EQ(KindOf({ u"true", u"TRUE", u"" }), ColumnKind::Boolean);
    EXPECT_EQ(KindOf({ u"no", u"yes" }), ColumnKind::Boolean);
    EXPECT_EQ(KindOf({ u"y", u"n", u"y" }), ColumnKind::Boolean);
    EXPECT_EQ(KindOf({ u"f", u"t" }), ColumnKind::Boolean);
    EXPECT_EQ(KindOf({ u"y", u"y" }), ColumnKind::Text);
    EXPECT_EQ(KindOf({ u"y", u"f" }), ColumnKind::Text);
    EXPECT_EQ(KindOf({ u"true", u"no" }), ColumnKind::Text);
    EXPECT_EQ(KindOf({ u"true", u"NA" }), ColumnKind::Text);
    EXPECT_EQ(KindOf({ u"0", u"1" }), ColumnKind::Integer);
}

TEST(ColumnContent, WritesTruthValuesAsCheckBoxesHaveThem)
{
    Table table;
    table.Columns() = { { u"paid" }, { u"n" } };
    for (const char16_t* text : { u"Yes", u"no" }) {
        const Field row[] = { { text }, { u"4" } };
        table.AppendRow(row);
    }
    const Field missing[] = { { u"", true }, { u"5" } };
    table.AppendRow(missing);
    SetKindsByContent(table);
    EXPECT_EQ(table.Columns()[0].kind, ColumnKind::Boolean);
    EXPECT_EQ(table.Columns()[1].kind, ColumnKind::Integer);
    EXPECT_EQ(table.Text(0, 0), u"-1");
    EXPECT_EQ(table.Text(1, 0), u"0");
    EXPECT_TRUE(table.IsNull(2, 0));
    EXPECT_EQ(table.Text(0, 1), u"4");
}

TEST(ColumnContent, NotesHowTruthValuesAreWritten)
{
    const auto written = [](std::vector<std::u16string_view> texts) {
        Table table;
        table.Columns() = { { u"paid" } };
        for (const std::u16string_view text : texts) {
            const Field row[] = { { text } };
            table.AppendRow(row);
        }
        SetKindsByContent(table);
        return table.Columns()[0].trueText + u"/" + table.Columns()[0].falseText;
    };
    EXPECT_EQ(written({ u"Yes", u"NO", u"yes", u"no" }), u"Yes/NO");
    EXPECT_EQ(written({ u"False", u" " }), u"True/False");
    EXPECT_EQ(written({ u"TRUE" }), u"TRUE/FALSE");
    EXPECT_EQ(written({ u"abc" }), u"/");
}
