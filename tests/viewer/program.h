// Runs vornix-view and keeps what it wrote.
#pragma once

#include <string>
#include <vector>

namespace vornix::viewer {

struct ProgramResult {
    int status = -1; // 128 + the signal's number when one ended it
    std::string output;
    std::string error;
};

// The streams go to files in a scratch folder, so that nothing can block.
ProgramResult RunViewer(const std::vector<std::string>& arguments);

// In an environment of these variables, NAME=VALUE, and no other.
ProgramResult RunViewerIn(const std::vector<std::string>& environment, const std::vector<std::string>& arguments);

} // namespace vornix::viewer
