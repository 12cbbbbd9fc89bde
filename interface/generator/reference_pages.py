"""The reference pages: one Markdown page a family, and an index."""

from typing import Dict, List

import cpp
from iface import ERROR_WORDS, Argument, ControlClass, Event, Family, Interface, Member

# What a member is declared as, in the words of each language.
TYPE_WORDS = {
    "i16": "integer, 16 bits",
    "i32": "integer, 32 bits",
    "f32": "float",
    "bool": "boolean",
    "text": "text",
    "color": "colour",
    "hdc": "device number",
    "handle": "window handle",
    "font": "font",
    "picture": "picture",
    "object": "object",
    "array": "array",
    "variant": "any value",
}

# What the object of a class is called in the spellings.
VARIABLES = {"Vornix": "g", "vxTextBox": "box", "vxScrollBar": "bar"}

EXAMPLE_START = """\
>>> import vornix
>>> g = vornix.Grid(320, 240)
>>> g.Cols, g.Rows, g.FixedCols, g.FixedRows = 3, 4, 1, 1"""

INDEX_HEAD = f"""\
# Reference

Every property, method and event, a page for each family. These pages are made from `interface/vornix.iface`.

Rows and columns are public indices: 0 is the first that is not fixed, fixed ones count -1, -2, ... outward, and `Rows`
and `Cols` themselves address the filler row and column behind the last ones. Sizes are logical pixels, colours
`0x00BBGGRR`, or `0x80000000` and the index of a system colour.

## Errors

Any call can fail with

| number | when |
|---|---|
| 5 | the control is closed, or is called from another thread than its own |
| 6 | an integer does not fit its declared width |
| 7 | memory runs out |
| 13 | a value cannot be converted to the declared type |
| 94 | null where a value is needed |
| 438 | there is no such member, or it cannot be read, written or called that way |
| 445 | the member is not built yet; its entry says so |
| 448 | there is no argument of that name |
| 450 | too few or too many arguments |

The entries name the numbers that a member raises for reasons of its own: 6 for an index whose sum with the fixed lines
leaves 16 bits, 9 for an index outside the table. Whatever lays out anew raises 6 when fixed sizes add up to more than 16
bits of pixels.

## Events

The entries name the events that a member raises for reasons of its own. Beyond that, whatever repaints raises DrawCell
for the cells that ask for it, and whatever lays out anew closes an editor, with AfterEdit.

## Examples

The examples are Python. Each starts with

```python
{EXAMPLE_START}
```

## Pages
"""


def signature(name: str, arguments: List[str]) -> str:
    return f"{name}({', '.join(arguments)})"


def type_words(interface: Interface, name: str) -> str:
    if name in interface.enum_names:
        return f"[`{name}`](constants.md#{name.lower()})"
    return TYPE_WORDS[name]


def cpp_argument(interface: Interface, argument: Argument) -> str:
    default = f" = {cpp.default(argument)}" if argument.default is not None else ""
    return f"{cpp.argument_type(interface, argument)} {argument.name}{default}"


def cpp_spellings(interface: Interface, member: Member) -> List[str]:
    arguments = [cpp_argument(interface, argument) for argument in member.arguments]
    result = cpp.value_type(interface, member.result) if member.result else "void"
    lines = []
    if member.is_method or member.is_readable:
        lines.append(f"{result} {signature(member.name, arguments)}")
    if member.is_writable and member.result:
        value = cpp.parameter_type(interface, member.result)
        lines.append(f"void {signature('Set' + member.name, arguments + [f'{value} Value'])}")
    return lines


def python_spellings(member: Member, variable: str) -> List[str]:
    names = [argument.name for argument in member.arguments]
    if member.is_method:
        back = (["result"] if member.result else []) + [
            argument.name for argument in member.arguments if argument.by_ref
        ]
        arguments = [name_with_default(argument) for argument in member.arguments]
        call = f"{variable}.{signature(member.name, arguments)}"
        return [f"{', '.join(back)} = {call}" if back else call]
    place = f"{variable}.{member.name}" + (f"[{', '.join(names)}]" if names else "")
    lines = [place] if member.is_readable else []
    if member.is_writable:
        lines.append(f"{place} = value")
    return lines


def name_with_default(argument: Argument) -> str:
    if argument.by_ref and argument.default is None:
        return f"{argument.name}=..."
    return argument.name if argument.default is None else f"{argument.name}={argument.default}"


def kind_words(interface: Interface, member: Member) -> str:
    words = {
        "property": "Property",
        "readonly": "Property, read only",
        "writeonly": "Property, write only",
        "method": "Method",
    }[member.kind]
    return f"{words}: {type_words(interface, member.result)}" if member.result else words


def argument_table(interface: Interface, arguments: List[Argument]) -> List[str]:
    if not arguments:
        return []
    lines = ["| argument | type | default | comes back |", "|---|---|---|---|"]
    for argument in arguments:
        default = f"`{argument.default}`" if argument.default is not None else ""
        back = "yes" if argument.by_ref else ""
        lines.append(f"| `{argument.name}` | {type_words(interface, argument.type)} | {default} | {back} |")
    return lines + [""]


def notes(member: Member, event_pages: Dict[str, str]) -> List[str]:
    lines = []
    if member.errors:
        lines.append("Errors: " + ", ".join(f"{each} ({ERROR_WORDS[each]})" for each in member.errors) + ".")
    if member.raises:
        links = [f"[{name}]({event_pages[name]}.md#{name.lower()})" for name in member.raises]
        lines.append(f"Raises: {', '.join(links)}.")
    if member.reports:
        lines.append(f'Written, it reports PropertyChanged for "{member.reports}".')
    if member.is_pending:
        lines.append("**Not built yet**: every call is error 445.")
    elif member.pending_write:
        lines.append("**Writing is not built yet**: error 445.")
    return [line for each in lines for line in (each, "")]


def member_entry(
    interface: Interface, member: Member, variable: str, event_pages: Dict[str, str]
) -> List[str]:
    lines = [f"## {member.name}", "", f"{kind_words(interface, member)}. {member.sentence}", ""]
    lines += ["```cpp", *cpp_spellings(interface, member), "```", ""]
    lines += ["```python", *python_spellings(member, variable), "```", ""]
    lines += argument_table(interface, list(member.arguments))
    lines += notes(member, event_pages)
    if member.example.lines:
        lines += ["Example:", "", "```python", *member.example.lines, "```", ""]
    return lines


def event_entry(interface: Interface, event: Event) -> List[str]:
    lines = [f"## {event.name}", "", f"Event {event.number}. {event.sentence}", ""]
    lines += ["```cpp", f"void {event.name}({cpp.event_parameters(interface, event)})", "```", ""]
    lines += argument_table(interface, list(event.arguments))
    return lines + (["**Not built yet**: it is never raised.", ""] if event.pending else [])


def pages_of_events(control: ControlClass) -> Dict[str, str]:
    """The page of each event of a control."""
    return {event.name: family.name for family in control.families for event in family.events}


def family_page(interface: Interface, control: ControlClass, family: Family) -> str:
    lines = [f"# {family.title}", "", family.sentence, ""]
    for member in family.members:
        lines += member_entry(interface, member, VARIABLES[control.name], pages_of_events(control))
    for event in family.events:
        lines += event_entry(interface, event)
    return "\n".join(lines).rstrip() + "\n"


def index_entries(each: ControlClass) -> List[str]:
    lines = [f"### {each.name}", "", each.sentence, ""]
    for family in each.families:
        names = ", ".join(f"`{entry.name}`" for entry in [*family.members, *family.events])
        lines.append(f"- [{family.title}]({family.name}.md): {names}")
    return lines + [""]


def enum_page(interface: Interface) -> str:
    lines = ["# Constants", ""]
    for enum in interface.enums:
        lines += [f"## {enum.name}", "", enum.sentence, "", "| name | value |", "|---|---|"]
        lines += [f"| `{name}` | {value} |" for name, value in enum.values]
        lines.append("")
    return "\n".join(lines).rstrip() + "\n"


def emit(interface: Interface) -> Dict[str, str]:
    """The pages by their file names."""
    pages = {
        f"{family.name}.md": family_page(interface, each, family)
        for each in interface.classes
        for family in each.families
    }
    pages["constants.md"] = enum_page(interface)
    index = [INDEX_HEAD]
    for each in interface.classes:
        index += index_entries(each)
    index += ["[Constants](constants.md) of all enums.", ""]
    pages["index.md"] = "\n".join(index)
    return pages
