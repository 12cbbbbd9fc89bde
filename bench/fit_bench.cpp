// Sizes that follow from the texts, beside QTableWidget made to look at all of them, in one process. Nothing is painted on
// either side: a program that fits many lines does so before it shows them. bench/ratios.py makes ratios of the times.
#include "compare_tables.h"

#include <QHeaderView>

namespace {

using namespace compare;

// Words that break into some lines in a column.
std::u16string WrappedText(int col)
{
    std::u16string text;
    for (int word = 0; word < 12; ++word) {
        const std::string number = std::to_string(col * 31 + word * 7919 % 1000);
        text += u"word";
        text.append(number.begin(), number.end());
        text += u' ';
    }
    return text;
}

constexpr int WrappedCells = 1000;

// The column of 30,000 distinct texts.
void TableFitColumn(benchmark::State& state)
{
    QTableWidget& table = ShownTable();
    table.hide();
    table.horizontalHeader()->setResizeContentsPrecision(-1);
    for (auto _ : state) {
        table.resizeColumnToContents(1);
        benchmark::DoNotOptimize(table.columnWidth(1));
    }
    table.setColumnWidth(1, ColumnWidth);
}

void GridFitColumn(benchmark::State& state)
{
    vornix::Vornix& grid = ShownGrid().Grid();
    grid.SetRedraw(false);
    for (auto _ : state) {
        grid.AdjustWidth(1);
        benchmark::DoNotOptimize(grid.ColWidth(1));
    }
    // As wide as the widest text, which has to be an honest one.
    vornix::i32 width = 0;
    vornix::i32 height = 0;
    grid.CalcRectText(vornix::i16(Rows - 1), 1, width, height);
    if (grid.ColWidth(1) < width)
        state.SkipWithError("the last text does not fit");
    grid.SetColWidth(1, ColumnWidth);
    grid.SetRedraw(true);
}

// A row of texts that break into lines.
void TableFitRow(benchmark::State& state)
{
    const std::unique_ptr<QTableWidget> table = EmptyTable();
    table->setRowCount(1);
    table->setColumnCount(WrappedCells);
    table->setWordWrap(true);
    table->verticalHeader()->setResizeContentsPrecision(-1);
    for (int col = 0; col < WrappedCells; ++col)
        table->setItem(0, col, new QTableWidgetItem(QString::fromStdU16String(WrappedText(col))));
    for (auto _ : state) {
        table->resizeRowToContents(0);
        benchmark::DoNotOptimize(table->rowHeight(0));
    }
}

void GridFitRow(benchmark::State& state)
{
    QVornix widget;
    widget.resize(WindowWidth, WindowHeight);
    vornix::Vornix& grid = widget.Grid();
    grid.SetRedraw(false);
    grid.SetScrollHBar(vornix::vxNormalScroll);
    grid.SetRows(1);
    grid.SetCols(WrappedCells);
    for (vornix::i16 col = 0; col < WrappedCells; ++col) {
        grid.SetTextAlignment(0, col, vornix::vxWordBreak);
        grid.SetText(0, col, WrappedText(col));
    }
    for (auto _ : state) {
        grid.AdjustHeight(0);
        benchmark::DoNotOptimize(grid.RowHeight(0));
    }
}

BENCHMARK(TableFitColumn)->Name("QTableWidget/fit_column")->Unit(benchmark::kMillisecond);
BENCHMARK(GridFitColumn)->Name("Vornix/fit_column")->Unit(benchmark::kMillisecond);
BENCHMARK(TableFitRow)->Name("QTableWidget/fit_row")->Unit(benchmark::kMillisecond);
BENCHMARK(GridFitRow)->Name("Vornix/fit_row")->Unit(benchmark::kMillisecond);

} // namespace
