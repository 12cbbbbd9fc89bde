#include "interact/check_toggle.h"

#include "automation/checked.h"
#include "automation/text_conversions.h"

namespace vornix {

void CheckToggle::Toggle(int row, int col)
{
    if (store_.Format(row, col).Disabled)
        return;
    const bool isChecked = IsTrueText(store_.CellAt(row, col).Text(), container_.GetLocale());
    store_.EditCell(row, col).SetText(isChecked ? u"0" : u"-1");
    const i16 Row = ToI16(row - store_.FixedRows());
    const i16 Col = ToI16(col - store_.FixedCols());
    repainter_.RefreshCellUnderGate(row, col);
    events_.TextChange(Row, Col);
}

} // namespace vornix
