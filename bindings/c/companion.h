// What the controls that come with the grid have in common behind their handles.
#pragma once

#include "status.h"
#include "values.h"

#include "vornix/members.h"

#include <optional>
#include <span>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace vornix::c {

struct Companion {
    const std::thread::id thread = std::this_thread::get_id();
    void* user = nullptr;
    // Calls that are running.
    int depth = 0;
    // Of a value that a callback left and that does not fit its argument: the first one.
    std::optional<AutomationError> failure;
};

// The body of a function that calls a control; `kind` is what messages call it. What an event left that does not fit
// fails the outermost call, before its results are given where the body calls Finish.
class CompanionCall {
public:
    CompanionCall(Companion* companion, const char* kind)
        : companion_(Checked(companion, kind))
    {
        ++companion_.depth;
    }
    ~CompanionCall() { --companion_.depth; }
    CompanionCall(const CompanionCall&) = delete;
    CompanionCall& operator=(const CompanionCall&) = delete;

    void Finish()
    {
        if (companion_.depth > 1)
            return;
        if (const auto failure = std::exchange(companion_.failure, std::nullopt))
            throw *failure;
    }

private:
    static Companion& Checked(Companion* companion, const char* kind)
    {
        Require(companion);
        if (companion->thread != std::this_thread::get_id()) {
            const std::string text = std::string("Called from another thread than the one that made the ") + kind;
            Raise(ErrorNumber::InvalidArgument, text.c_str());
        }
        return *companion;
    }

    Companion& companion_;
};

template <typename Handle> std::int32_t DestroyCompanion(Handle* handle, const char* kind)
{
    return Guarded([&] {
        if (handle != nullptr && handle->depth > 0)
            Raise(ErrorNumber::InvalidArgument, (std::string("The ") + kind + " is in the middle of a call").c_str());
        delete handle;
    });
}

// A member of a control in its container.
template <typename Host>
Variant Invoked(Host& host, const char* name, std::int32_t kind, const vornix_value* arguments, std::size_t count)
{
    Require(name);
    if (kind < VORNIX_GET || kind > VORNIX_CALL)
        Raise(ErrorNumber::InvalidArgument, "A kind of call that there is not");
    if (count > 0)
        Require(arguments);
    std::vector<Variant> values;
    for (const vornix_value& argument : std::span(arguments, count))
        values.push_back(ToVariant(argument));
    return host.Invoke(name, static_cast<InvokeKind>(kind), values);
}

} // namespace vornix::c
