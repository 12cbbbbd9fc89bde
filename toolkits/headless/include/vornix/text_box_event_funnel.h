// All events of a text box through one function, as vornix/event_funnel.h has those of the grid.
//
// A class `Receiver` derives from TextBoxEventFunnel<Receiver> and has a member template that is called for every event:
//
//     template <typename Event, typename... Arguments> void On(int number, Event event, Arguments&... arguments);
//
// `event` points to the function of TextBoxEvents; its type tells which arguments are by reference.
#pragma once

#include "vornix/text_box.h"

namespace vornix {

template <typename Receiver> class TextBoxEventFunnel : public TextBoxEvents {
public:
    void Change() final { Tell(1, &TextBoxEvents::Change); }
    void Click() final { Tell(2, &TextBoxEvents::Click); }
    void OLEStartDrag(DataObject& Data, i32& AllowedEffects) final
    {
        Tell(3, &TextBoxEvents::OLEStartDrag, Data, AllowedEffects);
    }
    void OLESetData(DataObject& Data, i16& DataFormat) final { Tell(4, &TextBoxEvents::OLESetData, Data, DataFormat); }
    void OLEGiveFeedback(i32& Effect, bool& DefaultCursors) final
    {
        Tell(5, &TextBoxEvents::OLEGiveFeedback, Effect, DefaultCursors);
    }
    void OLEDragOver(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y, i16& State) final
    {
        Tell(6, &TextBoxEvents::OLEDragOver, Data, Effect, Button, Shift, x, y, State);
    }
    void OLEDragDrop(DataObject& Data, i32& Effect, i16& Button, i16& Shift, float& x, float& y) final
    {
        Tell(7, &TextBoxEvents::OLEDragDrop, Data, Effect, Button, Shift, x, y);
    }
    void OLECompleteDrag(i32& Effect) final { Tell(8, &TextBoxEvents::OLECompleteDrag, Effect); }
    void MouseUp(i16 Button, i16 Shift, float x, float y) final
    {
        Tell(9, &TextBoxEvents::MouseUp, Button, Shift, x, y);
    }
    void MouseMove(i16 Button, i16 Shift, float x, float y) final
    {
        Tell(10, &TextBoxEvents::MouseMove, Button, Shift, x, y);
    }
    void MouseDown(i16 Button, i16 Shift, float x, float y) final
    {
        Tell(11, &TextBoxEvents::MouseDown, Button, Shift, x, y);
    }
    void KeyUp(i16& KeyCode, i16& Shift) final { Tell(12, &TextBoxEvents::KeyUp, KeyCode, Shift); }
    void KeyPress(i16& KeyAscii) final { Tell(13, &TextBoxEvents::KeyPress, KeyAscii); }
    void KeyDown(i16& KeyCode, i16& Shift) final { Tell(14, &TextBoxEvents::KeyDown, KeyCode, Shift); }
    void DblClick() final { Tell(15, &TextBoxEvents::DblClick); }
    void Resize() final { Tell(16, &TextBoxEvents::Resize); }
    void KeyArrowMove(i16& KeyCode) final { Tell(17, &TextBoxEvents::KeyArrowMove, KeyCode); }

private:
    template <typename Event, typename... Arguments> void Tell(int number, Event event, Arguments&... arguments)
    {
        static_cast<Receiver&>(*this).On(number, event, arguments...);
    }
};

} // namespace vornix
