// What the program says on standard error.
#pragma once

#include <functional>
#include <string_view>

namespace vornix::viewer {

// One line: "vornix-view: " and the message, control characters as spaces.
void ReportLine(std::string_view message);

// The exit status of a program that does this: 0, or 1 after a line about the exception that ended it.
int StatusOf(const std::function<void()>& step);

} // namespace vornix::viewer
