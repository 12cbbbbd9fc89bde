#include "report.h"

#include "vornix/automation.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

using namespace vornix;
using namespace vornix::viewer;

namespace {

// What ends up on standard error; the status must be 1.
std::string LineAbout(const std::function<void()>& step)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(StatusOf(step), 1);
    return testing::internal::GetCapturedStderr();
}

} // namespace

TEST(StatusOf, IsZeroAndSilentWhenAllIsWell)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(StatusOf([] {}), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(StatusOf, TurnsEveryExceptionIntoOneLine)
{
    EXPECT_EQ(LineAbout([] { throw std::runtime_error("it is\nfull"); }), "vornix-view: it is full\n");
    EXPECT_EQ(LineAbout([] { throw AutomationError(380, "a bad value"); }), "vornix-view: a bad value\n");
    EXPECT_EQ(LineAbout([] { throw std::bad_alloc(); }), "vornix-view: it does not fit into memory\n");
}
