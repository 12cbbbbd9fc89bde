#include "virtual_keys.h"

#include "vornix/automation.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace vornix {

namespace {

constexpr i16 FirstNumpadDigit = 96;
constexpr i16 FirstNumpadSign = 106;
constexpr int FunctionKeys = 24;
constexpr i16 SentCharacter = 231;
constexpr i16 LineFeed = 10;
constexpr i16 Delete = 127;
constexpr char16_t LastAscii = 127;

struct NamedKey {
    std::string_view name;
    i16 code;
};

// The first name of a code is the one that is shown. Letters, digits, signs, F1 to F24 and Numpad0 to Numpad9 apart.
constexpr NamedKey NamedKeys[] = {
    { "Back", BackKey },
    { "Backspace", BackKey },
    { "Tab", TabKey },
    { "Clear", 12 },
    { "Return", ReturnKey },
    { "Enter", ReturnKey },
    { "Shift", ShiftKey },
    { "Control", CtrlKey },
    { "Ctrl", CtrlKey },
    { "Alt", AltKey },
    { "Menu", AltKey },
    { "Pause", 19 },
    { "CapsLock", 20 },
    { "Capital", 20 },
    { "Escape", EscapeKey },
    { "Esc", EscapeKey },
    { "Space", SpaceKey },
    { "PageUp", PageUpKey },
    { "PgUp", PageUpKey },
    { "Prior", PageUpKey },
    { "PageDown", PageDownKey },
    { "PgDn", PageDownKey },
    { "Next", PageDownKey },
    { "End", EndKey },
    { "Home", HomeKey },
    { "Left", LeftKey },
    { "Up", UpKey },
    { "Right", RightKey },
    { "Down", DownKey },
    { "PrintScreen", 44 },
    { "Snapshot", 44 },
    { "Insert", InsertKey },
    { "Ins", InsertKey },
    { "Delete", DeleteKey },
    { "Del", DeleteKey },
    { "Help", 47 },
    { "Apps", 93 },
    { "NumpadMultiply", 106 },
    { "Multiply", 106 },
    { "NumpadAdd", 107 },
    { "Add", 107 },
    { "NumpadSeparator", 108 },
    { "Separator", 108 },
    { "NumpadSubtract", 109 },
    { "Subtract", 109 },
    { "NumpadDecimal", 110 },
    { "Decimal", 110 },
    { "NumpadDivide", 111 },
    { "Divide", 111 },
    { "NumLock", 144 },
    { "ScrollLock", 145 },
};

struct SignKey {
    i16 code;
    char plain;
    char shifted;
};

constexpr SignKey SignKeys[] = {
    { '0', '0', ')' },
    { '1', '1', '!' },
    { '2', '2', '@' },
    { '3', '3', '#' },
    { '4', '4', '$' },
    { '5', '5', '%' },
    { '6', '6', '^' },
    { '7', '7', '&' },
    { '8', '8', '*' },
    { '9', '9', '(' },
    { 186, ';', ':' },
    { 187, '=', '+' },
    { 188, ',', '<' },
    { 189, '-', '_' },
    { 190, '.', '>' },
    { 191, '/', '?' },
    { 192, '`', '~' },
    { 219, '[', '{' },
    { 220, '\\', '|' },
    { 221, ']', '}' },
    { 222, '\'', '"' },
};

// Of the number pad, from 106 on; the separator gives none on this keyboard.
constexpr char NumpadSigns[] = { '*', '+', 0, '-', '.', '/' };

bool IsLetter(int code)
{
    return code >= 'A' && code <= 'Z';
}

char Lower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

char Upper(char character)
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

bool SameName(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, Lower, Lower);
}

// The number behind a prefix, from first to last, without leading zeros; none for other names.
std::optional<int> NumberedName(std::string_view name, std::string_view prefix, int first, int last)
{
    for (int number = first; number <= last; ++number) {
        if (SameName(name, std::string(prefix) + std::to_string(number)))
            return number;
    }
    return std::nullopt;
}

// The key that gives a sign; capitals and upper signs with Shift.
std::optional<KeyChord> ChordOfSign(char sign)
{
    if (IsLetter(sign))
        return KeyChord { sign, ShiftDown };
    if (IsLetter(Upper(sign)))
        return KeyChord { Upper(sign), 0 };
    if (sign == SpaceKey)
        return KeyChord { SpaceKey, 0 };
    for (const SignKey& key : SignKeys) {
        if (sign == key.plain)
            return KeyChord { key.code, 0 };
        if (sign == key.shifted)
            return KeyChord { key.code, ShiftDown };
    }
    return std::nullopt;
}

std::string NamesInOrder()
{
    std::string names;
    i16 previous = 0;
    for (const NamedKey& key : NamedKeys) {
        if (key.code != previous)
            names.append(key.name).append(", ");
        previous = key.code;
    }
    return names + "F1 to F24, Numpad0 to Numpad9, and every letter, digit and sign of the keyboard";
}

std::optional<i16> PlainCharacter(i16 code, bool shifted)
{
    if (IsLetter(code))
        return static_cast<i16>(shifted ? code : code - 'A' + 'a');
    if (code == BackKey || code == TabKey || code == ReturnKey || code == EscapeKey || code == SpaceKey)
        return code;
    if (code >= FirstNumpadDigit && code < FirstNumpadDigit + 10)
        return static_cast<i16>(code - FirstNumpadDigit + '0');
    if (code >= FirstNumpadSign && code < F1Key) {
        const char sign = NumpadSigns[code - FirstNumpadSign];
        return sign ? std::optional<i16>(sign) : std::nullopt;
    }
    const auto* const found = std::ranges::find(SignKeys, code, &SignKey::code);
    if (found == std::end(SignKeys))
        return std::nullopt;
    return shifted ? found->shifted : found->plain;
}

std::optional<i16> ControlCharacter(i16 code)
{
    if (IsLetter(code))
        return static_cast<i16>(code - 'A' + 1);
    if (code == BackKey)
        return Delete;
    if (code == ReturnKey)
        return LineFeed;
    return code == EscapeKey || code == SpaceKey ? std::optional(code) : std::nullopt;
}

} // namespace

KeyStroke StrokeOf(i16 code, i16 shift)
{
    if (shift & AltDown)
        return { code, shift, std::nullopt };
    return { code, shift, shift & CtrlDown ? ControlCharacter(code) : PlainCharacter(code, shift & ShiftDown) };
}

KeyStroke StrokeFor(char16_t character)
{
    if (character == LineFeed)
        return StrokeOf(ReturnKey, 0);
    for (const i16 code : { BackKey, TabKey, ReturnKey, EscapeKey }) {
        if (character == code)
            return StrokeOf(code, 0);
    }
    if (character >= 1 && character <= 26)
        return StrokeOf(static_cast<i16>(character - 1 + 'A'), CtrlDown);
    if (character <= LastAscii) {
        if (const auto chord = ChordOfSign(static_cast<char>(character)))
            return StrokeOf(chord->code, chord->shift);
    }
    return { SentCharacter, 0, static_cast<i16>(character) };
}

std::vector<KeyStroke> StrokesFor(std::u16string_view text)
{
    std::vector<KeyStroke> strokes;
    strokes.reserve(text.size());
    char16_t before = 0;
    for (const char16_t character : text) {
        if (before != u'\r' || character != u'\n')
            strokes.push_back(StrokeFor(character));
        before = character;
    }
    return strokes;
}

void CheckKey(i16 code)
{
    if (code < 1 || code > LastKeyCode)
        throw AutomationError(ErrorNumber::InvalidArgument, "A key code is 1 to 254");
}

void CheckShift(i16 shift)
{
    if (shift < 0 || shift > (ShiftDown | CtrlDown | AltDown))
        throw AutomationError(ErrorNumber::InvalidArgument, "Keys held are the sum of 1 (Shift), 2 (Ctrl) and 4 (Alt)");
}

i16 CodeOfKey(std::string_view name)
{
    return ChordOfKey(name).code;
}

KeyChord ChordOfKey(std::string_view name)
{
    if (name.size() == 1) {
        if (const auto chord = ChordOfSign(Lower(name[0])))
            return *chord;
    }
    for (const NamedKey& key : NamedKeys) {
        if (SameName(name, key.name))
            return { key.code, 0 };
    }
    if (const auto number = NumberedName(name, "F", 1, FunctionKeys))
        return { static_cast<i16>(F1Key + *number - 1), 0 };
    if (const auto number = NumberedName(name, "Numpad", 0, 9))
        return { static_cast<i16>(FirstNumpadDigit + *number), 0 };
    throw AutomationError(
        ErrorNumber::InvalidArgument, "No key is named \"" + std::string(name) + "\". Keys are " + NamesInOrder());
}

i16 ShiftFlagOf(i16 code)
{
    switch (code) {
    case ShiftKey:
        return ShiftDown;
    case CtrlKey:
        return CtrlDown;
    case AltKey:
        return AltDown;
    default:
        return 0;
    }
}

KeyStroke CheckedStroke(i16 code, i16 shift)
{
    CheckKey(code);
    CheckShift(shift);
    return StrokeOf(code, shift);
}

KeyStroke CheckedStroke(std::string_view key, i16 shift)
{
    CheckShift(shift);
    const KeyChord chord = ChordOfKey(key);
    return CheckedStroke(chord.code, static_cast<i16>(shift | chord.shift));
}

} // namespace vornix
