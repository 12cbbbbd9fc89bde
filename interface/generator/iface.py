"""Reads vornix.iface into plain records. The file's own head describes its form."""

import re
from dataclasses import dataclass, field
from pathlib import Path
from typing import Dict, FrozenSet, Iterable, List, NoReturn, Optional, Tuple, Union

# The types of the file besides its enums.
VALUE_TYPES = frozenset(
    "i16 i32 f32 bool text color hdc handle font picture object array variant".split()
)

# What members raise for reasons of their own.
ERROR_WORDS = {
    5: "invalid argument",
    6: "overflow",
    9: "subscript out of range",
    13: "type mismatch",
    94: "invalid use of null",
}


class IfaceError(Exception):
    """A line that the file's form does not allow."""


@dataclass(frozen=True)
class Argument:
    name: str
    type: str
    by_ref: bool = False
    # As written; None where the argument must be given.
    default: Optional[str] = None


@dataclass
class Example:
    """Lines of a session, as they are typed and answered."""

    lines: List[str] = field(default_factory=list)


@dataclass
class Member:
    kind: str
    name: str
    arguments: Tuple[Argument, ...]
    # None where nothing comes back.
    result: Optional[str]
    sentence: str
    errors: Tuple[int, ...] = ()
    raises: Tuple[str, ...] = ()
    # The name of the property whose change writing reports; empty for none.
    reports: str = ""
    pending_read: bool = False
    pending_write: bool = False
    example: Example = field(default_factory=Example)
    # Where it stands in the file, from 1.
    line: int = 0

    @property
    def is_method(self) -> bool:
        return self.kind == "method"

    @property
    def is_readable(self) -> bool:
        return self.kind in ("property", "readonly")

    @property
    def is_writable(self) -> bool:
        return self.kind in ("property", "writeonly")

    @property
    def is_pending(self) -> bool:
        """No part of the member is built."""
        return (self.pending_read or self.kind == "writeonly") and (
            self.pending_write or not self.is_writable
        )


@dataclass
class Event:
    number: int
    name: str
    arguments: Tuple[Argument, ...]
    sentence: str
    pending: bool = False
    line: int = 0


@dataclass
class Family:
    name: str
    title: str
    sentence: str
    members: List[Member] = field(default_factory=list)
    events: List[Event] = field(default_factory=list)


@dataclass
class ControlClass:
    name: str
    sentence: str
    families: List[Family] = field(default_factory=list)

    @property
    def members(self) -> List[Member]:
        return [member for family in self.families for member in family.members]

    @property
    def events(self) -> List[Event]:
        events = (event for family in self.families for event in family.events)
        return sorted(events, key=lambda event: event.number)


@dataclass
class Enum:
    name: str
    sentence: str
    values: List[Tuple[str, int]] = field(default_factory=list)


@dataclass
class Interface:
    classes: List[ControlClass] = field(default_factory=list)
    enums: List[Enum] = field(default_factory=list)

    def __getitem__(self, name: str) -> ControlClass:
        return next(each for each in self.classes if each.name == name)

    @property
    def grid(self) -> ControlClass:
        """The grid control itself."""
        return self["Vornix"]

    @property
    def enum_names(self) -> FrozenSet[str]:
        return frozenset(each.name for each in self.enums)

    @property
    def pending_count(self) -> int:
        """Lines of which at least a part is not built."""
        members = [member for each in self.classes for member in each.members]
        events = [event for each in self.classes for event in each.events]
        return sum(member.pending_read or member.pending_write for member in members) + sum(
            event.pending for event in events
        )


@dataclass
class _Marks:
    errors: Tuple[int, ...] = ()
    raises: Tuple[str, ...] = ()
    # The name that is reported; empty for the member's own.
    reports: Optional[str] = None
    pending: Optional[str] = None

    def over(self, family: "_Marks") -> "_Marks":
        """These marks, completed by those of the family."""
        return _Marks(
            self.errors or family.errors,
            self.raises or family.raises,
            self.reports if self.reports is not None else family.reports,
            self.pending if self.pending is not None else family.pending,
        )


_MARKS = r"(?:\s*\[(?P<marks>[^\]]*)\])?"
_CLASS = re.compile(r"class (?P<name>\w+): (?P<sentence>.+)$")
_FAMILY = re.compile(
    r'family (?P<name>\w+) "(?P<title>[^"]+)"' + _MARKS + r": (?P<sentence>.+)$"
)
_MEMBER = re.compile(
    r"(?P<kind>property|readonly|writeonly|method) (?P<name>\w+)\((?P<arguments>.*?)\)"
    r"(?: -> (?P<result>\w+))?" + _MARKS + r": (?P<sentence>.+)$"
)
_EVENT = re.compile(
    r"event (?P<number>\d+) (?P<name>\w+)\((?P<arguments>.*?)\)" + _MARKS + r": (?P<sentence>.+)$"
)
_ENUM = re.compile(r"enum (?P<name>\w+): (?P<sentence>.+)$")
_VALUE = re.compile(r"(?P<name>\w+) = (?P<value>-?\d+)$")
_ARGUMENT = re.compile(r"(?P<ref>ref )?(?P<name>\w+): (?P<type>\w+)(?: = (?P<default>.+))?$")
_DEFAULT = re.compile(r'True$|False$|-?\d+$|"[^"\\]*"$')


class _Reader:
    def __init__(self, path: Path) -> None:
        self.path = path
        self.number = 0
        self.interface = Interface()
        self.family_marks = _Marks()
        self.current: Optional[Member] = None

    def fail(self, what: str, line: Optional[int] = None) -> NoReturn:
        raise IfaceError(f"{self.path.name}:{line or self.number}: {what}")

    def read(self) -> Interface:
        for self.number, line in enumerate(self.path.read_text(encoding="utf-8").splitlines(), 1):
            if line.strip() and not line.startswith("#"):
                self.read_line(line)
        self.check()
        return self.interface

    def read_line(self, line: str) -> None:
        if line.startswith("    "):
            if self.current is None:
                self.fail("an example without a member")
            self.current.example.lines.append(line[4:])
            return
        self.current = None
        for pattern, action in (
            (_CLASS, self.add_class),
            (_FAMILY, self.add_family),
            (_MEMBER, self.add_member),
            (_EVENT, self.add_event),
            (_ENUM, self.add_enum),
            (_VALUE, self.add_value),
        ):
            match = pattern.match(line)
            if match:
                action(match.groupdict())
                return
        self.fail(f"cannot be read: {line}")

    def add_class(self, found: Dict[str, str]) -> None:
        self.interface.classes.append(ControlClass(found["name"], found["sentence"]))

    def add_family(self, found: Dict[str, str]) -> None:
        self.family_marks = self.marks(found["marks"])
        self.last_class().families.append(Family(found["name"], found["title"], found["sentence"]))

    def add_member(self, found: Dict[str, str]) -> None:
        kind = found["kind"]
        arguments = self.arguments(found["arguments"])
        if kind != "method":
            self.check_property(arguments, found["result"])
        own = self.marks(found["marks"])
        marks = own.over(self.family_marks)
        is_written = kind in ("property", "writeonly")
        if own.reports is not None and not is_written:
            self.fail(f"what is not written reports nothing: {found['name']}")
        member = Member(
            kind,
            found["name"],
            arguments,
            found["result"],
            found["sentence"],
            marks.errors,
            marks.raises,
            (marks.reports or found["name"]) if is_written and marks.reports is not None else "",
            pending_read=marks.pending == "all" and kind != "writeonly",
            pending_write=marks.pending in ("all", "write") and is_written,
            line=self.number,
        )
        self.last_family().members.append(member)
        self.current = member

    def add_event(self, found: Dict[str, str]) -> None:
        marks = self.marks(found["marks"]).over(self.family_marks)
        self.last_family().events.append(
            Event(
                int(found["number"]),
                found["name"],
                self.arguments(found["arguments"]),
                found["sentence"],
                marks.pending == "all",
                self.number,
            )
        )

    def add_enum(self, found: Dict[str, str]) -> None:
        self.interface.enums.append(Enum(found["name"], found["sentence"]))

    def add_value(self, found: Dict[str, str]) -> None:
        if not self.interface.enums:
            self.fail("a value without an enum")
        self.interface.enums[-1].values.append((found["name"], int(found["value"])))

    def last_class(self) -> ControlClass:
        if not self.interface.classes:
            self.fail("a line before the first class")
        return self.interface.classes[-1]

    def last_family(self) -> Family:
        families = self.last_class().families
        if not families:
            self.fail("a line before the first family")
        return families[-1]

    def arguments(self, text: str) -> Tuple[Argument, ...]:
        arguments = tuple(self.argument(part) for part in text.split(", ") if part)
        names = [argument.name.lower() for argument in arguments]
        if len(set(names)) < len(names):
            self.fail("an argument is there twice")
        for before, after in zip(arguments, arguments[1:]):
            if before.default is not None and after.default is None:
                self.fail(f"{after.name} must be given, so {before.name} cannot be left out")
        return arguments

    def argument(self, text: str) -> Argument:
        match = _ARGUMENT.match(text)
        if not match:
            self.fail(f"not an argument: {text}")
        found = match.groupdict()
        if found["default"] is not None and not _DEFAULT.match(found["default"]):
            self.fail(f"not a default: {found['default']}")
        return Argument(found["name"], found["type"], bool(found["ref"]), found["default"])

    def check_property(self, arguments: Tuple[Argument, ...], result: Optional[str]) -> None:
        """The value stands behind the arguments: all of them are there, and come in only."""
        if not result:
            self.fail("a property needs a type")
        for argument in arguments:
            if argument.by_ref or argument.default is not None:
                self.fail(f"an argument of a property is by reference or optional: {argument.name}")

    def marks(self, text: Optional[str]) -> _Marks:
        marks = _Marks()
        for mark in (text or "").split("; "):
            word, _, rest = mark.strip().partition(" ")
            if word == "errors":
                marks.errors = self.error_numbers(rest)
            elif word == "raises":
                marks.raises = tuple(rest.split())
            elif word == "reports":
                marks.reports = rest
            elif word == "pending" and rest in ("", "write"):
                marks.pending = rest or "all"
            elif word == "built":
                marks.pending = ""
            elif word:
                self.fail(f"unknown mark: {mark}")
        return marks

    def error_numbers(self, text: str) -> Tuple[int, ...]:
        for number in text.split():
            if not number.isdigit() or int(number) not in ERROR_WORDS:
                self.fail(f"not an error that a member raises: {number}")
        return tuple(int(number) for number in text.split())

    def check(self) -> None:
        """What no single line can show: types that exist, names and numbers that are there once."""
        types = VALUE_TYPES | self.interface.enum_names
        for each in self.interface.classes:
            self.check_once([(member.name.lower(), member) for member in each.members])
            self.check_once([(event.name.lower(), event) for event in each.events])
            self.check_once([(str(event.number), event) for event in each.events])
            events = {event.name for event in each.events}
            for member in each.members:
                self.check_types(types, member, [member.result] if member.result else [])
                for name in member.raises:
                    if name not in events:
                        self.fail(f"{member.name}: no event {name}", member.line)
            for event in each.events:
                self.check_types(types, event, [])
        values = [name for enum in self.interface.enums for name, _ in enum.values]
        for name in values:
            if values.count(name) > 1:
                raise IfaceError(f"{self.path.name}: the enums have {name} twice")

    def check_types(
        self, types: FrozenSet[str], where: Union[Member, Event], results: List[str]
    ) -> None:
        for name in [*(argument.type for argument in where.arguments), *results]:
            if name not in types:
                self.fail(f"{where.name}: no type {name}", where.line)

    def check_once(self, names: Iterable[Tuple[str, Union[Member, Event]]]) -> None:
        seen = set()
        for name, where in names:
            if name in seen:
                self.fail(f"{name} is there twice", where.line)
            seen.add(name)


def read(path: Path) -> Interface:
    """The interface in a file. Raises IfaceError, which names the line."""
    return _Reader(path).read()

