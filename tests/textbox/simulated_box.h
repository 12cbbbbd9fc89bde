// A plain edit box, and the person before it: keys and characters go to the listener first, and what it lets through is
// done as the platform's box does it. Unlike the box of the container without a screen it may tell of what a program
// writes, and takes pasting and undoing by some keys for typing: a text box has to cope with such boxes as well.
#pragma once

#include "automation/key_codes.h"
#include "textbox/mask_engine.h"
#include "vornix/edited_text.h"

#include <memory>

namespace vornix {

class SimulatedBox : public NativeEditBox {
public:
    static constexpr i16 Home = 36;
    static constexpr i16 End = 35;

    SimulatedBox();
    ~SimulatedBox() override;

    // An engine without a text box around it.
    void Attach(MaskEngine& engine);
    void Listen(EditBoxListener* listener) override { listener_ = listener; }
    // Whether SetText and SetSelText tell the listener too. Some boxes do.
    void SetTellsWrites(bool tells) { tellsWrites_ = tells; }

    std::u16string Text() const override { return text_.Text(); }
    void SetText(std::u16string_view text) override;
    int SelStart() const override { return text_.SelStart(); }
    void SetSelStart(int start) override { text_.SetSelStart(start); }
    int SelLength() const override { return text_.SelLength(); }
    void SetSelLength(int length) override { text_.SetSelLength(length); }
    std::u16string SelText() const override { return text_.SelText(); }
    void SetSelText(std::u16string_view text) override;
    void SetStyle(const EditBoxStyle&) override { }
    void SetRightToLeft(bool) override { }
    void SetPasswordChar(char16_t) override { }
    void SetMaxLength(i32) override { }
    void SetLocked(bool) override { }
    void SetFont(const FontObject&) override { }
    void SetColors(ColorRef, ColorRef) override { }
    void SetBorder(bool) override { }

    void Select(int start, int length);
    // Both return what the listener left of the key or character.
    i16 Press(i16 key, i16 shift = 0);
    i16 Type(char16_t character, i16 shift = 0);
    // Each character with its key.
    void TypeAll(std::u16string_view text);
    void Backspace(i16 shift = 0) { Type(Keys::Backspace, shift); }
    // The word in front of the caret, or the selection: by Ctrl+Backspace, which types 8 or 127.
    void BackspaceWord(char16_t code);
    // By the menu, by Ctrl+V, by Shift+Insert, by the mouse.
    void Paste(std::u16string_view text);
    void PasteByKey(std::u16string_view text);
    void PasteByInsert(std::u16string_view text);
    void Drop(std::u16string_view text, int place);
    void CutByKey();
    // Alt+Backspace brings another text back.
    void UndoByKey(std::u16string_view text);

private:
    void Replace(int start, int length, std::u16string_view text, ChangeOrigin origin);
    bool PressWithCtrl(int key, char16_t character);
    void TellChange(std::optional<ChangeOrigin> origin);

    class EngineListener;

    std::unique_ptr<EngineListener> engine_;
    EditBoxListener* listener_ = nullptr;
    bool tellsWrites_ = true;
    std::u16string clipboard_;
    EditedText text_ { clipboard_ };
};

} // namespace vornix
