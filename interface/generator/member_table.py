"""Emits the table behind late binding: members and events, and the code that calls them.

A member's code is a thunk made from a pointer to the C++ member. The pointer is asked for with the
exact signature that the line of the member gives, so that a member which is missing or has other
arguments does not compile.
"""

from typing import List, Sequence, Tuple, Union

import cpp
from iface import Argument, Event, Interface, Member

_KINDS = {
    "property": "Property",
    "readonly": "ReadOnly",
    "writeonly": "WriteOnly",
    "method": "Method",
}


def emit(interface: Interface) -> str:
    grid = interface.grid
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
    lists = argument_lists([*grid.members, *grid.events])
    for number, arguments in enumerate(lists):
        lines += argument_array(interface, number, arguments)
    members = [member_info(interface, lists, member) for member in grid.members]
    lines += ["", *table("MemberInfo", "MemberTable", members)]
    events = [event_info(lists, event) for event in grid.events]
    lines += ["", *table("EventInfo", "EventTable", events)]
    lines += ["", "// What arguments that were left out are."]
    for member in grid.members:
        lines += default_array(member)
    codes = [member_code(interface, member) for member in grid.members]
    lines += ["", *table("MemberCode", "CodeTable", codes)]
    lines += FUNCTIONS
    return cpp.source(lines)


def table(element: str, name: str, elements: List[str]) -> List[str]:
    head = f"constexpr std::array<{element}, {len(elements)}> {name} {{ {{"
    return [head, *(f"    {each}," for each in elements), "} };"]


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


def argument_lists(owners: Sequence[Union[Member, Event]]) -> ArgumentLists:
    """Every list of arguments that occurs, once."""
    lists: ArgumentLists = []
    for each in owners:
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
    return f"{{ {cpp.joined(fields)} }}"


def event_info(lists: ArgumentLists, event: Event) -> str:
    fields = [cpp.string(event.name), str(event.number), arguments_name(lists, event.arguments)]
    return f"{{ {cpp.joined(fields)} }}"


def default_array(member: Member) -> List[str]:
    defaults = cpp.joined(default_value(text) for text in defaults_of(member))
    if not defaults:
        return []
    return [f"constexpr DefaultValue {member.name}Defaults[] = {{ {defaults} }};"]


def defaults_of(member: Member) -> List[str]:
    return [argument.default for argument in member.arguments if argument.default is not None]


def default_value(text: str) -> str:
    """A default, with the type that its spelling in the file has."""
    if text in ("True", "False"):
        return f"DefaultValue(std::in_place_type<bool>, {text.lower()})"
    if text.startswith('"'):
        return f"DefaultValue(std::in_place_type<std::u16string_view>, u{text})"
    return f"DefaultValue(std::in_place_type<i32>, {int(text)})"


def member_code(interface: Interface, member: Member) -> str:
    """One element of the table of code: what reads or calls, what writes, the defaults."""
    read = thunk(read_pointer(interface, member)) if reads(member) else "nullptr"
    write = thunk(write_pointer(interface, member)) if writes(member) else "nullptr"
    defaults = f"{member.name}Defaults" if defaults_of(member) else "{}"
    return f"{{ {read}, {write}, {defaults} }}"


def reads(member: Member) -> bool:
    return member.kind != "writeonly" and not member.pending_read


def writes(member: Member) -> bool:
    return member.is_writable and not member.pending_write


def thunk(member: str) -> str:
    return f"&Thunk<{member}>::Call"


def read_pointer(interface: Interface, member: Member) -> str:
    result = cpp.value_type(interface, member.result) if member.result else "void"
    kind = "Method" if member.is_method else "Getter"
    return pointer(result, parameter_types(interface, member), kind, member.name)


def write_pointer(interface: Interface, member: Member) -> str:
    value = cpp.parameter_type(interface, member.result or "")
    parameters = [*parameter_types(interface, member), value]
    return pointer("void", parameters, "Method", f"Set{member.name}")


def parameter_types(interface: Interface, member: Member) -> List[str]:
    return [cpp.argument_type(interface, argument) for argument in member.arguments]


def pointer(result: str, parameters: List[str], kind: str, name: str) -> str:
    """A pointer to a C++ member that has exactly this signature."""
    return f"Signature<{result}({cpp.joined(parameters)})>::{kind}(&Vornix::{name})"
