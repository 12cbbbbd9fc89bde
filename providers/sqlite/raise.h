// Turns the engine's result codes into Error.
#pragma once

#include "vornix/sqlite/error.h"

#include <sqlite3.h>

namespace vornix::sqlite {

// The error for the last failing call on the connection, which may be null when memory ran out.
Error ErrorOf(sqlite3* connection, int resultCode);

} // namespace vornix::sqlite
