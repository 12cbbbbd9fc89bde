// How a text file is laid out: its separator, and whether its first row holds the column names.
#pragma once

#include "table.h"

#include <string_view>

namespace vornix::viewer {

// Tab, semicolon, bar or comma, by which of them splits the rows of the sample into the same number of fields most
// often; 0 when none splits most of them: the file is one column. `isWholeFile` says that the sample's last line is
// complete.
char16_t GuessSeparator(std::u16string_view sample, bool isWholeFile);

// The first rows, which HasHeader looks at.
inline constexpr int HeaderSample = 200;

// By comparing the table's first row with the ones below it: names stand over numbers, dates and truth values without
// being any. Where every column is text, a first row of different, short texts is a header.
bool HasHeader(const Table& table);

} // namespace vornix::viewer
