// The current cell over a page of a longer list.
#include "interact/keyboard_desk.h"

namespace vornix {
namespace {

class KeyboardOnAPage : public KeyboardDesk {
protected:
    KeyboardOnAPage()
    {
        page.size = 6;
        page.offset = 100;
        page.length = 1000;
        // The page comes to stand with the place in its middle, but for the end of the list.
        page.then = [&](i32 position) {
            page.offset = std::clamp(position - 3, 0, page.length - page.size);
            control.current.Set(position - page.offset + 1, control.current.Col());
            control.current.CursorPosition = position + 1;
        };
    }
};

TEST_F(KeyboardOnAPage, ThePlaceInTheListIsThatOfTheRow)
{
    Stand(3, 2);
    EXPECT_EQ(control.current.CursorPosition, 103);
    EXPECT_EQ(mover.PublicRow(), 102);
    Press(Keys::Down);
    EXPECT_EQ(mover.PublicRow(), 103);
    Press(Keys::End, Shifts::Ctrl);
    EXPECT_EQ(mover.PublicRow(), 105) << "the last row of the page";
}

TEST_F(KeyboardOnAPage, APlaceBeforeTheListIsNone)
{
    page.offset = 0;
    Stand(0, 2);
    EXPECT_EQ(mover.PublicRow(), NoIndex);
}

TEST_F(KeyboardOnAPage, AKeyGoesOnFromWhereThePageHasTheRowNow)
{
    Stand(3, 2);
    page.offset = 101;
    Press(Keys::Down);
    EXPECT_EQ(Current(), (CellIndex { 3, 2 }));
    EXPECT_EQ(mover.PublicRow(), 103) << "one down in the list";
}

TEST_F(KeyboardOnAPage, AKeyBringsBackARowThatLeftThePage)
{
    Stand(3, 2);
    page.offset = 500;
    editor.isOpen = true;
    EXPECT_EQ(Press(Keys::Down), (Calls { "CloseEditor", "GotoListPosition 102", "ValidateRow", "CellChange 4 1" }));
    EXPECT_EQ(page.offset, 99);
    EXPECT_EQ(mover.PublicRow(), 103);
}

TEST_F(KeyboardOnAPage, APageThatLosesTheCellEndsTheKey)
{
    Stand(3, 2);
    page.offset = 500;
    page.then = [&](i32) { control.current.Clear(); };
    EXPECT_EQ(Press(Keys::Down), Calls { "GotoListPosition 102" });
}

TEST_F(KeyboardOnAPage, AScrollByKeyRollsThePageFirst)
{
    control.scroll.SetFirstRow(3);
    Stand(3, 2);
    EXPECT_EQ(
        Press(Keys::Up), (Calls { "ValidateRow", "CellChange 1 1", "RollPageWithCurrent", "Scroll", "ExitHover" }));
}

TEST_F(KeyboardOnAPage, AHostWritesPlacesOfTheList)
{
    Stand(3, 2);
    EXPECT_EQ(Said([&] { mover.WriteRow(500); }), (Calls { "HideEditor", "GotoListPosition 500", "ForgetEditCell" }));
    EXPECT_EQ(mover.PublicRow(), 500);
    EXPECT_EQ(Current().col, 2);
    EXPECT_EQ(
        Said([&] { mover.WritePos(999, 3); }), (Calls { "HideEditor", "GotoListPosition 999", "ForgetEditCell" }));
    EXPECT_EQ(mover.PublicRow(), 999);
    EXPECT_EQ(Current(), (CellIndex { 6, 4 }));
}

TEST_F(KeyboardOnAPage, AHostsFirstPlaceTakesTheFirstColumn)
{
    mover.WriteRow(500);
    EXPECT_EQ(mover.PublicRow(), 500);
    EXPECT_EQ(mover.PublicCol(), 0);
}

TEST_F(KeyboardOnAPage, PlacesBeyondTheListAreIgnored)
{
    Stand(3, 2);
    EXPECT_EQ(Said([&] { mover.WriteRow(1000); }), Calls { "HideEditor" });
    EXPECT_EQ(Said([&] { mover.WritePos(1000, 0); }), Calls { "HideEditor" });
    EXPECT_EQ(Said([&] { mover.WriteRow(-1); }), Calls { "HideEditor" });
    EXPECT_EQ(mover.PublicRow(), 102);
}

TEST_F(KeyboardOnAPage, FixedRowsNeedNoPage)
{
    EXPECT_EQ(Said([&] { mover.WritePos(-1, 0); }), (Calls { "HideEditor", "ForgetEditCell" }));
    EXPECT_EQ(Current(), (CellIndex { 0, 1 }));
}

TEST_F(KeyboardOnAPage, APlaceBeyond32BitsIsAnError)
{
    page.offset = 2147483647;
    EXPECT_EQ(ErrorOf([&] { Stand(3, 2); }), 6);
}

} // namespace
} // namespace vornix
