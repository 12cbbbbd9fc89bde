// Rows that come and go at the top beside QTableWidget, in one process: one row of 30,000 by 33 inserted there and taken
// away again. Once with pictures held back on both sides, as a program does that changes more than one row, and once, named
// "_shown", with the whole picture behind each of the two steps.
#include "compare_tables.h"

#include <QApplication>

namespace {

using namespace compare;

void TableInsertTop(benchmark::State& state)
{
    QTableWidget& table = ShownTable();
    table.setUpdatesEnabled(false);
    for (auto _ : state) {
        table.insertRow(0);
        table.removeRow(0);
    }
    table.setUpdatesEnabled(true);
    QApplication::processEvents();
}

void GridInsertTop(benchmark::State& state)
{
    vornix::Vornix& grid = ShownGrid().Grid();
    grid.SetRedraw(false);
    for (auto _ : state) {
        grid.InsertRows(0);
        grid.DeleteRows(0);
    }
    grid.SetRedraw(true);
    QApplication::processEvents();
}

void TableInsertTopShown(benchmark::State& state)
{
    QTableWidget& table = ShownTable();
    for (auto _ : state) {
        table.insertRow(0);
        table.viewport()->repaint();
        table.removeRow(0);
        table.viewport()->repaint();
    }
}

void GridInsertTopShown(benchmark::State& state)
{
    QVornix& widget = ShownGrid();
    vornix::Vornix& grid = widget.Grid();
    for (auto _ : state) {
        grid.InsertRows(0);
        widget.repaint();
        grid.DeleteRows(0);
        widget.repaint();
    }
}

BENCHMARK(TableInsertTop)->Name("QTableWidget/insert_top")->Unit(benchmark::kMicrosecond);
BENCHMARK(GridInsertTop)->Name("Vornix/insert_top")->Unit(benchmark::kMicrosecond);
BENCHMARK(TableInsertTopShown)->Name("QTableWidget/insert_top_shown")->Unit(benchmark::kMillisecond);
BENCHMARK(GridInsertTopShown)->Name("Vornix/insert_top_shown")->Unit(benchmark::kMillisecond);

} // namespace
