// What a handler may do to the control, and handlers for all events at once.
#pragma once

#include "vornix/event_funnel.h"
#include "vornix/headless_container.h"
#include "vornix/members.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vornix {

// Calls one function for every event.
class EveryEvent : public EventFunnel<EveryEvent> {
public:
    std::function<void(std::string_view name)> Then = [](std::string_view) {};

private:
    friend EventFunnel<EveryEvent>;
    template <typename Event, typename... Arguments> void On(int number, Event, Arguments&...)
    {
        Then(vornix::Events()[static_cast<std::size_t>(number) - 1].name);
    }
};

struct Deed {
    const char* name;
    std::function<void(HeadlessContainer&)> act;
};

// Whatever the grid is used for.
const std::vector<Deed>& Deeds();
// With what is edited in place.
const std::vector<Deed>& EditingDeeds();

// Nothing where the step ends with an automation error.
void Try(const std::function<void()>& step);

// A grid, all that a person does to it, and what holds whatever the handlers did meanwhile.
class HandlerDeeds : public testing::Test {
protected:
    using Steps = std::vector<std::function<void()>>;

    virtual void FillGrid() = 0;
    virtual Steps AllSteps() = 0;
    virtual void CheckWhole() = 0;

    void MakeGrid();
    // Each step alone: an error ends that step only.
    void LiveThroughIt();
    // Every deed at so many times that the event is raised, each in a life of its own.
    void TryAll(const std::vector<Deed>& deeds, std::string_view event, std::initializer_list<int> times);

    Vornix& Grid() { return host->Grid(); }

    Size size { 240, 140 };
    EveryEvent events;
    std::unique_ptr<HeadlessContainer> host;
};

} // namespace vornix
