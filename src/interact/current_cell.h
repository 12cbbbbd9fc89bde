// The current cell: the target of keyboard and editor. Internal indices.
#pragma once

#include "model/grid_store.h"

namespace vornix {

class CurrentCell {
public:
    static constexpr int None = -1;

    bool IsValid() const { return valid_; }
    // None without a current cell, unless rows have been sorted since.
    int Row() const { return row_; }
    int Col() const { return col_; }
    bool IsAt(int row, int col) const { return valid_ && row == row_ && col == col_; }
    // And its display is on.
    bool IsDisplayedAt(int row, int col) const { return displayed_ && IsAt(row, col); }

    void Set(int row, int col);
    void Clear();

    // The place of its row in the list that virtual mode shows a page of; kept by those who move the cell.
    i32 CursorPosition = 0;
    // The host, or the step of a key, has moved the cell. Cleared by a step that is about to ask the host whether the
    // cell may move, by a press and by a release; set behind the question, it takes the place of the step's own move.
    bool HostMovedCurrent = false;
    // Events are on their way that may move the cell.
    bool IsEventGuardSet() const { return eventGuard_; }

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

    // Sets the guard for a scope.
    class EventGuard {
    public:
        explicit EventGuard(CurrentCell& cell)
            : cell_(cell)
            , before_(cell.eventGuard_)
        {
            cell_.eventGuard_ = true;
        }
        ~EventGuard() { cell_.eventGuard_ = before_; }
        EventGuard(const EventGuard&) = delete;
        EventGuard& operator=(const EventGuard&) = delete;

    private:
        CurrentCell& cell_;
        bool before_;
    };

    // Follows lines that were added (delta above 0) or taken away at a position. A cell that lies outside the real
    // lines then is forgotten.
    void AdjustForRows(const GridStore& store, int position, int delta);
    void AdjustForCols(const GridStore& store, int position, int delta);
    // The cell stays where it is when rows are sorted. Where there is none, the first row takes the place of the
    // current row, and still no cell is current.
    void AdjustForSort(const GridStore& store);

private:
    void ClearIfOutside(const GridStore& store);

    bool valid_ = false;
    bool displayed_ = true;
    bool eventGuard_ = false;
    int row_ = None;
    int col_ = None;
};

} // namespace vornix
