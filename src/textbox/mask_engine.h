// Turns a plain edit box into a form that is filled in position by position: decides for each key what the text becomes
// and where the caret goes. Without a mask it filters numbers, or nothing.
//
// Any event may change the engine's settings and the box. The engine must not be destroyed inside one of them.
#pragma once

#include "textbox/mask_form.h"
#include "vornix/platform/edit_box.h"
#include "vornix/platform/locale.h"

#include <optional>

namespace vornix {

// The text box around the engine: the events of its host, and what only it can do.
class MaskEngineOwner {
public:
    virtual ~MaskEngineOwner() = default;
    // Come before the engine acts on the key; a key or character set to 0 is taken.
    virtual void KeyDown(i16& KeyCode, i16& Shift) = 0;
    virtual void KeyPress(i16& KeyAscii) = 0;
    // An arrow key is about to leave the text; set to 0, it does nothing.
    virtual void KeyArrowMove(i16& KeyCode) = 0;
    virtual void Change() = 0;
    // A whole text goes into the box: its border is taken off.
    virtual void FlattenBorder() = 0;
    // The text may need another size.
    virtual void SizeToText() = 0;
    // Asked at the moment of use.
    virtual const Locale& GetLocale() const = 0;
};

class MaskEngine {
public:
    // Both must outlive the engine.
    MaskEngine(EditBox& box, MaskEngineOwner& owner);
    MaskEngine(const MaskEngine&) = delete;
    MaskEngine& operator=(const MaskEngine&) = delete;

    // As a new engine, with an empty box.
    void Initialize();

    // -- Members --

    // As it was written. Writing a mask shows its empty form, without a Change, and ends NumericOnly; "" ends the mask and
    // leaves the box.
    const std::u16string& Mask() const { return mask_; }
    void SetMask(std::u16string_view Value);
    // One character: what empty places show, "_" at the start, and what they give in Text, NUL at the start. Of a text
    // the first character counts; "" is ignored, and so is a character of two units. The form follows when Mask is
    // written.
    std::u16string PromptChar() const { return std::u16string(1, promptChar_); }
    void SetPromptChar(std::u16string_view Value);
    std::u16string ReplaceChar() const { return std::u16string(1, replaceChar_); }
    void SetReplaceChar(std::u16string_view Value);
    // Whether Text has literals, and expects them when it is written.
    bool IncludeLiteral() const { return includeLiteral_; }
    void SetIncludeLiteral(bool Value) { includeLiteral_ = Value; }
    // Whether only what keeps the text a number can be typed. Writing either value empties the box, without a Change;
    // true puts the mask out of force, takes its positions away, and ends MultiLine.
    bool NumericOnly() const { return numericOnly_; }
    void SetNumericOnly(bool Value);
    // Whether Enter reaches the box.
    bool MultiLine() const { return multiLine_; }
    void SetMultiLine(bool Value) { multiLine_ = Value; }
    // Writing shapes the text by the mask, keeps the caret, and raises no Change. Escape comes back to it.
    std::u16string Text() const;
    void SetText(std::u16string_view Value);
    // What was entered, without literals and empty places.
    std::u16string TextInput() const;
    // Those of the box. Writing SelText is a foreign change, but for nothing in place of nothing.
    std::u16string SelText() const { return box_.SelText(); }
    void SetSelText(std::u16string_view Value);
    int SelStart() const { return box_.SelStart(); }
    void SetSelStart(int Value) { box_.SetSelStart(Value); }
    int SelLength() const { return box_.SelLength(); }
    void SetSelLength(int Value) { box_.SetSelLength(Value); }

    // -- For the box --

    // A key, and the character that it types, before the box acts on them; a value left at 0 is not for the box. Shift is
    // the sum of the keys held: 1 Shift, 2 Ctrl, 4 Alt. A key that types nothing has no KeyPress; what an input method
    // has composed comes as characters without keys. A character of two units finds no place in a form.
    void KeyDown(i16& KeyCode, i16 Shift);
    void KeyPress(i16& KeyAscii, i16 Shift);
    // The text has changed. To be called at once; changes that the engine itself makes may be told too, or not.
    void BoxChanged(ChangeOrigin origin);

    // -- What the engine works on --

    const MaskForm& Form() const { return form_; }
    const std::u16string& CommittedText() const { return committedText_; }

private:
    class OwnWrite;

    bool IsMaskInForce() const { return !mask_.empty() && !numericOnly_; }
    std::u16string ShownForm() const { return form_.Completed(box_.Text()); }

    std::u16string Apply(std::u16string_view text);
    void RestoreCommitted();
    void ForgetChangeBefore();
    void WriteSilently(std::u16string_view text);
    void WriteWithCaret(std::u16string_view text, int caret);
    void WriteAndTell(std::u16string_view text, int caret);
    void TextChanged(bool isForeign);

    void PlainKeyDown(i16& KeyCode);
    bool LeavesText(i16 KeyCode) const;
    void FilterCharacter(i16& KeyAscii);
    bool IsNumericWith(char16_t character) const;
    void TypeCharacter(char16_t character);
    char16_t InCaseOf(int position, char16_t character) const;
    bool EraseForward();
    bool EraseBackward();
    bool EraseSelection();
    void ErasePosition(int position, int caret);

    EditBox& box_;
    MaskEngineOwner& owner_;
    MaskForm form_;
    std::u16string mask_;
    char16_t promptChar_ = u'_';
    char16_t replaceChar_ = 0;
    bool includeLiteral_ = false;
    bool numericOnly_ = false;
    bool multiLine_ = false;
    // What the latest Text showed, whether that was a form, and the values stored then; no values if the positions are
    // younger.
    std::u16string committedText_;
    bool isCommittedForm_ = false;
    std::optional<std::vector<i16>> committedValues_;
    // The text at the latest Change; nothing when another was assigned since.
    std::optional<std::u16string> previousText_;
    bool internalChange_ = false;
    // A key was the latest that happened; what the box changes now is its answer.
    bool keyHandled_ = false;
};

} // namespace vornix
