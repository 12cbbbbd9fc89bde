// A window with a grid that a person uses: pointer, wheel and keys as Qt's platforms send them, and what the grid says.
#pragma once

#include "vornix/event_handlers.h"
#include "vornix/event_log.h"
#include "widget_support.h"

#include <QPointer>
#include <QScrollBar>
#include <QStyle>
#include <QWindow>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace vornix {

using Lines = std::vector<std::string>;

// "MouseDown Button=1 Shift=0 x=5 y=6" for each event.
Lines LinesOf(const std::vector<LoggedEvent>& events);

// 100 rows of 20 pixels and 20 columns of 60 besides a fixed one each, 401 by 301 pixels, both bars in normal mode.
void FillLiveTable(Vornix& grid);
constexpr QSize LiveSize(401, 301);

class LiveGridTest : public testing::Test {
protected:
    LiveGridTest();
    ~LiveGridTest() override;

    Vornix& Grid() { return widget->Grid(); }
    // What the grid said since the last call.
    Lines Said();
    Lines SaidNames();

    // In the client area.
    QPoint MiddleOf(i16 Row, i16 Col);
    // Where it was, when the widget is gone.
    QPoint InWindow(QPoint client);

    // The platform's events; places in the client area. A press reaches whatever widget lies there.
    void MoveTo(QPoint at, Qt::KeyboardModifiers keys = {});
    void Press(QPoint at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
    void Release(QPoint at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
    void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
    void DoubleClick(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers keys = {}, int steps = 8);
    // To the widget under the place.
    bool Wheel(QPoint angle, QPoint pixels = {}, Qt::KeyboardModifiers keys = {}, QPoint at = { 100, 100 },
        Qt::ScrollPhase phase = Qt::NoScrollPhase);
    void Type(Qt::Key key, Qt::KeyboardModifiers keys = {});

    QScrollBar* Bar(Qt::Orientation orientation);
    // Where a part of a bar is, in the client area.
    QPoint PartOf(QScrollBar& bar, QStyle::SubControl part);

    EventHandlers handlers;
    EventLog log { &handlers };
    QWidget window;
    QPointer<NotedWidget> widget;

private:
    QPoint corner_;
};

} // namespace vornix
