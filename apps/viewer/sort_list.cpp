#include "sort_list.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

auto Find(auto& columns, int column)
{
    return std::find_if(
        columns.begin(), columns.end(), [column](const SortColumn& one) { return one.column == column; });
}

} // namespace

void SortList::Choose(int column)
{
    const bool isOnly = columns_.size() == 1 && columns_.front().column == column;
    if (!isOnly)
        columns_ = { { column, false } };
    else if (!columns_.front().isDescending)
        columns_.front().isDescending = true;
    else
        columns_.clear();
}

void SortList::ChooseToo(int column)
{
    const auto found = Find(columns_, column);
    if (found == columns_.end())
        columns_.push_back({ column, false });
    else
        found->isDescending = !found->isDescending;
}

std::u16string SortList::MarkOf(int column) const
{
    const auto found = Find(columns_, column);
    if (found == columns_.end())
        return {};
    std::u16string mark = found->isDescending ? u"▼" : u"▲";
    if (columns_.size() > 1) {
        for (const char digit : std::to_string(found - columns_.begin() + 1))
            mark += static_cast<char16_t>(digit);
    }
    return mark;
}

} // namespace vornix::viewer
