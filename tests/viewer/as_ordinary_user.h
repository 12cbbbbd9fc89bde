// A step as somebody whom permissions and limits hold back.
#pragma once

#include <functional>
#include <string>

namespace vornix::viewer {

// Runs the step in a process of its own, as a user without privileges where the tests are run by the superuser, and
// gives what the step gave; the words of what it threw; or how the process ended.
std::string AsOrdinaryUser(const std::function<std::string()>& step);

} // namespace vornix::viewer
