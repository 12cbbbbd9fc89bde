// Whole tables on pixels: what a repaint and a refresh leave, at every scale.
#include "render/raster_paint_table.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>

namespace vornix {
namespace {

constexpr double Scales[] = { 1, 1.25, 1.5, 1.75, 2, 3 };

bool Always(const Cell&, int, int, bool)
{
    return true;
}

std::vector<u32> DeviceImage(Surface& surface)
{
    const DevicePixels pixels = static_cast<RasterSurface&>(surface).Pixels();
    std::vector<u32> image;
    for (int y = 0; y < pixels.height; ++y)
        image.insert(image.end(), pixels.data + y * pixels.stride, pixels.data + y * pixels.stride + pixels.width);
    return image;
}

// A table with something of everything.
std::unique_ptr<RasterPaintTable> MakeMixed(double scale)
{
    auto table = std::make_unique<RasterPaintTable>(Size { 333, 207 }, scale, 1, 40, 1, 12);
    PaintSettings& settings = table->pipeline.Settings;
    settings.GridLines = vxBoth;
    settings.FocusRect = vxFocusHeavy;
    settings.AltColorEnabled = true;
    settings.AltBkColor = 0xF0FFF0;
    for (int row = 0; row <= table->store.LastRowIndex(); ++row) {
        for (int col = 0; col <= table->store.LastColIndex(); ++col) {
            const std::string text = std::to_string(row) + "." + std::to_string(col);
            table->SetText(row, col, std::u16string(text.begin(), text.end()));
            const int kind = (row * 5 + col * 3) % 17;
            table->Format(row, col, [&](CellFormat& format) {
                if (kind < 6)
                    format.Style = kind;
                if (kind >= 6 && kind < 10)
                    format.GradientMode = kind - 5;
                if (kind == 10)
                    format.Mode = vxCheckBox;
                format.TextAlignment = vxNoPrefix | vxTxtVCenter;
            });
            if (kind == 11)
                table->store.EditCell(row, col).SetPicture(SolidPicture(9, 9));
            if (kind == 12)
                table->store.EditCell(row, col).SetButtonPressed(true);
        }
    }
    table->Span(5, 3, 3, 2);
    table->Span(9, 1, 2, 1);
    HiddenLines(table->store).HideRow(7);
    table->interaction.current = { 8, 4 };
    return table;
}

class ScaleTest : public testing::TestWithParam<double> { };
INSTANTIATE_TEST_SUITE_P(Scales, ScaleTest, testing::ValuesIn(Scales));

TEST_P(ScaleTest, NothingStaysUnpainted)
{
    const auto table = MakeMixed(GetParam());
    table->Repaint();
    const std::vector<u32> image = DeviceImage(table->Window());
    EXPECT_EQ(std::count(image.begin(), image.end(), 0xFFFE00FFu), 0);
}

TEST_P(ScaleTest, WindowAndBackStoreAgreeAfterARepaint)
{
    const auto table = MakeMixed(GetParam());
    table->Repaint();
    EXPECT_EQ(DeviceImage(table->Window()), DeviceImage(const_cast<Surface&>(*table->pipeline.BackStore())));
}

TEST_P(ScaleTest, CellsOfOneColourLeaveNoSeam)
{
    RasterPaintTable table({ 301, 203 }, GetParam(), 1, 20, 1, 12);
    for (int row = 0; row <= table.store.MaxRow(); ++row) {
        for (int col = 0; col <= table.store.MaxCol(); ++col) {
            table.BackColor(row, col, 0x112233);
            table.Format(row, col, [](CellFormat& format) { format.Style = vxCellFlat; });
        }
    }
    table.scroll.SetFirstRow(3);
    table.scroll.SetFirstCol(2);
    table.layout.SetSmoothOffset(-7);
    table.Repaint();
    const std::vector<u32> image = DeviceImage(table.Window());
    EXPECT_EQ(std::count(image.begin(), image.end(), 0xFF332211u), static_cast<std::ptrdiff_t>(image.size()));
}

// The mark is drawn over what is already there, so a cell painted twice must not lose it.
TEST_P(ScaleTest, RefreshingEveryCellChangesNothing)
{
    const auto table = MakeMixed(GetParam());
    table->Repaint();
    const std::vector<u32> repainted = DeviceImage(table->Window());
    for (int row = 0; row <= table->pipeline.PaintLastRow(); ++row)
        table->pipeline.RefreshRowCells(row);
    EXPECT_EQ(DeviceImage(table->Window()), repainted);
    for (int col = 0; col <= table->pipeline.PaintLastCol(); ++col)
        table->pipeline.RefreshColCells(col);
    EXPECT_EQ(DeviceImage(table->Window()), repainted);
    EXPECT_EQ(DeviceImage(const_cast<Surface&>(*table->pipeline.BackStore())), repainted);
}

TEST_P(ScaleTest, RefreshingEveryCellOfAScrolledTableChangesNothing)
{
    const auto table = MakeMixed(GetParam());
    table->scroll.SetFirstRow(6); // in the middle of a span
    table->scroll.SetFirstCol(4);
    table->layout.SetSmoothOffset(-13);
    table->Repaint();
    const std::vector<u32> repainted = DeviceImage(table->Window());
    for (int row = 0; row <= table->pipeline.PaintLastRow(); ++row) {
        for (int col = 0; col <= table->pipeline.PaintLastCol(); ++col)
            table->pipeline.RefreshIfInRange(row, col);
    }
    EXPECT_EQ(DeviceImage(table->Window()), repainted);
}

// The same picture whether cells are composed in place or on surfaces of their own.
TEST_P(ScaleTest, HostDrawnCellsLookLikeOthersWhenTheHostDrawsNothing)
{
    const auto plain = MakeMixed(GetParam());
    const auto drawn = MakeMixed(GetParam());
    for (int row = 0; row <= drawn->store.LastRowIndex(); ++row) {
        for (int col = 0; col <= drawn->store.LastColIndex(); ++col)
            drawn->Format(row, col, [](CellFormat& format) { format.Style |= vxCustomDraw; });
    }
    plain->Repaint();
    drawn->Repaint();
    EXPECT_GT(drawn->events.drawn.size(), 40u);
    EXPECT_EQ(DeviceImage(plain->Window()), DeviceImage(drawn->Window()));
}

TEST_P(ScaleTest, AMovedFocusLeavesNoTrace)
{
    const auto table = MakeMixed(GetParam());
    table->interaction.current = { NoIndex, NoIndex };
    table->Repaint();
    const std::vector<u32> without = DeviceImage(table->Window());
    table->interaction.current = { 2, 2 };
    table->pipeline.RefreshOneCell(2, 2);
    EXPECT_NE(DeviceImage(table->Window()), without);
    table->interaction.current = { NoIndex, NoIndex };
    table->pipeline.RefreshOneCell(2, 2);
    EXPECT_EQ(DeviceImage(table->Window()), without);
}

TEST_P(ScaleTest, TheBackgroundPictureRunsThroughAllCells)
{
    RasterPaintTable table({ 230, 105 }, GetParam(), 1, 4, 1, 4);
    constexpr int half = 9;
    std::vector<u8> rgba;
    for (int pixel = 0; pixel < 2 * half; ++pixel)
        rgba.insert(rgba.end(), { static_cast<u8>(pixel < half ? 10 : 200), 20, 30, 255 });
    table.pipeline.SetPicture(PictureObject::FromRgba(2 * half, 1, rgba));
    table.Repaint();
    // In the middle of each stripe, where no scale rounds its edges to.
    for (int y = 25; y < 105; ++y) {
        for (int x = half / 2; x < 200; x += half)
            ASSERT_EQ(table.Pixel(30 + x, y), x / half % 2 == 0 ? 0x1E140Au : 0x1E14C8u) << x << "," << y;
    }
}

TEST(PaintPixelsTest, ASmoothStripKeepsWhatItShowed)
{
    RasterPaintTable table({ 200, 20 }, 1, 0, 1, 0, 3);
    table.Repaint();
    for (int col = 0; col < 3; ++col)
        table.BackColor(0, col, 0x112233);
    table.Repaint(); // columns end at 150
    table.layout.SetSmoothOffset(-12);
    table.BackColor(0, 2, 0x445566);
    table.Repaint(); // they end at 138; the gap is filled from 150 on
    EXPECT_EQ(table.Pixel(137, 5), 0x445566u);
    EXPECT_EQ(table.Pixel(138, 5), 0x112233u);
    EXPECT_EQ(table.Pixel(149, 5), 0x112233u);
    EXPECT_EQ(table.Pixel(150, 5), 0xFFFFFFu);
}

TEST(PaintPixelsTest, FullOpacitySelectionHidesTheBackgroundPicture)
{
    RasterPaintTable table({ 50, 20 });
    const std::vector<u8> rgba { 255, 255, 255, 255, 0, 0, 0, 255 };
    table.pipeline.SetPicture(PictureObject::FromRgba(2, 1, rgba));
    table.interaction.selected = Always;
    table.pipeline.Settings.BackColorSel = 0x0000FF;
    table.Repaint();
    EXPECT_EQ(table.CountPixels({ 0, 0, 50, 20 }, 0x0000FF), 1000);
    table.pipeline.Settings.Opacity = 50; // alpha 127
    table.Repaint();
    EXPECT_EQ(table.CountPixels({ 0, 0, 50, 20 }, table.Pixel(0, 0)), 500);
    EXPECT_EQ(table.CountPixels({ 0, 0, 50, 20 }, table.Pixel(1, 0)), 500);
    EXPECT_NEAR(static_cast<int>(table.Pixel(1, 0) & 0xFF), 127, 1);
    EXPECT_NEAR(static_cast<int>(table.Pixel(0, 0) >> 16), 128, 1);
}

TEST(PaintPixelsTest, BrightnessWashesTheBackgroundTowardWhite)
{
    RasterPaintTable table({ 50, 20 });
    table.pipeline.SetPicture(PictureObject::FromRgba(1, 1, std::vector<u8> { 0, 0, 0, 255 }));
    table.Repaint();
    EXPECT_EQ(table.Pixel(10, 10), 0x000000u);
    table.pipeline.SetPictureBrightness(60);
    table.Repaint();
    EXPECT_NEAR(static_cast<int>(table.Pixel(10, 10) & 0xFF), 153, 1);
    table.pipeline.SetPictureBrightness(100);
    table.Repaint();
    EXPECT_EQ(table.Pixel(10, 10), 0xFFFFFFu);
}

TEST(PaintPixelsTest, AClippedSpanIsTheLowerPartOfTheWholeOne)
{
    RasterPaintTable table({ 50, 80 }, 1, 0, 8, 0, 1);
    table.Span(0, 0, 4, 1);
    table.SetText(0, 0, u"one two three four five six");
    table.Format(0, 0, [](CellFormat& format) {
        format.Style = vxCellButton;
        format.TextAlignment = vxWordBreak;
        format.GradientMode = vxGradientTB;
    });
    table.Repaint();
    std::vector<ColorRef> lowerPart;
    for (int y = 40; y < 80; ++y) {
        for (int x = 0; x < 50; ++x)
            lowerPart.push_back(table.Pixel(x, y));
    }
    table.scroll.SetFirstRow(2);
    table.Repaint();
    std::vector<ColorRef> clipped;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 50; ++x)
            clipped.push_back(table.Pixel(x, y));
    }
    EXPECT_EQ(clipped, lowerPart);
}

TEST(PaintPixelsTest, AWindowOntoTheBackStoreShowsTheSameAsACopy)
{
    const auto copied = MakeMixed(1);
    copied->Repaint();
    const auto shown = MakeMixed(1);
    // The window takes the pixels of the back store itself.
    const DevicePixels pixels
        = static_cast<RasterSurface&>(const_cast<Surface&>(*shown->pipeline.BackStore())).Pixels();
    shown->container.window
        = RasterSurface::Over(pixels.data, pixels.stride, shown->container.ClientSize(), 1, SystemColors());
    shown->Repaint();
    shown->pipeline.RefreshOneCell(8, 4); // the current cell
    shown->pipeline.RefreshRowCells(2);
    EXPECT_EQ(DeviceImage(shown->Window()), DeviceImage(copied->Window()));
}

} // namespace
} // namespace vornix
