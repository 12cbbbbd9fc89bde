#include "text_fixture.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

constexpr TextColors Transparent { 0, 0xFFFFFF, BackgroundMode::Transparent };

int CountOf(const Canvas& canvas, u32 color)
{
    return static_cast<int>(std::count(canvas.Pixels().begin(), canvas.Pixels().end(), color));
}

TEST(DrawText, PutsInkWhereTheLineStands)
{
    Canvas canvas(200, 60);
    canvas.Draw(u"HHHH", { 50, 20, 190, 50 }, 0);
    const Rect ink = canvas.Ink();
    EXPECT_GE(ink.left, 50);
    EXPECT_LE(ink.right, 50 + WidthOf(u"HHHH"));
    // Capitals stand on the baseline.
    EXPECT_EQ(ink.bottom, 20 + MeasureFont(TestFont()).ascent);
    EXPECT_GT(ink.top, 20);
}

TEST(DrawText, NothingLeavesTheRectangle)
{
    for (const double scale : { 1.0, 1.25, 1.5, 2.0 }) {
        for (const u32 format : { 0u, DT_RIGHT, DT_CENTER, DT_WORDBREAK, DT_BOTTOM | DT_SINGLELINE }) {
            Canvas canvas(100, 60, scale);
            FontDescription font = TestFont(-30);
            font.underline = true;
            const Rect rect { 33, 17, 61, 35 };
            canvas.Draw(u"Wj\u00C5gW \U0001F600 &text that is long", rect, format, font,
                { 0, 0x00FF00, BackgroundMode::Opaque });
            const Rect allowed = canvas.View().map.ToDevice(rect);
            const Rect ink = canvas.Ink();
            ASSERT_FALSE(ink.IsEmpty());
            EXPECT_GE(ink.left, allowed.left);
            EXPECT_GE(ink.top, allowed.top);
            EXPECT_LE(ink.right, allowed.right);
            EXPECT_LE(ink.bottom, allowed.bottom);
        }
    }
}

TEST(DrawText, NoClipStopsAtTheClipOfTheView)
{
    Canvas canvas(100, 60);
    PixelView view = canvas.View();
    view.clip = { 10, 10, 90, 30 };
    Rect rect { 40, 12, 45, 14 };
    DrawTextOnPixels(view, u"A long text here", rect, DT_NOCLIP, TestFont(), Transparent);
    const Rect ink = canvas.Ink();
    EXPECT_GT(ink.right, 80);
    EXPECT_LE(ink.right, 90);
    EXPECT_GT(ink.bottom, 20);
    EXPECT_LE(ink.bottom, 30);
}

TEST(DrawText, OpaqueModeFillsTheExtentOfEachLine)
{
    Canvas canvas(200, 60);
    canvas.Draw(u"one line\ntwo", { 10, 5, 190, 55 }, 0, TestFont(), { 0x0000FF, 0x0000FF, BackgroundMode::Opaque });
    const int height = MeasureFont(TestFont()).lineHeight;
    const Rect first { 10, 5, 10 + WidthOf(u"one line"), 5 + height };
    const Rect second { 10, 5 + height, 10 + WidthOf(u"two"), 5 + 2 * height };
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 200; ++x) {
            const auto isIn = [x, y](const Rect& rect) {
                return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
            };
            EXPECT_EQ(canvas.At(x, y), isIn(first) || isIn(second) ? 0xFFFF0000u : White) << x << ", " << y;
        }
    }
}

TEST(DrawText, TransparentModeLeavesTheGround)
{
    Canvas canvas(100, 30);
    canvas.Draw(u"text", { 5, 5, 95, 25 }, 0, TestFont(), { 0xFFFFFF, 0x0000FF, BackgroundMode::Transparent });
    EXPECT_TRUE(canvas.Ink().IsEmpty());
}

TEST(DrawText, ColorsAreTheHostsColors)
{
    Canvas canvas(60, 60);
    // 0x00BBGGRR: pure blue. A full block covers whole pixels.
    canvas.Draw(u"\u2588\u2588", { 5, 5, 60, 60 }, 0, TestFont(-40), { 0xFF0000, 0, BackgroundMode::Transparent });
    EXPECT_GT(CountOf(canvas, 0xFF0000FF), 500);
}

TEST(DrawText, ScaleTwoIsTwiceAsLarge)
{
    for (const std::u16string_view text :
        { u"The quick brown fox", u"\u05E9\u05DC\u05D5\u05DD abc", u"\u4E16\u754C" }) {
        Canvas one(300, 40);
        Canvas two(300, 40, 2);
        const FontDescription font = TestFont(-20);
        const Rect rect { 10, 5, 290, 35 };
        one.Draw(text, rect, 0, font);
        two.Draw(text, rect, 0, font);
        EXPECT_NEAR(two.Ink().left, 2 * one.Ink().left, 2);
        EXPECT_NEAR(two.Ink().right, 2 * one.Ink().right, 2);
        EXPECT_NEAR(two.Ink().Width(), 2 * one.Ink().Width(), 3);
        Canvas filled(300, 40, 2);
        filled.Draw(text, rect, 0, font, { 0, 0, BackgroundMode::Opaque });
        EXPECT_NEAR(filled.Ink().Width(), 2 * WidthOf(text, font), 1);
    }
}

TEST(DrawText, LinesBreakAtTheSamePlacesAtEveryScale)
{
    const std::u16string_view text = u"Some words that are broken into several lines of text";
    std::vector<int> rows;
    for (const double scale : { 1.0, 1.25, 1.5, 1.75, 2.0, 3.0, 4.0 }) {
        Canvas canvas(120, 120, scale);
        rows.push_back(canvas.Draw(text, { 3, 3, 101, 117 }, DT_WORDBREAK));
    }
    for (const int height : rows)
        EXPECT_EQ(height, rows[0]);
}

TEST(DrawText, RightEdgesOfDigitsStandStraight)
{
    for (const double scale : { 1.0, 1.25, 2.0 }) {
        std::vector<u32> reference;
        for (const std::u16string_view text : { u"1.00", u"11.00", u"711.00", u"4,711.00", u"24,711.00" }) {
            Canvas canvas(100, 20, scale);
            canvas.Draw(text, { 3, 2, 97, 20 }, DT_RIGHT | DT_SINGLELINE);
            // The last three characters, pixel by pixel.
            std::vector<u32> column;
            for (int y = 0; y < canvas.Height(); ++y) {
                for (int x = canvas.Width() - static_cast<int>(20 * scale); x < canvas.Width(); ++x)
                    column.push_back(canvas.At(x, y));
            }
            if (reference.empty())
                reference = column;
            EXPECT_EQ(column, reference) << scale;
        }
    }
}

TEST(DrawText, UnderlineAndStrikeOutCrossTheWholeLine)
{
    const int ascent = MeasureFont(TestFont(-20)).ascent;
    const int width = WidthOf(u"      ", TestFont(-20));
    FontDescription underlined = TestFont(-20);
    underlined.underline = true;
    Canvas under(100, 40);
    under.Draw(u"      ", { 10, 5, 90, 35 }, 0, underlined);
    EXPECT_GE(under.Ink().top, 5 + ascent);
    EXPECT_EQ(under.Ink().left, 10);
    EXPECT_NEAR(under.Ink().right, 10 + width, 1);
    FontDescription struck = TestFont(-20);
    struck.strikeOut = true;
    Canvas strike(100, 40);
    strike.Draw(u"      ", { 10, 5, 90, 35 }, 0, struck);
    EXPECT_LT(strike.Ink().bottom, 5 + ascent);
    EXPECT_GT(strike.Ink().top, 5 + ascent / 2);
    EXPECT_LE(strike.Ink().Height(), 2);
}

TEST(DrawText, PrefixUnderlinesItsCharacterOnly)
{
    const FontDescription font = TestFont(-20);
    Canvas plain(100, 40);
    Canvas marked(100, 40);
    plain.Draw(u"HHH", { 10, 5, 90, 35 }, 0, font);
    marked.Draw(u"H&HH", { 10, 5, 90, 35 }, 0, font);
    const int letter = WidthOf(u"H", font);
    int below = 0;
    for (int x = 0; x < 100; ++x) {
        for (int y = plain.Ink().bottom; y < 40; ++y) {
            if (marked.At(x, y) == White)
                continue;
            ++below;
            EXPECT_GE(x, 10 + letter - 2);
            EXPECT_LE(x, 10 + 2 * letter);
        }
    }
    EXPECT_GE(below, letter - 2);
}

TEST(DrawText, PrefixOnlyDrawsTheLineAlone)
{
    Canvas canvas(100, 40);
    canvas.Draw(u"H&HH", { 10, 5, 90, 35 }, DT_PREFIXONLY, TestFont(-20));
    EXPECT_LE(canvas.Ink().Height(), 2);
    EXPECT_GT(canvas.Ink().Width(), 5);
}

TEST(DrawText, PartialLinesAreCutByPixel)
{
    Canvas whole(100, 60);
    Canvas cut(100, 60);
    whole.Draw(u"Hg\nHg\nHg", { 5, 5, 95, 60 }, 0);
    cut.Draw(u"Hg\nHg\nHg", { 5, 5, 95, 26 }, 0);
    EXPECT_EQ(cut.Ink().bottom, 26);
    for (int y = 0; y < 26; ++y) {
        for (int x = 0; x < 100; ++x)
            EXPECT_EQ(cut.At(x, y), whole.At(x, y));
    }
}

TEST(DrawText, AViewOntoALargerSurfaceRoundsAsThatOneDoes)
{
    // The same text on the whole surface and on a surface composed for a place on it.
    const double scale = 1.25;
    Canvas whole(200, 100, scale);
    whole.Draw(u"Place", { 43, 31, 143, 71 }, 0);
    const Point origin { 33, 21 };
    const ScaleMap map(scale, origin);
    const int width = map.X(120);
    const int height = map.Y(60);
    std::vector<u32> pixels(static_cast<std::size_t>(width) * height, White);
    const PixelView part { pixels.data(), width, height, width, map, { 0, 0, width, height } };
    Rect rect { 10, 10, 110, 50 };
    DrawTextOnPixels(part, u"Place", rect, 0, TestFont(), Transparent);
    const Point offset = { ScaleMap(scale, {}).X(origin.x), ScaleMap(scale, {}).Y(origin.y) };
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            EXPECT_EQ(pixels[static_cast<std::size_t>(y) * width + x], whole.At(x + offset.x, y + offset.y));
    }
}

TEST(DrawText, DrawnAgainItLooksTheSame)
{
    for (const std::u16string_view text : { u"Same again", u"\u0627\u0644\u0633\u0644\u0627\u0645", u"\U0001F600 x" }) {
        Canvas first(120, 30);
        Canvas second(120, 30);
        first.Draw(text, { 5, 5, 115, 25 }, DT_CENTER);
        second.Draw(text, { 5, 5, 115, 25 }, DT_CENTER);
        EXPECT_EQ(first.Pixels(), second.Pixels());
        EXPECT_FALSE(first.Ink().IsEmpty());
    }
}

TEST(DrawText, RightToLeftReadingMovesPunctuationToTheLeft)
{
    Canvas plain(200, 30);
    Canvas turned(200, 30);
    plain.Draw(u"abc.", { 5, 5, 195, 25 }, 0, TestFont(-16));
    turned.Draw(u"abc.", { 5, 5, 195, 25 }, DT_RTLREADING, TestFont(-16));
    EXPECT_NE(plain.Pixels(), turned.Pixels());
    // The full stop is low: the first columns of ink of the turned line keep to the lower half.
    const Rect ink = turned.Ink();
    for (int y = ink.top; y < ink.bottom - 4; ++y)
        EXPECT_EQ(turned.At(ink.left, y), White);
}

TEST(DrawText, MeasuringDrawsNothing)
{
    Canvas canvas(100, 40);
    Rect rect { 5, 5, 95, 35 };
    DrawTextOnPixels(canvas.View(), u"text", rect, DT_CALCRECT, TestFont(), { 0, 0, BackgroundMode::Opaque });
    EXPECT_TRUE(canvas.Ink().IsEmpty());
    EXPECT_EQ(rect.right, 5 + WidthOf(u"text"));
}

TEST(DrawText, EmptyAndTurnedRectanglesDrawNothing)
{
    Canvas canvas(100, 40);
    for (const Rect rect : { Rect { 10, 10, 10, 30 }, Rect { 50, 10, 20, 30 }, Rect { 10, 30, 60, 10 },
             Rect { 500, 500, 600, 600 }, Rect { -100, -100, -50, -50 } }) {
        for (const u32 format : { 0u, DT_WORDBREAK, DT_WORD_ELLIPSIS, DT_SINGLELINE | DT_VCENTER, DT_EDITCONTROL })
            EXPECT_GT(canvas.Draw(u"some text here", rect, format | DT_NOPREFIX), -100);
    }
    EXPECT_TRUE(canvas.Ink().IsEmpty());
}

TEST(DrawText, ExtremeRectanglesAndFontsAreHarmless)
{
    Canvas canvas(50, 50);
    for (const int height : { -1, 1, -5000, 100000, 0, -2147483647 - 1, 2147483647 }) {
        for (const Rect rect : { Rect { 0, 0, 50, 50 }, Rect { -32768, -32768, 32767, 32767 } }) {
            for (const u32 format : { 0u, DT_WORDBREAK | DT_CENTER, DT_SINGLELINE | DT_BOTTOM | DT_RIGHT, DT_NOCLIP })
                EXPECT_NE(canvas.Draw(u"Ag \u4E16 \U0001F600", rect, format, TestFont(height)), 0);
        }
    }
}

} // namespace
} // namespace vornix
