// What a person does to the grid beside QTableWidget, in one process: scrolling and selecting, from the event to the
// finished picture. 30,000 rows by 33 columns of distinct short texts, on Qt's raster engine in a window of 1920 by 1080.
// bench/ratios.py makes ratios of the times.
//
// Each is measured twice: until the whole view is drawn anew, as a program needs it that takes pictures of the view or
// sends them on, and, named "_update", until what Qt thinks has changed is drawn. For the second one Qt moves pixels that
// QTableWidget has drawn before; the grid draws all of its cells every time.
#include "compare_tables.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

namespace {

using namespace compare;

enum class Until { WholeView, Updated };

void Finish(QWidget& view, Until until)
{
    if (until == Until::WholeView)
        view.repaint();
    else
        QApplication::processEvents();
}

// Of the table, or of the grid's own child.
QScrollBar& BarOf(QWidget& widget, Qt::Orientation orientation)
{
    for (QScrollBar* const bar : widget.findChildren<QScrollBar*>()) {
        if (bar->orientation() == orientation)
            return *bar;
    }
    qFatal("no scroll bar");
}

// A step of the bar for every picture, turning back at either end.
void ScrollBy(benchmark::State& state, QScrollBar& bar, QWidget& view, bool isPage, Until until)
{
    const auto add = isPage ? QAbstractSlider::SliderPageStepAdd : QAbstractSlider::SliderSingleStepAdd;
    const auto sub = isPage ? QAbstractSlider::SliderPageStepSub : QAbstractSlider::SliderSingleStepSub;
    bool isForward = true;
    for (auto _ : state) {
        const int before = bar.value();
        bar.triggerAction(isForward ? add : sub);
        Finish(view, until);
        if (bar.value() == before)
            isForward = !isForward;
    }
}

void TableScroll(benchmark::State& state, bool isPage, Until until)
{
    QTableWidget& table = ShownTable();
    ScrollBy(state, *table.verticalScrollBar(), *table.viewport(), isPage, until);
}

void GridScroll(benchmark::State& state, bool isPage, Until until)
{
    QVornix& widget = ShownGrid();
    ScrollBy(state, BarOf(widget, Qt::Vertical), widget, isPage, until);
}

void SendMouse(QWidget& widget, QEvent::Type type, QPoint place)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

QPoint ThumbOf(QScrollBar& bar)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.pageStep = bar.pageStep();
    option.sliderPosition = bar.sliderPosition();
    option.subControls = QStyle::SC_All;
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar).center();
}

// The user holds the thumb and moves it by a pixel of the table for every picture, and back from the ends.
void DragThumb(benchmark::State& state, QScrollBar& bar, QWidget& view, Until until)
{
    SendMouse(bar, QEvent::MouseButtonPress, ThumbOf(bar));
    int step = 1;
    for (auto _ : state) {
        if (bar.sliderPosition() + step > bar.maximum() || bar.sliderPosition() + step < bar.minimum())
            step = -step;
        bar.setSliderPosition(bar.sliderPosition() + step);
        Finish(view, until);
    }
    SendMouse(bar, QEvent::MouseButtonRelease, ThumbOf(bar));
}

void TableSmoothStep(benchmark::State& state, Until until)
{
    QTableWidget& table = ShownTable();
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    DragThumb(state, *table.horizontalScrollBar(), *table.viewport(), until);
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
}

void GridSmoothStep(benchmark::State& state, Until until)
{
    QVornix& widget = ShownGrid();
    DragThumb(state, BarOf(widget, Qt::Horizontal), widget, until);
}

// A drag that grows and shrinks a rectangle of cells by three rows and a column at every move.
void DragSelect(benchmark::State& state, QWidget& view, Until until)
{
    constexpr int firstStep = 4;
    constexpr int lastStep = 12;
    const auto placeOf = [](int step) { return QPoint(40 + step * ColumnWidth, 30 + step * RowHeight * 3); };
    SendMouse(view, QEvent::MouseButtonPress, placeOf(1));
    int step = firstStep;
    int direction = 1;
    for (auto _ : state) {
        SendMouse(view, QEvent::MouseMove, placeOf(step));
        Finish(view, until);
        if (step + direction < firstStep || step + direction > lastStep)
            direction = -direction;
        step += direction;
    }
    SendMouse(view, QEvent::MouseButtonRelease, placeOf(step));
}

void TableDragSelect(benchmark::State& state, Until until)
{
    QTableWidget& table = ShownTable();
    table.clearSelection();
    DragSelect(state, *table.viewport(), until);
}

void GridDragSelect(benchmark::State& state, Until until)
{
    QVornix& widget = ShownGrid();
    widget.Grid().SetRowSelected(0, true);
    widget.Grid().SetRowSelected(0, false); // nothing is selected now, not even where the drag begins
    widget.Grid().SetCellSelection(true);
    DragSelect(state, widget, until);
    widget.Grid().SetCellSelection(false);
}

// So many rows, and the picture of it.
void GridSelectRows(benchmark::State& state, int count)
{
    QVornix& widget = ShownGrid();
    vornix::Vornix& grid = widget.Grid();
    grid.SetFirstRow(0);
    for (auto _ : state) {
        grid.SetRowsSelected(0, vornix::i16(count - 1), true);
        widget.repaint();
        state.PauseTiming();
        grid.SetRowsSelected(0, vornix::i16(count - 1), false);
        state.ResumeTiming();
    }
}

// Scrolled to the end of 32,000 rows.
QVornix& LongGrid()
{
    QVornix& widget = ShownGrid();
    widget.Grid().SetRows(32000);
    widget.Grid().SetLastRow(31999);
    return widget;
}

void GridHitTest(benchmark::State& state)
{
    const vornix::Vornix& grid = LongGrid().Grid();
    vornix::i16 Row = 0;
    vornix::i16 Col = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(grid.GetCellAtPos(WindowWidth - 100, WindowHeight - 30, Row, Col));
}

void GridCellOrigin(benchmark::State& state)
{
    const vornix::Vornix& grid = LongGrid().Grid();
    vornix::i32 x = 0;
    vornix::i32 y = 0;
    for (auto _ : state) {
        grid.GetPositionCell(31999, 10, x, y);
        benchmark::DoNotOptimize(y);
    }
}

void Register(const char* name, void (*step)(benchmark::State&, Until))
{
    const std::string whole = name;
    benchmark::RegisterBenchmark(whole.c_str(), step, Until::WholeView)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((whole + "_update").c_str(), step, Until::Updated)->Unit(benchmark::kMillisecond);
}

const bool registered = [] {
    Register("QTableWidget/scroll_row", [](auto& state, Until until) { TableScroll(state, false, until); });
    Register("Vornix/scroll_row", [](auto& state, Until until) { GridScroll(state, false, until); });
    Register("QTableWidget/scroll_page", [](auto& state, Until until) { TableScroll(state, true, until); });
    Register("Vornix/scroll_page", [](auto& state, Until until) { GridScroll(state, true, until); });
    Register("QTableWidget/smooth_step", TableSmoothStep);
    Register("Vornix/smooth_step", GridSmoothStep);
    Register("QTableWidget/drag_select", TableDragSelect);
    Register("Vornix/drag_select", GridDragSelect);
    return true;
}();

BENCHMARK_CAPTURE(GridSelectRows, one, 1)->Name("Vornix/select_one_row")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GridSelectRows, all, Rows)->Name("Vornix/select_all_rows")->Unit(benchmark::kMillisecond);
BENCHMARK(GridHitTest)->Name("Vornix/hit_test")->Unit(benchmark::kMicrosecond);
BENCHMARK(GridCellOrigin)->Name("Vornix/cell_origin")->Unit(benchmark::kMicrosecond);

} // namespace
