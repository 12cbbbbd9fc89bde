// The mask engine and its box as one slow, obvious thing: texts of equal length for the signs, cases and values of the
// form. A place is erased by putting a blank in and letting the key remove a character.
#pragma once

#include <string>

namespace vornix {

class PlainMask {
public:
    // Written freely by who uses it.
    bool includeLiteral = false;
    bool multiLine = false;
    char16_t prompt = u'_';
    char16_t replacement = 0;
    int start = 0;
    int length = 0;

    const std::u16string& Shown() const { return text_; }
    const std::u16string& Values() const { return values_; }
    int Changes() const { return changes_; }

    void SetMask(const std::u16string& mask);
    void SetNumericOnly(bool numericOnly);
    void SetText(const std::u16string& text);
    std::u16string Text() const;
    std::u16string TextInput() const;

    void Type(char16_t character);
    void Enter();
    // With Shift the key cuts where there is no form.
    void Delete(bool cuts = false);
    void Backspace();
    void Escape();
    void Paste(const std::u16string& text);
    // The selection, or what follows the last blank in front of the caret, with the blank.
    void BackspaceWord();
    // Another text in place of the whole.
    void Undo(const std::u16string& text);
    // Whether an arrow key, 37 to 40, leaves the text.
    bool Leaves(int key) const;

private:
    bool IsForm() const { return !mask_.empty() && !numericOnly_; }
    int Count() const { return static_cast<int>(signs_.size()); }
    bool IsLiteral(int place) const { return signs_[Offset(place)] == u'x'; }
    static bool Fits(char16_t character, char16_t sign);
    static std::size_t Offset(int place) { return static_cast<std::size_t>(place); }

    void Put(const std::u16string& text, int caret);
    void Complete();
    std::u16string Shaped(std::u16string text, bool hasLiterals);
    void TypeIntoForm(char16_t character);
    void TypeIntoBox(const std::u16string& text);
    bool EraseSelection();
    void Told();
    void Assigned();

    std::u16string mask_;
    bool numericOnly_ = false;
    // '0', '9', 'L', '?', 'A', 'a', '&', 'C', or 'x' for a literal; '<', '>' or ' '; what the empty form shows.
    std::u16string signs_;
    std::u16string cases_;
    std::u16string blank_;
    // 0 where nothing is stored.
    std::u16string values_;
    std::u16string text_;
    std::u16string committed_;
    std::u16string committedValues_;
    bool isCommittedForm_ = false;
    bool isCommittedHere_ = false;
    std::u16string previous_;
    // No other text was assigned since it was told.
    bool isPreviousHere_ = false;
    int changes_ = 0;
};

} // namespace vornix
