// Keys of different layouts by the platform's codes.
#include "qt_key_codes.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

namespace vornix {

namespace {

// Places of keys as X counts them, by what a US keyboard has there.
enum Place : quint32 {
    Digit1 = 10,
    Digit2 = 11,
    MinusSign = 20,
    LetterQ = 24,
    BracketLeft = 34,
    LetterA = 38,
    Semicolon = 47,
    Backslash = 51,
    LetterM = 58,
    Comma = 59,
    BesideLeftShift = 94,
};

struct Key {
    int key;
    QString text;
    Qt::KeyboardModifiers modifiers;
    quint32 place;
    quint32 code;
};

QKeyEvent EventOf(const Key& key)
{
    return QKeyEvent(QEvent::KeyPress, key.key, key.modifiers, key.place, key.code, 0, key.text);
}

i16 CodeOf(const Key& key, NativeKeys native = NativeKeys::Unknown)
{
    return KeyCodeOf(EventOf(key), native);
}

i16 CodeAt(quint32 place, int key, const QString& text, Qt::KeyboardModifiers modifiers = {})
{
    return CodeOf({ key, text, modifiers, place, 0 }, NativeKeys::Places);
}

i16 CodeOf(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {})
{
    return CodeOf({ key, text, modifiers, 0, 0 });
}

std::u16string Characters(int key, const QString& text, Qt::KeyboardModifiers modifiers = {})
{
    const QKeyEvent event = EventOf({ key, text, modifiers, 0, 0 });
    return CharactersOf(event, KeyCodeOf(event, NativeKeys::Unknown));
}

} // namespace

TEST(QtKeyCodesTest, LettersAndDigitsAreThemselves)
{
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key)
        EXPECT_EQ(CodeOf(key), key);
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        EXPECT_EQ(CodeOf(key), key);
}

TEST(QtKeyCodesTest, KeysWithNames)
{
    const std::pair<int, int> keys[] = { { Qt::Key_Backspace, 8 }, { Qt::Key_Tab, 9 }, { Qt::Key_Backtab, 9 },
        { Qt::Key_Return, 13 }, { Qt::Key_Enter, 13 }, { Qt::Key_Shift, 16 }, { Qt::Key_Control, 17 },
        { Qt::Key_Alt, 18 }, { Qt::Key_AltGr, 18 }, { Qt::Key_Pause, 19 }, { Qt::Key_CapsLock, 20 },
        { Qt::Key_Escape, 27 }, { Qt::Key_Space, 32 }, { Qt::Key_PageUp, 33 }, { Qt::Key_PageDown, 34 },
        { Qt::Key_End, 35 }, { Qt::Key_Home, 36 }, { Qt::Key_Left, 37 }, { Qt::Key_Up, 38 }, { Qt::Key_Right, 39 },
        { Qt::Key_Down, 40 }, { Qt::Key_Print, 44 }, { Qt::Key_Insert, 45 }, { Qt::Key_Delete, 46 },
        { Qt::Key_Help, 47 }, { Qt::Key_Meta, 91 }, { Qt::Key_Menu, 93 }, { Qt::Key_NumLock, 144 },
        { Qt::Key_ScrollLock, 145 }, { Qt::Key_F1, 112 }, { Qt::Key_F2, 113 }, { Qt::Key_F24, 135 } };
    for (const auto& [key, code] : keys)
        EXPECT_EQ(CodeOf(key), code) << key;
    EXPECT_EQ(CodeOf(Qt::Key_F25), 0);
    EXPECT_EQ(CodeOf(Qt::Key_unknown), 0);
}

TEST(QtKeyCodesTest, TheNumberPadHasCodesOfItsOwn)
{
    for (int digit = 0; digit <= 9; ++digit)
        EXPECT_EQ(CodeOf(Qt::Key_0 + digit, {}, Qt::KeypadModifier), 96 + digit);
    const std::pair<int, int> keys[] = { { Qt::Key_Asterisk, 106 }, { Qt::Key_Plus, 107 }, { Qt::Key_Minus, 109 },
        { Qt::Key_Period, 110 }, { Qt::Key_Comma, 110 }, { Qt::Key_Slash, 111 }, { Qt::Key_Enter, 13 },
        { Qt::Key_Home, 36 }, { Qt::Key_Left, 37 }, { Qt::Key_Clear, 12 }, { Qt::Key_Delete, 46 } };
    for (const auto& [key, code] : keys)
        EXPECT_EQ(CodeOf(key, {}, Qt::KeypadModifier), code) << key;
}

TEST(QtKeyCodesTest, SignsAreThoseOfAUsKeyboardWhereThePlaceIsUnknown)
{
    const std::pair<int, int> keys[] = { { Qt::Key_Exclam, '1' }, { Qt::Key_ParenRight, '0' },
        { Qt::Key_Semicolon, 186 }, { Qt::Key_Colon, 186 }, { Qt::Key_Equal, 187 }, { Qt::Key_Plus, 187 },
        { Qt::Key_Comma, 188 }, { Qt::Key_Less, 188 }, { Qt::Key_Minus, 189 }, { Qt::Key_Underscore, 189 },
        { Qt::Key_Period, 190 }, { Qt::Key_Greater, 190 }, { Qt::Key_Slash, 191 }, { Qt::Key_Question, 191 },
        { Qt::Key_QuoteLeft, 192 }, { Qt::Key_AsciiTilde, 192 }, { Qt::Key_BracketLeft, 219 },
        { Qt::Key_BraceLeft, 219 }, { Qt::Key_Backslash, 220 }, { Qt::Key_Bar, 220 }, { Qt::Key_BracketRight, 221 },
        { Qt::Key_BraceRight, 221 }, { Qt::Key_Apostrophe, 222 }, { Qt::Key_QuoteDbl, 222 } };
    for (const auto& [key, code] : keys)
        EXPECT_EQ(CodeOf(key, QChar(key)), code) << key;
}

TEST(QtKeyCodesTest, NonLatinLettersAreKnownByTheirPlace)
{
    EXPECT_EQ(CodeAt(LetterA, 0x0424, QString::fromUtf8("ф")), 'A');
    EXPECT_EQ(CodeAt(LetterQ, 0x0419, QString::fromUtf8("й")), 'Q');
    EXPECT_EQ(CodeAt(Semicolon, 0x0416, QString::fromUtf8("ж")), 186);
    EXPECT_EQ(CodeAt(BracketLeft, 0x0425, QString::fromUtf8("Х"), Qt::ShiftModifier), 219);
    EXPECT_EQ(CodeAt(LetterM, 0x05E6, QString::fromUtf8("צ")), 'M');
}

TEST(QtKeyCodesTest, LatinLettersAreKnownByTheLetter)
{
    EXPECT_EQ(CodeAt(LetterQ, Qt::Key_A, "a"), 'A');
    EXPECT_EQ(CodeAt(LetterA, Qt::Key_Q, "q"), 'Q');
    EXPECT_EQ(CodeAt(Semicolon, Qt::Key_M, "m"), 'M');
}

TEST(QtKeyCodesTest, TheRowOfDigitsIsKnownByItsPlace)
{
    EXPECT_EQ(CodeAt(Digit1, Qt::Key_Ampersand, "&"), '1');
    EXPECT_EQ(CodeAt(Digit1, Qt::Key_1, "1", Qt::ShiftModifier), '1');
    EXPECT_EQ(CodeAt(Digit2, Qt::Key_Eacute, QString::fromUtf8("é")), '2');
    EXPECT_EQ(CodeAt(Digit2, Qt::Key_QuoteDbl, "\"", Qt::ShiftModifier), '2');
}

TEST(QtKeyCodesTest, OtherSignsByPlaceOrBySign)
{
    EXPECT_EQ(CodeAt(LetterM, Qt::Key_Comma, ","), 188);
    EXPECT_EQ(CodeAt(LetterM, Qt::Key_Question, "?", Qt::ShiftModifier), 191);
    EXPECT_EQ(CodeAt(Comma, Qt::Key_Semicolon, ";"), 188);
    EXPECT_EQ(CodeAt(BracketLeft, Qt::Key_Udiaeresis, QString::fromUtf8("ü")), 219);
    EXPECT_EQ(CodeAt(Backslash, Qt::Key_NumberSign, "#"), 220);
    EXPECT_EQ(CodeAt(BracketLeft, Qt::Key_Plus, "+"), 187);
    EXPECT_EQ(CodeAt(MinusSign, Qt::Key_ssharp, QString::fromUtf8("ß")), 189);
    EXPECT_EQ(CodeAt(BesideLeftShift, Qt::Key_Less, "<"), 226);
}

TEST(QtKeyCodesTest, APlatformsOwnCodesAreTaken)
{
    EXPECT_EQ(CodeOf({ 0x0424, QString::fromUtf8("ф"), {}, 0, 'A' }, NativeKeys::Codes), 'A');
    EXPECT_EQ(CodeOf({ Qt::Key_Udiaeresis, QString::fromUtf8("ü"), {}, 0, 186 }, NativeKeys::Codes), 186);
    EXPECT_EQ(CodeOf({ Qt::Key_Left, {}, {}, 0, 0 }, NativeKeys::Codes), 37);
    EXPECT_EQ(CodeOf({ Qt::Key_A, "a", {}, 0, 0xFF51 }, NativeKeys::Codes), 'A');
}

TEST(QtKeyCodesTest, TextWithoutAKeyIsSent)
{
    EXPECT_EQ(CodeOf(0, QString::fromUtf8("€")), 231);
    EXPECT_EQ(CodeOf(0x0424, QString::fromUtf8("ф")), 231);
    EXPECT_EQ(CodeOf(Qt::Key_unknown, QString::fromUtf8("漢字")), 231);
    EXPECT_EQ(CodeAt(200, 0x0424, QString::fromUtf8("ф")), 231);
    EXPECT_EQ(CodeOf(Qt::Key_Dead_Acute), 0);
}

TEST(QtKeyCodesTest, CharactersAreTheTextOfPlainKeys)
{
    EXPECT_EQ(Characters(Qt::Key_A, "a"), u"a");
    EXPECT_EQ(Characters(Qt::Key_A, "A", Qt::ShiftModifier), u"A");
    EXPECT_EQ(Characters(0x0424, QString::fromUtf8("ф")), u"ф");
    EXPECT_EQ(Characters(0, QString::fromUtf8("😀")), u"😀");
    EXPECT_EQ(Characters(Qt::Key_5, "5", Qt::KeypadModifier), u"5");
    EXPECT_EQ(Characters(Qt::Key_Space, " "), u" ");
    EXPECT_EQ(Characters(Qt::Key_Return, "\r"), u"\r");
    EXPECT_EQ(Characters(Qt::Key_Enter, "\r", Qt::KeypadModifier), u"\r");
    EXPECT_EQ(Characters(Qt::Key_Backspace, "\b"), u"\b");
    EXPECT_EQ(Characters(Qt::Key_Escape, "\x1b"), u"\x1b");
    EXPECT_EQ(Characters(Qt::Key_Tab, "\t"), u"\t");
    EXPECT_EQ(Characters(Qt::Key_Backtab, {}, Qt::ShiftModifier), u"\t");
}

TEST(QtKeyCodesTest, OtherKeysHaveNoCharacters)
{
    EXPECT_EQ(Characters(Qt::Key_Delete, "\x7f"), u"");
    EXPECT_EQ(Characters(Qt::Key_Left, {}), u"");
    EXPECT_EQ(Characters(Qt::Key_F2, {}), u"");
}

TEST(QtKeyCodesTest, CtrlGivesControlCharactersAndAltNone)
{
    EXPECT_EQ(Characters(Qt::Key_C, "\x03", Qt::ControlModifier), u"\x03");
    EXPECT_EQ(Characters(Qt::Key_Z, {}, Qt::ControlModifier | Qt::ShiftModifier), u"\x1a");
    EXPECT_EQ(Characters(Qt::Key_Return, "\r", Qt::ControlModifier), u"\n");
    EXPECT_EQ(Characters(Qt::Key_Backspace, "\b", Qt::ControlModifier), u"\x7f");
    EXPECT_EQ(Characters(Qt::Key_Escape, "\x1b", Qt::ControlModifier), u"\x1b");
    EXPECT_EQ(Characters(Qt::Key_Space, " ", Qt::ControlModifier), u" ");
    EXPECT_EQ(Characters(Qt::Key_3, "\x1b", Qt::ControlModifier), u"");
    EXPECT_EQ(Characters(Qt::Key_A, "a", Qt::AltModifier), u"");
    EXPECT_EQ(Characters(Qt::Key_Return, "\r", Qt::AltModifier), u"");
    // AltGr, where that is how it arrives.
    EXPECT_EQ(Characters(Qt::Key_At, "@", Qt::AltModifier | Qt::ControlModifier), u"@");
}

} // namespace vornix
