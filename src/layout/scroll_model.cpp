#include "layout/scroll_model.h"

#include <algorithm>

namespace vornix {

void ScrollModel::ClampFirstVisible()
{
    if (firstRow_ >= store_.MaxRow())
        firstRow_ = std::max<int>(store_.LastRowIndex(), store_.FixedRows());
    if (firstCol_ >= store_.MaxCol())
        firstCol_ = std::max<int>(store_.LastColIndex(), store_.FixedCols());
}

} // namespace vornix
