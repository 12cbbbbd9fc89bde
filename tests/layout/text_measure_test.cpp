#include "layout/text_measure.h"

#include "layout/fitting_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TextMeasureTest : public testing::Test {
protected:
    TextMeasureTest() { table.Text(1, 1, u"text"); }

    // The result as left,top,right,bottom would be written.
    Rect Measure(Rect rect, std::u16string_view pattern = u"", int row = 1, int col = 1)
    {
        TextMeasure(table.store, table.container).MeasureCellText(row, col, pattern, rect);
        return rect;
    }
    std::vector<std::string> Fonts() const
    {
        std::vector<std::string> lines;
        for (const std::string& line : table.screen->journal) {
            const std::size_t at = line.find(".SelectFont ");
            if (at != std::string::npos)
                lines.push_back(line.substr(at + 12));
        }
        return lines;
    }

    FittingTable table { 1, 3, 1, 3 };
};

TEST_F(TextMeasureTest, TheRightAndBottomEdgesTakeTheExtent)
{
    EXPECT_EQ(Measure({ 0, 0, 100, 50 }), (Rect { 0, 0, 28, 13 }));
    EXPECT_THAT(table.Measured(), ElementsAre("\"text\" 0,0,100,50 C00"));
}

TEST_F(TextMeasureTest, ASurfaceThatNobodySeesIsMeasuredOn)
{
    const int before = table.screen->surfacesAlive;
    Measure({});
    EXPECT_EQ(table.screen->surfacesMade, 1);
    EXPECT_EQ(table.screen->surfacesAlive, before) << "it is given back";
    EXPECT_THAT(table.screen->LinesOf("window"), ElementsAre("CreateCompatible 0x0 at 0,0 mem1"));
}

TEST_F(TextMeasureTest, WithoutMemoryForASurfaceIsError7)
{
    table.screen->surfacesLeft = 0;
    EXPECT_EQ(ErrorOf([&] { Measure({}); }), 7);
}

TEST_F(TextMeasureTest, TheFontIsTheCellsWithoutUnderlineStrikeThroughAndCharset)
{
    table.Format(1, 1, [](CellFormat& format) {
        format.FontName = FontName(u"Serif");
        format.FontSize = 12;
        format.FontBold = true;
        format.FontItalic = true;
        format.FontUnderline = true;
        format.FontStrikeThrough = true;
        format.FontCharset = 2;
    });
    Measure({});
    EXPECT_THAT(Fonts(), ElementsAre("Serif -16 700 italic 0"));
}

TEST_F(TextMeasureTest, TheHeightOfTheFontFollowsTheTwipsOfThePixel)
{
    table.Format(1, 1, [](CellFormat& format) { format.FontSize = 9; });
    table.container.twipsPerPixel = { 15, 12 };
    Measure({});
    EXPECT_THAT(Fonts(), ElementsAre(testing::HasSubstr(" -15 400 0")));
}

TEST_F(TextMeasureTest, TheFlagsAreTheCellsButTheWordEllipsis)
{
    table.Format(1, 1, [](CellFormat& format) {
        format.TextAlignment = vxTxtRight | vxTxtBottom | vxWordBreak | vxWordEllipsis | vxNoPrefix;
    });
    Measure({ 0, 0, 5, 5 });
    EXPECT_THAT(table.Measured(), ElementsAre("\"text\" 0,0,5,5 C1A"));
}

TEST_F(TextMeasureTest, APatternShapesTheText)
{
    table.Text(1, 1, u"1234.5");
    Measure({}, u"#,##0.00");
    EXPECT_THAT(table.Measured(), ElementsAre(testing::StartsWith("\"1,234.50\"")));
}

TEST_F(TextMeasureTest, ATextThatIsNoNumberStaysAsItIs)
{
    Measure({}, u"#,##0.00");
    EXPECT_THAT(table.Measured(), ElementsAre(testing::StartsWith("\"text\"")));
}

TEST_F(TextMeasureTest, AnEmptyTextIsMeasuredAsWell)
{
    EXPECT_EQ(Measure({ 0, 0, 5, 5 }, u"", 2, 2), (Rect { 0, 0, 0, 13 }));
}

TEST_F(TextMeasureTest, ATextEndsAtItsFirstZero)
{
    table.Text(1, 1, std::u16string_view(u"ab\0cd", 5));
    EXPECT_EQ(Measure({}).right, 14);
}

TEST_F(TextMeasureTest, CellsOfOneFormatShareTheirFont)
{
    TextMeasure measure(table.store, table.container);
    Rect rect;
    for (int row = 1; row <= 3; ++row)
        measure.MeasureCellText(row, 1, u"", rect);
    EXPECT_EQ(Fonts().size(), 1U);
    table.Format(2, 1, [](CellFormat& format) { format.FontBold = true; });
    TextMeasure another(table.store, table.container);
    for (int row = 1; row <= 3; ++row)
        another.MeasureCellText(row, 1, u"", rect);
    EXPECT_EQ(Fonts().size(), 4U);
}

TEST_F(TextMeasureTest, DrawnAgainTheTextHasNoFlags)
{
    TextMeasure measure(table.store, table.container);
    Rect rect { 0, 0, 5, 5 };
    measure.MeasureCellText(1, 1, u"", rect);
    table.ForgetCalls();
    Rect again { 0, 0, 40, 16 };
    measure.DrawAgain(again);
    EXPECT_THAT(table.Measured(), ElementsAre("\"text\" 0,0,40,16 0"));
    EXPECT_EQ(again, (Rect { 0, 0, 40, 16 }));
}

TEST_F(TextMeasureTest, LinesAreMeasuredInAFontOfTheHosts)
{
    FontObject font { .Name = u"Serif", .Size = 9.6 };
    font.Italic = true;
    font.Underline = true;
    TextMeasure measure(table.store, table.container);
    EXPECT_EQ(measure.HeightOfLines(std::make_shared<FontObject>(font), 3), 3 * FakeDevice::LineHeight);
    EXPECT_THAT(table.Measured(), ElementsAre("\"Aj\r\r\" 0,0,5,5 C00"));
    EXPECT_THAT(Fonts(), ElementsAre("Serif -13 400 italic 0")) << "of whole points, as cells have them";
}

TEST_F(TextMeasureTest, ACellOutsideTheStoreIsError9)
{
    EXPECT_EQ(ErrorOf([&] { Measure({}, u"", 5, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Measure({}, u"", 1, -1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Measure({}, u"", 4, 4); }), 0) << "fillers are in the store";
    EXPECT_THAT(table.repainter.calls, IsEmpty());
}

} // namespace
} // namespace vornix
