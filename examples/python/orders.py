#!/usr/bin/env python3
"""A host without a screen: fills a table, answers events, uses the mouse, saves a picture.

    python3 orders.py [PICTURE.png]
"""

import sys
from datetime import date
from typing import List

import vornix

CITIES = ["Berlin", "Lyon", "Lyon", "Porto", "Turin"]
DATES = [date(2024, 3, day) for day in (1, 4, 4, 9, 11)]
TOTALS = [1250.5, 310.0, 99.95, 4020.0, 87.4]


def main() -> None:
    grid = vornix.Grid(420, 150)
    grid.FixedRows = 1
    grid.Rows = 0
    grid.LoadFromArray([CITIES, DATES, TOTALS])

    for col, name in enumerate(("City", "Date", "Total")):
        grid.ColName[col] = name
        grid.Text[-1, col] = name
    grid.ColFormat[2] = "#,##0.00"
    grid.ColTextAlign[2] = vornix.vxTxtRight | vornix.vxTxtVCenter
    grid.RowFont[-1] = vornix.Font(Name="DejaVu Sans", Size=9, Bold=True)
    for row, total in enumerate(TOTALS):
        if total > 1000:
            grid.CellBackColor[row, 2] = 0x00C0FFC0
    grid.SpanRows(0)

    clicked: List[str] = []

    def remember(e: vornix.events.MouseDown) -> None:
        found, row, col = grid.GetCellAtPos(int(e.x), int(e.y))
        if found:
            clicked.append(grid.Text[row, col])

    grid.on("MouseDown", remember)
    grid.host.mouse_down(300, 30)

    print("clicked:", *clicked)
    print("totals:", *grid.texts(2))
    if len(sys.argv) > 1:
        grid.host.save_png(sys.argv[1])


if __name__ == "__main__":
    main()
