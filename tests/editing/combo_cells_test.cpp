// Combo cells: the list, what is typed and what is picked.
#include "editing/editing_fixture.h"

namespace vornix {

class ComboCells : public EditingTest {
protected:
    // Column 1 is typed into, column 2 only picked from.
    ComboCells()
    {
        Grid().SetColMode(1, vxComboDropDownBox);
        Grid().SetColMode(2, vxComboListBox);
        for (const char16_t* const city : { u"Bergen", u"Oslo", u"Aarhus", u"Aalborg", u"aalesund" })
            Grid().ComboAddItem(city);
        Grid().SetText(0, 1, u"free");
        Grid().SetText(0, 2, u"Oslo");
        Forget();
    }
    std::u16string Key(i16 Row, i16 Col) { return Grid().Key(Row, Col); }
};

// -- The list --

TEST_F(ComboCells, TheListIsKeptBetweenEditors)
{
    EXPECT_EQ(Grid().ComboListCount(), 5);
    EXPECT_EQ(Grid().ComboList(2), u"Aarhus");
    EXPECT_EQ(Grid().ComboNewIndex(), 4);
    EXPECT_EQ(Grid().ComboListIndex(), -1);
    Edit(0, 1);
    Press("Escape");
    EXPECT_EQ(Grid().ComboListCount(), 5);
    Grid().ComboClear();
    EXPECT_EQ(Grid().ComboListCount(), 0);
    EXPECT_EQ(Grid().ComboNewIndex(), -1);
}

TEST_F(ComboCells, RowsAreAddedAndTakenAwayAnywhere)
{
    Grid().ComboAddItem(u"Lund", 1);
    EXPECT_EQ(Grid().ComboNewIndex(), 1);
    EXPECT_EQ(Grid().ComboList(1), u"Lund");
    EXPECT_EQ(Grid().ComboList(2), u"Oslo");
    Grid().SetComboItemData(1, 7);
    Grid().SetComboList(1, u"Malm\u00F6");
    EXPECT_EQ(Grid().ComboList(1), u"Malm\u00F6");
    EXPECT_EQ(Grid().ComboItemData(1), 7);
    EXPECT_EQ(Grid().ComboItemData(0), 0);
    Grid().ComboRemoveItem(1);
    EXPECT_EQ(Grid().ComboNewIndex(), -1);
    EXPECT_EQ(Grid().ComboList(1), u"Oslo");
}

TEST_F(ComboCells, TheSelectedRowIsFollowed)
{
    Grid().SetComboListIndex(1);
    Grid().ComboAddItem(u"first", 0);
    EXPECT_EQ(Grid().ComboListIndex(), 2);
    Grid().ComboRemoveItem(0);
    EXPECT_EQ(Grid().ComboListIndex(), 1);
    Grid().ComboAddItem(u"last");
    EXPECT_EQ(Grid().ComboListIndex(), 1);
    Grid().ComboRemoveItem(1);
    EXPECT_EQ(Grid().ComboListIndex(), -1);
}

TEST_F(ComboCells, RowsOutsideTheListAreRefused)
{
    const auto errorOf = [](const std::function<void()>& step) {
        try {
            step();
        } catch (const AutomationError& error) {
            return error.Number();
        }
        return 0;
    };
    for (const i16 index : std::initializer_list<i16> { -1, 5, 32767, -32768 }) {
        EXPECT_EQ(errorOf([&] { Grid().ComboRemoveItem(index); }), 9) << index;
        EXPECT_EQ(errorOf([&] { Grid().ComboList(index); }), 9) << index;
        EXPECT_EQ(errorOf([&] { Grid().SetComboList(index, u""); }), 9) << index;
        EXPECT_EQ(errorOf([&] { Grid().ComboItemData(index); }), 9) << index;
        EXPECT_EQ(errorOf([&] { Grid().SetComboItemData(index, 1); }), 9) << index;
    }
    EXPECT_EQ(errorOf([&] { Grid().ComboAddItem(u"x", 6); }), 9);
    EXPECT_EQ(errorOf([&] { Grid().ComboAddItem(u"x", -1); }), 9);
    EXPECT_EQ(errorOf([&] { Grid().SetComboListIndex(5); }), 9);
    EXPECT_EQ(errorOf([&] { Grid().SetComboListIndex(-2); }), 9);
    EXPECT_EQ(Grid().ComboListCount(), 5);
}

TEST_F(ComboCells, AHundredThousandRowsAreSearched)
{
    Grid().ComboClear();
    for (int i = 0; i < 100000; ++i)
        Grid().ComboAddItem(i == 99999 ? u"zulu" : u"row");
    EXPECT_THROW(Grid().ComboListCount(), AutomationError) << "more than 16 bits count";
    Edit(1, 2);
    Type(u"zu");
    EXPECT_EQ(Cell(1, 2), u"zulu");
    EXPECT_EQ(Combo().ListIndex(), 99999);
    EXPECT_THROW(Grid().ComboListIndex(), AutomationError);
}

// -- Opening --

TEST_F(ComboCells, TheStartValueIsTheCellsText)
{
    Edit(0, 1);
    EXPECT_EQ(Combo().Text(), u"free");
    EXPECT_EQ(Combo().ListIndex(), -1);
    EXPECT_EQ(desk->WhereFocusIs(), Focus::ComboEditor);
    Press("Escape");
    Edit(0, 2);
    EXPECT_EQ(Combo().Text(), u"Oslo");
    EXPECT_EQ(Grid().ComboListIndex(), 1);
    EXPECT_EQ(Cell(0, 2), u"Oslo");
}

TEST_F(ComboCells, ATextInNoRowOpensAnEmptyListAndStaysUntilARowIsChosen)
{
    Grid().SetText(1, 2, u"oslo"); // case matters here
    Edit(1, 2);
    EXPECT_EQ(Combo().Text(), u"");
    EXPECT_EQ(Cell(1, 2), u"oslo");
    EXPECT_EQ(Said(), Lines {});
    desk->ClickItem(0);
    EXPECT_EQ(Cell(1, 2), u"Bergen");
    EXPECT_EQ(Said(), Lines { "TextChange 1 2" });
}

TEST_F(ComboCells, TheHostFillsTheListAndSetsAStartValueInBeforeEdit)
{
    handlers.OnBeforeEdit = [&](i16 Row, i16) {
        Grid().ComboClear();
        Grid().ComboAddItem(u"row " + Digit(Row));
        Grid().ComboAddItem(u"other");
        Grid().SetComboListIndex(1);
    };
    Edit(3, 1);
    EXPECT_EQ(Combo().Text(), u"other");
    EXPECT_EQ(Cell(3, 1), u"t31") << "choosing before the editor shows changes no cell";
    EXPECT_EQ(Grid().ComboList(0), u"row 3");
}

TEST_F(ComboCells, TheEditorLiesOverTheCell)
{
    Edit(1, 1);
    EXPECT_EQ(FramePlace(), (Rect { 200, 40, 299, 59 }));
    const Rect box = Host().Child(ChildName::cboTmp).Place();
    EXPECT_EQ(box.left, 0);
    EXPECT_EQ(box.top, 0);
    EXPECT_EQ(box.Width(), 99);
}

TEST_F(ComboCells, AVeryNarrowOneOpensNothing)
{
    Grid().SetTextMarginLeft(1, 1, 99);
    Grid().CurrentPos(1, 1);
    Grid().EnterEdit();
    EXPECT_FALSE(Grid().IsEditMode());
    Grid().SetTextMarginLeft(1, 1, 98);
    Grid().EnterEdit();
    EXPECT_TRUE(Grid().IsEditMode());
}

TEST_F(ComboCells, ASelectionWrittenBeforeApplies)
{
    Grid().CurrentPos(0, 1);
    Grid().SetSelStart(1);
    Grid().SetSelLength(2);
    Grid().EnterEdit();
    EXPECT_EQ(Grid().SelText(), u"re");
}

// -- Picking --

TEST_F(ComboCells, AClickOnARowTakesTextAndNumber)
{
    Grid().SetComboItemData(3, -42);
    Edit(0, 1);
    desk->ClickItem(3);
    EXPECT_EQ(Cell(0, 1), u"Aalborg");
    EXPECT_EQ(Key(0, 1), u"-42");
    EXPECT_EQ(Said(), Lines { "TextChange 0 1" });
    EXPECT_TRUE(Grid().IsEditMode());
}

TEST_F(ComboCells, AClickOnTheRowThatIsSelectedChangesNoText)
{
    Edit(0, 2);
    desk->ClickItem(1);
    EXPECT_EQ(Cell(0, 2), u"Oslo");
    EXPECT_EQ(Key(0, 2), u"0") << "rewritten all the same";
    EXPECT_EQ(Said(), Lines {});
}

TEST_F(ComboCells, WritingTheIndexCountsAsAClick)
{
    Edit(0, 1);
    Grid().SetComboListIndex(2);
    EXPECT_EQ(Cell(0, 1), u"Aarhus");
    EXPECT_EQ(Said(), Lines { "TextChange 0 1" });
    Grid().SetComboListIndex(-1);
    EXPECT_EQ(Cell(0, 1), u"");
    EXPECT_EQ(Said(), Lines { "TextChange 0 1" });
    Press("Escape");
    Grid().SetComboListIndex(2);
    EXPECT_EQ(Cell(0, 1), u"") << "no editor shows";
}

TEST_F(ComboCells, UpAndDownWalkTheListAndNeverTheGrid)
{
    Edit(2, 2);
    Press("Down");
    EXPECT_EQ(Cell(2, 2), u"Bergen");
    Press("Down");
    EXPECT_EQ(Cell(2, 2), u"Oslo");
    Press("Up");
    EXPECT_EQ(Cell(2, 2), u"Bergen");
    Press("Up");
    Press("Up");
    EXPECT_EQ(Grid().CurrentRow(), 2);
    EXPECT_EQ(Grid().CurrentCol(), 2);
    EXPECT_THAT(Said(), testing::Not(testing::Contains(testing::StartsWith("CellChange"))));
}

// -- Typing --

TEST_F(ComboCells, WhatIsTypedGoesIntoTheCellFreeOfTheList)
{
    Grid().SetKey(0, 1, u"old");
    Edit(0, 1);
    SelectAll();
    Type(u"Os");
    EXPECT_EQ(Cell(0, 1), u"Os");
    EXPECT_EQ(Key(0, 1), u"") << "no row, no key";
    EXPECT_EQ(Said(),
        (Lines { "KeyDown 79 1", "KeyPress 79", "TextChange 0 1", "KeyUp 79 1", "KeyDown 83 0", "KeyPress 115",
            "TextChange 0 1", "KeyUp 83 0" }));
}

TEST_F(ComboCells, SelTextCountsAsTyping)
{
    Edit(0, 1);
    SelectAll();
    Grid().SetSelText(u"new");
    EXPECT_EQ(Cell(0, 1), u"new");
    EXPECT_EQ(Said(), Lines { "TextChange 0 1" });
}

TEST_F(ComboCells, TypingSearchesAListInAnyCase)
{
    Edit(1, 2);
    Type(u"AA");
    EXPECT_EQ(Cell(1, 2), u"Aarhus");
    EXPECT_EQ(Grid().SelStart(), 0);
    EXPECT_EQ(Grid().SelLength(), 2);
    Type(u"le");
    EXPECT_EQ(Cell(1, 2), u"aalesund");
    EXPECT_EQ(Grid().ComboListIndex(), 4);
    EXPECT_EQ(Grid().SelLength(), 4);
}

TEST_F(ComboCells, APauseStartsTheSearchOver)
{
    Edit(1, 2);
    Type(u"a");
    EXPECT_EQ(Cell(1, 2), u"Aarhus");
    desk->Tick();
    Type(u"o");
    EXPECT_EQ(Cell(1, 2), u"Oslo");
}

TEST_F(ComboCells, ASearchThatFindsNothingLeavesTheRow)
{
    Edit(0, 2);
    Forget();
    Type(u"x");
    EXPECT_EQ(Combo().Text(), u"Oslo");
    EXPECT_EQ(Cell(0, 2), u"Oslo");
    EXPECT_EQ(Said(), (Lines { "KeyDown 88 0", "KeyPress 120", "KeyUp 88 0" }));
}

TEST_F(ComboCells, ASearchEndsWithTheCell)
{
    Edit(1, 2);
    Type(u"a");
    Press("Escape");
    Edit(2, 2);
    Type(u"o");
    EXPECT_EQ(Cell(2, 2), u"Oslo");
}

TEST_F(ComboCells, WhatTheHostTakesSearchesNothing)
{
    handlers.OnKeyPress = [](i16& KeyAscii) { KeyAscii = 0; };
    Edit(0, 2);
    Type(u"b");
    EXPECT_EQ(Cell(0, 2), u"Oslo");
    Press("Escape");
    Edit(0, 1);
    Type(u"b");
    EXPECT_EQ(Cell(0, 1), u"free");
}

TEST_F(ComboCells, AnErrorOfAHandlerDoesNotEndASearch)
{
    handlers.OnTextChange = [](i16, i16) { throw AutomationError(ErrorNumber::InvalidArgument, "by the host"); };
    Edit(1, 2);
    EXPECT_NO_THROW(Type(u"o"));
    EXPECT_EQ(Cell(1, 2), u"Oslo");
    EXPECT_EQ(Grid().SelLength(), 1);
}

TEST_F(ComboCells, TheListIsFilledAnewWhileItIsTypedInto)
{
    Edit(0, 1);
    SelectAll();
    handlers.OnTextChange = [&](i16, i16) {
        Grid().ComboClear();
        Grid().ComboAddItem(u"Os and more", 0);
    };
    Type(u"Os");
    EXPECT_EQ(Cell(0, 1), u"Os");
    EXPECT_EQ(Combo().Text(), u"Os");
}

TEST_F(ComboCells, RowsThatComeAndGoLeaveTheSelectionInTheField)
{
    Edit(0, 1);
    desk->ClickItem(2);
    SelectAll();
    Grid().ComboAddItem(u"first", 0);
    EXPECT_EQ(Grid().SelText(), u"Aarhus");
    EXPECT_EQ(Grid().ComboListIndex(), 3);
    Grid().ComboRemoveItem(3);
    EXPECT_EQ(Combo().Text(), u"Aarhus");
    EXPECT_EQ(Grid().ComboListIndex(), -1);
}

TEST_F(ComboCells, TheIndexOfAListThatDoesNotShowWritesNoCell)
{
    Edit(0, 0);
    Grid().SetComboListIndex(0);
    EXPECT_EQ(Cell(0, 0), u"t00");
    EXPECT_EQ(Said(), Lines {});
}

TEST_F(ComboCells, SelTextWritesNothingWhereOnlyRowsArePicked)
{
    Edit(0, 2);
    SelectAll();
    Grid().SetSelText(u"free");
    EXPECT_EQ(Combo().Text(), u"Oslo");
    EXPECT_EQ(Cell(0, 2), u"Oslo");
    EXPECT_EQ(Grid().ComboListIndex(), 1);
}

TEST_F(ComboCells, AKeyInsideAKeyIsIgnored)
{
    int keys = 0;
    handlers.OnKeyDown = [&](i16&, i16&) {
        if (++keys == 1)
            Press("Down");
    };
    Edit(0, 1);
    Press("Down");
    EXPECT_EQ(keys, 1);
    Press("Down");
    EXPECT_EQ(keys, 2) << "only while the other one lasts";
}

TEST_F(ComboCells, RightToLeftOnesAreEdited)
{
    Grid().SetTextAlignment(0, 1, 131072);
    Edit(0, 1);
    SelectAll();
    Type(u"x");
    EXPECT_EQ(Cell(0, 1), u"x");
}

// -- Leaving --

TEST_F(ComboCells, ArrowsLeaveAtTheEdgesOfTheText)
{
    Edit(0, 1);
    Grid().SetSelStart(2);
    Press("Left");
    EXPECT_EQ(Grid().CurrentCol(), 1);
    Grid().SetSelStart(0);
    Forget();
    Press("Left");
    EXPECT_EQ(Said(), (Lines { "KeyDown 37 0", "AfterEdit 0 1", "CellChange 0 0 0", "BeforeEdit 0 0", "KeyUp 37 0" }));
    Edit(0, 1);
    Grid().SetSelStart(4);
    Press("Right");
    EXPECT_EQ(Grid().CurrentCol(), 2);
    EXPECT_EQ(desk->WhereFocusIs(), Focus::ComboEditor);
}

TEST_F(ComboCells, ATextThatIsSelectedWholeIsLeftOnBothSides)
{
    for (const char* const key : { "Left", "Right" }) {
        Edit(0, 1);
        SelectAll();
        Press(key);
        EXPECT_NE(Grid().CurrentCol(), 1) << key;
    }
    Edit(0, 1);
    Grid().SetSelStart(0);
    Grid().SetSelLength(2);
    Press("Left");
    EXPECT_EQ(Grid().CurrentCol(), 1) << "a part of it keeps the arrow";
    SelectAll();
    Press("Left", 1);
    EXPECT_EQ(Grid().CurrentCol(), 1) << "with Shift it stays in the text";
}

TEST_F(ComboCells, EscapeClosesAndKeepsTheValue)
{
    Edit(0, 1);
    desk->ClickItem(0);
    Forget();
    Press("Escape");
    EXPECT_EQ(Said().at(1), "AfterEdit 0 1");
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Cell(0, 1), u"Bergen");
}

TEST_F(ComboCells, AHandlerMayCloseTheEditorInTheMiddleOfASearch)
{
    handlers.OnTextChange = [&](i16, i16) { Grid().ExitEdit(); };
    Edit(1, 2);
    Type(u"o");
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Cell(1, 2), u"Oslo");
    handlers.OnTextChange = [&](i16, i16) { Grid().SetRows(1); };
    Edit(2, 2);
    desk->ClickItem(0);
    EXPECT_FALSE(Grid().IsEditMode());
}

TEST_F(ComboCells, ADisabledOneDoesNotOpen)
{
    Grid().SetCellEnabled(0, 1, false);
    Grid().CurrentPos(0, 1);
    Grid().EnterEdit();
    EXPECT_FALSE(Grid().IsEditMode());
}

} // namespace vornix
