#include "control/event_relay.h"

namespace vornix {

void EventRelay::ADOInProgress(i32 Value, i32 Max)
{
    if (!silent_)
        host_.ADOInProgress(Value, Max);
}

void EventRelay::AfterEdit(i16 Row, i16 Col)
{
    if (!silent_)
        host_.AfterEdit(Row, Col);
}

void EventRelay::BeforeEdit(i16 Row, i16 Col)
{
    if (!silent_)
        host_.BeforeEdit(Row, Col);
}

void EventRelay::BeforeCustom(i16 Row, i16 Col, i32& x, i32& y, i32& Width, i32& Height)
{
    if (!silent_)
        host_.BeforeCustom(Row, Col, x, y, Width, Height);
}

void EventRelay::CellOver(i16 Row, i16 Col)
{
    if (!silent_)
        host_.CellOver(Row, Col);
}

void EventRelay::CellOut(i16 Row, i16 Col)
{
    if (!silent_)
        host_.CellOut(Row, Col);
}

void EventRelay::CellDown(i16 Row, i16 Col)
{
    if (!silent_)
        host_.CellDown(Row, Col);
}

void EventRelay::CellUp(i16 Row, i16 Col)
{
    if (!silent_)
        host_.CellUp(Row, Col);
}

void EventRelay::CellChange(i16 Row, i16 Col, bool& bCancel)
{
    if (!silent_)
        host_.CellChange(Row, Col, bCancel);
}

void EventRelay::CellClick(i16 Row, i16 Col)
{
    if (!silent_)
        host_.CellClick(Row, Col);
}

void EventRelay::CellDblClick(i16 Row, i16 Col)
{
    if (!silent_)
        host_.CellDblClick(Row, Col);
}

void EventRelay::Click()
{
    if (!silent_)
        host_.Click();
}

void EventRelay::DblClick()
{
    if (!silent_)
        host_.DblClick();
}

void EventRelay::KeyDown(i16& KeyCode, i16& Shift)
{
    if (!silent_)
        host_.KeyDown(KeyCode, Shift);
}

void EventRelay::KeyPress(i16& KeyAscii)
{
    if (!silent_)
        host_.KeyPress(KeyAscii);
}

void EventRelay::KeyUp(i16& KeyCode, i16& Shift)
{
    if (!silent_)
        host_.KeyUp(KeyCode, Shift);
}

void EventRelay::OLECompleteDrag(i32& Effect)
{
    if (!silent_)
        host_.OLECompleteDrag(Effect);
}

void EventRelay::OLEDragDrop(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y)
{
    if (!silent_)
        host_.OLEDragDrop(Data, Effect, Button, Shift, x, y);
}

void EventRelay::OLEDragOver(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y, i16& State)
{
    if (!silent_)
        host_.OLEDragOver(Data, Effect, Button, Shift, x, y, State);
}

void EventRelay::OLEGiveFeedback(i32& Effect, bool& DefaultCursors)
{
    if (!silent_)
        host_.OLEGiveFeedback(Effect, DefaultCursors);
}

void EventRelay::OLESetData(DataObject& Data, i16& DataFormat)
{
    if (!silent_)
        host_.OLESetData(Data, DataFormat);
}

void EventRelay::OLEStartDrag(DataObject& Data, i32& AllowedEffects)
{
    if (!silent_)
        host_.OLEStartDrag(Data, AllowedEffects);
}

void EventRelay::MouseDown(i16 Button, i16 Shift, float x, float y)
{
    if (!silent_)
        host_.MouseDown(Button, Shift, x, y);
}

void EventRelay::MouseMove(i16 Button, i16 Shift, float x, float y)
{
    if (!silent_)
        host_.MouseMove(Button, Shift, x, y);
}

void EventRelay::MouseUp(i16 Button, i16 Shift, float x, float y)
{
    if (!silent_)
        host_.MouseUp(Button, Shift, x, y);
}

void EventRelay::ResizeCol(i16 Col, i16& NewWidth)
{
    if (!silent_)
        host_.ResizeCol(Col, NewWidth);
}

void EventRelay::ResizeRow(i16 Row, i16& NewHeight)
{
    if (!silent_)
        host_.ResizeRow(Row, NewHeight);
}

void EventRelay::Scroll()
{
    if (!silent_)
        host_.Scroll();
}

void EventRelay::ScrollTrackRow(i16 Row)
{
    if (!silent_)
        host_.ScrollTrackRow(Row);
}

void EventRelay::ScrollTrackCol(i16 Col)
{
    if (!silent_)
        host_.ScrollTrackCol(Col);
}

void EventRelay::SplitCols(i16 Cols)
{
    if (!silent_)
        host_.SplitCols(Cols);
}

void EventRelay::TextChange(i16 Row, i16 Col)
{
    if (!silent_)
        host_.TextChange(Row, Col);
}

void EventRelay::ValidateRow()
{
    if (!silent_)
        host_.ValidateRow();
}

void EventRelay::PopulateGrid(i32 Offset, i16 StartRow, i16 EndRow)
{
    if (!silent_)
        host_.PopulateGrid(Offset, StartRow, EndRow);
}

void EventRelay::SearchResult(i16 IdSearch, i32& Pos)
{
    if (!silent_)
        host_.SearchResult(IdSearch, Pos);
}

void EventRelay::DrawCell(i16 Row, i16 Col, Hdc& PictureHdc, bool& bCancel)
{
    if (!silent_)
        host_.DrawCell(Row, Col, PictureHdc, bCancel);
}

} // namespace vornix
