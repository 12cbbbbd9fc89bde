#include "headless/person_fixture.h"
#include "virtual_keys.h"

#include <limits>

namespace vornix {
namespace {

class Keyboard : public PersonTest {
protected:
    void WriteDownWhatIsHeld(std::vector<int> codes)
    {
        const auto writer = [this, codes](std::string line) {
            for (const int code : codes) {
                if (host->IsKeyDown(code))
                    line += ' ' + std::to_string(code);
            }
            held.push_back(line);
        };
        handlers.OnKeyDown = [writer](i16&, i16&) { writer("KeyDown"); };
        handlers.OnKeyPress = [writer](i16&) { writer("KeyPress"); };
        handlers.OnKeyUp = [writer](i16&, i16&) { writer("KeyUp"); };
    }

    Lines held;
};

TEST_F(Keyboard, ATextIsTypedUnitByUnit)
{
    host->Type(u"a1");
    EXPECT_EQ(Said(),
        (Lines { "KeyDown KeyCode=65 Shift=0", "KeyPress KeyAscii=97", "KeyUp KeyCode=65 Shift=0",
            "KeyDown KeyCode=49 Shift=0", "KeyPress KeyAscii=49", "KeyUp KeyCode=49 Shift=0" }));
    host->Type(u"");
    EXPECT_TRUE(host->Log().empty());
}

TEST_F(Keyboard, CapitalsAndUpperSignsTakeShift)
{
    host->Type(u"A!_");
    EXPECT_EQ(Said(),
        (Lines { "KeyDown KeyCode=65 Shift=1", "KeyPress KeyAscii=65", "KeyUp KeyCode=65 Shift=1",
            "KeyDown KeyCode=49 Shift=1", "KeyPress KeyAscii=33", "KeyUp KeyCode=49 Shift=1",
            "KeyDown KeyCode=189 Shift=1", "KeyPress KeyAscii=95", "KeyUp KeyCode=189 Shift=1" }));
}

TEST_F(Keyboard, WhatNoKeyGivesIsSentAsACharacter)
{
    host->Type(u"\u00E9\uFFFD");
    EXPECT_EQ(Said(),
        (Lines { "KeyDown KeyCode=231 Shift=0", "KeyPress KeyAscii=233", "KeyUp KeyCode=231 Shift=0",
            "KeyDown KeyCode=231 Shift=0", "KeyPress KeyAscii=-3", "KeyUp KeyCode=231 Shift=0" }))
        << "16 bits, signed";
    host->Type(u"\U0001F600");
    EXPECT_EQ(host->Count("KeyPress"), 2) << "both halves of a pair";
}

TEST_F(Keyboard, ALineBreakOfTwoCharactersIsOneReturn)
{
    host->Type(u"\r\n");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=13 Shift=0", "KeyPress KeyAscii=13", "KeyUp KeyCode=13 Shift=0" }));
    host->Type(u"\r\n\r\n");
    EXPECT_EQ(host->Count("KeyPress"), 2);
    host->ClearLog();
    host->Type(u"\n\r\r\n\n");
    EXPECT_EQ(host->Count("KeyPress"), 4);
}

TEST_F(Keyboard, AKeyNamedByItsCharacterGivesTheCharacter)
{
    host->Press("+");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=187 Shift=1", "KeyPress KeyAscii=43", "KeyUp KeyCode=187 Shift=1" }));
    host->Press(" ");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=32 Shift=0", "KeyPress KeyAscii=32", "KeyUp KeyCode=32 Shift=0" }));
    host->Press("+", CtrlDown);
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=187 Shift=3", "KeyUp KeyCode=187 Shift=3" }));
}

TEST_F(Keyboard, ALineFeedIsTheReturnKey)
{
    host->Type(u"\n");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=13 Shift=0", "KeyPress KeyAscii=13", "KeyUp KeyCode=13 Shift=0" }));
    host->Type(u"\t\r\b\x1B ");
    std::vector<int> codes;
    for (const LoggedEvent& event : host->Log()) {
        if (event.name == "KeyPress")
            codes.push_back(event["KeyAscii"].ToI16());
    }
    EXPECT_EQ(codes, (std::vector<int> { 9, 13, 8, 27, 32 }));
}

TEST_F(Keyboard, OtherControlCharactersAreLettersWithCtrl)
{
    host->Type(u"\x03");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=67 Shift=2", "KeyPress KeyAscii=3", "KeyUp KeyCode=67 Shift=2" }));
}

TEST_F(Keyboard, ACodeSetToZeroGivesNoCharacter)
{
    handlers.OnKeyDown = [](i16& KeyCode, i16&) {
        if (KeyCode == 66)
            KeyCode = 0;
    };
    host->Type(u"abc");
    EXPECT_EQ(
        SaidNames(), (Lines { "KeyDown", "KeyPress", "KeyUp", "KeyDown", "KeyUp", "KeyDown", "KeyPress", "KeyUp" }));
    host->Press("b");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=66 Shift=0", "KeyUp KeyCode=66 Shift=0" }));
}

TEST_F(Keyboard, WhatHandlersWriteChangesNothingElse)
{
    handlers.OnKeyDown = [](i16& KeyCode, i16& Shift) {
        KeyCode = 90;
        Shift = 7;
    };
    handlers.OnKeyPress = [](i16& KeyAscii) { KeyAscii = 0; };
    host->Press("a");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=65 Shift=0", "KeyPress KeyAscii=97", "KeyUp KeyCode=65 Shift=0" }));
}

TEST_F(Keyboard, AKeyIsPressedByNameOrCode)
{
    host->Press("Left");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=37 Shift=0", "KeyUp KeyCode=37 Shift=0" }));
    host->Press(37, 3);
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=37 Shift=3", "KeyUp KeyCode=37 Shift=3" }));
    host->Press("Return");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=13 Shift=0", "KeyPress KeyAscii=13", "KeyUp KeyCode=13 Shift=0" }));
}

TEST_F(Keyboard, CtrlGivesControlCharactersAndAltNone)
{
    host->Press("c", 2);
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=67 Shift=2", "KeyPress KeyAscii=3", "KeyUp KeyCode=67 Shift=2" }));
    host->Press("Z", 3);
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=90 Shift=3", "KeyPress KeyAscii=26", "KeyUp KeyCode=90 Shift=3" }));
    host->Press("1", 2);
    EXPECT_EQ(SaidNames(), (Lines { "KeyDown", "KeyUp" }));
    for (const i16 shift : std::initializer_list<i16> { 4, 5, 6, 7 }) {
        host->Press("a", shift);
        host->Press("Return", shift);
        EXPECT_EQ(SaidNames(), (Lines { "KeyDown", "KeyUp", "KeyDown", "KeyUp" })) << shift;
    }
}

TEST_F(Keyboard, AModifierSaysThatItIsDown)
{
    host->Press("Shift");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=16 Shift=1", "KeyUp KeyCode=16 Shift=0" }));
    host->Press("Ctrl", 1);
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=17 Shift=3", "KeyUp KeyCode=17 Shift=1" }));
    host->Press("Alt");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=18 Shift=4", "KeyUp KeyCode=18 Shift=0" }));
}

TEST_F(Keyboard, KeysAreHeldFromTheirPressToTheirRelease)
{
    WriteDownWhatIsHeld({ 16, 17, 18, 65 });
    host->Press("a", 3);
    EXPECT_EQ(held, (Lines { "KeyDown 16 17 65", "KeyPress 16 17 65", "KeyUp 16 17" }));
    held.clear();
    host->Type(u"A");
    EXPECT_EQ(held, (Lines { "KeyDown 16 65", "KeyPress 16 65", "KeyUp 16" }));
    for (const int code : { 16, 17, 18, 65 })
        EXPECT_FALSE(host->IsKeyDown(code)) << code;
}

TEST_F(Keyboard, AKeyInsideAHandlerLeavesTheOneAroundItHeld)
{
    bool nested = false;
    handlers.OnKeyDown = [&](i16&, i16&) {
        if (!std::exchange(nested, true))
            host->Press("b", 1);
        EXPECT_TRUE(host->IsKeyDown(65));
    };
    host->Press("a");
    EXPECT_EQ(SaidNames(), (Lines { "KeyDown", "KeyDown", "KeyPress", "KeyUp", "KeyPress", "KeyUp" }));
    EXPECT_FALSE(host->IsKeyDown(65));
    EXPECT_FALSE(host->IsKeyDown(66));
}

TEST_F(Keyboard, WhatThereIsNotIsAnError)
{
    for (const i16 code : std::initializer_list<i16> { 0, -1, 255, 32767, -32768 })
        EXPECT_EQ(ErrorOf([&] { host->Press(code); }), 5) << code;
    for (const i16 shift : std::initializer_list<i16> { 8, -1 }) {
        EXPECT_EQ(ErrorOf([&] { host->Press("a", shift); }), 5) << shift;
        EXPECT_EQ(ErrorOf([&] { host->Press(65, shift); }), 5) << shift;
    }
    EXPECT_TRUE(host->Log().empty());
    EXPECT_FALSE(host->HasFocus());
    host->Press(254);
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=254 Shift=0", "KeyUp KeyCode=254 Shift=0" }));
}

} // namespace
} // namespace vornix
