// The events of the control. A host derives from this and passes itself in; every function does nothing until overridden.
//
// Row and Col are public indices: 0 is the first row or column that is not fixed, fixed ones are negative. Arguments by
// reference may be written. A handler may call any member of the control, closing it included; what a member finds
// changed then is reported as an AutomationError, never as a crash.
#pragma once

#include "vornix/platform/device.h"
#include "vornix/types.h"

namespace vornix {

// What a drag carries; described with drag and drop.
class DataObject;

class VornixEvents {
public:
    virtual ~VornixEvents() = default;

    virtual void ADOInProgress(i32 /*Value*/, i32 /*Max*/) { }
    virtual void AfterEdit(i16 /*Row*/, i16 /*Col*/) { }
    virtual void BeforeEdit(i16 /*Row*/, i16 /*Col*/) { }
    virtual void BeforeCustom(i16 /*Row*/, i16 /*Col*/, i32& /*x*/, i32& /*y*/, i32& /*Width*/, i32& /*Height*/) { }
    virtual void CellOver(i16 /*Row*/, i16 /*Col*/) { }
    virtual void CellOut(i16 /*Row*/, i16 /*Col*/) { }
    virtual void CellDown(i16 /*Row*/, i16 /*Col*/) { }
    virtual void CellUp(i16 /*Row*/, i16 /*Col*/) { }
    virtual void CellChange(i16 /*Row*/, i16 /*Col*/, bool& /*bCancel*/) { }
    virtual void CellClick(i16 /*Row*/, i16 /*Col*/) { }
    virtual void CellDblClick(i16 /*Row*/, i16 /*Col*/) { }
    virtual void Click() { }
    virtual void DblClick() { }
    virtual void KeyDown(i16& /*KeyCode*/, i16& /*Shift*/) { }
    virtual void KeyPress(i16& /*KeyAscii*/) { }
    virtual void KeyUp(i16& /*KeyCode*/, i16& /*Shift*/) { }
    virtual void OLECompleteDrag(i32& /*Effect*/) { }
    virtual void OLEDragDrop(
        DataObject& /*Data*/, i32& /*Effect*/, i16& /*Button*/, i16& /*Shift*/, float& /*x*/, float& /*y*/)
    {
    }
    virtual void OLEDragOver(DataObject& /*Data*/, i32& /*Effect*/, i16& /*Button*/, i16& /*Shift*/, float& /*x*/,
        float& /*y*/, i16& /*State*/)
    {
    }
    virtual void OLEGiveFeedback(i32& /*Effect*/, bool& /*DefaultCursors*/) { }
    virtual void OLESetData(DataObject& /*Data*/, i16& /*DataFormat*/) { }
    virtual void OLEStartDrag(DataObject& /*Data*/, i32& /*AllowedEffects*/) { }
    virtual void MouseDown(i16 /*Button*/, i16 /*Shift*/, float /*x*/, float /*y*/) { }
    virtual void MouseMove(i16 /*Button*/, i16 /*Shift*/, float /*x*/, float /*y*/) { }
    virtual void MouseUp(i16 /*Button*/, i16 /*Shift*/, float /*x*/, float /*y*/) { }
    virtual void ResizeCol(i16 /*Col*/, i16& /*NewWidth*/) { }
    virtual void ResizeRow(i16 /*Row*/, i16& /*NewHeight*/) { }
    virtual void Scroll() { }
    virtual void ScrollTrackRow(i16 /*Row*/) { }
    virtual void ScrollTrackCol(i16 /*Col*/) { }
    virtual void SplitCols(i16 /*Cols*/) { }
    virtual void TextChange(i16 /*Row*/, i16 /*Col*/) { }
    virtual void ValidateRow() { }
    virtual void PopulateGrid(i32 /*Offset*/, i16 /*StartRow*/, i16 /*EndRow*/) { }
    virtual void SearchResult(i16 /*IdSearch*/, i16& /*Pos*/) { }
    virtual void DrawCell(i16 /*Row*/, i16 /*Col*/, Hdc& /*PictureHdc*/, bool& /*bCancel*/) { }
};

} // namespace vornix
