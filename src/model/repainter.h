// What lower floors say upward: two interfaces that the control implements. The third is VornixEvents.
#pragma once

namespace vornix {

// The funnels that carry a change to the screen. Indices are internal. RecalcLayout tests the gate inside, and those
// named for it do nothing while it is closed; the others are called only while it is open.
class Repainter {
public:
    virtual ~Repainter() = default;
    virtual void RepaintGrid() = 0;
    virtual void RecalcLayout(bool forcePercent) = 0;
    virtual void RefreshRowCells(int row) = 0;
    virtual void RefreshColCells(int col) = 0;
    virtual void RefreshIfInRange(int row, int col) = 0;
    virtual void RefreshOneCell(int row, int col) = 0;
    virtual void RepaintUnderGate() = 0;
    virtual void RefreshCellUnderGate(int row, int col) = 0;
};

// The in-place editor, as the steps that must close it see it.
class EditorControl {
public:
    virtual ~EditorControl() = default;
    virtual bool IsEditorOpen() const = 0;
    // Hides the editor; raises AfterEdit once if the cell still exists.
    virtual void CloseEditor() = 0;
    // The layout is another one: an editor that a handler has opened meanwhile goes where its cell is.
    virtual void FollowLayout() { }
};

} // namespace vornix
