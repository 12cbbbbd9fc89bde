// Handlers that do anything at all while a cell is edited: at every event of a session in any kind of editor. Whatever
// comes out is a grid that still holds together, or an automation error.
#include "support/handler_deeds.h"

namespace vornix {
namespace {

class EditingHandlers : public HandlerDeeds {
protected:
    EditingHandlers() { size = { 300, 140 }; }

    void FillGrid() override
    {
        Vornix& grid = Grid();
        grid.SetRedraw(false);
        grid.SetFixedRows(1);
        grid.SetFixedCols(1);
        grid.SetRows(20);
        grid.SetCols(6);
        for (i16 Col = 0; Col < 6; ++Col)
            grid.SetColWidth(Col, 40);
        grid.SetColMode(0, vxTextBox);
        grid.SetColMode(1, vxTextBox);
        grid.SetColMask(1, u"00-00");
        grid.SetColMode(2, vxComboDropDownBox);
        grid.SetColMode(3, vxComboListBox);
        grid.SetColMode(4, vxCustom);
        for (const char16_t* const item : { u"one", u"two", u"ten" })
            grid.ComboAddItem(item);
        for (i16 Row = 0; Row < 20; ++Row) {
            grid.SetText(Row, 0, u"text");
            grid.SetText(Row, 2, u"two");
            grid.SetText(Row, 3, u"two");
        }
        grid.SetCellStyle(1, 0, vxCustomDraw);
        grid.SetRedraw(true);
    }

    Steps AllSteps() override
    {
        return {
            [&] { host->ClickAt(50, 50); },
            [&] { host->Type(u"ab"); },
            [&] { host->Press("Down"); },
            [&] { host->Press("End"); },
            [&] { host->Press("Right"); },
            [&] { host->Type(u"1x2"); },
            [&] { host->Press("Back"); },
            [&] { host->EditBox().Paste(u"9876"); },
            [&] { Grid().SetSelText(u"5"); },
            [&] { host->Press("Escape"); },
            [&] { host->Press("F2"); },
            [&] { host->ClickAt(130, 70); },
            [&] { host->Type(u"w"); },
            [&] { host->ComboBox().ClickItem(0); },
            [&] { host->Press("Down"); },
            [&] { host->Press("Left"); },
            [&] { host->ClickAt(170, 90); },
            [&] { host->Type(u"te"); },
            [&] { host->Tick(); },
            [&] { host->Type(u"o"); },
            [&] { Grid().SetComboListIndex(1); },
            [&] { host->ClickAt(210, 50); },
            [&] { host->ClickAt(50, 30); },
            [&] { Grid().SetTBoxAutoResize(!Grid().TBoxAutoResize()); },
            [&] { host->Type(u"a long text that grows"); },
            [&] { Grid().RefreshCell(0, 0); },
            [&] { host->DblClickAt(50, 30); },
            [&] { host->Wheel(-240); },
            [&] { host->ExitFocus(); },
            [&] { host->EnterFocus(); },
            [&] { host->Press("F2"); },
            [&] { host->Paint(); },
        };
    }

    // What holds whatever was done.
    void CheckWhole() override
    {
        Vornix& grid = Grid();
        EXPECT_FALSE(grid.IsInCall());
        EXPECT_FALSE(grid.IsEditMode() && grid.Rows() == 0 && grid.FixedRows() == 0) << "an editor over no cell";
        EXPECT_FALSE(host->Child(ChildName::txtTmp).IsVisible() && host->Child(ChildName::cboTmp).IsVisible());
        if (!grid.IsEditMode()) {
            EXPECT_FALSE(host->HasFocus(ChildName::txtTmp));
            EXPECT_FALSE(host->HasFocus(ChildName::cboTmp));
        }
        // Refresh lays out anew, which closes the editor.
        if (grid.IsEditMode())
            host->Paint();
        else if (grid.Redraw())
            Try([&] { grid.Refresh(); });
    }
};

// Without deeds all of them are raised at least once.
TEST_F(EditingHandlers, AreReachedByAllEventsOfASession)
{
    MakeGrid();
    LiveThroughIt();
    for (const char* const event : { "AfterEdit", "BeforeCustom", "BeforeEdit", "CellChange", "CellClick",
             "CellDblClick", "Click", "DrawCell", "KeyDown", "KeyPress", "KeyUp", "TextChange", "ValidateRow" })
        EXPECT_GT(host->Count(event), 0) << event;
}

class EditingHandlersOf : public EditingHandlers, public testing::WithParamInterface<const char*> { };

TEST_P(EditingHandlersOf, MayDoAnythingToTheGrid)
{
    TryAll(Deeds(), GetParam(), { 1, 2, 4 });
}

TEST_P(EditingHandlersOf, MayDoAnythingToTheEditors)
{
    TryAll(EditingDeeds(), GetParam(), { 1, 2, 4 });
}

INSTANTIATE_TEST_SUITE_P(Session, EditingHandlersOf,
    testing::Values("AfterEdit", "BeforeCustom", "BeforeEdit", "CellChange", "CellClick", "CellDblClick", "Click",
        "DrawCell", "KeyDown", "KeyPress", "KeyUp", "TextChange", "ValidateRow"),
    [](const auto& event) { return std::string(event.param); });

} // namespace
} // namespace vornix
