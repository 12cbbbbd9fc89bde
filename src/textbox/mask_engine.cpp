#include "textbox/mask_engine.h"

#include "automation/key_codes.h"
#include "automation/text_conversions.h"

#include <algorithm>
#include <utility>

namespace vornix {

namespace {

constexpr std::u16string_view LineEnd = u"\r\n";

constexpr char16_t Rubout = 127;

bool HoldsCtrl(int shift)
{
    return (shift & Shifts::Ctrl) != 0;
}

bool HoldsAlt(int shift)
{
    return (shift & Shifts::Alt) != 0;
}

bool IsEraseSign(int code)
{
    return code == Keys::Backspace || code == Rubout;
}

// Whether the key asks the box to change its text by other means than typing: pasting, cutting, undoing, erasing words.
bool IsForeignKey(int key, int shift)
{
    if (HoldsCtrl(shift))
        return true;
    if ((shift & Shifts::Shift) != 0 && key == Keys::Insert)
        return true;
    return HoldsAlt(shift) && key == Keys::Backspace;
}

// Ctrl and Alt together type the third character of a key. The codes below the blank are those of Ctrl with a letter.
bool IsForeignCharacter(char16_t character, int shift)
{
    if (IsEraseSign(character))
        return HoldsCtrl(shift) || HoldsAlt(shift);
    return HoldsCtrl(shift) && (character < u' ' || !HoldsAlt(shift));
}

// Those of Tab and Escape among them.
bool IsControlSign(char16_t character)
{
    return (character < u' ' && character != Keys::Backspace) || character == Rubout;
}

} // namespace

// While it lives, what the box tells of its changes is the engine's own doing.
class MaskEngine::OwnWrite {
public:
    explicit OwnWrite(MaskEngine& engine)
        : engine_(engine)
        , before_(std::exchange(engine.internalChange_, true))
    {
    }
    ~OwnWrite() { engine_.internalChange_ = before_; }
    OwnWrite(const OwnWrite&) = delete;
    OwnWrite& operator=(const OwnWrite&) = delete;

private:
    MaskEngine& engine_;
    bool before_;
};

MaskEngine::MaskEngine(EditBox& box, MaskEngineOwner& owner)
    : box_(box)
    , owner_(owner)
{
}

void MaskEngine::Initialize()
{
    form_.Reset();
    mask_.clear();
    promptChar_ = u'_';
    replaceChar_ = 0;
    includeLiteral_ = numericOnly_ = multiLine_ = false;
    committedText_.clear();
    isCommittedForm_ = false;
    committedValues_.reset();
    previousText_.reset();
    keyHandled_ = false;
    WriteSilently({});
}

void MaskEngine::SetMask(std::u16string_view Value)
{
    mask_ = Value;
    if (mask_.empty())
        return;
    form_.Parse(mask_, promptChar_);
    committedValues_.reset();
    WriteSilently(form_.MaskDisplay());
    ForgetChangeBefore();
    numericOnly_ = false;
}

void MaskEngine::SetPromptChar(std::u16string_view Value)
{
    if (!Value.empty() && !IsSurrogate(Value.front()))
        promptChar_ = Value.front();
}

void MaskEngine::SetReplaceChar(std::u16string_view Value)
{
    if (!Value.empty() && !IsSurrogate(Value.front()))
        replaceChar_ = Value.front();
}

void MaskEngine::SetNumericOnly(bool Value)
{
    numericOnly_ = Value;
    if (Value) {
        form_.Reset();
        committedValues_.reset();
        multiLine_ = false;
    }
    WriteSilently({});
}

std::u16string MaskEngine::Text() const
{
    if (!IsMaskInForce())
        return box_.Text();
    return form_.Text(box_.Text(), includeLiteral_, promptChar_, replaceChar_);
}

void MaskEngine::SetText(std::u16string_view Value)
{
    committedText_ = Apply(Value);
    ForgetChangeBefore();
    isCommittedForm_ = IsMaskInForce();
    committedValues_.reset();
    if (isCommittedForm_)
        committedValues_ = form_.Values();
}

std::u16string MaskEngine::TextInput() const
{
    return IsMaskInForce() ? form_.TextInput(box_.Text(), promptChar_) : box_.Text();
}

void MaskEngine::SetSelText(std::u16string_view Value)
{
    if (Value.empty() && box_.SelLength() == 0)
        return;
    {
        const OwnWrite write(*this);
        box_.SetSelText(Value);
    }
    TextChanged(true);
}

// What changes a text that was assigned is told even where it gives what was told last, before the assignment.
void MaskEngine::ForgetChangeBefore()
{
    if (previousText_ != box_.Text())
        previousText_.reset();
}

// Shows a whole text in the form, and returns what is shown.
std::u16string MaskEngine::Apply(std::u16string_view text)
{
    std::u16string shown(text);
    const int caret = box_.SelStart();
    owner_.FlattenBorder();
    if (IsMaskInForce())
        shown = form_.Store(shown, includeLiteral_, promptChar_);
    WriteWithCaret(shown, caret);
    return shown;
}

// A form has its literals in place. It is not stored once more unless its positions are gone.
void MaskEngine::RestoreCommitted()
{
    const int caret = box_.SelStart();
    owner_.FlattenBorder();
    std::u16string shown = committedText_;
    if (IsMaskInForce() && committedValues_) {
        form_.SetValues(*committedValues_);
    } else {
        form_.ClearValues();
        if (IsMaskInForce())
            shown = form_.Store(shown, includeLiteral_ || isCommittedForm_, promptChar_);
    }
    WriteWithCaret(shown, caret);
}

void MaskEngine::WriteSilently(std::u16string_view text)
{
    const OwnWrite write(*this);
    box_.SetText(text);
}

void MaskEngine::WriteWithCaret(std::u16string_view text, int caret)
{
    WriteSilently(text);
    box_.SetSelStart(caret);
}

void MaskEngine::WriteAndTell(std::u16string_view text, int caret)
{
    WriteSilently(text);
    TextChanged(false);
    box_.SetSelStart(caret);
}

void MaskEngine::BoxChanged(ChangeOrigin origin)
{
    if (!internalChange_)
        TextChanged(origin == ChangeOrigin::Foreign || !keyHandled_);
}

void MaskEngine::TextChanged(bool isForeign)
{
    if (IsMaskInForce()) {
        if (isForeign)
            Apply(box_.Text());
        std::u16string text = box_.Text();
        if (text != previousText_) {
            previousText_ = std::move(text);
            owner_.Change();
        }
        keyHandled_ = false;
    } else {
        keyHandled_ = false;
        owner_.Change();
    }
    owner_.SizeToText();
}

void MaskEngine::KeyDown(i16& KeyCode, i16 Shift)
{
    owner_.KeyDown(KeyCode, Shift);
    if (KeyCode == Keys::Delete && IsMaskInForce() && EraseForward())
        KeyCode = 0;
    if (Shift == Shifts::None && box_.SelLength() == 0)
        PlainKeyDown(KeyCode);
    keyHandled_ = !IsForeignKey(KeyCode, Shift);
}

void MaskEngine::PlainKeyDown(i16& KeyCode)
{
    if (KeyCode == Keys::Escape) {
        RestoreCommitted();
        owner_.SizeToText();
    } else if (LeavesText(KeyCode)) {
        owner_.KeyArrowMove(KeyCode);
    }
}

bool MaskEngine::LeavesText(i16 KeyCode) const
{
    const std::u16string text = box_.Text();
    const auto caret = static_cast<std::size_t>(box_.SelStart());
    switch (KeyCode) {
    case Keys::Right:
        return caret >= text.size();
    case Keys::Left:
        return caret == 0;
    case Keys::Down:
        return text.find(LineEnd, caret) == std::u16string::npos;
    case Keys::Up:
        // One unit further than the caret, so that a caret inside a line end counts as behind it.
        return std::u16string_view(text).substr(0, caret + 1).find(LineEnd) == std::u16string_view::npos;
    default:
        return false;
    }
}

void MaskEngine::KeyPress(i16& KeyAscii, i16 Shift)
{
    owner_.KeyPress(KeyAscii);
    if (KeyAscii == Keys::Enter) {
        if (!multiLine_)
            KeyAscii = 0;
        return;
    }
    const bool isForeign = IsForeignCharacter(static_cast<char16_t>(KeyAscii), Shift);
    if (KeyAscii != 0 && !isForeign && (numericOnly_ || IsMaskInForce()))
        FilterCharacter(KeyAscii);
    keyHandled_ = !isForeign;
}

void MaskEngine::FilterCharacter(i16& KeyAscii)
{
    const auto character = static_cast<char16_t>(KeyAscii);
    bool isTaken = true;
    if (numericOnly_)
        isTaken = IsControlSign(character) || !IsNumericWith(character);
    else if (character == Keys::Backspace)
        isTaken = EraseBackward();
    else if (!IsControlSign(character))
        TypeCharacter(character);
    if (isTaken)
        KeyAscii = 0;
}

// The selection, which the character would replace, is not looked at, and Backspace is a character like all others: it
// makes no number.
bool MaskEngine::IsNumericWith(char16_t character) const
{
    std::u16string text = box_.Text();
    text.insert(std::min(static_cast<std::size_t>(box_.SelStart()), text.size()), 1, character);
    return IsNumeric(text, owner_.GetLocale());
}

void MaskEngine::TypeCharacter(char16_t character)
{
    const int place = box_.SelStart();
    if (!form_.IsEditable(place) || !form_.Accepts(place, character))
        return;
    character = InCaseOf(place, character);
    form_.SetValue(place, character);
    std::u16string text = ShownForm();
    text[static_cast<std::size_t>(place)] = character;
    // The places behind the first show as empty; their values stay.
    if (box_.SelLength() > 1)
        text = form_.Blanked(text, place + 1, box_.SelLength() - 1);
    WriteSilently(text);
    TextChanged(false);
    box_.SetSelStart(form_.NextEditable(place + 1));
}

char16_t MaskEngine::InCaseOf(int position, char16_t character) const
{
    if (form_.Position(position).ToLower)
        return owner_.GetLocale().ToLower(character);
    if (form_.Position(position).ToUpper)
        return owner_.GetLocale().ToUpper(character);
    return character;
}

// Each returns whether the key is done with; otherwise it is the box's.
bool MaskEngine::EraseForward()
{
    if (EraseSelection())
        return true;
    const int place = box_.SelStart();
    if (place >= form_.PositionCount())
        return false;
    ErasePosition(place, place + 1);
    return true;
}

bool MaskEngine::EraseBackward()
{
    if (EraseSelection())
        return true;
    const int place = box_.SelStart();
    // Behind the form there is nothing to fall back to.
    if (place < 1 || place > form_.PositionCount())
        return false;
    ErasePosition(place - 1, place - 1);
    return true;
}

bool MaskEngine::EraseSelection()
{
    const int place = box_.SelStart();
    const int length = box_.SelLength();
    if (length == 0)
        return false;
    form_.ClearValues(place, length);
    WriteAndTell(form_.Blanked(ShownForm(), place, length), place);
    return true;
}

// Over literals too, which stay as they are: so the caret can walk past them.
void MaskEngine::ErasePosition(int position, int caret)
{
    form_.ClearValues(position, 1);
    WriteAndTell(form_.Blanked(ShownForm(), position, 1), caret);
}

} // namespace vornix
