// A table as tab separated values.
#pragma once

#include "table.h"

#include <ostream>

namespace vornix::viewer {

// UTF-8, the column names first, lines ended by LF. A field with a tab, a line break or a leading quotation mark
// stands in quotes, inner ones doubled; so does an empty text, since nothing at all means a null. Truth values are
// written as true and false.
void WriteAsText(const Table& table, std::ostream& output);

} // namespace vornix::viewer
