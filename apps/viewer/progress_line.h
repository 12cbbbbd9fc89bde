// How far loading is, on one line of a terminal.
#pragma once

#include "loading.h"

#include <chrono>
#include <functional>
#include <ostream>
#include <string>

namespace vornix::viewer {

// Nothing is written before half a second has passed, then at most ten times a second. The line is wiped when the
// object goes, so that what follows begins on a clean one.
class ProgressLine {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    ProgressLine(std::ostream& terminal, std::string what, Clock clock = std::chrono::steady_clock::now);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void Update(const Progress& progress);
    // "Loading sales.csv: 1,200,000 rows, 45 %"
    static std::string Describe(const std::string& what, const Progress& progress);

private:
    std::ostream& terminal_;
    std::string what_;
    Clock clock_;
    std::chrono::steady_clock::time_point next_; // when to write again
    bool isShown_ = false;
};

} // namespace vornix::viewer
