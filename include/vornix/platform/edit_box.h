// The edit box port: the platform's box to edit a text in. A component with a mask works on it (vornix/text_box.h); the
// box itself knows nothing of masks.
//
// Places and lengths count UTF-16 units; lines end in CR LF. What a setter does is not told to the listener.
#pragma once

#include "vornix/platform/device.h"
#include "vornix/types.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vornix {

// A text as boxes of several lines count it: each line end, whichever it is, as CR LF.
std::u16string WithLineEnds(std::u16string_view text);

// The text and its caret.
class EditBox {
public:
    virtual ~EditBox() = default;

    virtual std::u16string Text() const = 0;
    // Puts the caret in front of the text and empties the selection. A box of several lines may show CR or LF alone as
    // CR LF.
    virtual void SetText(std::u16string_view text) = 0;
    virtual int SelStart() const = 0;
    // Limited to the text; empties the selection.
    virtual void SetSelStart(int start) = 0;
    virtual int SelLength() const = 0;
    // Limited to what follows the start.
    virtual void SetSelLength(int length) = 0;
    virtual std::u16string SelText() const = 0;
    // Takes the place of the selection, as pasting does; the caret then stands behind it.
    virtual void SetSelText(std::u16string_view text) = 0;
};

// Who changed the text of the box: it itself, for a key that the listener let through, or anyone else. Pasting,
// dropping, cutting and undoing are foreign whatever key they were asked by.
enum class ChangeOrigin { Key, Foreign };

// Who hears of what the user does with a box. The listener may change the box, hide it, or take it another listener
// inside each of these.
class EditBoxListener {
public:
    virtual ~EditBoxListener() = default;

    // A key, and each character that it types, before the box acts on them: what is set to 0 is not for the box. Another
    // character takes the place of the one that was typed; another code than 0 changes nothing of what the key does. Shift is
    // the sum of the keys held: 1 Shift, 2 Ctrl, 4 Alt. A key that types nothing has no KeyPress; neither has one whose
    // code was set to 0. What an input method has composed comes as one KeyDown of the code 229, without a KeyUp, and as a
    // KeyPress for each UTF-16 unit.
    virtual void KeyDown(i16& KeyCode, i16& Shift) = 0;
    virtual void KeyPress(i16& KeyAscii, i16 Shift) = 0;
    virtual void KeyUp(i16& KeyCode, i16& Shift) = 0;
    // The user has changed the text. Comes at once.
    virtual void TextChanged(ChangeOrigin origin) = 0;
    // Buttons 1 left, 2 right, 4 middle; of a move the sum of those held. Places in pixels of the box.
    virtual void MouseDown(i16 Button, i16 Shift, float x, float y) = 0;
    virtual void MouseMove(i16 Button, i16 Shift, float x, float y) = 0;
    virtual void MouseUp(i16 Button, i16 Shift, float x, float y) = 0;
    virtual void Click() = 0;
    virtual void DblClick() = 0;
};

struct EditBoxStyle {
    bool isRightAligned = false;
    // Shows several lines, and breaks those that are too long.
    bool isMultiLine = false;
    bool hasScrollBar = false;
    friend bool operator==(const EditBoxStyle&, const EditBoxStyle&) = default;
};

// A box as the platform shows it. A new one is left aligned, of one line, without a border, and empty. Its place,
// visibility and focus are those of the child window that it is in.
class NativeEditBox : public EditBox {
public:
    // Null takes the listener away.
    virtual void Listen(EditBoxListener* listener) = 0;
    // Text, caret, selection and all other settings stay.
    virtual void SetStyle(const EditBoxStyle& style) = 0;
    virtual void SetRightToLeft(bool rightToLeft) = 0;
    // The sign shown in place of each character; 0 shows the text.
    virtual void SetPasswordChar(char16_t sign) = 0;
    // The greatest number of characters that the user can type; 0 for any.
    virtual void SetMaxLength(i32 length) = 0;
    // Whether the user cannot change the text.
    virtual void SetLocked(bool locked) = 0;
    virtual void SetFont(const FontObject& font) = 0;
    virtual void SetColors(ColorRef foreColor, ColorRef backColor) = 0;
    // A single line around the box, or none.
    virtual void SetBorder(bool hasBorder) = 0;
    virtual void SetToolTip(std::u16string_view /*text*/) { }
    // The shape of the pointer over the box: 0 its own, 99 the picture.
    virtual void SetPointer(i32 /*shape*/, const PicturePtr& /*picture*/) { }
    virtual void Refresh() { }
    // The native window.
    virtual std::intptr_t Handle() const { return 0; }
    // Where the text is measured as the box shows it; null where that is not possible.
    virtual Device* DrawingDevice() { return nullptr; }
};

} // namespace vornix
