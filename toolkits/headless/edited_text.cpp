#include "vornix/edited_text.h"

#include "virtual_keys.h"

#include <algorithm>
#include <limits>

namespace vornix {

namespace {

constexpr std::u16string_view LineBreak = u"\r\n";
constexpr char16_t CtrlA = 1;
constexpr char16_t CtrlC = 3;
constexpr char16_t CtrlV = 22;
constexpr char16_t CtrlX = 24;
constexpr char16_t CtrlBack = 127;

std::size_t Offset(int place)
{
    return static_cast<std::size_t>(place);
}

bool IsBlank(char16_t unit)
{
    return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n' || unit == u'\u00A0';
}

bool IsFirstOfTwo(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsSecondOfTwo(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

bool ArePair(char16_t first, char16_t second)
{
    return (first == u'\r' && second == u'\n') || (IsFirstOfTwo(first) && IsSecondOfTwo(second));
}

bool HoldsCtrlAlone(i16 shift)
{
    return (shift & (CtrlDown | AltDown)) == CtrlDown;
}

} // namespace

void EditedText::SetText(std::u16string_view text)
{
    text_ = text;
    MoveCaret(0, false);
}

int EditedText::SelStart() const
{
    return std::min(anchor_, caret_);
}

void EditedText::SetSelStart(int start)
{
    MoveCaret(start, false);
}

int EditedText::SelLength() const
{
    return std::max(anchor_, caret_) - SelStart();
}

void EditedText::SetSelLength(int length)
{
    const int start = SelStart();
    MoveCaret(start, false);
    MoveCaret(start + std::clamp(length, 0, Length() - start), true);
}

std::u16string EditedText::SelText() const
{
    return text_.substr(Offset(SelStart()), Offset(SelLength()));
}

void EditedText::SetSelText(std::u16string_view text)
{
    const int start = SelStart();
    text_.replace(Offset(start), Offset(SelLength()), text);
    MoveCaret(start + static_cast<int>(text.size()), false);
}

void EditedText::MoveCaret(int place, bool extends)
{
    caret_ = std::clamp(place, 0, Length());
    if (!extends)
        anchor_ = caret_;
    column_.reset();
}

void EditedText::SelectAll()
{
    MoveCaret(0, false);
    MoveCaret(Length(), true);
}

void EditedText::SelectWordAt(int place)
{
    int start = std::clamp(place, 0, Length());
    int end = start;
    while (start > 0 && !IsBlank(text_[Offset(start - 1)]))
        --start;
    while (end < Length() && !IsBlank(text_[Offset(end)]))
        ++end;
    MoveCaret(start, false);
    MoveCaret(end, true);
}

int EditedText::LineStart(int place) const
{
    if (!isMultiLine_ || place < 2)
        return 0;
    const std::size_t lineBreak = text_.rfind(LineBreak, Offset(place - 2));
    return lineBreak == std::u16string::npos ? 0 : static_cast<int>(lineBreak + LineBreak.size());
}

int EditedText::LineEnd(int place) const
{
    const std::size_t lineBreak = isMultiLine_ ? text_.find(LineBreak, Offset(place)) : std::u16string::npos;
    return lineBreak == std::u16string::npos ? Length() : static_cast<int>(lineBreak);
}

int EditedText::Before(int place) const
{
    if (place <= 0)
        return 0;
    return place >= 2 && ArePair(text_[Offset(place - 2)], text_[Offset(place - 1)]) ? place - 2 : place - 1;
}

int EditedText::Behind(int place) const
{
    if (place >= Length())
        return Length();
    return place + 2 <= Length() && ArePair(text_[Offset(place)], text_[Offset(place + 1)]) ? place + 2 : place + 1;
}

int EditedText::WordBefore(int place) const
{
    while (place > 0 && IsBlank(text_[Offset(place - 1)]))
        --place;
    while (place > 0 && !IsBlank(text_[Offset(place - 1)]))
        --place;
    return place;
}

int EditedText::WordBehind(int place) const
{
    while (place < Length() && !IsBlank(text_[Offset(place)]))
        ++place;
    while (place < Length() && IsBlank(text_[Offset(place)]))
        ++place;
    return place;
}

std::optional<ChangeOrigin> EditedText::DoKey(i16 code, i16 shift)
{
    if (shift & AltDown)
        return std::nullopt;
    const bool extends = shift & ShiftDown;
    const bool far = shift & CtrlDown;
    switch (code) {
    case LeftKey:
        MoveSideways(far ? WordBefore(caret_) : Before(caret_), true, extends);
        return std::nullopt;
    case RightKey:
        MoveSideways(far ? WordBehind(caret_) : Behind(caret_), false, extends);
        return std::nullopt;
    case HomeKey:
        MoveCaret(far ? 0 : LineStart(caret_), extends);
        return std::nullopt;
    case EndKey:
        MoveCaret(far ? Length() : LineEnd(caret_), extends);
        return std::nullopt;
    case UpKey:
    case DownKey:
        MoveByLines(code == UpKey, extends);
        return std::nullopt;
    case DeleteKey:
        if (extends)
            return Cut();
        return EraseTo(far ? WordBehind(caret_) : Behind(caret_));
    case InsertKey:
        if (far)
            Copy();
        return extends && !far ? PasteClipboard() : std::nullopt;
    default:
        return std::nullopt;
    }
}

// A selection is left at the end that the key points to.
void EditedText::MoveSideways(int towards, bool backward, bool extends)
{
    if (extends || SelLength() == 0)
        return MoveCaret(towards, extends);
    MoveCaret(backward ? SelStart() : SelStart() + SelLength(), false);
}

void EditedText::MoveByLines(bool up, bool extends)
{
    const int start = LineStart(caret_);
    const int end = LineEnd(caret_);
    if (up ? start == 0 : end == Length())
        return;
    const int column = column_.value_or(caret_ - start);
    const int next
        = up ? LineStart(start - static_cast<int>(LineBreak.size())) : end + static_cast<int>(LineBreak.size());
    MoveCaret(std::min(next + column, LineEnd(next)), extends);
    column_ = column;
}

std::optional<ChangeOrigin> EditedText::DoCharacter(char16_t character, i16 shift)
{
    switch (character) {
    case BackKey:
        return EraseTo(Before(caret_));
    case CtrlBack:
        return EraseTo(WordBefore(caret_));
    case ReturnKey:
        return isMultiLine_ && Insert(LineBreak) ? std::optional(ChangeOrigin::Key) : std::nullopt;
    case CtrlA:
        SelectAll();
        return std::nullopt;
    case CtrlC:
        Copy();
        return std::nullopt;
    case CtrlX:
        return Cut();
    case CtrlV:
        return PasteClipboard();
    default:
        break;
    }
    if (character < u' ' || HoldsCtrlAlone(shift) || !Insert(std::u16string_view(&character, 1)))
        return std::nullopt;
    return ChangeOrigin::Key;
}

// The selection, or what lies between the caret and a place.
std::optional<ChangeOrigin> EditedText::EraseTo(int place)
{
    if (isLocked_)
        return std::nullopt;
    if (SelLength() == 0)
        MoveCaret(place, true);
    if (SelLength() == 0)
        return std::nullopt;
    SetSelText({});
    return ChangeOrigin::Key;
}

// Units that fit in place of the selection.
int EditedText::Room() const
{
    if (isLocked_)
        return 0;
    if (maxLength_ <= 0)
        return std::numeric_limits<int>::max();
    return std::max(maxLength_ - (Length() - SelLength()), 0);
}

bool EditedText::Insert(std::u16string_view text)
{
    if (static_cast<int>(text.size()) > Room())
        return false;
    SetSelText(text);
    return true;
}

bool EditedText::Paste(std::u16string_view text)
{
    std::u16string lines
        = isMultiLine_ ? WithLineEnds(text) : std::u16string(text.substr(0, text.find_first_of(LineBreak)));
    const std::size_t room = Offset(Room());
    if (lines.size() > room) {
        const bool cutsPair = room > 0 && ArePair(lines[room - 1], lines[room]);
        lines.resize(cutsPair ? room - 1 : room);
    }
    if (lines.empty())
        return false;
    SetSelText(lines);
    return true;
}

void EditedText::Copy()
{
    if (SelLength() > 0 && !isSecret_)
        *clipboard_ = SelText();
}

std::optional<ChangeOrigin> EditedText::Cut()
{
    if (isLocked_ || isSecret_ || SelLength() == 0)
        return std::nullopt;
    Copy();
    SetSelText({});
    return ChangeOrigin::Foreign;
}

std::optional<ChangeOrigin> EditedText::PasteClipboard()
{
    // A copy: the clipboard may be written while the text is.
    const std::u16string text = *clipboard_;
    return Paste(text) ? std::optional(ChangeOrigin::Foreign) : std::nullopt;
}

} // namespace vornix
