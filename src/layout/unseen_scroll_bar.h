// The bar where a toolkit has none: keeps what it is given and is never seen.
#pragma once

#include "vornix/platform/container.h"

namespace vornix {

class UnseenScrollBar final : public ChildWindow, public NativeScrollBar {
public:
    void Move(const Rect& place) override { place_ = place; }
    Rect Place() const override { return place_; }
    void Show(bool) override { }
    bool IsVisible() const override { return false; }
    void SetEnabled(bool enabled) override { enabled_ = enabled; }
    bool IsEnabled() const override { return enabled_; }
    void Raise() override { }
    bool SetFocus() override { return false; }

    void SetInfo(const ScrollBarInfo& info) override { position_ = info.position; }
    void SetRange(i32, i32) override { }
    i32 Position() const override { return position_; }
    void SetPosition(i32 position) override { position_ = position; }
    i32 TrackPosition() const override { return position_; }

private:
    Rect place_;
    bool enabled_ = true;
    i32 position_ = 0;
};

} // namespace vornix
