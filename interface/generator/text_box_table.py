"""Emits the tables of the text box that comes with the grid, as member_table does those of the grid."""

import member_table
from iface import Interface

TEXT_BOX = member_table.Target(
    "TextBox",
    ("vornix/text_box_members.h",),
    member_table.giving_functions(
        "TextBoxMembers", "TextBoxEventInfos", "FindTextBoxMember", "TextBoxCodes", "TextBox"
    ),
)


def emit(interface: Interface) -> str:
    return member_table.source_of(interface, interface["vxTextBox"], TEXT_BOX)
