#include "textbox/simulated_box.h"

#include <algorithm>

namespace vornix {

namespace {

constexpr i16 KeyV = 86;
constexpr i16 KeyX = 88;
constexpr char16_t CtrlV = 22;
constexpr char16_t CtrlX = 24;

} // namespace

class SimulatedBox::EngineListener final : public EditBoxListener {
public:
    explicit EngineListener(MaskEngine& engine)
        : engine_(engine)
    {
    }
    void KeyDown(i16& KeyCode, i16& Shift) override { engine_.KeyDown(KeyCode, Shift); }
    void KeyPress(i16& KeyAscii, i16 Shift) override { engine_.KeyPress(KeyAscii, Shift); }
    void KeyUp(i16&, i16&) override { }
    void TextChanged(ChangeOrigin origin) override { engine_.BoxChanged(origin); }
    void MouseDown(i16, i16, float, float) override { }
    void MouseMove(i16, i16, float, float) override { }
    void MouseUp(i16, i16, float, float) override { }
    void Click() override { }
    void DblClick() override { }

private:
    MaskEngine& engine_;
};

SimulatedBox::SimulatedBox() = default;
SimulatedBox::~SimulatedBox() = default;

void SimulatedBox::Attach(MaskEngine& engine)
{
    engine_ = std::make_unique<EngineListener>(engine);
    Listen(engine_.get());
}

void SimulatedBox::SetText(std::u16string_view text)
{
    const bool isOther = text_ != text;
    text_ = text;
    Select(0, 0);
    if (isOther && tellsWrites_ && listener_)
        listener_->TextChanged(ChangeOrigin::Key);
}

void SimulatedBox::SetSelStart(int start)
{
    Select(start, 0);
}

void SimulatedBox::SetSelLength(int length)
{
    Select(start_, length);
}

void SimulatedBox::SetSelText(std::u16string_view text)
{
    text_.replace(Offset(start_), Offset(length_), text);
    Select(start_ + static_cast<int>(text.size()), 0);
    if (tellsWrites_ && listener_)
        listener_->TextChanged(ChangeOrigin::Key);
}

void SimulatedBox::Select(int start, int length)
{
    const int end = static_cast<int>(text_.size());
    start_ = std::clamp(start, 0, end);
    length_ = std::clamp(length, 0, end - start_);
    anchor_ = start_;
}

i16 SimulatedBox::Press(i16 key, i16 shift)
{
    i16 left = key;
    i16 held = shift;
    listener_->KeyDown(left, held);
    if (left != 0)
        DoNatively(left, shift);
    return left;
}

i16 SimulatedBox::Type(char16_t character, i16 shift)
{
    // Letters and digits have their capital's code as a key; the others do not matter here.
    i16 key = static_cast<i16>(character);
    if (character >= u'a' && character <= u'z')
        key = static_cast<i16>(character - 32);
    else if (character >= u'!' && character <= u'/')
        key = 190;
    i16 held = shift;
    listener_->KeyDown(key, held);
    // A key that was taken types nothing.
    if (key == 0)
        return 0;
    auto code = static_cast<i16>(character);
    listener_->KeyPress(code, shift);
    if (code != 0)
        InsertNatively(static_cast<char16_t>(code));
    return code;
}

void SimulatedBox::TypeAll(std::u16string_view text)
{
    for (const char16_t character : text)
        Type(character);
}

void SimulatedBox::Paste(std::u16string_view text)
{
    Replace(start_, length_, text, ChangeOrigin::Foreign);
}

void SimulatedBox::PasteByKey(std::u16string_view text)
{
    if (PressWithCtrl(KeyV, CtrlV))
        Paste(text);
}

void SimulatedBox::PasteByInsert(std::u16string_view text)
{
    // The box does not know a paste by this key from a key.
    if (Press(Keys::Insert, Shifts::Shift) == Keys::Insert)
        Replace(start_, length_, text, ChangeOrigin::Key);
}

void SimulatedBox::Drop(std::u16string_view text, int place)
{
    Select(place, 0);
    Paste(text);
}

void SimulatedBox::CutByKey()
{
    if (PressWithCtrl(KeyX, CtrlX) && length_ > 0)
        Paste({});
}

void SimulatedBox::UndoByKey(std::u16string_view text)
{
    if (Press(Keys::Backspace, Shifts::Alt) == Keys::Backspace)
        Replace(0, static_cast<int>(text_.size()), text, ChangeOrigin::Key);
}

void SimulatedBox::BackspaceWord(char16_t code)
{
    if (!PressWithCtrl(Keys::Backspace, code))
        return;
    const std::u16string_view before = std::u16string_view(text_).substr(0, Offset(start_));
    const std::size_t blank = before.find_last_of(u' ');
    const int first = blank == std::u16string_view::npos ? 0 : static_cast<int>(blank);
    if (length_ > 0)
        Replace(start_, length_, {}, ChangeOrigin::Key);
    else if (start_ > 0)
        Replace(first, start_ - first, {}, ChangeOrigin::Key);
}

// Whether the key is left to the box.
bool SimulatedBox::PressWithCtrl(int key, char16_t character)
{
    auto left = static_cast<i16>(key);
    i16 shift = Shifts::Ctrl;
    listener_->KeyDown(left, shift);
    if (left == 0)
        return false;
    auto code = static_cast<i16>(character);
    listener_->KeyPress(code, shift);
    return code == static_cast<i16>(character);
}

bool SimulatedBox::IsLineEndAt(int place) const
{
    return place >= 0 && std::u16string_view(text_).substr(std::min(Offset(place), text_.size())).starts_with(u"\r\n");
}

void SimulatedBox::Replace(int start, int length, std::u16string_view text, ChangeOrigin origin)
{
    text_.replace(Offset(start), Offset(length), text);
    Select(start + static_cast<int>(text.size()), 0);
    listener_->TextChanged(origin);
}

void SimulatedBox::DoNatively(i16 key, i16 shift)
{
    const bool extends = (shift & Shifts::Shift) != 0;
    const int end = static_cast<int>(text_.size());
    // The end of the selection that moves.
    const int caret = anchor_ == start_ ? start_ + length_ : start_;
    switch (key) {
    case Keys::Delete:
        if (length_ > 0)
            Replace(start_, length_, {}, ChangeOrigin::Key);
        else if (start_ < end)
            Replace(start_, IsLineEndAt(start_) ? 2 : 1, {}, ChangeOrigin::Key);
        return;
    case Keys::Left:
        return MoveTo(caret - (IsLineEndAt(caret - 2) ? 2 : 1), extends);
    case Keys::Right:
        return MoveTo(caret + (IsLineEndAt(caret) ? 2 : 1), extends);
    case Home:
        return MoveTo(0, extends);
    case End:
        return MoveTo(end, extends);
    default:
        return;
    }
}

void SimulatedBox::InsertNatively(char16_t character)
{
    if (character == Keys::Enter)
        return Replace(start_, length_, u"\r\n", ChangeOrigin::Key);
    if (character != Keys::Backspace) {
        if (character >= u' ' && character != 127)
            Replace(start_, length_, std::u16string(1, character), ChangeOrigin::Key);
        return;
    }
    if (length_ > 0)
        return Replace(start_, length_, {}, ChangeOrigin::Key);
    const int units = IsLineEndAt(start_ - 2) ? 2 : 1;
    if (start_ > 0)
        Replace(start_ - units, units, {}, ChangeOrigin::Key);
}

void SimulatedBox::MoveTo(int place, bool extends)
{
    place = std::clamp(place, 0, static_cast<int>(text_.size()));
    const int anchor = extends ? anchor_ : place;
    Select(std::min(anchor, place), std::abs(anchor - place));
    anchor_ = anchor;
}

} // namespace vornix
