"""What there is once only."""

from typing import Any, NoReturn


class Unique:
    """An object that stands for one thing: it can be neither copied nor pickled."""

    __slots__ = ()

    def __reduce_ex__(self, protocol: Any) -> NoReturn:
        raise TypeError(f"objects of type {type(self).__name__} cannot be copied or pickled")
