// One late-bound call of a member, the same for every control.
#pragma once

#include "automation/checked.h"
#include "control/argument_list.h"
#include "control/member_code.h"

#include <cstddef>
#include <functional>
#include <span>
#include <string_view>

namespace vornix {

// The members of a control, and the code of each in the same order.
template <typename Control> struct MemberTableOf {
    std::span<const MemberInfo> members;
    std::span<const MemberCode<Control>> codes;

    // Error 438 for what is no element of the table.
    const MemberCode<Control>& CodeOf(const MemberInfo& member) const
    {
        const std::less<const MemberInfo*> isBefore;
        if (isBefore(&member, members.data()) || !isBefore(&member, members.data() + members.size()))
            RaiseError(ErrorNumber::NoSuchMember);
        return codes[static_cast<std::size_t>(&member - members.data())];
    }
};

// Reading and calling are one, as automation hosts ask for both together.
inline bool Allows(MemberKind member, InvokeKind kind)
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

template <typename Control>
Variant InvokeStep(Control& control, const Locale& locale, const MemberTableOf<Control>& table,
    const MemberInfo& member, InvokeKind kind, std::span<Variant> args, std::span<const std::string_view> names)
{
    const MemberCode<Control>& code = table.CodeOf(member);
    if (!Allows(member.kind, kind))
        RaiseError(ErrorNumber::NoSuchMember);
    const bool isWriting = kind == InvokeKind::Let;
    const MemberThunk<Control> thunk = isWriting ? code.write : code.read;
    if (thunk == nullptr)
        RaiseError(ErrorNumber::ActionNotSupported);
    ArgumentList arguments(member, code.defaults, isWriting, args, names);
    Variant result = thunk(control, arguments.InOrder(), locale);
    arguments.GiveBack();
    return result;
}

} // namespace vornix
