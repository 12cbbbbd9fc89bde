// A place for a picture that nobody named.
#pragma once

#include <string>

namespace vornix::viewer {

// A file name in a new folder that only this user may enter, so that nobody can have put a link there. The folder is
// in the one for temporary files. Throws std::runtime_error with a line for the reader.
std::string MakePrivatePath(const std::string& fileName);

} // namespace vornix::viewer
