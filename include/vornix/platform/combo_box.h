// The combo box port: a field of text with a list that drops down from it.
#pragma once

#include "vornix/platform/edit_box.h"

namespace vornix {

// The rows of the list. They belong to the control; the box reads them when it shows them.
class ComboItems {
public:
    virtual ~ComboItems() = default;
    virtual int Count() const = 0;
    // Error 9 outside the list. Valid until the list changes.
    virtual std::u16string_view Text(int index) const = 0;
};

// Who hears of what the user does with a combo box; as EditBoxListener otherwise.
class ComboBoxListener {
public:
    virtual ~ComboBoxListener() = default;
    virtual void KeyDown(i16& KeyCode, i16& Shift) = 0;
    virtual void KeyPress(i16& KeyAscii, i16 Shift) = 0;
    virtual void KeyUp(i16& KeyCode, i16& Shift) = 0;
    // The user has changed the text of the field. No row is selected any more.
    virtual void TextChanged() = 0;
    // The user has chosen a row, by the pointer or by walking the list with keys; text and row are set, also where it
    // is the row as before.
    virtual void Click() = 0;
    virtual void MouseMove(i16 Button, i16 Shift, float x, float y) = 0;
};

// A combo box as the platform shows it. What a setter does is not told to the listener. Its place, visibility and focus
// are those of the child window that it is in.
//
// Up and Down choose the row before and behind, or the first one where none is selected.
class NativeComboBox : public EditBox {
public:
    // Null takes the listener away.
    virtual void Listen(ComboBoxListener* listener) = 0;
    // The list to show; null takes it away, as it must be before the list goes.
    virtual void SetItems(const ComboItems* items) = 0;
    // The rows are others. Comes once for each change, and has to be quick: the box reads them when it next shows them.
    virtual void ItemsChanged() = 0;
    // Whether the field takes no characters of its own: the keys then only pick rows.
    virtual void SetListOnly(bool listOnly) = 0;
    // -1 for none. Setting it takes the text of the row into the field, "" for none; others than rows are ignored.
    virtual int ListIndex() const = 0;
    virtual void SetListIndex(int index) = 0;
    // SetText leaves no row selected. It may be no row's text even where only rows can be picked.

    virtual void SetRightToLeft(bool rightToLeft) = 0;
    virtual void SetFont(const FontObject& font) = 0;
    virtual void SetColors(ColorRef foreColor, ColorRef backColor) = 0;
    // Opens the list or closes it.
    virtual void DropDown(bool /*open*/) { }
    virtual std::intptr_t Handle() const { return 0; }
};

} // namespace vornix
