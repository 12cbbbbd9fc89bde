#include "vornix/event_log.h"

#include <algorithm>

namespace vornix {

namespace {

Variant Logged(const DataObject& /*data*/)
{
    return Variant::FromObject(nullptr);
}

template <typename Value> Variant Logged(Value value)
{
    if constexpr (std::is_same_v<Value,
                      i16> || std::is_same_v<Value, i32> || std::is_same_v<Value, float> || std::is_same_v<Value, bool>)
        return Variant(value);
    else
        return Variant(static_cast<std::int64_t>(value));
}

} // namespace

const Variant& LoggedEvent::operator[](std::string_view argument) const
{
    for (const auto& [argumentName, value] : arguments) {
        if (argumentName == argument)
            return value;
    }
    throw AutomationError(ErrorNumber::InvalidArgument);
}

int EventLog::Count(std::string_view name) const
{
    return static_cast<int>(
        std::count_if(events_.begin(), events_.end(), [&](const LoggedEvent& event) { return event.name == name; }));
}

void EventLog::ADOInProgress(i32 Value, i32 Max)
{
    events_.push_back({ "ADOInProgress", { { "Value", Logged(Value) }, { "Max", Logged(Max) } } });
    if (receiver_)
        receiver_->ADOInProgress(Value, Max);
}

void EventLog::AfterEdit(i16 Row, i16 Col)
{
    events_.push_back({ "AfterEdit", { { "Row", Logged(Row) }, { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->AfterEdit(Row, Col);
}

void EventLog::BeforeEdit(i16 Row, i16 Col)
{
    events_.push_back({ "BeforeEdit", { { "Row", Logged(Row) }, { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->BeforeEdit(Row, Col);
}

void EventLog::BeforeCustom(i16 Row, i16 Col, i32& x, i32& y, i32& Width, i32& Height)
{
    events_.push_back({ "BeforeCustom",
        { { "Row", Logged(Row) }, { "Col", Logged(Col) }, { "x", Logged(x) }, { "y", Logged(y) },
            { "Width", Logged(Width) }, { "Height", Logged(Height) } } });
    if (receiver_)
        receiver_->BeforeCustom(Row, Col, x, y, Width, Height);
}

void EventLog::CellOver(i16 Row, i16 Col)
{
    events_.push_back({ "CellOver", { { "Row", Logged(Row) }, { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->CellOver(Row, Col);
}

void EventLog::CellOut(i16 Row, i16 Col)
{
    events_.push_back({ "CellOut", { { "Row", Logged(Row) }, { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->CellOut(Row, Col);
}

void EventLog::CellDown(i16 Row, i16 Col)
{
    events_.push_back({ "CellDown", { { "Row", Logged(Row) }, { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->CellDown(Row, Col);
}

void EventLog::CellUp(i16 Row, i16 Col)
{
    events_.push_back({ "CellUp", { { "Row", Logged(Row) }, { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->CellUp(Row, Col);
}

void EventLog::CellChange(i16 Row, i16 Col, bool& bCancel)
{
    events_.push_back(
        { "CellChange", { { "Row", Logged(Row) }, { "Col", Logged(Col) }, { "bCancel", Logged(bCancel) } } });
    if (receiver_)
        receiver_->CellChange(Row, Col, bCancel);
}

void EventLog::CellClick(i16 Row, i16 Col)
{
    events_.push_back({ "CellClick", { { "Row", Logged(Row) }, { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->CellClick(Row, Col);
}

void EventLog::CellDblClick(i16 Row, i16 Col)
{
    events_.push_back({ "CellDblClick", { { "Row", Logged(Row) }, { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->CellDblClick(Row, Col);
}

void EventLog::Click()
{
    events_.push_back({ "Click", {} });
    if (receiver_)
        receiver_->Click();
}

void EventLog::DblClick()
{
    events_.push_back({ "DblClick", {} });
    if (receiver_)
        receiver_->DblClick();
}

void EventLog::KeyDown(i16& KeyCode, i16& Shift)
{
    events_.push_back({ "KeyDown", { { "KeyCode", Logged(KeyCode) }, { "Shift", Logged(Shift) } } });
    if (receiver_)
        receiver_->KeyDown(KeyCode, Shift);
}

void EventLog::KeyPress(i16& KeyAscii)
{
    events_.push_back({ "KeyPress", { { "KeyAscii", Logged(KeyAscii) } } });
    if (receiver_)
        receiver_->KeyPress(KeyAscii);
}

void EventLog::KeyUp(i16& KeyCode, i16& Shift)
{
    events_.push_back({ "KeyUp", { { "KeyCode", Logged(KeyCode) }, { "Shift", Logged(Shift) } } });
    if (receiver_)
        receiver_->KeyUp(KeyCode, Shift);
}

void EventLog::OLECompleteDrag(i32& Effect)
{
    events_.push_back({ "OLECompleteDrag", { { "Effect", Logged(Effect) } } });
    if (receiver_)
        receiver_->OLECompleteDrag(Effect);
}

void EventLog::OLEDragDrop(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y)
{
    events_.push_back({ "OLEDragDrop",
        { { "Data", Logged(Data) }, { "Effect", Logged(Effect) }, { "Button", Logged(Button) },
            { "Shift", Logged(Shift) }, { "x", Logged(x) }, { "y", Logged(y) } } });
    if (receiver_)
        receiver_->OLEDragDrop(Data, Effect, Button, Shift, x, y);
}

void EventLog::OLEDragOver(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y, i16& State)
{
    events_.push_back({ "OLEDragOver",
        { { "Data", Logged(Data) }, { "Effect", Logged(Effect) }, { "Button", Logged(Button) },
            { "Shift", Logged(Shift) }, { "x", Logged(x) }, { "y", Logged(y) }, { "State", Logged(State) } } });
    if (receiver_)
        receiver_->OLEDragOver(Data, Effect, Button, Shift, x, y, State);
}

void EventLog::OLEGiveFeedback(i32& Effect, bool& DefaultCursors)
{
    events_.push_back(
        { "OLEGiveFeedback", { { "Effect", Logged(Effect) }, { "DefaultCursors", Logged(DefaultCursors) } } });
    if (receiver_)
        receiver_->OLEGiveFeedback(Effect, DefaultCursors);
}

void EventLog::OLESetData(DataObject& Data, i16& DataFormat)
{
    events_.push_back({ "OLESetData", { { "Data", Logged(Data) }, { "DataFormat", Logged(DataFormat) } } });
    if (receiver_)
        receiver_->OLESetData(Data, DataFormat);
}

void EventLog::OLEStartDrag(DataObject& Data, i32& AllowedEffects)
{
    events_.push_back({ "OLEStartDrag", { { "Data", Logged(Data) }, { "AllowedEffects", Logged(AllowedEffects) } } });
    if (receiver_)
        receiver_->OLEStartDrag(Data, AllowedEffects);
}

void EventLog::MouseDown(i16 Button, i16 Shift, float x, float y)
{
    events_.push_back({ "MouseDown",
        { { "Button", Logged(Button) }, { "Shift", Logged(Shift) }, { "x", Logged(x) }, { "y", Logged(y) } } });
    if (receiver_)
        receiver_->MouseDown(Button, Shift, x, y);
}

void EventLog::MouseMove(i16 Button, i16 Shift, float x, float y)
{
    events_.push_back({ "MouseMove",
        { { "Button", Logged(Button) }, { "Shift", Logged(Shift) }, { "x", Logged(x) }, { "y", Logged(y) } } });
    if (receiver_)
        receiver_->MouseMove(Button, Shift, x, y);
}

void EventLog::MouseUp(i16 Button, i16 Shift, float x, float y)
{
    events_.push_back({ "MouseUp",
        { { "Button", Logged(Button) }, { "Shift", Logged(Shift) }, { "x", Logged(x) }, { "y", Logged(y) } } });
    if (receiver_)
        receiver_->MouseUp(Button, Shift, x, y);
}

void EventLog::ResizeCol(i16 Col, i16& NewWidth)
{
    events_.push_back({ "ResizeCol", { { "Col", Logged(Col) }, { "NewWidth", Logged(NewWidth) } } });
    if (receiver_)
        receiver_->ResizeCol(Col, NewWidth);
}

void EventLog::ResizeRow(i16 Row, i16& NewHeight)
{
    events_.push_back({ "ResizeRow", { { "Row", Logged(Row) }, { "NewHeight", Logged(NewHeight) } } });
    if (receiver_)
        receiver_->ResizeRow(Row, NewHeight);
}

void EventLog::Scroll()
{
    events_.push_back({ "Scroll", {} });
    if (receiver_)
        receiver_->Scroll();
}

void EventLog::ScrollTrackRow(i16 Row)
{
    events_.push_back({ "ScrollTrackRow", { { "Row", Logged(Row) } } });
    if (receiver_)
        receiver_->ScrollTrackRow(Row);
}

void EventLog::ScrollTrackCol(i16 Col)
{
    events_.push_back({ "ScrollTrackCol", { { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->ScrollTrackCol(Col);
}

void EventLog::SplitCols(i16 Cols)
{
    events_.push_back({ "SplitCols", { { "Cols", Logged(Cols) } } });
    if (receiver_)
        receiver_->SplitCols(Cols);
}

void EventLog::TextChange(i16 Row, i16 Col)
{
    events_.push_back({ "TextChange", { { "Row", Logged(Row) }, { "Col", Logged(Col) } } });
    if (receiver_)
        receiver_->TextChange(Row, Col);
}

void EventLog::ValidateRow()
{
    events_.push_back({ "ValidateRow", {} });
    if (receiver_)
        receiver_->ValidateRow();
}

void EventLog::PopulateGrid(i32 Offset, i16 StartRow, i16 EndRow)
{
    events_.push_back({ "PopulateGrid",
        { { "Offset", Logged(Offset) }, { "StartRow", Logged(StartRow) }, { "EndRow", Logged(EndRow) } } });
    if (receiver_)
        receiver_->PopulateGrid(Offset, StartRow, EndRow);
}

void EventLog::SearchResult(i16 IdSearch, i32& Pos)
{
    events_.push_back({ "SearchResult", { { "IdSearch", Logged(IdSearch) }, { "Pos", Logged(Pos) } } });
    if (receiver_)
        receiver_->SearchResult(IdSearch, Pos);
}

void EventLog::DrawCell(i16 Row, i16 Col, Hdc& PictureHdc, bool& bCancel)
{
    events_.push_back({ "DrawCell",
        { { "Row", Logged(Row) }, { "Col", Logged(Col) }, { "PictureHdc", Logged(PictureHdc) },
            { "bCancel", Logged(bCancel) } } });
    if (receiver_)
        receiver_->DrawCell(Row, Col, PictureHdc, bCancel);
}

} // namespace vornix
