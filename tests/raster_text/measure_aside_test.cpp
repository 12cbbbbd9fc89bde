// Texts that are measured without a trace: the results are those of shaped lines, and the cache stays as it was.
#include "text_fixture.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>

namespace vornix {
namespace {

TextEngine& Engine()
{
    return TextEngine::OfThread();
}

// Units by kind: plain ones of several scripts, and what makes a line anything but plain.
constexpr std::array<std::u16string_view, 6> PlainUnits { u"abcdefghijklmnopqrstuvwxyz", u"AVTWLYo.,-'\"fil",
    u"0123456789+-.,%", u" ", u"\u00C4\u00D6\u00E9\u0159\u0142\u0160", u"\u0391\u0393\u03B1\u0410\u0433\u2013\u2019" };
constexpr std::array<std::u16string_view, 9> OtherUnits { u"\u0645\u0631\u062D\u0628\u0627",
    u"\u05E9\u05DC\u05D5\u05DD", u"\u6F22\u5B57\u3042\uFF0C", u"\u0915\u094D\u0937\u093F", u"e\u0301o\u0308",
    u"\U0001F600\U0001F468\u200D\U0001F469", u"\t", u"\u0001\u007F\u00AD\u200B", u"\xD83D\xDC00" };

std::u16string RandomText(Random& random, bool plain, std::size_t longest)
{
    std::u16string text;
    const std::size_t units = random() % (longest + 1);
    while (text.size() < units) {
        const bool takesPlain = plain || random() % 3 != 0;
        const std::u16string_view source
            = takesPlain ? PlainUnits[random() % PlainUnits.size()] : OtherUnits[random() % OtherUnits.size()];
        const std::size_t first = random() % source.size();
        text += source.substr(first, 1 + random() % 4);
    }
    return text;
}

FontDescription RandomFont(Random& random)
{
    static constexpr std::array<std::u16string_view, 4> faces { u"DejaVu Sans", u"DejaVu Serif", u"DejaVu Sans Mono",
        u"a face that nobody has" };
    FontDescription font = TestFont(-8 - 3 * static_cast<int>(random() % 6), std::u16string(faces[random() % 4]));
    font.weight = random() % 3 == 0 ? 700 : 400;
    font.italic = random() % 3 == 0;
    return font;
}

TEST(PlainWidth, IsThatOfTheShapedLine)
{
    Random random(1);
    int plainOnes = 0;
    for (int round = 0; round < 4000; ++round) {
        const std::u16string text = RandomText(random, round % 4 != 0, 60);
        Engine().BeginCall();
        Font& font = Engine().Resolve(RandomFont(random));
        const std::optional<float> width = Shaper::PlainWidth(font, text);
        const ShapedLine& line = Engine().Line(font, text, false);
        ASSERT_EQ(width.has_value(), line.simple) << round;
        ASSERT_EQ(width.value_or(line.width), line.width) << "to the last bit, round " << round;
        plainOnes += line.simple ? 1 : 0;
    }
    EXPECT_GT(plainOnes, 2000);
    EXPECT_LT(plainOnes, 3800);
}

TEST(MeasuredAside, AllTextsHaveTheExtentOfDrawText)
{
    constexpr std::array<u32, 14> flags { DT_WORDBREAK, DT_WORDBREAK, DT_SINGLELINE, DT_NOPREFIX, DT_EXPANDTABS,
        DT_RIGHT, DT_VCENTER, DT_EXTERNALLEADING, DT_EDITCONTROL, DT_PATH_ELLIPSIS, DT_END_ELLIPSIS, DT_WORD_ELLIPSIS,
        DT_NOFULLWIDTHCHARBREAK, DT_RTLREADING };
    Random random(2);
    for (int round = 0; round < 4000; ++round) {
        std::u16string text = RandomText(random, round % 2 == 0, round % 100 == 0 ? 3000 : 80);
        for (u32 breaks = random() % 4; breaks > 0 && !text.empty(); --breaks)
            text[random() % text.size()] = u"\r\n& "[random() % 4];
        u32 format = 0;
        for (const u32 flag : flags)
            format |= random() % 5 == 0 ? flag : 0;
        const FontDescription font = RandomFont(random);
        const Rect room { 3, -4, 3 + static_cast<int>(random() % 300) - 20, static_cast<int>(random() % 60) };

        Rect aside = room;
        const int asideHeight = MeasureTextAside(text, aside, format, font);
        Rect drawn = room;
        const int drawnHeight = DrawTextOnPixels({}, text, drawn, format | DT_CALCRECT, font, {});
        ASSERT_EQ(aside.left, drawn.left) << round;
        ASSERT_EQ(aside.top, drawn.top) << round;
        ASSERT_EQ(aside.right, drawn.right) << round;
        ASSERT_EQ(aside.bottom, drawn.bottom) << round;
        ASSERT_EQ(asideHeight, drawnHeight) << round;
        // Once more, with the lines in the cache.
        Rect again = room;
        MeasureTextAside(text, again, format, font);
        ASSERT_EQ(again.right, drawn.right) << round;
        ASSERT_EQ(again.bottom, drawn.bottom) << round;
    }
}

class AsideCacheTest : public testing::TestWithParam<std::u16string_view> { };

TEST_P(AsideCacheTest, ManyTextsLeaveWhatThePainterHas)
{
    const FontDescription font = TestFont(-12);
    WidthOf(u"painted before", font);
    const std::size_t records = Engine().Lines().Records();
    const std::size_t rotations = Engine().Lines().Rotations();
    for (int number = 0; number < 30000; ++number) {
        std::u16string text(GetParam());
        for (const char digit : std::to_string(number))
            text.push_back(static_cast<char16_t>(digit));
        Rect rect { 0, 0, 50, 50 };
        MeasureTextAside(text, rect, number % 2 == 0 ? DT_WORDBREAK : 0, font);
        ASSERT_GT(rect.right, 0);
    }
    EXPECT_EQ(Engine().Lines().Records(), records);
    EXPECT_EQ(Engine().Lines().Rotations(), rotations);
    EXPECT_GT(records, 0U);
}

INSTANTIATE_TEST_SUITE_P(Scripts, AsideCacheTest,
    testing::Values(u"plain text ", u"\u6F22\u5B57 ", u"\u0645\u0631\u062D\u0628\u0627 ", u"mixed \u05E9 text "));

} // namespace
} // namespace vornix
