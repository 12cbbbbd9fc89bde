// Hidden rows and columns, and the chain of visible rows.
//
// The chain runs from the first non-fixed row to the last row, both in it even when hidden, over all rows between them
// that have a height (but for heights that the defaults gave back to hidden rows). It is held as gaps in the records, so rows that shift carry it along.
#pragma once

#include "model/grid_store.h"

namespace vornix {

class HiddenLines {
public:
    explicit HiddenLines(GridStore& store)
        : store_(store)
    {
    }

    // Hide or show one line that is not in that state yet; false when it was.
    bool HideRow(int row);
    bool ShowRow(int row);
    bool HideCol(int col);
    bool ShowCol(int col);

    // To be called with the height of a row before and after a change, once the height has been stored or is about to
    // be: a change to 0 takes the row out of the chain, one from 0 puts it in.
    void UpdateChain(int row, int heightBefore, int heightAfter);

    // After heights of many rows were stored: the chain anew, in one pass.
    void RebuildChain();
    // After rows first..last came, went (a last one before the first) or were exchanged: they and their neighbours.
    void RelinkRows(int first, int last);

    // The neighbours of a row by its links, always ahead of it and behind it, however stale the links are. Not bounded
    // by the ends of the chain.
    int NextInChain(int row) const;
    int PrevInChain(int row) const;

    // After rows were cut off at the end: the last row is the chain's last.
    void EndChain();

private:
    bool IsInnerRow(int row) const { return row > store_.FixedRows() && row < store_.LastRowIndex(); }
    bool IsLinked(int row) const;
    void TakeOut(int row);
    void PutIn(int row);
    // Rows behind `previous` by their heights, up to the first in the chain that lies behind `last`.
    void LinkFrom(int previous, int last);
    // Makes two rows neighbours in the chain.
    void Link(int row, int next);

    GridStore& store_;
};

} // namespace vornix
