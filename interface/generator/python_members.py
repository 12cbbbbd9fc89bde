"""Emits the generated modules of the Python package, and the stubs of each:

    _constants    the constants of all enums
    _indexed      the properties with arguments, a class each
    _members      the members of the grid
    events        the events of the grid, a class each, and the methods that take handlers
    _text_box_members, text_box_events    the same of the text box
    __init__.pyi  the package as a type checker sees it
"""

import textwrap
from typing import Dict, Iterable, List, NamedTuple, Tuple

from iface import ERROR_WORDS, Argument, Event, Interface, Member
from reference_pages import TYPE_WORDS

CONTROL = "Vornix"

HEAD = "# Made from interface/vornix.iface; do not edit."

WIDTH = 96

PYTHON_TYPES = {
    "i16": "int",
    "i32": "int",
    "f32": "float",
    "bool": "bool",
    "text": "str",
    "color": "int",
    "hdc": "int",
    "handle": "int",
    "font": "_objects.Font",
    "picture": "Optional[_objects.Picture]",
    "object": "Any",
    "array": "Iterable[Iterable[Any]]",
    "variant": "Any",
}

# What an argument by reference starts with where it is left out.
STARTS = {"f32": "0.0", "bool": "False", "text": '""'}


class Control(NamedTuple):
    """A control with generated modules."""

    # In the interface, in messages, and in the names of the generated classes.
    name: str
    noun: str
    prefix: str
    # What stands for it in an example of a handler, and the example itself.
    example: Tuple[str, ...]


GRID = Control(
    CONTROL,
    "grid",
    "Grid",
    ('    @g.on("CellChange")', "    def refuse(e):", "        e.bCancel = True"),
)
TEXT_BOX = Control(
    "vxTextBox",
    "text box",
    "TextBox",
    ('    @box.on("KeyPress")', "    def capital(e):", "        e.KeyAscii = ord(chr(e.KeyAscii).upper())"),
)

# The types that a handler of an event can set.
SETTABLE = ("i16", "i32", "f32", "bool", "hdc")


def emit(interface: Interface) -> Dict[str, str]:
    """The modules and stubs by their file names."""
    return {
        "_constants.py": constants(interface, stub=False),
        "_constants.pyi": constants(interface, stub=True),
        "_indexed.py": indexed_module(interface, stub=False),
        "_indexed.pyi": indexed_module(interface, stub=True),
        "_members.py": members_module(interface, GRID, stub=False),
        "_members.pyi": members_module(interface, GRID, stub=True),
        "_text_box_members.py": members_module(interface, TEXT_BOX, stub=False),
        "_text_box_members.pyi": members_module(interface, TEXT_BOX, stub=True),
        "events.py": events_module(interface, GRID),
        "events.pyi": events_stub(interface, GRID),
        "text_box_events.py": events_module(interface, TEXT_BOX),
        "text_box_events.pyi": events_stub(interface, TEXT_BOX),
        "__init__.pyi": package_stub(interface),
    }


# -- Words --


def python_type(interface: Interface, name: str) -> str:
    return "int" if name in interface.enum_names else PYTHON_TYPES[name]


def index_type(interface: Interface, argument: Argument) -> str:
    """A text that picks a line may be its number as well."""
    return "Union[int, str]" if argument.type == "text" else python_type(interface, argument.type)


def type_words(interface: Interface, name: str) -> str:
    for enum in interface.enums:
        if enum.name == name:
            return f"{name}: " + ", ".join(value for value, _ in enum.values)
    return TYPE_WORDS[name]


def wrapped(text: str, indent: int = 0, hanging: int = 4) -> List[str]:
    return textwrap.wrap(
        text, WIDTH - 8, initial_indent=" " * indent, subsequent_indent=" " * (indent + hanging)
    )


def argument_words(interface: Interface, arguments: Iterable[Argument]) -> List[str]:
    lines: List[str] = []
    for argument in arguments:
        words = f"{argument.name}: {type_words(interface, argument.type)}"
        if argument.default is not None:
            words += f"; {argument.default} where it is left out"
        if argument.by_ref:
            words += "; comes back"
        lines += wrapped(words)
    return lines


def notes(member: Member) -> List[str]:
    words = []
    if member.errors:
        numbers = ", ".join(f"{number} ({ERROR_WORDS[number]})" for number in member.errors)
        words.append(f"Errors: {numbers}.")
    if member.raises:
        words.append(f"Raises the event {', '.join(member.raises)}.")
    if member.reports:
        words.append(f'Written, it reports PropertyChanged for "{member.reports}".')
    if member.kind == "readonly":
        words.append("Read only.")
    elif member.kind == "writeonly":
        words.append("Can be written only.")
    if member.is_pending:
        words.append("Not built yet: error 445.")
    elif member.pending_write:
        words.append("Writing is not built yet: error 445.")
    return wrapped(" ".join(words), hanging=0)


def example(member: Member) -> List[str]:
    return ["Example:", *(f"    {line}" for line in member.example.lines)] if member.example.lines else []


def docstring(indent: int, *blocks: List[str]) -> List[str]:
    """The lines of a docstring out of blocks, with an empty line between them."""
    full = [block for block in blocks if block]
    lines: List[str] = []
    for block in full:
        lines += ["", *block] if lines else block
    lines = [line.replace("\\", "\\\\").replace('"""', '\\"\\"\\"') for line in lines]
    margin = " " * indent
    if len(lines) == 1:
        return [f'{margin}"""{lines[0]}"""']
    return [
        f'{margin}"""{lines[0]}',
        *(f"{margin}{line}" if line else "" for line in lines[1:]),
        f'{margin}"""',
    ]


def body(indent: int, line: str, stub: bool) -> List[str]:
    """What follows a signature that ends in a colon: the line, or nothing in a stub."""
    return [] if stub else [" " * indent + line]


def signature(indent: int, head: str, parameters: List[str], result: str, stub: bool) -> List[str]:
    margin = " " * indent
    end = ": ..." if stub else ":"
    line = f"{margin}{head}({', '.join(parameters)}) -> {result}{end}"
    if len(line) <= 100:
        return [line]
    inner = f"{margin}    {', '.join(parameters)}"
    lines = [inner] if len(inner) <= 100 else [f"{margin}    {each}," for each in parameters]
    return [f"{margin}{head}(", *lines, f"{margin}) -> {result}{end}"]


def finished(lines: List[str]) -> str:
    return "\n".join(lines).rstrip("\n") + "\n"


# -- Constants --


def constants(interface: Interface, stub: bool) -> str:
    lines = [HEAD, ""] if stub else ['"""The constants of the interface."""', HEAD, ""]
    if stub:
        lines += ["from typing import Final", ""]
    names = [name for enum in interface.enums for name, _ in enum.values]
    lines += ["__all__ = [", *(f'    "{name}",' for name in names), "]"]
    for enum in interface.enums:
        lines += ["", f"# {enum.name}: {enum.sentence}"]
        final = ": Final" if stub else ""
        lines += [f"{name}{final} = {value}" for name, value in enum.values]
    return finished(lines)


# -- Members --


def is_indexed(member: Member) -> bool:
    return not member.is_method and bool(member.arguments)


def indexed_module(interface: Interface, stub: bool) -> str:
    lines = [
        *([] if stub else ['"""The properties with arguments: g.Text is a Text."""']),
        HEAD,
        "from typing import Any, Optional, Tuple, Union",
        "",
        "from . import _objects",
        "from ._calls import Indexed, WriteOnly",
    ]
    for member in interface[CONTROL].members:
        if is_indexed(member):
            lines += ["", "", *indexed_class(interface, member, stub)]
    return finished(lines)


def form(member: Member) -> str:
    return f"{member.name}[{', '.join(argument.name for argument in member.arguments)}]"


def indexed_class(interface: Interface, member: Member, stub: bool) -> List[str]:
    assert member.result is not None
    types = [index_type(interface, argument) for argument in member.arguments]
    index = types[0] if len(types) == 1 else f"Tuple[{', '.join(types)}]"
    value = python_type(interface, member.result)
    lines = [f"class {member.name}({'Indexed' if member.is_readable else 'WriteOnly'}):"]
    if not stub:
        lines += docstring(
            4,
            [form(member)],
            wrapped(member.sentence, hanging=0),
            [
                *argument_words(interface, member.arguments),
                *wrapped(f"Value: {type_words(interface, member.result)}"),
            ],
            notes(member),
            example(member),
        )
        lines += ["", "    __slots__ = ()"]
    if member.is_readable:
        lines += spaced(stub)
        lines += signature(4, "def __getitem__", ["self", f"index: {index}"], value, stub)
        lines += body(8, "return self._get(index)", stub)
    if member.is_writable:
        lines += spaced(stub)
        parameters = ["self", f"index: {index}", f"value: {value}"]
        lines += signature(4, "def __setitem__", parameters, "None", stub)
        lines += body(8, "self._let(index, value)", stub)
    if member.is_readable:
        names = [argument.name for argument in member.arguments]
        parameters = ["self", *map("{}: {}".format, names, types)]
        lines += spaced(stub)
        lines += signature(4, "def __call__", parameters, value, stub)
        arguments = f"{', '.join(names)}," if len(names) == 1 else ", ".join(names)
        lines += body(8, f"return self._get(({arguments}))", stub)
    return lines


def spaced(stub: bool) -> List[str]:
    return [] if stub else [""]


def members_module(interface: Interface, control: Control, stub: bool) -> str:
    has_indexed = any(map(is_indexed, interface[control.name].members))
    lines = [
        *([] if stub else [f'"""The members of the {control.noun}."""']),
        HEAD,
        "from typing import Any, Iterable, Optional, Tuple",
        "",
        f"from . import {'_indexed, ' if has_indexed else ''}_objects",
        f"from ._calls import {'IndexedMember, ' if has_indexed and not stub else ''}Members",
        "",
        "",
        f"class {control.prefix}Members(Members):",
    ]
    if not stub:
        words = f"Every property and method of the {control.noun}, each under its own name."
        lines += docstring(4, [words])
        lines += ["", "    __slots__ = ()"]
    for family in interface[control.name].families:
        if family.members:
            lines += ["", f"    # -- {family.title} --"]
            lines += spaced(stub)
        for place, member in enumerate(family.members):
            lines += spaced(stub) if place else []
            lines += member_lines(interface, member, stub)
    return finished(lines)


def member_lines(interface: Interface, member: Member, stub: bool) -> List[str]:
    if member.is_method:
        return method(interface, member, stub)
    if not is_indexed(member):
        return plain_property(interface, member, stub)
    if stub:
        return ["    @property", f"    def {member.name}(self) -> _indexed.{member.name}: ..."]
    return [f"    {member.name} = IndexedMember(_indexed.{member.name})"]


def plain_property(interface: Interface, member: Member, stub: bool) -> List[str]:
    assert member.result is not None
    value = python_type(interface, member.result)
    lines = ["    @property", *signature(4, f"def {member.name}", ["self"], value, stub)]
    if not stub:
        lines += docstring(
            8,
            wrapped(member.sentence, hanging=0),
            wrapped(f"Value: {type_words(interface, member.result)}"),
            notes(member),
            example(member),
        )
        lines += [f'        return self._get("{member.name}")']
    if member.is_writable:
        lines += spaced(stub)
        lines += [f"    @{member.name}.setter"]
        lines += signature(4, f"def {member.name}", ["self", f"value: {value}"], "None", stub)
        lines += body(8, f'self._let("{member.name}", value)', stub)
    return lines


def parameter(interface: Interface, argument: Argument) -> str:
    words = f"{argument.name}: {python_type(interface, argument.type)}"
    default = argument.default
    if argument.by_ref and default is None:
        default = STARTS.get(argument.type, "0")
    return words if default is None else f"{words} = {default}"


def returned(interface: Interface, member: Member) -> Dict[str, str]:
    """The types of what a method gives back, by names."""
    back = {"result": python_type(interface, member.result)} if member.result else {}
    for argument in member.arguments:
        if argument.by_ref:
            back[argument.name] = python_type(interface, argument.type)
    return back


def method(interface: Interface, member: Member, stub: bool) -> List[str]:
    back = returned(interface, member)
    result = "None"
    if len(back) == 1:
        result = next(iter(back.values()))
    elif back:
        result = f"Tuple[{', '.join(back.values())}]"
    parameters = ["self", *(parameter(interface, each) for each in member.arguments)]
    lines = signature(4, f"def {member.name}", parameters, result, stub)
    if stub:
        return lines
    gives = f"Gives back ({', '.join(back)})." if len(back) > 1 else ""
    if len(back) == 1 and not member.result:
        gives = f"Gives back {next(iter(back))}."
    lines += docstring(
        8,
        wrapped(member.sentence, hanging=0),
        argument_words(interface, member.arguments) + wrapped(gives),
        notes(member),
        example(member),
    )
    arguments = "".join(f", {argument.name}" for argument in member.arguments)
    keyword = "return " if back else ""
    call = f'        {keyword}self._call("{member.name}"{arguments})'
    if len(call) > 100:
        call = f'        {keyword}self._call(\n            "{member.name}"{arguments}\n        )'
    return lines + [call]


# -- Events --

ON_DOC = (
    "An exception out of a handler does not stop the {noun}, nor the handlers after it; the first one"
    " comes out of the call that was running, in place of its result. Error 438 for an event that the"
    " {noun} does not have."
)
OFF_DOC = (
    "Takes a handler away again: the one that was added first where it was added twice. One that is"
    " not there is nothing. Error 438 for an event that the {noun} does not have."
)


def on_doc(control: Control) -> List[str]:
    return [
        "Has a handler called with each event of a name, with an object whose attributes are the event's",
        "arguments; those by reference can be set. Handlers run in the order in which they were added.",
        "Without a handler, a decorator:",
        "",
        *control.example,
        "",
        *textwrap.wrap(ON_DOC.format(noun=control.noun), WIDTH),
    ]


def events_module(interface: Interface, control: Control) -> str:
    events = interface[control.name].events
    lines = [
        f'"""The events of the {control.noun}: what their handlers get, by the names of the events."""',
        HEAD,
        "from typing import Any, Dict, Literal, Sequence, Tuple, Type",
        "",
        "from ._event import Event",
        "from ._session import Connection",
        "",
        *event_names(events),
    ]
    for event in events:
        lines += ["", "", *event_class(interface, event)]
    lines += ["", "", "# By number, from 1 on."]
    lines += ["EVENTS: Sequence[Type[Event]] = ("]
    lines += [*(f"    {event.name}," for event in events), ")"]
    lines += ["", "", *registration(control)]
    return finished(lines)


def event_names(events: List[Event]) -> List[str]:
    return ["EventName = Literal[", *(f'    "{event.name}",' for event in events), "]"]


def event_class(interface: Interface, event: Event) -> List[str]:
    for argument in event.arguments:
        if argument.by_ref and argument.type not in SETTABLE:
            raise ValueError(f"{event.name}: {argument.name} cannot be set from Python")
    names = "".join(f'"{argument.name}", ' for argument in event.arguments)
    references = ", ".join(
        f'{place}: "{argument.type}"' for place, argument in enumerate(event.arguments) if argument.by_ref
    )
    notes = ["Not built yet: never raised."] if event.pending else []
    lines = [
        f"class {event.name}(Event):",
        *docstring(
            4,
            wrapped(event.sentence, hanging=0),
            event_arguments(interface, event),
            notes,
        ),
        "",
        "    __slots__ = ()",
        f"    _names: Tuple[str, ...] = ({names.rstrip() if len(event.arguments) == 1 else names[:-2]})",
        f"    _references: Dict[int, str] = {{{references}}}",
    ]
    for place, argument in enumerate(event.arguments):
        lines += ["", *event_argument(interface, place, argument)]
    return lines


def event_arguments(interface: Interface, event: Event) -> List[str]:
    lines: List[str] = []
    for argument in event.arguments:
        words = f"{argument.name}: {type_words(interface, argument.type)}"
        lines += wrapped(words + ("; can be set" if argument.by_ref else ""))
    return lines


def event_argument(interface: Interface, place: int, argument: Argument) -> List[str]:
    value = python_type(interface, argument.type)
    lines = [
        "    @property",
        f"    def {argument.name}(self) -> {value}:",
        f"        return self._values[{place}]",
    ]
    if argument.by_ref:
        lines += [
            "",
            f"    @{argument.name}.setter",
            f"    def {argument.name}(self, value: {value}) -> None:",
            f"        self._set({place}, value)",
        ]
    return lines


def registration(control: Control) -> List[str]:
    return [
        f"class {control.prefix}Events:",
        *docstring(4, ["The methods that take handlers of events."]),
        "",
        "    __slots__ = ()",
        "    _session: Connection",
        "",
        "    def on(self, name: str, handler: Any = None) -> Any:",
        *docstring(8, on_doc(control)),
        "        if handler is not None:",
        "            self._session.add_handler(name, handler)",
        "            return None",
        "        self._session.event_number(name)",
        "",
        "        def add(handler: Any) -> Any:",
        "            self._session.add_handler(name, handler)",
        "            return handler",
        "",
        "        return add",
        "",
        "    def off(self, name: str, handler: Any) -> None:",
        *docstring(8, textwrap.wrap(OFF_DOC.format(noun=control.noun), WIDTH)),
        "        self._session.remove_handler(name, handler)",
    ]


def events_stub(interface: Interface, control: Control) -> str:
    events = interface[control.name].events
    lines = [
        HEAD,
        "from typing import Any, Callable, Literal, Sequence, Type, TypeVar, overload",
        "",
        "from ._event import Event as Event",
        "",
        '_E = TypeVar("_E", bound=Event)',
        "_Handler = Callable[[_E], object]",
        "_Decorator = Callable[[_Handler[_E]], _Handler[_E]]",
        "",
        *event_names(events),
    ]
    for event in events:
        lines += ["", *event_stub(interface, event)]
    lines += ["", "EVENTS: Sequence[Type[Event]]", "", f"class {control.prefix}Events:"]
    for event in events:
        name, handler = f'name: Literal["{event.name}"]', f"_Handler[{event.name}]"
        lines += ["    @overload"]
        lines += signature(4, "def on", ["self", name, f"handler: {handler}"], "None", stub=True)
        lines += ["    @overload"]
        decorator = f"_Decorator[{event.name}]"
        lines += signature(4, "def on", ["self", name, "handler: None = None"], decorator, stub=True)
    any_name = ["self", "name: EventName", "handler: _Handler[Event]"]
    lines += ["    @overload", *signature(4, "def on", any_name, "None", stub=True)]
    any_name[-1] = "handler: Callable[[Any], object]"
    lines += signature(4, "def off", any_name, "None", stub=True)
    return finished(lines)


def event_stub(interface: Interface, event: Event) -> List[str]:
    lines = [f"class {event.name}(Event):" + ("" if event.arguments else " ...")]
    for argument in event.arguments:
        value = python_type(interface, argument.type)
        lines += ["    @property", f"    def {argument.name}(self) -> {value}: ..."]
        if argument.by_ref:
            lines += [
                f"    @{argument.name}.setter",
                f"    def {argument.name}(self, value: {value}) -> None: ...",
            ]
    return lines


# -- The package --

PACKAGE_NAMES = {
    "_errors": ["AutomationError"],
    "_grid": ["Grid"],
    "_objects": ["Font", "Picture", "Surface"],
    "_scroll_bar": ["ScrollBar"],
    "_text_box": ["TextBox"],
    "_version": ["__version__"],
}


def package_stub(interface: Interface) -> str:
    lines = [HEAD, "from . import events as events, host as host, text_box_events as text_box_events"]
    names = [name for enum in interface.enums for name, _ in enum.values]
    for module, exported in {"_constants": names, **PACKAGE_NAMES}.items():
        lines += [f"from .{module} import (", *(f"    {name} as {name}," for name in exported), ")"]
    public = [each for exported in PACKAGE_NAMES.values() for each in exported if each[0] != "_"]
    listed = sorted(["events", "host", "text_box_events", *public]) + names
    lines += ["", "__all__ = [", *(f'    "{name}",' for name in listed), "]"]
    return finished(lines)
