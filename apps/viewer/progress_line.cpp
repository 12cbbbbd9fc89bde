#include "progress_line.h"

#include "notices.h"
#include "unicode.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

constexpr std::chrono::milliseconds Patience(500);
constexpr std::chrono::milliseconds Interval(100);
constexpr const char* WipeLine = "\r\x1b[K";

} // namespace

ProgressLine::ProgressLine(std::ostream& terminal, std::string what, Clock clock)
    : terminal_(terminal)
    , what_(std::move(what))
    , clock_(std::move(clock))
    , next_(clock_() + Patience)
{
}

ProgressLine::~ProgressLine()
{
    if (isShown_)
        terminal_ << WipeLine << std::flush;
}

void ProgressLine::Update(const Progress& progress)
{
    const auto now = clock_();
    if (now < next_)
        return;
    next_ = now + Interval;
    isShown_ = true;
    terminal_ << WipeLine << Describe(what_, progress) << std::flush;
}

std::string ProgressLine::Describe(const std::string& what, const Progress& progress)
{
    std::string line = "Loading " + OneLine(what) + ": " + Counted(progress.rows, "row");
    if (progress.totalBytes > 0)
        line += ", " + std::to_string(std::min<std::uint64_t>(100, progress.bytes * 100 / progress.totalBytes)) + " %";
    return line;
}

} // namespace vornix::viewer
