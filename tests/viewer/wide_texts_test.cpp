#include "wide_texts.h"

#include <gmock/gmock.h>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Table OneColumn(std::initializer_list<const char16_t*> texts)
{
    Table table;
    table.Columns() = { { u"a" } };
    for (const char16_t* text : texts) {
        const Field row[] = { { text } };
        table.AppendRow(row);
    }
    return table;
}

} // namespace

TEST(EstimatedWidth, CountsWideCharactersMore)
{
    EXPECT_GT(EstimatedWidth(u"成都市"), EstimatedWidth(u"abcd"));
    EXPECT_GT(EstimatedWidth(u"☕🍵🍵"), EstimatedWidth(u"cups"));
    EXPECT_GT(EstimatedWidth(u"WWWW"), EstimatedWidth(u"tttttt"));
    EXPECT_GT(EstimatedWidth(u"ABC"), EstimatedWidth(u"abc"));
    EXPECT_EQ(EstimatedWidth(u"e\u0301"), EstimatedWidth(u"e"));
    EXPECT_EQ(EstimatedWidth(u""), 0);
}

TEST(WidestRows, HasTheWidestTextFirstAndEachOnce)
{
    const Table table = OneColumn({ u"four", u"成都市人", u"", u"成都市人", u"longer", u"x" });
    EXPECT_THAT(WidestRows(table, 0, 8), ElementsAre(1, 4, 0, 5));
    EXPECT_THAT(WidestRows(table, 0, 2), ElementsAre(1, 4));
    EXPECT_THAT(WidestRows(OneColumn({}), 0, 2), IsEmpty());
}

TEST(WidestRows, TakesTheWholeTextWithItsLineBreaks)
{
    EXPECT_THAT(WidestRows(OneColumn({ u"one line", u"a\nb\nc\nd\ne\nf\ng" }), 0, 1), ElementsAre(1));
}
