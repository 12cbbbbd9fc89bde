#include "qt_canvas_window.h"

#include "picture_painter.h"
#include "qt_pointer.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace vornix {

QtCanvasWindow::QtCanvasWindow(QtSetting& setting, ChildName name, Pointer pointer)
    : QtChildWindow(setting)
    , name_(name)
    , pointer_(pointer)
{
}

bool QtCanvasWindow::CanvasFits() const
{
    const Rect place = Place();
    return canvas_ && canvasSize_ == Size { place.Width(), place.Height() } && canvas_->Scale() == Setting().scale;
}

Device* QtCanvasWindow::Canvas()
{
    if (CanvasFits())
        return canvas_.get();
    canvasSize_ = { Place().Width(), Place().Height() };
    const Size atLeastOne { std::max(canvasSize_.width, 1), std::max(canvasSize_.height, 1) };
    canvas_ = RasterSurface::Create(atLeastOne, Setting().scale, Setting().colors);
    if (canvas_) {
        const ColorRef ground = Setting().colors.values[SystemColor::ButtonFace];
        canvas_->SetBkColor(ground);
        canvas_->FillRect({ 0, 0, atLeastOne.width, atLeastOne.height }, ground);
    }
    return canvas_.get();
}

void QtCanvasWindow::CanvasChanged()
{
    if (Widget())
        Widget()->update();
}

void QtCanvasWindow::FollowSetting()
{
    canvas_.reset();
    CanvasChanged();
}

QWidget* QtCanvasWindow::MakeWindow(QWidget& parent)
{
    auto* const window = new QWidget(&parent);
    window->setAttribute(Qt::WA_OpaquePaintEvent);
    if (pointer_ == Pointer::Dragging)
        window->setCursor(Qt::SplitHCursor);
    else
        window->setAttribute(Qt::WA_TransparentForMouseEvents);
    return window;
}

bool QtCanvasWindow::Hears(QEvent& event)
{
    if (event.type() == QEvent::Paint) {
        Paint();
        return true;
    }
    if (!IsOfPointer(event))
        return QtChildWindow::Hears(event);
    if (Widget()->isEnabled())
        HearPointer(static_cast<const QMouseEvent&>(event));
    return true;
}

void QtCanvasWindow::Paint()
{
    if (!CanvasFits())
        Setting().grid.Tell([this](Vornix& grid) { grid.PaintChild(name_); });
    QPainter painter(Widget());
    if (!CanvasFits()) {
        painter.fillRect(Widget()->rect(), Widget()->palette().button());
        return;
    }
    const DevicePixels pixels = canvas_->Pixels();
    const QImage picture(reinterpret_cast<const uchar*>(pixels.data), pixels.width, pixels.height,
        pixels.stride * qsizetype { sizeof(u32) }, QImage::Format_RGB32);
    PicturePainter(picture, canvas_->Scale(), Widget()->rect()).Paint(painter, Widget()->rect());
}

void QtCanvasWindow::HearPointer(const QMouseEvent& event)
{
    const i16 button = ButtonNumber(event.button());
    const auto [x, y] = PixelAt(event.position());
    Setting().grid.Tell([&, x = x, y = y](Vornix& grid) {
        if (event.type() == QEvent::MouseMove)
            grid.ChildMouseMove(name_, ButtonSum(event.buttons()), ShiftSum(event.modifiers()), x, y);
        else if (button == 0)
            return;
        else if (event.type() == QEvent::MouseButtonRelease)
            grid.ChildMouseUp(name_, button, x, y);
        else
            grid.ChildMouseDown(name_, button, x, y);
    });
}

} // namespace vornix
