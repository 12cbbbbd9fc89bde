// A plain edit box, and the person before it: keys and characters go to the engine first, and what it lets through is
// done as the platform's box does it.
#pragma once

#include "automation/key_codes.h"
#include "textbox/mask_engine.h"

namespace vornix {

class SimulatedBox : public EditBox {
public:
    static constexpr i16 Home = 36;
    static constexpr i16 End = 35;

    void Attach(MaskEngine& engine) { engine_ = &engine; }
    // Whether SetText and SetSelText tell the engine too. Some boxes do.
    void SetTellsWrites(bool tells) { tellsWrites_ = tells; }

    std::u16string Text() const override { return text_; }
    void SetText(std::u16string_view text) override;
    int SelStart() const override { return start_; }
    void SetSelStart(int start) override;
    int SelLength() const override { return length_; }
    void SetSelLength(int length) override;
    std::u16string SelText() const override { return text_.substr(Offset(start_), Offset(length_)); }
    void SetSelText(std::u16string_view text) override;

    void Select(int start, int length);
    // Both return what the engine left of the key or character.
    i16 Press(i16 key, i16 shift = 0);
    i16 Type(char16_t character, i16 shift = 0);
    // Each character with its key.
    void TypeAll(std::u16string_view text);
    void Backspace() { Type(8); }
    // By the menu, by Ctrl+V, by the mouse.
    void Paste(std::u16string_view text);
    void PasteByKey(std::u16string_view text);
    void Drop(std::u16string_view text, int place);
    void CutByKey();

private:
    static std::size_t Offset(int place) { return static_cast<std::size_t>(place); }
    bool IsLineEndAt(int place) const;
    void Replace(int start, int length, std::u16string_view text, ChangeOrigin origin);
    void DoNatively(i16 key, i16 shift);
    void InsertNatively(char16_t character);
    void MoveTo(int place, bool extends);

    MaskEngine* engine_ = nullptr;
    bool tellsWrites_ = true;
    std::u16string text_;
    int start_ = 0;
    int length_ = 0;
    // The end of the selection that stays while Shift extends it.
    int anchor_ = 0;
};

} // namespace vornix
