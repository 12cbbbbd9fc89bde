// The child windows of a container without a screen: rectangles with flags. What most of them do with notifications is
// nothing.
#pragma once

#include "vornix/platform/container.h"
#include "vornix/raster_surface.h"

namespace vornix {

// A window that the pointer and the keyboard reach. Places are relative to its own top left corner; codes come back as
// the receiver left them. What is not overridden does nothing.
class InputWindow {
public:
    virtual ~InputWindow() = default;
    // In the client area of the control.
    virtual Rect Area() const = 0;
    virtual void MouseDown(i16 /*button*/, i16 /*shift*/, float /*x*/, float /*y*/) { }
    virtual void MouseMove(i16 /*button*/, i16 /*shift*/, float /*x*/, float /*y*/) { }
    virtual void MouseUp(i16 /*button*/, i16 /*shift*/, float /*x*/, float /*y*/) { }
    virtual void Click() { }
    virtual void DblClick() { }
    virtual void KeyDown(i16& /*code*/, i16& /*shift*/) { }
    virtual void KeyPress(i16& /*character*/, i16 /*shift*/) { }
    virtual void KeyUp(i16& /*code*/, i16& /*shift*/) { }
};

class HeadlessChild;

// The window that the children lie on.
class ChildParent {
public:
    virtual ~ChildParent() = default;
    virtual void RaiseChild(HeadlessChild& child) = 0;
    virtual void FocusChild(HeadlessChild& child) = 0;
    // A child was hidden or disabled.
    virtual void ChildWithdrawn() = 0;
    // Whether it has the focus.
    virtual bool IsFocused(const HeadlessChild& child) const = 0;
};

class HeadlessChild : public ChildWindow, public InputWindow {
public:
    // A child in a frame is seen only where and while the frame is, and has its place in it.
    void Attach(ChildParent& parent, const HeadlessChild* frame);
    const HeadlessChild* Frame() const { return frame_; }

    void Move(const Rect& place) override { place_ = place; }
    Rect Place() const override { return place_; }
    Rect Area() const override;
    // What is hidden or disabled with the focus on it leaves it to the control, which hears nothing of that.
    void Show(bool visible) override;
    // Its own flag, whatever the frame's is.
    bool IsVisible() const override { return visible_; }
    void SetEnabled(bool enabled) override;
    bool IsEnabled() const override { return enabled_; }
    void Raise() override;
    bool SetFocus() override;
    bool HasFocus() const { return parent_ && parent_->IsFocused(*this); }
    // What the control has drawn on the child; null where it draws nothing.
    RasterSurface* Canvas() override { return nullptr; }

    // Whether a person sees it and can use it.
    bool IsUsable() const;
    // Whether it is usable and covers the point of the control's client area.
    bool IsUsableAt(float x, float y) const;

private:
    Rect place_;
    bool visible_ = false;
    bool enabled_ = true;
    ChildParent* parent_ = nullptr;
    const HeadlessChild* frame_ = nullptr;
};

// The square between the bars: a press gives it the focus, which it hands on.
class HeadlessCorner final : public HeadlessChild {
public:
    void MouseDown(i16 button, i16 shift, float x, float y) override;
};

// Whether the point lies in the rectangle.
bool Contains(const Rect& rect, float x, float y);

} // namespace vornix
