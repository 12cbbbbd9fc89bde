#include "textbox/mask_pair.h"

#include <gtest/gtest.h>

#include <random>

using namespace vornix;

namespace {

TEST(MaskEngineRandomTest, AgreesWithThePlainModel)
{
    constexpr unsigned Runs = 1500;
    constexpr int Steps = 200;
    for (unsigned seed = 1; seed <= Runs; ++seed) {
        std::mt19937 random(seed);
        MaskPair pair([&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); });
        for (int step = 0; step < Steps; ++step) {
            pair.Step();
            ASSERT_EQ(pair.Difference(), "") << "seed " << seed << "\n" << pair.Story();
        }
    }
}

} // namespace
