#include "model/redraw_gate.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vornix {
namespace {

TEST(RedrawGateTest, StartsClosedWithRedrawOn)
{
    const RedrawGate gate;
    EXPECT_FALSE(gate.IsOpen());
    EXPECT_TRUE(gate.Redraw());
}

TEST(RedrawGateTest, AClosedScopePutsBackTheSettingNotTheStateItFound)
{
    RedrawGate gate;
    {
        const RedrawGate::Closed closed(gate);
        EXPECT_FALSE(gate.IsOpen());
    }
    EXPECT_TRUE(gate.IsOpen());
    gate.SetRedraw(false);
    {
        const RedrawGate::Closed closed(gate);
    }
    EXPECT_FALSE(gate.IsOpen());
}

TEST(RedrawGateTest, AnOpenedScopeIsOpenWhateverTheSettingAndPutsItBack)
{
    RedrawGate gate;
    gate.SetRedraw(false);
    {
        const RedrawGate::Opened opened(gate);
        EXPECT_TRUE(gate.IsOpen());
    }
    EXPECT_FALSE(gate.IsOpen());
    gate.SetRedraw(true);
    {
        const RedrawGate::Opened opened(gate);
    }
    EXPECT_TRUE(gate.IsOpen());
}

TEST(RedrawGateTest, AnExceptionPutsTheSettingBackToo)
{
    RedrawGate gate;
    try {
        const RedrawGate::Closed closed(gate);
        throw std::runtime_error("step failed");
    } catch (const std::runtime_error&) {
    }
    EXPECT_TRUE(gate.IsOpen());
}

} // namespace
} // namespace vornix
