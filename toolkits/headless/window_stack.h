// The control's window and its children: which lies on top at a place, where the pointer is, and which has the focus.
#pragma once

#include "vornix/headless_child.h"

#include <optional>
#include <span>
#include <vector>

namespace vornix {

class HeadlessContainer;

// The control as a window among its children.
class ControlWindow : public InputWindow {
public:
    explicit ControlWindow(HeadlessContainer& host)
        : host_(host)
    {
    }
    Rect Area() const override;
    void MouseDown(i16 button, i16 shift, float x, float y) override;
    void MouseMove(i16 button, i16 shift, float x, float y) override;
    void MouseUp(i16 button, i16 shift, float x, float y) override;
    void Click() override;
    void DblClick() override;
    void KeyDown(i16& code, i16& shift) override;
    void KeyPress(i16& character, i16 shift) override;
    void KeyUp(i16& code, i16& shift) override;

private:
    HeadlessContainer& host_;
};

// In pixels of the control's client area.
struct PointerPlace {
    float x = 0;
    float y = 0;
};

class WindowStack : public ChildParent {
public:
    // The children by their names in ChildName, the later above the earlier.
    WindowStack(HeadlessContainer& host, std::span<HeadlessChild* const> children);

    InputWindow& TheControl() { return control_; }
    // Null outside the client area, and where the control is hidden. What cannot be used lets through what lies below.
    InputWindow* TopAt(float x, float y);

    // Where the pointer is from now on, by its latest notification. Before the first one it is elsewhere.
    void MovePointer(PointerPlace place) { pointer_ = place; }
    PointerLocation LocatePointer() const;

    // Whether the control is seen at all; the children are not without it.
    bool IsShown() const { return isShown_; }
    void SetShown(bool shown) { isShown_ = shown; }

    // Null while the focus is elsewhere than in the control. A child that cannot be used any more has lost it to the
    // control.
    InputWindow* Focused();
    bool HasFocus() const { return hasFocus_; }
    // The control itself takes the focus; when it comes from elsewhere the control is told that it entered.
    void FocusControl();
    // The control is told that the focus entered it or left it.
    void EnterFocus();
    void ExitFocus();

    void RaiseChild(HeadlessChild& child) override;
    // The control is told. Keys on the corner between the bars are the control's own.
    void FocusChild(HeadlessChild& child) override;
    void ChildWithdrawn() override;
    bool IsFocused(const HeadlessChild& child) const override;

    // A window of the host's, just behind the corner. It must outlive the stack.
    void PlaceHostWindow(HeadlessChild& window);

private:
    bool IsSeenAt(float x, float y) const { return isShown_ && Contains(control_.Area(), x, y); }
    HeadlessChild* TopChildAt(float x, float y, const HeadlessChild* frame) const;
    // None for a window of the host's.
    std::optional<ChildName> NameOf(const HeadlessChild& child) const;
    // To the control itself where no child is given.
    void GiveFocus(HeadlessChild* child);

    HeadlessContainer& host_;
    ControlWindow control_;
    // By their names.
    std::vector<HeadlessChild*> children_;
    // From the bottom up, with those of the host; those in a frame count among themselves.
    std::vector<HeadlessChild*> order_;
    std::optional<PointerPlace> pointer_;
    bool isShown_ = false;
    bool hasFocus_ = false;
    HeadlessChild* focusedChild_ = nullptr;
};

} // namespace vornix
