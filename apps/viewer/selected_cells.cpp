#include "selected_cells.h"

#include <algorithm>
#include <functional>

namespace vornix::viewer {

namespace {

std::vector<i16> Range(int first, int last)
{
    std::vector<i16> lines;
    for (int line = std::max(first, 0); line <= last; ++line)
        lines.push_back(static_cast<i16>(line));
    return lines;
}

std::vector<i16> Those(int count, const std::function<bool(i16 line)>& isSelected)
{
    std::vector<i16> lines = Range(0, count - 1);
    std::erase_if(lines, [&](i16 line) { return !isSelected(line); });
    return lines;
}

std::u16string TextOfCell(const Vornix& grid, const Column& column, i16 Row, i16 Col)
{
    if (grid.CellMode(Row, Col) != vxCheckBox)
        return grid.Text(Row, Col);
    if (grid.CellChecked(Row, Col))
        return column.trueText.empty() ? u"true" : column.trueText;
    return column.falseText.empty() ? u"false" : column.falseText;
}

std::vector<i16> WholeRowsOf(const Vornix& grid)
{
    return Those(grid.Rows(), [&](i16 Row) { return grid.RowSelected(Row); });
}

SelectedCells RectangleOf(Vornix& grid)
{
    i16 Row1 = 0;
    i16 Col1 = 0;
    i16 Row2 = 0;
    i16 Col2 = 0;
    if (!grid.GetSelectedCells(Row1, Col1, Row2, Col2))
        return {};
    return { Range(Row1, std::min<int>(Row2, grid.Rows() - 1)), Range(Col1, std::min<int>(Col2, grid.Cols() - 1)) };
}

} // namespace

SelectedCells SelectedCellsOf(Vornix& grid)
{
    if (grid.SelectCountRow() > 0)
        return { WholeRowsOf(grid), Range(0, grid.Cols() - 1) };
    if (grid.SelectCountCol() > 0)
        return { Range(0, grid.Rows() - 1), Those(grid.Cols(), [&](i16 Col) { return grid.ColSelected(Col); }) };
    if (SelectedCells rectangle = RectangleOf(grid); !rectangle.IsEmpty())
        return rectangle;
    const i32 row = grid.CurrentRow();
    const i16 Col = grid.CurrentCol();
    if (row < 0 || Col < 0)
        return {};
    return { { static_cast<i16>(row) }, { Col } };
}

std::vector<i16> SelectedRowsOf(Vornix& grid)
{
    if (grid.SelectCountRow() > 0)
        return WholeRowsOf(grid);
    if (SelectedCells rectangle = RectangleOf(grid); !rectangle.IsEmpty())
        return rectangle.Rows;
    const i32 row = grid.CurrentRow();
    return row < 0 ? std::vector<i16>() : std::vector { static_cast<i16>(row) };
}

TextBlock TextsOf(const Vornix& grid, const std::vector<Column>& columns, const SelectedCells& cells)
{
    TextBlock block(cells.Rows.size());
    for (std::size_t row = 0; row < block.size(); ++row) {
        for (const i16 Col : cells.Cols)
            block[row].push_back(TextOfCell(grid, columns[static_cast<std::size_t>(Col)], cells.Rows[row], Col));
    }
    return block;
}

} // namespace vornix::viewer
