#include "window_stack.h"

#include "vornix/headless_container.h"

#include <algorithm>

namespace vornix {

Rect ControlWindow::Area() const
{
    const Size client = host_.ClientSize();
    return { 0, 0, client.width, client.height };
}

void ControlWindow::MouseDown(i16 button, i16 shift, float x, float y)
{
    host_.Grid().MouseDown(button, shift, x, y);
}

void ControlWindow::MouseMove(i16 button, i16 shift, float x, float y)
{
    host_.Grid().MouseMove(button, shift, x, y);
}

void ControlWindow::MouseUp(i16 button, i16 shift, float x, float y)
{
    host_.Grid().MouseUp(button, shift, x, y);
}

void ControlWindow::Click()
{
    host_.Grid().Click();
}

void ControlWindow::DblClick()
{
    host_.Grid().DblClick();
}

void ControlWindow::KeyDown(i16& code, i16& shift)
{
    host_.Grid().KeyDown(code, shift);
}

void ControlWindow::KeyPress(i16& character, i16 /*shift*/)
{
    host_.Grid().KeyPress(character);
}

void ControlWindow::KeyUp(i16& code, i16& shift)
{
    host_.Grid().KeyUp(code, shift);
}

WindowStack::WindowStack(HeadlessContainer& host, std::span<HeadlessChild* const> children)
    : host_(host)
    , control_(host)
    , children_(children.begin(), children.end())
    , order_(children_)
{
    const auto at = [&](ChildName name) { return children[static_cast<std::size_t>(name)]; };
    for (HeadlessChild* const child : children) {
        const bool isEditor = child == at(ChildName::txtTmp) || child == at(ChildName::cboTmp);
        child->Attach(*this, isEditor ? at(ChildName::fraEdit) : nullptr);
    }
}

InputWindow* WindowStack::TopAt(float x, float y)
{
    if (!IsSeenAt(x, y))
        return nullptr;
    if (HeadlessChild* const child = TopChildAt(x, y, nullptr))
        return child;
    return &control_;
}

HeadlessChild* WindowStack::TopChildAt(float x, float y, const HeadlessChild* frame) const
{
    for (auto place = order_.rbegin(); place != order_.rend(); ++place) {
        HeadlessChild* const child = *place;
        if (child->Frame() != frame || !child->IsUsableAt(x, y))
            continue;
        HeadlessChild* const inside = TopChildAt(x, y, child);
        return inside ? inside : child;
    }
    return nullptr;
}

std::optional<ChildName> WindowStack::NameOf(const HeadlessChild& child) const
{
    const auto place = std::ranges::find(children_, &child);
    if (place == children_.end())
        return std::nullopt;
    return static_cast<ChildName>(place - children_.begin());
}

PointerLocation WindowStack::LocatePointer() const
{
    if (!pointer_ || !IsSeenAt(pointer_->x, pointer_->y))
        return {};
    PointerLocation location;
    location.window = PointerLocation::Window::Control;
    location.place = { static_cast<int>(pointer_->x), static_cast<int>(pointer_->y) };
    if (const HeadlessChild* const child = TopChildAt(pointer_->x, pointer_->y, nullptr)) {
        const std::optional<ChildName> name = NameOf(*child);
        if (!name)
            return {};
        location.window = PointerLocation::Window::Child;
        location.child = *name;
    }
    return location;
}

InputWindow* WindowStack::Focused()
{
    if (!hasFocus_)
        return nullptr;
    if (focusedChild_)
        return focusedChild_;
    return &control_;
}

void WindowStack::GiveFocus(HeadlessChild* child)
{
    focusedChild_ = child;
    if (hasFocus_)
        return;
    hasFocus_ = true;
    if (!host_.Grid().IsTerminated())
        host_.Grid().EnterFocus();
}

// From one of its editors it comes by the corner between the bars, which hands it on to an editor that stays open.
void WindowStack::FocusControl()
{
    const bool isFromChild = hasFocus_ && focusedChild_;
    GiveFocus(nullptr);
    if (isFromChild && !host_.Grid().IsTerminated())
        host_.Grid().EnterChildFocus(ChildName::cPivot);
}

void WindowStack::EnterFocus()
{
    hasFocus_ = true;
    host_.Grid().EnterFocus();
}

void WindowStack::ExitFocus()
{
    hasFocus_ = false;
    focusedChild_ = nullptr;
    host_.Grid().ExitFocus();
}

void WindowStack::RaiseChild(HeadlessChild& child)
{
    const auto place = std::ranges::find(order_, &child);
    std::rotate(place, place + 1, order_.end());
}

void WindowStack::FocusChild(HeadlessChild& child)
{
    const std::optional<ChildName> name = NameOf(child);
    GiveFocus(name == ChildName::cPivot ? nullptr : &child);
    if (name && !host_.Grid().IsTerminated())
        host_.Grid().EnterChildFocus(*name);
}

void WindowStack::ChildWithdrawn()
{
    if (focusedChild_ && !focusedChild_->IsUsable())
        focusedChild_ = nullptr;
}

bool WindowStack::IsFocused(const HeadlessChild& child) const
{
    return hasFocus_ && focusedChild_ == &child;
}

void WindowStack::PlaceHostWindow(HeadlessChild& window)
{
    window.Attach(*this, nullptr);
    std::erase(order_, &window);
    const HeadlessChild* const corner = children_[static_cast<std::size_t>(ChildName::cPivot)];
    order_.insert(std::ranges::find(order_, corner), &window);
}

} // namespace vornix
