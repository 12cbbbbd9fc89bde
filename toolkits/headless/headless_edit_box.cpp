#include "vornix/headless_edit_box.h"

#include "text_ruler.h"
#include "virtual_keys.h"

#include <cmath>

namespace vornix {

namespace {

constexpr i16 LeftButton = 1;

} // namespace

FontPtr MakeAmbientFont()
{
    FontObject font;
    font.Name = u"DejaVu Sans";
    font.Size = 9;
    return std::make_shared<const FontObject>(font);
}

void HeadlessEditBox::KeyDown(i16& code, i16& shift)
{
    if (!IsUsable())
        return;
    const i16 key = code;
    const i16 held = shift;
    if (listener_)
        listener_->KeyDown(code, shift);
    if (code != 0 && IsUsable())
        TellChange(text_.DoKey(key, held));
}

void HeadlessEditBox::KeyPress(i16& character, i16 shift)
{
    if (!IsUsable())
        return;
    if (listener_)
        listener_->KeyPress(character, shift);
    if (character != 0 && IsUsable())
        TellChange(text_.DoCharacter(static_cast<char16_t>(character), shift));
}

void HeadlessEditBox::KeyUp(i16& code, i16& shift)
{
    if (IsUsable() && listener_)
        listener_->KeyUp(code, shift);
}

void HeadlessEditBox::TellChange(std::optional<ChangeOrigin> origin)
{
    if (origin && listener_)
        listener_->TextChanged(*origin);
}

void HeadlessEditBox::MouseDown(i16 button, i16 shift, float x, float y)
{
    if (!SetFocus())
        return;
    if (listener_)
        listener_->MouseDown(button, shift, x, y);
    if (button != LeftButton || !IsUsable())
        return;
    isSelecting_ = true;
    text_.MoveCaret(PlaceAt(x, y), shift & ShiftDown);
}

void HeadlessEditBox::MouseMove(i16 button, i16 shift, float x, float y)
{
    if (listener_ && IsUsable())
        listener_->MouseMove(button, shift, x, y);
    if (IsUsable() && isSelecting_ && (button & LeftButton))
        text_.MoveCaret(PlaceAt(x, y), true);
}

void HeadlessEditBox::MouseUp(i16 button, i16 shift, float x, float y)
{
    if (button == LeftButton)
        isSelecting_ = false;
    if (listener_ && IsUsable())
        listener_->MouseUp(button, shift, x, y);
}

void HeadlessEditBox::Click()
{
    if (listener_ && IsUsable())
        listener_->Click();
}

void HeadlessEditBox::DblClick()
{
    if (listener_ && IsUsable())
        listener_->DblClick();
    if (IsUsable())
        text_.SelectWordAt(text_.Caret());
}

void HeadlessEditBox::Paste(std::u16string_view text)
{
    if (IsUsable() && text_.Paste(text))
        TellChange(ChangeOrigin::Foreign);
}

void HeadlessEditBox::Replace(std::u16string_view text)
{
    SetText(text);
    TellChange(ChangeOrigin::Foreign);
}

void HeadlessEditBox::SetStyle(const EditBoxStyle& style)
{
    style_ = style;
    text_.SetMultiLine(style_.isMultiLine && passwordChar_ == 0);
}

void HeadlessEditBox::SetPasswordChar(char16_t sign)
{
    passwordChar_ = sign;
    text_.SetSecret(sign != 0);
    text_.SetMultiLine(style_.isMultiLine && passwordChar_ == 0);
}

void HeadlessEditBox::SetPointer(i32 shape, const PicturePtr& picture)
{
    pointerShape_ = shape;
    pointerPicture_ = picture;
}

int HeadlessEditBox::PlaceAt(float x, float y)
{
    Device* const device = MeasuringDevice();
    if (!device)
        return 0;
    const TextRuler ruler(*device, font_);
    int start = 0;
    int end = text_.LineEnd(0);
    for (int bottom = ruler.LineHeight();
         y >= static_cast<float>(bottom) && end < static_cast<int>(text_.Text().size()); bottom += ruler.LineHeight()) {
        start = text_.LineEnd(start) + 2;
        end = text_.LineEnd(start);
    }
    std::u16string line = text_.Text().substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
    if (passwordChar_ != 0)
        line.assign(line.size(), passwordChar_);
    const int left = style_.isRightAligned ? Place().Width() - ruler.Width(line) : 0;
    return start + ruler.CharactersBefore(line, static_cast<int>(std::floor(x)) - left);
}

} // namespace vornix
