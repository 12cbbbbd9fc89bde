// Boxes of a toolkit that has none: they keep their text, and nobody sees it.
#pragma once

#include "vornix/platform/combo_box.h"

#include <algorithm>
#include <string>

namespace vornix {

template <typename Port> class UnseenTextOf : public Port {
public:
    std::u16string Text() const override { return text_; }
    void SetText(std::u16string_view text) override
    {
        text_ = text;
        start_ = length_ = 0;
    }
    int SelStart() const override { return start_; }
    void SetSelStart(int start) override
    {
        start_ = std::clamp(start, 0, Length());
        length_ = 0;
    }
    int SelLength() const override { return length_; }
    void SetSelLength(int length) override { length_ = std::clamp(length, 0, Length() - start_); }
    std::u16string SelText() const override { return text_.substr(At(start_), At(length_)); }
    void SetSelText(std::u16string_view text) override
    {
        text_.replace(At(start_), At(length_), text);
        start_ += static_cast<int>(text.size());
        length_ = 0;
    }
    void SetRightToLeft(bool) override { }
    void SetFont(const FontObject&) override { }
    void SetColors(ColorRef, ColorRef) override { }

private:
    int Length() const { return static_cast<int>(text_.size()); }
    static std::size_t At(int place) { return static_cast<std::size_t>(place); }

    std::u16string text_;
    int start_ = 0;
    int length_ = 0;
};

class UnseenEditBox final : public UnseenTextOf<NativeEditBox> {
public:
    void Listen(EditBoxListener*) override { }
    void SetStyle(const EditBoxStyle&) override { }
    void SetPasswordChar(char16_t) override { }
    void SetMaxLength(i32) override { }
    void SetLocked(bool) override { }
    void SetBorder(bool) override { }
};

class UnseenComboBox final : public UnseenTextOf<NativeComboBox> {
public:
    void Listen(ComboBoxListener*) override { }
    void SetItems(const ComboItems* items) override
    {
        items_ = items;
        index_ = -1;
    }
    void ItemsChanged() override { }
    void SetListOnly(bool) override { }
    int ListIndex() const override { return index_; }
    void SetListIndex(int index) override
    {
        if (index < -1 || index >= (items_ ? items_->Count() : 0))
            return;
        UnseenTextOf::SetText(index < 0 ? std::u16string_view() : items_->Text(index));
        index_ = index;
    }
    void SetText(std::u16string_view text) override
    {
        UnseenTextOf::SetText(text);
        index_ = -1;
    }

private:
    const ComboItems* items_ = nullptr;
    int index_ = -1;
};

// The toolkit's box where it has one.
template <typename Port, typename Unseen> Port& OrUnseen(Port* box, Unseen& unseen)
{
    return box ? *box : unseen;
}

} // namespace vornix
