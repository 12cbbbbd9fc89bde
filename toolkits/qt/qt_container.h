// The container port on a Qt widget.
#pragma once

#include "qt_child_window.h"
#include "vornix/platform/container.h"
#include "vornix/raster_surface.h"

#include <QFrame>
#include <QTimer>

#include <array>
#include <functional>
#include <memory>

namespace vornix {

class QtContainer final : public Container {
public:
    explicit QtContainer(QFrame& widget);
    ~QtContainer() override;

    // The picture to show: what it lies in, how large it is, and whether there is any.
    const QImage& Picture() const { return picture_; }
    // Takes palette and font of the widget over.
    void ReadAmbient();
    // The client area in logical pixels and the screen's resolution; true when the resolution changed.
    bool FitTo(QSize client, double devicePixelRatio);
    // Called when part of the picture changed, in client coordinates.
    std::function<void(const QRect&)> OnPictureChanged;

    bool UserMode() const override { return true; }
    FontPtr AmbientFont() const override { return font_; }
    const SystemColors& Colors() const override { return colors_; }
    const Locale& GetLocale() const override { return *locale_; }
    Size ScreenSizeInTwips() const override;
    Size TwipsPerPixel() const override;
    Size ClientSize() const override { return client_; }
    Device& WindowDevice() override { return *window_; }
    std::intptr_t WindowHandle() const override;
    Surface* BackStore(Size size) override;
    void SetExtendedStyle(u32 style) override;
    void PictureChanged(const Rect& area) override;
    bool SetFocus() override;
    void SetPointerShape(PointerShape shape) override;
    bool IsKeyDown(int code) const override;
    void SetTimer(int interval, bool enabled) override;
    ChildWindow& Child(ChildName name) override;
    void PropertyChanged(std::string_view) override { }
    SettingsStore& Settings() override { return *settings_; }
    std::u16string ClipboardText() const override;
    void SetClipboardText(std::u16string_view text) override;
    void ShowMessage(std::u16string_view title, std::u16string_view text, MessageIcon icon) override;

private:
    void MakeWindowSurface(Size size);

    QFrame& widget_;
    FontPtr font_;
    SystemColors colors_;
    std::unique_ptr<Locale> userLocale_;
    const Locale* locale_;
    Size client_;
    double scale_ = 1.0;
    Size surfaceSize_;
    std::unique_ptr<RasterSurface> window_;
    QImage picture_;
    QTimer timer_;
    std::array<std::unique_ptr<QtChildWindow>, 8> children_;
    std::unique_ptr<SettingsStore> settings_;
};

} // namespace vornix
