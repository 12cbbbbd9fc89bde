#include "line_breaks.h"

#include <gtest/gtest.h>

using namespace vornix::viewer;

TEST(LineBreaks, AreFoundInEveryWriting)
{
    EXPECT_EQ(LineBreakOf(u"a\r\nb\n"), u"\r\n");
    EXPECT_EQ(LineBreakOf(u"\n\r"), u"\n");
    EXPECT_EQ(LineBreakOf(u"a\rb"), u"\r");
    EXPECT_EQ(LineBreakOf(u"a\r"), u"\r");
    EXPECT_EQ(LineBreakOf(u"a"), u"");
    EXPECT_EQ(LineBreakOf(u""), u"");
}

TEST(LineBreaks, AreAllWrittenAlike)
{
    EXPECT_EQ(WithLineBreaks(u"a\r\nb\rc\n\nd", u"\r\n"), u"a\r\nb\r\nc\r\n\r\nd");
    EXPECT_EQ(WithLineBreaks(u"a\r\n\r\n", u"\n"), u"a\n\n");
    EXPECT_EQ(WithLineBreaks(u"a", u"\n"), u"a");
    EXPECT_EQ(WithLineBreaks(u"", u"\n"), u"");
}
