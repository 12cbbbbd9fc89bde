// What a cell shows of a database's value.
#pragma once

#include "vornix/sqlite/statement.h"

#include <string>

namespace vornix::viewer {

// Empty for a null, <blob, N bytes> for a blob; a NUL in a text is the picture of one, since a cell's text ends at a real
// one. Raises sqlite::Error.
std::u16string TextOfValue(const sqlite::Statement& statement, int column);

} // namespace vornix::viewer
