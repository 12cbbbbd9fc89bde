// What late binding costs: properties read by a member that was looked up once, by name each time, and directly.
#include "vornix/headless_container.h"

#include <benchmark/benchmark.h>

#include <array>
#include <span>
#include <string_view>

namespace vornix {
namespace {

// A small table with texts that fit into a string without memory of its own.
class Table {
public:
    Table()
        : host_(HeadlessOptions())
    {
        Grid().SetRows(10);
        Grid().SetCols(10);
        Grid().SetText(3, 4, u"text");
    }
    Vornix& Grid() { return host_.Grid(); }

private:
    HeadlessContainer host_;
};

void BM_ReadDirectly(benchmark::State& state)
{
    Table table;
    for (auto _ : state)
        benchmark::DoNotOptimize(table.Grid().Rows());
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ReadDirectly);

void BM_ReadByMember(benchmark::State& state)
{
    Table table;
    const MemberInfo& member = *FindMember("Rows");
    for (auto _ : state)
        benchmark::DoNotOptimize(table.Grid().Invoke(member, InvokeKind::Get, {}));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ReadByMember);

void BM_ReadByName(benchmark::State& state)
{
    Table table;
    for (auto _ : state)
        benchmark::DoNotOptimize(table.Grid().Invoke(std::string_view("Rows"), InvokeKind::Get, {}));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ReadByName);

void BM_ReadTextByMember(benchmark::State& state)
{
    Table table;
    const MemberInfo& member = *FindMember("Text");
    std::array<Variant, 2> place { i16 { 3 }, i16 { 4 } };
    for (auto _ : state)
        benchmark::DoNotOptimize(table.Grid().Invoke(member, InvokeKind::Get, place));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ReadTextByMember);

void BM_WriteByMember(benchmark::State& state)
{
    Table table;
    table.Grid().SetRedraw(false);
    const MemberInfo& member = *FindMember("Text");
    std::array<Variant, 3> arguments { i16 { 3 }, i16 { 4 }, u"text" };
    for (auto _ : state)
        table.Grid().Invoke(member, InvokeKind::Let, arguments);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_WriteByMember);

// Every name in turn.
void BM_FindMember(benchmark::State& state)
{
    const std::span<const MemberInfo> members = Members();
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(FindMember(members[next].name));
        next = (next + 1) % members.size();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FindMember);

} // namespace
} // namespace vornix

BENCHMARK_MAIN();
