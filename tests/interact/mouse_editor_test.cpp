// The mouse beside an open editor, by a written one that notes what it is asked.
#include "interact/keyboard_desk.h"

#include "interact/mouse.h"

namespace vornix {
namespace {

class MouseBesideEditor : public KeyboardDesk {
protected:
    MouseBesideEditor()
    {
        for (int row = 1; row <= 6; ++row)
            SetMode(row, 2, vxTextBox);
        Stand(2, 2);
        calls.clear();
    }

    // By internal indices.
    static float X(int col) { return 30.0F + 120.0F * static_cast<float>(col - 1) + 60.0F; }
    static float Y(int row) { return 10.0F + 21.0F * static_cast<float>(row); }
    Calls Press(int row, int col)
    {
        return CallsOf([&] { mouse.Down(1, 0, X(col), Y(row)); });
    }
    Calls Release(int row, int col)
    {
        return CallsOf([&] { mouse.Up(1, 0, X(col), Y(row)); });
    }
    Calls Click()
    {
        return CallsOf([&] { mouse.Click(); });
    }
    template <typename Step> Calls CallsOf(const Step& step)
    {
        calls.clear();
        step();
        return calls;
    }

    PressedCell pressed;
    MouseSelection selecting { { control.store, control.layout, control.scroll, mover, control.selection,
        control.scrolling, control.funnel } };
    Mouse mouse { { control.store, control.layout, control.spans, control.gate, control.current, mover,
        control.selection, selecting, control.sizing, pressed, control.checks, editor, control.funnel, host, events } };
};

TEST_F(MouseBesideEditor, APressOnTheCellThatIsEditedIsTheEditors)
{
    editor.OpenEditor(2, 2);
    EXPECT_EQ(Press(2, 2), Calls {});
    EXPECT_TRUE(editor.isOpen);
}

TEST_F(MouseBesideEditor, APressElsewhereClosesItBeforeTheQuestions)
{
    editor.OpenEditor(2, 2);
    EXPECT_EQ(Press(3, 2), (Calls { "MouseDown", "CellDown 2 1", "CloseEditor", "ValidateRow", "CellChange 2 1" }));
    EXPECT_EQ(Release(3, 2), (Calls { "MouseUp", "CellUp 2 1" }));
    EXPECT_EQ(Click(), (Calls { "CellClick 2 1", "OpenEditor 3 2", "Click" }));
}

TEST_F(MouseBesideEditor, AReleaseOffTheCellsClosesIt)
{
    editor.OpenEditor(2, 2);
    EXPECT_EQ(CallsOf([&] { mouse.Up(1, 0, 635, 475); }), (Calls { "MouseUp", "CloseEditorAndRepaint" }));
    EXPECT_EQ(CallsOf([&] { mouse.Up(1, 0, 635, 475); }), (Calls { "MouseUp" }));
}

TEST_F(MouseBesideEditor, AClickDoesNotOpenItWhereTheHostMovedOnOrAKeyIsHeld)
{
    Press(3, 2);
    Release(3, 2);
    events.then = [&](const std::string& call) {
        if (call == "CellClick 2 1")
            mover.WritePos(4, 1);
    };
    EXPECT_EQ(Click(), (Calls { "CellClick 2 1", "HideEditor", "ForgetEditCell", "Click" }));

    events.then = [](const std::string&) {};
    mouse.Down(1, 2, X(2), Y(4));
    mouse.Up(1, 2, X(2), Y(4));
    EXPECT_EQ(Click(), (Calls { "CellClick 3 1", "Click" }));
}

TEST_F(MouseBesideEditor, TheRowIsTheOneBeforeTheEditorClosed)
{
    editor.OpenEditor(2, 2);
    editor.then = [&](const std::string& call) {
        if (call == "CloseEditor")
            mover.Take({ 3, 1 });
    };
    EXPECT_EQ(Press(3, 2), (Calls { "MouseDown", "CellDown 2 1", "CloseEditor", "ValidateRow", "CellChange 2 1" }));
}

TEST_F(MouseBesideEditor, ADisabledCellStaysShut)
{
    Disable(3, 2);
    Press(3, 2);
    Release(3, 2);
    EXPECT_EQ(Click(), Calls { "CellClick 2 1" });
}

TEST_F(MouseBesideEditor, ARefusedPressLeavesTheEditorClosed)
{
    editor.OpenEditor(2, 2);
    events.refuses = true;
    EXPECT_EQ(Press(3, 2), (Calls { "MouseDown", "CellDown 2 1", "CloseEditor", "ValidateRow", "CellChange 2 1" }));
    EXPECT_EQ(Current(), (CellIndex { 2, 2 }));
    EXPECT_FALSE(control.current.IsEventGuardSet());
}

} // namespace
} // namespace vornix
