#include "notices.h"

#include "digit_groups.h"

#include <gtest/gtest.h>

using namespace vornix::viewer;

TEST(WithDigitGroups, PutsCommasBetweenThousands)
{
    EXPECT_EQ(WithDigitGroups(std::string("1234567")), "1,234,567");
    EXPECT_EQ(WithDigitGroups(std::string("999")), "999");
    EXPECT_EQ(WithDigitGroups(std::u16string(u"-1234.5678")), u"-1,234.5678");
    EXPECT_EQ(WithDigitGroups(std::u16string(u"-123.50")), u"-123.50");
    EXPECT_EQ(WithDigitGroups(std::u16string()), u"");
}

TEST(Counted, WritesOneAndMany)
{
    EXPECT_EQ(Counted(0, "row"), "0 rows");
    EXPECT_EQ(Counted(1, "row"), "1 row");
    EXPECT_EQ(Counted(1200, "row"), "1,200 rows");
}
