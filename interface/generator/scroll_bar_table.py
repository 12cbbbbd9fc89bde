"""Emits the tables of the scroll bar that comes with the grid, as member_table does those of the grid."""

import member_table
from iface import Interface

SCROLL_BAR = member_table.Target(
    "ScrollBar",
    ("vornix/scroll_bar_members.h",),
    member_table.giving_functions(
        "ScrollBarMembers", "ScrollBarEventInfos", "FindScrollBarMember", "ScrollBarCodes", "ScrollBar"
    ),
)


def emit(interface: Interface) -> str:
    return member_table.source_of(interface, interface["vxScrollBar"], SCROLL_BAR)
