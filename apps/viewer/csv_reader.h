// Reads a text file of separated values.
#pragma once

#include "loading.h"
#include "table.h"

namespace vornix::viewer {

class InputFile;

// Finds out encoding, separator and header by looking, then reads the file to its end, so that every fault in it is
// found and every row counted. Raises LoadError, for rows that differ in their number of fields too.
Table ReadCsv(InputFile& file, const LoadLimits& limits, const ProgressFunction& progress);

} // namespace vornix::viewer
