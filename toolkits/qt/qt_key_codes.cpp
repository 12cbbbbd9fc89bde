#include "qt_key_codes.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace vornix {

namespace {

constexpr i16 BackKey = 8;
constexpr i16 TabKey = 9;
constexpr i16 ReturnKey = 13;
constexpr i16 EscapeKey = 27;
constexpr i16 SpaceKey = 32;
constexpr i16 FirstNumpadDigit = 96;
constexpr i16 F1Key = 112;
constexpr i16 SentCharacter = 231;
constexpr i16 LastCode = 254;
constexpr char16_t LineFeed = 10;
constexpr char16_t Delete = 127;

struct KeyAndCode {
    int key;
    i16 code;
};

// Apart from F1 to F24.
constexpr KeyAndCode NamedKeys[] = {
    { Qt::Key_Cancel, 3 },
    { Qt::Key_Backspace, BackKey },
    { Qt::Key_Tab, TabKey },
    { Qt::Key_Backtab, TabKey },
    { Qt::Key_Clear, 12 },
    { Qt::Key_Return, ReturnKey },
    { Qt::Key_Enter, ReturnKey },
    { Qt::Key_Shift, 16 },
    { Qt::Key_Control, 17 },
    { Qt::Key_Alt, 18 },
    { Qt::Key_AltGr, 18 },
    { Qt::Key_Pause, 19 },
    { Qt::Key_CapsLock, 20 },
    { Qt::Key_Escape, EscapeKey },
    { Qt::Key_Space, SpaceKey },
    { Qt::Key_PageUp, 33 },
    { Qt::Key_PageDown, 34 },
    { Qt::Key_End, 35 },
    { Qt::Key_Home, 36 },
    { Qt::Key_Left, 37 },
    { Qt::Key_Up, 38 },
    { Qt::Key_Right, 39 },
    { Qt::Key_Down, 40 },
    { Qt::Key_Select, 41 },
    { Qt::Key_Execute, 43 },
    { Qt::Key_Print, 44 },
    { Qt::Key_SysReq, 44 },
    { Qt::Key_Insert, 45 },
    { Qt::Key_Delete, 46 },
    { Qt::Key_Help, 47 },
    { Qt::Key_Meta, 91 },
    { Qt::Key_Super_L, 91 },
    { Qt::Key_Super_R, 92 },
    { Qt::Key_Menu, 93 },
    { Qt::Key_NumLock, 144 },
    { Qt::Key_ScrollLock, 145 },
};

constexpr KeyAndCode NumpadKeys[] = {
    { Qt::Key_Asterisk, 106 },
    { Qt::Key_Plus, 107 },
    { Qt::Key_Minus, 109 },
    { Qt::Key_Period, 110 },
    { Qt::Key_Comma, 110 }, // the decimal key in many languages
    { Qt::Key_Slash, 111 },
};

// These have one code on all keyboards, wherever they are.
constexpr KeyAndCode SignsOfTheirOwn[] = {
    { Qt::Key_Plus, 187 },
    { Qt::Key_Equal, 187 },
    { Qt::Key_Comma, 188 },
    { Qt::Key_Minus, 189 },
    { Qt::Key_Underscore, 189 },
    { Qt::Key_Period, 190 },
};

// The signs of a US keyboard.
constexpr KeyAndCode Signs[] = {
    { Qt::Key_ParenRight, '0' },
    { Qt::Key_Exclam, '1' },
    { Qt::Key_At, '2' },
    { Qt::Key_NumberSign, '3' },
    { Qt::Key_Dollar, '4' },
    { Qt::Key_Percent, '5' },
    { Qt::Key_AsciiCircum, '6' },
    { Qt::Key_Ampersand, '7' },
    { Qt::Key_Asterisk, '8' },
    { Qt::Key_ParenLeft, '9' },
    { Qt::Key_Semicolon, 186 },
    { Qt::Key_Colon, 186 },
    { Qt::Key_Less, 188 },
    { Qt::Key_Greater, 190 },
    { Qt::Key_Slash, 191 },
    { Qt::Key_Question, 191 },
    { Qt::Key_QuoteLeft, 192 },
    { Qt::Key_AsciiTilde, 192 },
    { Qt::Key_BracketLeft, 219 },
    { Qt::Key_BraceLeft, 219 },
    { Qt::Key_Backslash, 220 },
    { Qt::Key_Bar, 220 },
    { Qt::Key_BracketRight, 221 },
    { Qt::Key_BraceRight, 221 },
    { Qt::Key_Apostrophe, 222 },
    { Qt::Key_QuoteDbl, 222 },
};

// A run of places and the codes that a US keyboard has there.
struct PlacesAndCodes {
    quint32 first;
    std::initializer_list<i16> codes;
};

i16 CodeAtPlace(quint32 place)
{
    static const PlacesAndCodes runs[] = {
        { 10, { '1', '2', '3', '4', '5', '6', '7', '8', '9', '0', 189, 187 } },
        { 24, { 'Q', 'W', 'E', 'R', 'T', 'Y', 'U', 'I', 'O', 'P', 219, 221 } },
        { 38, { 'A', 'S', 'D', 'F', 'G', 'H', 'J', 'K', 'L', 186, 222, 192 } },
        { 51, { 220, 'Z', 'X', 'C', 'V', 'B', 'N', 'M', 188, 190, 191 } },
        { 94, { 226 } }, // between the left Shift key and Z
    };
    for (const PlacesAndCodes& run : runs) {
        if (place >= run.first && place - run.first < run.codes.size())
            return run.codes.begin()[place - run.first];
    }
    return 0;
}

template <std::size_t Count> i16 Found(const KeyAndCode (&keys)[Count], int key)
{
    const auto* const found = std::ranges::find(keys, key, &KeyAndCode::key);
    return found == std::end(keys) ? i16 { 0 } : found->code;
}

bool IsDigit(int code)
{
    return code >= '0' && code <= '9';
}

bool IsLetter(int code)
{
    return code >= 'A' && code <= 'Z';
}

i16 NumpadCode(int key)
{
    if (IsDigit(key))
        return static_cast<i16>(FirstNumpadDigit + key - '0');
    return Found(NumpadKeys, key);
}

i16 NamedCode(int key)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return static_cast<i16>(F1Key + key - Qt::Key_F1);
    return Found(NamedKeys, key);
}

// Keys that give a sign, by the sign and, where it is known, by the place.
i16 SignCode(int key, i16 codeAtPlace)
{
    if (IsLetter(key))
        return static_cast<i16>(key);
    if (IsDigit(codeAtPlace))
        return codeAtPlace;
    if (IsDigit(key))
        return static_cast<i16>(key);
    if (const i16 code = Found(SignsOfTheirOwn, key))
        return code;
    const i16 onUsKeyboard = Found(Signs, key);
    // Signs may lie where that keyboard has a letter; other letters may lie anywhere.
    if (codeAtPlace != 0 && !(onUsKeyboard != 0 && IsLetter(codeAtPlace)))
        return codeAtPlace;
    return onUsKeyboard;
}

std::u16string ControlCharacter(i16 code)
{
    if (IsLetter(code))
        return { static_cast<char16_t>(code - 'A' + 1) };
    if (code == ReturnKey)
        return { LineFeed };
    if (code == BackKey)
        return { Delete };
    if (code == EscapeKey || code == SpaceKey)
        return { static_cast<char16_t>(code) };
    return {};
}

std::u16string Printable(const QString& text)
{
    std::u16string characters;
    for (const QChar character : text) {
        if (character.unicode() >= SpaceKey && character.unicode() != Delete)
            characters += character.unicode();
    }
    return characters;
}

} // namespace

NativeKeys NativeKeysOfPlatform()
{
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("windows"))
        return NativeKeys::Codes;
    if (platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland")))
        return NativeKeys::Places;
    return NativeKeys::Unknown;
}

i16 KeyCodeOf(const QKeyEvent& event, NativeKeys native)
{
    const quint32 ownCode = event.nativeVirtualKey();
    if (native == NativeKeys::Codes && ownCode > 0 && ownCode <= LastCode)
        return static_cast<i16>(ownCode);
    i16 code = 0;
    if (event.modifiers().testFlag(Qt::KeypadModifier))
        code = NumpadCode(event.key());
    if (code == 0)
        code = NamedCode(event.key());
    if (code == 0)
        code = SignCode(event.key(), native == NativeKeys::Places ? CodeAtPlace(event.nativeScanCode()) : i16 { 0 });
    if (code == 0 && !Printable(event.text()).empty())
        code = SentCharacter;
    return code;
}

std::u16string CharactersOf(const QKeyEvent& event, i16 code)
{
    const bool isCtrl = event.modifiers().testFlag(Qt::ControlModifier);
    const bool isAlt = event.modifiers().testFlag(Qt::AltModifier);
    if (isCtrl && isAlt) // AltGr, where that is how it arrives
        return Printable(event.text());
    if (isAlt)
        return {};
    if (isCtrl)
        return ControlCharacter(code);
    if (code == BackKey || code == TabKey || code == ReturnKey || code == EscapeKey)
        return { static_cast<char16_t>(code) };
    return Printable(event.text());
}

} // namespace vornix
