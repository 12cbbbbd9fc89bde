#include "shown_rows.h"

#include "redraw_pause.h"
#include "sort_key.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <string>
#include <utility>

namespace vornix::viewer {

namespace {

constexpr i16 NumberCol = -1; // its keys carry each row's place through the sorting

std::u16string Written(std::size_t number)
{
    const std::string digits = std::to_string(number);
    return { digits.begin(), digits.end() };
}

// The mark stands where a narrow column does not cut it off.
std::u16string TitleWith(const std::u16string& mark, const Column& column)
{
    if (mark.empty())
        return column.name;
    return AlignmentOf(column.kind) == Alignment::Right ? column.name + u' ' + mark : mark + u' ' + column.name;
}

} // namespace

ShownRows::ShownRows(Vornix& grid, const Table& table)
    : grid_(grid)
    , table_(table)
    , rows_(static_cast<std::size_t>(table.RowCount()))
{
    std::iota(rows_.begin(), rows_.end(), 0);
}

int ShownRows::At(int Row) const
{
    return Row < 0 || Row >= Count() ? -1 : rows_[static_cast<std::size_t>(Row)];
}

void ShownRows::Sort(const SortList& sort, const std::vector<int>& order)
{
    RequireShown(order);
    const RedrawPause pause(grid_);
    grid_.ExitEdit();
    if (sort.Columns().empty())
        Arrange(order);
    else
        SortByColumns(sort, order);
    MarkTitles(sort);
}

void ShownRows::RequireShown(const std::vector<int>& order) const
{
    std::vector<bool> isMissing(static_cast<std::size_t>(table_.RowCount()));
    for (const int row : rows_)
        isMissing.at(static_cast<std::size_t>(row)) = true;
    bool isShown = order.size() == rows_.size();
    for (const int row : order) {
        const auto index = static_cast<std::size_t>(row);
        isShown = isShown && index < isMissing.size() && isMissing[index];
        if (isShown)
            isMissing[index] = false;
    }
    if (!isShown)
        throw std::logic_error("the rows that are shown are not those of the table");
}

void ShownRows::Arrange(const std::vector<int>& order)
{
    if (rows_ == order)
        return;
    // A selection would stay in place while rows move, and rows that are swapped swap their marks one by one.
    if (grid_.SelectCountRow() > 0 || grid_.SelectCountCell() > 0)
        grid_.DeselectAll();
    std::vector<int> places(static_cast<std::size_t>(table_.RowCount()));
    for (int Row = 0; Row < Count(); ++Row)
        places.at(static_cast<std::size_t>(At(Row))) = Row;
    for (int Row = 0; Row < Count(); ++Row) {
        int& here = rows_[static_cast<std::size_t>(Row)];
        const int from = places.at(static_cast<std::size_t>(order.at(static_cast<std::size_t>(Row))));
        if (from == Row)
            continue;
        grid_.SwapRows(static_cast<i16>(Row), static_cast<i16>(from));
        places.at(static_cast<std::size_t>(here)) = from;
        std::swap(here, rows_[static_cast<std::size_t>(from)]);
    }
}

void ShownRows::SortByColumns(const SortList& sort, const std::vector<int>& order)
{
    SetPlaces(order);
    try {
        for (const SortColumn& key : sort.Columns())
            SetKeys(key.column);
        SortGrid(sort);
    } catch (...) {
        ClearKeys(sort);
        throw;
    }
    TakePlaces(order);
    ClearKeys(sort);
}

void ShownRows::SetPlaces(const std::vector<int>& order)
{
    std::vector<std::size_t> places(static_cast<std::size_t>(table_.RowCount()));
    for (std::size_t place = 0; place < order.size(); ++place)
        places.at(static_cast<std::size_t>(order[place])) = place;
    for (int Row = 0; Row < Count(); ++Row)
        grid_.SetKey(static_cast<i16>(Row), NumberCol, Written(places.at(static_cast<std::size_t>(At(Row)))));
}

void ShownRows::SetKeys(int column)
{
    const i16 Col = static_cast<i16>(column);
    SortKeyMaker maker(table_.Columns()[static_cast<std::size_t>(column)].kind);
    grid_.SetSortType(Col, vxAlphaNum);
    grid_.SetSortUseKey(Col, maker.HasKeys());
    if (!maker.HasKeys())
        return;
    for (int Row = 0; Row < Count(); ++Row)
        maker.Add(grid_.Text(static_cast<i16>(Row), Col));
    for (int Row = 0; Row < Count(); ++Row)
        grid_.SetKey(static_cast<i16>(Row), Col, maker.KeyOf(grid_.Text(static_cast<i16>(Row), Col)));
}

// Keys are of no use to anybody else.
void ShownRows::ClearKeys(const SortList& sort)
{
    const auto clear = [this](i16 Col) {
        for (int Row = 0; Row < Count(); ++Row)
            grid_.SetKey(static_cast<i16>(Row), Col, {});
    };
    clear(NumberCol);
    for (const SortColumn& key : sort.Columns()) {
        if (grid_.SortUseKey(static_cast<i16>(key.column)))
            clear(static_cast<i16>(key.column));
    }
}

void ShownRows::SortGrid(const SortList& sort)
{
    i16 place = 0;
    const auto add = [&](int column, bool isDescending) {
        const i16 Col = static_cast<i16>(column);
        grid_.SetSortOrder(Col, ++place);
        grid_.SetSortCriteria(Col, isDescending ? vxDesc : vxAsc);
    };
    for (const SortColumn& key : sort.Columns())
        add(key.column, key.isDescending);
    // Rows that are alike stay as they follow one another.
    grid_.SetSortType(NumberCol, vxNumeric);
    grid_.SetSortUseKey(NumberCol, true);
    add(NumberCol, false);
    grid_.Sort();
}

void ShownRows::TakePlaces(const std::vector<int>& order)
{
    for (int Row = 0; Row < Count(); ++Row) {
        const std::u16string key = grid_.Key(static_cast<i16>(Row), NumberCol);
        const auto place = static_cast<std::size_t>(std::stoul(std::string(key.begin(), key.end())));
        rows_[static_cast<std::size_t>(Row)] = order.at(place);
    }
}

void ShownRows::MarkTitles(const SortList& sort)
{
    for (int column = 0; column < table_.ColumnCount(); ++column) {
        const std::u16string title = TitleWith(sort.MarkOf(column), table_.Columns()[static_cast<std::size_t>(column)]);
        if (grid_.Text(-1, static_cast<i16>(column)) != title)
            grid_.SetText(-1, static_cast<i16>(column), title);
    }
}

void ShownRows::Insert(int Row, const std::vector<int>& rows)
{
    grid_.ExitEdit();
    grid_.InsertRows(static_cast<i16>(Row), static_cast<i16>(rows.size()));
    rows_.insert(rows_.begin() + Row, rows.begin(), rows.end());
}

void ShownRows::Remove(int Row, int count)
{
    grid_.ExitEdit();
    grid_.DeleteRows(static_cast<i16>(Row), static_cast<i16>(count));
    rows_.erase(rows_.begin() + Row, rows_.begin() + Row + count);
}

} // namespace vornix::viewer
