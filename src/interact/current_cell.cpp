#include "interact/current_cell.h"

namespace vornix {

namespace {

// A line that goes with others behind it does not become a fixed one.
int Shifted(int index, int position, int delta, int fixed)
{
    return position >= fixed && index + delta < fixed ? CurrentCell::None : index + delta;
}

} // namespace

void CurrentCell::Set(int row, int col)
{
    valid_ = true;
    row_ = row;
    col_ = col;
}

void CurrentCell::Clear()
{
    valid_ = false;
    row_ = None;
    col_ = None;
}

void CurrentCell::AdjustForRows(const GridStore& store, int position, int delta)
{
    if (valid_ && position <= row_)
        row_ = Shifted(row_, position, delta, store.FixedRows());
    ClearIfOutside(store);
}

void CurrentCell::AdjustForCols(const GridStore& store, int position, int delta)
{
    if (valid_ && position <= col_)
        col_ = Shifted(col_, position, delta, store.FixedCols());
    ClearIfOutside(store);
}

void CurrentCell::AdjustForSort(const GridStore& store)
{
    if (row_ == None && store.Rows() > 0)
        row_ = store.FixedRows();
}

void CurrentCell::ClearIfOutside(const GridStore& store)
{
    if (row_ < 0 || row_ >= store.MaxRow() || col_ < 0 || col_ >= store.MaxCol())
        Clear();
}

} // namespace vornix
