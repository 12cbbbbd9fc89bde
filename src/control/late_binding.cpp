// Members called by their names.
#include "automation/checked.h"
#include "control/control.h"
#include "control/late_call.h"

namespace vornix {

namespace {

MemberTableOf<Vornix> GridMembers()
{
    return { Members(), MemberCodes() };
}

const MemberInfo& Named(std::string_view name)
{
    const MemberInfo* member = FindMember(name);
    if (member == nullptr)
        RaiseError(ErrorNumber::NoSuchMember);
    return *member;
}

} // namespace

Variant Vornix::Invoke(std::string_view name, InvokeKind kind, std::span<Variant> args)
{
    return Invoke(name, kind, args, {});
}

Variant Vornix::Invoke(
    std::string_view name, InvokeKind kind, std::span<Variant> args, std::span<const std::string_view> names)
{
    return OrOutOfMemory([&] {
        const auto control = Enter();
        return InvokeStep(*this, control->container.GetLocale(), GridMembers(), Named(name), kind, args, names);
    });
}

Variant Vornix::Invoke(const MemberInfo& member, InvokeKind kind, std::span<Variant> args)
{
    return OrOutOfMemory([&] {
        const auto control = Enter();
        return InvokeStep(*this, control->container.GetLocale(), GridMembers(), member, kind, args, {});
    });
}

} // namespace vornix
