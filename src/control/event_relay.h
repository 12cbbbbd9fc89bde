// Stands between the control and the host's events: silent once the control is closed.
#pragma once

#include "vornix/events.h"

namespace vornix {

class EventRelay : public VornixEvents {
public:
    explicit EventRelay(VornixEvents& host)
        : host_(host)
    {
    }

    // Nothing is raised from now on.
    void Silence() { silent_ = true; }

    void ADOInProgress(i32 Value, i32 Max) override;
    void AfterEdit(i16 Row, i16 Col) override;
    void BeforeEdit(i16 Row, i16 Col) override;
    void BeforeCustom(i16 Row, i16 Col, i32& x, i32& y, i32& Width, i32& Height) override;
    void CellOver(i16 Row, i16 Col) override;
    void CellOut(i16 Row, i16 Col) override;
    void CellDown(i16 Row, i16 Col) override;
    void CellUp(i16 Row, i16 Col) override;
    void CellChange(i16 Row, i16 Col, bool& bCancel) override;
    void CellClick(i16 Row, i16 Col) override;
    void CellDblClick(i16 Row, i16 Col) override;
    void Click() override;
    void DblClick() override;
    void KeyDown(i16& KeyCode, i16& Shift) override;
    void KeyPress(i16& KeyAscii) override;
    void KeyUp(i16& KeyCode, i16& Shift) override;
    void OLECompleteDrag(i32& Effect) override;
    void OLEDragDrop(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y) override;
    void OLEDragOver(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y, i16& State) override;
    void OLEGiveFeedback(i32& Effect, bool& DefaultCursors) override;
    void OLESetData(DataObject& Data, i16& DataFormat) override;
    void OLEStartDrag(DataObject& Data, i32& AllowedEffects) override;
    void MouseDown(i16 Button, i16 Shift, float x, float y) override;
    void MouseMove(i16 Button, i16 Shift, float x, float y) override;
    void MouseUp(i16 Button, i16 Shift, float x, float y) override;
    void ResizeCol(i16 Col, i16& NewWidth) override;
    void ResizeRow(i16 Row, i16& NewHeight) override;
    void Scroll() override;
    void ScrollTrackRow(i16 Row) override;
    void ScrollTrackCol(i16 Col) override;
    void SplitCols(i16 Cols) override;
    void TextChange(i16 Row, i16 Col) override;
    void ValidateRow() override;
    void PopulateGrid(i32 Offset, i16 StartRow, i16 EndRow) override;
    void SearchResult(i16 IdSearch, i32& Pos) override;
    void DrawCell(i16 Row, i16 Col, Hdc& PictureHdc, bool& bCancel) override;

private:
    VornixEvents& host_;
    bool silent_ = false;
};

} // namespace vornix
