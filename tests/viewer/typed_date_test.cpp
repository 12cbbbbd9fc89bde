#include "typed_date.h"

#include <gtest/gtest.h>

using namespace vornix::viewer;

TEST(TypedDate, IsWholeWithEachDigitAndADayOfTheCalendar)
{
    EXPECT_TRUE(IsWholeDate(u"2024-02-29"));
    EXPECT_FALSE(IsWholeDate(u"2023-02-29")) << "no leap year";
    EXPECT_FALSE(IsWholeDate(u"2024-13-01"));
    EXPECT_FALSE(IsWholeDate(u"2024-1_-__"));
    EXPECT_FALSE(IsWholeDate(u"2024-1 -  "));
    EXPECT_FALSE(IsWholeDate(u"2024/02/03"));
    EXPECT_FALSE(IsWholeDate(u"2024-2-3"));
    EXPECT_FALSE(IsWholeDate(u"2024-02-03 12:00"));
    EXPECT_FALSE(IsWholeDate(u" 2024-02-03"));
    EXPECT_FALSE(IsWholeDate(u""));
}

TEST(TypedDate, IsBlankWithoutADigit)
{
    EXPECT_TRUE(IsBlankDate(u""));
    EXPECT_TRUE(IsBlankDate(u"____-__-__"));
    EXPECT_TRUE(IsBlankDate(u"    -  -  "));
    EXPECT_FALSE(IsBlankDate(u"____-__-_1"));
}
