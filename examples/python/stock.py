"""What a shop has on its shelves: a table out of a database, formatted, merged, coloured by value, saved as a picture.

    python3 examples/python/stock.py data/sample.db stock.png
"""

import sqlite3
import sys

import vornix

# %% Load
rows = sqlite3.connect(sys.argv[1]).execute(
    """SELECT c.name, s.name, p.name, p.price, p.in_stock, p.reorder_level
    FROM products p JOIN categories c USING (category_id) JOIN suppliers s USING (supplier_id)
    WHERE NOT discontinued ORDER BY c.name, s.name, p.name LIMIT 23"""
).fetchall()
g = vornix.Grid(760, 555)
g.Redraw, g.FixedRows, g.FixedCols, g.Rows, g.DefaultHeight = False, 1, 0, 0, 23
g.LoadFromArray([list(column) for column in zip(*rows)])

# %% Format
titles = ["Category", "Supplier", "Product", "Price", "In stock", "Reorder at"]
for col, (title, width) in enumerate(zip(titles, [100, 210, 190, 80, 80, 100])):
    g.Text[-1, col], g.ColWidth[col] = title, width
    g.ColTextMarginLeft[col] = g.ColTextMarginRight[col] = 6
    g.ColTextAlign[col] = vornix.vxTxtVCenter | (vornix.vxTxtRight if col > 2 else 0)
    g.TextAlignment[-1, col] = vornix.vxTxtVCenter | (vornix.vxTxtRight if col > 2 else 0)
g.RowFont[-1] = vornix.Font(Name="DejaVu Sans", Size=9, Bold=True)
g.RowTextMarginLeft[-1] = g.RowTextMarginRight[-1] = 6
g.ColFormat[3], g.RowHeight[-1] = "#,##0.00", 26
for col in range(3):
    g.SpanRows(col)

# %% Colour by value
for row, (*_, in_stock, reorder_level) in enumerate(rows):
    if in_stock < reorder_level:
        g.CellBackColor[row, 4] = 0x00B0B0FF if in_stock == 0 else 0x00B0E8FF

# %% Draw
g.Redraw = True
g.host.save_png(sys.argv[2])
