// The cells of a grid that hold a text.
#pragma once

#include "vornix/vornix.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

struct FoundCell {
    i16 Row = 0;
    i16 Col = 0;

    auto operator<=>(const FoundCell&) const = default;
};

// Looks into every column, without regard to case; check boxes are no texts.
class Finder {
public:
    explicit Finder(Vornix& grid)
        : grid_(grid)
    {
    }

    // Finds nothing for an empty text.
    void Search(std::u16string_view text);
    // The grid's SearchResult must come here while it lasts.
    void Take(i16 IdSearch, i16 Pos);

    int Count() const { return static_cast<int>(found_.size()); }
    // From 1, row by row; 0 of a cell that was not found.
    int PlaceOf(FoundCell cell) const;
    // The nearest one behind or in front of the cell, going on at the other end. Nothing where there is none.
    std::optional<FoundCell> Next(FoundCell from) const;
    std::optional<FoundCell> Previous(FoundCell from) const;
    // The cell itself, or the next one.
    std::optional<FoundCell> At(FoundCell from) const;

private:
    Vornix& grid_;
    std::vector<FoundCell> found_; // in their order
};

} // namespace vornix::viewer
