// The store alone: filling it, what a cell costs, and writing a column.
#include "model/grid_store.h"
#include "model/spans.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <memory>
#include <string>
#include <vector>

namespace vornix {
namespace {

constexpr int RowCount = 30000;
constexpr int ColCount = 33;

// Distinct texts of 4 to 9 units.
const std::vector<std::u16string>& Texts()
{
    static const std::vector<std::u16string> texts = [] {
        std::vector<std::u16string> made;
        made.reserve(static_cast<std::size_t>(RowCount) * ColCount);
        for (int row = 0; row < RowCount; ++row)
            for (int col = 0; col < ColCount; ++col) {
                const std::string text = std::to_string(row).append(".").append(std::to_string(col));
                made.emplace_back(text.begin(), text.end());
            }
        return made;
    }();
    return texts;
}

std::unique_ptr<GridStore> BuildStore()
{
    auto store = std::make_unique<GridStore>();
    store->StoreRows(RowCount);
    store->StoreCols(ColCount);
    store->StoreFixedRows(1);
    store->InitGridStore(SystemColors());
    return store;
}

void Fill(GridStore& store)
{
    auto text = Texts().begin();
    for (int row = 0; row < RowCount; ++row)
        for (int col = 0; col < ColCount; ++col)
            store.EditCell(row + 1, col).SetText(*text++);
}

std::unique_ptr<GridStore> FilledStore()
{
    auto store = BuildStore();
    Fill(*store);
    return store;
}

double HeapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

void BuildAndFill(benchmark::State& state)
{
    Texts();
    for (auto _ : state) {
        auto store = FilledStore();
        benchmark::DoNotOptimize(store->CellAt(RowCount, 0));
        state.PauseTiming();
        store.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * RowCount * ColCount);
}
BENCHMARK(BuildAndFill)->Unit(benchmark::kMillisecond);

void BytesPerCell(benchmark::State& state)
{
    constexpr double cells = static_cast<double>(RowCount) * ColCount;
    Texts();
    for (auto _ : state) {
        const double before = HeapInUse();
        const auto store = FilledStore();
        state.counters["heap_bytes_per_cell"] = (HeapInUse() - before) / cells;
        state.counters["counted_bytes_per_cell"] = static_cast<double>(store->MemoryInUse()) / cells;
    }
}
BENCHMARK(BytesPerCell)->Iterations(1)->Unit(benchmark::kMillisecond);

void BuildEmpty(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(BuildStore());
}
BENCHMARK(BuildEmpty)->Unit(benchmark::kMicrosecond);

// A colour not seen before in each round, as an animation would.
void EditColumn(benchmark::State& state)
{
    const auto store = FilledStore();
    OleColor color = 0;
    int col = 0;
    for (auto _ : state) {
        ++color;
        store->EditColFormats(col, 1, RowCount + 1, [color](CellFormat& format) { format.BackColor = color; });
        // Another column each time, so that no cell lies in the cache from the round before.
        col = (col + 8) % ColCount;
    }
}
BENCHMARK(EditColumn)->Unit(benchmark::kMicrosecond);

void EditColumnOfUnwrittenRows(benchmark::State& state)
{
    const auto store = BuildStore();
    OleColor color = 0;
    for (auto _ : state) {
        ++color;
        store->EditColFormats(5, 1, RowCount + 1, [color](CellFormat& format) { format.BackColor = color; });
    }
}
BENCHMARK(EditColumnOfUnwrittenRows)->Unit(benchmark::kMicrosecond);

void EditOneFormat(benchmark::State& state)
{
    const auto store = FilledStore();
    OleColor color = 0;
    for (auto _ : state) {
        color = (color + 1) & 0xFFFF;
        store->EditFormat(
            static_cast<int>(color % RowCount), 7, [color](CellFormat& format) { format.BackColor = color; });
    }
}
BENCHMARK(EditOneFormat);

void ReadTexts(benchmark::State& state)
{
    const auto store = FilledStore();
    std::u16string scratch;
    for (auto _ : state) {
        std::size_t length = 0;
        for (int row = 1; row <= RowCount; ++row)
            for (int col = 0; col < ColCount; ++col)
                length += store->CellAt(row, col).TextView(scratch).size();
        benchmark::DoNotOptimize(length);
    }
    state.SetItemsProcessed(state.iterations() * RowCount * ColCount);
}
BENCHMARK(ReadTexts)->Unit(benchmark::kMillisecond);

void InsertARowAtTheTop(benchmark::State& state)
{
    const auto store = FilledStore();
    for (auto _ : state) {
        store->ShiftRowsUp(1, 1);
        store->InitRows(1, 1);
    }
}
BENCHMARK(InsertARowAtTheTop)->Unit(benchmark::kMicrosecond);

void InsertAColumnAtTheLeft(benchmark::State& state)
{
    const auto store = FilledStore();
    for (auto _ : state) {
        store->ShiftColsUp(0, 1);
        store->InitCols(0, 0);
    }
}
BENCHMARK(InsertAColumnAtTheLeft)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vornix

BENCHMARK_MAIN();
