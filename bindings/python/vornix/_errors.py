"""The exception that every failed call raises."""

from typing import Optional, Tuple, Type

__all__ = ["AutomationError"]

INVALID_ARGUMENT = 5
OVERFLOW = 6
SUBSCRIPT_OUT_OF_RANGE = 9
TYPE_MISMATCH = 13
NO_SUCH_MEMBER = 438
NOT_SUPPORTED = 445

# The standard descriptions of the numbers that the package itself raises.
_DESCRIPTIONS = {
    INVALID_ARGUMENT: "Invalid procedure call or argument",
    OVERFLOW: "Overflow",
    SUBSCRIPT_OUT_OF_RANGE: "Subscript out of range",
    TYPE_MISMATCH: "Type mismatch",
    NO_SUCH_MEMBER: "Object doesn't support this property or method",
    NOT_SUPPORTED: "Object doesn't support this action",
}


class AutomationError(Exception):
    """A call that failed.

    number: 5 invalid argument (or a closed grid, or a call from another thread), 6 overflow,
        7 out of memory, 9 subscript out of range, 13 type mismatch, 53 no such file, 75 a file
        that cannot be written, 94 invalid use of null, 438 no such member, 445 not supported,
        448 no such named argument, 450 wrong number of arguments, 481 not a picture.
    description: the same in words.
    """

    number: int
    description: str

    def __init__(self, number: int, description: Optional[str] = None) -> None:
        self.number = number
        self.description = description or _DESCRIPTIONS.get(number) or "Automation error"
        super().__init__(self.number, self.description)

    def __str__(self) -> str:
        return f"{self.description} (error {self.number})"

    def __reduce__(self) -> Tuple[Type["AutomationError"], Tuple[int, str]]:
        return type(self), (self.number, self.description)


AutomationError.__module__ = "vornix"


class MissingMember(AutomationError, AttributeError):
    """Errors 438 and 445: what the control does not have, or not yet; hasattr tells so."""


def error_of(number: int, description: Optional[str] = None) -> AutomationError:
    """The exception of an error number."""
    kind = MissingMember if number in (NO_SUCH_MEMBER, NOT_SUPPORTED) else AutomationError
    return kind(number, description)
