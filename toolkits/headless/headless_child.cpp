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
    return IsUsable() && Contains(place_, x, y) && (!frame_ || frame_->IsUsableAt(x, y));
}

} // namespace vornix
