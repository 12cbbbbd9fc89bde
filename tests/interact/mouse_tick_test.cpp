// The watch that notices a pointer which left without a move, on a container that says where it is.
#include "control/control.h"
#include "interact/mouse_fixture.h"

namespace vornix {
namespace {

class PlacedPointer : public HeadlessContainer {
public:
    using HeadlessContainer::HeadlessContainer;
    PointerLocation LocatePointer() const override { return location; }
    PointerLocation location;
};

class MouseTick : public testing::Test {
protected:
    MouseTick()
    {
        host.Resize(400, 300);
        host.Grid().SetFixedRows(1);
        host.Grid().SetFixedCols(1);
        host.Grid().SetRows(8);
        host.Grid().SetCols(3);
        host.MouseMove(100, 50);
        host.ClearLog();
    }
    void TickOver(PointerLocation::Window window, Point place, ChildName child = ChildName::scrV)
    {
        host.location = { window, child, place };
        host.Tick();
    }

    PlacedPointer host;
};

using Window = PointerLocation::Window;

TEST_F(MouseTick, EndsHoveringAndItselfWhenThePointerHasLeft)
{
    TickOver(Window::Elsewhere, { -50, 50 });
    ASSERT_EQ(host.Count("CellOut"), 1);
    EXPECT_EQ(host.Log().size(), 1u);
    EXPECT_FALSE(host.IsTimerEnabled());
    TickOver(Window::Elsewhere, { -50, 50 });
    EXPECT_EQ(host.Log().size(), 1u);
}

TEST_F(MouseTick, EndsHoveringOverABar)
{
    TickOver(Window::Child, { 390, 50 }, ChildName::scrV);
    EXPECT_EQ(host.Count("CellOut"), 1);
}

TEST_F(MouseTick, GoesOnOverTheEditor)
{
    for (const ChildName child : { ChildName::fraEdit, ChildName::txtTmp }) {
        TickOver(Window::Child, { 5, 5 }, child);
        EXPECT_EQ(host.Count("CellOut"), 0);
        EXPECT_TRUE(host.IsTimerEnabled());
    }
}

TEST_F(MouseTick, EndsItselfDeepInside)
{
    for (const Point inside : { Point { 21, 21 }, Point { 359, 259 }, Point { 21, 259 }, Point { 359, 21 } }) {
        host.MouseMove(100, 50);
        TickOver(Window::Control, inside);
        EXPECT_FALSE(host.IsTimerEnabled()) << inside.x << ' ' << inside.y;
        EXPECT_EQ(host.Count("CellOut"), 0);
    }
}

TEST_F(MouseTick, GoesOnNearTheEdges)
{
    for (const Point edge : { Point { 20, 100 }, Point { 100, 20 }, Point { 360, 100 }, Point { 100, 260 } }) {
        TickOver(Window::Control, edge);
        EXPECT_TRUE(host.IsTimerEnabled()) << edge.x << ' ' << edge.y;
    }
}

TEST_F(MouseTick, GoesOnDeepInsideOverACombo)
{
    TickOver(Window::Child, { 200, 100 }, ChildName::cboTmp);
    EXPECT_TRUE(host.IsTimerEnabled());
}

TEST_F(MouseTick, HoversOnUnderACombo)
{
    TickOver(Window::Child, { 200, 50 }, ChildName::cboTmp);
    std::vector<std::string> names;
    for (const LoggedEvent& event : host.Log())
        names.push_back(event.name);
    EXPECT_EQ(names, (std::vector<std::string> { "MouseMove", "CellOut", "CellOver" }));
    EXPECT_EQ(host.Log()[2]["Col"].ToDouble(), 1);
}

TEST_F(MouseTick, IsNothingOnAControlWithoutATable)
{
    PlacedPointer empty;
    empty.Tick();
    EXPECT_TRUE(empty.Log().empty());
}

} // namespace
} // namespace vornix
