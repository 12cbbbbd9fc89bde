"""What is handed to a grid besides plain values: fonts, pictures, and surfaces to draw on."""

import ctypes
import os
import weakref
from typing import Any, Optional, Tuple, Union

from . import _library
from ._checks import check, path_bytes, to_bool, to_color, to_float, to_i32, to_text
from ._errors import INVALID_ARGUMENT, TYPE_MISMATCH, AutomationError
from ._identity import Unique
from ._library import library, make_text, text_of

__all__ = ["Font", "Picture", "Surface"]

_PICTURE_TYPES = {0: "none", 1: "bitmap", 3: "icon"}


class Font:
    """A font: a name, a size in points, and how it is drawn. It never changes once made."""

    __slots__ = (
        "_name",
        "_size",
        "_bold",
        "_italic",
        "_underline",
        "_strikethrough",
        "_charset",
        "_pointer",
        "__weakref__",
    )

    def __init__(
        self,
        Name: str = "DejaVu Sans",
        Size: float = 9.0,
        Bold: bool = False,
        Italic: bool = False,
        Underline: bool = False,
        Strikethrough: bool = False,
        Charset: int = 1,
    ) -> None:
        self._name = to_text(Name)
        self._size = to_float(Size)
        self._bold = to_bool(Bold)
        self._italic = to_bool(Italic)
        self._underline = to_bool(Underline)
        self._strikethrough = to_bool(Strikethrough)
        self._charset = to_i32(Charset)
        self._pointer: Optional[int] = None
        self._native()

    @classmethod
    def _from_native(cls, pointer: int) -> "Font":
        """The font of a pointer, which belongs to it from here on."""
        info = _library.FontInfo()
        font = cls.__new__(cls)
        font._own(pointer)
        check(library.vornix_font_describe(pointer, ctypes.byref(info)))
        font._name = text_of(info.name)
        font._size = info.size
        font._bold = info.bold != 0
        font._italic = info.italic != 0
        font._underline = info.underline != 0
        font._strikethrough = info.strikethrough != 0
        font._charset = info.charset
        return font

    def _own(self, pointer: int) -> None:
        self._pointer = pointer
        weakref.finalize(self, library.vornix_font_release, pointer).atexit = False

    def _native(self) -> int:
        """The library's font, made at the first use."""
        if self._pointer is None:
            info = _library.FontInfo(
                name=make_text(self._name),
                size=self._size,
                bold=self._bold,
                italic=self._italic,
                underline=self._underline,
                strikethrough=self._strikethrough,
                charset=self._charset,
            )
            pointer = ctypes.c_void_p()
            check(library.vornix_font_create(ctypes.byref(info), ctypes.byref(pointer)))
            assert pointer.value is not None
            self._own(pointer.value)
        assert self._pointer is not None
        return self._pointer

    @property
    def Name(self) -> str:
        """The name of the font's family."""
        return self._name

    @property
    def Size(self) -> float:
        """The size in points."""
        return self._size

    @property
    def Bold(self) -> bool:
        """Whether the text is bold."""
        return self._bold

    @property
    def Italic(self) -> bool:
        """Whether the text is italic."""
        return self._italic

    @property
    def Underline(self) -> bool:
        """Whether the text is underlined."""
        return self._underline

    @property
    def Strikethrough(self) -> bool:
        """Whether the text is struck through."""
        return self._strikethrough

    @property
    def Charset(self) -> int:
        """The number of the character set; 1 is the default one."""
        return self._charset

    def _values(self) -> Tuple[str, float, bool, bool, bool, bool, int]:
        return (
            self._name,
            self._size,
            self._bold,
            self._italic,
            self._underline,
            self._strikethrough,
            self._charset,
        )

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Font):
            return NotImplemented
        return self._values() == other._values()

    def __hash__(self) -> int:
        return hash(self._values())

    def __reduce__(self) -> Tuple[Any, ...]:
        return type(self), self._values()

    def __repr__(self) -> str:
        size = int(self._size) if self._size.is_integer() else self._size
        parts = [f"Name={self._name!r}", f"Size={size}"]
        for name in ("Bold", "Italic", "Underline", "Strikethrough"):
            if getattr(self, name):
                parts.append(f"{name}=True")
        if self._charset != 1:
            parts.append(f"Charset={self._charset}")
        return f"vornix.Font({', '.join(parts)})"


class Picture:
    """A picture out of a PNG file, or out of pixels. It never changes once made.

    Errors: 53 where there is no such file, 481 where it is not a picture.
    """

    __slots__ = ("_pointer", "_info", "__weakref__")

    def __init__(self, path: Union[str, "os.PathLike[str]"]) -> None:
        pointer = ctypes.c_void_p()
        check(library.vornix_picture_load(path_bytes(path), ctypes.byref(pointer)))
        assert pointer.value is not None
        self._own(pointer.value)

    @classmethod
    def from_rgba(
        cls, width: int, height: int, data: "Union[bytes, bytearray, memoryview]"
    ) -> "Picture":
        """A picture of pixels: red, green, blue and opacity, a byte each, rows from the top."""
        try:
            pixels = memoryview(data).tobytes()
        except TypeError:
            kind = type(data).__name__
            raise AutomationError(TYPE_MISMATCH, f"Pixels are bytes, not a {kind}") from None
        size = to_i32(width), to_i32(height)
        if min(size) < 1 or len(pixels) != size[0] * size[1] * 4:
            raise AutomationError(
                INVALID_ARGUMENT, f"{width} x {height} pixels are not {len(pixels)} bytes of RGBA"
            )
        pointer = ctypes.c_void_p()
        check(library.vornix_picture_from_rgba(*size, pixels, len(pixels), ctypes.byref(pointer)))
        assert pointer.value is not None
        return cls._from_native(pointer.value)

    @classmethod
    def _from_native(cls, pointer: int) -> "Picture":
        """The picture of a pointer, which belongs to it from here on."""
        picture = cls.__new__(cls)
        picture._own(pointer)
        return picture

    def _own(self, pointer: int) -> None:
        self._pointer = pointer
        weakref.finalize(self, library.vornix_picture_release, pointer).atexit = False
        self._info = _library.PictureInfo()
        check(library.vornix_picture_describe(pointer, ctypes.byref(self._info)))

    @property
    def Handle(self) -> int:
        """The picture's number; 0 for an empty one."""
        return int(self._info.handle)

    @property
    def Width(self) -> int:
        """The width in HiMetric, hundredths of a millimetre."""
        return int(self._info.width)

    @property
    def Height(self) -> int:
        """The height in HiMetric, hundredths of a millimetre."""
        return int(self._info.height)

    @property
    def Type(self) -> int:
        """0 none, 1 bitmap, 3 icon."""
        return int(self._info.type)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Picture):
            return NotImplemented
        return self.Handle == other.Handle

    def __hash__(self) -> int:
        return hash(self.Handle)

    def __copy__(self) -> "Picture":
        return self

    def __deepcopy__(self, memo: Any) -> "Picture":
        return self

    def __reduce_ex__(self, protocol: Any) -> Any:
        raise TypeError("a Picture cannot be pickled")

    def __repr__(self) -> str:
        kind = _PICTURE_TYPES.get(self.Type, "picture")
        width, height = self._info.pixel_width, self._info.pixel_height
        return f"<vornix.Picture {self.Handle}: {kind} of {width} x {height} pixels>"


class Surface(Unique):
    """A device to draw on, white at first: what arguments named PictureHdc or PrinterHdc take.

    width, height: in logical pixels; scale: device pixels for each of them, 1 to 4.
    """

    __slots__ = ("_pointer", "_width", "_height", "__weakref__")

    def __init__(self, width: int, height: int, *, scale: float = 1.0) -> None:
        self._width, self._height = to_i32(width), to_i32(height)
        pointer = ctypes.c_void_p()
        create = library.vornix_surface_create
        check(create(self._width, self._height, to_float(scale), ctypes.byref(pointer)))
        assert pointer.value is not None
        self._pointer = pointer.value
        weakref.finalize(self, library.vornix_surface_destroy, self._pointer).atexit = False

    @property
    def hdc(self) -> int:
        """The number of the device."""
        number = ctypes.c_ssize_t()
        check(library.vornix_surface_hdc(self._pointer, ctypes.byref(number)))
        return number.value

    def fill(self, color: int) -> None:
        """Fills all of it with a colour: 0x00BBGGRR, or 0x80000000 and the index of one of the
        container's system colours."""
        check(library.vornix_surface_fill(self._pointer, to_color(color)))

    def pixel(self, x: int, y: int) -> int:
        """The colour of a pixel, 0x00BBGGRR; 0xFFFFFFFF outside."""
        color = ctypes.c_uint32()
        call = library.vornix_surface_pixel
        check(call(self._pointer, to_i32(x), to_i32(y), ctypes.byref(color)))
        return color.value

    def save_png(self, path: Union[str, "os.PathLike[str]"]) -> None:
        """Writes a PNG file. Error 75 where it cannot be written."""
        check(library.vornix_surface_save_png(self._pointer, path_bytes(path)))

    def __repr__(self) -> str:
        return f"<vornix.Surface of {self._width} x {self._height} pixels>"


class ForeignObject(Unique):
    """An object of the environment that passes through unseen."""

    __slots__ = ("_pointer", "_kept", "__weakref__")

    def __init__(self, pointer: int, kept: _library.Value) -> None:
        self._pointer: Optional[int] = pointer
        self._kept = kept
        if kept.owned:
            release = weakref.finalize(self, library.vornix_value_clear, ctypes.byref(kept))
            release.atexit = False

    def _end_event(self) -> None:
        """The event is over whose argument this was; an object of its own stays."""
        if not self._kept.owned:
            self._pointer = None

    def __repr__(self) -> str:
        return "<object of the environment>"


for _public in (Font, Picture, Surface):
    _public.__module__ = "vornix"
