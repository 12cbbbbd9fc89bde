#include "model/hidden_lines.h"

#include "model/store_support.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vornix {
namespace {

std::vector<int> Chain(const GridStore& store)
{
    std::vector<int> rows;
    for (int row = store.FixedRows(); row <= store.LastRowIndex(); row += store.RowAt(row).NextSkip + 1) {
        rows.push_back(row);
        if (rows.size() > 1000)
            break;
    }
    return rows;
}

std::vector<int> ChainFromTheEnd(const GridStore& store)
{
    std::vector<int> rows;
    for (int row = store.LastRowIndex(); row >= store.FixedRows(); row -= store.RowAt(row).PrevSkip + 1) {
        rows.insert(rows.begin(), row);
        if (rows.size() > 1000)
            break;
    }
    return rows;
}

// The rows with a height, the first and the last whatever height they have.
std::vector<int> PlainScan(const GridStore& store)
{
    std::vector<int> rows;
    for (int row = store.FixedRows(); row <= store.LastRowIndex(); ++row)
        if (store.HeightOf(row) != 0 || row == store.FixedRows() || row == store.LastRowIndex())
            rows.push_back(row);
    return rows;
}

using Rows = std::vector<int>;

class HiddenLinesTest : public testing::Test {
protected:
    HiddenLinesTest()
        : store_(BuildStore(6, 3, 1, 1))
        , lines_(*store_)
    {
    }

    void ExpectChain(const Rows& rows)
    {
        EXPECT_EQ(Chain(*store_), rows);
        EXPECT_EQ(ChainFromTheEnd(*store_), rows);
    }

    std::unique_ptr<GridStore> store_;
    HiddenLines lines_;
};

TEST_F(HiddenLinesTest, NothingHiddenIsAChainOfAllRows)
{
    ExpectChain({ 1, 2, 3, 4, 5, 6 });
}

TEST_F(HiddenLinesTest, AHiddenRowHasNoHeightAndKeepsItsOld)
{
    store_->RowAt(3).Height = 33;
    EXPECT_TRUE(lines_.HideRow(3));
    EXPECT_TRUE(store_->RowAt(3).Hidden);
    EXPECT_EQ(store_->HeightOf(3), 0);
    EXPECT_EQ(store_->RowAt(3).SavedHeight, 33);
    EXPECT_EQ(store_->Rows(), 6);
    ExpectChain({ 1, 2, 4, 5, 6 });
    EXPECT_FALSE(lines_.HideRow(3)) << "hidden already";
    EXPECT_TRUE(lines_.ShowRow(3)) << "one show is enough";
    EXPECT_EQ(store_->HeightOf(3), 33);
    EXPECT_FALSE(store_->RowAt(3).Hidden);
    EXPECT_FALSE(lines_.ShowRow(3));
    ExpectChain({ 1, 2, 3, 4, 5, 6 });
}

TEST_F(HiddenLinesTest, AHeightSavedWhileHiddenIsShown)
{
    lines_.HideRow(3);
    store_->RowAt(3).SavedHeight = 40;
    lines_.ShowRow(3);
    EXPECT_EQ(store_->HeightOf(3), 40);
}

TEST_F(HiddenLinesTest, AChainIsBuiltAnewFromTheHeightsAsTheyAre)
{
    for (const Rows& closed : { Rows { 3, 4 }, Rows { 1, 2, 6 }, Rows { 1, 2, 3, 4, 5, 6 }, Rows {}, Rows { 2, 4 } }) {
        for (int row = 1; row <= 6; ++row) {
            const bool isClosed = std::find(closed.begin(), closed.end(), row) != closed.end();
            store_->RowAt(row).Height = static_cast<i16>(isClosed ? 0 : 20);
            store_->RowAt(row).NextSkip = 3; // stale
            store_->RowAt(row).PrevSkip = 3;
        }
        lines_.RebuildChain();
        ExpectChain(PlainScan(*store_));
        EXPECT_EQ(store_->RowAt(1).PrevSkip, 0);
        EXPECT_EQ(store_->RowAt(6).NextSkip, 0);
    }
}

TEST_F(HiddenLinesTest, WithoutRowsThereIsNoChainToBuild)
{
    const auto fixedOnly = BuildStore(0, 3, 2, 1);
    fixedOnly->RowAt(1).NextSkip = 7;
    HiddenLines(*fixedOnly).RebuildChain();
    EXPECT_EQ(fixedOnly->RowAt(1).NextSkip, 7);
}

TEST_F(HiddenLinesTest, FirstAndLastRowStayInTheChain)
{
    lines_.HideRow(1);
    lines_.HideRow(6);
    ExpectChain({ 1, 2, 3, 4, 5, 6 });
    EXPECT_EQ(store_->HeightOf(1), 0);
    lines_.HideRow(2);
    ExpectChain({ 1, 3, 4, 5, 6 });
    lines_.ShowRow(2);
    ExpectChain({ 1, 2, 3, 4, 5, 6 });
}

TEST_F(HiddenLinesTest, AllInnerRowsHiddenLeaveTheEnds)
{
    for (const int row : { 3, 5, 2, 4 })
        lines_.HideRow(row);
    ExpectChain({ 1, 6 });
    lines_.HideRow(1);
    lines_.ShowRow(4);
    ExpectChain({ 1, 4, 6 });
}

TEST_F(HiddenLinesTest, FixedRowsHaveNoPartInTheChain)
{
    EXPECT_TRUE(lines_.HideRow(0));
    EXPECT_EQ(store_->HeightOf(0), 0);
    ExpectChain({ 1, 2, 3, 4, 5, 6 });
    EXPECT_TRUE(lines_.ShowRow(0));
    EXPECT_EQ(store_->HeightOf(0), 21);
}

TEST_F(HiddenLinesTest, HeightsOfZeroLeaveTheChainWithoutAMark)
{
    store_->RowAt(3).Height = 0;
    lines_.UpdateChain(3, 21, 0);
    ExpectChain({ 1, 2, 4, 5, 6 });
    EXPECT_FALSE(store_->RowAt(3).Hidden);
    lines_.UpdateChain(3, 0, 0);
    ExpectChain({ 1, 2, 4, 5, 6 });
    store_->RowAt(3).Height = 10;
    lines_.UpdateChain(3, 0, 10);
    ExpectChain({ 1, 2, 3, 4, 5, 6 });
    store_->RowAt(3).Height = 20;
    lines_.UpdateChain(3, 10, 20);
    ExpectChain({ 1, 2, 3, 4, 5, 6 });
}

TEST_F(HiddenLinesTest, ARowThatWasLastWhenHiddenIsShownOnce)
{
    lines_.HideRow(6); // stays in the chain
    ChangeRows(*store_, 9);
    ExpectChain({ 1, 2, 3, 4, 5, 6, 7, 8, 9 });
    lines_.ShowRow(6);
    ExpectChain({ 1, 2, 3, 4, 5, 6, 7, 8, 9 });
    lines_.HideRow(7);
    ExpectChain({ 1, 2, 3, 4, 5, 6, 8, 9 });
}

TEST_F(HiddenLinesTest, ARowShownBehindAHiddenRowStillInTheChain)
{
    lines_.HideRow(6);
    ChangeRows(*store_, 9);
    lines_.HideRow(7);
    ExpectChain({ 1, 2, 3, 4, 5, 6, 8, 9 });
    lines_.ShowRow(7);
    ExpectChain({ 1, 2, 3, 4, 5, 6, 7, 8, 9 });
}

TEST_F(HiddenLinesTest, ARowMadeVisibleBesideTheChainIsNotTakenOutTwice)
{
    lines_.HideRow(3);
    lines_.HideRow(4);
    store_->ResetAttributes(); // heights come back, the links stay
    const Rows before = Chain(*store_);
    EXPECT_EQ(before, (Rows { 1, 2, 5, 6 }));
    lines_.HideRow(3);
    ExpectChain(before);
    lines_.ShowRow(3);
    ExpectChain({ 1, 2, 3, 5, 6 });
}

TEST_F(HiddenLinesTest, RowsCutOffBehindALinkLeaveNoLinkBeyondTheEnd)
{
    for (const int row : { 3, 4, 5 })
        lines_.HideRow(row);
    ChangeRows(*store_, 4); // the last row is one that is not in the chain
    EXPECT_EQ(ErrorOf([&] { lines_.HideRow(2); }), 0);
    EXPECT_EQ(Chain(*store_), (Rows { 1, 4 }));
    EXPECT_EQ(ErrorOf([&] { lines_.ShowRow(3); }), 0);
    EXPECT_EQ(Chain(*store_), (Rows { 1, 3, 4 }));
}

TEST_F(HiddenLinesTest, NeighboursFollowTheLinks)
{
    lines_.HideRow(3);
    lines_.HideRow(4);
    EXPECT_EQ(lines_.NextInChain(2), 5);
    EXPECT_EQ(lines_.PrevInChain(5), 2);
    store_->RowAt(2).NextSkip = -5;
    store_->RowAt(2).PrevSkip = -5;
    EXPECT_EQ(lines_.NextInChain(2), 3) << "always ahead";
    EXPECT_EQ(lines_.PrevInChain(2), 1) << "always behind";
}

TEST_F(HiddenLinesTest, ColumnsHideWithoutAChain)
{
    store_->ColumnAt(2).Width = 77;
    EXPECT_TRUE(lines_.HideCol(2));
    EXPECT_FALSE(lines_.HideCol(2));
    EXPECT_EQ(store_->WidthOf(2), 0);
    EXPECT_TRUE(store_->ColumnAt(2).Hidden);
    EXPECT_TRUE(lines_.ShowCol(2));
    EXPECT_FALSE(lines_.ShowCol(2));
    EXPECT_EQ(store_->WidthOf(2), 77);
}

TEST_F(HiddenLinesTest, OutsideTheStoreIsAnError)
{
    EXPECT_EQ(ErrorOf([&] { lines_.HideRow(8); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { lines_.ShowRow(-1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { lines_.HideCol(5); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { lines_.ShowCol(-1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { lines_.HideRow(7); }), 0) << "the filler can be hidden";
}

class HiddenLinesRandomTest : public testing::TestWithParam<unsigned> { };

TEST_P(HiddenLinesRandomTest, TheChainVisitsWhatAPlainScanFinds)
{
    RandomNumbers random(GetParam());
    const int fixedRows = random.Between(0, 2);
    const auto store = BuildStore(random.Between(1, 20), 1, fixedRows);
    HiddenLines lines(*store);
    for (int step = 0; step < 1000; ++step) {
        const int row = random.Between(0, store->LastRowIndex());
        switch (random.Between(0, 2)) {
        case 0:
            lines.HideRow(row);
            break;
        case 1:
            lines.ShowRow(row);
            break;
        default: {
            Row& record = store->RowAt(row);
            const auto height = static_cast<i16>(random.OneIn(2) ? 0 : random.Between(1, 50));
            if (record.Hidden) {
                record.SavedHeight = height;
                break;
            }
            const int before = record.Height;
            record.Height = height;
            lines.UpdateChain(row, before, height);
        }
        }
        ASSERT_EQ(Chain(*store), PlainScan(*store)) << "step " << step;
        ASSERT_EQ(ChainFromTheEnd(*store), PlainScan(*store)) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, HiddenLinesRandomTest, testing::Range(0u, 30u));

// With structure changes between, as a control makes them, links may be stale; they stay inside and lead on.
TEST_P(HiddenLinesRandomTest, StaleLinksNeverLeadInCircles)
{
    RandomNumbers random(GetParam() + 1000);
    const auto store = BuildStore(10, 1, 1);
    HiddenLines lines(*store);
    for (int step = 0; step < 2000; ++step) {
        const int row = random.Between(0, store->MaxRow());
        switch (random.Between(0, 6)) {
        case 0:
            ChangeRows(*store, random.Between(0, 20));
            break;
        case 1:
            ChangeFixedRows(*store, random.Between(0, 2));
            break;
        case 2:
            store->ResetAttributes();
            break;
        case 3:
        case 4:
            ASSERT_EQ(ErrorOf([&] { lines.HideRow(row); }), 0);
            break;
        default:
            ASSERT_EQ(ErrorOf([&] { lines.ShowRow(row); }), 0);
        }
        for (int index = 0; index <= store->MaxRow(); ++index) {
            ASSERT_GE(store->RowAt(index).NextSkip, 0);
            ASSERT_GE(store->RowAt(index).PrevSkip, 0);
        }
    }
}

} // namespace
} // namespace vornix
