#include "model/store_support.h"

#include "automation/checked.h"

namespace vornix {

std::unique_ptr<GridStore> BuildStore(int rows, int cols, int fixedRows, int fixedCols)
{
    auto store = std::make_unique<GridStore>();
    store->StoreRows(ToI16(rows));
    store->StoreCols(ToI16(cols));
    store->StoreFixedRows(ToI16(fixedRows));
    store->StoreFixedCols(ToI16(fixedCols));
    store->InitGridStore(SystemColors());
    return store;
}

void ChangeRows(GridStore& store, int rows)
{
    const int before = store.Rows();
    if (rows < 0 || rows == before)
        return;
    if (rows < before)
        store.ShiftRowsDown(store.FixedRows() + rows, store.MaxRow());
    store.ResizeRowStore(store.FixedRows() + rows);
    if (rows > before) {
        store.ShiftRowsUp(store.FixedRows() + before, rows - before);
        store.InitRows(store.FixedRows() + before, store.MaxRow() - 1);
    }
    store.StoreRows(ToI16(rows));
}

void ChangeCols(GridStore& store, int cols)
{
    const int before = store.Cols();
    if (cols < 0 || cols == before)
        return;
    if (cols < before)
        store.ShiftColsDown(store.FixedCols() + cols, store.MaxCol());
    store.ResizeColStore(store.FixedCols() + cols);
    if (cols > before) {
        store.ShiftColsUp(store.FixedCols() + before, cols - before);
        store.InitCols(store.FixedCols() + before, store.MaxCol() - 1);
        for (int col = store.FixedCols() + before; col < store.MaxCol(); ++col)
            store.ColumnAt(col).Order = ToI16(col - store.FixedCols());
    }
    store.StoreCols(ToI16(cols));
}

void ChangeFixedRows(GridStore& store, int fixedRows)
{
    const int delta = fixedRows - store.FixedRows();
    if (store.FixedRows() < 0 || delta == 0)
        return;
    if (delta < 0)
        store.ShiftRowsDown(0, -delta);
    store.ResizeRowStore(store.Rows() + fixedRows);
    if (delta > 0) {
        store.ShiftRowsUp(0, delta);
        store.InitFixedRows(0, delta - 1);
    }
    store.StoreFixedRows(ToI16(fixedRows));
}

void ChangeFixedCols(GridStore& store, int fixedCols)
{
    const int delta = fixedCols - store.FixedCols();
    if (store.FixedCols() < 0 || delta == 0)
        return;
    if (delta < 0)
        store.ShiftColsDown(0, -delta);
    store.ResizeColStore(store.Cols() + fixedCols);
    if (delta > 0) {
        store.ShiftColsUp(0, delta);
        store.InitFixedCols(0, delta - 1);
    }
    store.StoreFixedCols(ToI16(fixedCols));
}

std::u16string RandomText(RandomNumbers& random)
{
    std::u16string text(static_cast<std::size_t>(random.Between(0, 16)), u'a');
    const bool wide = random.OneIn(3);
    for (char16_t& unit : text)
        unit = static_cast<char16_t>(random.Between(0, wide ? 0xFFFF : 0xFF));
    return text;
}

} // namespace vornix
