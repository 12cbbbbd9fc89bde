#include "picture_painter.h"

#include <QPainter>
#include <QTransform>

#include <cmath>

namespace vornix {

namespace {

int DeviceEdge(int logical, double scale)
{
    return static_cast<int>(std::floor(logical * scale + 0.5));
}

} // namespace

PicturePainter::PicturePainter(const QImage& picture, double scale, const QRect& client)
    : picture_(picture)
    , scale_(scale)
    , client_(client)
    , shown_(0, 0, DeviceEdge(client.width(), scale), DeviceEdge(client.height(), scale))
{
}

bool PicturePainter::CoversClient() const
{
    return picture_.rect().contains(shown_);
}

void PicturePainter::Paint(QPainter& painter, const QRegion& dirty) const
{
    if (!PaintPixelByPixel(painter, dirty))
        PaintScaled(painter);
}

// A pixel more at each side, as the part's edges and the client area's corner may lie inside device pixels. Qt clips.
QRect PicturePainter::DeviceRectAround(const QRect& part) const
{
    const QRect logical = part.translated(-client_.topLeft());
    const QPoint first(DeviceEdge(logical.left(), scale_) - 1, DeviceEdge(logical.top(), scale_) - 1);
    const QPoint end(
        DeviceEdge(logical.x() + logical.width(), scale_) + 1, DeviceEdge(logical.y() + logical.height(), scale_) + 1);
    return QRect(first, QSize(end.x() - first.x(), end.y() - first.y())) & shown_ & picture_.rect();
}

// False when the painter draws at another resolution than the picture's, as onto a page or a rotated scene.
bool PicturePainter::PaintPixelByPixel(QPainter& painter, const QRegion& dirty) const
{
    const QTransform toDevice = painter.deviceTransform();
    const bool sameScale = toDevice.type() <= QTransform::TxScale && qFuzzyCompare(toDevice.m11(), scale_)
        && qFuzzyCompare(toDevice.m22(), scale_);
    if (!sameScale)
        return false;
    const QPoint corner = toDevice.map(QPointF(client_.topLeft())).toPoint();
    painter.save();
    painter.setWorldTransform(
        QTransform::fromTranslate(corner.x(), corner.y()) * toDevice.inverted() * painter.worldTransform());
    for (const QRect& part : dirty) {
        const QRect source = DeviceRectAround(part);
        painter.drawImage(source.topLeft(), picture_, source);
    }
    const QPoint end = toDevice.map(QPointF(client_.topLeft() + QPoint(client_.width(), client_.height()))).toPoint();
    RepeatLastLines(painter, end - corner);
    painter.restore();
    return true;
}

// Where the client area's two edges round apart, it is a device pixel larger than the picture.
void PicturePainter::RepeatLastLines(QPainter& painter, QPoint end) const
{
    const QRect covered = shown_ & picture_.rect();
    if (covered.isEmpty())
        return;
    const int width = covered.width();
    const int height = covered.height();
    if (end.x() == width + 1)
        painter.drawImage(QPoint(width, 0), picture_, QRect(width - 1, 0, 1, height));
    if (end.y() == height + 1)
        painter.drawImage(QPoint(0, height), picture_, QRect(0, height - 1, width, 1));
    if (end == QPoint(width + 1, height + 1))
        painter.drawImage(QPoint(width, height), picture_, QRect(width - 1, height - 1, 1, 1));
}

void PicturePainter::PaintScaled(QPainter& painter) const
{
    const QRectF target(client_.x(), client_.y(), shown_.width() / scale_, shown_.height() / scale_);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, picture_, shown_);
    painter.restore();
}

} // namespace vornix
