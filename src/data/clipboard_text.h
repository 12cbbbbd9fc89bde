// A rectangle of cells as the plain text that spreadsheets exchange: tabs between the fields of a line, CR LF between
// the lines. Internal indices. Time is linear in the text, both ways.
#pragma once

#include "model/grid_store.h"
#include "model/spans.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vornix {

// First and last cell, both included; each index of `first` is at most that of `last`.
struct CellRectangle {
    CellIndex first;
    CellIndex last;

    static CellRectangle Between(CellIndex oneCorner, CellIndex otherCorner);
};

// Empty when there is nothing to copy: the last line decides for all. Error 9 for a cell outside the table.
std::u16string CopiedText(const GridStore& store, CellRectangle cells);

// Writes what fits into the rectangle. Error 9 for a cell outside the table, after the cells ahead of it.
void PasteText(GridStore& store, CellRectangle cells, std::u16string_view text);

// A text read line by line and field by field. A quoted field may take further lines with it. Views of the text, which
// must stay.
class PastedLines {
public:
    // Not for an empty text.
    explicit PastedLines(std::u16string_view text);

    bool IsPastLastLine() const { return line_ >= lines_.size(); }
    void GoToNextLine() { ++line_; }
    // Makes the fields of the present line the ones to take; false when the line is empty.
    bool OpenLine();
    bool HasField() const { return field_ < fields_.size(); }
    // The next value. May go on to a later line, also past the last one.
    std::u16string_view TakeField();

private:
    std::u16string_view TakeQuotedField();
    bool SplitLine();

    std::vector<std::u16string_view> lines_;
    std::vector<std::u16string_view> fields_;
    std::size_t line_ = 0;
    std::size_t field_ = 0;
    std::u16string quoted_;
};

} // namespace vornix
