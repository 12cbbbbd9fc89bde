// Members called through the C library, as other languages call them: properties a second by a handle looked up once,
// and by name each time; many texts at once.
#include "vornix/vornix_c.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::int64_t Rows = 30000;
constexpr std::int64_t Cols = 3;

vornix_value Integer(std::int64_t value)
{
    vornix_value made {};
    made.type = VORNIX_I32;
    made.as.integer = value;
    return made;
}

void Check(std::int32_t status)
{
    if (status == 0)
        return;
    std::fprintf(stderr, "error %d: %s\n", status, vornix_last_error());
    std::exit(1);
}

class BenchGrid {
public:
    BenchGrid()
    {
        Check(vornix_grid_create(nullptr, &grid_));
        vornix_value rows = Integer(Rows);
        Check(vornix_invoke(grid_, "Rows", VORNIX_LET, &rows, 1, nullptr));
        vornix_value cols = Integer(Cols);
        Check(vornix_invoke(grid_, "Cols", VORNIX_LET, &cols, 1, nullptr));
    }
    ~BenchGrid() { vornix_grid_destroy(grid_); }
    BenchGrid(const BenchGrid&) = delete;
    BenchGrid& operator=(const BenchGrid&) = delete;
    vornix_grid* Get() const { return grid_; }

private:
    vornix_grid* grid_ = nullptr;
};

// Two reads an iteration: one without arguments, one with.
constexpr int ReadsAnIteration = 2;

void GetByHandle(benchmark::State& state)
{
    const BenchGrid grid;
    const vornix_member* const rows = vornix_find_member("Rows");
    const vornix_member* const width = vornix_find_member("ColWidth");
    std::int64_t sum = 0;
    for (auto _ : state) {
        vornix_value result;
        Check(vornix_invoke_member(grid.Get(), rows, VORNIX_GET, nullptr, 0, &result));
        sum += result.as.integer;
        vornix_value column = Integer(sum % Cols);
        Check(vornix_invoke_member(grid.Get(), width, VORNIX_GET, &column, 1, &result));
        sum += result.as.integer;
    }
    benchmark::DoNotOptimize(sum);
    state.SetItemsProcessed(state.iterations() * ReadsAnIteration);
}

void GetByName(benchmark::State& state)
{
    const BenchGrid grid;
    std::int64_t sum = 0;
    for (auto _ : state) {
        vornix_value result;
        Check(vornix_invoke(grid.Get(), "Rows", VORNIX_GET, nullptr, 0, &result));
        sum += result.as.integer;
        vornix_value column = Integer(sum % Cols);
        Check(vornix_invoke(grid.Get(), "ColWidth", VORNIX_GET, &column, 1, &result));
        sum += result.as.integer;
    }
    benchmark::DoNotOptimize(sum);
    state.SetItemsProcessed(state.iterations() * ReadsAnIteration);
}

void SetText(benchmark::State& state)
{
    const BenchGrid grid;
    vornix_value off {};
    off.type = VORNIX_BOOLEAN;
    Check(vornix_invoke(grid.Get(), "Redraw", VORNIX_LET, &off, 1, nullptr));
    const vornix_member* const member = vornix_find_member("Text");
    const char16_t* const written = u"a plain text";
    vornix_value text {};
    text.type = VORNIX_TEXT;
    text.as.text = { reinterpret_cast<const std::uint16_t*>(written), 12 };
    std::int64_t row = 0;
    for (auto _ : state) {
        row = row + 1 == Rows ? 0 : row + 1;
        vornix_value arguments[] = { Integer(row), Integer(1), text };
        Check(vornix_invoke_member(grid.Get(), member, VORNIX_LET, arguments, 3, nullptr));
    }
    state.SetItemsProcessed(state.iterations());
}

void ReadColumn(benchmark::State& state)
{
    const BenchGrid grid;
    const char16_t* const written = u"a plain text";
    for (std::int64_t row = 0; row < Rows; ++row) {
        vornix_value arguments[] = { Integer(row), Integer(1), {} };
        arguments[2].type = VORNIX_TEXT;
        arguments[2].as.text = { reinterpret_cast<const std::uint16_t*>(written), 12 };
        Check(vornix_invoke(grid.Get(), "Text", VORNIX_LET, arguments, 3, nullptr));
    }
    for (auto _ : state) {
        vornix_text_block block;
        Check(vornix_read_texts(grid.Get(), 0, 1, static_cast<std::int16_t>(Rows - 1), 1, &block));
        benchmark::DoNotOptimize(block.code_points);
        vornix_text_block_clear(&block);
    }
    state.SetItemsProcessed(state.iterations() * Rows);
}

} // namespace

BENCHMARK(GetByHandle)->Name("C/late_bound_get");
BENCHMARK(GetByName)->Name("C/late_bound_get_by_name");
BENCHMARK(SetText)->Name("C/late_bound_set_text");
BENCHMARK(ReadColumn)->Name("C/read_column")->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
