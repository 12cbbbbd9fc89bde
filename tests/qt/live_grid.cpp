#include "live_grid.h"

#include <QApplication>
#include <QStyleOptionSlider>
#include <QTest>
#include <QtTest/qtestspontaneevent.h>
#include <QWheelEvent>

#include <sstream>

namespace vornix {

namespace {

class OpenBar : public QScrollBar {
public:
    using QScrollBar::initStyleOption;
};

} // namespace

Lines LinesOf(const std::vector<LoggedEvent>& events)
{
    Lines lines;
    for (const LoggedEvent& event : events) {
        std::ostringstream line;
        line << event.name;
        for (const auto& [name, value] : event.arguments)
            line << ' ' << name << '=' << value.ToDouble();
        lines.push_back(line.str());
    }
    return lines;
}

void FillLiveTable(Vornix& grid)
{
    grid.SetRedraw(false);
    grid.SetFixedRows(1);
    grid.SetFixedCols(1);
    grid.SetRows(100);
    grid.SetCols(20);
    for (i16 Row = -1; Row < 100; ++Row)
        grid.SetRowHeight(Row, 20);
    for (i16 Col = -1; Col < 20; ++Col)
        grid.SetColWidth(Col, 60);
    grid.SetScrollHBar(vxNormalScroll);
    grid.SetScrollVBar(vxNormalScroll);
    grid.SetRedraw(true);
}

LiveGridTest::LiveGridTest()
    : widget(new NotedWidget(log, &window))
{
    window.resize(600, 500);
    widget->setGeometry(QRect(QPoint(31, 17), LiveSize));
    FillLiveTable(Grid());
    window.show();
    window.activateWindow();
    Settle();
    log.Clear();
}

LiveGridTest::~LiveGridTest()
{
    delete widget;
}

Lines LiveGridTest::Said()
{
    const Lines lines = LinesOf(log.Events());
    log.Clear();
    return lines;
}

Lines LiveGridTest::SaidNames()
{
    Lines names;
    for (const LoggedEvent& event : log.Events())
        names.push_back(event.name);
    log.Clear();
    return names;
}

QPoint LiveGridTest::MiddleOf(i16 Row, i16 Col)
{
    i32 x = 0;
    i32 y = 0;
    i16 width = 0;
    i16 height = 0;
    Grid().GetPositionCell(Row, Col, x, y);
    Grid().GetSizeCell(Row, Col, width, height);
    return { x / 15 + width / 2, y / 15 + height / 2 };
}

QPoint LiveGridTest::InWindow(QPoint client)
{
    if (widget)
        corner_ = widget->mapTo(&window, widget->contentsRect().topLeft());
    return corner_ + client;
}

void LiveGridTest::MoveTo(QPoint at, Qt::KeyboardModifiers keys)
{
    QTest::mouseEvent(QTest::MouseMove, window.windowHandle(), Qt::NoButton, keys, InWindow(at));
}

void LiveGridTest::Press(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    QTest::mousePress(window.windowHandle(), button, keys, InWindow(at));
}

void LiveGridTest::Release(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    QTest::mouseRelease(window.windowHandle(), button, keys, InWindow(at));
}

void LiveGridTest::Click(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    MoveTo(at, keys);
    Press(at, button, keys);
    Release(at, button, keys);
}

void LiveGridTest::DoubleClick(QPoint at, Qt::MouseButton button)
{
    MoveTo(at);
    QTest::mouseDClick(window.windowHandle(), button, {}, InWindow(at));
}

void LiveGridTest::Drag(QPoint from, QPoint to, Qt::KeyboardModifiers keys, int steps)
{
    MoveTo(from, keys);
    Press(from, Qt::LeftButton, keys);
    for (int step = 1; step <= steps; ++step)
        MoveTo(from + (to - from) * step / steps, keys);
    Release(to, Qt::LeftButton, keys);
}

bool LiveGridTest::Wheel(QPoint angle, QPoint pixels, Qt::KeyboardModifiers keys, QPoint at, Qt::ScrollPhase phase)
{
    const QPoint place = InWindow(at);
    QWidget* target = window.childAt(place);
    if (!target)
        target = &window;
    QWheelEvent event(
        target->mapFrom(&window, place), window.mapToGlobal(place), pixels, angle, Qt::NoButton, keys, phase, false);
    // What nobody takes goes on to the parent only when it comes from a platform.
    if (phase == Qt::NoScrollPhase)
        QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(target, &event);
    return event.isAccepted();
}

void LiveGridTest::Type(Qt::Key key, Qt::KeyboardModifiers keys)
{
    QTest::keyClick(window.windowHandle(), key, keys);
}

QScrollBar* LiveGridTest::Bar(Qt::Orientation orientation)
{
    for (QScrollBar* const bar : widget->findChildren<QScrollBar*>()) {
        if (bar->orientation() == orientation)
            return bar;
    }
    return nullptr;
}

QPoint LiveGridTest::PartOf(QScrollBar& bar, QStyle::SubControl part)
{
    QStyleOptionSlider option;
    (bar.*(&OpenBar::initStyleOption))(&option);
    const QRect place = bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
    return bar.mapTo(widget.data(), place.center()) - widget->contentsRect().topLeft();
}

} // namespace vornix
