// The child windows of the container without a screen, and its bars.
#include "grid.h"

#include <optional>

namespace vornix::c {

HeadlessChild& ChildOf(Call& call, const char* name)
{
    Require(name);
    HeadlessChild* const child = call->Container().FindChild(name);
    if (child == nullptr)
        Raise(ErrorNumber::InvalidArgument, "No child window has this name");
    return *child;
}

namespace {

HeadlessScrollBar& BarOf(Call& call, const char* name)
{
    auto* const bar = dynamic_cast<HeadlessScrollBar*>(&ChildOf(call, name));
    if (bar == nullptr)
        Raise(ErrorNumber::NoSuchMember, "This child window is no scroll bar");
    return *bar;
}

} // namespace

} // namespace vornix::c

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_host_child(vornix_grid* grid, const char* name, vornix_child_info* info)
{
    return GridCall(grid, [&](Call& call) {
        Require(info);
        const ChildWindow& child = ChildOf(call, name);
        const Rect place = child.Place();
        *info = { child.IsVisible(), child.IsEnabled(), place.left, place.top, place.Width(), place.Height() };
    });
}

std::int32_t vornix_host_bar(vornix_grid* grid, const char* name, vornix_bar_info* info)
{
    return GridCall(grid, [&](Call& call) {
        Require(info);
        const HeadlessScrollBar& bar = BarOf(call, name);
        *info = { bar.Min(), bar.Max(), bar.Page(), bar.Value() };
    });
}

std::int32_t vornix_host_notify_bar(
    vornix_grid* grid, const char* name, std::int32_t code, const std::int32_t* track_position)
{
    return GridCall(grid, [&](Call& call) {
        HeadlessScrollBar& bar = BarOf(call, name);
        bar.Notify(code, track_position == nullptr ? std::nullopt : std::optional(*track_position));
    });
}
