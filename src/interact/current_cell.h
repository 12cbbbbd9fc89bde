// The current cell: the target of keyboard and editor. Internal indices.
#pragma once

#include "model/grid_store.h"

namespace vornix {

class CurrentCell {
public:
    static constexpr int None = -1;

    bool IsValid() const { return valid_; }
    // None without a current cell.
    int Row() const { return row_; }
    int Col() const { return col_; }
    // A current cell exists, is this one, and its display is on.
    bool IsDisplayedAt(int row, int col) const { return valid_ && displayed_ && row == row_ && col == col_; }

    void Set(int row, int col);
    void Clear();
    // For a scope the cell paints like any other.
    class Undisplayed {
    public:
        explicit Undisplayed(CurrentCell& cell)
            : cell_(cell)
            , before_(cell.displayed_)
        {
            cell_.displayed_ = false;
        }
        ~Undisplayed() { cell_.displayed_ = before_; }
        Undisplayed(const Undisplayed&) = delete;
        Undisplayed& operator=(const Undisplayed&) = delete;

    private:
        CurrentCell& cell_;
        bool before_;
    };

    // Follows lines that were added (delta above 0) or taken away at a position. A cell that lies outside the real
    // lines then is forgotten.
    void AdjustForRows(const GridStore& store, int position, int delta);
    void AdjustForCols(const GridStore& store, int position, int delta);

private:
    void ClearIfOutside(const GridStore& store);

    bool valid_ = false;
    bool displayed_ = true;
    int row_ = None;
    int col_ = None;
};

} // namespace vornix
