#include "text_fixture.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace vornix {
namespace {

std::u16string Repeated(std::u16string_view part, std::size_t units)
{
    std::u16string text;
    while (text.size() < units)
        text += part;
    return text;
}

// A step that took the whole text for every line would run into the time limit of the test program.
TEST(TextLimits, AMegabyteIsDrawnWithinItsRectangle)
{
    const std::u16string texts[] = { Repeated(u"a", 1 << 20), Repeated(u"word ", 1 << 20), Repeated(u"line\n", 1 << 20),
        Repeated(u"\u0639\u0631\u0628\u064A", 1 << 20), Repeated(u"\u0928\u092E \u0938\u094D\u0924\u0947", 1 << 20),
        Repeated(u"\u4E16\u754C", 1 << 20), Repeated(u"\U0001F600", 1 << 20), Repeated(u"\u0301", 1 << 20),
        std::u16string(1 << 20, u'\0'), std::u16string(1 << 20, char16_t { 0xD800 }), Repeated(u"&", 1 << 20),
        Repeated(u"\t", 1 << 20), Repeated(u" ", 1 << 20), Repeated(u"\u200D", 1 << 20) };
    Canvas canvas(200, 100);
    for (const std::u16string& text : texts) {
        for (const u32 format : { 0u, DT_SINGLELINE | DT_VCENTER, DT_WORDBREAK, DT_WORDBREAK | DT_EDITCONTROL,
                 DT_SINGLELINE | DT_WORD_ELLIPSIS, DT_RIGHT, DT_CENTER | DT_EXPANDTABS, DT_WORDBREAK | DT_WORD_ELLIPSIS,
                 DT_RTLREADING | DT_SINGLELINE, DT_PATH_ELLIPSIS, DT_SINGLELINE | DT_CALCRECT }) {
            const int height = canvas.Draw(text, { 3, 3, 150, 90 }, format);
            EXPECT_GT(height, 0) << "first unit " << static_cast<int>(text[0]) << " format " << format;
        }
    }
    const std::vector<u32> pixels = canvas.Pixels();
    const std::vector<u32> blank = Canvas(200, 100).Pixels();
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::size_t x = i % 200;
        const std::size_t y = i / 200;
        if (x < 3 || x >= 150 || y < 3 || y >= 90) {
            ASSERT_EQ(pixels[i], blank[i]) << x << ", " << y;
        }
    }
}

TEST(TextLimits, MeasuringAMegabyteEnds)
{
    const std::u16string words = Repeated(u"word ", 1 << 20);
    Rect rect { 0, 0, 200, 10 };
    DrawTextOnPixels({}, words, rect, DT_CALCRECT | DT_WORDBREAK, TestFont(), {});
    EXPECT_LE(rect.right, 200);
    const std::size_t perLine = TextsOf(words.substr(0, 200), { 0, 0, 200, 1000 }, DT_WORDBREAK)[0].size() + 1;
    const int lines = static_cast<int>((words.size() + perLine - 1) / perLine);
    EXPECT_NEAR(rect.bottom, lines * 14, 14);
}

TEST(TextLimits, ARectangleAtTheEndsOf32BitsIsCut)
{
    constexpr int Most = 2147483647;
    Canvas near(60, 30, 2);
    Canvas far(60, 30, 2);
    near.Draw(u"text", { 0, 0, 60, 30 }, 0);
    far.Draw(u"text", { 0, 0, Most, Most }, 0);
    EXPECT_EQ(near.Pixels(), far.Pixels());
    const std::vector<u32> before = far.Pixels();
    for (const u32 format : { 0u, DT_RIGHT, DT_CENTER | DT_SINGLELINE, DT_WORDBREAK, DT_CALCRECT }) {
        far.Draw(u"text", { -Most - 1, -Most - 1, -Most, -Most }, format);
        far.Draw(u"text", { Most, Most, Most, Most }, format);
    }
    EXPECT_EQ(far.Pixels(), before);
}

TEST(TextLimits, ALineIsMeasuredUpToItsLimit)
{
    const int limit = static_cast<int>(LineLayout::LongestLine);
    EXPECT_NEAR(WidthOf(std::u16string(static_cast<std::size_t>(limit), u'a')), limit * 12 * 1255 / 2048.0, 100);
    EXPECT_EQ(WidthOf(std::u16string(1 << 20, u'a')), WidthOf(std::u16string(static_cast<std::size_t>(limit), u'a')));
}

TEST(TextLimits, TheBeginningOfALongLineShows)
{
    const std::u16string text = u"Start " + Repeated(u"of a very long line ", 1 << 20);
    Canvas whole(200, 30);
    Canvas beginning(200, 30);
    whole.Draw(text, { 3, 3, 190, 25 }, DT_SINGLELINE);
    beginning.Draw(std::u16string_view(text).substr(0, 400), { 3, 3, 190, 25 }, DT_SINGLELINE);
    EXPECT_EQ(whole.Pixels(), beginning.Pixels());
}

TEST(TextLimits, CachesKeepTheirBoundsUnderAFlood)
{
    TextEngine& engine = TextEngine::OfThread();
    Canvas canvas(100, 30);
    for (int number = 0; number < 60000; ++number) {
        std::u16string text = u"Text ";
        for (const char digit : std::to_string(number * 7919))
            text += static_cast<char16_t>(digit);
        canvas.Draw(text, { 0, 0, 100, 20 }, DT_SINGLELINE);
    }
    EXPECT_GT(engine.Lines().Rotations(), 0u);
    EXPECT_LE(engine.Lines().Records(), 2 * engine.Lines().RecordLimit() + 2);
    EXPECT_LE(engine.Lines().Bytes(), 2 * engine.Lines().ByteLimit() + (1u << 20));
    EXPECT_LE(engine.Strips().Bytes(), StripStore::MostBytes + (1u << 20));
    EXPECT_GT(engine.Strips().Bytes(), StripStore::MostBytes / 4);
}

TEST(TextLimits, FontsAreClosedAgain)
{
    TextEngine& engine = TextEngine::OfThread();
    Canvas reference(100, 60);
    Canvas canvas(100, 60);
    reference.Draw(u"Text", { 0, 0, 100, 50 }, 0, TestFont(-17));
    for (int height = 1; height < 700; ++height) {
        Canvas scratch(30, 30);
        scratch.Draw(u"Text", { 0, 0, 30, 30 }, 0, TestFont(-height));
        EXPECT_LE(engine.Library().Fonts(), FontLibrary::MostFonts + 1);
    }
    canvas.Draw(u"Text", { 0, 0, 100, 50 }, 0, TestFont(-17));
    EXPECT_EQ(canvas.Pixels(), reference.Pixels());
}

TEST(TextLimits, RandomTextsAndFlagsNeverFail)
{
    Random random(3);
    const char16_t pool[] = { u'a', u'W', u' ', u' ', u'\t', u'\r', u'\n', u'&', u'\\', u'.', 0, 1, 0xD83D, 0xDE00,
        0xD800, 0xDC00, 0x301, 0x5D0, 0x5D1, 0x627, 0x644, 0x928, 0x94D, 0xE17, 0xE35, 0x4E16, 0x3002, 0x300C, 0x200D,
        0xFE0F, 0x20E3, u'1', 0x202E, 0x2067, 0x2069, 0xFFFD, 0xFFFF, 0xAD, 0x200B, 0x1100, 0x1161 };
    Canvas canvas(80, 60);
    for (int round = 0; round < 6000; ++round) {
        std::u16string text;
        for (unsigned length = random() % 40; length > 0; --length)
            text += pool[random() % std::size(pool)];
        const u32 format = random() & 0x3FFFFFu;
        const int left = static_cast<int>(random() % 60) - 10;
        const int top = static_cast<int>(random() % 60) - 10;
        const Rect rect { left, top, left + static_cast<int>(random() % 70), top + static_cast<int>(random() % 50) };
        Rect measured = rect;
        DrawTextOnPixels({}, text, measured, (format & ~0xFF80u) | DT_CALCRECT, TestFont(), {});
        EXPECT_GE(measured.Width(), 0);
        EXPECT_GT(measured.Height(), 0);
        canvas.Draw(text, rect, format);
    }
}

TEST(TextLimits, ThreadsDrawAtOnce)
{
    const auto draw = [] {
        Canvas canvas(300, 100);
        for (int round = 0; round < 40; ++round) {
            FontDescription font = TestFont(-10 - round % 5, round % 2 ? u"Noto Sans" : u"DejaVu Sans");
            font.weight = round % 3 ? 400 : 700;
            canvas.Draw(u"Text \u4E16\u754C \u0928\u092E\u0938\u094D \U0001F600 \u0E17\u0E35\u0E48 wraps around",
                { 0, 0, 200 + round, 100 }, DT_WORDBREAK, font);
        }
        return canvas.Pixels();
    };
    const std::vector<u32> expected = draw();
    std::atomic<int> equal = 0;
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number)
        threads.emplace_back([&] { equal += draw() == expected ? 1 : 0; });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(equal, 4);
}

} // namespace
} // namespace vornix
