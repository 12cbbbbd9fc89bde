// Every allocation of every operation made to fail once: error 7, and the store stays whole.
#include "model/limited_memory.h"
#include "model/spans.h"
#include "model/store_support.h"
#include "model/visual_cell_store.h"

#include <gtest/gtest.h>

#include <functional>

namespace vornix {
namespace {

using Operation = std::function<void(GridStore&)>;

// Long texts, keys and shared rows, so that copies allocate.
std::unique_ptr<GridStore> FilledStore()
{
    auto store = BuildStore(6, 4, 1, 1);
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col <= store->MaxCol(); ++col) {
            store->EditCell(row, col).SetText(u"a text that is long enough for the heap");
            store->EditCell(row, col).SetKey(u"a key that is long enough for the heap");
        }
    store->RowAt(3) = Row(store->RowAt(2));
    store->ColumnAt(1).Name = u"a name that is long enough for the heap";
    return store;
}

void ExpectWhole(const GridStore& store)
{
    ASSERT_TRUE(store.ContainsRow(store.MaxRow()));
    ASSERT_FALSE(store.ContainsRow(store.MaxRow() + 1));
    ASSERT_TRUE(store.ContainsCol(store.MaxCol()));
    ASSERT_FALSE(store.ContainsCol(store.MaxCol() + 1));
    for (int row = 0; row <= store.MaxRow(); ++row) {
        ASSERT_EQ(store.RowAt(row).Cells.Count(), store.MaxCol() + 1);
        for (const Cell& cell : store.RowAt(row).Cells.All())
            ASSERT_LT(cell.FormatNumber(), store.Formats().NumberLimit());
    }
}

// Runs the operation with ever more memory until it succeeds; the number of failures before that.
int FailuresOf(const Operation& operation)
{
    for (int allocations = 0; allocations < 10000; ++allocations) {
        const auto store = FilledStore();
        const int error = ErrorOf([&] {
            const LimitedMemory limited(allocations);
            operation(*store);
        });
        ExpectWhole(*store);
        if (error == 0)
            return allocations;
        EXPECT_EQ(error, ErrorNumber::OutOfMemory);
    }
    return -1;
}

const FormatEdit paint = [](CellFormat& format) { format.BackColor = 12345; };

TEST(OutOfMemoryTest, WritingACell)
{
    EXPECT_GT(FailuresOf([](GridStore& store) { store.EditCell(5, 1).SetText(u"a text that is long enough"); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.EditCell(2, 1).SetText(u"short"); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.EditCell(5, 1).SetKey(u"a key that is long enough"); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.EditCell(5, 1).SetColSpan(2); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.EditCell(5, 1).SetButtonPressed(true); }), 0);
}

TEST(OutOfMemoryTest, AFailedTextKeepsTheOldOne)
{
    const auto store = FilledStore();
    const std::u16string before = store->CellAt(0, 0).Text();
    Cell& cell = store->EditCell(0, 0);
    EXPECT_EQ(ErrorOf([&] {
        const LimitedMemory limited(0);
        cell.SetText(u"another text that is long enough");
    }),
        ErrorNumber::OutOfMemory);
    EXPECT_EQ(store->CellAt(0, 0).Text(), before);
}

TEST(OutOfMemoryTest, WritingFormats)
{
    EXPECT_GT(FailuresOf([](GridStore& store) { store.EditFormat(2, 2, paint); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.EditColFormats(2, 0, store.MaxRow(), paint); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.EditRowFormats(2, 0, store.MaxCol(), paint); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.EditRectFormats(1, 1, 5, 2, paint); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) {
        for (OleColor color = 0; color < 700; ++color)
            store.EditFormat(2, 2, [color](CellFormat& format) { format.BackColor = color; });
    }),
        2);
}

TEST(OutOfMemoryTest, Building)
{
    EXPECT_GT(FailuresOf([](GridStore& store) {
        store.StoreRows(9);
        store.InitGridStore(SystemColors());
    }),
        2);
}

TEST(OutOfMemoryTest, ResizingRows)
{
    EXPECT_GT(FailuresOf([](GridStore& store) { store.ResizeRowStore(500); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { ChangeRows(store, 500); }), 1);
    EXPECT_EQ(FailuresOf([](GridStore& store) { ChangeRows(store, 2); }), 0) << "fewer rows need no memory";
}

TEST(OutOfMemoryTest, InsertingAndDeletingRows)
{
    EXPECT_GT(FailuresOf([](GridStore& store) { store.InsertRows(2, 500); }), 1);
    EXPECT_EQ(FailuresOf([](GridStore& store) { store.DeleteRows(2, 3); }), 0) << "fewer rows need no memory";
    for (int allocations = 0; allocations < 2; ++allocations) {
        const auto store = FilledStore();
        const int before = store->MaxRow();
        ASSERT_EQ(ErrorOf([&] {
            const LimitedMemory limited(allocations);
            store->InsertRows(2, 500);
        }),
            ErrorNumber::OutOfMemory)
            << allocations;
        EXPECT_EQ(store->MaxRow(), before);
        EXPECT_EQ(store->Rows(), before - store->FixedRows());
        EXPECT_EQ(store->CellAt(3, 1).Text(), u"a text that is long enough for the heap");
    }
}

TEST(OutOfMemoryTest, ResizingColumns)
{
    EXPECT_GT(FailuresOf([](GridStore& store) { store.ResizeColStore(20); }), 3);
    EXPECT_EQ(FailuresOf([](GridStore& store) { store.ResizeColStore(2); }), 0) << "nor do fewer columns";
    EXPECT_GT(FailuresOf([](GridStore& store) { ChangeCols(store, 20); }), 5);
    EXPECT_GT(FailuresOf([](GridStore& store) { ChangeFixedCols(store, 3); }), 5);
}

TEST(OutOfMemoryTest, AFailedColumnResizeKeepsCountsAndContents)
{
    for (int allocations = 0; allocations < 8; ++allocations) {
        const auto store = FilledStore();
        const int before = store->MaxCol();
        const int error = ErrorOf([&] {
            const LimitedMemory limited(allocations);
            store->ResizeColStore(20);
        });
        ASSERT_EQ(error, ErrorNumber::OutOfMemory) << allocations;
        ASSERT_EQ(store->MaxCol(), before);
        ASSERT_EQ(store->CellAt(3, 1).Text(), u"a text that is long enough for the heap");
    }
}

TEST(OutOfMemoryTest, ResettingLines)
{
    EXPECT_GT(FailuresOf([](GridStore& store) { store.InitRows(2, 4); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.InitFixedRows(0, 0); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.InitCols(1, 3); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.InitFixedCols(0, 0); }), 0);
    EXPECT_GT(FailuresOf([](GridStore& store) {
        store.EditRectFormats(0, 0, store.MaxRow(), store.MaxCol(), paint);
        store.InitFillerCol();
        store.InitFillerRow();
        store.ResetAttributes();
    }),
        2);
}

TEST(OutOfMemoryTest, ShiftingColumns)
{
    EXPECT_GT(FailuresOf([](GridStore& store) { store.ShiftColsUp(1, 2); }), 3);
    EXPECT_GT(FailuresOf([](GridStore& store) { store.ShiftColsDown(1, 3); }), 3);
    EXPECT_EQ(FailuresOf([](GridStore& store) { store.ShiftRowsUp(1, 2); }), 0) << "rows only change hands";
}

TEST(OutOfMemoryTest, Spanning)
{
    EXPECT_GT(FailuresOf([](GridStore& store) { Spans(store).SetRowSpan(2, 2, 4); }), 2);
    EXPECT_GT(FailuresOf([](GridStore& store) {
        Spans(store).MergeEqualRows(2, false, [](auto a, auto b) { return a == b; });
    }),
        2);
}

TEST(OutOfMemoryTest, ParkingALook)
{
    EXPECT_GT(FailuresOf([](GridStore&) {
        VisualCellStore parked;
        parked.Store(300, VisualCell());
    }),
        1);
}

TEST(OutOfMemoryTest, NamingAFont)
{
    EXPECT_GT(FailuresOf([](GridStore&) { FontName(u"a font name that is long enough for the heap"); }), 1);
}

} // namespace
} // namespace vornix
