// The tables that the benchmarks compare, and their texts, made before any clock runs.
#pragma once

#include "vornix/qvornix.h"

#include <benchmark/benchmark.h>

#include <QTableWidget>

#include <memory>
#include <string>
#include <vector>

namespace compare {

using vornix::QVornix;

constexpr int Rows = 30000;
constexpr int Cols = 33;
constexpr int RowHeight = 21;
constexpr int ColumnWidth = 120;
constexpr int WindowWidth = 1920;
constexpr int WindowHeight = 1080;

// In the form each side takes.
const std::vector<std::u16string>& GridTexts();

// The grid's sizes, so that both show the same cells.
std::unique_ptr<QTableWidget> EmptyTable();
void Fill(QTableWidget& table);
void Fill(vornix::Vornix& grid);
std::unique_ptr<QVornix> FilledGrid();

// As large as the window, painted once, so that no later frame pays for a first one.
void ShowInWindow(QWidget& widget);
// One of each for all benchmarks of painting.
QTableWidget& ShownTable();
QVornix& ShownGrid();
// Before the application is.
void DropShared();

} // namespace compare
