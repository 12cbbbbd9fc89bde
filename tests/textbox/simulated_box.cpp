#include "textbox/simulated_box.h"

namespace vornix {

namespace {

constexpr i16 KeyV = 86;
constexpr i16 KeyX = 88;
constexpr char16_t CtrlV = 22;
constexpr char16_t CtrlX = 24;
constexpr char16_t CtrlBackspace = 127;

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

// The engine keeps Return from a box of one line.
SimulatedBox::SimulatedBox()
{
    text_.SetMultiLine(true);
}

SimulatedBox::~SimulatedBox() = default;

void SimulatedBox::Attach(MaskEngine& engine)
{
    engine_ = std::make_unique<EngineListener>(engine);
    Listen(engine_.get());
}

void SimulatedBox::SetText(std::u16string_view text)
{
    const bool isOther = text_.Text() != text;
    text_.SetText(text);
    if (isOther && tellsWrites_)
        TellChange(ChangeOrigin::Key);
}

void SimulatedBox::SetSelText(std::u16string_view text)
{
    text_.SetSelText(text);
    if (tellsWrites_)
        TellChange(ChangeOrigin::Key);
}

void SimulatedBox::TellChange(std::optional<ChangeOrigin> origin)
{
    if (origin && listener_)
        listener_->TextChanged(*origin);
}

void SimulatedBox::Select(int start, int length)
{
    text_.SetSelStart(start);
    text_.SetSelLength(length);
}

i16 SimulatedBox::Press(i16 key, i16 shift)
{
    i16 left = key;
    i16 held = shift;
    listener_->KeyDown(left, held);
    if (left != 0)
        TellChange(text_.DoKey(left, shift));
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
        TellChange(text_.DoCharacter(static_cast<char16_t>(code), shift));
    return code;
}

void SimulatedBox::TypeAll(std::u16string_view text)
{
    for (const char16_t character : text)
        Type(character);
}

void SimulatedBox::Paste(std::u16string_view text)
{
    Replace(SelStart(), SelLength(), text, ChangeOrigin::Foreign);
}

void SimulatedBox::PasteByKey(std::u16string_view text)
{
    if (PressWithCtrl(KeyV, CtrlV))
        Paste(text);
}

void SimulatedBox::PasteByInsert(std::u16string_view text)
{
    // The box does not know a paste by this key from a key.
    i16 key = Keys::Insert;
    i16 shift = Shifts::Shift;
    listener_->KeyDown(key, shift);
    if (key == Keys::Insert)
        Replace(SelStart(), SelLength(), text, ChangeOrigin::Key);
}

void SimulatedBox::Drop(std::u16string_view text, int place)
{
    Select(place, 0);
    Paste(text);
}

void SimulatedBox::CutByKey()
{
    if (PressWithCtrl(KeyX, CtrlX) && SelLength() > 0)
        Paste({});
}

void SimulatedBox::UndoByKey(std::u16string_view text)
{
    if (Press(Keys::Backspace, Shifts::Alt) == Keys::Backspace)
        Replace(0, static_cast<int>(text_.Text().size()), text, ChangeOrigin::Key);
}

void SimulatedBox::BackspaceWord(char16_t code)
{
    if (PressWithCtrl(Keys::Backspace, code))
        TellChange(text_.DoCharacter(CtrlBackspace, Shifts::Ctrl));
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

void SimulatedBox::Replace(int start, int length, std::u16string_view text, ChangeOrigin origin)
{
    Select(start, length);
    text_.SetSelText(text);
    TellChange(origin);
}

} // namespace vornix
