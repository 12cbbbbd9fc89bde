// What is selected: rectangles of cells, or ranges of columns, or ranges of rows, by internal indices.
//
// Ranges lie in slots. A range to be added goes to the next free slot, which is the slot behind it from then on; a range
// that is removed takes the next free slot back to its own when that is lower. So the slot behind a refilled one is
// written next, live or not: an overwritten range is gone while Count goes on rising. UnselectItems alone frees no slot,
// and goes on counting what it covers. Hosts know the selection by these counts and slots.
#pragma once

#include "vornix/types.h"

#include <unordered_map>
#include <vector>

namespace vornix {

enum class SelectionKind : i32 { None = 0, Cells = 1, Cols = 2, Rows = 3 };

struct SelectedRange {
    // First and last column of a rectangle, or line of a range.
    i32 left = 0;
    i32 right = 0;
    // First and last row of a rectangle.
    i32 top = 0;
    i32 bottom = 0;
    bool isActive = false;
    // One index. Always true for rectangles; not kept up by every cut.
    bool isSingle = false;
};

class SelectCollection {
public:
    SelectCollection();

    // None whenever nothing is counted.
    SelectionKind Mode() const;
    void SetMode(SelectionKind mode);
    // Ranges as they are counted, which may be more than are live.
    i16 Count() const { return count_; }

    // Each begins anew with `reset`, or where another kind is selected. Corners are stored as given.
    void AddCells(bool reset, i32 row1, i32 col1, i32 row2, i32 col2);
    // A first index above the last adds nothing.
    void AddCols(bool reset, i32 first, i32 last);
    void AddRows(bool reset, i32 first, i32 last);

    i32 CountCells() const;
    i32 CountCols() const;
    i32 CountRows() const;
    bool IsCellSelected(i32 row, i32 col) const;
    bool IsColSelected(i32 col) const;
    bool IsRowSelected(i32 row) const;
    // Whether something of another kind is selected.
    bool IsNewModeSelection(SelectionKind mode) const;

    // Slots keep what they hold; the next range starts over.
    void RemoveAll();
    // Whole ranges that begin before `last` and end behind `first`: a line in common at an end is not enough.
    void RemoveCols(i32 first, i32 last);
    void RemoveRows(i32 first, i32 last);

    // From a slot on, the first rectangle; the slot stays.
    bool SelectCell(i16& slot, i32& row1, i32& col1, i32& row2, i32& col2) const;
    // From a slot on, the first range of any kind, counted or not; the slot becomes the one where it lies.
    bool SelectItem(i16& slot, i32& first, i32& last) const;

    // Takes one line out of the first range that holds it; between the ends of a range the rest becomes a new one.
    void UnSelectRange(i32 index);
    // Takes a run of lines out of all ranges. Covered ones stay counted.
    void UnselectItems(i32 first, i32 last);
    // Lines were added or removed at a place: ranges behind move, a range around is cut or shrinks.
    void InsertItems(i32 position, i32 count);
    void DeleteItems(i32 position, i32 count);
    // Selects the lines from first to last that are not selected. Nothing selected stays nothing.
    void InvertSelection(i32 first, i32 last);

    // Slots that a walk looks at: all but the last of the array.
    int SlotCount() const { return static_cast<int>(items_.size()) - 1; }
    const SelectedRange& Slot(int slot) const { return items_[static_cast<std::size_t>(slot)]; }

private:
    class WrittenSlots;

    // For writing: what is known of the lines is forgotten.
    SelectedRange& Item(int slot);
    void AddItem(const SelectedRange& item);
    void AddRange(i32 first, i32 last);
    void AddLines(SelectionKind mode, bool reset, i32 first, i32 last);
    void BeginMode(SelectionKind mode, bool reset);
    void RemoveLines(i32 first, i32 last);
    void FreeSlot(int slot);
    i32 CountLines(SelectionKind mode) const;
    bool IsLineSelected(SelectionKind mode, i32 index) const;
    bool IsInAnyRange(i32 index) const;
    bool HasLines() const { return mode_ != SelectionKind::Cells && count_ >= 1; }
    // The slots that are live when the walk begins; what the action adds is not visited.
    template <typename Action> void ForEachPresent(const Action& action);

    std::vector<SelectedRange> items_;
    i16 count_ = 0;
    i16 nextFreeSlot_ = 0;
    SelectionKind mode_ = SelectionKind::None;
    // Slots written since the walk began; null outside of one.
    std::vector<int>* written_ = nullptr;
    // Lines asked for since a range was last written: a paint asks for the same few, cell by cell.
    mutable std::unordered_map<i32, bool> answers_;
};

} // namespace vornix
