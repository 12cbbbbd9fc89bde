// Lines that come and go, change places or take over what others hold, with all that the table says of them: counts,
// arrays, cells, merged cells and the chain of visible rows. Internal indices; nothing is raised or painted.
#pragma once

#include "model/hidden_lines.h"
#include "model/span_edits.h"

namespace vornix {

class StructureEdit {
public:
    StructureEdit(GridStore& store, Spans& spans, HiddenLines& hidden)
        : store_(store)
        , spans_(spans)
        , hidden_(hidden)
        , spanEdits_(store)
    {
    }

    // `count` new lines in front of a line that is not fixed, or of the filler. New rows keep the mark Hidden that
    // stands in their places, new columns all that InitCols does not write; neither keeps merged cells. Error 6 for
    // more lines than 16 bits count, before anything has changed.
    void InsertRows(int position, int count);
    void InsertCols(int position, int count);
    // Lines that are not fixed; error 9, and nothing has changed, where they go on behind the last one.
    void DeleteRows(int position, int count);
    void DeleteCols(int position, int count);

    // The links of merged cells travel with the lines as they are: a line leaves a span across it. Error 9 for a line
    // that is not real.
    void SwapRows(int row1, int row2);
    // Without the cells in row 0 where the title is.
    void SwapCols(int col1, int col2, bool withTitle);

    // Text, key, picture and format; then the spans, over whatever was there.
    void CopyCell(CellIndex from, CellIndex to);
    // The same for all cells of a line, spans where the source has them. What a record says of the line stays.
    void CopyRow(int from, int to);
    // Without the cell in row 0 where the title is.
    void CopyCol(int from, int to, bool withTitle);
    // Size, colour and record of a row; a size of 0 takes it out of the chain.
    void CopyRowRecord(int from, int to);

    // Looks and sizes of a rectangle go back to the defaults, all that columns say of themselves included. Contents and
    // spans stay.
    void ResetRectangle(CellIndex first, CellIndex last);

private:
    void CopySpan(CellIndex from, CellIndex to);
    void ResetRowRecord(int row);
    void ResetColRecord(int col);

    GridStore& store_;
    Spans& spans_;
    HiddenLines& hidden_;
    SpanEdits spanEdits_;
};

} // namespace vornix
