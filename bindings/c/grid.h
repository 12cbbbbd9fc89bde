// A grid in a container without a screen, and the calls into it.
#pragma once

#include "event_bridge.h"
#include "owner.h"
#include "status.h"

#include "vornix/headless_container.h"
#include "vornix/vornix_c.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace vornix::c {

class Grid {
public:
    explicit Grid(std::shared_ptr<Owner> owner)
        : owner_(std::move(owner))
    {
    }

    Owner& GetOwner() const { return *owner_; }
    EventBridge& Events() { return events_; }
    // Makes the container and brings the control to life. Events may come meanwhile; calls into the grid wait.
    void Load(HeadlessOptions options);
    // Error 5 while the grid is being made.
    HeadlessContainer& Container();
    Vornix& Control() { return Container().Grid(); }

    // Keeps a text for a caller until the grid is called again.
    const std::u16string& Keep(std::u16string text) { return kept_ = std::move(text); }

    bool IsInCall() const { return depth_ > 0; }

private:
    friend class Call;

    std::shared_ptr<Owner> owner_;
    EventBridge events_;
    std::unique_ptr<HeadlessContainer> container_;
    std::u16string kept_;
    int depth_ = 0;
};

// One call into a grid. A value that an event brought back and that did not fit fails the outermost call.
class Call {
public:
    // Errors 5 for a null handle, a grid that has been destroyed, and on other threads than the grid's own.
    explicit Call(vornix_grid* handle);
    explicit Call(Grid& grid);
    ~Call();
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    Grid& operator*() const { return grid_; }
    Grid* operator->() const { return &grid_; }
    // To be called where the control has done its work and no result has been given yet. Raises the failure of an event.
    void Finish();

private:
    Grid& grid_;
};

// Error 5 for a name that no child window has.
HeadlessChild& ChildOf(Call& call, const char* name);

// The body of an exported function that calls a grid.
template <typename Body> std::int32_t GridCall(vornix_grid* handle, const Body& body)
{
    return Guarded([&] {
        Call call(handle);
        body(call);
        call.Finish();
    });
}

} // namespace vornix::c
