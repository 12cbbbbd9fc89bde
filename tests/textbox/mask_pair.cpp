#include "textbox/mask_pair.h"

#include <utility>

namespace vornix {

namespace {

constexpr std::u16string_view MaskCharacters = u"009L?Aa&C<>\\()- .x\u00E9";
// The last one has two units, which come one after the other or alone.
constexpr std::u16string_view TextCharacters = u"0123456789 abYZ-+._*()\u00E9\u00C9\uAC00\U0001F600";
constexpr std::u16string_view TypedCharacters = u"0123456789 abYZ-+._*()\u00E9\u00C9\uAC00\t\U0001F600";
// What a person cannot type at once: a line end.
constexpr std::u16string_view ForeignCharacters = u"0123456789 abYZ-+._*()\u00E9\uAC00\U0001F600\b\t\r\n";

std::string Readable(std::u16string_view text)
{
    std::string result = "\"";
    for (const char16_t unit : text) {
        if (unit >= u' ' && unit < 127)
            result += static_cast<char>(unit);
        else
            result += "{" + std::to_string(static_cast<int>(unit)) + "}";
    }
    return result + "\"";
}

std::u16string ValuesOf(const MaskForm& form)
{
    std::u16string values;
    for (const i16 value : form.Values())
        values += static_cast<char16_t>(value);
    return values;
}

} // namespace

MaskPair::MaskPair(NumberSource pick)
    : pick_(std::move(pick))
{
    box_.Attach(engine_);
    box_.SetTellsWrites(pick_(2) == 0);
}

void MaskPair::Tell(const std::string& what, std::u16string_view text)
{
    story_ += what + " " + Readable(text) + "\n";
}

std::u16string MaskPair::RandomText(std::u16string_view characters, int longest)
{
    std::u16string text;
    for (int left = pick_(longest + 1); left > 0; --left)
        text += characters[static_cast<std::size_t>(pick_(static_cast<int>(characters.size())))];
    return text;
}

void MaskPair::Step()
{
    switch (pick_(16)) {
    case 0:
        return WriteSetting();
    case 1:
    case 2:
        return WriteMaskOrText();
    case 3:
        return ChangeFromOutside();
    case 4:
        return pick_(2) == 0 ? ChangeFromOutside() : EditByKey();
    case 5:
    case 6:
    case 7:
        return MoveOrSelect();
    default:
        return TypeOrErase();
    }
}

void MaskPair::WriteSetting()
{
    const bool value = pick_(2) == 0;
    const std::u16string character(1, value ? u'*' : u'_');
    switch (pick_(6)) {
    case 0:
        Tell("prompt", character);
        engine_.SetPromptChar(character);
        plain_.prompt = character.front();
        return;
    case 1:
        Tell("replacement", character);
        engine_.SetReplaceChar(character);
        plain_.replacement = character.front();
        return;
    case 2:
        Tell(value ? "several lines" : "one line");
        engine_.SetMultiLine(value);
        plain_.multiLine = value;
        return;
    case 3:
        Tell(value ? "numbers" : "no numbers");
        engine_.SetNumericOnly(value);
        return plain_.SetNumericOnly(value);
    default:
        Tell(value ? "with literals" : "without literals");
        engine_.SetIncludeLiteral(value);
        plain_.includeLiteral = value;
    }
}

void MaskPair::WriteMaskOrText()
{
    if (pick_(2) == 0) {
        const std::u16string mask = RandomText(MaskCharacters, 12);
        Tell("mask", mask);
        engine_.SetMask(mask);
        return plain_.SetMask(mask);
    }
    const std::u16string text = RandomText(TextCharacters, 14);
    Tell("text", text);
    engine_.SetText(text);
    plain_.SetText(text);
}

void MaskPair::ChangeFromOutside()
{
    const std::u16string text = RandomText(ForeignCharacters, 6);
    switch (pick_(5)) {
    case 0:
        Tell("paste", text);
        box_.Paste(text);
        break;
    case 1:
        Tell("paste by key", text);
        box_.PasteByKey(text);
        break;
    case 2:
        Tell("paste by another key", text);
        box_.PasteByInsert(text);
        break;
    case 3: {
        const int place = pick_(static_cast<int>(box_.Text().size()) + 1);
        Place(place, 0);
        Tell("drop", text);
        box_.Drop(text, place);
        break;
    }
    default:
        Tell("selected text", text);
        engine_.SetSelText(text);
        // Nothing in place of nothing is no change.
        if (text.empty() && plain_.length == 0)
            return;
    }
    plain_.Paste(text);
}

void MaskPair::EditByKey()
{
    switch (pick_(3)) {
    case 0:
        Tell("cut");
        box_.CutByKey();
        if (plain_.length > 0)
            plain_.Paste(u"");
        return;
    case 1:
        Tell("backspace a word");
        box_.BackspaceWord(pick_(2) == 0 ? Keys::Backspace : 127);
        return plain_.BackspaceWord();
    default: {
        const std::u16string text = RandomText(ForeignCharacters, 14);
        Tell("undo", text);
        box_.UndoByKey(text);
        plain_.Undo(text);
    }
    }
}

void MaskPair::MoveOrSelect()
{
    const int end = static_cast<int>(box_.Text().size());
    const int start = pick_(end + 1);
    if (pick_(3) == 0)
        return Place(start, pick_(end - start + 1));
    Place(start, 0);
    const int key = Keys::Left + pick_(4);
    // With a shift key no arrow leaves the text. One that stays there moves the caret: it is put back.
    const i16 shift = pick_(4) == 0 ? Shifts::Shift : Shifts::None;
    Tell("arrow " + std::to_string(key) + " with " + std::to_string(shift));
    plainArrows_ += shift == Shifts::None && plain_.Leaves(key);
    box_.Press(static_cast<i16>(key), shift);
    box_.Select(start, 0);
}

void MaskPair::Place(int start, int length)
{
    Tell("select " + std::to_string(start) + " " + std::to_string(length));
    box_.Select(start, length);
    plain_.start = start;
    plain_.length = length;
}

void MaskPair::TypeOrErase()
{
    const i16 shift = pick_(6) == 0 ? Shifts::Shift : Shifts::None;
    switch (pick_(8)) {
    case 0:
        Tell("delete with " + std::to_string(shift));
        box_.Press(Keys::Delete, shift);
        return plain_.Delete(shift == Shifts::Shift);
    case 1:
        Tell("backspace with " + std::to_string(shift));
        box_.Backspace(shift);
        return plain_.Backspace();
    case 2:
        Tell("escape with " + std::to_string(shift));
        box_.Type(Keys::Escape, shift);
        if (shift == Shifts::None)
            plain_.Escape();
        return;
    case 3:
        if (pick_(4) != 0)
            break;
        Tell("enter");
        box_.Type(Keys::Enter);
        return plain_.Enter();
    default:
        break;
    }
    const char16_t character
        = TypedCharacters[static_cast<std::size_t>(pick_(static_cast<int>(TypedCharacters.size())))];
    Tell("type", std::u16string_view(&character, 1));
    box_.Type(character, shift);
    plain_.Type(character);
}

std::string MaskPair::Difference() const
{
    const auto differs = [](const char* what, std::u16string_view one, std::u16string_view other) {
        return std::string(what) + ": " + Readable(one) + " against " + Readable(other);
    };
    if (box_.Text() != plain_.Shown())
        return differs("shown", box_.Text(), plain_.Shown());
    if (engine_.Text() != plain_.Text())
        return differs("text", engine_.Text(), plain_.Text());
    if (engine_.TextInput() != plain_.TextInput())
        return differs("input", engine_.TextInput(), plain_.TextInput());
    if (ValuesOf(engine_.Form()) != plain_.Values())
        return differs("values", ValuesOf(engine_.Form()), plain_.Values());
    if (box_.SelStart() != plain_.start || box_.SelLength() != plain_.length)
        return "caret: " + std::to_string(box_.SelStart()) + " against " + std::to_string(plain_.start);
    if (owner_.changes != plain_.Changes())
        return "changes: " + std::to_string(owner_.changes) + " against " + std::to_string(plain_.Changes());
    if (owner_.arrows != plainArrows_)
        return "arrows: " + std::to_string(owner_.arrows) + " against " + std::to_string(plainArrows_);
    return {};
}

} // namespace vornix
