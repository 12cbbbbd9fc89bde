// The pointer on its way: what it hovers over, what it drags, and whether it has left.
#include "interact/mouse.h"

#include "automation/key_codes.h"
#include "interact/pixel_at.h"

#include <cstdlib>

namespace vornix {

namespace {

// Further inside than this, moves alone tell where the pointer is.
constexpr int FarEdge = 40;
constexpr int NearEdge = 20;

bool IsDeepInside(Point place, Size area)
{
    return place.x > NearEdge && place.y > NearEdge && place.x < area.width - FarEdge
        && place.y < area.height - FarEdge;
}

bool IsOn(const PointerLocation& pointer, ChildName child)
{
    return pointer.window == PointerLocation::Window::Child && pointer.child == child;
}

bool IsOverGrid(const PointerLocation& pointer)
{
    return pointer.window == PointerLocation::Window::Control || IsOn(pointer, ChildName::fraEdit)
        || IsOn(pointer, ChildName::cboTmp) || IsOn(pointer, ChildName::txtTmp);
}

} // namespace

void Mouse::Move(i16 button, i16 shift, float x, float y)
{
    const Point at = PixelAt(x, y);
    if (isArmed_ && (std::abs(at.x - downAt_.x) > 1 || std::abs(at.y - downAt_.y) > 1))
        hasMoved_ = true;
    shift_ = shift;
    context_.events.MouseMove(button, shift, x, y);

    LineSizing& sizing = context_.sizing;
    const CellIndex before = hover_;
    TakeHit(sizing.HitTest(at.x, at.y));
    if (button == Buttons::None)
        sizing.UpdateCursor(at.x, at.y, LatestHit());
    else if (sizing.IsSizing() && !inDblClick_)
        sizing.SizeTo(x, y);
    if (!sizing.IsSizing() && (isOffCells_ || hover_ != before))
        HoverAlong(button, before, at);
    if (button == Buttons::None)
        Watch(true);
}

// The pointer is on another cell, or on none.
void Mouse::HoverAlong(i16 button, CellIndex before, Point at)
{
    if (button == Buttons::None)
        context_.selecting.GiveUp();
    else if (button == Buttons::Left)
        context_.selecting.Drag(LatestHit(), at.x, at.y);

    if (before.row >= 0 && before.col >= 0)
        LeaveCell(before);
    if (!isOffCells_ && IsHovering())
        return EnterCell();
    context_.pressed.isShown = false;
    hover_ = Nowhere;
}

void Mouse::LeaveCell(CellIndex cell)
{
    if (context_.pressed.isShown) {
        context_.pressed.isShown = false;
        Raise(&VornixEvents::CellUp, Pressed());
        RepaintButton();
    }
    if (hoverRaised_) {
        hoverRaised_ = false;
        // The line may be gone.
        if (context_.mover.IsReal(cell))
            Raise(&VornixEvents::CellOut, cell);
    }
    RepaintCell(cell);
}

void Mouse::EnterCell()
{
    hoverRaised_ = true;
    Raise(&VornixEvents::CellOver, hover_);
    if (context_.pressed.isShown || !isArmed_ || hover_ != Pressed())
        return;
    context_.pressed.isShown = true;
    Raise(&VornixEvents::CellDown, Pressed());
    RepaintButton();
}

void Mouse::ExitHover()
{
    if (!hoverRaised_)
        return;
    hoverRaised_ = false;
    if (!IsHovering())
        return;
    const CellIndex cell = hover_;
    context_.pressed.isShown = false;
    isOffCells_ = true;
    hover_ = Nowhere;
    if (!context_.mover.IsReal(cell))
        return;
    Raise(&VornixEvents::CellOut, cell);
    RepaintCell(cell);
}

void Mouse::Tick()
{
    const PointerLocation pointer = context_.container.LocatePointer();
    if (!IsOverGrid(pointer)) {
        Watch(false);
        if (context_.sizing.IsCursorShown())
            context_.sizing.RestoreCursor();
        return ExitHover();
    }
    if (IsOn(pointer, ChildName::cboTmp)) {
        // The list of a combo cell gives no moves: hovering goes on under it.
        return Move(
            Buttons::None, Shifts::None, static_cast<float>(pointer.place.x), static_cast<float>(pointer.place.y));
    }
    if (IsDeepInside(pointer.place, context_.layout.ScaleSize()))
        Watch(false);
}

} // namespace vornix
