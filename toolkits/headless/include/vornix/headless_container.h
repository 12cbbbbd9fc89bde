// A container without a screen: a control, its window in memory, and a record of all that it says. What a test, a
// script or a picture maker drives the control with.
#pragma once

#include "vornix/event_log.h"
#include "vornix/memory_stores.h"
#include "vornix/platform/container.h"
#include "vornix/raster_surface.h"
#include "vornix/vornix.h"

#include <array>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vornix {

// A child window is a rectangle and two flags here.
class HeadlessChild : public ChildWindow {
public:
    void Move(const Rect& place) override { place_ = place; }
    Rect Place() const override { return place_; }
    void Show(bool visible) override { visible_ = visible; }
    bool IsVisible() const override { return visible_; }
    void SetEnabled(bool enabled) override { enabled_ = enabled; }
    bool IsEnabled() const override { return enabled_; }
    void Raise() override { }
    bool SetFocus() override { return visible_ && enabled_; }

private:
    Rect place_;
    bool visible_ = false;
    bool enabled_ = true;
};

struct MessageBoxRecord {
    std::u16string title;
    std::u16string text;
    MessageIcon icon = MessageIcon::None;
};

struct HeadlessOptions {
    // Of the window, border included; logical pixels.
    int width = 640;
    int height = 480;
    // Device pixels a logical pixel, 1 to 4.
    double scale = 1.0;
    // Ambient UserMode false. Without a bag the control is a new one.
    bool design = false;
    // What the control was saved with; must live until the container is made.
    const PropertyBag* bag = nullptr;
    // Shows the control at the end.
    bool show = true;
    // Where events go behind the log. May be null; must outlive the container.
    VornixEvents* events = nullptr;
    std::shared_ptr<MemorySettings> settings = nullptr;
};

// Screen 1920 by 1080 at 15 twips a pixel, ambient font DejaVu Sans 9 points, locale en-US, fixed system colours.
class HeadlessContainer : public Container {
public:
    // Makes the control and brings it to life: as a new one or from the bag, sized, and shown unless told otherwise.
    explicit HeadlessContainer(const HeadlessOptions& options = {});
    ~HeadlessContainer() override;
    HeadlessContainer(const HeadlessContainer&) = delete;
    HeadlessContainer& operator=(const HeadlessContainer&) = delete;

    Vornix& Grid() { return *grid_; }

    // What a form does to the control.
    void SetUserMode(bool userMode) { userMode_ = userMode; }
    void Resize(int width, int height);
    void Show() { grid_->Show(); }
    void Hide() { grid_->Hide(); }
    void Paint() { grid_->Paint(); }
    void EnterFocus() { grid_->EnterFocus(); }
    void ExitFocus() { grid_->ExitFocus(); }
    // Ends in Terminate; the object stays, its members raise errors.
    void Close() { grid_->Terminate(); }
    // The platform code of a key or button that is held down from now on.
    void HoldKey(int code, bool down);

    // What the control said since ClearLog.
    const std::vector<LoggedEvent>& Log() const { return log_.Events(); }
    // How often an event was raised.
    int Count(std::string_view event) const { return log_.Count(event); }
    const std::vector<std::string>& PropertyChanges() const { return propertyChanges_; }
    int Repaints() const { return grid_->Repaints(); }
    int Refreshes() const { return grid_->Refreshes(); }
    // Forgets events and property changes, and counts repaints and refreshes from 0.
    void ClearLog();

    // What it did to its window.
    const std::vector<MessageBoxRecord>& MessageBoxes() const { return messageBoxes_; }
    PointerShape Pointer() const { return pointer_; }
    u32 ExtendedStyle() const { return extendedStyle_; }
    bool IsTimerEnabled() const { return timerEnabled_; }
    int TimerInterval() const { return timerInterval_; }
    // Null for a name that no child has.
    HeadlessChild* FindChild(std::string_view name);
    MemorySettings& StoredSettings() { return *settings_; }

    // The control's picture. Logical pixels; 0xFFFFFFFF outside.
    ColorRef Pixel(int x, int y) const { return window_->GetPixel(x, y); }
    RasterSurface& Window() { return *window_; }
    // Throws std::runtime_error when the file cannot be written.
    void SavePng(const std::string& path) const { window_->SavePng(path); }

    bool UserMode() const override { return userMode_; }
    FontPtr AmbientFont() const override { return font_; }
    const SystemColors& Colors() const override { return colors_; }
    const Locale& GetLocale() const override { return BuiltinLocale(); }
    Size ScreenSizeInTwips() const override;
    Size TwipsPerPixel() const override;
    Size ClientSize() const override;
    Device& WindowDevice() override { return *window_; }
    std::intptr_t WindowHandle() const override { return reinterpret_cast<std::intptr_t>(this); }
    Surface* BackStore(Size size) override;
    void SetExtendedStyle(u32 style) override;
    void PictureChanged(const Rect&) override { }
    bool SetFocus() override { return true; }
    void SetPointerShape(PointerShape shape) override { pointer_ = shape; }
    bool IsKeyDown(int code) const override { return keysDown_.contains(code); }
    void SetTimer(int interval, bool enabled) override;
    ChildWindow& Child(ChildName name) override;
    void PropertyChanged(std::string_view name) override { propertyChanges_.emplace_back(name); }
    SettingsStore& Settings() override { return *settings_; }
    std::u16string ClipboardText() const override { return clipboard_; }
    void SetClipboardText(std::u16string_view text) override { clipboard_ = text; }
    void ShowMessage(std::u16string_view title, std::u16string_view text, MessageIcon icon) override;

private:
    void MakeWindow(Size client);
    void TellClientSize(Size before);

    Size size_;
    double scale_;
    bool userMode_;
    FontPtr font_;
    SystemColors colors_;
    std::shared_ptr<MemorySettings> settings_;
    EventLog log_;
    std::vector<std::string> propertyChanges_;
    std::vector<MessageBoxRecord> messageBoxes_;
    std::array<HeadlessChild, 8> children_;
    std::u16string clipboard_;
    std::set<int> keysDown_;
    PointerShape pointer_ = PointerShape::Default;
    u32 extendedStyle_ = 0;
    int timerInterval_ = 0;
    bool timerEnabled_ = false;
    bool isLoaded_ = false;
    Size windowSize_;
    std::unique_ptr<RasterSurface> window_;
    std::unique_ptr<Vornix> grid_;
};

} // namespace vornix
