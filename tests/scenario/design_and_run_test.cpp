#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;

class DesignAndRun : public GridTest { };

// A person places a new control on a form and sets its properties; the grid is a preview.
TEST_F(DesignAndRun, AtDesignTimeTheGridIsAPreview)
{
    MakeDesign();
    Grid().SetRows(4);
    Grid().SetCols(3);
    Grid().SetFixedCols(1);
    Grid().SetCaption(u"Orders");
    host->ClearLog();
    Grid().SetDefaultBkColor(0xFFF0E0);
    Grid().SetDefaultForeColor(0x202020);
    Grid().SetFont(MakeFont(u"Serif", 11));
    Grid().SetDefaultHeight(25);
    Grid().SetDefaultWidth(80);
    EXPECT_EQ(Grid().CellBackColor(3, 2), 0xFFF0E0u);
    EXPECT_EQ(Grid().CellForeColor(0, 0), 0x202020u);
    EXPECT_EQ(Grid().CellFontName(0, 0), u"Serif");
    EXPECT_EQ(Grid().CellFontName(-1, 0), u"DejaVu Sans");
    EXPECT_EQ(Grid().RowHeight(0), 25);
    EXPECT_EQ(Grid().RowHeight(-1), 21);
    EXPECT_EQ(host->Pixel(30 + 70, 21 + 20), 0xFFF0E0u);
    EXPECT_THAT(Reported(), ElementsAre("DefaultBkColor", "DefaultForeColor", "Font", "DefaultHeight", "DefaultWidth"));
    EXPECT_EQ(host->Repaints(), 5);
}

// The same form at run time: the host changes templates and only later lines show it.
TEST_F(DesignAndRun, AtRunTimeTemplatesReachLaterLinesOnly)
{
    Table(4, 3, 1, 1);
    Grid().SetDefaultBkColor(0xFFF0E0);
    Grid().SetFont(MakeFont(u"Serif", 11));
    Grid().SetDefaultWidth(80);
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0x80000005u);
    Grid().SetCols(4);
    Grid().SetRows(5);
    EXPECT_EQ(Grid().CellBackColor(0, 3), 0xFFF0E0u);
    EXPECT_EQ(Grid().CellFontName(4, 3), u"Serif");
    EXPECT_EQ(Grid().ColWidth(3), 80);
    EXPECT_EQ(Grid().CellBackColor(4, 0), 0x80000005u) << "a new row takes what its old column keeps";
    Grid().SetFixedRows(2);
    EXPECT_EQ(Grid().CellBackColor(-2, 0), 0x8000000Fu);
}

// A container switches its form between design and run without making the control anew.
TEST_F(DesignAndRun, SwitchingTheContainerNeedsNoExtraState)
{
    MakeDesign();
    Grid().SetRows(2);
    host->SetUserMode(true);
    Grid().SetDefaultForeColor(0x0000FF);
    EXPECT_EQ(Grid().CellForeColor(0, 0), 0x80000008u);
    Grid().SetRedraw(false);
    EXPECT_FALSE(host->IsTimerEnabled());
    Grid().SetRedraw(true);
    EXPECT_TRUE(host->IsTimerEnabled());
    host->SetUserMode(false);
    Grid().SetDefaultForeColor(0x00FF00);
    EXPECT_EQ(Grid().CellForeColor(0, 0), 0x00FF00u);
}

// What one control was saved with brings another one to the same look.
TEST_F(DesignAndRun, TwoControlsOfOneBagLookTheSame)
{
    MemoryBag bag;
    bag.WriteProperty("Rows", 5);
    bag.WriteProperty("Cols", 4);
    bag.WriteProperty("FixedRows", 1);
    bag.WriteProperty("AltColorEnabled", true);
    bag.WriteProperty("AltBkColor", 0xE0F0FF);
    bag.WriteProperty("GridLines", 1);
    bag.WriteProperty("CaptionEnabled", true);
    bag.WriteProperty("Caption", std::u16string(u"Sales"));
    HeadlessOptions options;
    options.bag = &bag;
    HeadlessContainer run(options);
    options.design = true;
    HeadlessContainer design(options);
    for (int y = 0; y < 200; y += 3) {
        for (int x = 0; x < 640; x += 3)
            ASSERT_EQ(run.Pixel(x, y), design.Pixel(x, y)) << x << ", " << y;
    }
    EXPECT_EQ(run.Pixel(60, 21 + 21 + 10), 0xE0F0FFu);
}

} // namespace
} // namespace vornix
