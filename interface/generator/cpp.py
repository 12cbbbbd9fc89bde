"""How the interface is spelled in C++; shared by the emitters of C++ sources."""

from typing import Iterable, List

from iface import Argument, Event, Interface

FIRST_LINE = "// Made from interface/vornix.iface; do not edit."

# The type of a value, as results and by-reference arguments have it.
_VALUES = {
    "i16": "i16",
    "i32": "i32",
    "f32": "float",
    "bool": "bool",
    "text": "std::u16string",
    "color": "OleColor",
    "hdc": "Hdc",
    "handle": "std::intptr_t",
    "font": "FontPtr",
    "picture": "PicturePtr",
    "object": "ObjectPtr",
    "array": "VariantArray",
    "variant": "Variant",
}

# Where an argument that comes in is spelled otherwise.
_PARAMETERS = {
    "text": "std::u16string_view",
    "font": "const FontPtr&",
    "picture": "const PicturePtr&",
    "object": "const ObjectPtr&",
    "array": "const VariantArray&",
    "variant": "const Variant&",
}

_DESCRIPTORS = {
    "i16": "I16",
    "i32": "I32",
    "f32": "Single",
    "bool": "Boolean",
    "text": "Text",
    "color": "Color",
    "hdc": "DeviceHandle",
    "handle": "WindowHandle",
    "font": "Font",
    "picture": "Picture",
    "object": "Object",
    "array": "Array",
    "variant": "Any",
}


def plain_type(interface: Interface, name: str) -> str:
    """The type of the file behind a name: an enum is a 32-bit integer."""
    return "i32" if name in interface.enum_names else name


def value_type(interface: Interface, name: str) -> str:
    """A type as results have it: `std::u16string` for text."""
    return _VALUES[plain_type(interface, name)]


def parameter_type(interface: Interface, name: str) -> str:
    """A type as arguments that only come in have it: `std::u16string_view` for text."""
    plain = plain_type(interface, name)
    return _PARAMETERS.get(plain, _VALUES[plain])


def argument_type(interface: Interface, argument: Argument) -> str:
    """The C++ type of a member's argument."""
    if argument.by_ref:
        return value_type(interface, argument.type) + "&"
    return parameter_type(interface, argument.type)


def default(argument: Argument) -> str:
    """The default of an argument that has one."""
    text = argument.default or ""
    if text in ("True", "False"):
        return text.lower()
    if text.startswith('"'):
        return f"u{text}"
    return "NoIndex" if text == "-32767" else text


def event_argument_type(interface: Interface, argument: Argument) -> str:
    """The C++ type of an event's argument; objects are what a drag carries."""
    if argument.type == "object":
        return "DataObject&"
    return argument_type(interface, argument)


def event_parameters(interface: Interface, event: Event) -> str:
    """The parameters of an event with their names."""
    arguments = event.arguments
    return joined(f"{event_argument_type(interface, each)} {each.name}" for each in arguments)


def descriptor(interface: Interface, name: str) -> str:
    """The ValueType of a type."""
    return f"ValueType::{_DESCRIPTORS[plain_type(interface, name)]}"


def string(text: str) -> str:
    """A string literal."""
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def boolean(value: bool) -> str:
    return "true" if value else "false"


def joined(parts: Iterable[str]) -> str:
    return ", ".join(parts)


def source(lines: List[str]) -> str:
    """The text of a file made of these lines, below the line that all of them begin with."""
    return "\n".join([FIRST_LINE, *lines]) + "\n"
