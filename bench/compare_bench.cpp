// Filling and painting the grid beside QTableWidget, in one process, on 30,000 rows by 33 columns of distinct short
// texts. Both are shown on Qt's raster engine in a window of 1920 by 1080. bench/ratios.py makes ratios of the times.
#include "compare_tables.h"

#include <malloc.h>

#include <cstring>

namespace {

using namespace compare;

std::size_t HeapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void TableFill(benchmark::State& state)
{
    GridTexts();
    for (auto _ : state) {
        state.PauseTiming();
        auto table = EmptyTable();
        const std::size_t before = HeapInUse();
        state.ResumeTiming();
        Fill(*table);
        state.PauseTiming();
        state.counters["bytes_per_cell"] = double(HeapInUse() - before) / (Rows * Cols);
        table.reset();
        state.ResumeTiming();
    }
}

void GridFill(benchmark::State& state)
{
    GridTexts();
    for (auto _ : state) {
        state.PauseTiming();
        auto widget = std::make_unique<QVornix>();
        const std::size_t before = HeapInUse();
        state.ResumeTiming();
        Fill(widget->Grid());
        state.PauseTiming();
        state.counters["bytes_per_cell"] = double(HeapInUse() - before) / (Rows * Cols);
        widget.reset();
        state.ResumeTiming();
    }
}

void TableRepaint(benchmark::State& state)
{
    QTableWidget& table = ShownTable();
    for (auto _ : state)
        table.viewport()->repaint();
}

void GridRepaint(benchmark::State& state)
{
    QVornix& widget = ShownGrid();
    for (auto _ : state) {
        widget.Grid().Refresh();
        widget.repaint();
    }
}

void TableFreshPage(benchmark::State& state)
{
    QTableWidget& table = ShownTable();
    const int page = table.viewport()->height() / table.rowHeight(0);
    int first = 0;
    for (auto _ : state) {
        state.PauseTiming();
        first = (first + page) % (Rows - page);
        state.ResumeTiming();
        table.scrollTo(table.model()->index(first, 0), QAbstractItemView::PositionAtTop);
        table.viewport()->repaint();
    }
}

// A page comes up when the rows before it are hidden; hiding them is not part of the time.
void GridFreshPage(benchmark::State& state)
{
    const auto widget = FilledGrid();
    ShowInWindow(*widget);
    vornix::Vornix& grid = widget->Grid();
    const int page = WindowHeight / RowHeight;
    int first = 0;
    for (auto _ : state) {
        state.PauseTiming();
        grid.SetRedraw(false);
        grid.HideRow(vornix::i16(first), vornix::i16(page));
        first += page;
        state.ResumeTiming();
        grid.SetRedraw(true);
        widget->repaint();
    }
}

void GridColBackColor(benchmark::State& state)
{
    vornix::Vornix& grid = ShownGrid().Grid();
    vornix::OleColor color = 0;
    for (auto _ : state)
        grid.SetColBackColor(2, color = (color + 0x10305) & 0xFFFFFF);
    grid.SetColBackColor(2, 0x80000005);
}

void TableColBackColor(benchmark::State& state)
{
    QTableWidget& table = ShownTable();
    int shade = 0;
    for (auto _ : state) {
        shade = (shade + 7) % 256;
        const QBrush brush { QColor(shade, 128, 128) };
        for (int row = 0; row < Rows; ++row)
            table.item(row, 2)->setBackground(brush);
    }
    for (int row = 0; row < Rows; ++row)
        table.item(row, 2)->setBackground(QBrush());
}

void FrameCopy(benchmark::State& state)
{
    const std::vector<vornix::u32> from(std::size_t { WindowWidth } * WindowHeight, 0xFFFFFFFF);
    std::vector<vornix::u32> to(from.size());
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size() * sizeof(vornix::u32));
        benchmark::ClobberMemory();
    }
}

BENCHMARK(TableFill)->Name("QTableWidget/fill")->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(GridFill)->Name("Vornix/fill")->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(TableRepaint)->Name("QTableWidget/repaint")->Unit(benchmark::kMillisecond);
BENCHMARK(GridRepaint)->Name("Vornix/repaint")->Unit(benchmark::kMillisecond);
BENCHMARK(TableFreshPage)->Name("QTableWidget/fresh_page")->Unit(benchmark::kMillisecond)->Iterations(100);
BENCHMARK(GridFreshPage)->Name("Vornix/fresh_page")->Unit(benchmark::kMillisecond)->Iterations(100);
BENCHMARK(TableColBackColor)->Name("QTableWidget/col_back_color")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(GridColBackColor)->Name("Vornix/col_back_color")->Unit(benchmark::kMillisecond);
BENCHMARK(FrameCopy)->Name("frame_copy")->Unit(benchmark::kMillisecond);

} // namespace
