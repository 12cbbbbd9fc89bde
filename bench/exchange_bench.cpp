// Tables onto the clipboard and from it, and batch scripts, in a container without a screen.
#include "vornix/headless_container.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace vornix {
namespace {

constexpr int ColumnCount = 32;
constexpr int RowsOfMillion = 31250; // 1,000,000 cells
constexpr int ElementCount = 100'000;

std::u16string Digits(int number, std::size_t width = 0)
{
    const std::string digits = std::to_string(number);
    std::u16string text(digits.begin(), digits.end());
    return std::u16string(width > text.size() ? width - text.size() : 0, u'0') + text;
}

void Fill(Vornix& grid, int rows)
{
    grid.SetRedraw(false);
    grid.SetCols(ColumnCount);
    grid.SetRows(static_cast<i16>(rows));
    for (int row = 0; row < rows; ++row)
        for (int col = 0; col < ColumnCount; ++col)
            grid.SetText(static_cast<i16>(row), static_cast<i16>(col), u"cell " + Digits(row * ColumnCount + col, 7));
}

// Distinct texts of 12 units each.
void Copy(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    HeadlessContainer container;
    Fill(container.Grid(), rows);
    const auto last = static_cast<i16>(rows - 1);
    for (auto _ : state) {
        container.Grid().CopyToClipboard(0, 0, last, ColumnCount - 1);
        benchmark::DoNotOptimize(container.ClipboardText().data());
    }
    state.SetItemsProcessed(state.iterations() * rows * ColumnCount);
}
BENCHMARK(Copy)->Name("Vornix/copy_1m_cells")->Arg(RowsOfMillion)->Unit(benchmark::kMillisecond);
BENCHMARK(Copy)->Name("Vornix/copy_quarter_of_1m_cells")->Arg(RowsOfMillion / 4)->Unit(benchmark::kMillisecond);

void Paste(benchmark::State& state)
{
    HeadlessContainer container;
    Fill(container.Grid(), RowsOfMillion);
    container.Grid().CopyToClipboard(0, 0, RowsOfMillion - 1, ColumnCount - 1);
    for (auto _ : state)
        container.Grid().PasteFromClipboard(0, 0, RowsOfMillion - 1, ColumnCount - 1);
    state.SetItemsProcessed(state.iterations() * RowsOfMillion * ColumnCount);
}
BENCHMARK(Paste)->Name("Vornix/paste_1m_cells")->Unit(benchmark::kMillisecond);

// Elements with and without a place, a line each, comments now and then.
std::u16string MakeScript()
{
    std::u16string script = u"<Redraw>False</Redraw>\r\n";
    for (int i = 0; i < (ElementCount - 2) / 2; ++i) {
        const std::u16string row = Digits(i % 1000);
        const std::u16string col = Digits(i % ColumnCount);
        if (i % 10 == 0)
            script += u"<!-- " + Digits(i) + u" -->";
        switch (i % 3) {
        case 0:
            script += u"<Row>" + row + u"</Row>\r\n<RowHeight>" + Digits(15 + i % 10) + u"</RowHeight>\r\n";
            break;
        case 1:
            script += u"<CellForeColor Row=\"" + row + u"\" Col=\"" + col + u"\">&HFF</CellForeColor>\r\n<Col>" + col
                + u"</Col>\r\n";
            break;
        default:
            script
                += u"<CellFontBold>True</CellFontBold>\r\n<CellBackColor>" + Digits(i % 256) + u"</CellBackColor>\r\n";
            break;
        }
    }
    return script + u"<Redraw>True</Redraw>";
}

void RunScript(benchmark::State& state)
{
    HeadlessContainer container;
    Vornix& grid = container.Grid();
    grid.SetRows(1000);
    grid.SetCols(ColumnCount);
    grid.VXScriptAdd(MakeScript());
    for (auto _ : state) {
        if (grid.VXScriptExecute() != -1) {
            std::fputs("the script did not run to its end\n", stderr);
            std::exit(1);
        }
    }
    state.SetItemsProcessed(state.iterations() * ElementCount);
}
BENCHMARK(RunScript)->Name("Vornix/script_100k")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vornix

BENCHMARK_MAIN();
