#include "render/style_painter.h"
#include "support/fake_device.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StylePainterTest : public testing::Test {
protected:
    std::shared_ptr<FakeScreen> screen = std::make_shared<FakeScreen>();
    FakeDevice device { screen, "d", { 50, 20 } };
    Size cell { 50, 20 };
    FrameColors colors { 0xAAAAAA, 0xBBBBBB, 0xCCCCCC, 0xDDDDDD };

    std::vector<std::string> Lines() const { return screen->LinesOf("d"); }
    std::vector<std::string> Gradient(i32 mode)
    {
        screen->journal.clear();
        PaintGradient(
            device, cell, mode, { 0, 0x0100, 0x0200, 0x0300 }, { 0, 0x1100, 0x1200, static_cast<i16>(0xFF00) });
        return Lines();
    }
};

TEST_F(StylePainterTest, GradientsRunInFourDirections)
{
    const std::string fromStart = "GradientFill 0,0:0100/0200/0300 50,20:1100/1200/FF00";
    const std::string fromEnd = "GradientFill 0,0:1100/1200/FF00 50,20:0100/0200/0300";
    EXPECT_THAT(Gradient(vxGradientLR), ElementsAre(fromStart + " horizontal"));
    EXPECT_THAT(Gradient(vxGradientRL), ElementsAre(fromEnd + " horizontal"));
    EXPECT_THAT(Gradient(vxGradientTB), ElementsAre(fromStart + " vertical"));
    EXPECT_THAT(Gradient(vxGradientBT), ElementsAre(fromEnd + " vertical"));
}

TEST_F(StylePainterTest, FlatCellsHaveNoEdges)
{
    EXPECT_FALSE(PaintStyleEdges(device, cell, vxCellFlat, colors));
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(StylePainterTest, RaisedCellsAreLitFromTheTopLeft)
{
    EXPECT_TRUE(PaintStyleEdges(device, cell, vxCellRaised, colors));
    EXPECT_THAT(Lines(),
        ElementsAre("SelectPen #AAAAAA 1", "MoveTo 0,19", "LineTo 0,0", "LineTo 50,0", "SelectPen #BBBBBB 1",
            "MoveTo 0,19", "LineTo 49,19", "LineTo 49,-1"));
}

TEST_F(StylePainterTest, ButtonsHaveAShadowInsideTheDarkEdge)
{
    EXPECT_TRUE(PaintStyleEdges(device, cell, vxCellButton, colors));
    EXPECT_THAT(Lines(),
        ElementsAre("SelectPen #BBBBBB 1", "MoveTo 0,18", "LineTo 48,18", "LineTo 48,0", "SelectPen #AAAAAA 1",
            "MoveTo 0,19", "LineTo 0,0", "LineTo 50,0", "SelectPen #CCCCCC 1", "MoveTo 0,19", "LineTo 49,19",
            "LineTo 49,-1"));
}

TEST_F(StylePainterTest, InsetCellsAreSunken)
{
    EXPECT_TRUE(PaintStyleEdges(device, cell, vxCellInset, colors));
    EXPECT_THAT(Lines(), ElementsAre("DrawEdge 0,0,50,20 2 F"));
}

TEST_F(StylePainterTest, BoxesAreFramedInsideTheGridLines)
{
    EXPECT_FALSE(PaintStyleEdges(device, cell, vxCellBox, colors));
    EXPECT_THAT(Lines(), ElementsAre("FrameRect 0,0,49,19 #BBBBBB"));
}

TEST_F(StylePainterTest, RoundBoxesLoseTheirCorners)
{
    EXPECT_FALSE(PaintStyleEdges(device, cell, vxCellRoundBox, colors));
    EXPECT_THAT(Lines(),
        ElementsAre("FrameRect 0,0,49,19 #BBBBBB", "SetPixel 0,0 #DDDDDD", "SetPixel 48,0 #DDDDDD",
            "SetPixel 0,18 #DDDDDD", "SetPixel 48,18 #DDDDDD"));
}

TEST_F(StylePainterTest, RoundBoxesAreClippedOnceTheirSurroundingsAreFilled)
{
    PrepareRoundBox(device, cell, 0xDDDDDD);
    EXPECT_THAT(Lines(), ElementsAre("FillRect 0,0,50,20 #DDDDDD", "SetClip 0,0,49,19"));
}

TEST_F(StylePainterTest, UnknownStylesHaveNoEdges)
{
    EXPECT_FALSE(PaintStyleEdges(device, cell, 7, colors));
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(StylePainterTest, RowLinesRunAlongTheBottom)
{
    PaintGridLines(device, cell, { vxRow, 2, 0x111111, 0x222222 });
    EXPECT_THAT(Lines(), ElementsAre("SelectPen #111111 2", "MoveTo 0,19", "LineTo 50,19"));
}

TEST_F(StylePainterTest, ColumnLinesRunAlongTheRight)
{
    PaintGridLines(device, cell, { vxColumn, 1, 0x111111, 0x222222 });
    EXPECT_THAT(Lines(), ElementsAre("SelectPen #222222 1", "MoveTo 49,0", "LineTo 49,20"));
}

TEST_F(StylePainterTest, BothLinesMeetInTheCornerThatTheColumnOwns)
{
    PaintGridLines(device, cell, { vxBoth, 1, 0x111111, 0x222222 });
    EXPECT_THAT(Lines(),
        ElementsAre("SelectPen #111111 1", "MoveTo 0,19", "LineTo 49,19", "SelectPen #222222 1", "MoveTo 49,19",
            "LineTo 49,-1"));
}

TEST_F(StylePainterTest, AWideLineInALowRowIsNotLimited)
{
    PaintGridLines(device, { 50, 1 }, { vxRow, 3, 0x111111, 0x222222 });
    EXPECT_THAT(Lines(), ElementsAre("SelectPen #111111 3", "MoveTo 0,0", "LineTo 50,0"));
}

} // namespace
} // namespace vornix
