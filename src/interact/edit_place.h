// Where the editor of a cell goes, in pixels of the client area.
#pragma once

#include "layout/layout_engine.h"
#include "model/cell_format.h"

namespace vornix {

struct EditPlace {
    // The cell, cut to the size that the area beside the frozen lines has.
    Rect cell;
    int marginLeft = 0;
    int marginRight = 0;
    // The style or the alignment takes two more pixels from a text.
    bool hasInset = false;

    EditPlace() = default;
    EditPlace(const LayoutEngine& layout, CellIndex cell, const CellFormat& format);

    // What is left for the editor between the margins; there is none below 1.
    int TextWidth() const { return cell.Width() - 5 - marginLeft - marginRight - (hasInset ? 2 : 0); }
    int ListWidth() const { return cell.Width() - 1 - marginLeft - marginRight; }

    // The frame of each kind of editor.
    Rect TextFrame() const { return Frame(4, 2, TextWidth(), cell.Height() - 4); }
    Rect ListFrame() const { return Frame(0, 0, ListWidth(), cell.Height() - 1); }
    Rect CustomFrame() const { return Frame(0, 0, ListWidth() + 1, cell.Height()); }

private:
    Rect Frame(int dx, int dy, int width, int height) const;
};

} // namespace vornix
