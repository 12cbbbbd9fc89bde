// What the steps around the current cell ask of the editor, of virtual mode and of the pointer. Internal indices.
#pragma once

#include "interact/scrolling.h"

namespace vornix {

class CellEditor : public EditorControl {
public:
    virtual bool IsEditorOpenOn(CellIndex cell) const = 0;
    // CloseEditor, and the cell is painted.
    virtual void CloseEditorAndRepaint() = 0;
    // Brings a cell that is edited in place and enabled into view and opens its editor, unless the host refuses. Raises
    // BeforeEdit, and BeforeCustom. Nothing opens in a control that was closed.
    virtual void OpenEditor(int row, int col) = 0;
    // Opens on the current cell or brings it into view, as a host asks for it.
    virtual void EnterEdit() = 0;
    // Where the caret stands in the text of an editor that shows one; it is not kept for a later one.
    virtual void SetSelStart(int place) = 0;
    // Hides frame and windows without an event. No editor is open any more, while the cell is remembered.
    virtual void HideEditor() = 0;
    // No cell is edited. A session that is about to open does not.
    virtual void ForgetEditCell() = 0;
};

// The page of rows that stands at a place of a longer list. Off while its size is 0.
class ListPage : public PageRoller {
public:
    virtual int PageSize() const = 0;
    // The place of its first row in the list, and the length of the list.
    virtual i32 Offset() const = 0;
    virtual i32 Length() const = 0;
    // Brings a place of the list into the page and the current row to it; without a current cell that is not fixed
    // there is none afterwards. Raises PopulateGrid.
    virtual void GotoListPosition(i32 position) = 0;
    // Like RollPage, and the current row goes with its entry: its index falls by as much as the page has shifted, and its
    // place in the list is told anew from there.
    virtual void RollPageWithCurrent() = 0;
};

class PointerHover {
public:
    virtual ~PointerHover() = default;
    // The pointer counts as off the cells until it moves. Raises CellOut.
    virtual void ExitHover() = 0;
};

} // namespace vornix
