#include "compare_tables.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QHeaderView>

namespace compare {

namespace {

std::string TextOf(int row, int col)
{
    return "R" + std::to_string(row) + "C" + std::to_string(col);
}

} // namespace

const std::vector<std::u16string>& GridTexts()
{
    static const std::vector<std::u16string> texts = [] {
        std::vector<std::u16string> made;
        made.reserve(std::size_t { Rows } * Cols);
        for (int row = 0; row < Rows; ++row) {
            for (int col = 0; col < Cols; ++col) {
                const std::string text = TextOf(row, col);
                made.emplace_back(text.begin(), text.end());
            }
        }
        return made;
    }();
    return texts;
}

std::unique_ptr<QTableWidget> EmptyTable()
{
    auto table = std::make_unique<QTableWidget>();
    table->verticalHeader()->setDefaultSectionSize(RowHeight);
    table->horizontalHeader()->setDefaultSectionSize(ColumnWidth);
    return table;
}

void Fill(QTableWidget& table)
{
    const std::vector<std::u16string>& texts = GridTexts();
    table.setRowCount(Rows);
    table.setColumnCount(Cols);
    for (int row = 0; row < Rows; ++row)
        for (int col = 0; col < Cols; ++col)
            table.setItem(
                row, col, new QTableWidgetItem(QString::fromStdU16String(texts[std::size_t(row * Cols + col)])));
}

void Fill(vornix::Vornix& grid)
{
    const std::vector<std::u16string>& texts = GridTexts();
    grid.SetRedraw(false);
    grid.SetRows(Rows);
    grid.SetCols(Cols);
    for (int row = 0; row < Rows; ++row)
        for (int col = 0; col < Cols; ++col)
            grid.SetText(vornix::i16(row), vornix::i16(col), texts[std::size_t(row * Cols + col)]);
    grid.SetRedraw(true);
}

std::unique_ptr<QVornix> FilledGrid()
{
    auto widget = std::make_unique<QVornix>();
    widget->Grid().SetFixedRows(1);
    widget->Grid().SetFixedCols(1);
    Fill(widget->Grid());
    return widget;
}

void ShowInWindow(QWidget& widget)
{
    widget.resize(WindowWidth, WindowHeight);
    widget.show();
    QApplication::processEvents();
    widget.repaint();
}

namespace {

std::unique_ptr<QTableWidget> sharedTable;
std::unique_ptr<QVornix> sharedGrid;

} // namespace

QTableWidget& ShownTable()
{
    if (!sharedTable) {
        sharedTable = EmptyTable();
        Fill(*sharedTable);
    }
    ShowInWindow(*sharedTable);
    return *sharedTable;
}

QVornix& ShownGrid()
{
    if (!sharedGrid)
        sharedGrid = FilledGrid();
    ShowInWindow(*sharedGrid);
    return *sharedGrid;
}

void DropShared()
{
    sharedTable.reset();
    sharedGrid.reset();
}

} // namespace compare

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    compare::DropShared();
    benchmark::Shutdown();
    return 0;
}
