#include "interact/table_edit.h"

#include "automation/checked.h"

namespace vornix {

namespace {

// A mark that exactly one of two lines carries goes to the other.
template <typename AddLine>
void ExchangeMarks(SelectCollection& ranges, int first, int second, bool isFirst, bool isSecond, AddLine addLine)
{
    if (isFirst == isSecond)
        return;
    ranges.UnSelectRange(isFirst ? first : second);
    addLine(isFirst ? second : first);
}

} // namespace

bool TableEdit::HasTitle() const
{
    return context_.layout.Settings.CaptionEnabled && context_.store.FixedRows() >= 1;
}

void TableEdit::DropSelectedCells()
{
    if (context_.selection.Ranges().Mode() == SelectionKind::Cells)
        context_.selection.Ranges().RemoveAll();
}

void TableEdit::FollowColsBefore(int col)
{
    if (col < context_.layout.FirstScrollCol())
        context_.layout.MarkMetricsDirty();
    context_.layout.RescanPercentActive();
}

void TableEdit::InsertRows(int position, int count)
{
    edit_.InsertRows(position, count);
    DropSelectedCells();
    if (context_.selection.Ranges().Mode() == SelectionKind::Rows)
        context_.selection.Ranges().InsertItems(position, count);
    context_.scroll.ClampVisible();
    context_.current.AdjustForRows(context_.store, position, count);
}

void TableEdit::InsertCols(int position, int count)
{
    GridStore& store = context_.store;
    edit_.InsertCols(position, count);
    if (IsTitleCol(position)) {
        // The title keeps its cell.
        store.EditCell(0, position).CopyContents(store.CellAt(0, position + count));
        store.EditCell(0, position + count).SetText({});
    }
    DropSelectedCells();
    if (context_.selection.Ranges().Mode() == SelectionKind::Cols)
        context_.selection.Ranges().InsertItems(position, count);
    context_.scroll.ClampVisible();
    context_.current.AdjustForCols(store, position, count);
    context_.layout.SetSmoothOffset(0);
    FollowColsBefore(position);
}

void TableEdit::DeleteRows(int position, int count)
{
    edit_.DeleteRows(position, count);
    DropSelectedCells();
    if (context_.selection.Ranges().Mode() == SelectionKind::Rows)
        context_.selection.Ranges().DeleteItems(position, count);
    context_.scroll.ClampVisible();
    context_.current.AdjustForRows(context_.store, position, -count);
}

void TableEdit::DeleteCols(int position, int count)
{
    edit_.DeleteCols(position, count);
    DropSelectedCells();
    if (context_.selection.Ranges().Mode() == SelectionKind::Cols)
        context_.selection.Ranges().DeleteItems(position, count);
    context_.scroll.ClampVisible();
    context_.current.AdjustForCols(context_.store, position, -count);
    if (context_.store.Cols() <= 0)
        context_.layout.Settings.CaptionEnabled = false;
    FollowColsBefore(position);
}

void TableEdit::MoveRow(int from, int to)
{
    CheckedIndex(from, context_.store.MaxRow());
    CheckedIndex(to, context_.store.MaxRow());
    const bool goesUp = from > to;
    const int target = goesUp ? to : to + 1;
    const int source = goesUp ? from + 1 : from;
    const bool wasSelected = context_.selection.Ranges().IsRowSelected(from);
    InsertRows(target, 1);
    edit_.CopyRow(source, target);
    edit_.CopyRowRecord(source, target);
    if (wasSelected)
        context_.selection.Ranges().AddRows(false, target, target);
    DeleteRows(source, 1);
}

void TableEdit::MoveCol(int from, int to)
{
    CheckedIndex(from, context_.store.MaxCol());
    CheckedIndex(to, context_.store.MaxCol());
    const bool goesLeft = from > to;
    const int target = goesLeft ? to : to + 1;
    const int source = goesLeft ? from + 1 : from;
    const bool wasSelected = context_.selection.Ranges().IsColSelected(from);
    const bool takesTitle = IsTitleCol(source);
    InsertCols(target, 1);
    edit_.CopyCol(source, target, !takesTitle && !IsTitleCol(target));
    OrOutOfMemory([&] { context_.store.ColumnAt(target) = context_.store.ColumnAt(source); });
    if (wasSelected)
        context_.selection.Ranges().AddCols(false, target, target);
    DeleteCols(source, 1);
}

bool TableEdit::SwapRows(int row1, int row2)
{
    GridStore& store = context_.store;
    SelectCollection& ranges = context_.selection.Ranges();
    edit_.SwapRows(row1, row2);
    ExchangeMarks(ranges, row1, row2, ranges.IsRowSelected(row1), ranges.IsRowSelected(row2),
        [&](int row) { ranges.AddRows(false, row, row); });
    const bool touchesFixed = row1 < store.FixedRows() || row2 < store.FixedRows();
    const bool resizes = touchesFixed && store.HeightOf(row1) != store.HeightOf(row2);
    if (resizes)
        context_.layout.MarkMetricsDirty();
    return resizes;
}

void TableEdit::SwapCols(int col1, int col2)
{
    SelectCollection& ranges = context_.selection.Ranges();
    edit_.SwapCols(col1, col2, !IsTitleCol(col1) && !IsTitleCol(col2));
    ExchangeMarks(ranges, col1, col2, ranges.IsColSelected(col1), ranges.IsColSelected(col2),
        [&](int col) { ranges.AddCols(false, col, col); });
    if (col1 < context_.layout.FirstScrollCol() || col2 < context_.layout.FirstScrollCol())
        context_.layout.MarkMetricsDirty();
}

void TableEdit::CopyCol(int from, int to)
{
    edit_.CopyCol(from, to, !IsTitleCol(to));
}

void TableEdit::ResetRectangle(CellIndex first, CellIndex last)
{
    edit_.ResetRectangle(first, last);
    context_.layout.MarkMetricsDirty();
    context_.layout.RescanPercentActive();
}

} // namespace vornix
