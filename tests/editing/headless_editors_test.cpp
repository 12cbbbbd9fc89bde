// What only the container without a screen can tell of its editors.
#include "editing/editing_fixture.h"
#include "vornix/headless_container.h"

namespace vornix {

class HeadlessEditors : public EditingTest {
protected:
    HeadlessContainer& Container() { return dynamic_cast<HeadlessContainer&>(Host()); }
};

TEST_F(HeadlessEditors, TheTimerWaitsHalfASecondForTheNextKeyOfASearch)
{
    Grid().SetColMode(2, vxComboListBox);
    Grid().ComboAddItem(u"Oslo");
    Edit(0, 2);
    Type(u"o");
    EXPECT_TRUE(Container().IsTimerEnabled());
    EXPECT_EQ(Container().TimerInterval(), 500);
    Click(3, 3);
    EXPECT_EQ(Container().TimerInterval(), 100) << "the pointer is watched again";
}

TEST_F(HeadlessEditors, TheFrameHasTheColourOfTheCell)
{
    Grid().SetColMode(1, vxCustom);
    Grid().SetCellBackColor(1, 1, 0x80FF00);
    Edit(1, 1);
    EXPECT_EQ(Container().EditFrame().BackColor(), 0x80FF00u);
    Grid().SetCellBackColor(1, 1, 0x0000FF);
    Grid().RefreshCell(1, 1);
    EXPECT_EQ(Container().EditFrame().BackColor(), 0x0000FFu);
}

TEST_F(HeadlessEditors, TheWindowOfTheHostGoesWhereTheHandlerSays)
{
    Grid().SetColMode(1, vxCustom);
    handlers.OnBeforeCustom = [&](i16, i16, i32& x, i32& y, i32& width, i32& height) {
        Grid().SetCustomhWnd(4711);
        x -= 10;
        y += 5;
        width = 300;
        height = 2147483647;
    };
    Edit(1, 1);
    const HeadlessHostWindow& window = *Container().HostWindow(4711);
    EXPECT_TRUE(window.IsVisible());
    EXPECT_EQ(window.Place(), (Rect { 190, 45, 490, 2147483647 })) << "cut at the edge of the numbers";
    Grid().ExitEdit();
    EXPECT_FALSE(window.IsVisible());
}

TEST_F(HeadlessEditors, ThePointerOverTheEditorIsOverItsCell)
{
    Edit(1, 1);
    Container().MouseMove(10, 470);
    Forget();
    Container().EditBox().MouseMove(0, 0, 5, 5);
    std::vector<std::string> names;
    for (const LoggedEvent& event : desk->Log().Events())
        names.push_back(event.name);
    EXPECT_EQ(names, (std::vector<std::string> { "MouseMove", "CellOver" }));
    EXPECT_EQ(desk->Log().Events()[0]["x"].ToDouble(), 209);
    EXPECT_EQ(desk->Log().Events()[0]["y"].ToDouble(), 47);
    EXPECT_EQ(desk->Log().Events()[1]["Row"].ToDouble(), 1);
}

} // namespace vornix
