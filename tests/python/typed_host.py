"""A host as a type checker reads it. The marked lines are wrong, and must be found to be."""

from typing import Any, List, Optional, Tuple

import vornix


def refuse(e: vornix.events.CellChange) -> None:
    e.bCancel = e.Row == 0


def capital(e: vornix.text_box_events.KeyPress) -> None:
    e.KeyAscii = ord(chr(e.KeyAscii).upper())


def use(g: vornix.Grid) -> None:
    g.Rows = g.Rows + 1
    g.Text[0, 1] = g.Text[0, 0] + g.Text(Row=1, Col=0)
    g.ColBackColor[2] = 0x00C0FFFF
    g.CellMode[0, 0] = vornix.vxCheckBox
    g.TextAlignment[0, 0] = vornix.vxTxtRight | vornix.vxTxtVCenter
    found, row, col = g.GetCellAtPos(5, 5)
    place: Tuple[bool, int, int] = (found, row, col)
    size: Tuple[int, int] = g.getWidthHeightCell(1, 1, 7, 8)
    parent: int = g.ParentRow[1, 2] + g.ParentRow(1, 2) + g.ColOrder("Name") + g.ColOrder[1]
    merged: bool = g.SpanRows(0)
    g.HideRow(0, Rows=2)
    g.Font = vornix.Font(Name="DejaVu Sans", Size=9, Bold=True)
    picture: Optional[vornix.Picture] = g.Picture
    g.Picture = None
    g.CellPicture[0, 0] = picture
    texts: List[str] = g.texts(0, 1)
    g.LoadFromArray([["a", None], [1, 2.5]])
    g.LoadFromArray(zip(("a", 1), ("b", 2)))
    g.LoadFromArray(g.columns(0, 0, 1, 1), IsNullTest=False)
    g.on("CellChange", refuse)
    g.off("CellChange", refuse)
    g.host.key_press("a")
    left: int = g.host.child("scrV").left
    editor = g.host.child("txtTmp")
    editor.text = editor.text[editor.sel_start :]
    editor.sel_length = editor.key_down(46) + editor.key_press("a", 2) + editor.key_up(46)
    items: List[str] = g.host.child("cboTmp").items
    g.host.child("cboTmp").click_item(g.host.child("cboTmp").list_index)
    bar = g.host.child("scrV")
    bar.notify(5, track_pos=bar.min + bar.max - bar.value)
    with vornix.ScrollBar(1, length=80, bag=None) as own:
        own.Value = own.Min + own.Max
        own.on("Change", print)
        own.host.notify(5, track_pos=own.Value)
        saved = own.host.save()
    with vornix.TextBox(120, height=21, bag=None) as box:
        box.Text = box.Mask + box.TextInput
        box.on("KeyPress", capital)
        box.host.paste(box.SelText)
        kept = box.host.save()
    print(place, size, parent, merged, texts, left, saved, items, kept)

    @g.on("KeyDown")
    def key(e: vornix.events.KeyDown) -> None:
        e.KeyCode = 0

    g.off("KeyDown", key)
    names: Tuple[vornix.events.EventName, ...] = ("Click", "DblClick")
    for name in names:
        g.on(name, print)

    try:
        g.Refresh()
    except vornix.AutomationError as error:
        print(error.number, error.description)


def misuse(g: vornix.Grid) -> Any:
    g.Colls = 3  # wrong
    g.Rows = "3"  # wrong
    g.hDC = 3  # wrong
    g.Text[0] = "a"  # wrong
    g.Text[0, 0] = 3  # wrong
    g.Text = "a"  # wrong
    g.ColBackColor[0].bit_length()  # wrong
    g.ParentRow[0, 0] = 1  # wrong
    g.HideRow()  # wrong
    g.HideRow(0, Lines=2)  # wrong
    g.on("NoSuch", print)  # wrong
    g.on("KeyDown", refuse)  # wrong
    g.host.log = []  # wrong
    vornix.ScrollBar().Min = 3  # wrong
    g.host.child("scrV").value = 3  # wrong
    g.host.child("scrV").notify()  # wrong
    vornix.vxCheckBox = 3  # wrong
    return vornix.vxNoSuch  # wrong


def change(e: vornix.events.CellChange) -> None:
    e.Row = 3  # wrong
    e.bCancle = True  # wrong
