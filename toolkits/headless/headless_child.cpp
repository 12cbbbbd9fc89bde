#include "vornix/headless_child.h"

namespace vornix {

bool Contains(const Rect& rect, float x, float y)
{
    const double left = rect.left;
    const double top = rect.top;
    const double right = rect.right;
    const double bottom = rect.bottom;
    return x >= left && x < right && y >= top && y < bottom;
}

void HeadlessChild::Attach(ChildParent& parent, const HeadlessChild* frame)
{
    parent_ = &parent;
    frame_ = frame;
}

Rect HeadlessChild::Area() const
{
    if (!frame_)
        return place_;
    const Rect frame = frame_->Area();
    return { frame.left + place_.left, frame.top + place_.top, frame.left + place_.right, frame.top + place_.bottom };
}

void HeadlessChild::Show(bool visible)
{
    visible_ = visible;
    if (parent_ && !visible)
        parent_->ChildWithdrawn();
}

void HeadlessChild::SetEnabled(bool enabled)
{
    enabled_ = enabled;
    if (parent_ && !enabled)
        parent_->ChildWithdrawn();
}

void HeadlessChild::Raise()
{
    if (parent_)
        parent_->RaiseChild(*this);
}

bool HeadlessChild::SetFocus()
{
    if (!IsUsable())
        return false;
    if (parent_)
        parent_->FocusChild(*this);
    return true;
}

void HeadlessCorner::MouseDown(i16 /*button*/, i16 /*shift*/, float /*x*/, float /*y*/)
{
    SetFocus();
}

bool HeadlessChild::IsUsable() const
{
    return visible_ && enabled_ && (!frame_ || frame_->IsUsable());
}

bool HeadlessChild::IsUsableAt(float x, float y) const
{
    return IsUsable() && Contains(Area(), x, y) && (!frame_ || frame_->IsUsableAt(x, y));
}

} // namespace vornix
