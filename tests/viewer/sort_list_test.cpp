#include "sort_list.h"

#include <gmock/gmock.h>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SortList, TurnsRoundAndIsNoneByAThirdClick)
{
    SortList list;
    list.Choose(2);
    EXPECT_THAT(list.Columns(), ElementsAre(SortColumn { 2, false }));
    list.Choose(2);
    EXPECT_THAT(list.Columns(), ElementsAre(SortColumn { 2, true }));
    list.Choose(2);
    EXPECT_THAT(list.Columns(), IsEmpty());
    list.Choose(2);
    EXPECT_THAT(list.Columns(), ElementsAre(SortColumn { 2, false }));
    list.Choose(0);
    EXPECT_THAT(list.Columns(), ElementsAre(SortColumn { 0, false })) << "another column begins anew";
}

TEST(SortList, TakesFurtherColumns)
{
    SortList list;
    list.ChooseToo(3);
    list.ChooseToo(1);
    list.ChooseToo(0);
    list.ChooseToo(1);
    EXPECT_THAT(list.Columns(), ElementsAre(SortColumn { 3, false }, SortColumn { 1, true }, SortColumn { 0, false }));
    list.ChooseToo(1);
    EXPECT_FALSE(list.Columns()[1].isDescending);
    list.Choose(3);
    EXPECT_THAT(list.Columns(), ElementsAre(SortColumn { 3, false })) << "one of several is alone first";
    list.Clear();
    EXPECT_THAT(list.Columns(), IsEmpty());
}

TEST(SortList, MarksTitlesWithArrowAndPlace)
{
    SortList list;
    EXPECT_EQ(list.MarkOf(0), u"");
    list.Choose(4);
    EXPECT_EQ(list.MarkOf(4), u"▲");
    list.Choose(4);
    EXPECT_EQ(list.MarkOf(4), u"▼");
    EXPECT_EQ(list.MarkOf(0), u"");
    for (int column = 10; column < 20; ++column)
        list.ChooseToo(column);
    EXPECT_EQ(list.MarkOf(4), u"▼1");
    EXPECT_EQ(list.MarkOf(10), u"▲2");
    EXPECT_EQ(list.MarkOf(19), u"▲11");
}
