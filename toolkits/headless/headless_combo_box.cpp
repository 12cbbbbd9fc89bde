#include "vornix/headless_combo_box.h"

#include "virtual_keys.h"
#include "vornix/automation.h"

#include <algorithm>

namespace vornix {

void HeadlessComboBox::KeyDown(i16& code, i16& shift)
{
    if (!IsUsable())
        return;
    const i16 key = code;
    const i16 held = shift;
    if (listener_)
        listener_->KeyDown(code, shift);
    if (code != 0 && IsUsable() && !DoInList(key, held) && text_.DoKey(key, held))
        TellChange();
}

void HeadlessComboBox::KeyPress(i16& character, i16 shift)
{
    if (!IsUsable())
        return;
    if (listener_)
        listener_->KeyPress(character, shift);
    if (character != 0 && IsUsable() && text_.DoCharacter(static_cast<char16_t>(character), shift))
        TellChange();
}

void HeadlessComboBox::KeyUp(i16& code, i16& shift)
{
    if (IsUsable() && listener_)
        listener_->KeyUp(code, shift);
}

// Whether the key is one for the list.
bool HeadlessComboBox::DoInList(i16 code, i16 shift)
{
    const bool isByAlt = (shift & AltDown) && (code == UpKey || code == DownKey);
    if (isByAlt || (code == F4Key && shift == 0)) {
        isDroppedDown_ = !isDroppedDown_;
        return true;
    }
    const std::optional<int> row = shift == 0 ? RowByKey(code) : std::nullopt;
    if (row && *row != index_)
        Choose(*row);
    return row.has_value();
}

// The row that a key leads to, -1 in an empty list; none for keys that walk nowhere.
std::optional<int> HeadlessComboBox::RowByKey(i16 code) const
{
    const int last = ItemCount() - 1;
    const auto from = [&](int step) { return std::min(index_ < 0 ? 0 : std::max(index_ + step, 0), last); };
    switch (code) {
    case UpKey:
        return from(-1);
    case DownKey:
        return from(1);
    case PageUpKey:
        return from(-Page);
    case PageDownKey:
        return from(Page);
    case HomeKey:
        return isListOnly_ ? std::optional(std::min(0, last)) : std::nullopt;
    case EndKey:
        return isListOnly_ ? std::optional(last) : std::nullopt;
    default:
        return std::nullopt;
    }
}

void HeadlessComboBox::Choose(int index)
{
    SetListIndex(index);
    text_.SelectAll();
    if (listener_)
        listener_->Click();
}

void HeadlessComboBox::TellChange()
{
    index_ = -1;
    if (listener_)
        listener_->TextChanged();
}

void HeadlessComboBox::MouseDown(i16 /*button*/, i16 /*shift*/, float /*x*/, float /*y*/)
{
    SetFocus();
}

void HeadlessComboBox::MouseMove(i16 button, i16 shift, float x, float y)
{
    if (listener_ && IsUsable())
        listener_->MouseMove(button, shift, x, y);
}

void HeadlessComboBox::ClickItem(int index)
{
    if (index < 0 || index >= ItemCount())
        throw AutomationError(ErrorNumber::SubscriptOutOfRange);
    if (!IsUsable())
        return;
    isDroppedDown_ = false;
    Choose(index);
}

void HeadlessComboBox::Paste(std::u16string_view text)
{
    if (IsUsable() && text_.Paste(text))
        TellChange();
}

void HeadlessComboBox::Replace(std::u16string_view text)
{
    text_.SetText(text);
    TellChange();
}

std::u16string HeadlessComboBox::ItemText(int index) const
{
    if (!items_)
        throw AutomationError(ErrorNumber::SubscriptOutOfRange);
    return std::u16string(items_->Text(index));
}

void HeadlessComboBox::SetText(std::u16string_view text)
{
    index_ = -1;
    text_.SetText(text);
}

void HeadlessComboBox::SetSelText(std::u16string_view text)
{
    index_ = -1;
    text_.SetSelText(text);
}

void HeadlessComboBox::SetItems(const ComboItems* items)
{
    items_ = items;
    index_ = -1;
}

void HeadlessComboBox::ItemsChanged()
{
    if (index_ >= ItemCount())
        index_ = -1;
}

void HeadlessComboBox::SetListOnly(bool listOnly)
{
    isListOnly_ = listOnly;
    text_.SetLocked(listOnly);
}

void HeadlessComboBox::SetListIndex(int index)
{
    if (index < -1 || index >= ItemCount())
        return;
    text_.SetText(index < 0 ? std::u16string() : ItemText(index));
    index_ = index;
}

} // namespace vornix
