#include "window_stack.h"

#include "vornix/headless_container.h"

#include <algorithm>
#include <ranges>

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

void ControlWindow::KeyPress(i16& character)
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
    , order_(children.begin(), children.end())
{
    const auto at = [&](ChildName name) { return children[static_cast<std::size_t>(name)]; };
    for (HeadlessChild* const child : children) {
        const bool isEditor = child == at(ChildName::txtTmp) || child == at(ChildName::cboTmp);
        child->Attach(*this, isEditor ? at(ChildName::fraEdit) : nullptr);
    }
}

InputWindow* WindowStack::TopAt(float x, float y)
{
    if (!isShown_ || !Contains(control_.Area(), x, y))
        return nullptr;
    if (HeadlessChild* const child = TopChildAt(x, y, nullptr))
        return child;
    return &control_;
}

HeadlessChild* WindowStack::TopChildAt(float x, float y, const HeadlessChild* frame) const
{
    for (HeadlessChild* const child : order_ | std::views::reverse) {
        if (child->Frame() != frame || !child->IsUsableAt(x, y))
            continue;
        HeadlessChild* const inside = TopChildAt(x, y, child);
        return inside ? inside : child;
    }
    return nullptr;
}

InputWindow* WindowStack::Focused()
{
    if (!hasFocus_)
        return nullptr;
    if (focusedChild_ && !focusedChild_->IsUsable())
        focusedChild_ = nullptr;
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

void WindowStack::FocusControl()
{
    GiveFocus(nullptr);
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
    GiveFocus(&child);
}

} // namespace vornix
