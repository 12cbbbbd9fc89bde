#include "edits.h"

#include <gmock/gmock.h>

#include <stdexcept>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::Pair;

namespace {

Table TwoByTwo()
{
    Table table;
    table.Columns() = { { u"a" }, { u"b" } };
    table.AppendRow(std::vector<Field> { { u"1" }, { u"2" } });
    table.AppendRow(std::vector<Field> { { u"3" }, { {}, true } });
    return table;
}

} // namespace

TEST(Edits, KeepWhatWasChangedLast)
{
    const Table table = TwoByTwo();
    Edits edits(table);
    EXPECT_TRUE(edits.IsEmpty());
    EXPECT_EQ(edits.Text(1, 0), u"3");
    edits.Set(1, 0, u"x");
    edits.Set(1, 0, u"y");
    edits.Set(0, 1, u"z");
    EXPECT_EQ(edits.Count(), 2u);
    EXPECT_EQ(edits.Text(1, 0), u"y");
    EXPECT_EQ(edits.Text(1, 1), u"");
    EXPECT_THAT(edits.Rows(),
        ElementsAre(
            Pair(0, ElementsAre(Pair(1, std::u16string(u"z")))), Pair(1, ElementsAre(Pair(0, std::u16string(u"y"))))));
    edits.Clear();
    EXPECT_TRUE(edits.IsEmpty());
    EXPECT_EQ(edits.Count(), 0u);
}

TEST(Edits, ForgetACellThatHasItsOldTextAgain)
{
    const Table table = TwoByTwo();
    Edits edits(table);
    edits.Set(0, 0, u"x");
    edits.Set(0, 1, u"x");
    edits.Set(0, 0, u"1");
    EXPECT_EQ(edits.Count(), 1u);
    edits.Set(0, 1, u"2");
    EXPECT_TRUE(edits.IsEmpty());
    edits.Set(1, 1, u"x");
    edits.Set(1, 1, u"");
    EXPECT_TRUE(edits.IsEmpty()) << "a null without a text is what it was";
    edits.Set(0, 0, u"1");
    EXPECT_TRUE(edits.IsEmpty());
}

TEST(Edits, AreOfCellsOfTheTableOnly)
{
    const Table table = TwoByTwo();
    Edits edits(table);
    EXPECT_THROW(edits.Set(2, 0, u"x"), std::out_of_range);
    EXPECT_THROW(edits.Set(-1, 0, u"x"), std::out_of_range);
    EXPECT_THROW(edits.Set(0, 2, u"x"), std::out_of_range);
    EXPECT_THROW(edits.Set(0, -1, u"x"), std::out_of_range);
    EXPECT_TRUE(edits.IsEmpty());
}
