#include "model/hidden_lines.h"

#include "automation/checked.h"

#include <algorithm>

namespace vornix {

bool HiddenLines::HideRow(int row)
{
    Row& record = store_.RowAt(row);
    if (record.Hidden)
        return false;
    record.SavedHeight = record.Height;
    record.Height = 0;
    UpdateChain(row, record.SavedHeight, 0);
    record.Hidden = true;
    return true;
}

bool HiddenLines::ShowRow(int row)
{
    Row& record = store_.RowAt(row);
    if (!record.Hidden)
        return false;
    UpdateChain(row, record.Height, record.SavedHeight);
    record.Height = record.SavedHeight;
    record.Hidden = false;
    return true;
}

bool HiddenLines::HideCol(int col)
{
    Column& record = store_.ColumnAt(col);
    if (record.Hidden)
        return false;
    record.SavedWidth = record.Width;
    record.Width = 0;
    record.Hidden = true;
    return true;
}

bool HiddenLines::ShowCol(int col)
{
    Column& record = store_.ColumnAt(col);
    if (!record.Hidden)
        return false;
    record.Width = record.SavedWidth;
    record.Hidden = false;
    return true;
}

void HiddenLines::UpdateChain(int row, int heightBefore, int heightAfter)
{
    if (!IsInnerRow(row))
        return;
    if (heightBefore != 0 && heightAfter == 0)
        TakeOut(row);
    else if (heightBefore == 0 && heightAfter > 0)
        PutIn(row);
}

void HiddenLines::RebuildChain()
{
    RelinkRows(store_.FixedRows(), store_.LastRowIndex());
}

void HiddenLines::RelinkRows(int first, int last)
{
    const int firstOfChain = store_.FixedRows();
    const int lastOfChain = store_.LastRowIndex();
    if (lastOfChain < firstOfChain)
        return;
    int previous = std::min(first, lastOfChain) - 1;
    while (previous > firstOfChain && store_.HeightOf(previous) == 0)
        --previous;
    previous = std::max(previous, firstOfChain);
    LinkFrom(previous, std::max(last, previous));
    store_.RowAt(firstOfChain).PrevSkip = 0;
    store_.RowAt(lastOfChain).NextSkip = 0;
}

void HiddenLines::LinkFrom(int previous, int last)
{
    const int lastOfChain = store_.LastRowIndex();
    for (int row = previous + 1; row <= lastOfChain && previous <= last; ++row) {
        if (row < lastOfChain && store_.HeightOf(row) == 0) {
            store_.RowAt(row).NextSkip = 0;
            store_.RowAt(row).PrevSkip = 0;
            continue;
        }
        Link(previous, row);
        previous = row;
    }
}

void HiddenLines::EndChain()
{
    const int last = store_.LastRowIndex();
    if (last < store_.FixedRows())
        return;
    if (last > store_.FixedRows() && !IsLinked(last)) {
        int previous = last - 1;
        while (previous > store_.FixedRows() && !IsLinked(previous))
            --previous;
        Link(previous, last);
    }
    store_.RowAt(last).NextSkip = 0;
}

int HiddenLines::NextInChain(int row) const
{
    return row + std::max<int>(store_.RowAt(row).NextSkip, 0) + 1;
}

int HiddenLines::PrevInChain(int row) const
{
    return row - std::max<int>(store_.RowAt(row).PrevSkip, 0) - 1;
}

bool HiddenLines::IsLinked(int row) const
{
    const int previous = PrevInChain(row);
    return previous >= store_.FixedRows() && NextInChain(previous) == row;
}

void HiddenLines::TakeOut(int row)
{
    // A row can be out already: attributes that are reset give it a height without touching the chain.
    if (!IsLinked(row))
        return;
    // Rows cut off at the end may leave a link that points behind it.
    Link(PrevInChain(row), std::min<int>(NextInChain(row), store_.LastRowIndex()));
}

void HiddenLines::PutIn(int row)
{
    int previous = row - 1;
    while (previous > store_.FixedRows() && store_.HeightOf(previous) == 0)
        --previous;
    // A row without height that was last once, and so stayed in the chain, may stand between.
    int next = NextInChain(previous);
    while (next < row) {
        previous = next;
        next = NextInChain(previous);
    }
    if (next == row)
        return;
    next = std::min<int>(next, store_.LastRowIndex());
    Link(previous, row);
    Link(row, next);
}

void HiddenLines::Link(int row, int next)
{
    const i16 gap = ToI16(next - row - 1);
    store_.RowAt(row).NextSkip = gap;
    store_.RowAt(next).PrevSkip = gap;
}

} // namespace vornix
