"""The container without a screen that every grid lives in."""

import ctypes
import os
from typing import Any, Dict, List, NoReturn, Optional, Tuple, Union

from . import _library
from ._checks import (
    character_code,
    path_bytes,
    to_bool,
    to_i16,
    to_i32,
    to_name,
    to_place,
    to_text,
)
from ._errors import NOT_SUPPORTED, error_of
from ._identity import Unique
from ._library import library, make_text, text_of
from ._session import Session, Settings

__all__ = ["Child", "Host"]

PathLike = Union[str, "os.PathLike[str]"]

_CHILD_NAMES = "scrV scrH txtTmp cboTmp fraEdit cPivot picSplitCol picSplitMove"
_CHILDREN = {name.lower(): name for name in _CHILD_NAMES.split()}


def _not_built(what: str) -> NoReturn:
    raise error_of(NOT_SUPPORTED, f"{what} is not built yet")


class Host(Unique):
    """What a form and a person do to the control, and what the control says and shows.

    Places are pixels of the client area. Buttons are 1 left, 2 right, 4 middle; shift is a sum of
    1 Shift, 2 Ctrl and 4 Alt. What a person does reaches the window on top, and nothing while the
    control is not shown: a bar scrolls by its arrows, its trough and its thumb, the handle of the
    split is dragged. Single notifications always reach the control.
    """

    __slots__ = ("_session",)

    def __init__(self, session: Session) -> None:
        self._session = session

    # -- The form --

    @property
    def user_mode(self) -> bool:
        """The ambient UserMode: True while the form runs, False while it is designed."""
        mode = ctypes.c_int32()
        self._session.call(library.vornix_host_get_user_mode, ctypes.byref(mode))
        return mode.value != 0

    @user_mode.setter
    def user_mode(self, value: bool) -> None:
        self._session.call(library.vornix_host_set_user_mode, -1 if to_bool(value) else 0)

    def resize(self, width: int, height: int) -> None:
        """Gives the window another size, in pixels with the border."""
        self._session.call(library.vornix_host_resize, to_i32(width), to_i32(height))

    def show(self) -> None:
        """The control becomes visible."""
        self._session.call(library.vornix_host_show)

    def hide(self) -> None:
        """The control is hidden."""
        self._session.call(library.vornix_host_hide)

    def paint(self) -> None:
        """The window needs its picture again."""
        self._session.call(library.vornix_host_paint)

    def enter_focus(self) -> None:
        """The focus comes to the control."""
        self._session.call(library.vornix_host_enter_focus)

    def exit_focus(self) -> None:
        """The focus leaves the control."""
        self._session.call(library.vornix_host_exit_focus)

    def close(self) -> None:
        """The form closes: Terminate. Members of the grid raise error 5 from then on."""
        self._session.call(library.vornix_host_close)

    def save(self) -> Dict[str, Any]:
        """What the control saves with its form. Not built yet: error 445."""
        self._session.require_open()
        _not_built("Saving the control")

    # -- Single notifications --

    def _at(self, function: Any, x: float, y: float, button: int, shift: int) -> None:
        self._session.call(function, to_place(x), to_place(y), to_i16(button), to_i16(shift))

    def mouse_down(self, x: float, y: float, button: int = 1, shift: int = 0) -> None:
        """A button goes down. Nothing else follows from it."""
        self._at(library.vornix_host_mouse_down, x, y, button, shift)

    def mouse_move(self, x: float, y: float, button: int = 0, shift: int = 0) -> None:
        """The pointer moves. Nothing else follows from it."""
        self._at(library.vornix_host_mouse_move, x, y, button, shift)

    def mouse_up(self, x: float, y: float, button: int = 1, shift: int = 0) -> None:
        """A button goes up. Nothing else follows from it."""
        self._at(library.vornix_host_mouse_up, x, y, button, shift)

    def click(self) -> None:
        """The platform reports a click, as it does behind a release."""
        self._session.call(library.vornix_host_click)

    def dbl_click(self) -> None:
        """The platform reports a double click."""
        self._session.call(library.vornix_host_dbl_click)

    def wheel(self, delta: int) -> None:
        """The wheel turns, 120 a notch; away from the person is positive."""
        self._session.call(library.vornix_host_wheel, to_i32(delta))

    def tick(self) -> None:
        """One tick of the control's timer, whether it runs or not: the control looks whether the
        pointer, which is where the latest notification or person put it, is still over it."""
        self._session.call(library.vornix_host_tick)

    def key_down(self, code: int, shift: int = 0) -> int:
        """A key goes down. Gives the code as the handlers left it."""
        value = ctypes.c_int16(to_i16(code))
        call = library.vornix_host_key_down
        self._session.call(call, ctypes.byref(value), to_i16(shift))
        return value.value

    def key_press(self, char: Union[str, int]) -> int:
        """A character is typed: itself, or its code. Gives the code as the handlers left it."""
        value = ctypes.c_int16(character_code(char))
        self._session.call(library.vornix_host_key_press, ctypes.byref(value))
        return value.value

    def key_up(self, code: int, shift: int = 0) -> int:
        """A key goes up. Gives the code as the handlers left it."""
        value = ctypes.c_int16(to_i16(code))
        call = library.vornix_host_key_up
        self._session.call(call, ctypes.byref(value), to_i16(shift))
        return value.value

    # -- What a person does --

    def click_at(self, x: float, y: float, button: int = 1, shift: int = 0) -> None:
        """Moves the pointer there and clicks what is on top: press, release, click."""
        self._at(library.vornix_host_click_at, x, y, button, shift)

    def dbl_click_at(self, x: float, y: float, button: int = 1, shift: int = 0) -> None:
        """Moves the pointer there and clicks twice what is on top."""
        self._at(library.vornix_host_dbl_click_at, x, y, button, shift)

    def drag(
        self,
        x1: float,
        y1: float,
        x2: float,
        y2: float,
        button: int = 1,
        shift: int = 0,
        steps: int = 8,
    ) -> None:
        """Presses at one place, moves to another in so many steps, and lets go."""
        places = map(to_place, (x1, y1, x2, y2))
        call = library.vornix_host_drag
        self._session.call(call, *places, to_i16(button), to_i16(shift), to_i32(steps))

    def type(self, text: str) -> None:
        """Types a text into what has the focus; a line break, CR LF too, is one Return."""
        self._session.call(library.vornix_host_type, make_text(to_text(text)))

    def press(self, key: Union[str, int], shift: int = 0) -> None:
        """Presses a key by its name in any case ("Left", "F2", "Escape", "PgDn", ...), by the
        character it gives ("a", "+", " "; upper signs take Shift, letters do not), or by its code."""
        if isinstance(key, str):
            self._session.call(library.vornix_host_press, to_name(key), to_i16(shift))
        else:
            self._session.call(library.vornix_host_press_code, to_i16(key), to_i16(shift))

    def child(self, name: str) -> "Child":
        """A child window: "scrV", "scrH", "txtTmp", "cboTmp", "fraEdit", "cPivot", "picSplitCol"
        or "picSplitMove", in any case. Error 5 for other names."""
        child = Child(self._session, _CHILDREN.get(to_text(name).lower(), name))
        child._info()
        return child

    # -- What the control said --

    @property
    def log(self) -> List[Tuple[str, Dict[str, Any]]]:
        """Every event since clear_log(), handled or not: its name, and its arguments as they were
        when it was raised."""
        return self._session.logged()

    def clear_log(self) -> None:
        """Empties log and property_changes, and counts repaints and refreshes from 0."""
        self._session.call(library.vornix_host_clear_log)

    @property
    def property_changes(self) -> List[str]:
        """The names that PropertyChanged reported since clear_log()."""
        length = ctypes.c_size_t()
        call = library.vornix_host_property_change_count
        self._session.call(call, ctypes.byref(length))
        return [self._property_change(index) for index in range(length.value)]

    def _property_change(self, index: int) -> str:
        name = ctypes.c_char_p()
        call = library.vornix_host_property_change_at
        self._session.call(call, index, ctypes.byref(name))
        return _name_of(name)

    def _paint_counts(self) -> Tuple[int, int]:
        repaints, refreshes = ctypes.c_int32(), ctypes.c_int32()
        call = library.vornix_host_paint_counts
        self._session.call(call, ctypes.byref(repaints), ctypes.byref(refreshes))
        return repaints.value, refreshes.value

    @property
    def repaints(self) -> int:
        """How often the whole grid was painted since clear_log()."""
        return self._paint_counts()[0]

    @property
    def refreshes(self) -> int:
        """How many cells were painted one by one since clear_log()."""
        return self._paint_counts()[1]

    # -- What it did to its surroundings --

    @property
    def message_boxes(self) -> List[Dict[str, str]]:
        """The boxes that were shown: title, text, and icon ("exclamation", "information", "")."""
        length = ctypes.c_size_t()
        call = library.vornix_host_message_box_count
        self._session.call(call, ctypes.byref(length))
        return [self._message_box(index) for index in range(length.value)]

    def _message_box(self, index: int) -> Dict[str, str]:
        title, text, icon = _library.Text(), _library.Text(), ctypes.c_char_p()
        self._session.call(
            library.vornix_host_message_box_at,
            index,
            ctypes.byref(title),
            ctypes.byref(text),
            ctypes.byref(icon),
        )
        return {"title": text_of(title), "text": text_of(text), "icon": _name_of(icon)}

    @property
    def clipboard(self) -> str:
        """The plain text on the clipboard."""
        text = _library.Text()
        self._session.call(library.vornix_host_get_clipboard, ctypes.byref(text))
        return text_of(text)

    @clipboard.setter
    def clipboard(self, value: str) -> None:
        self._session.call(library.vornix_host_set_clipboard, make_text(to_text(value)))

    @property
    def pointer_shape(self) -> str:
        """ "default", "size_we" or "size_ns"."""
        shape = ctypes.c_char_p()
        self._session.call(library.vornix_host_pointer_shape, ctypes.byref(shape))
        return _name_of(shape)

    @property
    def settings(self) -> Settings:
        """The settings store, text by (application, section, key): the dict that the grid was made
        with, or one of its own. What is written into it the control reads."""
        return self._session.settings

    # -- Its picture --

    def pixel(self, x: int, y: int) -> int:
        """The colour of a pixel, 0x00BBGGRR; 0xFFFFFFFF outside."""
        color = ctypes.c_uint32()
        call = library.vornix_host_pixel
        self._session.call(call, to_i32(x), to_i32(y), ctypes.byref(color))
        return color.value

    def image(self) -> Tuple[int, int, bytes]:
        """Width, height, and the pixels: red, green, blue and opacity, a byte each."""
        width, height = ctypes.c_int32(), ctypes.c_int32()
        call = library.vornix_host_image_size
        self._session.call(call, ctypes.byref(width), ctypes.byref(height))
        pixels = ctypes.create_string_buffer(width.value * height.value * 4)
        self._session.call(library.vornix_host_image, pixels, len(pixels))
        return width.value, height.value, pixels.raw

    def save_png(self, path: PathLike) -> None:
        """Writes the picture to a PNG file. Error 75 where it cannot be written."""
        self._session.call(library.vornix_host_save_png, path_bytes(path))

    def __repr__(self) -> str:
        return f"<vornix.host.Host{_whose(self._session)}>"


class Child(Unique):
    """A child window of the control."""

    __slots__ = ("_session", "_name")

    def __init__(self, session: Session, name: str) -> None:
        self._session = session
        self._name = name

    def _info(self) -> _library.ChildInfo:
        info = _library.ChildInfo()
        self._session.call(library.vornix_host_child, to_name(self._name), ctypes.byref(info))
        return info

    @property
    def visible(self) -> bool:
        """Whether the window shows."""
        return bool(self._info().visible)

    @property
    def enabled(self) -> bool:
        """Whether the window takes input."""
        return bool(self._info().enabled)

    @property
    def left(self) -> int:
        """The left edge in pixels of the client area; that of an editor in its frame."""
        return int(self._info().left)

    @property
    def top(self) -> int:
        """The upper edge in pixels of the client area; that of an editor in its frame."""
        return int(self._info().top)

    @property
    def width(self) -> int:
        """The width in pixels."""
        return int(self._info().width)

    @property
    def height(self) -> int:
        """The height in pixels."""
        return int(self._info().height)

    # What editors have besides, "txtTmp" and "cboTmp". Of other children it is error 438.

    def _use(self, function: Any, *arguments: Any) -> None:
        self._session.call(function, to_name(self._name), *arguments)

    @property
    def text(self) -> str:
        """The text of an editor. Written, it is what its user has put in place of the whole text,
        as an assistive tool does: the grid hears of it, and the caret stands in front of it."""
        text = _library.Text()
        self._use(library.vornix_host_get_editor_text, ctypes.byref(text))
        return text_of(text)

    @text.setter
    def text(self, value: str) -> None:
        self._use(library.vornix_host_set_editor_text, make_text(to_text(value)))

    def _selection(self) -> Tuple[int, int]:
        start, length = ctypes.c_int32(), ctypes.c_int32()
        call = library.vornix_host_get_editor_selection
        self._use(call, ctypes.byref(start), ctypes.byref(length))
        return start.value, length.value

    @property
    def sel_start(self) -> int:
        """Where the selected text of an editor begins, or the caret stands. Written, it is limited
        to the text and selects nothing."""
        return self._selection()[0]

    @sel_start.setter
    def sel_start(self, value: int) -> None:
        self._use(library.vornix_host_set_editor_selection, to_i32(value), 0)

    @property
    def sel_length(self) -> int:
        """How long the selected text of an editor is. Written, it is limited to the text."""
        return self._selection()[1]

    @sel_length.setter
    def sel_length(self, value: int) -> None:
        length = to_i32(value)
        self._use(library.vornix_host_set_editor_selection, self.sel_start, length)

    def _key(self, function: Any, code: int, shift: int) -> int:
        value = ctypes.c_int16(code)
        self._use(function, ctypes.byref(value), to_i16(shift))
        return value.value

    def key_down(self, code: int, shift: int = 0) -> int:
        """A key goes down in an editor. Gives the code as the handlers left it; what is left the
        editor does by itself: Delete, and the keys that move the caret or walk a list. One that is
        hidden or disabled hears nothing."""
        return self._key(library.vornix_host_editor_key_down, to_i16(code), shift)

    def key_press(self, char: Union[str, int], shift: int = 0) -> int:
        """A character is typed into an editor: itself, or its code. Gives the code as the handlers
        left it; what is left takes the place of the selection."""
        return self._key(library.vornix_host_editor_key_press, character_code(char), shift)

    def key_up(self, code: int, shift: int = 0) -> int:
        """A key goes up in an editor. Gives the code as the handlers left it."""
        return self._key(library.vornix_host_editor_key_up, to_i16(code), shift)

    # What the combo box has besides. Of other children it is error 438.

    def _combo(self) -> _library.ComboInfo:
        info = _library.ComboInfo()
        self._use(library.vornix_host_combo, ctypes.byref(info))
        return info

    @property
    def items(self) -> List[str]:
        """The rows in the list of a combo box."""
        return [self._item(index) for index in range(self._combo().item_count)]

    def _item(self, index: int) -> str:
        text = _library.Text()
        self._use(library.vornix_host_combo_item, index, ctypes.byref(text))
        return text_of(text)

    @property
    def list_index(self) -> int:
        """The row of a combo box that is selected; -1 for none."""
        return int(self._combo().list_index)

    def click_item(self, index: int) -> None:
        """Clicks a row in the list of a combo box, which is told even where it is selected already.
        Error 9 for a row that there is not. A box that is hidden or disabled hears nothing."""
        self._use(library.vornix_host_click_combo_item, to_i32(index))

    # What bars have besides. Of other children it is error 438.

    def _bar(self) -> _library.BarInfo:
        info = _library.BarInfo()
        self._session.call(library.vornix_host_bar, to_name(self._name), ctypes.byref(info))
        return info

    @property
    def min(self) -> int:
        """The lowest position of a bar."""
        return int(self._bar().min)

    @property
    def max(self) -> int:
        """The highest position of a bar."""
        return int(self._bar().max)

    @property
    def value(self) -> int:
        """The position of a bar."""
        return int(self._bar().value)

    def notify(self, code: int, track_pos: Optional[int] = None) -> None:
        """What its user does to a bar, as a number of the platform; nothing else follows from it.

        0 and 1 a line up and down, 2 and 3 a page, 4 the thumb let go (not used), 5 the thumb
        dragged to track_pos, 6 to the top, 7 to the bottom, 8 behind each of the others. A bar that
        is disabled or hidden, or whose grid has Redraw off, hears nothing. Error 5 for other codes.
        """
        held = None if track_pos is None else ctypes.byref(ctypes.c_int32(to_i32(track_pos)))
        call = library.vornix_host_notify_bar
        self._session.call(call, to_name(self._name), to_i32(code), held)

    def __repr__(self) -> str:
        whose = _whose(self._session)
        if whose:
            return f"<vornix.host.Child {self._name!r}{whose}>"
        info = self._info()
        state = "visible" if info.visible else "hidden"
        place = f"{info.width} x {info.height} at {info.left}, {info.top}"
        return f"<vornix.host.Child {self._name!r}: {place}, {state}>"


def _whose(session: Session) -> str:
    """Why there is nothing to be said about what belongs to a grid; empty where there is."""
    if session.has_ended:
        return " of a closed grid"
    return "" if session.is_here else " of another thread's grid"


def _name_of(name: ctypes.c_char_p) -> str:
    return name.value.decode("utf-8") if name.value else ""
