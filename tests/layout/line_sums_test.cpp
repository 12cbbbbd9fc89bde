#include "layout/line_sums.h"

#include "layout/table.h"

namespace vornix {
namespace {

TEST(LineSums, AddsBothEndsToTheStart)
{
    Table table(0, 4, 0, 3);
    table.Heights({ 10, 20, 0, 40 });
    table.Widths({ 5, 6, 7 });
    const LineSums sums(table.store);
    EXPECT_EQ(sums.AddHeights(1, 0, 3), 71);
    EXPECT_EQ(sums.AddHeights(0, 1, 1), 20);
    EXPECT_EQ(sums.AddWidths(-3, 1, 2), 10);
}

TEST(LineSums, AddsNothingForAnEmptyRange)
{
    Table table(0, 2, 0, 2);
    const LineSums sums(table.store);
    EXPECT_EQ(sums.AddHeights(9, 2, 1), 9);
    EXPECT_EQ(sums.AddWidths(9, 0, -1), 9);
}

TEST(LineSums, RaisesOverflowAtTheFirstPixelBeyond16Bits)
{
    Table table(0, 2, 0, 2);
    table.Heights({ 32766, 1 });
    table.Widths({ 32767, 1 });
    const LineSums sums(table.store);
    EXPECT_EQ(sums.AddHeights(0, 0, 1), 32767);
    EXPECT_EQ(ErrorOf([&] { sums.AddHeights(1, 0, 1); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { sums.AddWidths(0, 0, 1); }), ErrorNumber::Overflow);
    EXPECT_EQ(sums.AddWidths(-1, 0, 1), 32767);
}

TEST(LineSums, ReadsTheFillerButNothingBeyondIt)
{
    Table table(1, 2, 1, 2);
    const LineSums sums(table.store);
    table.store.RowAt(3).Height = 8;
    table.store.ColumnAt(3).Width = 9;
    EXPECT_EQ(sums.AddHeights(0, 3, 3), 8);
    EXPECT_EQ(sums.AddWidths(0, 3, 3), 9);
    EXPECT_EQ(ErrorOf([&] { sums.AddHeights(0, 4, 4); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { sums.AddWidths(0, -1, 0); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(LineSums, RoomStopsBehindTheLineThatIsTooMuch)
{
    Table table(0, 4, 0, 3);
    table.Heights({ 10, 10, 32767, 32767 });
    table.Widths({ 10, 10, 10 });
    const LineSums sums(table.store);
    EXPECT_EQ(sums.RoomAfterRows(20, 0, 1), 0);
    EXPECT_EQ(sums.RoomAfterRows(25, 0, 3), 5 - 32767); // the last row is not reached
    EXPECT_EQ(sums.RoomAfterCols(15, 0, 2), -5);
    EXPECT_EQ(sums.RoomAfterCols(20, 0, 2), -10); // an area filled to the pixel does not stop the walk
    EXPECT_EQ(sums.RoomAfterCols(15, 3, 2), 15);
    EXPECT_EQ(ErrorOf([&] { sums.RoomAfterRows(-2, 2, 3); }), ErrorNumber::Overflow);
}

TEST(LineSums, FindsTheFirstLineThatEndsBeyondAPosition)
{
    Table table(0, 4, 0, 4);
    table.Heights({ 10, 0, 20, 32767 });
    table.Widths({ 10, 20, 30, 40 });
    const LineSums sums(table.store);
    EXPECT_EQ(sums.RowBeyond(9, 0, 0, 3).line, 0);
    EXPECT_EQ(sums.RowBeyond(10, 0, 0, 3).line, 2); // an empty line holds no pixel
    EXPECT_EQ(sums.RowBeyond(30, 0, 0, 3).line, 3); // no narrowing on the way
    EXPECT_EQ(sums.ColBeyond(9, -5, 1, 2).line, 1);
    const auto none = sums.ColBeyond(55, 5, 1, 2);
    EXPECT_EQ(none.line, NoIndex);
    EXPECT_EQ(none.edge, 55);
}

} // namespace
} // namespace vornix
