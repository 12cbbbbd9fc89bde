// What the program says on standard error.
#pragma once

#include <string_view>

namespace vornix::viewer {

// One line: "vornix-view: " and the message, control characters as spaces.
void ReportLine(std::string_view message);

} // namespace vornix::viewer
