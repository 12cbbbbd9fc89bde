"""Reads vornix.iface into plain records. The file's own head describes its form."""

import re
from dataclasses import dataclass, field
from pathlib import Path
from typing import Dict, Iterator, List, Optional, Tuple

# The types of the file besides its enums.
VALUE_TYPES = frozenset(
    "i16 i32 f32 bool text color hdc handle font picture object array variant".split()
)

KINDS = ("property", "readonly", "writeonly", "method")


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
    reports: bool = False
    pending_read: bool = False
    pending_write: bool = False
    example: Example = field(default_factory=Example)

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
        return sorted((event for family in self.families for event in family.events), key=lambda event: event.number)


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
    def enum_names(self) -> frozenset:
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
    reports: bool = False
    pending: Optional[str] = None

    def over(self, family: "_Marks") -> "_Marks":
        """These marks, completed by those of the family."""
        return _Marks(
            self.errors or family.errors,
            self.raises or family.raises,
            self.reports or family.reports,
            self.pending if self.pending is not None else family.pending,
        )


_MARKS = r"(?:\s*\[(?P<marks>[^\]]*)\])?"
_CLASS = re.compile(r"class (?P<name>\w+): (?P<sentence>.+)$")
_FAMILY = re.compile(r'family (?P<name>\w+) "(?P<title>[^"]+)"' + _MARKS + r": (?P<sentence>.+)$")
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


class _Reader:
    def __init__(self, path: Path) -> None:
        self.path = path
        self.number = 0
        self.interface = Interface()
        self.family_marks = _Marks()
        self.current: Optional[Member] = None

    def fail(self, what: str) -> None:
        raise IfaceError(f"{self.path.name}:{self.number}: {what}")

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
            else:
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
        marks = self.marks(found["marks"]).over(self.family_marks)
        kind = found["kind"]
        if kind != "method" and not found["result"]:
            self.fail("a property needs a type")
        member = Member(
            kind,
            found["name"],
            self.arguments(found["arguments"]),
            found["result"],
            found["sentence"],
            marks.errors,
            marks.raises,
            marks.reports,
            pending_read=marks.pending == "all" and kind != "writeonly",
            pending_write=marks.pending in ("all", "write") and kind in ("property", "writeonly"),
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
        return tuple(self.argument(part) for part in text.split(", ") if part)

    def argument(self, text: str) -> Argument:
        match = _ARGUMENT.match(text)
        if not match:
            self.fail(f"not an argument: {text}")
        found = match.groupdict()
        return Argument(found["name"], found["type"], bool(found["ref"]), found["default"])

    def marks(self, text: Optional[str]) -> _Marks:
        marks = _Marks()
        for mark in (text or "").split("; "):
            word, _, rest = mark.strip().partition(" ")
            if word == "errors":
                marks.errors = tuple(int(number) for number in rest.split())
            elif word == "raises":
                marks.raises = tuple(rest.split())
            elif word == "reports":
                marks.reports = True
            elif word == "pending" and rest in ("", "write"):
                marks.pending = rest or "all"
            elif word == "built":
                marks.pending = ""
            elif word:
                self.fail(f"unknown mark: {mark}")
        return marks

    def check(self) -> None:
        """What no single line can show: types that exist, names and numbers that are there once."""
        types = VALUE_TYPES | self.interface.enum_names
        for each in self.interface.classes:
            self.check_once(each.name, [member.name.lower() for member in each.members])
            self.check_once(each.name, [event.name for event in each.events])
            self.check_once(each.name, [str(event.number) for event in each.events])
            for where, arguments, result in self.signatures(each):
                for name in [argument.type for argument in arguments] + ([result] if result else []):
                    if name not in types:
                        raise IfaceError(f"{self.path.name}: {where}: no type {name}")
                self.check_once(where, [argument.name.lower() for argument in arguments])
        self.check_once("the enums", [name for enum in self.interface.enums for name, _ in enum.values])

    @staticmethod
    def signatures(each: ControlClass) -> Iterator[Tuple[str, Tuple[Argument, ...], Optional[str]]]:
        for member in each.members:
            yield f"{each.name}.{member.name}", member.arguments, member.result
        for event in each.events:
            yield f"{each.name}.{event.name}", event.arguments, None

    def check_once(self, where: str, names: List[str]) -> None:
        twice = sorted({name for name in names if names.count(name) > 1})
        if twice:
            raise IfaceError(f"{self.path.name}: {where}: twice {', '.join(twice)}")


def read(path: Path) -> Interface:
    """The interface in a file. Raises IfaceError, which names the line."""
    return _Reader(path).read()

