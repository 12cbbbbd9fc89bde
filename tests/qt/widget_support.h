// A widget that notes how it is painted, and the pictures that tests compare.
#pragma once

#include "vornix/qvornix.h"

#include <QImage>
#include <QRegion>

#include <gtest/gtest.h>

#include <functional>

namespace vornix {

class NotedWidget : public QVornix {
public:
    using QVornix::GridContainer;
    using QVornix::QVornix;

    // What Qt asked to be painted, since the last ClearNotes.
    QRegion painted;
    int paints = 0;

    void ClearNotes();

protected:
    void paintEvent(QPaintEvent* event) override;
};

// Handlers for DrawCell and PopulateGrid.
class TestEvents : public VornixEvents {
public:
    std::function<void(i16 Row, i16 Col)> drawCell;

    void DrawCell(i16 Row, i16 Col, Hdc&, bool&) override
    {
        if (drawCell)
            drawCell(Row, Col);
    }
};

// Some rows and columns with texts in different places and colours, without percent widths and without bars.
void FillTable(Vornix& grid);
// Qt's pending work, repaints included.
void Settle();
void ShowAndSettle(QWidget& window);
int DeviceEdge(int logical, double scale);
// The grid's own picture of its client area, in device pixels.
QImage GridPicture(Vornix& grid, QSize client, double scale);
// What the window shows, in device pixels.
QImage ScreenPicture(QWidget& window);
// The device pixels that Qt gives to a part of a widget in its window.
QRect DevicePlace(const QWidget& widget, const QRect& part);
// The client area of a widget as its window shows it, in device pixels.
QImage ShownClient(QVornix& widget);
testing::AssertionResult ShowsItsGrid(QVornix& widget);
testing::AssertionResult SameImage(const QImage& shown, const QImage& expected);

} // namespace vornix
