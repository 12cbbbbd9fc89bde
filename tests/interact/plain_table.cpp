#include "interact/plain_table.h"

#include <algorithm>
#include <utility>

namespace vornix {

PlainTable::PlainTable(int rowCount, int colCount, int fixedRowCount, int fixedColCount, i16 heightOfNewRows)
    : fixedRows(fixedRowCount)
    , fixedCols(fixedColCount)
    , defaultHeight(heightOfNewRows)
    , rows(static_cast<std::size_t>(rowCount))
    , colNames(static_cast<std::size_t>(colCount))
{
    for (Row& row : rows)
        row.cells.resize(static_cast<std::size_t>(colCount));
}

// -- Rectangles --

Rect PlainTable::RectOf(Place place) const
{
    const auto found = spans.find(place);
    const Stored stored = found == spans.end() ? Stored {} : found->second;
    return { place.col, place.row, place.col + std::max<int>(stored.cols, 1),
        place.row + std::max<int>(stored.rows, 1) };
}

PlainTable::Place PlainTable::ParentOf(Place place) const
{
    for (const auto& [parent, stored] : spans) {
        const Rect rect = RectOf(parent);
        if (place.row >= rect.top && place.row < rect.bottom && place.col >= rect.left && place.col < rect.right)
            return parent;
    }
    return place;
}

bool PlainTable::HasSpanAcrossRow(int row) const
{
    return std::any_of(spans.begin(), spans.end(), [&](const auto& span) {
        const Rect rect = RectOf(span.first);
        return rect.Height() > 1 && row >= rect.top && row < rect.bottom;
    });
}

bool PlainTable::HasSpanAcrossCol(int col) const
{
    return std::any_of(spans.begin(), spans.end(), [&](const auto& span) {
        const Rect rect = RectOf(span.first);
        return rect.Width() > 1 && col >= rect.left && col < rect.right;
    });
}

void PlainTable::RemoveSpansAt(Place place)
{
    spans.erase(ParentOf(place));
}

void PlainTable::SetRowSpan(Place place, i16 span)
{
    SetSpan(place, span, false);
}

void PlainTable::SetColSpan(Place place, i16 span)
{
    SetSpan(place, span, true);
}

void PlainTable::SetSpan(Place place, i16 span, bool isColumns)
{
    span = std::max<i16>(span, 1);
    if (isColumns ? place.col + span > ColCount() : place.row + span > RowCount())
        return;
    if (ParentOf(place) != place)
        RemoveSpansAt(place);
    const Rect old = RectOf(place);
    Rect wanted = old;
    (isColumns ? wanted.right : wanted.bottom) = (isColumns ? place.col : place.row) + span;
    const Stored before = spans.count(place) != 0 ? spans[place] : Stored {};
    for (int row = wanted.top; row < wanted.bottom; ++row)
        for (int col = wanted.left; col < wanted.right; ++col)
            if (row >= old.bottom || col >= old.right)
                RemoveSpansAt({ row, col });
    Stored& stored = spans[place] = before;
    (isColumns ? stored.cols : stored.rows) = span;
}

void PlainTable::CopySpan(Place from, Place to)
{
    const Stored source = spans.count(from) != 0 ? spans[from] : Stored {};
    if (source.cols != 0)
        SetColSpan(to, source.cols);
    if (source.rows != 0)
        SetRowSpan(to, source.rows);
}

PlainTable::Stretch PlainTable::WithNewLines(int first, i16 stored, int position, int count)
{
    if (first >= position)
        return { first + count, stored, true };
    if (first + std::max<int>(stored, 1) > position)
        return { first, static_cast<i16>(stored + count), true };
    return { first, stored, true };
}

PlainTable::Stretch PlainTable::WithoutLines(int first, i16 stored, int position, int count)
{
    const int end = first + std::max<int>(stored, 1);
    const int endOfGap = position + count;
    if (first >= endOfGap)
        return { first - count, stored, true };
    if (first >= position)
        return { position, static_cast<i16>(end - endOfGap), end > endOfGap };
    if (end <= position)
        return { first, stored, true };
    return { first, static_cast<i16>(end <= endOfGap ? position - first : end - first - count), true };
}

void PlainTable::RewriteSpans(bool alongRows, int position, int count, bool isInsertion)
{
    std::map<Place, Stored> rewritten;
    for (const auto& [key, value] : spans) {
        Place place = key;
        Stored stored = value;
        int& first = alongRows ? place.row : place.col;
        i16& length = alongRows ? stored.rows : stored.cols;
        const Stretch stretch
            = isInsertion ? WithNewLines(first, length, position, count) : WithoutLines(first, length, position, count);
        if (!stretch.remains)
            continue;
        first = stretch.first;
        length = stretch.stored;
        rewritten[place] = stored;
    }
    spans = std::move(rewritten);
}

// -- Beside the table --

void PlainTable::DropSelectedCells()
{
    if (selection.Mode() == SelectionKind::Cells)
        selection.RemoveAll();
}

void PlainTable::ForgetCurrentOutside()
{
    if (currentRow < 0 || currentRow >= RowCount() || currentCol < 0 || currentCol >= ColCount())
        currentRow = currentCol = CurrentCell::None;
}

// -- Lines --

void PlainTable::InsertRows(int position, int count)
{
    RewriteSpans(true, position, count, true);
    std::vector<Row> result(rows.begin(), rows.begin() + position);
    for (int row = position; row < position + count; ++row) {
        Row fresh;
        fresh.cells.resize(colNames.size());
        fresh.height = defaultHeight;
        // The marks of hidden rows stay in their places.
        fresh.hidden = row < RowCount() && RowAt(row).hidden;
        fresh.savedHeight = row < RowCount() ? RowAt(row).savedHeight : i16(0);
        result.push_back(fresh);
    }
    result.insert(result.end(), rows.begin() + position, rows.end());
    rows = std::move(result);
    DropSelectedCells();
    if (selection.Mode() == SelectionKind::Rows)
        selection.InsertItems(position, count);
    if (currentRow >= position)
        currentRow += count;
    ForgetCurrentOutside();
}

void PlainTable::InsertCols(int position, int count)
{
    RewriteSpans(false, position, count, true);
    for (Row& row : rows) {
        const std::vector<Cell> old = row.cells;
        row.cells.assign(old.begin(), old.begin() + position);
        // Keys stay in their places.
        for (int col = position; col < position + count; ++col)
            row.cells.push_back({ u"", col < ColCount() ? old[static_cast<std::size_t>(col)].key : u"" });
        row.cells.insert(row.cells.end(), old.begin() + position, old.end());
    }
    const std::vector<std::u16string> names = colNames;
    colNames.assign(names.begin(), names.begin() + position);
    for (int col = position; col < position + count; ++col)
        colNames.push_back(col < static_cast<int>(names.size()) ? names[static_cast<std::size_t>(col)] : u"");
    colNames.insert(colNames.end(), names.begin() + position, names.end());
    if (IsTitleCol(position) && position + count < ColCount()) {
        At({ 0, position }) = At({ 0, position + count });
        At({ 0, position + count }).text.clear();
    }
    DropSelectedCells();
    if (selection.Mode() == SelectionKind::Cols)
        selection.InsertItems(position, count);
    if (currentCol >= position)
        currentCol += count;
    ForgetCurrentOutside();
}

void PlainTable::DeleteRows(int position, int count)
{
    RewriteSpans(true, position, count, false);
    rows.erase(rows.begin() + position, rows.begin() + position + count);
    DropSelectedCells();
    if (selection.Mode() == SelectionKind::Rows)
        selection.DeleteItems(position, count);
    if (currentRow >= position)
        currentRow = currentRow - count < fixedRows ? CurrentCell::None : currentRow - count;
    ForgetCurrentOutside();
}

void PlainTable::DeleteCols(int position, int count)
{
    RewriteSpans(false, position, count, false);
    for (Row& row : rows)
        row.cells.erase(row.cells.begin() + position, row.cells.begin() + position + count);
    colNames.erase(colNames.begin() + position, colNames.begin() + position + count);
    DropSelectedCells();
    if (selection.Mode() == SelectionKind::Cols)
        selection.DeleteItems(position, count);
    if (currentCol >= position)
        currentCol = currentCol - count < fixedCols ? CurrentCell::None : currentCol - count;
    ForgetCurrentOutside();
    if (ColCount() == fixedCols)
        hasTitle = false;
}

void PlainTable::MoveRow(int from, int to)
{
    const bool wasSelected = selection.IsRowSelected(from);
    const int target = from > to ? to : to + 1;
    const int source = from > to ? from + 1 : from;
    InsertRows(target, 1);
    CopyRow(source, target);
    RowAt(target).height = RowAt(source).height;
    if (wasSelected)
        selection.AddRows(false, target, target);
    DeleteRows(source, 1);
}

void PlainTable::MoveCol(int from, int to)
{
    const bool wasSelected = selection.IsColSelected(from);
    const int target = from > to ? to : to + 1;
    const int source = from > to ? from + 1 : from;
    const bool takesTitle = IsTitleCol(source);
    InsertCols(target, 1);
    CopyCol(source, target, takesTitle || IsTitleCol(target) ? 1 : 0);
    colNames[static_cast<std::size_t>(target)] = colNames[static_cast<std::size_t>(source)];
    if (wasSelected)
        selection.AddCols(false, target, target);
    DeleteCols(source, 1);
}

void PlainTable::SwapRows(int row1, int row2)
{
    std::swap(RowAt(row1), RowAt(row2));
    std::map<Place, Stored> rewritten;
    for (const auto& [key, stored] : spans) {
        Place place = key;
        if (place.row == row1 || place.row == row2)
            place.row = place.row == row1 ? row2 : row1;
        rewritten[place] = stored;
    }
    spans = std::move(rewritten);
    if (selection.IsRowSelected(row1) == selection.IsRowSelected(row2))
        return;
    const int marked = selection.IsRowSelected(row1) ? row1 : row2;
    selection.UnSelectRange(marked);
    selection.AddRows(false, marked == row1 ? row2 : row1, marked == row1 ? row2 : row1);
}

void PlainTable::SwapCols(int col1, int col2)
{
    const int first = IsTitleCol(col1) || IsTitleCol(col2) ? 1 : 0;
    std::swap(colNames[static_cast<std::size_t>(col1)], colNames[static_cast<std::size_t>(col2)]);
    for (int row = first; row < RowCount(); ++row)
        std::swap(At({ row, col1 }), At({ row, col2 }));
    std::map<Place, Stored> rewritten;
    for (const auto& [key, stored] : spans) {
        Place place = key;
        if (place.row >= first && (place.col == col1 || place.col == col2))
            place.col = place.col == col1 ? col2 : col1;
        rewritten[place] = stored;
    }
    spans = std::move(rewritten);
    if (selection.IsColSelected(col1) == selection.IsColSelected(col2))
        return;
    const int marked = selection.IsColSelected(col1) ? col1 : col2;
    selection.UnSelectRange(marked);
    selection.AddCols(false, marked == col1 ? col2 : col1, marked == col1 ? col2 : col1);
}

void PlainTable::CopyCell(Place from, Place to)
{
    const Stored source = spans.count(from) != 0 ? spans[from] : Stored {};
    At(to) = Cell(At(from));
    SetColSpan(to, source.cols);
    SetRowSpan(to, source.rows);
}

void PlainTable::CopyRow(int from, int to)
{
    RowAt(to).cells = std::vector<Cell>(RowAt(from).cells);
    for (int col = 0; col < ColCount(); ++col)
        CopySpan({ from, col }, { to, col });
}

void PlainTable::CopyCol(int from, int to)
{
    CopyCol(from, to, IsTitleCol(to) ? 1 : 0);
}

void PlainTable::CopyCol(int from, int to, int first)
{
    for (int row = first; row < RowCount(); ++row)
        At({ row, to }) = Cell(At({ row, from }));
    for (int row = first; row < RowCount(); ++row)
        CopySpan({ row, from }, { row, to });
}

void PlainTable::HideRow(int row)
{
    Row& line = RowAt(row);
    if (std::exchange(line.hidden, true))
        return;
    line.savedHeight = std::exchange(line.height, i16(0));
}

void PlainTable::ShowRow(int row)
{
    Row& line = RowAt(row);
    if (std::exchange(line.hidden, false))
        line.height = line.savedHeight;
}

} // namespace vornix
