// Writes down every event that the control raises, with its arguments as they were raised, and hands it on.
#pragma once

#include "vornix/automation.h"
#include "vornix/events.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vornix {

struct LoggedEvent {
    std::string name;
    // In the order of the event's arguments. An object is a value of type Object.
    std::vector<std::pair<std::string, Variant>> arguments;

    // Error 5 when the event has no such argument.
    const Variant& operator[](std::string_view argument) const;
};

class EventLog : public VornixEvents {
public:
    // The receiver may be null and must outlive the log.
    explicit EventLog(VornixEvents* receiver = nullptr)
        : receiver_(receiver)
    {
    }

    const std::vector<LoggedEvent>& Events() const { return events_; }
    // How often an event was raised.
    int Count(std::string_view name) const;
    void Clear() { events_.clear(); }

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
    VornixEvents* receiver_;
    std::vector<LoggedEvent> events_;
};

} // namespace vornix
