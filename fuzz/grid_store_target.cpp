// Random operations on the store, beside its slow model: the same table comes out.
#include "fuzz_input.h"
#include "model/slow_store.h"
#include "model/store_support.h"
#include "vornix/picture.h"

#include <algorithm>
#include <utility>

using namespace vornix;

namespace {

class Machine {
public:
    explicit Machine(fuzz::FuzzInput& input)
        : input_(input)
        , picture_(PictureObject::FromRgba(1, 1, std::vector<u8>(4)))
    {
        const int rows = input_.Between(0, 6);
        const int cols = input_.Between(0, 6);
        const int fixedRows = input_.Between(0, 2);
        const int fixedCols = input_.Between(0, 2);
        store_.Defaults.AdjustLastCol = input_.Bool();
        store_.Defaults.AdjustLastRow = input_.Bool();
        store_.StoreRows(static_cast<i16>(rows));
        store_.StoreCols(static_cast<i16>(cols));
        store_.StoreFixedRows(static_cast<i16>(fixedRows));
        store_.StoreFixedCols(static_cast<i16>(fixedCols));
        store_.InitGridStore(SystemColors());
        slow_ = std::make_unique<SlowStore>(store_.Defaults, rows, cols, fixedRows, fixedCols);
    }

    void Step()
    {
        row_ = input_.Between(0, slow_->UpperRow());
        col_ = input_.Between(0, slow_->UpperCol());
        lastRow_ = input_.Between(row_, slow_->UpperRow());
        lastCol_ = input_.Between(col_, slow_->UpperCol());
        switch (input_.Byte() % 6) {
        case 0:
            return ChangeACount();
        case 1:
            return Shift();
        case 2:
            return Init();
        case 3:
            return WriteFormats();
        case 4:
            return WriteALine();
        default:
            return WriteACell();
        }
    }

    void Compare() const
    {
        const std::string difference = Difference(store_, *slow_);
        fuzz::Require(difference.empty(), difference.c_str());
    }

private:
    void ChangeACount()
    {
        const int count = input_.Between(0, 8);
        switch (input_.Byte() % 4) {
        case 0:
            ChangeRows(store_, count);
            return slow_->ChangeRows(count);
        case 1:
            ChangeCols(store_, count);
            return slow_->ChangeCols(count);
        case 2:
            ChangeFixedRows(store_, count % 4);
            return slow_->ChangeFixedRows(count % 4);
        default:
            ChangeFixedCols(store_, count % 4);
            return slow_->ChangeFixedCols(count % 4);
        }
    }

    void Shift()
    {
        switch (input_.Byte() % 4) {
        case 0:
            store_.ShiftRowsDown(row_, lastRow_);
            return slow_->ShiftRowsDown(row_, lastRow_);
        case 1:
            store_.ShiftRowsUp(row_, lastRow_ - row_);
            return slow_->ShiftRowsUp(row_, lastRow_ - row_);
        case 2:
            store_.ShiftColsDown(col_, lastCol_);
            return slow_->ShiftColsDown(col_, lastCol_);
        default:
            store_.ShiftColsUp(col_, lastCol_ - col_);
            return slow_->ShiftColsUp(col_, lastCol_ - col_);
        }
    }

    void Init()
    {
        switch (input_.Byte() % 7) {
        case 0:
            store_.InitRows(row_, lastRow_);
            return slow_->InitRows(row_, lastRow_);
        case 1:
            store_.InitFixedRows(row_, lastRow_);
            return slow_->InitFixedRows(row_, lastRow_);
        case 2:
            store_.InitCols(col_, lastCol_);
            return slow_->InitCols(col_, lastCol_);
        case 3:
            store_.InitFixedCols(col_, lastCol_);
            return slow_->InitFixedCols(col_, lastCol_);
        case 4:
            store_.InitFillerCol();
            return slow_->InitFillerCol();
        case 5:
            store_.InitFillerRow();
            return slow_->InitFillerRow();
        default:
            store_.ResetAttributes();
            return slow_->ResetAttributes();
        }
    }

    void WriteACell()
    {
        SlowCell& slow = slow_->CellAt(row_, col_);
        Cell& cell = store_.EditCell(row_, col_);
        switch (input_.Byte() % 7) {
        case 0:
            slow.text = input_.Text(40);
            return cell.SetText(slow.text);
        case 1:
            slow.key = input_.Text(10);
            return cell.SetKey(slow.key);
        case 2:
            slow.picture = input_.Bool() ? picture_ : nullptr;
            return cell.SetPicture(slow.picture);
        case 3:
            slow.rowSpan = input_.AnyI16();
            return cell.SetRowSpan(static_cast<i16>(slow.rowSpan));
        case 4:
            slow.colSpan = input_.AnyI16();
            return cell.SetColSpan(static_cast<i16>(slow.colSpan));
        case 5:
            slow.parentRow = slow.parentCol = input_.AnyI16();
            cell.SetParentRow(static_cast<i16>(slow.parentRow));
            return cell.SetParentCol(static_cast<i16>(slow.parentCol));
        default:
            slow.pressed = input_.Bool();
            return cell.SetButtonPressed(slow.pressed);
        }
    }

    void WriteFormats()
    {
        const OleColor color = input_.Byte();
        const FormatEdit edit = [color](CellFormat& format) {
            format.BackColor = color;
            format.ForeColor ^= color;
        };
        switch (input_.Byte() % 5) {
        case 0:
            store_.EditFormat(row_, col_, edit);
            return slow_->EditFormats(row_, col_, row_, col_, edit);
        case 1:
            store_.EditColFormats(col_, row_, lastRow_, edit);
            return slow_->EditFormats(row_, col_, lastRow_, col_, edit);
        case 2:
            store_.EditRowFormats(row_, col_, lastCol_, edit);
            return slow_->EditFormats(row_, col_, row_, lastCol_, edit);
        case 3:
            store_.EditRectFormats(row_, col_, lastRow_, lastCol_, edit);
            return slow_->EditFormats(row_, col_, lastRow_, lastCol_, edit);
        default:
            store_.EditColDefaults(col_, edit);
            return edit(slow_->ColumnAt(col_).cellDefaults);
        }
    }

    void WriteALine()
    {
        switch (input_.Byte() % 4) {
        case 0: // a row copied as a value
            slow_->RowAt(row_) = SlowRow(slow_->RowAt(lastRow_));
            store_.RowAt(row_) = Row(store_.RowAt(lastRow_));
            return;
        case 1:
            std::swap(slow_->RowAt(row_), slow_->RowAt(lastRow_));
            return std::swap(store_.RowAt(row_), store_.RowAt(lastRow_));
        case 2:
            slow_->RowAt(row_).hidden = store_.RowAt(row_).Hidden = input_.Bool();
            slow_->RowAt(row_).savedHeight = store_.RowAt(row_).SavedHeight = input_.AnyI16();
            return;
        default: {
            const std::u16string text = input_.Text(20);
            store_.EditColCells(col_, row_, lastRow_, [&](Cell& cell) { cell.SetText(text); });
            for (int row = row_; row <= lastRow_; ++row)
                slow_->CellAt(row, col_).text = text;
        }
        }
    }

    fuzz::FuzzInput& input_;
    PicturePtr picture_;
    GridStore store_;
    std::unique_ptr<SlowStore> slow_;
    int row_ = 0;
    int col_ = 0;
    int lastRow_ = 0;
    int lastCol_ = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int MostSteps = 200;
    fuzz::FuzzInput input(data, size);
    Machine machine(input);
    for (int step = 0; step < MostSteps && !input.IsEmpty(); ++step) {
        machine.Step();
        machine.Compare();
    }
    return 0;
}
