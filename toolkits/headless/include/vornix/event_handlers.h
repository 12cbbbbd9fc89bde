// The events of the control as functions that can be set one by one, for programs that handle a few of them.
#pragma once

#include "vornix/events.h"

#include <functional>

namespace vornix {

class EventHandlers : public VornixEvents {
public:
    std::function<void(i32 Value, i32 Max)> OnADOInProgress;
    std::function<void(i16 Row, i16 Col)> OnAfterEdit;
    std::function<void(i16 Row, i16 Col)> OnBeforeEdit;
    std::function<void(i16 Row, i16 Col, i32& x, i32& y, i32& Width, i32& Height)> OnBeforeCustom;
    std::function<void(i16 Row, i16 Col)> OnCellOver;
    std::function<void(i16 Row, i16 Col)> OnCellOut;
    std::function<void(i16 Row, i16 Col)> OnCellDown;
    std::function<void(i16 Row, i16 Col)> OnCellUp;
    std::function<void(i16 Row, i16 Col, bool& bCancel)> OnCellChange;
    std::function<void(i16 Row, i16 Col)> OnCellClick;
    std::function<void(i16 Row, i16 Col)> OnCellDblClick;
    std::function<void()> OnClick;
    std::function<void()> OnDblClick;
    std::function<void(i16& KeyCode, i16& Shift)> OnKeyDown;
    std::function<void(i16& KeyAscii)> OnKeyPress;
    std::function<void(i16& KeyCode, i16& Shift)> OnKeyUp;
    std::function<void(i32& Effect)> OnOLECompleteDrag;
    std::function<void(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y)> OnOLEDragDrop;
    std::function<void(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y, i16& State)>
        OnOLEDragOver;
    std::function<void(i32& Effect, bool& DefaultCursors)> OnOLEGiveFeedback;
    std::function<void(DataObject& Data, i16& DataFormat)> OnOLESetData;
    std::function<void(DataObject& Data, i32& AllowedEffects)> OnOLEStartDrag;
    std::function<void(i16 Button, i16 Shift, float x, float y)> OnMouseDown;
    std::function<void(i16 Button, i16 Shift, float x, float y)> OnMouseMove;
    std::function<void(i16 Button, i16 Shift, float x, float y)> OnMouseUp;
    std::function<void(i16 Col, i16& NewWidth)> OnResizeCol;
    std::function<void(i16 Row, i16& NewHeight)> OnResizeRow;
    std::function<void()> OnScroll;
    std::function<void(i16 Row)> OnScrollTrackRow;
    std::function<void(i16 Col)> OnScrollTrackCol;
    std::function<void(i16 Cols)> OnSplitCols;
    std::function<void(i16 Row, i16 Col)> OnTextChange;
    std::function<void()> OnValidateRow;
    std::function<void(i32 Offset, i16 StartRow, i16 EndRow)> OnPopulateGrid;
    std::function<void(i16 IdSearch, i32& Pos)> OnSearchResult;
    std::function<void(i16 Row, i16 Col, Hdc& PictureHdc, bool& bCancel)> OnDrawCell;

    void ADOInProgress(i32 Value, i32 Max) override { Call(OnADOInProgress, Value, Max); }
    void AfterEdit(i16 Row, i16 Col) override { Call(OnAfterEdit, Row, Col); }
    void BeforeEdit(i16 Row, i16 Col) override { Call(OnBeforeEdit, Row, Col); }
    void BeforeCustom(i16 Row, i16 Col, i32& x, i32& y, i32& Width, i32& Height) override
    {
        Call(OnBeforeCustom, Row, Col, x, y, Width, Height);
    }
    void CellOver(i16 Row, i16 Col) override { Call(OnCellOver, Row, Col); }
    void CellOut(i16 Row, i16 Col) override { Call(OnCellOut, Row, Col); }
    void CellDown(i16 Row, i16 Col) override { Call(OnCellDown, Row, Col); }
    void CellUp(i16 Row, i16 Col) override { Call(OnCellUp, Row, Col); }
    void CellChange(i16 Row, i16 Col, bool& bCancel) override { Call(OnCellChange, Row, Col, bCancel); }
    void CellClick(i16 Row, i16 Col) override { Call(OnCellClick, Row, Col); }
    void CellDblClick(i16 Row, i16 Col) override { Call(OnCellDblClick, Row, Col); }
    void Click() override { Call(OnClick); }
    void DblClick() override { Call(OnDblClick); }
    void KeyDown(i16& KeyCode, i16& Shift) override { Call(OnKeyDown, KeyCode, Shift); }
    void KeyPress(i16& KeyAscii) override { Call(OnKeyPress, KeyAscii); }
    void KeyUp(i16& KeyCode, i16& Shift) override { Call(OnKeyUp, KeyCode, Shift); }
    void OLECompleteDrag(i32& Effect) override { Call(OnOLECompleteDrag, Effect); }
    void OLEDragDrop(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y) override
    {
        Call(OnOLEDragDrop, Data, Effect, Button, Shift, x, y);
    }
    void OLEDragOver(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y, i16& State) override
    {
        Call(OnOLEDragOver, Data, Effect, Button, Shift, x, y, State);
    }
    void OLEGiveFeedback(i32& Effect, bool& DefaultCursors) override
    {
        Call(OnOLEGiveFeedback, Effect, DefaultCursors);
    }
    void OLESetData(DataObject& Data, i16& DataFormat) override { Call(OnOLESetData, Data, DataFormat); }
    void OLEStartDrag(DataObject& Data, i32& AllowedEffects) override { Call(OnOLEStartDrag, Data, AllowedEffects); }
    void MouseDown(i16 Button, i16 Shift, float x, float y) override { Call(OnMouseDown, Button, Shift, x, y); }
    void MouseMove(i16 Button, i16 Shift, float x, float y) override { Call(OnMouseMove, Button, Shift, x, y); }
    void MouseUp(i16 Button, i16 Shift, float x, float y) override { Call(OnMouseUp, Button, Shift, x, y); }
    void ResizeCol(i16 Col, i16& NewWidth) override { Call(OnResizeCol, Col, NewWidth); }
    void ResizeRow(i16 Row, i16& NewHeight) override { Call(OnResizeRow, Row, NewHeight); }
    void Scroll() override { Call(OnScroll); }
    void ScrollTrackRow(i16 Row) override { Call(OnScrollTrackRow, Row); }
    void ScrollTrackCol(i16 Col) override { Call(OnScrollTrackCol, Col); }
    void SplitCols(i16 Cols) override { Call(OnSplitCols, Cols); }
    void TextChange(i16 Row, i16 Col) override { Call(OnTextChange, Row, Col); }
    void ValidateRow() override { Call(OnValidateRow); }
    void PopulateGrid(i32 Offset, i16 StartRow, i16 EndRow) override { Call(OnPopulateGrid, Offset, StartRow, EndRow); }
    void SearchResult(i16 IdSearch, i32& Pos) override { Call(OnSearchResult, IdSearch, Pos); }
    void DrawCell(i16 Row, i16 Col, Hdc& PictureHdc, bool& bCancel) override
    {
        Call(OnDrawCell, Row, Col, PictureHdc, bCancel);
    }

private:
    // By value, so that a handler may replace or drop itself while it runs.
    template <typename Function, typename... Arguments> static void Call(Function handler, Arguments&... arguments)
    {
        if (handler)
            handler(arguments...);
    }
};

} // namespace vornix
