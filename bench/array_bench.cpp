// A table of 33 columns by 30,000 records into the grid: as one array, and cell by cell.
#include "vornix/headless_container.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace vornix {
namespace {

constexpr int RecordCount = 30000;
constexpr int ColumnCount = 33;
constexpr std::int64_t CellCount = std::int64_t { RecordCount } * ColumnCount;

// Distinct texts of 12 units.
const VariantArray& Texts()
{
    static const VariantArray texts = [] {
        VariantArray made;
        for (int column = 0; column < ColumnCount; ++column) {
            std::vector<Variant>& records = made.columns.emplace_back();
            for (int record = 0; record < RecordCount; ++record) {
                const std::string number = std::to_string(record * ColumnCount + column);
                const std::string text = "cell " + std::string(7 - number.size(), '0') + number;
                records.emplace_back(std::u16string(text.begin(), text.end()));
            }
        }
        return made;
    }();
    return texts;
}

// Numbers, which become texts on the way.
VariantArray Numbers()
{
    VariantArray made;
    for (int column = 0; column < ColumnCount; ++column) {
        std::vector<Variant>& records = made.columns.emplace_back();
        for (int record = 0; record < RecordCount; ++record)
            records.emplace_back((record * ColumnCount + column) / 4.0);
    }
    return made;
}

// An empty grid that paints what it is told, as one in a window does.
std::unique_ptr<HeadlessContainer> EmptyGrid()
{
    auto container = std::make_unique<HeadlessContainer>();
    container->Grid().SetRows(0);
    return container;
}

void LoadArray(benchmark::State& state, const VariantArray& array)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto container = EmptyGrid();
        state.ResumeTiming();
        container->Grid().LoadFromArray(array);
        state.PauseTiming();
        container.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * CellCount);
}

void LoadTexts(benchmark::State& state)
{
    LoadArray(state, Texts());
}
BENCHMARK(LoadTexts)->Unit(benchmark::kMillisecond);

void LoadNumbers(benchmark::State& state)
{
    LoadArray(state, Numbers());
}
BENCHMARK(LoadNumbers)->Unit(benchmark::kMillisecond);

const Variant& ElementAt(const VariantArray& array, int record, int column)
{
    return array.columns[static_cast<std::size_t>(column)][static_cast<std::size_t>(record)];
}

// The same texts as a host sets them one by one, with painting off.
void SetTexts(benchmark::State& state)
{
    const VariantArray& array = Texts();
    for (auto _ : state) {
        state.PauseTiming();
        auto container = EmptyGrid();
        state.ResumeTiming();
        Vornix& grid = container->Grid();
        std::u16string scratch;
        grid.SetRedraw(false);
        grid.SetCols(ColumnCount);
        grid.SetRows(RecordCount);
        for (i16 row = 0; row < RecordCount; ++row)
            for (i16 col = 0; col < ColumnCount; ++col)
                grid.SetText(row, col, ElementAt(array, row, col).ViewText(scratch));
        grid.SetRedraw(true);
        state.PauseTiming();
        container.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * CellCount);
}
BENCHMARK(SetTexts)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vornix

BENCHMARK_MAIN();
