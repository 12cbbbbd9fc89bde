#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::IsEmpty;

class MergedCells : public GridTest {
protected:
    MergedCells() { Table(6, 5, 1, 1); }

    CellPlace Parent(i16 Row, i16 Col) { return { Grid().ParentRow(Row, Col), Grid().ParentCol(Row, Col) }; }
    void Fill(i16 Col, std::initializer_list<const char16_t*> texts)
    {
        i16 row = 0;
        for (const char16_t* text : texts)
            Grid().SetText(row++, Col, text);
    }
};

TEST_F(MergedCells, ASpanThatWouldLeaveTheTableChangesNothing)
{
    Grid().SetColSpan(0, 3, 3);
    EXPECT_EQ(Grid().ColSpan(0, 3), 0);
    Grid().SetColSpan(0, 3, 2);
    EXPECT_EQ(Grid().ColSpan(0, 3), 2);
    Grid().SetColSpan(0, 3, 3);
    EXPECT_EQ(Grid().ColSpan(0, 3), 2);
    Grid().SetRowSpan(5, 0, 2);
    EXPECT_EQ(Grid().RowSpan(5, 0), 0);
}

TEST_F(MergedCells, ASpanOfOneFreesTheChildren)
{
    Grid().SetColSpan(0, 0, 3);
    EXPECT_EQ(Parent(0, 2), (CellPlace { 0, 0 }));
    Grid().SetColSpan(0, 0, 1);
    EXPECT_EQ(Parent(0, 1), (CellPlace { 0, 1 }));
    EXPECT_EQ(Parent(0, 2), (CellPlace { 0, 2 }));
    EXPECT_LE(Grid().ColSpan(0, 0), 1);
}

TEST_F(MergedCells, ASpanSetOnAChildRemovesTheOldOne)
{
    Grid().SetColSpan(0, 0, 3);
    Grid().SetColSpan(0, 1, 2);
    EXPECT_EQ(Grid().ColSpan(0, 0), 0);
    EXPECT_EQ(Grid().ColSpan(0, 1), 2);
    EXPECT_EQ(Parent(0, 2), (CellPlace { 0, 1 }));
    EXPECT_EQ(Parent(0, 1), (CellPlace { 0, 1 }));
}

TEST_F(MergedCells, AGrowingSpanRemovesAnotherWhole)
{
    Grid().SetColSpan(0, 2, 3);
    Grid().SetColSpan(0, 0, 3);
    EXPECT_EQ(Parent(0, 2), (CellPlace { 0, 0 }));
    EXPECT_EQ(Parent(0, 3), (CellPlace { 0, 3 }));
    EXPECT_EQ(Parent(0, 4), (CellPlace { 0, 4 }));
    EXPECT_EQ(Grid().ColSpan(0, 2), 0);
}

TEST_F(MergedCells, RowAndColumnSpansMakeARectangle)
{
    Grid().SetRowSpan(1, 1, 3);
    Grid().SetColSpan(1, 1, 2);
    for (i16 row = 1; row <= 3; ++row) {
        for (i16 col = 1; col <= 2; ++col)
            EXPECT_EQ(Parent(row, col), (CellPlace { 1, 1 }));
    }
    EXPECT_EQ(Parent(4, 1), (CellPlace { 4, 1 }));
    EXPECT_EQ(Parent(1, 3), (CellPlace { 1, 3 }));
}

TEST_F(MergedCells, PlainCellsAreTheirOwnParents)
{
    EXPECT_EQ(Parent(2, 2), (CellPlace { 2, 2 }));
    EXPECT_TRUE(Grid().IsParent(2, 2, 2, 2));
    EXPECT_FALSE(Grid().IsParent(2, 2, 2, 1));
}

TEST_F(MergedCells, IsParentFollowsTheSpan)
{
    Grid().SetColSpan(0, 0, 2);
    EXPECT_TRUE(Grid().IsParent(0, 1, 0, 0));
    EXPECT_FALSE(Grid().IsParent(0, 1, 0, 1));
    Grid().SetColSpan(-1, 0, 2);
    EXPECT_TRUE(Grid().IsParent(-1, 1, -1, 0));
}

TEST_F(MergedCells, IsParentIsFalseOutsideTheRealLines)
{
    EXPECT_FALSE(Grid().IsParent(6, 0, 6, 0)) << "the filler row";
    EXPECT_FALSE(Grid().IsParent(0, 5, 0, 5));
    EXPECT_FALSE(Grid().IsParent(-2, 0, -2, 0));
    EXPECT_FALSE(Grid().IsParent(100, 0, 100, 0));
}

TEST_F(MergedCells, EverySpanRepaintsTheGrid)
{
    Grid().SetColSpan(0, 0, 2);
    Grid().SetColSpan(0, 0, 2);
    Grid().SetRowSpan(0, 0, 2);
    EXPECT_EQ(host->Repaints(), 3);
    EXPECT_THAT(Reported(), IsEmpty());
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetColSpan(0, 0, 1);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(MergedCells, OutsideTheStoreIsError9AndBeyondSixteenBitsError6)
{
    EXPECT_EQ(ErrorOf([&] { Grid().ColSpan(7, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColSpan(0, 6, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().ParentRow(-2, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColSpan(0, 2, 32767); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().SetRowSpan(2, 0, 32767); }), 6);
}

TEST_F(MergedCells, ASpanCoversItsChildrenOnTheScreen)
{
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    Grid().SetColSpan(0, 0, 2);
    EXPECT_EQ(host->Pixel(30 + 120 + 60, 31), 0x00FFFFu);
    i16 width = 0, height = 0;
    Grid().GetSizeCell(0, 1, width, height);
    EXPECT_EQ(width, 240);
    EXPECT_EQ(height, 21);
}

TEST_F(MergedCells, SpanRowsMergesRunsOfEqualTexts)
{
    Fill(0, { u"a", u"a", u"b", u"c", u"c", u"c" });
    host->ClearLog();
    Grid().SpanRows(0);
    EXPECT_EQ(Grid().RowSpan(0, 0), 2);
    EXPECT_EQ(Grid().RowSpan(2, 0), 0);
    EXPECT_EQ(Grid().RowSpan(3, 0), 3);
    EXPECT_EQ(Parent(5, 0), (CellPlace { 3, 0 }));
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(MergedCells, SpanRowsIgnoresCaseAndMergesEmptyTexts)
{
    Fill(0, { u"ab", u"AB", u"", u"", u"x", u"y" });
    Grid().SpanRows(0);
    EXPECT_EQ(Grid().RowSpan(0, 0), 2);
    EXPECT_EQ(Grid().RowSpan(2, 0), 2);
    EXPECT_EQ(Grid().RowSpan(4, 0), 0);
}

TEST_F(MergedCells, SpanRowsMergesAWholeColumn)
{
    Grid().SpanRows(1);
    EXPECT_EQ(Grid().RowSpan(0, 1), 6);
    EXPECT_EQ(Grid().RowSpan(-1, 1), 0);
}

TEST_F(MergedCells, SpanRowsCanGoByKeys)
{
    Fill(0, { u"a", u"a", u"a", u"a", u"a", u"a" });
    Grid().SetKey(0, 0, u"k");
    Grid().SetKey(1, 0, u"K");
    Grid().SpanRows(0, true);
    EXPECT_EQ(Grid().RowSpan(0, 0), 2);
    EXPECT_EQ(Grid().RowSpan(2, 0), 4);
}

TEST_F(MergedCells, HiddenRowsTakePartInRuns)
{
    Fill(0, { u"a", u"b", u"a", u"a", u"a", u"z" });
    Grid().HideRow(1);
    Grid().SpanRows(0);
    EXPECT_EQ(Grid().RowSpan(0, 0), 0);
    EXPECT_EQ(Grid().RowSpan(2, 0), 3);
}

TEST_F(MergedCells, SpanRowsWithoutRowsDoesNothing)
{
    Grid().SetRows(0);
    host->ClearLog();
    Grid().SpanRows(0);
    Grid().SpanRows(100);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(MergedCells, SpanRowsRestoresRedraw)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SpanRows(0);
    EXPECT_EQ(host->Repaints(), 0);
    Grid().SetRedraw(true);
    EXPECT_EQ(ErrorOf([&] { Grid().SpanRows(100); }), 9);
    host->ClearLog();
    Grid().SetBackColor(7);
    EXPECT_EQ(host->Repaints(), 1) << "the gate is open again after an error";
}

TEST_F(MergedCells, RemoveSpanRowsLeavesTheTexts)
{
    Fill(0, { u"a", u"a", u"b", u"b", u"c", u"d" });
    Fill(1, { u"x", u"x", u"x", u"y", u"y", u"z" });
    Grid().SpanRows(0);
    Grid().SpanRows(1);
    host->ClearLog();
    Grid().RemoveSpanRows(0, 2);
    EXPECT_EQ(host->Repaints(), 1);
    for (i16 col = 0; col < 2; ++col) {
        for (i16 row = 0; row < 6; ++row) {
            EXPECT_EQ(Grid().RowSpan(row, col), 0);
            EXPECT_EQ(Parent(row, col), (CellPlace { row, col }));
        }
    }
    EXPECT_EQ(Grid().Text(1, 0), u"a");
    EXPECT_EQ(Grid().Text(4, 1), u"y");
}

TEST_F(MergedCells, RemoveSpanRowsTakesOneColumnByDefaultAndNoneForZero)
{
    Grid().SpanRows(0);
    Grid().SpanRows(1);
    Grid().RemoveSpanRows(0);
    EXPECT_EQ(Grid().RowSpan(0, 0), 0);
    EXPECT_EQ(Grid().RowSpan(0, 1), 6);
    Grid().RemoveSpanRows(1, 0);
    EXPECT_EQ(Grid().RowSpan(0, 1), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().RemoveSpanRows(4, 9); }), 9);
}

} // namespace
} // namespace vornix
