// Puts the grid's picture on the screen, device pixel by device pixel.
#pragma once

#include <QImage>
#include <QRect>
#include <QRegion>

class QPainter;

namespace vornix {

class PicturePainter {
public:
    // The picture in device pixels at `scale` device pixels a logical one; `client` is where it is shown, in the
    // widget's logical pixels. The picture may be larger than that.
    PicturePainter(const QImage& picture, double scale, const QRect& client);

    bool CoversClient() const;
    // Draws what the dirty region needs, at least.
    void Paint(QPainter& painter, const QRegion& dirty) const;

private:
    QRect DeviceRectAround(const QRect& part) const;
    bool PaintPixelByPixel(QPainter& painter, const QRegion& dirty) const;
    void RepeatLastLines(QPainter& painter, QPoint end) const;
    void PaintScaled(QPainter& painter) const;

    const QImage& picture_;
    double scale_;
    QRect client_;
    // The client area in the picture.
    QRect shown_;
};

} // namespace vornix
