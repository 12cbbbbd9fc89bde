"""Emits the table behind late binding: what every member and event of the control is, and the code that calls it.

A member's code is a thunk made from a pointer to the C++ member. The pointer is asked for with the exact signature that
the line of the member gives, so that a member which is missing or has other arguments does not compile.
"""

from typing import List, Optional, Tuple

import cpp
from iface import Argument, Event, Interface, Member

CONTROL = "Vornix"

_KINDS = {"property": "Property", "readonly": "ReadOnly", "writeonly": "WriteOnly", "method": "Method"}


def emit(interface: Interface) -> str:
    control = interface[CONTROL]
    lines = [
        '#include "control/member_code.h"',
        '#include "control/member_thunks.h"',
        '#include "control/name_index.h"',
        '#include "vornix/members.h"',
        '#include "vornix/vornix.h"',
        "",
        "#include <array>",
        "",
        "namespace vornix {",
        "",
        "namespace {",
        "",
        "// The arguments of members and events, one array for each list that occurs.",
    ]
    lists = argument_lists(control.members, control.events)
    for number, arguments in enumerate(lists):
        lines += argument_array(interface, number, arguments)
    lines += ["", f"constexpr std::array<MemberInfo, {len(control.members)}> MemberTable {{ {{"]
    lines += [member_info(interface, lists, member) for member in control.members]
    lines += ["} };", "", f"constexpr std::array<EventInfo, {len(control.events)}> EventTable {{ {{"]
    lines += [event_info(lists, event) for event in control.events]
    lines += ["} };", "", "// What arguments that were left out are."]
    for member in control.members:
        lines += default_array(member)
    lines += ["", f"constexpr std::array<MemberCode, {len(control.members)}> CodeTable {{ {{"]
    for member in control.members:
        lines += member_code(interface, member)
    lines += ["} };"]
    lines += FUNCTIONS
    return cpp.source(lines)


FUNCTIONS = """
constexpr NameIndex<MemberTable.size()> MemberNames(MemberTable);

} // namespace

std::span<const MemberInfo> Members()
{
    return MemberTable;
}

std::span<const EventInfo> Events()
{
    return EventTable;
}

const MemberInfo* FindMember(std::string_view name)
{
    return MemberNames.Find(name, MemberTable);
}

std::span<const MemberCode> MemberCodes()
{
    return CodeTable;
}

} // namespace vornix""".split("\n")

ArgumentLists = List[Tuple[Argument, ...]]


def argument_lists(members: List[Member], events: List[Event]) -> ArgumentLists:
    """Every list of arguments that occurs, once."""
    lists: ArgumentLists = []
    for each in [*members, *events]:
        if each.arguments and each.arguments not in lists:
            lists.append(each.arguments)
    return lists


def argument_array(interface: Interface, number: int, arguments: Tuple[Argument, ...]) -> List[str]:
    lines = [f"constexpr ArgumentInfo Arguments{number}[] = {{"]
    for argument in arguments:
        fields = [
            cpp.string(argument.name),
            cpp.descriptor(interface, argument.type),
            cpp.boolean(argument.by_ref),
            cpp.boolean(argument.default is not None),
        ]
        lines.append(f"    {{ {cpp.joined(fields)} }},")
    return [*lines, "};"]


def arguments_name(lists: ArgumentLists, arguments: Tuple[Argument, ...]) -> str:
    return f"Arguments{lists.index(arguments)}" if arguments else "{}"


def member_info(interface: Interface, lists: ArgumentLists, member: Member) -> str:
    fields = [
        cpp.string(member.name),
        f"MemberKind::{_KINDS[member.kind]}",
        arguments_name(lists, member.arguments),
        cpp.descriptor(interface, member.result) if member.result else "ValueType::None",
        cpp.boolean(member.pending_read),
        cpp.boolean(member.pending_write),
        cpp.string(member.sentence),
    ]
    return f"    {{ {cpp.joined(fields)} }},"


def event_info(lists: ArgumentLists, event: Event) -> str:
    return f"    {{ {cpp.string(event.name)}, {event.number}, {arguments_name(lists, event.arguments)} }},"


def default_array(member: Member) -> List[str]:
    defaults = [default_value(argument) for argument in member.arguments if argument.default is not None]
    if not defaults:
        return []
    return [f"constexpr DefaultValue {member.name}Defaults[] = {{ {cpp.joined(defaults)} }};"]


def default_value(argument: Argument) -> str:
    """The default of an argument, with the type that its spelling in the file has."""
    text = argument.default or ""
    if text in ("True", "False"):
        return f"DefaultValue(std::in_place_type<bool>, {text.lower()})"
    if text.startswith('"'):
        return f"DefaultValue(std::in_place_type<std::u16string_view>, u{text})"
    return f"DefaultValue(std::in_place_type<i32>, {int(text)})"


def member_code(interface: Interface, member: Member) -> List[str]:
    """One element of the table of code: what reads or calls, what writes, the defaults."""
    defaults = [argument for argument in member.arguments if argument.default is not None]
    read = thunk(read_pointer(interface, member)) if reads(member) else "nullptr"
    write = thunk(write_pointer(interface, member)) if writes(member) else "nullptr"
    return [f"    {{ {read}, {write}, {member.name + 'Defaults' if defaults else '{}'} }},"]


def reads(member: Member) -> bool:
    return member.kind != "writeonly" and not member.pending_read


def writes(member: Member) -> bool:
    return member.is_writable and not member.pending_write


def thunk(pointer: str) -> str:
    return f"&Thunk<{pointer}>::Call"


def read_pointer(interface: Interface, member: Member) -> str:
    result = cpp.value_type(interface, member.result) if member.result else "void"
    check = "Method" if member.is_method else "Getter"
    return f"Signature<{result}({signature(interface, member)})>::{check}(&{CONTROL}::{member.name})"


def write_pointer(interface: Interface, member: Member) -> str:
    value = Argument("Value", member.result or "")
    return f"Signature<void({signature(interface, member, value)})>::Method(&{CONTROL}::Set{member.name})"


def signature(interface: Interface, member: Member, value: Optional[Argument] = None) -> str:
    arguments = [*member.arguments, *([value] if value else [])]
    return cpp.joined(cpp.argument_type(interface, argument) for argument in arguments)
