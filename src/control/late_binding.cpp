// Members called by their names.
#include "automation/checked.h"
#include "control/argument_list.h"
#include "control/control.h"
#include "control/member_code.h"

#include <functional>

namespace vornix {

namespace {

// The code of a member; error 438 for what is no element of the table.
const MemberCode& CodeOf(const MemberInfo& member)
{
    const std::span<const MemberInfo> members = Members();
    const std::less<const MemberInfo*> isBefore;
    if (isBefore(&member, members.data()) || !isBefore(&member, members.data() + members.size()))
        RaiseError(ErrorNumber::NoSuchMember);
    return MemberCodes()[static_cast<std::size_t>(&member - members.data())];
}

// Reading and calling are one, as automation hosts ask for both together.
bool Allows(MemberKind member, InvokeKind kind)
{
    switch (kind) {
    case InvokeKind::Get:
    case InvokeKind::Call:
        return member != MemberKind::WriteOnly;
    case InvokeKind::Let:
        return member == MemberKind::Property || member == MemberKind::WriteOnly;
    }
    return false;
}

Variant InvokeStep(Vornix& grid, const Locale& locale, const MemberInfo& member, InvokeKind kind,
    std::span<Variant> args, std::span<const std::string_view> names)
{
    const MemberCode& code = CodeOf(member);
    if (!Allows(member.kind, kind))
        RaiseError(ErrorNumber::NoSuchMember);
    const bool isWriting = kind == InvokeKind::Let;
    const MemberThunk thunk = isWriting ? code.write : code.read;
    if (thunk == nullptr)
        RaiseError(ErrorNumber::ActionNotSupported);
    ArgumentList arguments(member, code, isWriting, args, names);
    Variant result = thunk(grid, arguments.InOrder(), locale);
    arguments.GiveBack();
    return result;
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
        return InvokeStep(*this, control->container.GetLocale(), Named(name), kind, args, names);
    });
}

Variant Vornix::Invoke(const MemberInfo& member, InvokeKind kind, std::span<Variant> args)
{
    return OrOutOfMemory([&] {
        const auto control = Enter();
        return InvokeStep(*this, control->container.GetLocale(), member, kind, args, {});
    });
}

} // namespace vornix
