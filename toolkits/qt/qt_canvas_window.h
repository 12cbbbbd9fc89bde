// A child window that the control draws itself.
#pragma once

#include "qt_child_window.h"
#include "vornix/raster_surface.h"

class QMouseEvent;

namespace vornix {

// The canvas has the resolution of the window. A new one begins with the colour of buttons.
class QtCanvasWindow final : public QtChildWindow {
public:
    // Whether the pointer is told to the control, which drags the window; without, it goes through to what lies below.
    enum class Pointer { Through, Dragging };
    QtCanvasWindow(QtSetting& setting, ChildName name, Pointer pointer);

    Device* Canvas() override;
    void CanvasChanged() override;
    void FollowSetting() override;

protected:
    QWidget* MakeWindow(QWidget& parent) override;
    bool Hears(QEvent& event) override;

private:
    bool CanvasFits() const;
    void Paint();
    void HearPointer(const QMouseEvent& event);

    ChildName name_;
    Pointer pointer_;
    std::unique_ptr<RasterSurface> canvas_;
    Size canvasSize_;
};

} // namespace vornix
