// Where the sample database is.
#pragma once

#include <string>

namespace vornix::viewer {

// Beside the installed program, else in the source tree it was built from. Raises LoadError when it is in neither
// place.
std::string SamplePath();

} // namespace vornix::viewer
