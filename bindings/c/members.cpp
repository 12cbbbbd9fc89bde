// The members and events as callers of C read them.
#include "member_table.h"

#include "status.h"

#include <deque>
#include <string>
#include <vector>

namespace vornix::c {

namespace {

// Numbers of the declared types are the same on both sides.
static_assert(VORNIX_TYPE_NONE == static_cast<int>(ValueType::None)
    && VORNIX_TYPE_I16 == static_cast<int>(ValueType::I16)
    && VORNIX_TYPE_BOOLEAN == static_cast<int>(ValueType::Boolean)
    && VORNIX_TYPE_HDC == static_cast<int>(ValueType::DeviceHandle)
    && VORNIX_TYPE_ARRAY == static_cast<int>(ValueType::Array) && VORNIX_TYPE_ANY == static_cast<int>(ValueType::Any));
static_assert(VORNIX_PROPERTY == static_cast<int>(MemberKind::Property)
    && VORNIX_READ_ONLY == static_cast<int>(MemberKind::ReadOnly)
    && VORNIX_WRITE_ONLY == static_cast<int>(MemberKind::WriteOnly)
    && VORNIX_METHOD == static_cast<int>(MemberKind::Method));
static_assert(VORNIX_GET == static_cast<int>(InvokeKind::Get) && VORNIX_LET == static_cast<int>(InvokeKind::Let)
    && VORNIX_CALL == static_cast<int>(InvokeKind::Call));

// Descriptions with names that end in a zero. Never destroyed: callers keep what they are given.
class DescriptionTable {
public:
    static const DescriptionTable& Instance()
    {
        static const auto* const table = new DescriptionTable;
        return *table;
    }

    const vornix_member_info& Member(std::size_t index) const { return members_[index]; }
    const std::vector<vornix_event_info>& Events() const { return events_; }

private:
    DescriptionTable()
    {
        for (const MemberInfo& member : vornix::Members())
            members_.push_back({ Name(member.name), static_cast<std::int32_t>(member.kind),
                static_cast<std::int32_t>(member.type), member.readPending, member.writePending,
                Name(member.description), Arguments(member.arguments), member.arguments.size() });
        for (const EventInfo& event : vornix::Events())
            events_.push_back({ Name(event.name), event.number, Arguments(event.arguments), event.arguments.size() });
    }

    const char* Name(std::string_view name) { return names_.emplace_back(name).c_str(); }

    const vornix_argument_info* Arguments(std::span<const ArgumentInfo> arguments)
    {
        std::vector<vornix_argument_info>& described = arguments_.emplace_back();
        for (const ArgumentInfo& argument : arguments)
            described.push_back({ Name(argument.name), static_cast<std::int32_t>(argument.type), argument.byReference,
                argument.optional });
        return described.data();
    }

    std::deque<std::string> names_;
    std::deque<std::vector<vornix_argument_info>> arguments_;
    std::vector<vornix_member_info> members_;
    std::vector<vornix_event_info> events_;
};

// A handle is the member itself.
const vornix_member* HandleOf(const MemberInfo* member)
{
    return reinterpret_cast<const vornix_member*>(member);
}

} // namespace

const MemberInfo& MemberOf(const vornix_member* handle)
{
    Require(handle);
    const std::span<const MemberInfo> members = Members();
    const auto distance = reinterpret_cast<std::uintptr_t>(handle) - reinterpret_cast<std::uintptr_t>(members.data());
    if (distance >= members.size_bytes() || distance % sizeof(MemberInfo) != 0)
        Raise(ErrorNumber::NoSuchMember);
    return members[distance / sizeof(MemberInfo)];
}

} // namespace vornix::c

using namespace vornix::c;

std::size_t vornix_member_count(void)
{
    return vornix::Members().size();
}

const vornix_member* vornix_member_at(std::size_t index)
{
    const auto members = vornix::Members();
    return index < members.size() ? HandleOf(&members[index]) : nullptr;
}

const vornix_member* vornix_find_member(const char* name)
{
    return name == nullptr ? nullptr : HandleOf(vornix::FindMember(name));
}

const vornix_member_info* vornix_describe_member(const vornix_member* member)
{
    const vornix_member_info* info = nullptr;
    Guarded([&] {
        const auto index = static_cast<std::size_t>(&MemberOf(member) - vornix::Members().data());
        info = &DescriptionTable::Instance().Member(index);
    });
    return info;
}

std::size_t vornix_event_count(void)
{
    return vornix::Events().size();
}

const vornix_event_info* vornix_describe_event(std::int32_t number)
{
    const vornix_event_info* info = nullptr;
    Guarded([&] {
        const auto& events = DescriptionTable::Instance().Events();
        if (number >= 1 && static_cast<std::size_t>(number) <= events.size())
            info = &events[static_cast<std::size_t>(number) - 1];
    });
    return info;
}
