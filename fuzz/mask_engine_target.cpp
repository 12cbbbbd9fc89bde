// Types, pastes, erases and moves at random under random masks, with a host that steps in: the form keeps its length and
// its literals, and the caret stays in the text.
#include "fuzz_input.h"
#include "textbox/simulated_box.h"

#include <algorithm>

using namespace vornix;

namespace {

class Machine : private MaskEngineOwner {
public:
    explicit Machine(fuzz::FuzzInput& input)
        : input_(input)
    {
        box_.Attach(engine_);
        box_.SetTellsWrites(input_.Bool());
    }

    void Step()
    {
        switch (input_.Byte() % 8) {
        case 0:
            return WriteMember();
        case 1:
            return ChangeFromOutside();
        case 2:
            return Press();
        case 3:
            return box_.Select(input_.Between(-1, 20), input_.Between(-1, 20));
        case 4:
            box_.Press(Keys::Delete, Shift());
            return;
        case 5:
            return box_.Backspace(Shift());
        default:
            box_.Type(AnyCharacter(), Shift());
        }
    }

    void Check() const
    {
        const std::u16string shown = box_.Text();
        const int end = static_cast<int>(shown.size());
        fuzz::Require(box_.SelStart() >= 0 && box_.SelStart() <= end, "the caret stays in the text");
        fuzz::Require(
            box_.SelLength() >= 0 && box_.SelStart() + box_.SelLength() <= end, "the selection stays in the text");
        const MaskForm& form = engine_.Form();
        fuzz::Require(
            form.MaskDisplay().size() == static_cast<std::size_t>(form.PositionCount()), "each position has a blank");
        if (engine_.Mask().empty() || engine_.NumericOnly()) {
            fuzz::Require(engine_.Text() == shown && engine_.TextInput() == shown, "without a form the box is read");
            return;
        }
        if (isFormComplete_)
            CheckForm(form, shown);
    }

private:
    void CheckForm(const MaskForm& form, const std::u16string& shown) const
    {
        fuzz::Require(shown.size() == form.MaskDisplay().size(), "the form keeps its length");
        std::size_t editable = 0;
        for (int position = 0; position < form.PositionCount(); ++position) {
            const auto literal = static_cast<char16_t>(form.Position(position).Literal);
            if (literal == 0)
                ++editable;
            else
                fuzz::Require(shown[static_cast<std::size_t>(position)] == literal, "literals stay in place");
            fuzz::Require(literal != 0 || !IsSurrogate(shown[static_cast<std::size_t>(position)]),
                "half of a character has no place");
        }
        fuzz::Require(engine_.TextInput().size() <= editable, "no more is entered than there are places");
        fuzz::Require(engine_.Text().size() == (engine_.IncludeLiteral() ? shown.size() : editable),
            "each place gives one character");
    }

    char16_t AnyCharacter()
    {
        constexpr std::u16string_view Usual = u"0123456789 abzABZ-+._()\x08\x1B\x09\r";
        const u8 kind = input_.Byte();
        if (kind < 232)
            return Usual[kind % Usual.size()];
        // Halves of characters come alone too.
        return kind < 240 ? static_cast<char16_t>(0xD800 + input_.Byte() * 8) : static_cast<char16_t>(input_.Word());
    }

    // Mostly none.
    i16 Shift()
    {
        const u8 keys = input_.Byte();
        return keys < 240 ? i16 { 0 } : static_cast<i16>(keys % 8);
    }

    std::u16string AnyMask()
    {
        constexpr std::u16string_view Signs = u"09L?Aa&C<>\\()-/ .x";
        std::u16string mask;
        for (int left = input_.Between(0, 20); left > 0; --left) {
            const u8 kind = input_.Byte();
            mask += kind < 245 ? Signs[kind % Signs.size()] : static_cast<char16_t>(input_.Word());
        }
        return mask;
    }

    void WriteMember()
    {
        switch (input_.Byte() % 10) {
        case 0:
            return engine_.SetPromptChar(input_.Text(2));
        case 1:
            return engine_.SetReplaceChar(input_.Text(2));
        case 2:
            return engine_.SetIncludeLiteral(input_.Bool());
        case 3:
            engine_.SetNumericOnly(input_.Bool());
            // The box is empty, whatever form there was.
            isFormComplete_ = false;
            return;
        case 4:
            return engine_.SetMultiLine(input_.Bool());
        case 5:
            return engine_.SetSelText(input_.Text(24));
        case 6:
        case 7:
            engine_.SetText(input_.Text(24));
            isFormComplete_ = true;
            return;
        default:
            engine_.SetMask(AnyMask());
            isFormComplete_ |= !engine_.Mask().empty();
        }
    }

    void ChangeFromOutside()
    {
        const std::u16string text = input_.Text(24);
        switch (input_.Byte() % 8) {
        case 0:
        case 1:
            return box_.Paste(text);
        case 2:
            return box_.PasteByKey(text);
        case 3:
            return box_.PasteByInsert(text);
        case 4:
            return box_.Drop(text, input_.Between(0, 20));
        case 5:
            return box_.UndoByKey(text);
        case 6:
            return box_.BackspaceWord(input_.Bool() ? Keys::Backspace : 127);
        default:
            return box_.CutByKey();
        }
    }

    void Press()
    {
        constexpr i16 Keys[]
            = { Keys::Left, Keys::Right, Keys::Up, Keys::Down, SimulatedBox::Home, SimulatedBox::End, Keys::Escape };
        const i16 key = Keys[input_.Byte() % std::size(Keys)];
        box_.Press(key, Shift());
    }

    // The host: mostly it looks on.
    void KeyDown(i16& KeyCode, i16& /*Shift*/) override
    {
        if (input_.Byte() > 250)
            KeyCode = input_.AnyI16();
    }
    void KeyPress(i16& KeyAscii) override
    {
        if (input_.Byte() > 250)
            KeyAscii = input_.AnyI16();
        // A line end goes into the box as it is, behind or inside the form.
        if (KeyAscii == Keys::Enter && engine_.MultiLine())
            isFormComplete_ = false;
    }
    void KeyArrowMove(i16& KeyCode) override { KeyCode = 0; }
    void Change() override
    {
        constexpr int MostNested = 3;
        if (input_.Byte() < 245 || nested_ == MostNested)
            return;
        ++nested_;
        WriteMember();
        --nested_;
    }
    void FlattenBorder() override { }
    void SizeToText() override { }
    const Locale& GetLocale() const override { return BuiltinLocale(); }

    fuzz::FuzzInput& input_;
    SimulatedBox box_;
    MaskEngine engine_ { box_, *this };
    bool isFormComplete_ = true;
    int nested_ = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int MostSteps = 500;
    fuzz::FuzzInput input(data, size);
    Machine machine(input);
    for (int step = 0; step < MostSteps && !input.IsEmpty(); ++step) {
        machine.Step();
        machine.Check();
    }
    return 0;
}
