// What a plain edit box does by itself: its text and selection, and the keys that work on them. No picture, and nobody
// who listens; see HeadlessEditBox for those.
//
// A line ends in CR LF, which is passed and erased as one, as is a character of two units. Long lines are not broken. A
// word is what blanks and line ends surround. There is no undoing.
#pragma once

#include "vornix/platform/edit_box.h"

#include <optional>
#include <string>
#include <string_view>

namespace vornix {

class EditedText {
public:
    // The clipboard must outlive the text.
    explicit EditedText(std::u16string& clipboard)
        : clipboard_(&clipboard)
    {
    }
    void UseClipboard(std::u16string& clipboard) { clipboard_ = &clipboard; }

    // As EditBox.
    const std::u16string& Text() const { return text_; }
    void SetText(std::u16string_view text);
    int SelStart() const;
    void SetSelStart(int start);
    int SelLength() const;
    void SetSelLength(int length);
    std::u16string SelText() const;
    void SetSelText(std::u16string_view text);
    // The end of the selection that moves while Shift is held.
    int Caret() const { return caret_; }
    void MoveCaret(int place, bool extends);
    void SelectAll();
    // The word that a place is in or at an end of; nothing in the midst of blanks.
    void SelectWordAt(int place);
    // Where the line that a place is in begins and ends; without several lines, the text.
    int LineStart(int place) const;
    int LineEnd(int place) const;

    // As NativeEditBox. What is set here binds the user alone.
    void SetMultiLine(bool multiLine) { isMultiLine_ = multiLine; }
    bool IsMultiLine() const { return isMultiLine_; }
    void SetLocked(bool locked) { isLocked_ = locked; }
    void SetMaxLength(int length) { maxLength_ = length; }
    // Nothing of it reaches the clipboard.
    void SetSecret(bool secret) { isSecret_ = secret; }

    // What the box does for a key, before its character comes: Left, Right, Home, End, and in several lines Up and
    // Down, with Shift to select, with Ctrl by words or to the ends of the text; Delete, with Ctrl to the next word;
    // Ctrl+Insert, Shift+Insert and Shift+Delete copy, paste and cut. Gives who changed the text, if that was done.
    std::optional<ChangeOrigin> DoKey(i16 code, i16 shift);
    // What it does for a character: Backspace (8), with Ctrl (127) to the start of the word; Return (13), which begins
    // a line where there are several; Ctrl+A, C, X and V (1, 3, 24, 22). Others from the space on take the place of the
    // selection, unless they come with Ctrl alone; other control characters do nothing.
    std::optional<ChangeOrigin> DoCharacter(char16_t character, i16 shift);
    // Takes the place of the selection as far as there is room: without several lines the first line, otherwise with
    // all line ends made CR LF. False, with nothing changed, where the text is locked or empty.
    bool Paste(std::u16string_view text);

private:
    int Length() const { return static_cast<int>(text_.size()); }
    int Before(int place) const;
    int Behind(int place) const;
    int WordBefore(int place) const;
    int WordBehind(int place) const;
    void MoveSideways(int towards, bool backward, bool extends);
    void MoveByLines(bool up, bool extends);
    std::optional<ChangeOrigin> EraseTo(int place);
    bool Insert(std::u16string_view text);
    int Room() const;
    void Copy();
    std::optional<ChangeOrigin> Cut();
    std::optional<ChangeOrigin> PasteClipboard();

    std::u16string text_;
    int anchor_ = 0;
    int caret_ = 0;
    // Characters in front of the caret when it began to move by lines.
    std::optional<int> column_;
    std::u16string* clipboard_;
    int maxLength_ = 0;
    bool isMultiLine_ = false;
    bool isLocked_ = false;
    bool isSecret_ = false;
};

} // namespace vornix
