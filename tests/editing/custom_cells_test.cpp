// Cells that a window of the host edits, as far as every container can show it.
#include "editing/editing_fixture.h"

namespace vornix {

class CustomCells : public EditingTest {
protected:
    CustomCells() { Grid().SetColMode(1, vxCustom); }
};

TEST_F(CustomCells, WithoutAWindowOnlyTheFrameShows)
{
    Edit(1, 1);
    EXPECT_EQ(FramePlace(), (Rect { 200, 40, 300, 60 }));
    EXPECT_FALSE(Host().Child(ChildName::txtTmp).IsVisible());
    EXPECT_FALSE(Host().Child(ChildName::cboTmp).IsVisible());
    Press("Escape");
}

TEST_F(CustomCells, TheHostIsAskedForTheWindow)
{
    Grid().SetTextMarginLeft(1, 1, 4);
    Grid().CurrentPos(1, 1);
    Forget();
    Grid().EnterEdit();
    EXPECT_EQ(Said(), (Lines { "BeforeEdit 1 1", "BeforeCustom 1 1 204 40 96 20" }));
}

TEST_F(CustomCells, AVeryNarrowOneAsksForNone)
{
    Grid().SetColWidth(1, 1);
    Grid().CurrentPos(1, 1);
    Forget();
    Grid().EnterEdit();
    EXPECT_EQ(Said(), Lines { "BeforeEdit 1 1" });
    EXPECT_FALSE(Grid().IsEditMode());
}

TEST_F(CustomCells, AnUnknownWindowDoesNoHarm)
{
    handlers.OnBeforeCustom = [&](i16, i16, i32&, i32&, i32&, i32&) { Grid().SetCustomhWnd(123456789); };
    Edit(1, 1);
    EXPECT_TRUE(Grid().IsEditMode());
    Grid().ExitEdit();
    EXPECT_FALSE(Grid().IsEditMode());
}

TEST_F(CustomCells, ItsSelectionIsThatOfTheNextEditor)
{
    Edit(1, 1);
    Grid().SetSelStart(2);
    EXPECT_EQ(Grid().SelStart(), 2);
    EXPECT_EQ(Grid().SelText(), u"");
    Grid().CurrentPos(1, 2);
    Grid().EnterEdit();
    EXPECT_EQ(Grid().SelStart(), 2);
}

TEST_F(CustomCells, AHandlerMayCloseTheEditorWhileItIsAsked)
{
    handlers.OnBeforeCustom = [&](i16, i16, i32&, i32&, i32&, i32&) { Grid().ExitEdit(); };
    Grid().CurrentPos(1, 1);
    Grid().EnterEdit();
    EXPECT_FALSE(Grid().IsEditMode());
    handlers.OnBeforeCustom = [&](i16, i16, i32&, i32&, i32&, i32&) { Grid().SetRows(1); };
    Grid().EnterEdit();
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_FALSE(Grid().IsEditMode());
}

TEST_F(CustomCells, AKeyMoveLeavesItLikeAnyOther)
{
    Edit(1, 0);
    Grid().SetSelStart(3);
    Press("Right");
    EXPECT_THAT(Said(), testing::IsSupersetOf({ "AfterEdit 1 0", "BeforeEdit 1 1", "BeforeCustom 1 1 200 40 100 20" }));
    Click(3, 0);
    EXPECT_THAT(Said(), testing::Contains("AfterEdit 1 1"));
}

} // namespace vornix
