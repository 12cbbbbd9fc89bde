#include "interact/keyboard_desk.h"

namespace vornix {
namespace {

class KeyboardAndEditor : public KeyboardDesk {
protected:
    KeyboardAndEditor()
    {
        for (int row = 1; row <= 6; ++row) {
            for (int col = 1; col <= 4; ++col)
                SetMode(row, col, vxTextBox);
        }
        control.store.EditCell(2, 3).SetText(u"seven77");
        Stand(2, 2);
    }
};

TEST_F(KeyboardAndEditor, AMoveClosesAsksAndOpens)
{
    editor.isOpen = true;
    EXPECT_EQ(Press(Keys::Down), (Calls { "CloseEditor", "ValidateRow", "CellChange 2 1", "OpenEditor 3 2" }));
    EXPECT_EQ(Press(Keys::Right), (Calls { "CloseEditor", "CellChange 2 2", "OpenEditor 3 3", "SetSelStart 0" }))
        << "an empty text ends at 0";
    EXPECT_TRUE(control.current.HostMovedCurrent);
    EXPECT_FALSE(control.current.IsEventGuardSet());
}

TEST_F(KeyboardAndEditor, TheCaretGoesToTheFarEnd)
{
    EXPECT_EQ(Press(Keys::Right), (Calls { "CellChange 1 2", "OpenEditor 2 3", "SetSelStart 7" }));
    Stand(2, 4);
    EXPECT_EQ(Press(Keys::Left), (Calls { "CloseEditor", "CellChange 1 2", "OpenEditor 2 3", "SetSelStart 0" }));
    Stand(1, 3);
    EXPECT_EQ(Press(Keys::Down), (Calls { "CloseEditor", "ValidateRow", "CellChange 1 2", "OpenEditor 2 3" }));
    Stand(3, 3);
    EXPECT_EQ(Press(Keys::Up), (Calls { "CloseEditor", "ValidateRow", "CellChange 1 2", "OpenEditor 2 3" }));
}

TEST_F(KeyboardAndEditor, ARefusedMoveOpensTheOldCellAgain)
{
    editor.isOpen = true;
    events.refuses = true;
    EXPECT_EQ(Press(Keys::Down), (Calls { "CloseEditor", "ValidateRow", "CellChange 2 1", "OpenEditor 2 2" }));
    EXPECT_EQ(Current(), (CellIndex { 2, 2 }));
}

TEST_F(KeyboardAndEditor, AMoveOfTheHostOpensThere)
{
    events.then = [&](const std::string& call) {
        if (call == "CellChange 2 1")
            mover.WritePos(4, 2);
    };
    EXPECT_EQ(Press(Keys::Down),
        (Calls { "ValidateRow", "CellChange 2 1", "HideEditor", "ForgetEditCell", "OpenEditor 5 3" }));
    EXPECT_EQ(Current(), (CellIndex { 5, 3 }));
}

TEST_F(KeyboardAndEditor, TheEdgeLeavesTheEditorOpen)
{
    Stand(1, 1);
    editor.isOpen = true;
    EXPECT_EQ(Press(Keys::Up), Calls {});
    EXPECT_EQ(Press(Keys::Left), Calls {});
    EXPECT_TRUE(editor.isOpen);
    EXPECT_FALSE(control.current.HostMovedCurrent);
}

TEST_F(KeyboardAndEditor, ADisabledCellOpensNothingAndSaysNothingOfTheMove)
{
    Disable(3, 2);
    EXPECT_EQ(Press(Keys::Down), (Calls { "ValidateRow", "CellChange 2 1" }));
    EXPECT_EQ(Current(), (CellIndex { 3, 2 }));
    EXPECT_FALSE(control.current.HostMovedCurrent);
}

TEST_F(KeyboardAndEditor, EveryModeThatIsEditedOpens)
{
    for (const i32 mode : { vxTextBox, vxComboDropDownBox, vxComboListBox, vxCustom }) {
        SetMode(3, 2, mode);
        Stand(2, 2);
        EXPECT_EQ(Press(Keys::Down).back(), "OpenEditor 3 2") << mode;
    }
    editor.isOpen = false;
    for (const i32 mode : std::vector<i32> { vxCellFixed, vxCheckBox, vxCommandButton, vxPressButton, 8, -1 }) {
        SetMode(3, 2, mode);
        Stand(2, 2);
        EXPECT_EQ(Press(Keys::Down).back(), "CellChange 2 1") << mode;
        EXPECT_TRUE(control.current.HostMovedCurrent) << mode;
    }
}

TEST_F(KeyboardAndEditor, AnEditorThatTakesTheCellAwayEndsTheMove)
{
    editor.isOpen = true;
    editor.then = [&](const std::string& call) {
        if (call == "CloseEditor")
            control.current.Clear();
    };
    EXPECT_EQ(Press(Keys::Down), Calls { "CloseEditor" });
    EXPECT_FALSE(control.current.IsEventGuardSet());
}

TEST_F(KeyboardAndEditor, AnOpeningThatTakesTheCellAwaySetsNoCaret)
{
    editor.then = [&](const std::string& call) {
        if (call == "OpenEditor 2 3") {
            control.current.Clear();
            editor.isOpen = false;
        }
    };
    EXPECT_EQ(Press(Keys::Right), (Calls { "CellChange 1 2", "OpenEditor 2 3" }));
}

TEST_F(KeyboardAndEditor, TheGuardIsSetWhileTheHostIsAsked)
{
    int asked = 0;
    events.then = [&](const std::string&) {
        ++asked;
        EXPECT_TRUE(control.current.IsEventGuardSet());
    };
    editor.then = [&](const std::string& call) {
        EXPECT_EQ(control.current.IsEventGuardSet(), call == "CloseEditor") << call;
        ++asked;
    };
    editor.isOpen = true;
    Press(Keys::Down);
    EXPECT_EQ(asked, 4);
}

TEST_F(KeyboardAndEditor, AnErrorOfAHandlerTakesTheGuardOff)
{
    events.then = [](const std::string&) { throw AutomationError(5, "no"); };
    EXPECT_EQ(ErrorOf([&] { Press(Keys::Down); }), 5);
    EXPECT_FALSE(control.current.IsEventGuardSet());
    EXPECT_EQ(Current(), (CellIndex { 2, 2 }));
}

TEST_F(KeyboardAndEditor, AScrolledMoveLeavesTheHoverBeforeItOpens)
{
    control.scroll.SetFirstRow(3);
    Stand(3, 2);
    EXPECT_EQ(Press(Keys::Up), (Calls { "ValidateRow", "CellChange 1 1", "Scroll", "ExitHover", "OpenEditor 2 2" }));
}

TEST_F(KeyboardAndEditor, JumpsNeitherCloseNorOpen)
{
    editor.isOpen = true;
    EXPECT_EQ(Press(Keys::End), Calls {});
    EXPECT_EQ(Press(Keys::Home, Shifts::Ctrl), Calls {});
    EXPECT_TRUE(editor.isOpen);
}

TEST_F(KeyboardAndEditor, F2EditsUnlessTheFrameShows)
{
    EXPECT_EQ(Press(Keys::F2), Calls { "EnterEdit" });
    EXPECT_EQ(Press(Keys::F2, Shifts::Ctrl), Calls {});
    host.Child(ChildName::fraEdit).Show(true);
    EXPECT_EQ(Press(Keys::F2), Calls {});
}

TEST_F(KeyboardAndEditor, AnArrowOfTheEditorTakesThePlainStepAlone)
{
    control.selection.Settings.CellSelection = true;
    control.selection.PressKind = SelectionKind::Cols;
    EXPECT_EQ(Said([&] { keyboard.PlainKey(Keys::Up, Shifts::None); }),
        (Calls { "ValidateRow", "CellChange 0 1", "OpenEditor 1 2" }));
    EXPECT_EQ(control.selection.PressKind, SelectionKind::Cols);
}

TEST_F(KeyboardAndEditor, HostsMovesHideTheEditorWithoutAWord)
{
    editor.isOpen = true;
    const Calls moved { "HideEditor", "ForgetEditCell" };
    EXPECT_EQ(Said([&] { mover.WriteCol(0); }), moved);
    EXPECT_EQ(Said([&] { mover.WriteRow(0); }), moved);
    EXPECT_EQ(Said([&] { mover.WritePos(1, 1); }), moved);
    EXPECT_TRUE(control.current.HostMovedCurrent);
    control.current.HostMovedCurrent = false;
    EXPECT_EQ(Said([&] { mover.WriteCol(99); }), Calls { "HideEditor" });
    EXPECT_EQ(Said([&] { mover.WriteRow(-1); }), Calls { "HideEditor" });
    EXPECT_EQ(Said([&] { mover.WritePos(99, 0); }), Calls { "HideEditor" });
    EXPECT_FALSE(control.current.HostMovedCurrent);
}

TEST_F(KeyboardAndEditor, ADragThatWaitsIsDroppedByEveryMove)
{
    for (const int key : { Keys::Left, Keys::Home, Keys::PageDown, Keys::PageUp }) {
        control.selection.BeginDrag();
        Press(key);
        EXPECT_FALSE(control.selection.IsDragging()) << key;
    }
    control.selection.BeginDrag();
    Press(Keys::End, Shifts::Ctrl);
    EXPECT_FALSE(control.selection.IsDragging());
    control.selection.BeginDrag();
    Press(Keys::Space);
    EXPECT_TRUE(control.selection.IsDragging());
}

class KeyboardWithoutCells : public KeyboardDesk {
protected:
    KeyboardWithoutCells()
        : KeyboardDesk(0, 0)
    {
    }
};

TEST_F(KeyboardWithoutCells, ADragThatWaitsIsDroppedByStepsThatStopEarlyToo)
{
    for (const int shift : { Shifts::None, Shifts::Ctrl }) {
        for (const int key : { Keys::Home, Keys::End, Keys::PageDown, Keys::PageUp, Keys::Up, Keys::Down }) {
            const bool isPage = key == Keys::PageDown || key == Keys::PageUp;
            const bool isArrow = key == Keys::Up || key == Keys::Down;
            control.selection.BeginDrag();
            Press(key, shift);
            const bool isStep = shift == Shifts::None ? !isArrow : !isPage;
            EXPECT_EQ(control.selection.IsDragging(), !isStep) << key << " with " << shift;
        }
    }
}

TEST_F(KeyboardWithoutCells, BeforeThereIsATableNothingIsCurrent)
{
    Control early { host, events };
    bag.WriteProperty("Rows", 5);
    bag.WriteProperty("Cols", 5);
    early.ReadSettings(bag);
    for (int key = Keys::Space; key <= Keys::Down; ++key) {
        for (const int shift : { Shifts::None, Shifts::Shift, Shifts::Ctrl })
            EXPECT_FALSE(ErrorOf([&] { early.keyboard.KeyDown(key, shift); })) << key;
    }
    EXPECT_FALSE(early.current.IsValid());
}

} // namespace
} // namespace vornix
