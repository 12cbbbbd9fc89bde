// The layout's walks on a table of 32,000 rows by 33 columns, and on the shapes that make them long.
#include "layout/layout_engine.h"
#include "model/hidden_lines.h"
#include "vornix/platform/system_colors.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace vornix {
namespace {

constexpr int rowCount = 32000;
constexpr int colCount = 33;

// One table for all measurements of a shape: making the rows takes longer than any walk over them.
struct LargeTable {
    GridStore store;
    ScrollModel scroll { store };
    LayoutEngine layout { store, scroll };

    // One fixed row of 21 pixels, and rows of the given height behind it.
    explicit LargeTable(int rowHeight)
    {
        store.Defaults.Font = std::make_shared<FontObject>();
        store.Defaults.FontFixed = store.Defaults.Font;
        store.Defaults.DefaultHeight = static_cast<i16>(rowHeight);
        store.StoreFixedRows(1);
        store.StoreRows(rowCount);
        store.StoreFixedCols(1);
        store.StoreCols(colCount - 1);
        store.InitGridStore(SystemColors());
        layout.ResetFor(store);
    }

    void Layout(bool forcePercent = false)
    {
        layout.MarkMetricsDirty();
        layout.UpdateCaptionHeight();
        layout.MeasureIfDirty();
        layout.CalcScrollBarNeed(forcePercent);
        layout.UpdateClientArea();
    }
};

// Rows of the usual height in a window of the usual size.
LargeTable& UsualTable()
{
    static LargeTable table(21);
    table.layout.SetScaleSize({ 1920, 1080 });
    table.scroll.SetFirstRow(1);
    table.Layout();
    return table;
}

// Rows of one pixel: the most that fit in 16 bits, and so the longest walks there can be.
LargeTable& DenseTable()
{
    static LargeTable table(1);
    table.layout.SetScaleSize({ 1920, 32767 });
    table.scroll.SetFirstRow(1);
    table.Layout();
    return table;
}

// All rows but the first and the last hidden.
LargeTable& HiddenTable()
{
    static std::unique_ptr<LargeTable> table;
    if (!table) {
        table = std::make_unique<LargeTable>(21);
        HiddenLines hidden(table->store);
        for (int row = 2; row < rowCount; ++row)
            hidden.HideRow(row);
    }
    table->layout.SetScaleSize({ 1920, 1080 });
    table->Layout();
    return *table;
}

void HitTestOnAScreen(benchmark::State& state)
{
    LargeTable& table = UsualTable();
    for (auto _ : state)
        benchmark::DoNotOptimize(table.layout.HitTestCell(1800, 1050));
}
BENCHMARK(HitTestOnAScreen);

void HitTestScrolledToRow32000(benchmark::State& state)
{
    LargeTable& table = UsualTable();
    table.scroll.SetFirstRow(rowCount - 50);
    for (auto _ : state)
        benchmark::DoNotOptimize(table.layout.HitTestCell(1800, 1050));
}
BENCHMARK(HitTestScrolledToRow32000);

void HitTestAtRow32000FromTheTop(benchmark::State& state)
{
    LargeTable& table = DenseTable();
    for (auto _ : state)
        benchmark::DoNotOptimize(table.layout.HitTestCell(500, 21 + rowCount - 1));
}
BENCHMARK(HitTestAtRow32000FromTheTop)->Unit(benchmark::kMicrosecond);

void HitTestBehindHiddenRows(benchmark::State& state)
{
    LargeTable& table = HiddenTable();
    for (auto _ : state)
        benchmark::DoNotOptimize(table.layout.HitTestCell(500, 50));
}
BENCHMARK(HitTestBehindHiddenRows)->Unit(benchmark::kMicrosecond);

void CellOriginOnAScreen(benchmark::State& state)
{
    LargeTable& table = UsualTable();
    for (auto _ : state)
        benchmark::DoNotOptimize(table.layout.CellOriginAt(50, 15));
}
BENCHMARK(CellOriginOnAScreen);

void CellOriginAtRow32000FromTheTop(benchmark::State& state)
{
    LargeTable& table = DenseTable();
    for (auto _ : state)
        benchmark::DoNotOptimize(table.layout.CellOriginAt(rowCount, colCount - 1));
}
BENCHMARK(CellOriginAtRow32000FromTheTop)->Unit(benchmark::kMicrosecond);

void BlockOf32000Rows(benchmark::State& state)
{
    LargeTable& table = DenseTable();
    for (auto _ : state)
        benchmark::DoNotOptimize(table.layout.BlockSize(1, 1, rowCount, colCount - 1));
}
BENCHMARK(BlockOf32000Rows)->Unit(benchmark::kMicrosecond);

void FirstRowForTheLast(benchmark::State& state)
{
    LargeTable& table = UsualTable();
    for (auto _ : state)
        benchmark::DoNotOptimize(table.layout.FirstRowForLast(rowCount));
}
BENCHMARK(FirstRowForTheLast);

void LayoutSteps(benchmark::State& state)
{
    LargeTable& table = UsualTable();
    for (auto _ : state)
        table.Layout();
}
BENCHMARK(LayoutSteps);

void LayoutStepsWithPercentWidths(benchmark::State& state)
{
    LargeTable& table = UsualTable();
    for (int col = 1; col <= 10; ++col)
        table.layout.SetColWidthPercent(col, 10);
    for (auto _ : state)
        table.Layout(true);
    for (int col = 1; col <= 10; ++col)
        table.layout.SetColWidthPercent(col, 0);
}
BENCHMARK(LayoutStepsWithPercentWidths);

// Nothing overflows, so every row is asked.
void LayoutStepsWithAllRowsFitting(benchmark::State& state)
{
    LargeTable& table = DenseTable();
    for (auto _ : state)
        table.Layout();
}
BENCHMARK(LayoutStepsWithAllRowsFitting)->Unit(benchmark::kMicrosecond);

void RowHeightAndLayoutSteps(benchmark::State& state)
{
    LargeTable& table = UsualTable();
    int height = 30;
    for (auto _ : state) {
        table.layout.SetRowHeight(rowCount, height);
        table.Layout();
        height = height == 30 ? 21 : 30;
    }
}
BENCHMARK(RowHeightAndLayoutSteps);

} // namespace
} // namespace vornix

BENCHMARK_MAIN();
