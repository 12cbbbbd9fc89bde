#include "automation/checked.h"

#include "automation/reference_table.h"

#include <gtest/gtest.h>

#include <vector>

namespace vornix {

using test::ErrorOf;

TEST(Checked, SixteenBitsOverflowWithErrorSix)
{
    EXPECT_EQ(AddI16(32766, 1), 32767);
    EXPECT_EQ(SubtractI16(-32767, 1), -32768);
    EXPECT_EQ(MultiplyI16(-256, 128), -32768);
    EXPECT_EQ(ErrorOf([] { AddI16(32767, 1); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { SubtractI16(-32768, 1); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { MultiplyI16(256, 128); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { ToI16(-32769); }), ErrorNumber::Overflow);
}

TEST(Checked, ThirtyTwoBitsOverflowWithErrorSix)
{
    EXPECT_EQ(AddI32(2147483646, 1), 2147483647);
    EXPECT_EQ(MultiplyI32(-65536, 32768), -2147483647 - 1);
    EXPECT_EQ(ErrorOf([] { AddI32(2147483647, 1); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { SubtractI32(-2147483647, 2); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { MultiplyI32(65536, 32768); }), ErrorNumber::Overflow);
}

TEST(Checked, FloatsRoundToTheNearestTiesToTheEvenOne)
{
    EXPECT_EQ(RoundToI16(0.5), 0);
    EXPECT_EQ(RoundToI16(1.5), 2);
    EXPECT_EQ(RoundToI16(-2.5), -2);
    EXPECT_EQ(RoundToI16(32767.4), 32767);
    EXPECT_EQ(RoundToI16(-32768.5), -32768);
    EXPECT_EQ(RoundToI32(2147483647.4), 2147483647);
    EXPECT_EQ(ErrorOf([] { RoundToI16(32767.5); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { RoundToI32(2147483647.5); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { RoundToI32(std::numeric_limits<double>::quiet_NaN()); }), ErrorNumber::Overflow);
}

TEST(Checked, SubscriptsOutsideAreErrorNine)
{
    EXPECT_EQ(CheckedIndex(0, 3), 0);
    EXPECT_EQ(CheckedIndex(2, 3), 2);
    EXPECT_EQ(ErrorOf([] { CheckedIndex(3, 3); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([] { CheckedIndex(-1, 3); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([] { CheckedIndex(0, 0); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(Checked, ArgumentsAndMemory)
{
    EXPECT_EQ(ErrorOf([] { CheckArgument(true); }), 0);
    EXPECT_EQ(ErrorOf([] { CheckArgument(false); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(OrOutOfMemory([] { return 5; }), 5);
    std::vector<int> numbers;
    EXPECT_EQ(
        ErrorOf([&] { OrOutOfMemory([&] { numbers.resize(numbers.max_size() + 1); }); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(ErrorOf([] { OrOutOfMemory([] { throw std::bad_alloc(); }); }), ErrorNumber::OutOfMemory);
}

TEST(Checked, EveryErrorHasADescription)
{
    for (const int number : { 5, 6, 7, 9, 13, 94, 438, 445, 450 }) {
        const AutomationError error(number);
        EXPECT_EQ(error.Number(), number);
        EXPECT_EQ(error.Description().find("Automation error"), std::string::npos);
        EXPECT_STREQ(error.what(), error.Description().c_str());
    }
    EXPECT_EQ(AutomationError(1234).Description(), "Automation error 1234");
    EXPECT_EQ(AutomationError(5, "own words").Description(), "own words");
}

} // namespace vornix
