"""The C library: its structures and functions, as vornix/vornix_c.h declares them."""

import ctypes
import os
from ctypes import (
    CDLL,
    CFUNCTYPE,
    POINTER,
    Structure,
    Union,
    c_char_p,
    c_double,
    c_float,
    c_int16,
    c_int32,
    c_int64,
    c_size_t,
    c_ssize_t,
    c_uint8,
    c_uint16,
    c_uint32,
    c_uint64,
    c_void_p,
)
from pathlib import Path
from typing import Any, List, Optional

from ._version import __version__

# The file's name, and the environment variable that names another one.
FILE_NAME = "libvornix.so.0"
VARIABLE = "VORNIX_LIBRARY"

EMPTY, NULL, I16, I32, I64, SINGLE, DOUBLE, CURRENCY, DECIMAL, DATE = range(10)
BOOLEAN, TEXT, MISSING, FONT, PICTURE, OBJECT, ARRAY = range(10, 17)

GET, LET, CALL = range(3)

# Declared types.
TYPE_COLOR = 6


class TextPointer(Union):
    # Written as bytes, which keeps them alive, and read as an address, because a text may hold zeros.
    _fields_ = [("data", c_char_p), ("address", c_void_p)]


class Text(Structure):
    _anonymous_ = ("pointer",)
    _fields_ = [("pointer", TextPointer), ("length", c_size_t)]


class Decimal(Structure):
    _fields_ = [("low", c_uint64), ("high", c_uint32), ("scale", c_uint8), ("negative", c_uint8)]


class Held(Union):
    _fields_ = [
        ("integer", c_int64),
        ("number", c_double),
        ("text", Text),
        ("decimal", Decimal),
        ("pointer", c_void_p),
    ]


class Value(Structure):
    _anonymous_ = ("held",)
    _fields_ = [("type", c_uint16), ("owned", c_uint16), ("reserved", c_uint32), ("held", Held)]


class ArgumentInfo(Structure):
    _fields_ = [
        ("name", c_char_p),
        ("type", c_int32),
        ("by_reference", c_int32),
        ("optional", c_int32),
    ]


class MemberInfo(Structure):
    _fields_ = [
        ("name", c_char_p),
        ("kind", c_int32),
        ("type", c_int32),
        ("read_pending", c_int32),
        ("write_pending", c_int32),
        ("description", c_char_p),
        ("arguments", POINTER(ArgumentInfo)),
        ("argument_count", c_size_t),
    ]


class BagEntry(Structure):
    _fields_ = [("name", c_char_p), ("value", Value)]


class Setting(Structure):
    _fields_ = [("application", Text), ("section", Text), ("key", Text), ("value", Text)]


SettingReader = CFUNCTYPE(c_int32, c_void_p, POINTER(Setting))
SettingWriter = CFUNCTYPE(None, c_void_p, POINTER(Setting))
EventCallback = CFUNCTYPE(None, c_void_p, c_void_p, c_int32, POINTER(Value), c_size_t)


class GridOptions(Structure):
    _fields_ = [
        ("size", c_size_t),
        ("width", c_int32),
        ("height", c_int32),
        ("scale", c_double),
        ("design", c_int32),
        ("hidden", c_int32),
        ("has_bag", c_int32),
        ("bag", POINTER(BagEntry)),
        ("bag_count", c_size_t),
        ("settings", POINTER(Setting)),
        ("setting_count", c_size_t),
        ("callback", c_void_p),
        ("user", c_void_p),
        ("get_setting", c_void_p),
        ("save_setting", c_void_p),
        ("settings_user", c_void_p),
    ]


class ScrollBarOptions(Structure):
    _fields_ = [
        ("size", c_size_t),
        ("orientation", c_int32),
        ("length", c_int32),
        ("has_bag", c_int32),
        ("bag", POINTER(BagEntry)),
        ("bag_count", c_size_t),
    ]


class TextBoxOptions(Structure):
    _fields_ = [
        ("size", c_size_t),
        ("width", c_int32),
        ("height", c_int32),
        ("has_bag", c_int32),
        ("bag", POINTER(BagEntry)),
        ("bag_count", c_size_t),
    ]


class TextBlock(Structure):
    _fields_ = [
        ("code_points", c_void_p),
        ("code_point_count", c_size_t),
        ("lengths", c_void_p),
        ("count", c_size_t),
        ("storage", c_void_p),
    ]


class FontInfo(Structure):
    _fields_ = [
        ("name", Text),
        ("size", c_double),
        ("bold", c_int32),
        ("italic", c_int32),
        ("underline", c_int32),
        ("strikethrough", c_int32),
        ("charset", c_int32),
    ]


class PictureInfo(Structure):
    _fields_ = [
        ("handle", c_int32),
        ("type", c_int32),
        ("width", c_int32),
        ("height", c_int32),
        ("pixel_width", c_int32),
        ("pixel_height", c_int32),
    ]


class BarInfo(Structure):
    _fields_ = [("min", c_int32), ("max", c_int32), ("page", c_int32), ("value", c_int32)]


class ComboInfo(Structure):
    _fields_ = [
        ("item_count", c_int32),
        ("list_index", c_int32),
        ("dropped_down", c_int32),
        ("list_only", c_int32),
    ]


class ChildInfo(Structure):
    _fields_ = [
        ("visible", c_int32),
        ("enabled", c_int32),
        ("left", c_int32),
        ("top", c_int32),
        ("width", c_int32),
        ("height", c_int32),
    ]


_handle = c_void_p
_values = POINTER(Value)
_i32_out = POINTER(c_int32)
_i16_out = POINTER(c_int16)
_size_out = POINTER(c_size_t)
_text_out = POINTER(Text)
_name_out = POINTER(c_char_p)
_place = [_handle, c_float, c_float, c_int16, c_int16]

# Functions that return a status, by their arguments.
_STATUS_FUNCTIONS = {
    "vornix_grid_create": [POINTER(GridOptions), POINTER(_handle)],
    "vornix_grid_destroy": [_handle],
    "vornix_set_event_callback": [_handle, c_void_p, c_void_p],
    "vornix_invoke": [_handle, c_char_p, c_int32, _values, c_size_t, _values],
    "vornix_invoke_named": [
        _handle,
        c_char_p,
        c_int32,
        _values,
        c_size_t,
        POINTER(c_char_p),
        c_size_t,
        _values,
    ],
    "vornix_invoke_member": [_handle, _handle, c_int32, _values, c_size_t, _values],
    "vornix_read_texts": [_handle, c_int16, c_int16, c_int16, c_int16, POINTER(TextBlock)],
    "vornix_array_create": [c_size_t, c_size_t, POINTER(_handle)],
    "vornix_array_set_texts": [_handle, c_size_t, c_char_p, c_size_t, c_void_p, c_size_t],
    "vornix_array_set_integers": [_handle, c_size_t, c_int32, c_void_p, c_size_t],
    "vornix_array_set_numbers": [_handle, c_size_t, c_int32, c_void_p, c_size_t],
    "vornix_array_set_values": [_handle, c_size_t, _values, c_size_t],
    "vornix_font_create": [POINTER(FontInfo), POINTER(_handle)],
    "vornix_font_describe": [_handle, POINTER(FontInfo)],
    "vornix_picture_from_rgba": [c_int32, c_int32, c_char_p, c_size_t, POINTER(_handle)],
    "vornix_picture_load": [c_char_p, POINTER(_handle)],
    "vornix_picture_describe": [_handle, POINTER(PictureInfo)],
    "vornix_surface_create": [c_int32, c_int32, c_double, POINTER(_handle)],
    "vornix_surface_hdc": [_handle, POINTER(c_ssize_t)],
    "vornix_surface_fill": [_handle, c_uint32],
    "vornix_surface_pixel": [_handle, c_int32, c_int32, POINTER(c_uint32)],
    "vornix_surface_save_png": [_handle, c_char_p],
    "vornix_scroll_bar_create": [POINTER(ScrollBarOptions), POINTER(_handle)],
    "vornix_scroll_bar_destroy": [_handle],
    "vornix_scroll_bar_set_callback": [_handle, c_void_p, c_void_p],
    "vornix_scroll_bar_invoke": [_handle, c_char_p, c_int32, _values, c_size_t, _values],
    "vornix_scroll_bar_notify": [_handle, c_int32, _i32_out],
    "vornix_scroll_bar_resize": [_handle, c_int32, c_int32],
    "vornix_scroll_bar_save": [_handle, POINTER(BagEntry), c_size_t, _size_out],
    "vornix_text_box_create": [POINTER(TextBoxOptions), POINTER(_handle)],
    "vornix_text_box_destroy": [_handle],
    "vornix_text_box_set_callback": [_handle, c_void_p, c_void_p],
    "vornix_text_box_invoke": [_handle, c_char_p, c_int32, _values, c_size_t, _values],
    "vornix_text_box_key_down": [_handle, _i16_out, c_int16],
    "vornix_text_box_key_press": [_handle, _i16_out, c_int16],
    "vornix_text_box_key_up": [_handle, _i16_out, c_int16],
    "vornix_text_box_type": [_handle, Text],
    "vornix_text_box_press": [_handle, c_char_p, c_int16],
    "vornix_text_box_press_code": [_handle, c_int16, c_int16],
    "vornix_text_box_paste": [_handle, Text],
    "vornix_text_box_resize": [_handle, c_int32, c_int32],
    "vornix_text_box_size": [_handle, _i32_out, _i32_out],
    "vornix_text_box_save": [_handle, POINTER(BagEntry), c_size_t, _size_out],
    "vornix_host_get_user_mode": [_handle, _i32_out],
    "vornix_host_set_user_mode": [_handle, c_int32],
    "vornix_host_resize": [_handle, c_int32, c_int32],
    "vornix_host_show": [_handle],
    "vornix_host_hide": [_handle],
    "vornix_host_paint": [_handle],
    "vornix_host_enter_focus": [_handle],
    "vornix_host_exit_focus": [_handle],
    "vornix_host_close": [_handle],
    "vornix_host_is_closed": [_handle, _i32_out],
    "vornix_host_mouse_down": _place,
    "vornix_host_mouse_move": _place,
    "vornix_host_mouse_up": _place,
    "vornix_host_click": [_handle],
    "vornix_host_dbl_click": [_handle],
    "vornix_host_wheel": [_handle, c_int32],
    "vornix_host_tick": [_handle],
    "vornix_host_key_down": [_handle, POINTER(c_int16), c_int16],
    "vornix_host_key_press": [_handle, POINTER(c_int16)],
    "vornix_host_key_up": [_handle, POINTER(c_int16), c_int16],
    "vornix_host_click_at": _place,
    "vornix_host_dbl_click_at": _place,
    "vornix_host_drag": [_handle, c_float, c_float, c_float, c_float, c_int16, c_int16, c_int32],
    "vornix_host_type": [_handle, Text],
    "vornix_host_press": [_handle, c_char_p, c_int16],
    "vornix_host_press_code": [_handle, c_int16, c_int16],
    "vornix_host_child": [_handle, c_char_p, POINTER(ChildInfo)],
    "vornix_host_bar": [_handle, c_char_p, POINTER(BarInfo)],
    "vornix_host_notify_bar": [_handle, c_char_p, c_int32, _i32_out],
    "vornix_host_get_editor_text": [_handle, c_char_p, _text_out],
    "vornix_host_set_editor_text": [_handle, c_char_p, Text],
    "vornix_host_get_editor_selection": [_handle, c_char_p, _i32_out, _i32_out],
    "vornix_host_set_editor_selection": [_handle, c_char_p, c_int32, c_int32],
    "vornix_host_editor_key_down": [_handle, c_char_p, _i16_out, c_int16],
    "vornix_host_editor_key_press": [_handle, c_char_p, _i16_out, c_int16],
    "vornix_host_editor_key_up": [_handle, c_char_p, _i16_out, c_int16],
    "vornix_host_combo": [_handle, c_char_p, POINTER(ComboInfo)],
    "vornix_host_combo_item": [_handle, c_char_p, c_int32, _text_out],
    "vornix_host_click_combo_item": [_handle, c_char_p, c_int32],
    "vornix_host_clear_log": [_handle],
    "vornix_host_log_count": [_handle, _size_out],
    "vornix_host_log_at": [_handle, c_size_t, _i32_out, _values, c_size_t, _size_out],
    "vornix_host_property_change_count": [_handle, _size_out],
    "vornix_host_property_change_at": [_handle, c_size_t, _name_out],
    "vornix_host_paint_counts": [_handle, _i32_out, _i32_out],
    "vornix_host_message_box_count": [_handle, _size_out],
    "vornix_host_message_box_at": [_handle, c_size_t, _text_out, _text_out, _name_out],
    "vornix_host_get_clipboard": [_handle, _text_out],
    "vornix_host_set_clipboard": [_handle, Text],
    "vornix_host_pointer_shape": [_handle, _name_out],
    "vornix_host_setting_count": [_handle, _size_out],
    "vornix_host_setting_at": [_handle, c_size_t, POINTER(Setting)],
    "vornix_host_save_setting": [_handle, POINTER(Setting)],
    "vornix_host_get_setting": [_handle, POINTER(Setting)],
    "vornix_host_pixel": [_handle, c_int32, c_int32, POINTER(c_uint32)],
    "vornix_host_image_size": [_handle, _i32_out, _i32_out],
    "vornix_host_image": [_handle, c_void_p, c_size_t],
    "vornix_host_save_png": [_handle, c_char_p],
}

# The others: their result and their arguments.
_OTHER_FUNCTIONS = {
    "vornix_version": (c_char_p, []),
    "vornix_last_error": (c_char_p, []),
    "vornix_value_clear": (None, [_values]),
    "vornix_find_member": (_handle, [c_char_p]),
    "vornix_describe_member": (POINTER(MemberInfo), [_handle]),
    "vornix_text_block_clear": (None, [POINTER(TextBlock)]),
    "vornix_array_release": (None, [_handle]),
    "vornix_font_release": (None, [_handle]),
    "vornix_picture_release": (None, [_handle]),
    "vornix_surface_destroy": (None, [_handle]),
}


def _candidates() -> List[str]:
    """Where the library may be. Only a path that is given must be right."""
    given = os.environ.get(VARIABLE)
    if given:
        return [given]
    beside = Path(__file__).with_name(FILE_NAME)
    return [str(beside)] if beside.exists() else [FILE_NAME]


def _open() -> Any:
    failures = []
    for name in _candidates():
        try:
            return CDLL(name)
        except OSError as error:
            failures.append(str(error))
    raise ImportError(
        f"vornix needs {FILE_NAME} beside the package or among the system's libraries, or its path in"
        f" the environment variable {VARIABLE}: {'; '.join(failures)}"
    )


def _declare(library: Any) -> Any:
    try:
        for name, arguments in _STATUS_FUNCTIONS.items():
            function = getattr(library, name)
            function.argtypes, function.restype = arguments, c_int32
        for name, (result, others) in _OTHER_FUNCTIONS.items():
            function = getattr(library, name)
            function.argtypes, function.restype = others, result
    except AttributeError as error:
        raise ImportError(f"vornix {__version__} cannot use {library._name}: {error}") from None
    version = library.vornix_version().decode()
    if version.split(".")[:2] != __version__.split(".")[:2]:
        raise ImportError(f"vornix {__version__} cannot use {library._name}, which is {version}")
    return library


library = _declare(_open())


def last_error() -> str:
    """What the latest failed call on this thread said."""
    message: Optional[bytes] = library.vornix_last_error()
    return message.decode("utf-8", "replace") if message else ""


def text_of(text: Text) -> str:
    """A text of the library."""
    if not text.length:
        return ""
    return ctypes.string_at(text.address, text.length * 2).decode("utf-16-le", "surrogatepass")


def make_text(value: str) -> Text:
    """A text for the library, which lives as long as the result."""
    data = value.encode("utf-16-le", "surrogatepass")
    text = Text()
    text.data = data
    text.length = len(data) // 2
    return text
