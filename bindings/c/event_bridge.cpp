#include "event_bridge.h"

#include "handles.h"
#include "values.h"

#include <array>

namespace vornix::c {

namespace {

constexpr std::size_t MostArguments = 8;

using Values = std::array<vornix_value, MostArguments>;

// What the callback left in the values: those that say so are taken over from it.
class LeftValues {
public:
    explicit LeftValues(std::size_t count)
        : count_(count)
    {
    }
    ~LeftValues()
    {
        for (std::size_t i = 0; i < count_; ++i)
            vornix_value_clear(&values[i]);
    }
    LeftValues(const LeftValues&) = delete;
    LeftValues& operator=(const LeftValues&) = delete;

    Values values {};

private:
    std::size_t count_;
};

// An object is the event's and ends with it, whoever has retained its handle.
void EndObjects(const ValueList<MostArguments>& given)
{
    for (std::size_t i = 0; i < given.Count(); ++i) {
        if (given[i].type == VORNIX_OBJECT && given[i].as.object != nullptr)
            given[i].as.object->object.reset();
    }
}

} // namespace

void EventBridge::SetCallback(vornix_event_callback callback, void* user)
{
    callback_ = callback;
    user_ = user;
}

std::optional<AutomationError> EventBridge::TakeKeptFailure()
{
    std::optional<AutomationError> converted = TakeFailure();
    std::optional<AutomationError> own = std::exchange(failure_, std::nullopt);
    return own ? own : converted;
}

void EventBridge::TakeBack(const vornix_value& value, Variant& argument)
{
    try {
        argument = ToVariant(value);
    } catch (const AutomationError& error) {
        if (!failure_)
            failure_ = error;
    }
}

void EventBridge::Raise(const EventInfo& event, std::span<Variant> arguments)
{
    if (callback_ == nullptr)
        return;
    ValueList<MostArguments> given;
    LeftValues left(arguments.size());
    for (const Variant& argument : arguments) {
        left.values[given.Count()] = {};
        given.Add(argument);
    }
    for (std::size_t i = 0; i < given.Count(); ++i) {
        left.values[i] = given[i];
        left.values[i].owned = 0;
    }
    callback_(user_, grid_, event.number, left.values.data(), arguments.size());
    EndObjects(given);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (event.arguments[i].byReference)
            TakeBack(left.values[i], arguments[i]);
    }
}

} // namespace vornix::c
