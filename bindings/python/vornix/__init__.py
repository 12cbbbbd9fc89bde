"""A grid control that shows a table: rows, columns, texts, and how they look.

    >>> import vornix
    >>> g = vornix.Grid(640, 480)
    >>> g.Cols, g.Rows = 3, 2
    >>> g.Text[0, 1] = "a"
    >>> g.host.save_png("table.png")

Grid is the control in a container without a screen, grid.host that container. Font, Picture and
Surface are what it is given besides plain values; a call that fails raises AutomationError. The
constants of the interface are attributes of the package: vornix.vxCheckBox.
"""

from . import events, host, text_box_events
from ._constants import *
from ._constants import __all__ as _constants
from ._errors import AutomationError
from ._grid import Grid
from ._objects import Font, Picture, Surface
from ._scroll_bar import ScrollBar
from ._text_box import TextBox
from ._version import __version__

__all__ = [
    "AutomationError",
    "Font",
    "Grid",
    "Picture",
    "ScrollBar",
    "Surface",
    "TextBox",
    "events",
    "host",
    "text_box_events",
]
__all__ += _constants
