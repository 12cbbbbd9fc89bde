// Reads a text file of separated values.
#pragma once

#include "csv_layout.h"
#include "loading.h"
#include "table.h"

namespace vornix::viewer {

class InputFile;

// Finds out encoding, separator and header by looking, then reads the file to its end, so that every fault in it is
// found and every row counted. Raises LoadError, for rows that differ in their number of fields too. `layout` takes what
// is needed to write the file again, unless it is null.
Table ReadCsv(InputFile& file, const LoadLimits& limits, const ProgressFunction& progress, CsvLayout* layout = nullptr);

// Encoding, separator and marker alone, by which ReadCsv would read the file. Raises LoadError.
CsvLayout GuessLayout(InputFile& file);

} // namespace vornix::viewer
