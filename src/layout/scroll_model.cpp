#include "layout/scroll_model.h"

#include <algorithm>

namespace vornix {

void ScrollModel::ClampVisible()
{
    if (firstRow_ >= store_.MaxRow())
        firstRow_ = std::max<int>(store_.LastRowIndex(), store_.FixedRows());
    if (firstCol_ >= store_.MaxCol())
        firstCol_ = std::max<int>(store_.LastColIndex(), store_.FixedCols());
    lastRow_ = std::min<int>(lastRow_, store_.MaxRow());
    lastCol_ = std::min<int>(lastCol_, store_.MaxCol());
}

} // namespace vornix
