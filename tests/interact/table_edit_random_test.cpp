// Structure edits beside a plain table, through a million random ones; after each, every cell, the links of the spans and
// the chain of visible rows are looked at.
#include "interact/plain_table.h"
#include "model/store_support.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

constexpr int MostLines = 9;
constexpr int EditsOfEach = 125000;

class RandomEdits : public testing::TestWithParam<unsigned> {
protected:
    RandomEdits()
    {
        layout.ResetFor(*store);
        for (int row = 0; row < store->MaxRow(); ++row)
            plain.rows[static_cast<std::size_t>(row)].height = store->HeightOf(row);
    }

    int AnyRow() { return random.Between(0, plain.RowCount() - 1); }
    int AnyCol() { return random.Between(0, plain.ColCount() - 1); }
    bool HasRows() const { return plain.RowCount() > plain.fixedRows; }
    bool HasCols() const { return plain.ColCount() > plain.fixedCols; }

    void Edit();
    void EditRows();
    void EditCols();
    void EditCells();
    void SelectAndMove();

    void Compare();
    void CompareCell(int row, int col);
    void CheckChain();
    void CheckFiller();

    RandomNumbers random { GetParam() };
    int fixedRows = random.Between(0, 2);
    int fixedCols = random.Between(0, 2);
    int rows = random.Between(0, 5);
    int cols = random.Between(1, 4);
    std::unique_ptr<GridStore> store = BuildStore(rows, cols, fixedRows, fixedCols);
    Spans spans { *store };
    HiddenLines hidden { *store };
    ScrollModel scroll { *store };
    LayoutEngine layout { *store, scroll };
    CurrentCell current;
    GridSelection selection { *store, current };
    TableEdit edit { { *store, spans, hidden, scroll, layout, current, selection } };
    PlainTable plain { rows + fixedRows, cols + fixedCols, fixedRows, fixedCols, store->Defaults.DefaultHeight };
};

void RandomEdits::EditRows()
{
    const int room = MostLines - plain.RowCount();
    const int position = random.Between(plain.fixedRows, plain.RowCount());
    if (room > 0 && random.OneIn(2)) {
        const int count = random.Between(1, std::min(room, 3));
        edit.InsertRows(position, count);
        plain.InsertRows(position, count);
    } else if (position < plain.RowCount()) {
        const int count = random.Between(1, std::min(plain.RowCount() - position, 3));
        edit.DeleteRows(position, count);
        plain.DeleteRows(position, count);
    }
}

void RandomEdits::EditCols()
{
    const int room = MostLines - plain.ColCount();
    const int position = random.Between(plain.fixedCols, plain.ColCount());
    if (room > 0 && random.OneIn(2)) {
        const int count = random.Between(1, std::min(room, 3));
        edit.InsertCols(position, count);
        plain.InsertCols(position, count);
    } else if (position < plain.ColCount()) {
        const int count = random.Between(1, std::min(plain.ColCount() - position, 3));
        edit.DeleteCols(position, count);
        plain.DeleteCols(position, count);
    }
}

void RandomEdits::EditCells()
{
    const PlainTable::Place from { AnyRow(), AnyCol() };
    const PlainTable::Place to { AnyRow(), AnyCol() };
    switch (random.Between(0, 9)) {
    case 0:
        edit.CopyCell({ from.row, from.col }, { to.row, to.col });
        plain.CopyCell(from, to);
        break;
    case 1:
        edit.CopyRow(from.row, to.row);
        plain.CopyRow(from.row, to.row);
        break;
    case 2:
        edit.CopyCol(from.col, to.col);
        plain.CopyCol(from.col, to.col);
        break;
    case 3:
        if (plain.HasSpanAcrossRow(from.row) || plain.HasSpanAcrossRow(to.row) || from.row == to.row)
            break;
        edit.SwapRows(from.row, to.row);
        plain.SwapRows(from.row, to.row);
        break;
    case 4:
        // A title stays, and so does what it covers of a span below it.
        if (plain.HasSpanAcrossCol(from.col) || plain.HasSpanAcrossCol(to.col) || from.col == to.col
            || (plain.hasTitle && plain.HasSpanAcrossRow(0)))
            break;
        edit.SwapCols(from.col, to.col);
        plain.SwapCols(from.col, to.col);
        break;
    case 5:
    case 6: {
        const auto span = static_cast<i16>(random.Between(0, 5));
        spans.SetRowSpan(from.row, from.col, span);
        plain.SetRowSpan(from, span);
        break;
    }
    case 7:
    case 8: {
        const auto span = static_cast<i16>(random.Between(0, 5));
        spans.SetColSpan(from.row, from.col, span);
        plain.SetColSpan(from, span);
        break;
    }
    default: {
        const std::u16string text(1, static_cast<char16_t>(random.Between(u'a', u'z')));
        store->EditCell(from.row, from.col).SetText(text);
        store->EditCell(to.row, to.col).SetKey(text);
        plain.rows[static_cast<std::size_t>(from.row)].cells[static_cast<std::size_t>(from.col)].text = text;
        plain.rows[static_cast<std::size_t>(to.row)].cells[static_cast<std::size_t>(to.col)].key = text;
        store->ColumnAt(from.col).Name = text;
        plain.colNames[static_cast<std::size_t>(from.col)] = text;
    }
    }
}

void RandomEdits::SelectAndMove()
{
    switch (random.Between(0, 7)) {
    case 0:
        current.Set(AnyRow(), AnyCol());
        plain.currentRow = current.Row();
        plain.currentCol = current.Col();
        break;
    case 1: {
        const auto [first, last] = std::minmax({ AnyRow(), AnyRow() });
        selection.Ranges().AddRows(false, first, last);
        plain.selection.AddRows(false, first, last);
        break;
    }
    case 2: {
        const auto [first, last] = std::minmax({ AnyCol(), AnyCol() });
        selection.Ranges().AddCols(false, first, last);
        plain.selection.AddCols(false, first, last);
        break;
    }
    case 3: {
        const int row = AnyRow();
        const int col = AnyCol();
        selection.Ranges().AddCells(true, row, col, row, col);
        plain.selection.AddCells(true, row, col, row, col);
        break;
    }
    case 4: {
        const int row = AnyRow();
        hidden.HideRow(row);
        plain.HideRow(row);
        break;
    }
    case 5: {
        const int row = AnyRow();
        hidden.ShowRow(row);
        plain.ShowRow(row);
        break;
    }
    case 6: {
        const int from = random.Between(plain.fixedRows, plain.RowCount() - 1);
        const int to = random.Between(plain.fixedRows, plain.RowCount() - 1);
        if (from != to) {
            edit.MoveRow(from, to);
            plain.MoveRow(from, to);
        }
        break;
    }
    default: {
        const int from = random.Between(plain.fixedCols, plain.ColCount() - 1);
        const int to = random.Between(plain.fixedCols, plain.ColCount() - 1);
        if (from != to) {
            edit.MoveCol(from, to);
            plain.MoveCol(from, to);
        }
    }
    }
}

void RandomEdits::Edit()
{
    const int kind = random.Between(0, 9);
    if (kind < 2) {
        EditRows();
    } else if (kind < 4) {
        EditCols();
    } else if (HasRows() && HasCols()) {
        kind < 7 ? EditCells() : SelectAndMove();
    } else if (random.OneIn(3)) {
        // A title needs a column to stand over.
        layout.Settings.CaptionEnabled = plain.hasTitle = HasCols() && plain.fixedRows > 0;
    }
}

void RandomEdits::CompareCell(int row, int col)
{
    const Cell& cell = store->CellAt(row, col);
    const PlainTable::Cell& expected = plain.rows[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(col)];
    ASSERT_EQ(cell.Text(), expected.text) << row << ", " << col;
    ASSERT_EQ(cell.Key(), expected.key) << row << ", " << col;
    const auto stored = plain.spans.find({ row, col });
    ASSERT_EQ(cell.RowSpan(), stored == plain.spans.end() ? 0 : stored->second.rows) << row << ", " << col;
    ASSERT_EQ(cell.ColSpan(), stored == plain.spans.end() ? 0 : stored->second.cols) << row << ", " << col;
    const PlainTable::Place parent = plain.ParentOf({ row, col });
    ASSERT_EQ(cell.ParentRow(), parent.row - row) << row << ", " << col;
    ASSERT_EQ(cell.ParentCol(), parent.col - col) << row << ", " << col;
}

// First and last row, and all between them that have a height, both ways.
void RandomEdits::CheckChain()
{
    const int first = store->FixedRows();
    const int last = store->LastRowIndex();
    if (last < first)
        return;
    int row = first;
    for (int next = first + 1; next <= last; ++next) {
        if (next < last && store->HeightOf(next) == 0)
            continue;
        ASSERT_EQ(hidden.NextInChain(row), next);
        ASSERT_EQ(hidden.PrevInChain(next), row);
        row = next;
    }
}

void RandomEdits::CheckFiller()
{
    for (int col = 0; col <= store->MaxCol(); ++col) {
        const Cell& cell = store->CellAt(store->MaxRow(), col);
        ASSERT_FALSE(cell.HasText() || cell.IsChild() || cell.RowSpan() > 1 || cell.ColSpan() > 1);
    }
    for (int row = 0; row <= store->MaxRow(); ++row) {
        const Cell& cell = store->CellAt(row, store->MaxCol());
        ASSERT_FALSE(cell.HasText() || cell.IsChild() || cell.RowSpan() > 1 || cell.ColSpan() > 1);
    }
}

void RandomEdits::Compare()
{
    ASSERT_EQ(store->MaxRow(), plain.RowCount());
    ASSERT_EQ(store->MaxCol(), plain.ColCount());
    ASSERT_EQ(store->Rows(), plain.RowCount() - plain.fixedRows);
    ASSERT_EQ(store->Cols(), plain.ColCount() - plain.fixedCols);
    for (int row = 0; row < plain.RowCount(); ++row) {
        const PlainTable::Row& line = plain.rows[static_cast<std::size_t>(row)];
        ASSERT_EQ(store->HeightOf(row), line.height);
        ASSERT_EQ(store->RowAt(row).Hidden, line.hidden);
        ASSERT_EQ(selection.Ranges().IsRowSelected(row), plain.selection.IsRowSelected(row));
        for (int col = 0; col < plain.ColCount(); ++col)
            ASSERT_NO_FATAL_FAILURE(CompareCell(row, col));
    }
    for (int col = 0; col < plain.ColCount(); ++col) {
        ASSERT_EQ(store->ColumnAt(col).Name, plain.colNames[static_cast<std::size_t>(col)]);
        ASSERT_EQ(selection.Ranges().IsColSelected(col), plain.selection.IsColSelected(col));
    }
    ASSERT_EQ(selection.Ranges().CountCells(), plain.selection.CountCells());
    ASSERT_EQ(current.Row(), plain.currentRow);
    ASSERT_EQ(current.Col(), plain.currentCol);
    ASSERT_EQ(layout.Settings.CaptionEnabled, plain.hasTitle);
    ASSERT_NO_FATAL_FAILURE(CheckChain());
    ASSERT_NO_FATAL_FAILURE(CheckFiller());
}

TEST_P(RandomEdits, GiveWhatAPlainTableHas)
{
    ASSERT_NO_FATAL_FAILURE(Compare());
    for (int step = 0; step < EditsOfEach; ++step) {
        Edit();
        Compare();
        if (HasFatalFailure()) {
            ADD_FAILURE() << "seed " << GetParam() << ", edit " << step;
            return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Values(1u, 2u, 3u, 4u, 5u, 6u, 7u, 8u));

} // namespace
} // namespace vornix
