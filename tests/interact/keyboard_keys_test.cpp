#include "interact/keyboard_fixture.h"

namespace vornix {
namespace {

// 5 rows and 4 columns behind one fixed line of each kind.
class KeyboardKeys : public KeyboardTest {
protected:
    KeyboardKeys() { Table(5, 4, 1, 1); }
};

// -- Arrows --

TEST_F(KeyboardKeys, AnArrowAsksWhenTheRowChanges)
{
    Grid().CurrentPos(1, 1);
    EXPECT_EQ(Key(Code::Down), (Lines { "ValidateRow", "CellChange Row=2 Col=1 bCancel=0" }));
    EXPECT_EQ(Key(Code::Right), Lines { "CellChange Row=2 Col=2 bCancel=0" });
    EXPECT_EQ(Key(Code::Up), (Lines { "ValidateRow", "CellChange Row=1 Col=2 bCancel=0" }));
    EXPECT_EQ(Key(Code::Left), Lines { "CellChange Row=1 Col=1 bCancel=0" });
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
}

TEST_F(KeyboardKeys, AWholePressIsKeyDownTheMoveAndTheRest)
{
    Grid().CurrentPos(1, 1);
    host->ClearLog();
    host->Press("Down");
    EXPECT_EQ(Said(),
        (Lines { "KeyDown KeyCode=40 Shift=0", "ValidateRow", "CellChange Row=2 Col=1 bCancel=0",
            "KeyUp KeyCode=40 Shift=0" }));
    host->Press("Space");
    EXPECT_EQ(SaidNames(), (Lines { "KeyDown", "KeyPress", "KeyUp" }));
}

TEST_F(KeyboardKeys, ArrowsWithoutACurrentCellDoNothing)
{
    for (const i16 code : { Code::Left, Code::Right, Code::Up, Code::Down }) {
        EXPECT_EQ(Key(code), Lines {});
        EXPECT_EQ(Current(), Nowhere);
    }
}

TEST_F(KeyboardKeys, AnEmptyGridHasNoUseForKeys)
{
    for (const auto& [rows, cols] : std::vector<std::pair<i16, i16>> { { 0, 0 }, { 0, 3 }, { 3, 0 } }) {
        Make({});
        Table(rows, cols, 1, 1);
        for (i16 code = 1; code < 255; ++code) {
            for (i16 shift = 0; shift < 8; ++shift)
                EXPECT_EQ(Key(code, shift), Lines {}) << code;
        }
        EXPECT_EQ(Current(), Nowhere);
    }
}

TEST_F(KeyboardKeys, RightWrapsIntoTheNextRowAndStaysInTheLast)
{
    Grid().CurrentPos(1, 3);
    EXPECT_EQ(Key(Code::Right), (Lines { "ValidateRow", "CellChange Row=2 Col=0 bCancel=0" }));
    EXPECT_EQ(Key(Code::Left), (Lines { "ValidateRow", "CellChange Row=1 Col=3 bCancel=0" }));
    Grid().CurrentPos(4, 3);
    EXPECT_EQ(Key(Code::Right), Lines {});
    EXPECT_EQ(Current(), (CellPlace { 4, 3 }));
}

TEST_F(KeyboardKeys, TheEdgesRaiseNothing)
{
    Grid().CurrentPos(0, 0);
    EXPECT_EQ(Key(Code::Up), Lines {});
    EXPECT_EQ(Key(Code::Left), Lines {});
    Grid().CurrentPos(4, 0);
    EXPECT_EQ(Key(Code::Down), Lines {});
    EXPECT_EQ(Current(), (CellPlace { 4, 0 }));
}

TEST_F(KeyboardKeys, HiddenLinesArePassedOver)
{
    Grid().SetColHide(1, true);
    Grid().HideRow(1, 2);
    Grid().CurrentPos(0, 2);
    EXPECT_EQ(Key(Code::Left), Lines { "CellChange Row=0 Col=0 bCancel=0" });
    EXPECT_EQ(Key(Code::Down), (Lines { "ValidateRow", "CellChange Row=3 Col=0 bCancel=0" }));
    EXPECT_EQ(Key(Code::Up), (Lines { "ValidateRow", "CellChange Row=0 Col=0 bCancel=0" }));
}

TEST_F(KeyboardKeys, AWrapIntoAHiddenRowIsLeftUpAndDown)
{
    Grid().SetRowHide(2, true);
    Grid().CurrentPos(1, 3);
    EXPECT_EQ(Key(Code::Right), (Lines { "ValidateRow", "CellChange Row=2 Col=0 bCancel=0" })) << "by index";
    EXPECT_EQ(Key(Code::Down), (Lines { "ValidateRow", "CellChange Row=3 Col=0 bCancel=0" }));
    EXPECT_EQ(Key(Code::Left), (Lines { "ValidateRow", "CellChange Row=2 Col=3 bCancel=0" }));
    EXPECT_EQ(Key(Code::Up), (Lines { "ValidateRow", "CellChange Row=1 Col=3 bCancel=0" }));
    EXPECT_EQ(Key(Code::Down), (Lines { "ValidateRow", "CellChange Row=3 Col=3 bCancel=0" })) << "over it";
}

TEST_F(KeyboardKeys, DownLeavesASpanBelowItsLastRow)
{
    Grid().SetRowSpan(1, 1, 3);
    for (const i16 Row : std::initializer_list<i16> { 1, 2, 3 }) {
        Grid().CurrentPos(Row, 1);
        EXPECT_EQ(Key(Code::Down), (Lines { "ValidateRow", "CellChange Row=4 Col=1 bCancel=0" }));
    }
    EXPECT_EQ(Key(Code::Up), (Lines { "ValidateRow", "CellChange Row=1 Col=1 bCancel=0" }));
}

TEST_F(KeyboardKeys, DisabledCellsAreNotPassedOver)
{
    Grid().SetCellEnabled(0, 1, false);
    Grid().CurrentPos(0, 0);
    EXPECT_EQ(Key(Code::Right), Lines { "CellChange Row=0 Col=1 bCancel=0" });
    EXPECT_EQ(Current(), (CellPlace { 0, 1 }));
}

TEST_F(KeyboardKeys, AFixedCellIsLeftIntoTheBody)
{
    Grid().CurrentPos(-1, -1);
    EXPECT_EQ(Key(Code::Down), (Lines { "ValidateRow", "CellChange Row=0 Col=-1 bCancel=0" }));
    EXPECT_EQ(Key(Code::Right), Lines { "CellChange Row=0 Col=0 bCancel=0" });
}

TEST_F(KeyboardKeys, ARefusedMoveKeepsTheCell)
{
    handlers.OnCellChange = [](i16, i16, bool& bCancel) { bCancel = true; };
    Grid().CurrentPos(1, 1);
    EXPECT_EQ(Key(Code::Down), (Lines { "ValidateRow", "CellChange Row=2 Col=1 bCancel=0" }));
    EXPECT_TRUE(IsMarkedAlone(1, 1)) << "its mark is back";
}

TEST_F(KeyboardKeys, AMoveOfTheHostTakesThePlaceOfTheKeys)
{
    handlers.OnCellChange = [&](i16, i16, bool&) { Grid().CurrentPos(4, 3); };
    Grid().CurrentPos(1, 1);
    EXPECT_EQ(Key(Code::Right), Lines { "CellChange Row=1 Col=2 bCancel=0" });
    EXPECT_TRUE(IsMarkedAlone(4, 3));
    handlers.OnCellChange = nullptr;
    handlers.OnValidateRow = [&] { Grid().SetCurrentCol(0); };
    EXPECT_EQ(Key(Code::Up), (Lines { "ValidateRow", "CellChange Row=3 Col=3 bCancel=0" }));
    EXPECT_EQ(Current(), (CellPlace { 4, 0 }));
}

TEST_F(KeyboardKeys, EitherLineThatTheHostWritesIsItsMove)
{
    handlers.OnCellChange = [&](i16, i16, bool&) { Grid().SetCurrentRow(4); };
    Grid().CurrentPos(1, 1);
    Key(Code::Right);
    EXPECT_EQ(Current(), (CellPlace { 4, 1 }));
    handlers.OnCellChange = [&](i16, i16, bool&) { Grid().SetCurrentCol(3); };
    Key(Code::Up);
    EXPECT_EQ(Current(), (CellPlace { 4, 3 }));
}

TEST_F(KeyboardKeys, AValueThatIsRefusedIsNoMoveOfTheHost)
{
    handlers.OnCellChange = [&](i16, i16, bool&) {
        Grid().SetCurrentRow(9999);
        Grid().SetCurrentCol(-1);
        Grid().CurrentPos(0, 9999);
    };
    Grid().CurrentPos(1, 1);
    Key(Code::Right);
    EXPECT_TRUE(IsMarkedAlone(1, 2));
}

TEST_F(KeyboardKeys, AMoveOfTheHostStaysWhenItRefusesToo)
{
    handlers.OnCellChange = [&](i16, i16, bool& bCancel) {
        Grid().CurrentPos(4, 3);
        bCancel = true;
    };
    Grid().CurrentPos(1, 1);
    Key(Code::Right);
    EXPECT_TRUE(IsMarkedAlone(4, 3));
}

TEST_F(KeyboardKeys, ATargetThatBecomesAnotherCellIsNotTaken)
{
    const std::vector<std::function<void()>> changes { [&] { Grid().SetFixedRows(4); }, [&] { Grid().SetFixedCols(3); },
        [&] { Grid().SetFixedRows(0); }, [&] { Grid().SetFixedCols(0); } };
    for (const auto& change : changes) {
        for (const i16 code : { Code::Left, Code::Right, Code::Up, Code::Down }) {
            Table(5, 4, 1, 1);
            Grid().CurrentPos(0, 0);
            Key(Code::Down);
            Key(Code::Right);
            ASSERT_EQ(Current(), (CellPlace { 1, 1 }));
            handlers.OnCellChange = [&](i16, i16, bool&) { change(); };
            Key(code);
            EXPECT_EQ(Current(), (CellPlace { 1, 1 })) << "where the cell is now";
            handlers.OnCellChange = nullptr;
        }
        Table(5, 4, 1, 1);
        Grid().CurrentPos(1, 1);
        handlers.OnValidateRow = change;
        EXPECT_EQ(Key(Code::Down), Lines { "ValidateRow" }) << "it is not asked for either";
        EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
        handlers.OnValidateRow = nullptr;
    }
}

TEST_F(KeyboardKeys, TheMarkGoesWithTheCell)
{
    Grid().SetFocusRect(vxFocusHeavy);
    Grid().CurrentPos(1, 1);
    for (const i16 code : { Code::Down, Code::Right, Code::Up, Code::Left, Code::Left, Code::Home, Code::End }) {
        Key(code);
        EXPECT_TRUE(IsMarkedAlone(Current().Row, Current().Col)) << code;
    }
}

TEST_F(KeyboardKeys, OnlyTheCellsLeftAndReachedArePainted)
{
    Grid().CurrentPos(1, 1);
    Key(Code::Down);
    host->ClearLog();
    host->KeyDown(Code::Down);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(host->Refreshes(), 2);
}

TEST_F(KeyboardKeys, NothingIsPaintedWhileRedrawIsOff)
{
    Grid().CurrentPos(1, 1);
    Grid().SetSelectedCells(0, 0, 1, 1);
    Grid().SetRedraw(false);
    for (const i16 code : { Code::Down, Code::Home, Code::End, Code::PageDown, Code::PageUp, Code::Right, Code::Space })
        Key(code);
    host->ClearLog();
    host->KeyDown(Code::Left);
    host->KeyDown(Code::Down, 1);
    host->KeyDown(Code::End, 2);
    EXPECT_EQ(host->Repaints() + host->Refreshes(), 0);
    EXPECT_EQ(Current(), (CellPlace { 4, 3 }));
}

// -- What the host leaves --

TEST_F(KeyboardKeys, ACodeSetToZeroIsTheHosts)
{
    handlers.OnKeyDown = [](i16& KeyCode, i16&) { KeyCode = 0; };
    Grid().CurrentPos(1, 1);
    for (const i16 code : { Code::Down, Code::Home, Code::End, Code::Left })
        EXPECT_EQ(Key(code), Lines {});
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
}

TEST_F(KeyboardKeys, TheCodeAndShiftThatHandlersWriteCount)
{
    handlers.OnKeyDown = [](i16& KeyCode, i16& Shift) {
        KeyCode = Code::Down;
        Shift = 2;
    };
    Grid().CurrentPos(1, 1);
    host->KeyDown(65);
    EXPECT_EQ(Current(), (CellPlace { 4, 1 }));
}

TEST_F(KeyboardKeys, OtherKeysAreTheHosts)
{
    Grid().CurrentPos(1, 1);
    for (i16 code = 1; code < 255; ++code) {
        if (code >= Code::Space && code <= Code::Down)
            continue;
        EXPECT_EQ(Key(code), Lines {}) << code;
    }
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
}

TEST_F(KeyboardKeys, OtherShiftStatesDoNothing)
{
    Grid().CurrentPos(1, 1);
    for (const i16 shift : std::initializer_list<i16> { 3, 4, 5, 6, 7 }) {
        for (i16 code = Code::Space; code <= Code::Down; ++code)
            EXPECT_EQ(Key(code, shift), Lines {}) << code << " with " << shift;
    }
    for (const i16 code : { Code::Left, Code::Right, Code::PageUp, Code::PageDown, Code::Space })
        EXPECT_EQ(Key(code, 2), Lines {}) << code << " with Ctrl";
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
}

// -- Home, End and Ctrl --

TEST_F(KeyboardKeys, HomeEndAndCtrlGoThereWithoutAsking)
{
    struct Jump {
        i16 code;
        i16 shift;
        CellPlace target;
    };
    for (const Jump& jump :
        { Jump { Code::Home, 0, { 2, 0 } }, Jump { Code::End, 0, { 2, 3 } }, Jump { Code::Up, 2, { 0, 2 } },
            Jump { Code::Down, 2, { 4, 2 } }, Jump { Code::Home, 2, { 0, 0 } }, Jump { Code::End, 2, { 4, 3 } } }) {
        Grid().CurrentPos(2, 2);
        EXPECT_EQ(Key(jump.code, jump.shift), Lines {});
        EXPECT_EQ(Current(), jump.target) << jump.code;
    }
}

TEST_F(KeyboardKeys, TheyTakeTheFirstCellWhereThereIsNoCurrentOne)
{
    struct Jump {
        i16 code;
        i16 shift;
        CellPlace target;
    };
    for (const Jump& jump : { Jump { Code::Home, 0, { 0, 0 } }, Jump { Code::End, 0, { 0, 3 } },
             Jump { Code::Up, 2, { 0, 0 } }, Jump { Code::Down, 2, { 4, 0 } }, Jump { Code::End, 2, { 4, 3 } } }) {
        Make({});
        Table(5, 4, 1, 1);
        Key(jump.code, jump.shift);
        EXPECT_EQ(Current(), jump.target) << jump.code;
    }
}

TEST_F(KeyboardKeys, TheyLookAtNeitherSpansNorHiddenLines)
{
    Grid().SetColHide(3, true);
    Grid().SetRowHide(4, true);
    Grid().CurrentPos(1, 1);
    Key(Code::End, 2);
    EXPECT_EQ(Current(), (CellPlace { 4, 3 }));
    Grid().SetColSpan(1, 0, 2);
    Grid().SetRowSpan(0, 1, 2);
    Grid().CurrentPos(4, 1);
    Key(Code::Up, 2);
    EXPECT_EQ(Current(), (CellPlace { 0, 1 }));
}

TEST_F(KeyboardKeys, TheyKeepAFixedLine)
{
    Grid().CurrentPos(-1, 2);
    Key(Code::Home);
    EXPECT_EQ(Current(), (CellPlace { -1, 0 }));
    Grid().CurrentPos(2, -1);
    Key(Code::Down, 2);
    EXPECT_EQ(Current(), (CellPlace { 4, -1 }));
}

TEST_F(KeyboardKeys, TheyStayWhereNothingScrolls)
{
    Table(0, 0, 2, 2);
    Grid().CurrentPos(-1, -1);
    for (const i16 code : { Code::Left, Code::Right, Code::Up, Code::Down, Code::Home })
        Key(code);
    EXPECT_EQ(Current(), (CellPlace { -1, -1 })) << "Right and Down lead behind the last line";
    Key(Code::Home, 2);
    EXPECT_EQ(Current(), (CellPlace { -1, -1 }));
}

TEST_F(KeyboardKeys, TheyLeaveTheSelectionAndArrowsEmptyIt)
{
    Grid().SetSelectedCells(0, 0, 2, 2);
    Grid().CurrentPos(1, 1);
    Key(Code::End);
    EXPECT_TRUE(Grid().CellSelected(1, 1));
    Key(Code::Left);
    EXPECT_FALSE(Grid().CellSelected(1, 1));
    EXPECT_EQ(Grid().SelectCountCell(), 0);
    EXPECT_TRUE(IsMarkedAlone(1, 2));
}

TEST_F(KeyboardKeys, UnderACaptionTheyAreTheSame)
{
    Grid().SetCaption(u"Title");
    Grid().SetCaptionEnabled(true);
    Grid().CurrentPos(0, 0);
    EXPECT_EQ(Key(Code::Up), Lines {}) << "the caption is no row of the body";
    EXPECT_EQ(Key(Code::Down), (Lines { "ValidateRow", "CellChange Row=1 Col=0 bCancel=0" }));
    EXPECT_EQ(Key(Code::Right), Lines { "CellChange Row=1 Col=1 bCancel=0" });
    EXPECT_TRUE(IsMarkedAlone(1, 1));
    EXPECT_EQ(Key(Code::Home, 2), Lines {});
    EXPECT_EQ(Current(), (CellPlace { 0, 0 }));
    Grid().CurrentPos(-1, 1);
    EXPECT_EQ(Key(Code::Right), Lines { "CellChange Row=-1 Col=2 bCancel=0" });
    EXPECT_EQ(Key(Code::Down), (Lines { "ValidateRow", "CellChange Row=0 Col=2 bCancel=0" }));
}

TEST_F(KeyboardKeys, ReachTheEndsOfTheLongestTable)
{
    Table(32766, 2);
    Key(Code::End, 2);
    EXPECT_EQ(Current(), (CellPlace { 32765, 1 }));
    EXPECT_TRUE(Grid().IsVisibleRow(32765));
    EXPECT_EQ(Key(Code::Down), Lines {});
    EXPECT_EQ(Key(Code::Right), Lines {});
    EXPECT_EQ(Key(Code::Up), (Lines { "ValidateRow", "CellChange Row=32764 Col=1 bCancel=0" }));
    Key(Code::Home, 2);
    EXPECT_EQ(Current(), (CellPlace { 0, 0 }));
}

} // namespace
} // namespace vornix
