// Text cells: what the editor takes from the cell, what the cell takes from the editor, and where the editor lies.
#include "editing/editing_fixture.h"

namespace vornix {

class TextCells : public EditingTest { };

TEST_F(TextCells, ADisabledOneIsEnteredByKeysAndShowsNoEditor)
{
    Grid().SetCellEnabled(1, 0, false);
    Edit(0, 0);
    Press("Down");
    EXPECT_EQ(Grid().CurrentRow(), 1);
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Said(), (Lines { "KeyDown 40 0", "AfterEdit 0 0", "ValidateRow", "CellChange 1 0 0", "KeyUp 40 0" }));
    Grid().EnterEdit();
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Said(), Lines {});
    Press("Down");
    EXPECT_TRUE(Grid().IsEditMode());
}

TEST_F(TextCells, EnteringOneThatIsNotEditedGivesTheControlTheFocus)
{
    Grid().SetCellMode(5, 3, vxCellFixed);
    Grid().CurrentPos(5, 3);
    Grid().EnterEdit();
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(desk->WhereFocusIs(), Focus::Control);
}

TEST_F(TextCells, WithoutACurrentCellNothingIsEntered)
{
    Grid().EnterEdit();
    Grid().ExitEdit();
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Said(), Lines {});
}

TEST_F(TextCells, EscapeKeepsWhatWasTyped)
{
    Edit(0, 0);
    SelectAll();
    Type(u"new");
    Press("Escape");
    EXPECT_EQ(Cell(0, 0), u"new");
    EXPECT_FALSE(Grid().IsEditMode());
}

TEST_F(TextCells, AMaskShapesTheValueAtEachOpening)
{
    Grid().SetColMask(0, u"00-00");
    Grid().SetText(0, 0, u"");
    Edit(0, 0);
    EXPECT_EQ(EditorText(), u"__-__");
    Grid().SetSelStart(0);
    Type(u"1234");
    EXPECT_EQ(EditorText(), u"12-34");
    EXPECT_EQ(Cell(0, 0), u"1234") << "without the literals";
    Press("Escape");
    Grid().EnterEdit();
    EXPECT_EQ(EditorText(), u"12-34");
    EXPECT_EQ(Cell(0, 0), u"1234") << "opening writes nothing";
}

TEST_F(TextCells, TheSameTextIsTypedIntoCellAfterCell)
{
    Grid().SetColMask(0, u"0");
    for (i16 row = 0; row < 3; ++row) {
        Grid().SetText(row, 0, u"");
        Edit(row, 0);
        Grid().SetSelStart(0);
        Type(u"1");
        EXPECT_EQ(Cell(row, 0), u"1") << row;
        EXPECT_THAT(Said(), testing::Contains(testing::StartsWith("TextChange"))) << row;
    }
}

TEST_F(TextCells, AMaskWithItsLiterals)
{
    Grid().SetTBoxIncludeLiteral(true);
    Grid().SetTBoxReplaceChar(u" ");
    Grid().SetColMask(0, u"00-00");
    Grid().SetText(0, 0, u"");
    Edit(0, 0);
    Grid().SetSelStart(0);
    Type(u"12");
    EXPECT_EQ(Cell(0, 0), u"12-  ");
}

TEST_F(TextCells, PromptAndReplacementReachTheMask)
{
    Grid().SetTBoxPromptChar(u".");
    Grid().SetTBoxReplaceChar(u"0");
    Grid().SetColMask(0, u"000");
    Grid().SetText(0, 0, u"");
    Edit(0, 0);
    EXPECT_EQ(EditorText(), u"...");
    Grid().SetSelStart(0);
    Type(u"7");
    EXPECT_EQ(Cell(0, 0), u"700");
}

TEST_F(TextCells, WhatIsPastedPassesTheMask)
{
    Grid().SetColMask(0, u"0000");
    Grid().SetText(0, 0, u"");
    Edit(0, 0);
    SelectAll();
    desk->Paste(u"12a4");
    EXPECT_EQ(EditorText(), u"12_4");
    EXPECT_EQ(Cell(0, 0), u"12a4") << "the value keeps what the form refuses to show";
    EXPECT_EQ(Said(), Lines { "TextChange 0 0" });
}

TEST_F(TextCells, WhatAnInputMethodComposesReachesTheMask)
{
    Grid().SetColMask(0, u">LL");
    Grid().SetText(0, 0, u"");
    Edit(0, 0);
    Grid().SetSelStart(0);
    desk->Compose(u"ab");
    EXPECT_EQ(EditorText(), u"AB");
    EXPECT_EQ(Said(), (Lines { "KeyDown 229 0", "KeyPress 97", "TextChange 0 0", "KeyPress 98", "TextChange 0 0" }));
    Press("Escape");
    Edit(1, 1);
    SelectAll();
    desk->Compose(u"\u00E9\u4E2D");
    EXPECT_EQ(Cell(1, 1), u"\u00E9\u4E2D");
}

TEST_F(TextCells, AFormatShapesTheTextOfTheEditor)
{
    Grid().SetColFormat(2, u"#,##0.00");
    Grid().SetText(0, 2, u"1234.5");
    Edit(0, 2);
    EXPECT_EQ(EditorText(), u"1,234.50");
    EXPECT_EQ(Cell(0, 2), u"1234.5");
    Grid().SetSelStart(0);
    Type(u"9");
    EXPECT_EQ(Cell(0, 2), u"91,234.50");
}

TEST_F(TextCells, ASelectionWrittenBeforeAppliesToTheNextEditorOnce)
{
    Grid().CurrentPos(0, 0);
    Grid().SetSelStart(1);
    Grid().SetSelLength(2);
    EXPECT_EQ(Grid().SelStart(), 1);
    EXPECT_EQ(Grid().SelLength(), 2);
    EXPECT_EQ(Grid().SelText(), u"");
    Grid().EnterEdit();
    EXPECT_EQ(Grid().SelText(), u"00");
    Grid().ExitEdit();
    EXPECT_EQ(Grid().SelStart(), 0);
    EXPECT_EQ(Grid().SelLength(), 0);
    Grid().EnterEdit();
    EXPECT_EQ(Grid().SelLength(), 0);
}

TEST_F(TextCells, SelTextIsWrittenThroughToTheCell)
{
    Grid().SetSelText(u"nobody");
    EXPECT_EQ(Said(), Lines {});
    Edit(0, 0);
    SelectAll();
    Grid().SetSelText(u"new");
    EXPECT_EQ(Cell(0, 0), u"new");
    EXPECT_EQ(Said(), Lines { "TextChange 0 0" });
}

TEST_F(TextCells, NegativeSelectionsAreRefused)
{
    for (const bool isOpen : { false, true }) {
        if (isOpen)
            Edit(0, 0);
        EXPECT_THROW(Grid().SetSelStart(-1), AutomationError);
        EXPECT_THROW(Grid().SetSelLength(-1), AutomationError);
    }
}

// -- Where the editor lies --

TEST_F(TextCells, TheEditorLiesInsideTheCell)
{
    Edit(1, 2);
    EXPECT_EQ(FramePlace(), (Rect { 304, 42, 304 + 95, 42 + 16 }));
    EXPECT_EQ(Host().Child(ChildName::txtTmp).Place(), (Rect { 0, 0, 95, 16 }));
}

TEST_F(TextCells, MarginsStyleAndAlignmentNarrowTheEditor)
{
    Grid().SetTextMarginLeft(1, 2, 10);
    Grid().SetTextMarginRight(1, 2, 7);
    Edit(1, 2);
    EXPECT_EQ(FramePlace(), (Rect { 314, 42, 314 + 78, 58 }));
    Grid().SetCellStyle(1, 2, vxCellBox);
    Edit(1, 2);
    EXPECT_EQ(FramePlace().Width(), 76);
    Grid().SetCellStyle(1, 2, vxCellFlat);
    Grid().SetTextAlignment(1, 2, vxTxtRight);
    Edit(1, 2);
    EXPECT_EQ(FramePlace().Width(), 76);
}

TEST_F(TextCells, AVeryNarrowOneOpensNothing)
{
    Grid().SetColWidth(1, 5);
    Grid().CurrentPos(0, 1);
    Grid().EnterEdit();
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Said(), Lines { "BeforeEdit 0 1" });
    Grid().SetColWidth(1, 6);
    Grid().EnterEdit();
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_EQ(FramePlace().Width(), 1);
}

TEST_F(TextCells, AVeryLowOneOpensNothing)
{
    Grid().SetRowHeight(0, 4);
    Grid().CurrentPos(0, 1);
    Grid().EnterEdit();
    EXPECT_FALSE(Grid().IsEditMode());
    Grid().SetRowHeight(0, 5);
    Grid().EnterEdit();
    EXPECT_EQ(FramePlace().Height(), 1);
}

TEST_F(TextCells, AFontWithoutASizeIsNoError)
{
    Grid().SetCellFontSize(0, 1, 0);
    Edit(0, 1);
    SelectAll();
    Type(u"x");
    EXPECT_EQ(Cell(0, 1), u"x");
}

TEST_F(TextCells, InASpanTheEditorCoversTheSpan)
{
    Grid().SetRowSpan(1, 1, 2);
    Grid().SetColSpan(1, 1, 2);
    Edit(1, 1);
    EXPECT_EQ(FramePlace(), (Rect { 204, 42, 204 + 195, 42 + 36 }));
    Type(u"x");
    EXPECT_NE(Cell(1, 1), u"t11");
}

TEST_F(TextCells, APartWhichIsOutsideComesIntoViewFirst)
{
    Grid().SetColWidth(3, 600);
    Edit(0, 3);
    const Rect frame = FramePlace();
    EXPECT_GE(frame.left, 100);
    EXPECT_LE(frame.right, 640);
}

TEST_F(TextCells, InSmoothModeTheEditorOpensOverTheWholeCell)
{
    Grid().SetScrollHBar(vxScrollSmooth);
    Grid().SetColWidth(3, 500);
    Grid().MoveScrollBar(ChildName::scrH, 30);
    Edit(0, 0);
    EXPECT_EQ(FramePlace(), (Rect { 104, 22, 199, 38 })) << "cut off, it came into view";
}

TEST_F(TextCells, TheEditorGrowsWithItsText)
{
    Grid().SetTBoxAutoResize(true);
    Edit(0, 0);
    SelectAll();
    const Rect before = FramePlace();
    Type(u"a text that is much longer than the cell is wide");
    const Rect after = FramePlace();
    EXPECT_GT(after.Width(), before.Width());
    EXPECT_EQ(after.left, before.left);
    EXPECT_LE(after.right, 640);
    EXPECT_EQ(Host().Child(ChildName::txtTmp).Place(), (Rect { 0, 0, after.Width(), after.Height() }));
    SelectAll();
    Type(u"x");
    EXPECT_EQ(FramePlace(), before);
}

TEST_F(TextCells, AnEditorThatGrowsStaysInTheWindow)
{
    Grid().SetTBoxAutoResize(true);
    Edit(5, 3);
    SelectAll();
    Type(u"a text that is much longer than the cell is wide and so passes the right edge of the window");
    EXPECT_LE(FramePlace().right, Grid().GetScaleWidth());
    EXPECT_LT(FramePlace().left, 404);
}

TEST_F(TextCells, GrowthIsSwitchedOnWhileTheEditorIsOpen)
{
    Edit(1, 1);
    Grid().SetTBoxAutoResize(true);
    const Rect before = FramePlace();
    SelectAll();
    Type(u"x");
    EXPECT_EQ(FramePlace(), before);
    Type(u" and much more than the cell has room for");
    EXPECT_GT(FramePlace().Width(), before.Width());
}

TEST_F(TextCells, SwitchingGrowthOffClosesTheEditor)
{
    Grid().SetTBoxAutoResize(true);
    Edit(0, 0);
    Grid().SetTBoxAutoResize(false);
    EXPECT_EQ(Said(), Lines { "AfterEdit 0 0" });
    EXPECT_FALSE(Grid().IsEditMode());
}

// -- What happens while it is open --

TEST_F(TextCells, APressOnTheCellBelongsToTheEditor)
{
    Edit(1, 1);
    Click(1, 1);
    EXPECT_EQ(Said(), Lines {});
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_EQ(desk->WhereFocusIs(), Focus::TextEditor);
}

TEST_F(TextCells, APressInTheFrameSelectsNothingThatKeysWereAboutTo)
{
    Grid().SetCellSelection(true);
    Grid().CurrentPos(1, 1);
    Press("Down", 1);
    Press("F2");
    ASSERT_TRUE(Grid().IsEditMode());
    const Point at { 2 * Width + 1, 2 * Height + 10 }; // beside the editor
    desk->ClickAt(at.x, at.y, 0);
    EXPECT_EQ(Grid().SelectCountCell(), 0);
}

TEST_F(TextCells, ADoubleClickInTheEditorIsOneOnTheCell)
{
    Edit(1, 1);
    const Point at = MiddleOf(1, 1);
    desk->DblClickAt(at.x, at.y);
    EXPECT_EQ(Said(), Lines { "CellDblClick 1 1" });
    EXPECT_TRUE(Grid().IsEditMode());
}

TEST_F(TextCells, ArrowsInsideTheTextStay)
{
    Edit(1, 1);
    Grid().SetSelStart(1);
    Press("Left");
    EXPECT_EQ(Grid().SelStart(), 0);
    Press("Right");
    EXPECT_EQ(Grid().SelStart(), 1);
    EXPECT_EQ(Grid().CurrentCol(), 1);
    Press("Right", 1);
    EXPECT_EQ(Grid().SelLength(), 1);
    Press("Down");
    EXPECT_EQ(Grid().CurrentRow(), 1) << "a selection is not left";
}

TEST_F(TextCells, ArrowsAtTheEdgeOfTheTableStay)
{
    Edit(5, 3);
    Grid().SetSelStart(3);
    Press("Right");
    Press("Down");
    EXPECT_EQ(Grid().CurrentRow(), 5);
    EXPECT_EQ(Grid().CurrentCol(), 3);
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_EQ(Said(), (Lines { "KeyDown 39 0", "KeyUp 39 0", "KeyDown 40 0", "KeyUp 40 0" }));
}

TEST_F(TextCells, ASelectionOfCellsIsEmptiedByOpening)
{
    Grid().SetSelectedCells(0, 0, 2, 2);
    Edit(1, 1);
    EXPECT_EQ(Grid().SelectCountCell(), 0);
}

TEST_F(TextCells, RefreshCellLoadsTheEditorAnew)
{
    Edit(1, 1);
    Grid().SetText(1, 1, u"other");
    EXPECT_EQ(EditorText(), u"t11");
    Grid().RefreshCell(1, 1);
    EXPECT_EQ(EditorText(), u"other");
    Grid().RefreshCell(0, 0);
    EXPECT_EQ(EditorText(), u"other");
}

TEST_F(TextCells, AChangeOfTheLayoutClosesTheEditor)
{
    Edit(1, 1);
    Grid().SetColWidth(1, 50);
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Said(), Lines { "AfterEdit 1 1" });
}

TEST_F(TextCells, AHandlerThatOpensItAgainFindsItWhereTheLayoutPutsTheCell)
{
    Edit(1, 1);
    bool isAgain = false;
    handlers.OnAfterEdit = [&](i16, i16) {
        if (!std::exchange(isAgain, true))
            Grid().EnterEdit();
    };
    Grid().SetColWidth(0, 150);
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_EQ(FramePlace().left, 254);
    EXPECT_EQ(EditorText(), u"t11");
}

TEST_F(TextCells, FixedColumnsThatComeOrGoCloseItsOwnCell)
{
    Edit(0, 2);
    Grid().SetFixedCols(2);
    EXPECT_EQ(Said(), Lines { "AfterEdit 0 2" });
    Edit(0, 3);
    Grid().SetFixedCols(0);
    EXPECT_EQ(Said(), Lines { "AfterEdit 0 3" });
}

TEST_F(TextCells, AHandlerMayWriteCountsWhileFixedRowsAreWritten)
{
    Edit(0, 0);
    handlers.OnAfterEdit = [&](i16, i16) { Grid().SetRows(100); };
    Grid().SetFixedRows(3);
    EXPECT_EQ(Grid().Rows(), 100);
    EXPECT_EQ(Grid().FixedRows(), 3);
    Grid().SetText(99, 3, u"last");
    EXPECT_EQ(Cell(99, 3), u"last");
}

TEST_F(TextCells, AnErrorInAfterEditLeavesNoSessionBehind)
{
    Edit(0, 0);
    SelectAll();
    Type(u"x");
    handlers.OnAfterEdit = [](i16, i16) { throw AutomationError(ErrorNumber::InvalidArgument, "by the host"); };
    EXPECT_THROW(Grid().SetColWidth(0, 50), AutomationError);
    handlers.OnAfterEdit = nullptr;
    EXPECT_FALSE(Grid().IsEditMode());
    Forget();
    Edit(1, 1);
    Press("Escape");
    EXPECT_EQ(Said().at(1), "AfterEdit 1 1");
}

TEST_F(TextCells, WhatAKeyDoesBehindAHandlerThatMovesOnGoesIntoNoOtherCell)
{
    Grid().SetColMask(0, u"000");
    Grid().SetText(0, 0, u"123");
    Grid().SetColMode(2, vxComboDropDownBox);
    Edit(0, 0);
    handlers.OnKeyDown = [&](i16&, i16&) {
        Grid().CurrentPos(1, 2);
        Grid().EnterEdit();
    };
    Grid().SetSelStart(0);
    Press("Delete");
    EXPECT_EQ(Cell(1, 2), u"t12");
    EXPECT_EQ(Cell(0, 0), u"123");
}

TEST_F(TextCells, EnterInACellOfSeveralLines)
{
    Edit(0, 0);
    SelectAll();
    Type(u"a");
    Press("Return");
    Type(u"b");
    EXPECT_EQ(Cell(0, 0), u"a\r\nb");
    Press("Up");
    EXPECT_EQ(Grid().CurrentRow(), 0) << "from the second line";
    EXPECT_TRUE(Grid().IsEditMode());
}

TEST_F(TextCells, LinesOfACellMayEndAsTheyDoElsewhere)
{
    Grid().SetText(0, 0, u"a\nb");
    Edit(0, 0);
    EXPECT_EQ(EditorText(), u"a\r\nb");
    EXPECT_EQ(Cell(0, 0), u"a\nb") << "opening writes nothing";
    Grid().SetSelStart(4);
    Type(u"c");
    EXPECT_EQ(Cell(0, 0), u"a\r\nbc");
}

TEST_F(TextCells, APressThatLeavesTheEditorOpenLeavesItTheFocus)
{
    Edit(0, 0);
    const Point beside { Width + 1, Height + 10 };
    desk->ClickAt(beside.x, beside.y, 0);
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_EQ(desk->WhereFocusIs(), Focus::TextEditor);
}

TEST_F(TextCells, AKeyThatIsExchangedDoesWhatItWasPressedFor)
{
    Edit(0, 0);
    Grid().SetSelStart(1);
    handlers.OnKeyDown = [](i16& KeyCode, i16&) {
        if (KeyCode == 46)
            KeyCode = 39;
    };
    Press("Delete");
    EXPECT_EQ(Cell(0, 0), u"t0");
    handlers.OnKeyDown = nullptr;
    handlers.OnKeyPress = [](i16& KeyAscii) { KeyAscii = u'X'; };
    Type(u"a");
    EXPECT_EQ(Cell(0, 0), u"tX0");
}

TEST_F(TextCells, EnterInACellOfOneLineDoesNothing)
{
    Grid().SetTextAlignment(0, 0, vxSingleLine);
    Edit(0, 0);
    SelectAll();
    Type(u"a");
    Press("Return");
    EXPECT_EQ(Cell(0, 0), u"a");
    EXPECT_EQ(Grid().CurrentRow(), 0);
}

TEST_F(TextCells, RightToLeftAndRightAlignedOnesAreEdited)
{
    Grid().SetTextAlignment(0, 0, 131072);
    Grid().SetText(0, 0, u"\u05D0\u05D1");
    Edit(0, 0);
    Grid().SetSelStart(2);
    Type(u"x");
    EXPECT_EQ(Cell(0, 0), u"\u05D0\u05D1x");
    Press("Escape");
    Grid().SetTextAlignment(0, 1, vxTxtRight);
    Edit(0, 1);
    SelectAll();
    Type(u"r");
    EXPECT_EQ(Cell(0, 1), u"r");
}

TEST_F(TextCells, FixedOnesAreEditedToo)
{
    Grid().SetCellMode(-1, 1, vxTextBox);
    Grid().CurrentPos(-1, 1);
    Grid().EnterEdit();
    EXPECT_TRUE(Grid().IsEditMode());
    EXPECT_EQ(FramePlace().top, 2);
    SelectAll();
    Type(u"head");
    EXPECT_EQ(Cell(-1, 1), u"head");
}

} // namespace vornix
