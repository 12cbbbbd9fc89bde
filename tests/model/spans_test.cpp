#include "model/spans.h"

#include "model/store_support.h"

#include <gtest/gtest.h>

#include <cctype>

namespace vornix {
namespace {

class SpansTest : public testing::Test {
protected:
    SpansTest()
        : store_(BuildStore(6, 6))
        , spans_(*store_)
    {
    }

    void ExpectChild(int row, int col, CellIndex parent)
    {
        EXPECT_EQ(spans_.ParentOf(row, col), parent) << row << ", " << col;
        EXPECT_TRUE(store_->CellAt(row, col).IsChild()) << row << ", " << col;
        EXPECT_EQ(store_->CellAt(row, col).RowSpan(), 0);
        EXPECT_EQ(store_->CellAt(row, col).ColSpan(), 0);
    }

    void ExpectPlain(int row, int col)
    {
        EXPECT_FALSE(store_->CellAt(row, col).HasExtras()) << row << ", " << col;
        EXPECT_EQ(spans_.ParentOf(row, col), (CellIndex { row, col }));
    }

    std::unique_ptr<GridStore> store_;
    Spans spans_;
};

bool EqualWithoutCase(std::u16string_view a, std::u16string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
        [](char16_t x, char16_t y) { return std::tolower(x) == std::tolower(y); });
}

TEST_F(SpansTest, AColumnSpanLinksItsChildren)
{
    EXPECT_EQ(spans_.SetColSpan(1, 2, 3), 3);
    EXPECT_EQ(store_->CellAt(1, 2).ColSpan(), 3);
    EXPECT_EQ(store_->CellAt(1, 2).RowSpan(), 0);
    ExpectChild(1, 3, { 1, 2 });
    ExpectChild(1, 4, { 1, 2 });
    EXPECT_EQ(store_->CellAt(1, 4).ParentCol(), -2);
    EXPECT_EQ(store_->CellAt(1, 4).ParentRow(), 0);
    ExpectPlain(1, 5);
    EXPECT_EQ(spans_.ParentOf(1, 2), (CellIndex { 1, 2 }));
}

TEST_F(SpansTest, ASpanInBothDirectionsCoversTheRectangle)
{
    spans_.SetRowSpan(1, 1, 3);
    spans_.SetColSpan(1, 1, 2);
    EXPECT_EQ(spans_.RowsCovered(1, 1), 3);
    EXPECT_EQ(spans_.ColsCovered(1, 1), 2);
    for (int row = 1; row <= 3; ++row)
        for (int col = 1; col <= 2; ++col)
            if (row != 1 || col != 1)
                ExpectChild(row, col, { 1, 1 });
    ExpectPlain(4, 1);
    ExpectPlain(1, 3);
}

TEST_F(SpansTest, ASpanThatLeavesTheStoreChangesNothing)
{
    EXPECT_EQ(spans_.SetColSpan(0, 4, 3), 0);
    ExpectPlain(0, 4);
    ExpectPlain(0, 5);
    EXPECT_EQ(spans_.SetColSpan(0, 4, 2), 2) << "up to the last real column";
    EXPECT_EQ(spans_.SetColSpan(0, 4, 3), 2);
    EXPECT_EQ(store_->CellAt(0, 4).ColSpan(), 2);
    EXPECT_EQ(spans_.SetRowSpan(5, 0, 2), 0);
    EXPECT_EQ(spans_.SetRowSpan(0, 0, 6), 6);
}

TEST_F(SpansTest, FillersTakeNoSpan)
{
    EXPECT_EQ(spans_.SetColSpan(6, 0, 2), 0);
    EXPECT_EQ(spans_.SetRowSpan(0, 6, 2), 0);
    EXPECT_EQ(spans_.SetColSpan(0, 6, 1), 0);
    ExpectPlain(6, 0);
    ExpectPlain(6, 1);
    ExpectPlain(1, 6);
}

TEST_F(SpansTest, ErrorsOutsideTheStoreAndBeyondSixteenBits)
{
    EXPECT_EQ(ErrorOf([&] { spans_.SetColSpan(0, 7, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { spans_.SetRowSpan(-1, 0, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { spans_.RemoveSpan(7, 0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { spans_.SetColSpan(0, 1, 32767); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { spans_.SetRowSpan(1, 0, 32767); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { spans_.SetRowSpan(0, 0, 32767); }), 0) << "refused, but no overflow";
    ExpectPlain(0, 1);
}

TEST_F(SpansTest, ASpanOfOneFreesTheChildren)
{
    spans_.SetColSpan(2, 1, 3);
    EXPECT_EQ(spans_.SetColSpan(2, 1, 1), 1);
    EXPECT_EQ(store_->CellAt(2, 1).ColSpan(), 1);
    ExpectPlain(2, 2);
    ExpectPlain(2, 3);
}

TEST_F(SpansTest, ZeroCountsAsOne)
{
    EXPECT_EQ(spans_.SetColSpan(2, 1, 0), 1);
    EXPECT_EQ(store_->CellAt(2, 1).ColSpan(), 1);
}

TEST_F(SpansTest, ShrinkingFreesOnlyTheCutPart)
{
    spans_.SetRowSpan(0, 0, 2);
    spans_.SetColSpan(0, 0, 4);
    spans_.SetColSpan(0, 0, 2);
    ExpectChild(0, 1, { 0, 0 });
    ExpectChild(1, 1, { 0, 0 });
    ExpectPlain(0, 2);
    ExpectPlain(1, 3);
}

TEST_F(SpansTest, AChildThatSpansRemovesTheOldSpanFirst)
{
    spans_.SetColSpan(1, 0, 4);
    EXPECT_EQ(spans_.SetColSpan(1, 2, 2), 2);
    ExpectPlain(1, 0);
    ExpectPlain(1, 1);
    ExpectChild(1, 3, { 1, 2 });
}

TEST_F(SpansTest, AGrowingSpanRemovesOlderOnesWhole)
{
    spans_.SetRowSpan(0, 2, 3);
    spans_.SetColSpan(0, 2, 2);
    spans_.SetColSpan(1, 0, 3); // touches the rectangle in its second row
    ExpectPlain(0, 2);
    ExpectPlain(0, 3);
    ExpectPlain(2, 2);
    ExpectPlain(1, 3);
    ExpectChild(1, 2, { 1, 0 });
    spans_.SetRowSpan(0, 1, 2); // over a child of the new one
    ExpectPlain(1, 0);
    ExpectPlain(1, 2);
    ExpectChild(1, 1, { 0, 1 });
}

TEST_F(SpansTest, ANegativeSpanTouchesNoNeighbour)
{
    spans_.SetColSpan(0, 0, 2);
    spans_.SetColSpan(0, 2, 2);
    EXPECT_EQ(spans_.SetColSpan(0, 2, -2), -2);
    ExpectChild(0, 1, { 0, 0 });
    ExpectPlain(0, 3);
    EXPECT_EQ(spans_.ColsCovered(0, 2), 1);
    spans_.SetColSpan(0, 2, 3);
    ExpectChild(0, 1, { 0, 0 });
    ExpectChild(0, 4, { 0, 2 });
}

TEST_F(SpansTest, ForcingWritesLinksWithoutRemoving)
{
    spans_.SetRowSpan(3, 1, 2);
    EXPECT_EQ(spans_.SetColSpan(3, 0, 2, true), 2);
    EXPECT_EQ(store_->CellAt(3, 0).ColSpan(), 2);
    EXPECT_EQ(spans_.ParentOf(3, 1), (CellIndex { 3, 0 }));
    EXPECT_EQ(store_->CellAt(3, 1).RowSpan(), 2) << "the older span is still there";
    EXPECT_EQ(spans_.ParentOf(4, 1), (CellIndex { 3, 1 }));
}

TEST_F(SpansTest, ForcingRelinksAWholeRectangle)
{
    spans_.SetRowSpan(1, 1, 2);
    spans_.SetColSpan(1, 1, 3);
    for (int row = 1; row <= 2; ++row)
        for (int col = 1; col <= 3; ++col) {
            store_->EditCell(row, col).SetParentRow(0);
            store_->EditCell(row, col).SetParentCol(0);
        }
    spans_.SetColSpan(1, 1, 3, true);
    ExpectChild(1, 3, { 1, 1 });
    ExpectChild(2, 1, { 1, 1 });
    ExpectChild(2, 3, { 1, 1 });
}

TEST_F(SpansTest, RemovingKeepsTheTexts)
{
    store_->EditCell(1, 2).SetText(u"child");
    spans_.SetColSpan(1, 1, 3);
    EXPECT_EQ(store_->CellAt(1, 2).Text(), u"child");
    spans_.RemoveSpan(1, 1);
    EXPECT_EQ(store_->CellAt(1, 2).Text(), u"child");
    EXPECT_EQ(store_->CellAt(1, 1).ColSpan(), 0);
    EXPECT_FALSE(store_->CellAt(1, 2).IsChild());
}

TEST_F(SpansTest, SpansTravelWithWholeRows)
{
    spans_.SetRowSpan(1, 1, 2);
    store_->ShiftRowsUp(1, 2);
    EXPECT_EQ(store_->CellAt(3, 1).RowSpan(), 2);
    ExpectChild(4, 1, { 3, 1 });
}

TEST_F(SpansTest, ASpanCutOffByFewerRowsCanBeRemovedOrShrunk)
{
    spans_.SetRowSpan(2, 0, 4);
    spans_.SetRowSpan(2, 1, 4);
    spans_.SetColSpan(2, 2, 3);
    ChangeRows(*store_, 4);
    EXPECT_EQ(ErrorOf([&] { spans_.RemoveSpan(2, 0); }), 0);
    EXPECT_FALSE(store_->CellAt(3, 0).IsChild());
    EXPECT_EQ(ErrorOf([&] { spans_.SetRowSpan(2, 1, 2); }), 0);
    ExpectChild(3, 1, { 2, 1 });
    EXPECT_EQ(ErrorOf([&] { spans_.SetRowSpan(2, 2, 2); }), 0);
}

TEST_F(SpansTest, MergingAllEqualRowsGivesOneSpan)
{
    EXPECT_TRUE(spans_.MergeEqualRows(2, false, EqualWithoutCase));
    EXPECT_EQ(store_->CellAt(0, 2).RowSpan(), 6) << "empty texts are equal";
    ExpectChild(5, 2, { 0, 2 });
    EXPECT_FALSE(store_->CellAt(6, 2).IsChild());
    EXPECT_TRUE(store_->ColumnAt(2).SpanRows);
}

TEST_F(SpansTest, MergingFollowsTheComparison)
{
    const char16_t* texts[] = { u"ab", u"AB", u"c", u"d", u"D", u"d" };
    for (int row = 0; row < 6; ++row)
        store_->EditCell(row, 0).SetText(texts[row]);
    spans_.MergeEqualRows(0, false, EqualWithoutCase);
    EXPECT_EQ(store_->CellAt(0, 0).RowSpan(), 2);
    ExpectChild(1, 0, { 0, 0 });
    EXPECT_EQ(store_->CellAt(2, 0).RowSpan(), 0) << "a run of one row is left alone";
    EXPECT_EQ(store_->CellAt(3, 0).RowSpan(), 3);
    spans_.RemoveMergedRows(0);
    for (int row = 0; row < 6; ++row) {
        ExpectPlain(row, 0);
        EXPECT_EQ(store_->CellAt(row, 0).Text(), texts[row]);
    }
    EXPECT_FALSE(store_->ColumnAt(0).SpanRows);
}

TEST_F(SpansTest, MergingByKeyIgnoresTheTexts)
{
    for (int row = 0; row < 6; ++row) {
        store_->EditCell(row, 0).SetText(u"same");
        store_->EditCell(row, 0).SetKey(row < 2 ? u"one" : u"two");
    }
    spans_.MergeEqualRows(0, true, EqualWithoutCase);
    EXPECT_EQ(store_->CellAt(0, 0).RowSpan(), 2);
    EXPECT_EQ(store_->CellAt(2, 0).RowSpan(), 4);
}

TEST(SpansFixedRowsTest, MergingBeginsBelowTheFixedRows)
{
    const auto store = BuildStore(3, 1, 2);
    Spans spans(*store);
    EXPECT_TRUE(spans.MergeEqualRows(0, false, EqualWithoutCase));
    EXPECT_EQ(store->CellAt(0, 0).RowSpan(), 0);
    EXPECT_EQ(store->CellAt(2, 0).RowSpan(), 3);
    spans.SetRowSpan(0, 0, 2);
    spans.RemoveMergedRows(0);
    EXPECT_EQ(store->CellAt(0, 0).RowSpan(), 2) << "fixed rows keep their spans";
    EXPECT_EQ(store->CellAt(2, 0).RowSpan(), 0);
}

TEST(SpansFixedRowsTest, WithoutRowsNothingIsMerged)
{
    const auto store = BuildStore(0, 1, 2);
    Spans spans(*store);
    EXPECT_FALSE(spans.MergeEqualRows(0, false, EqualWithoutCase));
    EXPECT_FALSE(store->ColumnAt(0).SpanRows);
}

TEST(SpansFixedRowsTest, SpansOverManySharedRowsLeaveOtherRowsAlone)
{
    const auto store = BuildStore(1000, 2);
    Spans spans(*store);
    spans.SetRowSpan(10, 0, 5);
    EXPECT_EQ(store->RowAt(9).Cells.Identity(), store->RowAt(900).Cells.Identity());
    EXPECT_TRUE(store->CellAt(14, 0).IsChild());
    EXPECT_FALSE(store->CellAt(15, 0).IsChild());
}

} // namespace
} // namespace vornix
