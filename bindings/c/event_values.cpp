#include "event_values.h"

#include "handles.h"
#include "values.h"

#include <array>

namespace vornix::c {

namespace {

using Values = std::array<vornix_value, MostEventArguments>;

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
void EndObjects(const ValueList<MostEventArguments>& given)
{
    for (std::size_t i = 0; i < given.Count(); ++i) {
        if (given[i].type == VORNIX_OBJECT && given[i].as.object != nullptr)
            given[i].as.object->object.reset();
    }
}

void TakeBack(const vornix_value& value, Variant& argument, std::optional<AutomationError>& failure)
{
    try {
        argument = ToVariant(value);
    } catch (const AutomationError& error) {
        if (!failure)
            failure = error;
    }
}

} // namespace

void CallWithArguments(const EventInfo& event, std::span<Variant> arguments, const CallbackOfValues& callback,
    std::optional<AutomationError>& failure)
{
    ValueList<MostEventArguments> given;
    LeftValues left(arguments.size());
    for (const Variant& argument : arguments) {
        left.values[given.Count()] = {};
        given.Add(argument);
    }
    for (std::size_t i = 0; i < given.Count(); ++i) {
        left.values[i] = given[i];
        left.values[i].owned = 0;
    }
    callback(left.values.data(), arguments.size());
    EndObjects(given);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (event.arguments[i].byReference)
            TakeBack(left.values[i], arguments[i], failure);
    }
}

} // namespace vornix::c
