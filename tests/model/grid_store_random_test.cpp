// The store beside its slow model, through random operations.
#include "model/slow_store.h"
#include "model/store_support.h"
#include "vornix/picture.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

class GridStoreRandomTest : public testing::TestWithParam<unsigned> {
protected:
    GridStoreRandomTest()
        : random_(GetParam())
        , picture_(PictureObject::FromRgba(1, 1, std::vector<u8>(4)))
    {
        const int fixedRows = random_.Between(0, 2);
        const int fixedCols = random_.Between(0, 2);
        const int rows = random_.Between(0, 6);
        const int cols = random_.Between(0, 6);
        store_.Defaults.AdjustLastCol = !random_.OneIn(3);
        store_.Defaults.AdjustLastRow = !random_.OneIn(3);
        store_.Defaults.DefaultMode = vxTextBox;
        store_.Defaults.DefaultWidth = 90;
        store_.StoreRows(static_cast<i16>(rows));
        store_.StoreCols(static_cast<i16>(cols));
        store_.StoreFixedRows(static_cast<i16>(fixedRows));
        store_.StoreFixedCols(static_cast<i16>(fixedCols));
        store_.InitGridStore(SystemColors());
        slow_ = std::make_unique<SlowStore>(store_.Defaults, rows, cols, fixedRows, fixedCols);
    }

    int AnyRow() { return random_.Between(0, slow_->UpperRow()); }
    int AnyCol() { return random_.Between(0, slow_->UpperCol()); }

    void ChangeACount()
    {
        const int n = random_.Between(0, 7);
        switch (random_.Between(0, 3)) {
        case 0:
            ChangeRows(store_, n);
            return slow_->ChangeRows(n);
        case 1:
            ChangeCols(store_, n);
            return slow_->ChangeCols(n);
        case 2:
            ChangeFixedRows(store_, n % 4);
            return slow_->ChangeFixedRows(n % 4);
        default:
            ChangeFixedCols(store_, n % 4);
            return slow_->ChangeFixedCols(n % 4);
        }
    }

    void Shift()
    {
        const int row = AnyRow();
        const int source = random_.Between(row, slow_->UpperRow());
        const int col = AnyCol();
        const int sourceCol = random_.Between(col, slow_->UpperCol());
        switch (random_.Between(0, 3)) {
        case 0:
            store_.ShiftRowsDown(row, source);
            return slow_->ShiftRowsDown(row, source);
        case 1:
            store_.ShiftRowsUp(row, source - row);
            return slow_->ShiftRowsUp(row, source - row);
        case 2:
            store_.ShiftColsDown(col, sourceCol);
            return slow_->ShiftColsDown(col, sourceCol);
        default:
            store_.ShiftColsUp(col, sourceCol - col);
            return slow_->ShiftColsUp(col, sourceCol - col);
        }
    }

    void InsertOrDeleteRows()
    {
        const int position = random_.Between(slow_->fixedRows, slow_->UpperRow());
        const int count = random_.Between(0, random_.OneIn(10) ? 100 : 3);
        if (random_.OneIn(2) && slow_->rowCount < 200) {
            store_.InsertRows(position, count);
            return slow_->InsertRows(position, count);
        }
        if (count == 0 || position + count > slow_->UpperRow())
            return;
        store_.DeleteRows(position, count);
        slow_->DeleteRows(position, count);
    }

    void Init()
    {
        const int row = AnyRow();
        const int lastRow = random_.Between(row, slow_->UpperRow());
        const int col = AnyCol();
        const int lastCol = random_.Between(col, slow_->UpperCol());
        switch (random_.Between(0, 6)) {
        case 0:
            store_.InitRows(row, lastRow);
            return slow_->InitRows(row, lastRow);
        case 1:
            store_.InitFixedRows(row, lastRow);
            return slow_->InitFixedRows(row, lastRow);
        case 2:
            store_.InitCols(col, lastCol);
            return slow_->InitCols(col, lastCol);
        case 3:
            store_.InitFixedCols(col, lastCol);
            return slow_->InitFixedCols(col, lastCol);
        case 4:
            store_.InitFillerCol();
            return slow_->InitFillerCol();
        case 5:
            store_.InitFillerRow();
            return slow_->InitFillerRow();
        default:
            if (!random_.OneIn(4))
                return;
            store_.ResetAttributes();
            return slow_->ResetAttributes();
        }
    }

    void WriteACell()
    {
        const int row = AnyRow();
        const int col = AnyCol();
        SlowCell& slow = slow_->CellAt(row, col);
        const auto number = static_cast<i16>(random_.Between(-3, 3));
        switch (random_.Between(0, 6)) {
        case 0:
            slow.text = RandomText(random_);
            return store_.EditCell(row, col).SetText(slow.text);
        case 1:
            slow.key = RandomText(random_);
            return store_.EditCell(row, col).SetKey(slow.key);
        case 2:
            slow.picture = random_.OneIn(2) ? picture_ : nullptr;
            return store_.EditCell(row, col).SetPicture(slow.picture);
        case 3:
            slow.rowSpan = number;
            return store_.EditCell(row, col).SetRowSpan(number);
        case 4:
            slow.colSpan = number;
            return store_.EditCell(row, col).SetColSpan(number);
        case 5:
            slow.parentRow = slow.parentCol = number;
            store_.EditCell(row, col).SetParentRow(number);
            return store_.EditCell(row, col).SetParentCol(number);
        default:
            slow.pressed = random_.OneIn(2);
            return store_.EditCell(row, col).SetButtonPressed(slow.pressed);
        }
    }

    void WriteFormats()
    {
        const int row = AnyRow();
        const int lastRow = random_.Between(row - 1, slow_->UpperRow());
        const int col = AnyCol();
        const int lastCol = random_.Between(col - 1, slow_->UpperCol());
        const auto color = static_cast<OleColor>(random_.Between(0, 5));
        const FormatEdit edit = [color](CellFormat& format) {
            format.BackColor = color;
            format.ForeColor ^= color;
        };
        switch (random_.Between(0, 5)) {
        case 0:
            store_.EditFormat(row, col, edit);
            return slow_->EditFormats(row, col, row, col, edit);
        case 1:
            store_.EditColFormats(col, row, lastRow, edit);
            return slow_->EditFormats(row, col, lastRow, col, edit);
        case 2:
            store_.EditRowFormats(row, col, lastCol, edit);
            return slow_->EditFormats(row, col, row, lastCol, edit);
        case 3:
            store_.EditRectFormats(row, col, lastRow, lastCol, edit);
            return slow_->EditFormats(row, col, lastRow, lastCol, edit);
        case 4:
            store_.EditColDefaults(col, edit);
            return edit(slow_->ColumnAt(col).cellDefaults);
        default:
            slow_->CellAt(row, col).format = slow_->defaults.DefaultCellFormatFixed;
            return store_.SetFormat(row, col, store_.Defaults.DefaultCellFormatFixed);
        }
    }

    void WriteALine()
    {
        const int row = AnyRow();
        const int other = AnyRow();
        const int col = AnyCol();
        const int number = random_.Between(0, 50);
        switch (random_.Between(0, 4)) {
        case 0: // a row copied as a value
            slow_->RowAt(row) = SlowRow(slow_->RowAt(other));
            store_.RowAt(row) = Row(store_.RowAt(other));
            return;
        case 1:
            std::swap(slow_->RowAt(row), slow_->RowAt(other));
            return std::swap(store_.RowAt(row), store_.RowAt(other));
        case 2:
            slow_->RowAt(row).hidden = store_.RowAt(row).Hidden = random_.OneIn(2);
            slow_->RowAt(row).savedHeight = store_.RowAt(row).SavedHeight = static_cast<i16>(number);
            slow_->RowAt(row).recordPos = store_.RowAt(row).RecordPos = number;
            slow_->RowAt(row).nextSkip = store_.RowAt(row).NextSkip = static_cast<i16>(number % 3);
            return;
        case 3:
            slow_->ColumnAt(col).name = store_.ColumnAt(col).Name = RandomText(random_);
            slow_->ColumnAt(col).title = store_.ColumnAt(col).Title = RandomText(random_);
            slow_->ColumnAt(col).widthPercent = store_.ColumnAt(col).WidthPercent = static_cast<i16>(number);
            slow_->ColumnAt(col).useAsField = store_.ColumnAt(col).UseAsField[0] = static_cast<i16>(number);
            return;
        default: {
            const std::u16string text = RandomText(random_);
            store_.EditColCells(
                col, std::min(row, other), std::max(row, other), [&](Cell& cell) { cell.SetText(text); });
            for (int index = std::min(row, other); index <= std::max(row, other); ++index)
                slow_->CellAt(index, col).text = text;
        }
        }
    }

    void Step()
    {
        switch (random_.Between(0, 10)) {
        case 10:
            return InsertOrDeleteRows();
        case 0:
            return ChangeACount();
        case 1:
            return Shift();
        case 2:
            return Init();
        case 3:
        case 4:
            return WriteFormats();
        case 5:
            return WriteALine();
        default:
            return WriteACell();
        }
    }

    RandomNumbers random_;
    PicturePtr picture_;
    GridStore store_;
    std::unique_ptr<SlowStore> slow_;
};

TEST_P(GridStoreRandomTest, IsWhatPlainCopyingGives)
{
    ASSERT_EQ(Difference(store_, *slow_), "");
    for (int step = 0; step < 1500; ++step) {
        Step();
        ASSERT_EQ(Difference(store_, *slow_), "") << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, GridStoreRandomTest, testing::Range(0u, 40u));

} // namespace
} // namespace vornix
