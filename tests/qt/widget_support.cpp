#include "widget_support.h"

#include "vornix/raster_surface.h"

#include <QApplication>
#include <QBackingStore>
#include <QPaintEvent>

#include <cmath>
#include <cstdlib>

namespace vornix {

void NotedWidget::ClearNotes()
{
    painted = QRegion();
    paints = 0;
}

void NotedWidget::paintEvent(QPaintEvent* event)
{
    painted += event->region();
    ++paints;
    QVornix::paintEvent(event);
}

void FillTable(Vornix& grid)
{
    grid.SetFixedRows(1);
    grid.SetFixedCols(1);
    grid.SetRows(40);
    grid.SetCols(8);
    // Nothing lies above the picture.
    grid.SetScrollHBar(vxNoScrollBar);
    grid.SetScrollVBar(vxNoScrollBar);
    for (i16 Row = -1; Row < 40; ++Row) {
        for (i16 Col = -1; Col < 8; ++Col) {
            grid.SetText(
                Row, Col, u"Cell " + std::u16string(1, static_cast<char16_t>(u'A' + (Row + 2 * Col + 3) % 26)));
            grid.SetCellBackColor(Row, Col, static_cast<OleColor>(0xC0C0C0 + 7 * (Row + 1) + 0x500 * (Col + 1)));
        }
        grid.SetRowHeight(Row, static_cast<i16>(17 + (Row + 1) % 5));
    }
    for (i16 Col = -1; Col < 8; ++Col)
        grid.SetColWidth(Col, static_cast<i16>(51 + 2 * (Col + 1)));
}

void Settle()
{
    for (int round = 0; round < 3; ++round) {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
}

void ShowAndSettle(QWidget& window)
{
    window.show();
    Settle();
}

int DeviceEdge(int logical, double scale)
{
    return static_cast<int>(std::floor(logical * scale + 0.5));
}

QImage GridPicture(Vornix& grid, QSize client, double scale)
{
    const auto* const surface = dynamic_cast<const RasterSurface*>(grid.BackStore());
    if (!surface)
        return {};
    const DevicePixels pixels = const_cast<RasterSurface*>(surface)->Pixels();
    const QImage whole(reinterpret_cast<const uchar*>(pixels.data), pixels.width, pixels.height,
        pixels.stride * qsizetype { 4 }, QImage::Format_RGB32);
    return whole.copy(0, 0, DeviceEdge(client.width(), scale), DeviceEdge(client.height(), scale));
}

// What the window's painting has come to; the screen of the off-screen platform keeps the latest part alone.
QImage ScreenPicture(QWidget& window)
{
    const auto* const painted = dynamic_cast<const QImage*>(window.backingStore()->paintDevice());
    if (!painted)
        return {};
    QImage image = painted->convertToFormat(QImage::Format_RGB32).copy();
    image.setDevicePixelRatio(1);
    return image;
}

QRect DevicePlace(const QWidget& widget, const QRect& part)
{
    const double scale = widget.devicePixelRatioF();
    const QRect place = part.translated(widget.mapTo(widget.window(), QPoint(0, 0)));
    const QPoint first(DeviceEdge(place.x(), scale), DeviceEdge(place.y(), scale));
    const QPoint end(DeviceEdge(place.x() + place.width(), scale), DeviceEdge(place.y() + place.height(), scale));
    return QRect(first, QSize(end.x() - first.x(), end.y() - first.y()));
}

QImage ShownClient(QVornix& widget)
{
    return ScreenPicture(*widget.window()).copy(DevicePlace(widget, widget.contentsRect()));
}

testing::AssertionResult SameImage(const QImage& shown, const QImage& expected)
{
    if (shown.size() != expected.size() || shown.isNull())
        return testing::AssertionFailure() << "sizes " << shown.width() << "x" << shown.height() << " and "
                                           << expected.width() << "x" << expected.height();
    int differing = 0;
    QPoint first;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (shown.pixel(x, y) == expected.pixel(x, y))
                continue;
            if (differing++ == 0)
                first = { x, y };
        }
    }
    if (differing == 0)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << differing << " pixels differ, the first at " << first.x() << "," << first.y();
}

// Both edges of the client area round to device pixels where it lies, so it can be one smaller or larger than the grid.
testing::AssertionResult ShowsItsGrid(QVornix& widget)
{
    const QImage shown = ShownClient(widget);
    const QImage grid = GridPicture(widget.Grid(), widget.contentsRect().size(), widget.devicePixelRatioF());
    const QSize apart = shown.size() - grid.size();
    if (std::abs(apart.width()) > 1 || std::abs(apart.height()) > 1)
        return SameImage(shown, grid);
    const QRect common(QPoint(0, 0), shown.size().boundedTo(grid.size()));
    return SameImage(shown.copy(common), grid.copy(common));
}

} // namespace vornix
