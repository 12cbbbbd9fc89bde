// Hands the events of a grid to the callback of its host.
#pragma once

#include "vornix/variant_events.h"
#include "vornix/vornix_c.h"

#include <optional>
#include <span>
#include <utility>

namespace vornix::c {

class EventBridge : public VariantEvents {
public:
    // The handle that the callback is told.
    void SetGrid(vornix_grid* grid) { grid_ = grid; }
    // None for a null callback.
    void SetCallback(vornix_event_callback callback, void* user);

    // The first failure since this was last asked.
    std::optional<AutomationError> TakeKeptFailure();

protected:
    void Raise(const EventInfo& event, std::span<Variant> arguments) override;

private:
    vornix_grid* grid_ = nullptr;
    vornix_event_callback callback_ = nullptr;
    void* user_ = nullptr;
    // Of a value that is none.
    std::optional<AutomationError> failure_;
};

} // namespace vornix::c
