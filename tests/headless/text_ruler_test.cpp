#include "text_ruler.h"

#include "vornix/raster_surface.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

class TextRulerTest : public testing::Test {
protected:
    static FontObject FontOf(double size)
    {
        FontObject font;
        font.Name = u"DejaVu Sans";
        font.Size = size;
        return font;
    }

    std::unique_ptr<RasterSurface> surface { RasterSurface::Create({ 1, 1 }, 1, SystemColors()) };
    TextRuler ruler { *surface, FontOf(9) };
};

TEST_F(TextRulerTest, TheBoundaryNearestToAPlaceIsFound)
{
    const std::u16string line = u"Width of letters";
    for (int count = 0; count <= static_cast<int>(line.size()); ++count) {
        const int x = ruler.Width(line.substr(0, static_cast<std::size_t>(count)));
        EXPECT_EQ(ruler.CharactersBefore(line, x), count);
        EXPECT_EQ(ruler.CharactersBefore(line, x + 1), count);
    }
    EXPECT_EQ(ruler.CharactersBefore(line, -50), 0);
    EXPECT_EQ(ruler.CharactersBefore(line, 5000), static_cast<int>(line.size()));
    EXPECT_EQ(ruler.CharactersBefore(u"", 5), 0);
}

TEST_F(TextRulerTest, AnAmpersandIsACharacterLikeAnyOther)
{
    EXPECT_GT(ruler.Width(u"a&b"), ruler.Width(u"ab"));
    EXPECT_EQ(ruler.Width(u""), 0);
}

TEST_F(TextRulerTest, ALargerFontIsHigherAndWider)
{
    const int height = ruler.LineHeight();
    const int width = ruler.Width(u"text");
    const TextRuler large(*surface, FontOf(18));
    EXPECT_GT(large.LineHeight(), height);
    EXPECT_GT(large.Width(u"text"), width);
}

} // namespace
} // namespace vornix
