#include "status_text.h"

#include "notices.h"
#include "present.h"
#include "unicode.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

// UTF-16 units; the line has room for other things.
constexpr std::size_t LongestTitle = 40;

std::string TitleOf(const Vornix& grid, i16 Col)
{
    std::u16string title = grid.ColName(Col);
    if (title.find_first_not_of(u" \t\r\n") == std::u16string::npos)
        return "Column " + std::to_string(Col + 1);
    if (title.size() > LongestTitle) {
        const bool cutsPair = title[LongestTitle - 2] >= 0xD800 && title[LongestTitle - 2] < 0xDC00;
        title.resize(LongestTitle - (cutsPair ? 2 : 1));
        title += u'…';
    }
    return OneLine(ToUtf8(title));
}

// As the row itself shows it.
std::string NumberOf(const Vornix& grid, i32 row)
{
    return OneLine(ToUtf8(grid.Text(static_cast<i16>(row), -1)));
}

std::string HeaderText(const Vornix& grid, i32 row, i16 Col)
{
    if (row == -HeaderLines)
        return "Title";
    return Col < 0 ? "Header" : TitleOf(grid, Col) + ", header";
}

std::string CountedSelected(i32 count, std::string_view noun)
{
    return Counted(static_cast<std::uint64_t>(count), noun) + " selected";
}

std::string CellsText(Vornix& grid)
{
    i16 Row1 = 0;
    i16 Col1 = 0;
    i16 Row2 = 0;
    i16 Col2 = 0;
    if (!grid.GetSelectedCells(Row1, Col1, Row2, Col2))
        return {};
    // Headers are never part of it.
    const int rows = Row2 - std::max<int>(Row1, 0) + 1;
    const int cols = Col2 - std::max<int>(Col1, 0) + 1;
    if (rows < 1 || cols < 1)
        return {};
    if (rows == 1 && cols == 1)
        return grid.IsCurrent(Row1, Col1) ? std::string() : "1 cell selected";
    return WithGroups(static_cast<std::uint64_t>(rows)) + " × " + WithGroups(static_cast<std::uint64_t>(cols))
        + " cells selected";
}

} // namespace

std::string CurrentCellText(const Vornix& grid)
{
    const i32 row = grid.CurrentRow();
    const i16 Col = grid.CurrentCol();
    if (row == NoIndex || Col == NoIndex)
        return {};
    if (row < 0)
        return HeaderText(grid, row, Col);
    const std::string number = NumberOf(grid, row);
    return Col < 0 ? "Row " + number : TitleOf(grid, Col) + ", row " + number;
}

std::string SelectionText(Vornix& grid)
{
    if (const i32 rows = grid.SelectCountRow(); rows > 0)
        return CountedSelected(rows, "row");
    if (const i32 cols = grid.SelectCountCol(); cols > 0)
        return CountedSelected(cols, "column");
    return CellsText(grid);
}

} // namespace vornix::viewer
