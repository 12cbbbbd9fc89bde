// Attributes that are broadcast into a line of cells, in one table for columns and one for rows.
#pragma once

#include "control/grid_fixture.h"

namespace vornix {

enum class Reach {
    // Up to and with the filler.
    All,
    // Up to the last real cell.
    Real,
    // Up to the last real cell, never in fixed lines.
    RealNotFixed,
    // Margins of a row: up to the filler, as many columns left out as there are fixed rows.
    BehindFixedRowCount
};

struct LineCase {
    const char* name;
    std::function<void(Vornix&, i16 line)> write;
    // Whether a cell carries what `write` wrote.
    std::function<bool(const Vornix&, i16 Row, i16 Col)> isWritten;
    Reach reach = Reach::All;
    // Columns: new rows take the value.
    bool writesDefaults = true;
    bool refreshes = true;
};

inline void PrintTo(const LineCase& test, std::ostream* out)
{
    *out << test.name;
}

} // namespace vornix
