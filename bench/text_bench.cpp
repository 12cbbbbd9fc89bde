// What a page of short texts costs: seen for the first time, seen before, and in other scripts.
#include "text/text_renderer.h"

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

namespace {

using namespace vornix;

constexpr int PageWidth = 1920;
constexpr int PageHeight = 1080;
constexpr int Columns = 20;
constexpr int Rows = 40;

class Page {
public:
    explicit Page(double scale = 1)
        : width_(static_cast<int>(PageWidth * scale))
        , height_(static_cast<int>(PageHeight * scale))
        , pixels_(static_cast<std::size_t>(width_) * height_, 0xFFFFFFFF)
        , view_ { pixels_.data(), width_, height_, width_, ScaleMap(scale, {}), { 0, 0, width_, height_ } }
    {
        font_.face = u"DejaVu Sans";
        font_.height = -12;
    }

    // One text a cell, 800 cells.
    template <typename TextOf> void Draw(const TextOf& textOf, u32 format)
    {
        for (int row = 0; row < Rows; ++row) {
            for (int col = 0; col < Columns; ++col) {
                Rect rect { col * 96 + 4, row * 26 + 2, col * 96 + 92, row * 26 + 22 };
                DrawTextOnPixels(view_, textOf(row, col), rect, format, font_, colors_);
            }
        }
        benchmark::DoNotOptimize(pixels_.data());
    }

private:
    int width_;
    int height_;
    std::vector<u32> pixels_;
    PixelView view_;
    FontDescription font_;
    TextColors colors_ { 0, 0xFFFFFF, BackgroundMode::Transparent };
};

std::u16string Widen(const std::string& text)
{
    return { text.begin(), text.end() };
}

std::u16string ShortText(long page, int row, int col)
{
    return Widen("Cell " + std::to_string(page * Rows + row) + "-" + std::to_string(col));
}

using Texts = std::vector<std::u16string>;

Texts PageOfTexts(long page, const std::u16string& before = u"")
{
    Texts texts;
    for (int row = 0; row < Rows; ++row) {
        for (int col = 0; col < Columns; ++col)
            texts.push_back(before + ShortText(page, row, col));
    }
    return texts;
}

void DrawTexts(Page& page, const Texts& texts, u32 format)
{
    page.Draw(
        [&](int row, int col) -> const std::u16string& { return texts[static_cast<std::size_t>(row * Columns + col)]; },
        format);
}

constexpr u32 CellFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;

void FreshPage(benchmark::State& state, const std::u16string& before, u32 format)
{
    Page page(static_cast<double>(state.range(0)) / 100);
    DrawTexts(page, PageOfTexts(0, before), format);
    long number = 1;
    for (auto _ : state) {
        state.PauseTiming();
        const Texts texts = PageOfTexts(number++, before);
        state.ResumeTiming();
        DrawTexts(page, texts, format);
    }
    state.SetItemsProcessed(state.iterations() * Rows * Columns);
}

void SeenPage(benchmark::State& state, const std::u16string& before, u32 format)
{
    Page page(static_cast<double>(state.range(0)) / 100);
    const Texts texts = PageOfTexts(0, before);
    DrawTexts(page, texts, format);
    for (auto _ : state)
        DrawTexts(page, texts, format);
    state.SetItemsProcessed(state.iterations() * Rows * Columns);
}

BENCHMARK_CAPTURE(FreshPage, Latin, u"", CellFormat)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SeenPage, Latin, u"", CellFormat)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FreshPage, Right, u"", CellFormat | DT_RIGHT)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SeenPage, Right, u"", CellFormat | DT_RIGHT)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FreshPage, Ellipsis, u"A text that does not fit ", CellFormat | DT_WORD_ELLIPSIS)
    ->Arg(100)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SeenPage, Ellipsis, u"A text that does not fit ", CellFormat | DT_WORD_ELLIPSIS)
    ->Arg(100)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FreshPage, WordBreak, u"Broken into words ", DT_WORDBREAK)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SeenPage, WordBreak, u"Broken into words ", DT_WORDBREAK)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FreshPage, Arabic, u"\u0627\u0644\u0633\u0644\u0627\u0645 ", CellFormat)
    ->Arg(100)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SeenPage, Arabic, u"\u0627\u0644\u0633\u0644\u0627\u0645 ", CellFormat)
    ->Arg(100)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FreshPage, Chinese, u"\u4F60\u597D\u4E16\u754C ", CellFormat)
    ->Arg(100)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SeenPage, Emoji, u"\U0001F600\U0001F680 ", CellFormat)->Arg(100)->Unit(benchmark::kMicrosecond);

void Measure(benchmark::State& state)
{
    const Texts texts = PageOfTexts(0);
    FontDescription font;
    font.face = u"DejaVu Sans";
    font.height = -12;
    for (auto _ : state) {
        for (const std::u16string& text : texts) {
            Rect rect { 0, 0, 88, 20 };
            DrawTextOnPixels({}, text, rect, CellFormat | DT_CALCRECT, font, {});
            benchmark::DoNotOptimize(rect);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(texts.size()));
}
BENCHMARK(Measure)->Unit(benchmark::kMicrosecond);

} // namespace
