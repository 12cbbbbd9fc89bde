#include "finder.h"

#include <algorithm>

namespace vornix::viewer {

void Finder::Search(std::u16string_view text)
{
    found_.clear();
    if (text.empty())
        return;
    // Text between two of these is one that is contained; it may hold more of them.
    constexpr std::u16string_view wildcard = u"*";
    const std::u16string contained = std::u16string(wildcard) + std::u16string(text) + std::u16string(wildcard);
    for (int column = 0; column < grid_.Cols(); ++column)
        grid_.SearchRow(vxText, static_cast<i16>(column), contained, static_cast<i16>(column), wildcard);
    std::sort(found_.begin(), found_.end());
}

void Finder::Take(i16 IdSearch, i16 Pos)
{
    if (grid_.CellMode(Pos, IdSearch) != vxCheckBox)
        found_.push_back({ Pos, IdSearch });
}

int Finder::PlaceOf(FoundCell cell) const
{
    const auto found = std::lower_bound(found_.begin(), found_.end(), cell);
    return found == found_.end() || *found != cell ? 0 : static_cast<int>(found - found_.begin()) + 1;
}

std::optional<FoundCell> Finder::Next(FoundCell from) const
{
    if (found_.empty())
        return {};
    const auto next = std::upper_bound(found_.begin(), found_.end(), from);
    return next == found_.end() ? found_.front() : *next;
}

std::optional<FoundCell> Finder::Previous(FoundCell from) const
{
    if (found_.empty())
        return {};
    const auto next = std::lower_bound(found_.begin(), found_.end(), from);
    return next == found_.begin() ? found_.back() : *(next - 1);
}

std::optional<FoundCell> Finder::At(FoundCell from) const
{
    return PlaceOf(from) > 0 ? std::optional(from) : Next(from);
}

} // namespace vornix::viewer
