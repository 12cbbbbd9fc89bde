// The current cell over a page of a longer list.
#include "interact/keyboard_desk.h"

namespace vornix {
namespace {

class KeyboardOnAPage : public KeyboardDesk {
protected:
    explicit KeyboardOnAPage(i32 fixedRows = 1)
        : KeyboardDesk(6, 4, fixedRows)
    {
        page.size = 6;
        page.offset = 100;
        page.length = 1000;
        // The page comes to stand with the place in its middle, but for the end of the list.
        page.then = [&](i32 position) {
            page.offset = std::clamp(position - 3, 0, page.length - page.size);
            mover.Take({ position - page.offset + control.store.FixedRows(), control.current.Col() });
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
    // The page turns back by two, and the row goes down by two in it.
    page.roll = [&] {
        page.offset -= 2;
        mover.Take({ Current().row + 2, Current().col });
    };
    EXPECT_EQ(
        Press(Keys::Up), (Calls { "ValidateRow", "CellChange 1 1", "RollPageWithCurrent", "Scroll", "ExitHover" }));
    EXPECT_EQ(Current(), (CellIndex { 4, 2 }));
    EXPECT_EQ(mover.PublicRow(), 101) << "one up in the list";
    EXPECT_EQ(control.current.CursorPosition, page.offset + Current().row);
}

TEST_F(KeyboardOnAPage, AnotherColumnLeavesTheRowWhereItIsInTheList)
{
    Stand(3, 2);
    page.offset = 500; // the row has left the page
    EXPECT_EQ(Press(Keys::Home), Calls {});
    EXPECT_EQ(Current(), (CellIndex { 3, 1 }));
    EXPECT_EQ(mover.PublicRow(), 102);
    Press(Keys::End);
    EXPECT_EQ(Current(), (CellIndex { 3, 4 }));
    EXPECT_EQ(mover.PublicRow(), 102);
    mover.WriteCol(1);
    EXPECT_EQ(Current(), (CellIndex { 3, 2 }));
    EXPECT_EQ(mover.PublicRow(), 102);
    EXPECT_EQ(Press(Keys::Down).front(), "GotoListPosition 102");
    EXPECT_EQ(mover.PublicRow(), 103);
}

TEST_F(KeyboardOnAPage, AnotherRowIsThatOfThePage)
{
    Stand(3, 2);
    page.offset = 500;
    Press(Keys::Down, Shifts::Ctrl);
    EXPECT_EQ(mover.PublicRow(), 505);
    Press(Keys::Home, Shifts::Ctrl);
    EXPECT_EQ(mover.PublicRow(), 500);
    control.hidden.HideCol(4);
    mover.WriteCol(2);
    mover.WriteCol(3);
    EXPECT_EQ(Current(), (CellIndex { 2, 1 })) << "on in the next row";
    EXPECT_EQ(mover.PublicRow(), 501);
}

TEST_F(KeyboardOnAPage, AHiddenRowGivesWayInTheDirectionOfTheList)
{
    control.hidden.HideRow(4);
    Stand(5, 2);
    ASSERT_EQ(mover.PublicRow(), 104);
    mover.WriteRow(300);
    EXPECT_EQ(mover.PublicRow(), 301) << "on in the list, for all that the row is one up in the page";
    EXPECT_EQ(Current(), (CellIndex { 5, 2 }));
    Stand(2, 2);
    mover.WriteRow(10);
    EXPECT_EQ(mover.PublicRow(), 9);
    EXPECT_EQ(Current(), (CellIndex { 3, 2 }));
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

class KeyboardOnTheLongestList : public KeyboardOnAPage {
protected:
    KeyboardOnTheLongestList()
        : KeyboardOnAPage(2)
    {
        page.length = 2147483647;
    }
};

TEST_F(KeyboardOnTheLongestList, ReachesThePlacesThatAreNumbers)
{
    mover.WriteRow(2147483645);
    EXPECT_EQ(control.current.CursorPosition, 2147483647);
    EXPECT_EQ(mover.PublicRow(), 2147483645);
    EXPECT_EQ(Current(), (CellIndex { 6, 1 }));
    EXPECT_EQ(ErrorOf([&] { mover.WriteRow(2147483646); }), 6) << "behind the fixed rows it is none";
    EXPECT_EQ(ErrorOf([&] { mover.WritePos(2147483646, 0); }), 6);
    EXPECT_EQ(Said([&] { mover.WriteRow(2147483647); }), Calls { "HideEditor" });
}

TEST_F(KeyboardOnAPage, APlaceBeyond32BitsIsAnError)
{
    page.offset = 2147483647;
    EXPECT_EQ(ErrorOf([&] { Stand(3, 2); }), 6);
}

} // namespace
} // namespace vornix
