// The edit box of a container without a screen: a child window with a text, and the native behaviour of a plain box.
#pragma once

#include "vornix/headless_text_field.h"

namespace vornix {

// A key goes to the listener's KeyDown, then, unless its code was set to 0, the box does what the key does by itself;
// the character that it types goes to KeyPress, and what is left of it takes the place of the selection, with the caret
// behind it. EditedText lists the keys and characters. Each change of the text is told at once: as ChangeOrigin::Key,
// and as Foreign where it was cut or pasted.
//
// A press gives the focus, is told, and with the left button puts the caret to the place between characters that is
// nearest, with Shift to select; a drag selects, a double click selects the word. The text then is measured as if its
// lines began at the left edge, or ended at the right one, of a box as wide as the window, without scrolling and
// without broken lines.
class HeadlessEditBox final : public HeadlessTextField<NativeEditBox> {
public:
    using HeadlessTextField::HeadlessTextField;

    // What the user does, in single notifications; a code or character comes back as it was left.
    void KeyDown(i16& code, i16& shift) override;
    void KeyPress(i16& character, i16 shift) override;
    void KeyUp(i16& code, i16& shift) override;
    void MouseDown(i16 button, i16 shift, float x, float y) override;
    void MouseMove(i16 button, i16 shift, float x, float y) override;
    void MouseUp(i16 button, i16 shift, float x, float y) override;
    void Click() override;
    void DblClick() override;
    // As by a menu: takes the place of the selection, as far as the box takes it. A foreign change.
    void Paste(std::u16string_view text);
    // The whole text is another, as an assistive tool sets it, with the caret in front. A foreign change.
    void Replace(std::u16string_view text);

    void Listen(EditBoxListener* listener) override { listener_ = listener; }
    void SetStyle(const EditBoxStyle& style) override;
    const EditBoxStyle& Style() const { return style_; }
    // Behind signs there is one line alone.
    void SetPasswordChar(char16_t sign) override;
    char16_t PasswordChar() const { return passwordChar_; }
    void SetMaxLength(i32 length) override { text_.SetMaxLength(length); }
    void SetLocked(bool locked) override { text_.SetLocked(locked); }
    void SetBorder(bool hasBorder) override { hasBorder_ = hasBorder; }
    bool HasBorder() const { return hasBorder_; }
    void SetToolTip(std::u16string_view text) override { toolTip_ = text; }
    const std::u16string& ToolTip() const { return toolTip_; }
    void SetPointer(i32 shape, const PicturePtr& picture) override;
    i32 PointerShape() const { return pointerShape_; }
    const PicturePtr& PointerPicture() const { return pointerPicture_; }
    Device* DrawingDevice() override { return MeasuringDevice(); }

private:
    void TellChange(std::optional<ChangeOrigin> origin);
    int PlaceAt(float x, float y);

    EditBoxListener* listener_ = nullptr;
    EditBoxStyle style_;
    char16_t passwordChar_ = 0;
    bool hasBorder_ = false;
    std::u16string toolTip_;
    i32 pointerShape_ = 0;
    PicturePtr pointerPicture_;
    // Between press and release of the left button.
    bool isSelecting_ = false;
};

} // namespace vornix
