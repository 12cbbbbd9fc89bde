#include "qt_wheel.h"

#include <QGuiApplication>
#include <QWheelEvent>

#include <cstdlib>

namespace vornix {

namespace {

constexpr i32 WheelNotch = 120;

// The pixels that drivers report to X are not those of the fingers.
bool HasPixels(const QWheelEvent& event)
{
    return !event.pixelDelta().isNull() && QGuiApplication::platformName() != QLatin1String("xcb");
}

struct Turned {
    ChildName bar;
    i32 amount;
};

// The longer way counts; with Shift both are ways across.
Turned TurnOf(QPoint delta, bool isAcross)
{
    const bool isWide = std::abs(delta.x()) > std::abs(delta.y());
    const i32 amount = isWide ? delta.x() : delta.y();
    return { isWide || isAcross ? ChildName::scrH : ChildName::scrV, amount };
}

i16 HeightOf(const Vornix& grid, i16 Row)
{
    return grid.RowHeight(Row);
}

i16 WidthOf(const Vornix& grid, i16 Col)
{
    return grid.ColWidth(Col);
}

} // namespace

void QtWheel::Rest::Add(i32 amount)
{
    if ((amount > 0 && kept_ < 0) || (amount < 0 && kept_ > 0))
        kept_ = 0;
    kept_ += amount;
}

void QtWheel::Turn(QWheelEvent& event)
{
    const bool inPixels = HasPixels(event);
    const Turned turned
        = TurnOf(inPixels ? event.pixelDelta() : event.angleDelta(), event.modifiers().testFlag(Qt::ShiftModifier));
    // Without a vertical bar the wheel turns the horizontal one.
    const ChildName bar = IsShown(turned.bar) ? turned.bar : ChildName::scrH;
    if (!IsShown(bar))
        return event.ignore();
    event.accept();
    if (event.phase() == Qt::ScrollBegin)
        across_ = down_ = {};
    if (inPixels)
        MoveByPixels(bar, turned.amount);
    else
        TurnByAngle(bar, turned.amount);
}

void QtWheel::TurnByAngle(ChildName bar, i32 angle)
{
    Rest& rest = AxisOf(bar).angle;
    rest.Add(angle);
    const i32 notches = rest.Kept() / WheelNotch * WheelNotch;
    if (notches == 0)
        return;
    rest.Use(notches);
    setting_.grid.Tell([&](Vornix& grid) { grid.MouseWheel(bar, notches); });
}

void QtWheel::MoveByPixels(ChildName bar, i32 pixels)
{
    Rest& rest = AxisOf(bar).pixels;
    rest.Add(pixels);
    setting_.grid.Tell([&](Vornix& grid) {
        i32 steps = 0;
        if (bar == ChildName::scrV) {
            steps = LinesIn(rest, grid.FirstRow(), grid.Rows(), HeightOf, grid);
        } else if (grid.ScrollHBar() != vxScrollSmooth) {
            steps = LinesIn(rest, grid.FirstCol(), grid.Cols(), WidthOf, grid);
        } else {
            steps = -rest.Kept();
            rest.Forget();
        }
        if (steps != 0)
            grid.MoveScrollBar(bar, steps);
    });
}

// How many lines from the first one on, or back before it, the way covers. Hidden ones count with a line behind them.
i32 QtWheel::LinesIn(
    Rest& pixels, i32 first, i32 count, i16 (*sizeOf)(const Vornix& grid, i16 line), const Vornix& grid)
{
    i32 at = first;
    i32 reached = first;
    while (pixels.Kept() != 0) {
        const bool isForward = pixels.Kept() < 0;
        const i32 line = isForward ? at : at - 1;
        if (line < 0 || line >= count) {
            pixels.Forget();
            break;
        }
        const i32 size = sizeOf(grid, static_cast<i16>(line));
        if (size > std::abs(pixels.Kept()))
            break;
        pixels.Use(isForward ? -size : size);
        at += isForward ? 1 : -1;
        if (size > 0)
            reached = at;
    }
    return reached - first;
}

} // namespace vornix
