#include "render/background_picture.h"

#include "render/paint_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(PatternBrushTest, BlendIsTheTruncatedShareOf255)
{
    EXPECT_EQ(MakeBlendFunction(100), 255u << 16);
    EXPECT_EQ(MakeBlendFunction(50), 127u << 16);
    EXPECT_EQ(MakeBlendFunction(1), 2u << 16);
    EXPECT_EQ(MakeBlendFunction(0), 0u);
}

class PatternBrushFixture : public testing::Test {
protected:
    std::shared_ptr<FakeScreen> screen = std::make_shared<FakeScreen>();
    FakeDevice window { screen, "window", { 100, 100 } };
    cPatternBrush brush;
};

TEST_F(PatternBrushFixture, TilesThePictureFromTheCorner)
{
    brush.SetPicture(SolidPicture(8, 6));
    brush.SetSize(200, 100);
    EXPECT_TRUE(brush.FillBackGround(window));
    EXPECT_THAT(screen->journal,
        ElementsAre("window.CreateFromPicture 8x6 pic1", "window.CreateCompatible 200x100 at 0,0 mem2",
            "mem2.FillPattern 0,0,200,100 pic1"));
    EXPECT_EQ(screen->surfacesAlive, 2);
}

TEST_F(PatternBrushFixture, BrightnessBlendsThePictureOverWhite)
{
    brush.SetPicture(SolidPicture(8, 6));
    brush.SetPictureBrightness(60);
    brush.SetSize(200, 100);
    EXPECT_TRUE(brush.FillBackGround(window));
    EXPECT_THAT(screen->journal,
        ElementsAre("window.CreateFromPicture 8x6 pic1", "pic1.CreateCompatible 8x6 at 0,0 mem2",
            "mem2.FillRect 0,0,8,6 #FFFFFF", "mem2.AlphaBlend 0,0,8,6 from pic1 0,0,8,6 102",
            "window.CreateCompatible 200x100 at 0,0 mem3", "mem3.FillPattern 0,0,200,100 mem2"));
    EXPECT_EQ(screen->surfacesAlive, 2);
}

TEST_F(PatternBrushFixture, FailsWithoutAPicture)
{
    EXPECT_FALSE(brush.FillBackGround(window));
    EXPECT_FALSE(brush.FillWhite(window));
    brush.SetPicture(std::make_shared<PictureObject>());
    EXPECT_EQ(brush.Picture(), nullptr);
    EXPECT_FALSE(brush.FillBackGround(window));
}

TEST_F(PatternBrushFixture, FailsWithoutMemoryAndFreesWhatItMade)
{
    brush.SetPicture(SolidPicture(8, 6));
    brush.SetPictureBrightness(60);
    brush.SetSize(200, 100);
    for (int left = 0; left < 3; ++left) {
        screen->surfacesLeft = left;
        EXPECT_FALSE(brush.FillBackGround(window)) << left;
        EXPECT_EQ(brush.BackGroundDC(), nullptr);
        EXPECT_EQ(screen->surfacesAlive, 1);
    }
}

class BackgroundPictureTest : public testing::Test {
protected:
    FakePaintTable table { { 200, 100 }, 0, 10, 0, 10 };

    std::string Made()
    {
        for (auto line = table.Journal().rbegin(); line != table.Journal().rend(); ++line) {
            if (line->starts_with("window.CreateCompatible"))
                return line->substr(24, line->find(" at") - 24);
        }
        return {};
    }
};

TEST_F(BackgroundPictureTest, IsAsLargeAsTheScreen)
{
    table.pipeline.SetPicture(SolidPicture(8, 6));
    EXPECT_EQ(Made(), "1920x1080");
}

TEST_F(BackgroundPictureTest, TheScreensTwipsAreDividedWithTruncation)
{
    table.container.screen = { 1000, 1000 };
    table.container.twipsPerPixel = { 15, 12 };
    table.container.Resize({ 10, 10 });
    table.Layout();
    table.pipeline.RepaintGrid();
    table.pipeline.SetPicture(SolidPicture(8, 6));
    EXPECT_EQ(Made(), "66x83");
}

TEST_F(BackgroundPictureTest, ReachesBeyondTheLastLinesOfALargerControl)
{
    table.container.Resize({ 3000, 1500 });
    table.Layout();
    table.pipeline.RepaintGrid();
    table.pipeline.SetPicture(SolidPicture(8, 6));
    EXPECT_EQ(Made(), "3050x1520");
}

TEST_F(BackgroundPictureTest, ABlockMayAskForItsOwnSize)
{
    table.pipeline.SetPicture(SolidPicture(8, 6));
    table.pipeline.RenderBackgroundPicture(2500, 100);
    EXPECT_EQ(Made(), "2500x1080");
}

TEST_F(BackgroundPictureTest, NeverShrinksAndIsNotMadeTwice)
{
    table.pipeline.SetPicture(SolidPicture(8, 6));
    table.pipeline.RenderBackgroundPicture(2500, 100);
    table.ClearJournal();
    table.pipeline.RenderBackgroundPicture(0, 0);
    table.pipeline.MarkBackgroundStale();
    table.pipeline.RebuildBackgroundIfStale();
    EXPECT_THAT(table.Journal(), IsEmpty());
    table.pipeline.RenderBackgroundPicture(0, 2000);
    EXPECT_EQ(Made(), "2500x2000");
}

TEST_F(BackgroundPictureTest, AStaleOneIsMadeForTheNewSizeInTheNextLayout)
{
    table.pipeline.SetPicture(SolidPicture(8, 6));
    table.container.Resize({ 3000, 100 });
    table.Layout();
    table.ClearJournal();
    table.pipeline.RebuildBackgroundIfStale();
    EXPECT_EQ(Made().substr(0, 5), "3050x");
    table.ClearJournal();
    table.pipeline.RebuildBackgroundIfStale();
    EXPECT_THAT(table.Journal(), IsEmpty());
}

TEST_F(BackgroundPictureTest, APictureWithHandle0IsNone)
{
    table.pipeline.SetPicture(std::make_shared<PictureObject>());
    EXPECT_EQ(table.pipeline.Settings.Picture, nullptr);
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.screen->Count("SRCCOPY"), 20 + 1); // the cells and the control
}

TEST_F(BackgroundPictureTest, AnotherPictureTakesThePlaceOfTheFirst)
{
    table.pipeline.SetPicture(SolidPicture(8, 6));
    table.pipeline.SetPicture(SolidPicture(4, 4));
    EXPECT_EQ(table.screen->surfacesAlive, 3);
    table.pipeline.SetPicture(nullptr);
    EXPECT_EQ(table.screen->surfacesAlive, 2);
}

TEST_F(BackgroundPictureTest, BrightnessForcesANewSurface)
{
    table.pipeline.SetPicture(SolidPicture(8, 6));
    table.ClearJournal();
    table.pipeline.SetPictureBrightness(20);
    EXPECT_EQ(table.screen->Count("AlphaBlend 0,0,8,6 from"), 1);
    EXPECT_EQ(Made(), "1920x1080");
}

TEST_F(BackgroundPictureTest, BrightnessOutOfRangeIsIgnored)
{
    table.pipeline.SetPicture(SolidPicture(8, 6));
    table.ClearJournal();
    table.pipeline.SetPictureBrightness(101);
    table.pipeline.SetPictureBrightness(-1);
    EXPECT_EQ(table.pipeline.Settings.PictureBrightness, 0);
    EXPECT_THAT(table.Journal(), IsEmpty());
}

TEST_F(BackgroundPictureTest, FullBrightnessIsWhiteWithoutALookAtThePicture)
{
    table.pipeline.SetPicture(SolidPicture(8, 6));
    table.ClearJournal();
    table.pipeline.SetPictureBrightness(100);
    EXPECT_EQ(table.screen->Count("FillRect 0,0,1920,1080 #FFFFFF"), 1);
    EXPECT_EQ(table.screen->Count("CreateFromPicture"), 0);
}

TEST_F(BackgroundPictureTest, FullBrightnessIsWhiteAlsoForAPictureThatComesLater)
{
    table.pipeline.SetPictureBrightness(100);
    table.ClearJournal();
    table.pipeline.SetPicture(SolidPicture(8, 6));
    EXPECT_EQ(table.screen->Count("FillRect 0,0,1920,1080 #FFFFFF"), 1);
    EXPECT_EQ(table.screen->Count("CreateFromPicture"), 0);
}

TEST_F(BackgroundPictureTest, WithoutMemoryTheCellsKeepTheirGround)
{
    table.screen->surfacesLeft = 1; // the tile, but not the surface
    table.pipeline.SetPicture(SolidPicture(8, 6));
    table.screen->surfacesLeft = -1;
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_TRUE(table.pipeline.Repainted());
    EXPECT_EQ(table.screen->surfacesAlive, 2);
}

} // namespace
} // namespace vornix
