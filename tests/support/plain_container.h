// A container that only lends a window and says where it is.
#pragma once

#include "vornix/platform/container.h"

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vornix {

class PlainChild : public ChildWindow {
public:
    void Move(const Rect& place) override { place_ = place; }
    Rect Place() const override { return place_; }
    void Show(bool visible) override { visible_ = visible; }
    bool IsVisible() const override { return visible_; }
    void SetEnabled(bool) override { }
    bool IsEnabled() const override { return true; }
    void Raise() override { }
    bool SetFocus() override { return false; }

private:
    Rect place_;
    bool visible_ = false;
};

class PlainContainer : public Container {
public:
    PlainContainer(std::unique_ptr<Device> device, Size client)
        : window(std::move(device))
        , client_(client)
    {
    }

    std::unique_ptr<Device> window;
    SystemColors colors;
    Size twipsPerPixel { 15, 15 };
    Size screen { 1920 * 15, 1080 * 15 };
    // What PictureChanged has told.
    std::vector<Rect> changes;

    void Resize(Size client) { client_ = client; }

    bool UserMode() const override { return true; }
    FontPtr AmbientFont() const override { return nullptr; }
    const SystemColors& Colors() const override { return colors; }
    const Locale& GetLocale() const override { return BuiltinLocale(); }
    Size ScreenSizeInTwips() const override { return screen; }
    Size TwipsPerPixel() const override { return twipsPerPixel; }
    Size ClientSize() const override { return client_; }
    Device& WindowDevice() override { return *window; }
    std::intptr_t WindowHandle() const override { return 0; }
    void SetExtendedStyle(u32) override { }
    void PictureChanged(const Rect& area) override { changes.push_back(area); }
    bool SetFocus() override { return false; }
    void SetPointerShape(PointerShape) override { }
    PointerLocation LocatePointer() const override { return {}; }
    bool IsKeyDown(int) const override { return false; }
    void SetTimer(int, bool) override { }
    ChildWindow& Child(ChildName name) override { return children_[name]; }
    void PropertyChanged(std::string_view) override { }
    SettingsStore& Settings() override { throw std::logic_error("There are no settings here."); }
    std::u16string ClipboardText() const override { return {}; }
    void SetClipboardText(std::u16string_view) override { }
    void ShowMessage(std::u16string_view, std::u16string_view, MessageIcon) override { }

private:
    Size client_;
    std::map<ChildName, PlainChild> children_;
};

} // namespace vornix
