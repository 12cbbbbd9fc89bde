#include "interact/edit_place.h"

#include <algorithm>

namespace vornix {

EditPlace::EditPlace(const LayoutEngine& layout, CellIndex edited, const CellFormat& format)
    : marginLeft(format.TextMarginLeft)
    , marginRight(format.TextMarginRight)
    , hasInset(format.Style == vxCellBox || (format.TextAlignment & vxTxtRight) != 0)
{
    const Point origin = layout.CellOriginAt(edited.row, edited.col);
    const Size size = layout.CellSpanSize(edited.row, edited.col);
    cell.left = origin.x;
    cell.top = origin.y;
    cell.right = cell.left + std::min(size.width, layout.ClientWidth() - layout.FrozenColsWidth());
    cell.bottom = cell.top + std::min(size.height, layout.ClientHeight() - layout.FixedRowsHeight());
}

Rect EditPlace::Frame(int dx, int dy, int width, int height) const
{
    const int left = cell.left + marginLeft + dx;
    const int top = cell.top + dy;
    return { left, top, left + width, top + height };
}

} // namespace vornix
