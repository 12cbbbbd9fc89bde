"""Emits the table behind late binding: members and events, and the code that calls them.

A member's code is a thunk made from a pointer to the C++ member. The pointer is asked for with the
exact signature that the line of the member gives, so that a member which is missing or has other
arguments does not compile.
"""

from dataclasses import dataclass
from typing import List, Sequence, Tuple, Union

import cpp
from iface import Argument, ControlClass, Event, Interface, Member

_KINDS = {
    "property": "Property",
    "readonly": "ReadOnly",
    "writeonly": "WriteOnly",
    "method": "Method",
}


@dataclass(frozen=True)
class Target:
    """A control in C++: its class, the headers that declare it and its tables, and the functions
    that give the tables out."""

    owner: str
    headers: Tuple[str, ...]
    functions: Tuple[str, ...]


def giving_functions(members: str, events: str, find: str, codes: str, owner: str) -> Tuple[str, ...]:
    """The functions of these names that give the tables out."""
    gives = [
        (f"std::span<const MemberInfo> {members}()", "MemberTable"),
        (f"std::span<const EventInfo> {events}()", "EventTable"),
        (f"const MemberInfo* {find}(std::string_view name)", "MemberNames.Find(name, MemberTable)"),
        (f"std::span<const MemberCode<{owner}>> {codes}()", "CodeTable"),
    ]
    lines: List[str] = []
    for head, value in gives:
        lines += ["", head, "{", f"    return {value};", "}"]
    return tuple(lines[1:])


GRID = Target(
    "Vornix",
    ("vornix/members.h", "vornix/vornix.h"),
    giving_functions("Members", "Events", "FindMember", "MemberCodes", "Vornix"),
)


def emit(interface: Interface) -> str:
    return source_of(interface, interface.grid, GRID)


def source_of(interface: Interface, control: ControlClass, target: Target) -> str:
    """The source of the tables of one control."""
    headers = ["control/member_code.h", "control/member_thunks.h", "control/name_index.h"]
    lines = [
        *(f'#include "{header}"' for header in [*headers, *target.headers]),
        "",
        "#include <array>",
        "",
        "namespace vornix {",
        "",
        "namespace {",
        "",
        "// The arguments of members and events, one array for each list that occurs.",
    ]
    lists = argument_lists([*control.members, *control.events])
    for number, arguments in enumerate(lists):
        lines += argument_array(interface, number, arguments)
    members = [member_info(interface, lists, member) for member in control.members]
    lines += ["", *table("MemberInfo", "MemberTable", members)]
    events = [event_info(lists, event) for event in control.events]
    lines += ["", *table("EventInfo", "EventTable", events)]
    lines += ["", "// What arguments that were left out are."]
    for member in control.members:
        lines += default_array(member)
    codes = [member_code(interface, target.owner, member) for member in control.members]
    lines += ["", *table(f"MemberCode<{target.owner}>", "CodeTable", codes)]
    lines += [
        "",
        "constexpr NameIndex<MemberTable.size()> MemberNames(MemberTable);",
        "",
        "} // namespace",
        "",
        *target.functions,
        "",
        "} // namespace vornix",
    ]
    return cpp.source(lines)


def table(element: str, name: str, elements: List[str]) -> List[str]:
    head = f"constexpr std::array<{element}, {len(elements)}> {name} {{ {{"
    return [head, *(f"    {each}," for each in elements), "} };"]


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


def member_code(interface: Interface, owner: str, member: Member) -> str:
    """One element of the table of code: what reads or calls, what writes, the defaults."""
    read = write = "nullptr"
    if reads(member):
        read = thunk(owner, read_pointer(interface, owner, member))
    if writes(member):
        write = thunk(owner, write_pointer(interface, owner, member))
    defaults = f"{member.name}Defaults" if defaults_of(member) else "{}"
    return f"{{ {read}, {write}, {defaults} }}"


def reads(member: Member) -> bool:
    return member.kind != "writeonly" and not member.pending_read


def writes(member: Member) -> bool:
    return member.is_writable and not member.pending_write


def thunk(owner: str, member: str) -> str:
    return f"&Thunk<{owner}, {member}>::Call"


def read_pointer(interface: Interface, owner: str, member: Member) -> str:
    result = cpp.value_type(interface, member.result) if member.result else "void"
    kind = "Method" if member.is_method else "Getter"
    return pointer(owner, result, parameter_types(interface, member), kind, member.name)


def write_pointer(interface: Interface, owner: str, member: Member) -> str:
    value = cpp.parameter_type(interface, member.result or "")
    parameters = [*parameter_types(interface, member), value]
    return pointer(owner, "void", parameters, "Method", f"Set{member.name}")


def parameter_types(interface: Interface, member: Member) -> List[str]:
    return [cpp.argument_type(interface, argument) for argument in member.arguments]


def pointer(owner: str, result: str, parameters: List[str], kind: str, name: str) -> str:
    """A pointer to a C++ member that has exactly this signature."""
    function = f"{result}({cpp.joined(parameters)})"
    return f"Signature<{owner}, {function}>::{kind}(&{owner}::{name})"
