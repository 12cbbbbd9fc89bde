#include "progress_line.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace vornix::viewer;
using namespace std::chrono_literals;

namespace {

struct Stage {
    std::ostringstream terminal;
    std::chrono::steady_clock::time_point now {};
    ProgressLine line { terminal, "a.csv", [this] { return now; } };

    // What an update after this much time writes.
    std::string After(std::chrono::milliseconds time, const Progress& progress)
    {
        now += time;
        terminal.str("");
        line.Update(progress);
        return terminal.str();
    }
};

} // namespace

TEST(ProgressLine, WritesNothingInTheFirstHalfSecond)
{
    std::ostringstream terminal;
    std::chrono::steady_clock::time_point now {};
    {
        ProgressLine line(terminal, "a.csv", [&] { return now; });
        now += 499ms;
        line.Update({ 5, 1, 2 });
    }
    EXPECT_EQ(terminal.str(), "");
}

TEST(ProgressLine, WritesAtMostTenTimesASecond)
{
    Stage stage;
    EXPECT_EQ(stage.After(500ms, { 12345, 45, 100 }), "\r\x1b[KLoading a.csv: 12,345 rows, 45 %");
    EXPECT_EQ(stage.After(99ms, { 12346, 46, 100 }), "");
    EXPECT_EQ(stage.After(1ms, { 12347, 47, 100 }), "\r\x1b[KLoading a.csv: 12,347 rows, 47 %");
}

TEST(ProgressLine, WipesItselfAtTheEnd)
{
    std::ostringstream terminal;
    std::chrono::steady_clock::time_point now {};
    {
        ProgressLine line(terminal, "a.csv", [&] { return now; });
        now += 2s;
        line.Update({ 1, 0, 0 });
        terminal.str("");
    }
    EXPECT_EQ(terminal.str(), "\r\x1b[K");
}

TEST(ProgressLine, LeavesOutTheShareWhenTheWholeIsNotKnown)
{
    EXPECT_EQ(ProgressLine::Describe("x.db", { 1, 0, 0 }), "Loading x.db: 1 row");
    EXPECT_EQ(ProgressLine::Describe("x.csv", { 0, 300, 200 }), "Loading x.csv: 0 rows, 100 %");
}

TEST(ProgressLine, ShowsControlCharactersOfTheNameAsSpaces)
{
    EXPECT_EQ(ProgressLine::Describe("a\n\x1b[2Jb.csv", { 2, 0, 0 }), "Loading a  [2Jb.csv: 2 rows");
}
