// The container port on a Qt widget.
#pragma once

#include "qt_child_window.h"
#include "qt_focus_watch.h"
#include "qt_host_windows.h"
#include "qt_setting.h"
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

    // The control that hears of timer, bars and children; null again before it ends.
    void Attach(Vornix* grid) { setting_.grid.Attach(grid); }
    // Before the parts of the widget go that hear of the pointer.
    void DropChildWidgets();
    QtSetting& Setting() { return setting_; }
    QtFocusWatch& Focus() { return focus_; }
    // Whether Qt has told that the pointer is somewhere else.
    void SetPointerLeft(bool left) { pointerLeft_ = left; }

    // The picture to show: device pixels, as large as the largest client area so far, and how many of them are one
    // logical pixel.
    const QImage& Picture() const { return picture_; }
    double PictureScale() const { return window_->Scale(); }
    // Takes palette and font of the widget over; false when they are as before.
    bool ReadAmbient();
    // Takes client area and resolution of the widget over; false when they are as before. The picture follows when the
    // control next asks for its back store.
    bool FitToWidget();
    // Moves the focus on from an editor, past the control; false when it has nowhere to go.
    std::function<bool(bool forward)> OnTab;
    // An editor is about to learn that it has the focus.
    std::function<void(QWidget& editor)> OnEditorFocus;
    // Called when part of the picture changed, in client coordinates.
    std::function<void(const QRect&)> OnPictureChanged;

    bool UserMode() const override { return true; }
    FontPtr AmbientFont() const override { return font_; }
    const SystemColors& Colors() const override { return setting_.colors; }
    const Locale& GetLocale() const override;
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
    PointerLocation LocatePointer() const override;
    bool IsKeyDown(int code) const override;
    void SetTimer(int interval, bool enabled) override;
    ChildWindow& Child(ChildName name) override;
    NativeScrollBar* ScrollBar(ChildName name) override;
    NativeEditBox* TextEditor() override;
    NativeComboBox* ComboEditor() override;
    // A widget that QVornix::RegisterEditor gave the number for, or one with a native window, by its id.
    bool ShowHostWindow(std::intptr_t window, const Rect& place) override;
    void HideHostWindow(std::intptr_t window) override;
    bool FocusHostWindow(std::intptr_t window) override;
    void PropertyChanged(std::string_view) override { }
    SettingsStore& Settings() override { return *settings_; }
    std::u16string ClipboardText() const override;
    void SetClipboardText(std::u16string_view text) override;
    void ShowMessage(std::u16string_view title, std::u16string_view text, MessageIcon icon) override;

private:
    std::unique_ptr<QtChildWindow> MakeChild(ChildName name);
    template <typename Box> void ConnectEditor(Box& box);
    template <typename Window> Window& ChildOf(ChildName name) const;
    std::unique_ptr<RasterSurface> MakeSurface(Size size) const;
    void UseSurface(std::unique_ptr<RasterSurface> surface);

    QtSetting setting_;
    QtFocusWatch focus_;
    QtHostWindows hostWindows_;
    QFrame& widget_;
    FontPtr font_;
    Size client_;
    u32 extendedStyle_ = 0;
    PointerShape pointer_ = PointerShape::Default;
    bool pointerLeft_ = false;
    std::unique_ptr<RasterSurface> window_;
    QImage picture_;
    QTimer timer_;
    // By their names in ChildName.
    std::array<std::unique_ptr<QtChildWindow>, 8> children_;
    std::unique_ptr<SettingsStore> settings_;
};

} // namespace vornix
