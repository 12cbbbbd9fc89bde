// The combo box of a container without a screen: a child window with a field of text and a list, and their native
// behaviour.
#pragma once

#include "vornix/headless_text_field.h"

namespace vornix {

// Keys and characters come as in HeadlessEditBox. In both modes the caret moves in the field; where only rows can be
// picked its text cannot be changed. Down and Up choose the row behind and before, Page Down and Page Up the tenth from
// there or the last and first one, without a selected row the first one; so do End and Home, the last and first row,
// where only rows can be picked. A key that comes to no other row says nothing. Whoever chooses a row gets its text
// selected as a whole. Alt+Down, Alt+Up and F4 open the list and close it. With other keys held none walks.
class HeadlessComboBox final : public HeadlessTextField<NativeComboBox> {
public:
    // Rows that a Page key passes.
    static constexpr int Page = 10;

    using HeadlessTextField::HeadlessTextField;

    // What the user does, in single notifications; a code or character comes back as it was left.
    void KeyDown(i16& code, i16& shift) override;
    void KeyPress(i16& character, i16 shift) override;
    void KeyUp(i16& code, i16& shift) override;
    // A press gives the focus.
    void MouseDown(i16 button, i16 shift, float x, float y) override;
    void MouseMove(i16 button, i16 shift, float x, float y) override;
    // A click on a row, which closes the list. Error 9 for a row that there is not.
    void ClickItem(int index);
    // Takes the place of the selection, where rows are not all that can be picked.
    void Paste(std::u16string_view text);
    // The whole text is another, as an assistive tool sets it, with the caret in front.
    void Replace(std::u16string_view text);

    int ItemCount() const { return items_ ? items_->Count() : 0; }
    // Error 9 outside the list.
    std::u16string ItemText(int index) const;
    bool IsListOnly() const { return isListOnly_; }
    bool IsDroppedDown() const { return isDroppedDown_; }

    void SetText(std::u16string_view text) override;
    void SetSelText(std::u16string_view text) override;
    void Listen(ComboBoxListener* listener) override { listener_ = listener; }
    void SetItems(const ComboItems* items) override;
    // A row that there is no more is not selected any more.
    void ItemsChanged() override;
    void SetListOnly(bool listOnly) override;
    int ListIndex() const override { return index_; }
    void SetListIndex(int index) override;
    void DropDown(bool open) override { isDroppedDown_ = open; }

private:
    bool DoInList(i16 code, i16 shift);
    std::optional<int> RowByKey(i16 code) const;
    void Choose(int index);
    void TellChange();

    ComboBoxListener* listener_ = nullptr;
    const ComboItems* items_ = nullptr;
    int index_ = -1;
    bool isListOnly_ = false;
    bool isDroppedDown_ = false;
};

} // namespace vornix
