// The order of events of whole sessions.
#include "editing/editing_fixture.h"

namespace vornix {

class SessionOrder : public EditingTest { };

TEST_F(SessionOrder, OfAKeyMoveFromCellToCell)
{
    Edit(0, 0);
    Press("Down");
    EXPECT_EQ(Said(),
        (Lines { "KeyDown 40 0", "AfterEdit 0 0", "ValidateRow", "CellChange 1 0 0", "BeforeEdit 1 0", "KeyUp 40 0" }));
    Grid().SetSelStart(3);
    Press("Right");
    EXPECT_EQ(Said(), (Lines { "KeyDown 39 0", "AfterEdit 1 0", "CellChange 1 1 0", "BeforeEdit 1 1", "KeyUp 39 0" }));
    EXPECT_EQ(Grid().SelStart(), 3) << "arriving from the left the caret stands at the end";
    Grid().SetSelStart(0);
    Press("Left");
    EXPECT_EQ(Said(), (Lines { "KeyDown 37 0", "AfterEdit 1 1", "CellChange 1 0 0", "BeforeEdit 1 0", "KeyUp 37 0" }));
    EXPECT_EQ(Grid().SelStart(), 0);
    EXPECT_EQ(desk->WhereFocusIs(), Focus::TextEditor);
}

TEST_F(SessionOrder, OfATypedCharacter)
{
    Edit(0, 0);
    SelectAll();
    Type(u"a");
    EXPECT_EQ(Said(), (Lines { "KeyDown 65 0", "KeyPress 97", "TextChange 0 0", "KeyUp 65 0" }));
    EXPECT_EQ(Cell(0, 0), u"a");
}

TEST_F(SessionOrder, OfATypedCharacterUnderAMask)
{
    Grid().SetColMask(0, u"00");
    Edit(0, 0);
    Grid().SetSelStart(0);
    Type(u"7");
    EXPECT_EQ(Said(), (Lines { "KeyDown 55 0", "KeyPress 55", "TextChange 0 0", "KeyUp 55 0" }));
    Type(u"x");
    EXPECT_EQ(Said(), (Lines { "KeyDown 88 0", "KeyPress 120", "KeyUp 88 0" })) << "refused";
}

TEST_F(SessionOrder, OfAPressFromCellToCell)
{
    Edit(0, 0);
    Click(2, 1);
    EXPECT_EQ(Said(),
        (Lines { "MouseDown 1 0", "CellDown 2 1", "AfterEdit 0 0", "ValidateRow", "CellChange 2 1 0", "MouseUp 1 0",
            "CellUp 2 1", "CellClick 2 1", "BeforeEdit 2 1", "Click" }));
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_EQ(EditorText(), u"t21");
}

TEST_F(SessionOrder, OfAClickOnTheCellThatIsCurrent)
{
    Grid().CurrentPos(1, 1);
    Forget();
    Click(1, 1);
    EXPECT_EQ(Said(),
        (Lines { "MouseDown 1 0", "CellDown 1 1", "MouseUp 1 0", "CellUp 1 1", "CellClick 1 1", "BeforeEdit 1 1",
            "Click" }));
}

TEST_F(SessionOrder, OfF2AndEscape)
{
    Click(0, 0);
    Press("Escape");
    Forget();
    Press("F2");
    EXPECT_EQ(Said(), (Lines { "KeyDown 113 0", "BeforeEdit 0 0", "KeyUp 113 0" }));
    Press("F2");
    EXPECT_EQ(Said(), (Lines { "KeyDown 113 0", "KeyUp 113 0" })) << "open already";
    Type(u"z");
    Forget();
    Press("Escape");
    const Lines said = Said();
    ASSERT_GE(said.size(), 2u);
    EXPECT_EQ(said[0], "KeyDown 27 0");
    EXPECT_EQ(said[1], "AfterEdit 0 0");
    EXPECT_THAT(said, testing::Not(testing::Contains("TextChange 0 0")));
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_NE(Cell(0, 0).find(u'z'), std::u16string::npos) << "nothing is taken back";
    EXPECT_EQ(desk->WhereFocusIs(), Focus::Control);
}

TEST_F(SessionOrder, OfALossOfTheFocus)
{
    Click(1, 1);
    Forget();
    desk->LeaveFocus();
    EXPECT_EQ(Said(), Lines { "AfterEdit 1 1" });
    EXPECT_FALSE(Grid().IsEditMode());
    desk->ReturnFocus();
    EXPECT_EQ(Said(), Lines {});
    EXPECT_FALSE(Grid().IsEditMode());
}

TEST_F(SessionOrder, OfARefusalInBeforeEdit)
{
    handlers.OnBeforeEdit = [&](i16, i16) { Grid().ExitEdit(); };
    Click(1, 1);
    EXPECT_THAT(Said(),
        testing::ElementsAre("MouseDown 1 0", "CellDown 1 1", "CellChange 1 1 0", "MouseUp 1 0", "CellUp 1 1",
            "CellClick 1 1", "BeforeEdit 1 1", "Click"));
    EXPECT_FALSE(Grid().IsEditMode());
    Press("Right");
    EXPECT_EQ(Said(), (Lines { "KeyDown 39 0", "CellChange 1 2 0", "BeforeEdit 1 2", "KeyUp 39 0" }));
    EXPECT_EQ(Grid().CurrentCol(), 2);
    EXPECT_EQ(Grid().SelStart(), 0) << "nothing is kept for another editor";
    Grid().EnterEdit();
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Said(), Lines { "BeforeEdit 1 2" });
}

TEST_F(SessionOrder, OfARefusalInCellChange)
{
    Edit(1, 1);
    handlers.OnCellChange = [](i16, i16, bool& bCancel) { bCancel = true; };
    Press("Down");
    EXPECT_EQ(Said(),
        (Lines { "KeyDown 40 0", "AfterEdit 1 1", "ValidateRow", "CellChange 2 1 0", "BeforeEdit 1 1", "KeyUp 40 0" }))
        << "a refused move loses no edit";
    EXPECT_TRUE(Grid().IsEditMode());
    Click(3, 3);
    EXPECT_FALSE(Grid().IsEditMode() && EditorText() == u"t33");
    EXPECT_EQ(Grid().CurrentRow(), 1);
}

TEST_F(SessionOrder, OfADeletionOfTheRowThatIsEdited)
{
    Edit(5, 1);
    handlers.OnKeyDown = [&](i16&, i16&) { Grid().SetRows(3); };
    Type(u"x");
    EXPECT_THAT(Said(), testing::Not(testing::Contains(testing::StartsWith("AfterEdit"))));
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Grid().Rows(), 3);
    Forget();
    handlers.OnKeyDown = nullptr;
    Edit(2, 1);
    handlers.OnTextChange = [&](i16, i16) { Grid().SetRows(1); };
    Type(u"x");
    EXPECT_THAT(Said(), testing::Contains("TextChange 2 1"));
    EXPECT_FALSE(Grid().IsEditMode());
}

TEST_F(SessionOrder, OfADeletionInBeforeEdit)
{
    handlers.OnBeforeEdit = [&](i16, i16) { Grid().SetCols(1); };
    Grid().CurrentPos(0, 3);
    Grid().EnterEdit();
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Grid().Cols(), 1);
}

TEST_F(SessionOrder, OfAMoveOfTheHostEndsTheSessionWithoutAWord)
{
    Edit(0, 0);
    Grid().SetCurrentRow(2);
    EXPECT_EQ(Said(), Lines {});
    EXPECT_FALSE(Grid().IsEditMode());
    Edit(0, 0);
    Grid().CurrentPos(1, 1);
    EXPECT_EQ(Said(), Lines {});
    EXPECT_FALSE(Grid().IsEditMode());
}

TEST_F(SessionOrder, AHandlerOfAfterEditMayOpenTheNextEditor)
{
    Edit(0, 0);
    bool opened = false;
    handlers.OnAfterEdit = [&](i16, i16) {
        if (opened)
            return;
        opened = true;
        Grid().CurrentPos(3, 3);
        Grid().EnterEdit();
    };
    Press("Escape");
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_EQ(EditorText(), u"t33");
    Type(u"!");
    EXPECT_NE(Cell(3, 3), u"t33") << "what is typed goes into the cell of the new session";
}

TEST_F(SessionOrder, AHandlerOfBeforeEditMayOpenAnotherEditor)
{
    handlers.OnBeforeEdit = [&](i16 Row, i16) {
        if (Row == 3)
            return;
        Grid().CurrentPos(3, 3);
        Grid().EnterEdit();
    };
    Click(0, 0);
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_EQ(EditorText(), u"t33");
    EXPECT_EQ(Grid().CurrentRow(), 3);
}

TEST_F(SessionOrder, AHostThatClosesTheEditorInKeyDownGetsTheFocusBackToTheControl)
{
    Click(0, 0);
    handlers.OnKeyDown = [&](i16& KeyCode, i16&) {
        KeyCode = 0;
        Grid().ExitEdit();
    };
    Type(u"x");
    EXPECT_EQ(Cell(0, 0), u"t00");
    EXPECT_EQ(desk->WhereFocusIs(), Focus::Control);
}

TEST_F(SessionOrder, KeysThatTheHostTakesDoNothing)
{
    Edit(0, 0);
    handlers.OnKeyPress = [](i16& KeyAscii) { KeyAscii = 0; };
    Type(u"x");
    EXPECT_EQ(Cell(0, 0), u"t00");
    handlers.OnKeyDown = [](i16& KeyCode, i16&) { KeyCode = 0; };
    Press("Delete");
    Press("Down");
    EXPECT_EQ(Cell(0, 0), u"t00");
    EXPECT_EQ(Grid().CurrentRow(), 0);
}

TEST_F(SessionOrder, AClosedControlSaysNothingMore)
{
    Click(0, 0);
    handlers.OnKeyPress = [&](i16&) { Grid().Terminate(); };
    Forget();
    Type(u"x");
    EXPECT_EQ(Said(), (Lines { "KeyDown 88 0", "KeyPress 120" }));
}

} // namespace vornix
