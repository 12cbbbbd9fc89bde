#!/usr/bin/env python3
"""Fails where the C++ headers and the interface file say different things about the controls.

    agreement.py IFACE vornix.h events.h types.h text_box.h scroll_bar.h

Members are compared in both directions: names, arguments with their types, by-reference marks and
defaults, results, and whether a reading member is const. So are the events in the order of their
numbers, and the enums.
"""

import re
import sys
from dataclasses import dataclass
from pathlib import Path
from typing import Dict, FrozenSet, Iterator, List, Optional, Tuple

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "interface" / "generator"))

import cpp  # noqa: E402
import iface  # noqa: E402


@dataclass(frozen=True)
class Described:
    """A control by its name in the interface, and by its classes in C++."""

    name: str
    owner: str
    events: str
    # What the class has besides the members: for the container, late binding, itself.
    others: FrozenSet[str]
    # Overloads beside the declaration that the interface describes.
    overloads: FrozenSet[str] = frozenset()


GRID = Described(
    "Vornix",
    "Vornix",
    "VornixEvents",
    frozenset(
        """
        Vornix ~Vornix operator= Enter
        InitProperties ReadProperties Resize Show Hide Paint EnterFocus ExitFocus Terminate
        IsTerminated IsInCall BackStore Repaints Refreshes ClearPaintCounters
        Invoke
        MouseDown MouseMove MouseUp Click DblClick KeyDown KeyPress KeyUp
        ScrollBarNotify MouseWheel MoveScrollBar Tick
        ChildMouseDown ChildMouseMove ChildMouseUp PaintChild EnterChildFocus
        """.split()
    ),
    frozenset(["void SpanRows(i16 Col, bool&& bUseKey = false)"]),
)

TEXT_BOX = Described(
    "vxTextBox",
    "TextBox",
    "TextBoxEvents",
    frozenset(
        """
        TextBox ~TextBox operator= Listener
        InitProperties ReadProperties WriteProperties Show EnterFocus FollowAmbient
        """.split()
    ),
)

SCROLL_BAR = Described(
    "vxScrollBar",
    "ScrollBar",
    "ScrollBarEvents",
    frozenset(
        """
        ScrollBar ~ScrollBar operator=
        InitProperties ReadProperties WriteProperties Show Hide IsShown Paint Notify
        """.split()
    ),
)


@dataclass(frozen=True)
class Parameter:
    type: str
    name: str
    default: Optional[str] = None

    def __str__(self) -> str:
        text = f"{self.type} {self.name}"
        return text if self.default is None else f"{text} = {self.default}"


@dataclass(frozen=True)
class Function:
    result: str
    name: str
    parameters: Tuple[Parameter, ...]
    is_const: bool = False

    def __str__(self) -> str:
        parameters = ", ".join(str(parameter) for parameter in self.parameters)
        return f"{self.result} {self.name}({parameters}){' const' if self.is_const else ''}".strip()


# -- What the headers say --

_FUNCTION = re.compile(
    r"(?:virtual\s+)?(?P<result>[\w:<>*& ]*?)\s*(?P<name>~?\w+|operator=)\s*"
    r"\((?P<parameters>[^()]*)\)\s*(?P<const>const)?\s*(?:noexcept)?\s*(?:= *\w+)?$"
)
_PARAMETER = re.compile(r"(?P<type>.+?[\s&*])(?P<name>\w+)(?:\s*=\s*(?P<default>.+))?$")


def without_comments(text: str) -> str:
    """The text without comments, but names of parameters that stand in them."""
    text = re.sub(r"/\*\s*(\w+)\s*\*/", r"\1", text)
    text = re.sub(r"/\*.*?\*/", " ", text, flags=re.DOTALL)
    return re.sub(r"//[^\n]*", " ", text)


def class_body(text: str, name: str) -> str:
    """What stands between the braces of a class."""
    match = re.search(rf"\bclass {name}\b[^;{{]*{{", text)
    if not match:
        raise ValueError(f"no class {name}")
    depth = 1
    for place in range(match.end(), len(text)):
        depth += {"{": 1, "}": -1}.get(text[place], 0)
        if depth == 0:
            return text[match.end() : place]
    raise ValueError(f"class {name} does not end")


def public_functions(header: str, name: str) -> List[Function]:
    """The public member functions that a class declares, in order. ValueError for what is none."""
    body = class_body(without_comments(header), name)
    # Bodies of functions end a declaration like a semicolon.
    body = re.sub(r"{[^{}]*}", ";", body)
    public: List[Function] = []
    is_public = False
    for part in re.split(r"(public:|private:|protected:|;)", body):
        if part in ("public:", "private:", "protected:"):
            is_public = part == "public:"
        elif is_public and part != ";" and part.strip():
            public.append(function(" ".join(part.split())))
    return public


def function(text: str) -> Function:
    match = _FUNCTION.match(text)
    if not match:
        raise ValueError(f"no function: {text}")
    parameters = tuple(parameter(part) for part in match["parameters"].split(", ") if part)
    return Function(match["result"], match["name"], parameters, bool(match["const"]))


def parameter(text: str) -> Parameter:
    match = _PARAMETER.match(text)
    if not match:
        return Parameter(text, "")
    return Parameter(match["type"].strip(), match["name"], plain_default(match["default"]))


def plain_default(text: Optional[str]) -> Optional[str]:
    """A default as the interface would write it: numbers by their value."""
    if text == "NoIndex":
        return "-32767"
    return str(int(text, 16)) if text and text.startswith("0x") else text


def enums(header: str) -> Dict[str, List[Tuple[str, int]]]:
    """The enums of a header whose values are all written out."""
    text = without_comments(header)
    found = {}
    for match in re.finditer(r"enum (\w+)\s*:\s*i32\s*{(.*?)}", text, flags=re.DOTALL):
        values = re.findall(r"(\w+)\s*=\s*(-?\d+)", match[2])
        found[match[1]] = [(name, int(value)) for name, value in values]
    return found


# -- What the interface says --


def member_functions(interface: iface.Interface, member: iface.Member) -> Iterator[Function]:
    """The C++ functions of a member, those that are pending left out."""
    parameters = tuple(member_parameter(interface, argument) for argument in member.arguments)
    if member.kind != "writeonly" and not member.pending_read:
        result = cpp.value_type(interface, member.result) if member.result else "void"
        yield Function(result, member.name, parameters, not member.is_method)
    if member.is_writable and not member.pending_write:
        value = Parameter(cpp.parameter_type(interface, member.result or ""), "Value")
        yield Function("void", f"Set{member.name}", (*parameters, value))


def member_parameter(interface: iface.Interface, argument: iface.Argument) -> Parameter:
    # A reference cannot have a default: the overload without the argument stands beside it.
    default = None if argument.by_ref else cpp_default(argument)
    return Parameter(cpp.argument_type(interface, argument), argument.name, default)


def cpp_default(argument: iface.Argument) -> Optional[str]:
    text = argument.default
    if text is None:
        return None
    if text in ("True", "False"):
        return text.lower()
    return f"u{text}" if text.startswith('"') else text


def event_function(interface: iface.Interface, event: iface.Event) -> Function:
    parameters = tuple(
        Parameter(cpp.event_argument_type(interface, argument), argument.name)
        for argument in event.arguments
    )
    return Function("void", event.name, parameters)


# -- Differences --


def as_method(declared: Function, expected: Function, member: iface.Member) -> Function:
    """A method may be const or not, so it is taken as it is declared."""
    if not member.is_method:
        return expected
    return Function(expected.result, expected.name, expected.parameters, declared.is_const)


def member_differences(
    interface: iface.Interface, header: str, described: Described = GRID
) -> Iterator[str]:
    control = interface[described.name]
    declared: Dict[str, List[Function]] = {}
    overloads = set(described.overloads)
    for each in public_functions(header, described.owner):
        if str(each) in overloads:
            overloads.remove(str(each))
        elif each.name not in described.others:
            declared.setdefault(each.name, []).append(each)
    yield from (f"not in the header: {each}" for each in sorted(overloads))
    for member in control.members:
        for expected in member_functions(interface, member):
            yield from function_differences(declared.pop(expected.name, []), expected, member)
    for name, functions in declared.items():
        state = "pending in" if name in pending_names(control) else "not in"
        yield from (f"{state} the interface: {each}" for each in functions)


def function_differences(
    declared: List[Function], expected: Function, member: iface.Member
) -> Iterator[str]:
    if not declared:
        yield f"not in the header: {expected}"
    for each in declared:
        wanted = as_method(each, expected, member)
        if each != wanted:
            yield f"the interface has {wanted}, the header {each}"
    for each in declared[1:]:
        yield f"an overload: {each}"


def pending_names(control: iface.ControlClass) -> List[str]:
    reading = [member.name for member in control.members if member.pending_read]
    return reading + [f"Set{each.name}" for each in control.members if each.pending_write]


def event_differences(
    interface: iface.Interface, header: str, described: Described = GRID
) -> Iterator[str]:
    control = interface[described.name]
    functions = public_functions(header, described.events)
    declared = [each for each in functions if each.name[0] != "~"]
    expected = [event_function(interface, event) for event in control.events]
    numbers = [event.number for event in control.events]
    if numbers != list(range(1, len(numbers) + 1)):
        yield "the numbers of the events have gaps"
    for place in range(max(len(declared), len(expected))):
        in_header = str(declared[place]) if place < len(declared) else "nothing"
        in_interface = str(expected[place]) if place < len(expected) else "nothing"
        if in_header != in_interface:
            yield f"event {place + 1}: the interface has {in_interface}, the header {in_header}"


def enum_differences(interface: iface.Interface, header: str) -> Iterator[str]:
    declared = enums(header)
    expected = {enum.name: enum.values for enum in interface.enums}
    for name in sorted({*declared, *expected}):
        if declared.get(name) != expected.get(name):
            yield f"{name}: the interface has {expected.get(name)}, the header {declared.get(name)}"


def main(arguments: List[str]) -> int:
    interface = iface.read(Path(arguments[0]))
    vornix, events, types, text_box, scroll_bar = (
        Path(name).read_text(encoding="utf-8") for name in arguments[1:6]
    )
    found = list(enum_differences(interface, types))
    for described, members_header, events_header in (
        (GRID, vornix, events),
        (TEXT_BOX, text_box, text_box),
        (SCROLL_BAR, scroll_bar, scroll_bar),
    ):
        found += member_differences(interface, members_header, described)
        found += event_differences(interface, events_header, described)
    for difference in found:
        print(difference, file=sys.stderr)
    if found:
        return 1
    for control in interface.classes:
        counts = f"{len(control.members)} members and {len(control.events)} events"
        print(f"{control.name}: {counts} agree")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
