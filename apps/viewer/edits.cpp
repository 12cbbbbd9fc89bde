#include "edits.h"

#include <stdexcept>

namespace vornix::viewer {

void Edits::Set(int row, int column, std::u16string_view text)
{
    if (column >= table_.ColumnCount())
        throw std::out_of_range("no such cell in the table");
    if (table_.Text(row, column) == text) {
        Remove(row, column);
        return;
    }
    const bool isNew = rows_[row].insert_or_assign(column, text).second;
    count_ += isNew ? 1 : 0;
}

std::u16string_view Edits::Text(int row, int column) const
{
    const auto line = rows_.find(row);
    if (line == rows_.end())
        return table_.Text(row, column);
    const auto cell = line->second.find(column);
    return cell == line->second.end() ? table_.Text(row, column) : cell->second;
}

void Edits::Clear()
{
    rows_.clear();
    count_ = 0;
}

void Edits::Remove(int row, int column)
{
    const auto line = rows_.find(row);
    if (line == rows_.end())
        return;
    count_ -= line->second.erase(column);
    if (line->second.empty())
        rows_.erase(line);
}

} // namespace vornix::viewer
