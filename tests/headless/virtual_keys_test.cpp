#include "virtual_keys.h"

#include "vornix/automation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace vornix {
namespace {

std::string InCapitals(std::string text)
{
    for (char& character : text)
        character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return text;
}

// The names that the error of an unknown one lists, those that are counted apart.
std::vector<std::string> ListedNames()
{
    try {
        CodeOfKey("no such key");
    } catch (const AutomationError& error) {
        const std::string& text = error.Description();
        const std::string opening = "Keys are ";
        const std::size_t begin = text.find(opening) + opening.size();
        std::istringstream list(text.substr(begin, text.find("F1 to F24") - begin));
        std::vector<std::string> names;
        for (std::string name; std::getline(list >> std::ws, name, ',');)
            names.push_back(name);
        return names;
    }
    return {};
}

TEST(VirtualKeys, ThatAreListedHaveEachItsOwnCode)
{
    std::map<i16, std::string> byCode;
    for (const std::string& name : ListedNames()) {
        const i16 code = CodeOfKey(name);
        EXPECT_EQ(CodeOfKey(InCapitals(name)), code) << name;
        EXPECT_TRUE(byCode.emplace(code, name).second) << name << " and " << byCode[code];
    }
    EXPECT_GT(byCode.size(), 30u);
}

TEST(VirtualKeys, HaveTheCodesOfThePlatform)
{
    // One block of the keyboard, in the order of its codes.
    i16 code = 33;
    for (const char* name : { "PageUp", "PageDown", "End", "Home", "Left", "Up", "Right", "Down" })
        EXPECT_EQ(CodeOfKey(name), code++) << name;
    EXPECT_EQ(CodeOfKey("Insert"), 45);
    EXPECT_EQ(CodeOfKey("Delete"), 46);
    // Those that are the codes of their control characters.
    EXPECT_EQ(CodeOfKey("Back"), '\b');
    EXPECT_EQ(CodeOfKey("Tab"), '\t');
    EXPECT_EQ(CodeOfKey("Return"), '\r');
    EXPECT_EQ(CodeOfKey("Escape"), 27);
    EXPECT_EQ(CodeOfKey("Space"), ' ');
    EXPECT_EQ(CodeOfKey("Shift"), ShiftKey);
    EXPECT_EQ(CodeOfKey("Control"), CtrlKey);
    EXPECT_EQ(CodeOfKey("Alt"), AltKey);
}

TEST(VirtualKeys, OfFunctionAndNumberPadCountOn)
{
    for (int number = 1; number <= 24; ++number) {
        EXPECT_EQ(CodeOfKey("F" + std::to_string(number)), 111 + number);
        EXPECT_EQ(CodeOfKey("f" + std::to_string(number)), 111 + number);
    }
    for (int number = 0; number <= 9; ++number)
        EXPECT_EQ(CodeOfKey("numPAD" + std::to_string(number)), 96 + number);
}

TEST(VirtualKeys, OfLettersAndDigitsAreTheirCharacters)
{
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        EXPECT_EQ(CodeOfKey(std::string(1, letter)), letter);
        EXPECT_EQ(CodeOfKey(std::string(1, static_cast<char>(letter - 'A' + 'a'))), letter);
    }
    for (char digit = '0'; digit <= '9'; ++digit)
        EXPECT_EQ(CodeOfKey(std::string(1, digit)), digit);
}

TEST(VirtualKeys, OfSignsGoByTheLowerOne)
{
    const std::string signs = ";=,-./`[\\]'";
    const int codes[] = { 186, 187, 188, 189, 190, 191, 192, 219, 220, 221, 222 };
    for (std::size_t i = 0; i < signs.size(); ++i)
        EXPECT_EQ(CodeOfKey(signs.substr(i, 1)), codes[i]) << signs[i];
}

TEST(VirtualKeys, OfCharactersTakeShiftForUpperSignsAndNotForLetters)
{
    const std::string plain = "0123456789;=,-./`[\\]'";
    const std::string upper = ")!@#$%^&*(:+<_>?~{|}\"";
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const KeyChord lower = ChordOfKey(plain.substr(i, 1));
        EXPECT_EQ(lower.shift, 0) << plain[i];
        const KeyChord chord = ChordOfKey(upper.substr(i, 1));
        EXPECT_EQ(chord.code, lower.code) << upper[i];
        EXPECT_EQ(chord.shift, ShiftDown) << upper[i];
    }
    for (const char* name : { "a", "A", " ", "Left", "Shift" })
        EXPECT_EQ(ChordOfKey(name).shift, 0) << name;
    EXPECT_EQ(CodeOfKey(" "), 32);
}

TEST(VirtualKeys, HaveShortAndOldNamesToo)
{
    const std::pair<const char*, const char*> pairs[] = { { "PgUp", "PageUp" }, { "Prior", "PageUp" },
        { "PgDn", "PageDown" }, { "Next", "PageDown" }, { "Ins", "Insert" }, { "Del", "Delete" }, { "Esc", "Escape" },
        { "BackSpace", "Back" }, { "Enter", "Return" }, { "Ctrl", "Control" }, { "Menu", "Alt" },
        { "Capital", "CapsLock" }, { "Snapshot", "PrintScreen" }, { "Multiply", "NumpadMultiply" },
        { "Add", "NumpadAdd" }, { "Separator", "NumpadSeparator" }, { "Subtract", "NumpadSubtract" },
        { "Decimal", "NumpadDecimal" }, { "Divide", "NumpadDivide" } };
    for (const auto& [name, full] : pairs)
        EXPECT_EQ(CodeOfKey(name), CodeOfKey(full)) << name;
}

TEST(VirtualKeys, UnknownNamesAreAnErrorThatListsTheKnownOnes)
{
    for (const char* name :
        { "", "Lef", "Leftt", "F0", "F25", "F01", "F1x", "Numpad", "Numpad10", "ab", "\x01", "\xC3\xA9", " Left" }) {
        try {
            CodeOfKey(name);
            FAIL() << name;
        } catch (const AutomationError& error) {
            EXPECT_EQ(error.Number(), 5);
            EXPECT_THAT(error.Description(), testing::HasSubstr('"' + std::string(name) + '"'));
            for (const char* known :
                { "Back, ", "Return, ", "PageDown, ", "Escape, ", "F1 to F24", "Numpad0 to Numpad9" })
                EXPECT_THAT(error.Description(), testing::HasSubstr(known));
        }
    }
}

TEST(VirtualKeys, GiveTheCharactersOfTheKeyboard)
{
    const std::u16string plain = u"abcxyz0123456789;=,-./`[\\]' ";
    const std::u16string upper = u"ABCXYZ)!@#$%^&*(:+<_>?~{|}\" ";
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const KeyStroke stroke = StrokeFor(plain[i]);
        EXPECT_EQ(stroke.shift, 0) << i;
        EXPECT_EQ(stroke.character, static_cast<i16>(plain[i])) << i;
        EXPECT_EQ(StrokeOf(stroke.code, ShiftDown).character, static_cast<i16>(upper[i])) << i;
        const KeyStroke shifted = StrokeFor(upper[i]);
        EXPECT_EQ(shifted.code, stroke.code) << i;
        EXPECT_EQ(shifted.shift, upper[i] == u' ' ? 0 : ShiftDown) << i;
    }
}

TEST(VirtualKeys, OfTheNumberPadGiveDigitsAndSigns)
{
    for (int i = 0; i < 16; ++i) {
        const auto character = StrokeOf(static_cast<i16>(96 + i), 0).character;
        if (i == 12)
            EXPECT_EQ(character, std::nullopt);
        else
            EXPECT_EQ(character, static_cast<i16>(u"0123456789*+ -./"[i])) << i;
    }
    EXPECT_EQ(StrokeOf(112, 0).character, std::nullopt);
}

TEST(VirtualKeys, ThatAreNoCharactersGiveNone)
{
    for (const char* name : { "Clear", "Shift", "Control", "Alt", "Pause", "CapsLock", "PageUp", "PageDown", "End",
             "Home", "Left", "Up", "Right", "Down", "PrintScreen", "Insert", "Delete", "Help", "Apps", "NumLock",
             "ScrollLock", "F1", "F2", "F24" }) {
        for (const i16 shift : std::initializer_list<i16> { 0, 1, 2, 3, 4 })
            EXPECT_EQ(StrokeOf(CodeOfKey(name), shift).character, std::nullopt) << name << ' ' << shift;
    }
}

TEST(VirtualKeys, WithCtrlGiveControlCharacters)
{
    for (i16 letter = 'A'; letter <= 'Z'; ++letter) {
        EXPECT_EQ(StrokeOf(letter, CtrlDown).character, letter - 'A' + 1);
        EXPECT_EQ(StrokeOf(letter, CtrlDown | ShiftDown).character, letter - 'A' + 1);
        EXPECT_EQ(StrokeOf(letter, CtrlDown | AltDown).character, std::nullopt);
    }
    EXPECT_EQ(StrokeOf(13, CtrlDown).character, 10);
    EXPECT_EQ(StrokeOf(8, CtrlDown).character, 127);
    EXPECT_EQ(StrokeOf(27, CtrlDown).character, 27);
    EXPECT_EQ(StrokeOf(32, CtrlDown).character, 32);
    EXPECT_EQ(StrokeOf(9, CtrlDown).character, std::nullopt);
    EXPECT_EQ(StrokeOf('1', CtrlDown).character, std::nullopt);
}

TEST(VirtualKeys, EveryUnitCanBeTyped)
{
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const KeyStroke stroke = StrokeFor(static_cast<char16_t>(unit));
        ASSERT_GE(stroke.code, 1) << unit;
        ASSERT_LE(stroke.code, 254) << unit;
        ASSERT_EQ(stroke.character, static_cast<i16>(unit == 10 ? 13 : unit)) << unit;
    }
}

} // namespace
} // namespace vornix
