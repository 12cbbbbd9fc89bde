#include "textbox/plain_mask.h"

#include "automation/text_conversions.h"

#include <algorithm>
#include <cstdint>

namespace vornix {

namespace {

// A line end or a character of two units, which a box erases as one.
bool IsPair(const std::u16string& text, int place)
{
    if (place < 0 || place + 1 >= static_cast<int>(text.size()))
        return false;
    const char16_t first = text[static_cast<std::size_t>(place)];
    const char16_t second = text[static_cast<std::size_t>(place) + 1];
    return (first == u'\r' && second == u'\n') || (first >> 10 == 0x36 && second >> 10 == 0x37);
}

bool IsBlank(char16_t unit)
{
    return std::u16string(u" \t\r\n\u00A0").find(unit) != std::u16string::npos;
}

} // namespace

void PlainMask::SetMask(const std::u16string& mask)
{
    mask_ = mask;
    if (mask.empty())
        return;
    std::u16string rest = mask;
    while (!rest.empty() && rest.front() == u' ')
        rest.erase(0, 1);
    while (!rest.empty() && rest.back() == u' ')
        rest.pop_back();
    signs_ = cases_ = blank_ = u"";
    char16_t letterCase = u' ';
    while (!rest.empty()) {
        char16_t sign = rest.front();
        rest.erase(0, 1);
        if (sign == u'<' || sign == u'>') {
            letterCase = sign;
            continue;
        }
        bool isLiteral = std::u16string(u"09L?Aa&C").find(sign) == std::u16string::npos;
        if (sign == u'\\') {
            if (rest.empty())
                break;
            isLiteral = true;
            sign = rest.front();
            rest.erase(0, 1);
        }
        signs_ += isLiteral ? u'x' : sign;
        cases_ += letterCase;
        blank_ += isLiteral ? sign : prompt;
    }
    values_ = std::u16string(signs_.size(), 0);
    isCommittedHere_ = false;
    Put(blank_, 0);
    numericOnly_ = false;
    Assigned();
}

void PlainMask::SetNumericOnly(bool numericOnly)
{
    numericOnly_ = numericOnly;
    if (numericOnly) {
        signs_ = cases_ = blank_ = values_ = u"";
        isCommittedHere_ = false;
        multiLine = false;
    }
    Put(u"", 0);
}

void PlainMask::SetText(const std::u16string& text)
{
    const int caret = start;
    committed_ = IsForm() ? Shaped(text, includeLiteral) : text;
    committedValues_ = values_;
    isCommittedHere_ = isCommittedForm_ = IsForm();
    Put(committed_, caret);
    Assigned();
}

std::u16string PlainMask::Text() const
{
    if (!IsForm())
        return text_;
    std::u16string result;
    for (int place = 0; place < Count(); ++place) {
        const auto value = static_cast<std::int16_t>(values_[Offset(place)]);
        if (IsLiteral(place)) {
            if (includeLiteral)
                result += blank_[Offset(place)];
        } else if (value >= 1) {
            result += values_[Offset(place)];
        } else if (Offset(place) < text_.size()) {
            const char16_t shown = text_[Offset(place)];
            result += shown == prompt ? replacement : shown;
        }
    }
    return result;
}

std::u16string PlainMask::TextInput() const
{
    if (!IsForm())
        return text_;
    std::u16string result;
    for (int place = 0; place < Count(); ++place) {
        if (IsLiteral(place) || Offset(place) >= text_.size() || text_[Offset(place)] == prompt)
            continue;
        const auto value = static_cast<std::int16_t>(values_[Offset(place)]);
        result += value >= 1 ? values_[Offset(place)] : text_[Offset(place)];
    }
    return result;
}

void PlainMask::Type(char16_t character)
{
    // No box takes a control character in.
    if (character < u' ')
        return;
    if (IsForm())
        return TypeIntoForm(character);
    std::u16string candidate = text_;
    candidate.insert(Offset(start), 1, character);
    if (!numericOnly_ || IsNumeric(candidate))
        TypeIntoBox(std::u16string(1, character));
}

void PlainMask::Enter()
{
    if (multiLine)
        TypeIntoBox(u"\r\n");
}

void PlainMask::Delete(bool cuts)
{
    if (IsForm()) {
        if (EraseSelection())
            return;
        Complete();
        if (start < Count()) {
            const int next = start + 1;
            values_[Offset(next - 1)] = 0;
            text_.insert(Offset(start), 1, blank_[Offset(next - 1)]);
            text_.erase(Offset(next), 1);
            start = next;
            return Told();
        }
    }
    if (length > 0)
        return TypeIntoBox(u"");
    if (cuts || Offset(start) == text_.size())
        return;
    text_.erase(Offset(start), IsPair(text_, start) ? 2 : 1);
    Told();
}

void PlainMask::Backspace()
{
    if (numericOnly_)
        return;
    if (IsForm()) {
        if (EraseSelection())
            return;
        if (start >= 1 && start <= Count()) {
            Complete();
            values_[Offset(start - 1)] = 0;
            text_.insert(Offset(start), 1, blank_[Offset(start - 1)]);
            text_.erase(Offset(start - 1), 1);
            --start;
            return Told();
        }
    }
    if (length > 0)
        return TypeIntoBox(u"");
    if (start == 0)
        return;
    const int units = IsPair(text_, start - 2) ? 2 : 1;
    start -= units;
    text_.erase(Offset(start), Offset(units));
    Told();
}

void PlainMask::Escape()
{
    if (length > 0)
        return;
    const int caret = start;
    std::u16string text = committed_;
    if (isCommittedHere_ && IsForm()) {
        values_ = committedValues_;
    } else {
        values_.assign(values_.size(), 0);
        if (IsForm())
            text = Shaped(text, includeLiteral || isCommittedForm_);
    }
    Put(text, caret);
}

void PlainMask::Paste(const std::u16string& text)
{
    text_.replace(Offset(start), Offset(length), text);
    const int caret = start + static_cast<int>(text.size());
    Put(IsForm() ? Shaped(text_, includeLiteral) : text_, caret);
    Told();
}

void PlainMask::BackspaceWord()
{
    if (length == 0 && start == 0)
        return;
    if (length == 0) {
        int first = start;
        while (first > 0 && IsBlank(text_[Offset(first - 1)]))
            --first;
        while (first > 0 && !IsBlank(text_[Offset(first - 1)]))
            --first;
        length = start - first;
        start = first;
    }
    Paste(u"");
}

void PlainMask::Undo(const std::u16string& text)
{
    start = 0;
    length = static_cast<int>(text_.size());
    Paste(text);
}

bool PlainMask::Leaves(int key) const
{
    if (length > 0)
        return false;
    bool isAbove = false;
    bool isBelow = false;
    for (int place = 0; Offset(place) + 1 < text_.size(); ++place) {
        if (text_[Offset(place)] != u'\r' || text_[Offset(place + 1)] != u'\n')
            continue;
        isAbove |= place < start;
        isBelow |= place >= start;
    }
    return key == 37 ? start == 0 : key == 39 ? Offset(start) == text_.size() : key == 38 ? !isAbove : !isBelow;
}

bool PlainMask::Fits(char16_t character, char16_t sign)
{
    const bool isDigit = character >= u'0' && character <= u'9';
    const bool isLetter = (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z');
    switch (sign) {
    case u'0':
        return isDigit || character == 8;
    case u'9':
        return isDigit || character == u' ' || character == 8;
    case u'L':
    case u'?':
        return isLetter || character == 8;
    case u'A':
    case u'a':
        return isDigit || isLetter || character == 8;
    default:
        return character < 0xD800 || character > 0xDFFF;
    }
}

void PlainMask::Put(const std::u16string& text, int caret)
{
    text_ = text;
    start = std::min(caret, static_cast<int>(text.size()));
    length = 0;
}

void PlainMask::Complete()
{
    while (text_.size() < blank_.size())
        text_ += blank_[text_.size()];
}

std::u16string PlainMask::Shaped(std::u16string text, bool hasLiterals)
{
    if (text.empty())
        return blank_;
    text = text.substr(0, signs_.size());
    values_.assign(values_.size(), 0);
    for (int place = 0; place < Count() && Offset(place) < text.size(); ++place) {
        const std::size_t at = Offset(place);
        if (IsLiteral(place)) {
            text = text.substr(0, at) + blank_[at] + text.substr(at + (hasLiterals ? 1 : 0));
            continue;
        }
        values_[at] = text[at];
        if (!Fits(text[at], signs_[at]))
            text[at] = prompt;
    }
    text = text.substr(0, signs_.size());
    return text + blank_.substr(text.size());
}

void PlainMask::TypeIntoForm(char16_t character)
{
    if (start >= Count() || IsLiteral(start) || !Fits(character, signs_[Offset(start)]))
        return;
    if (cases_[Offset(start)] == u'<')
        character = BuiltinLocale().ToLower(character);
    if (cases_[Offset(start)] == u'>')
        character = BuiltinLocale().ToUpper(character);
    Complete();
    values_[Offset(start)] = character;
    text_[Offset(start)] = character;
    std::u16string kept;
    for (int place = 0; Offset(place) < text_.size(); ++place) {
        if (place <= start || place >= start + length)
            kept += text_[Offset(place)];
        else if (place < Count())
            kept += blank_[Offset(place)];
    }
    text_ = kept;
    int next = start + 1;
    while (next < Count() && IsLiteral(next))
        ++next;
    start = next < Count() ? next : start + 1;
    length = 0;
    Told();
}

void PlainMask::TypeIntoBox(const std::u16string& text)
{
    text_.replace(Offset(start), Offset(length), text);
    start += static_cast<int>(text.size());
    length = 0;
    Told();
}

bool PlainMask::EraseSelection()
{
    if (length == 0)
        return false;
    Complete();
    std::u16string kept;
    for (int place = 0; Offset(place) < text_.size(); ++place) {
        const bool isSelected = place >= start && place < start + length;
        if (isSelected && place < Count())
            values_[Offset(place)] = 0;
        if (!isSelected)
            kept += text_[Offset(place)];
        else if (place < Count())
            kept += blank_[Offset(place)];
    }
    Put(kept, start);
    Told();
    return true;
}

void PlainMask::Told()
{
    if (IsForm() && isPreviousHere_ && text_ == previous_)
        return;
    ++changes_;
    if (IsForm())
        previous_ = text_;
    isPreviousHere_ = isPreviousHere_ || IsForm();
}

void PlainMask::Assigned()
{
    isPreviousHere_ = isPreviousHere_ && text_ == previous_;
}

} // namespace vornix
