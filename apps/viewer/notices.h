// The wording of what a reader is told beside the table.
#pragma once

#include "table.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vornix::viewer {

// 1234567 as 1,234,567.
std::string WithGroups(std::uint64_t number);

// "1 row", "1,200 rows".
std::string Counted(std::uint64_t number, std::string_view noun);

// Adds "the first 32,766 of 100,000 rows are shown" where the table does not hold all of them.
void AddMissingRowsNotice(Table& table);

} // namespace vornix::viewer
