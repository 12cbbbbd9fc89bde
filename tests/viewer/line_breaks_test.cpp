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

TEST(LineBreaks, OfATextThatIsTypedAnewStayWhereItSaysTheSame)
{
    EXPECT_EQ(WithLineBreaksOf(u"a\nb\r\nc\rd", u"a\r\nb\r\nx\r\nc\r\nd", u""), u"a\nb\r\nx\nc\rd");
    EXPECT_EQ(WithLineBreaksOf(u"a\nb\rc", u"a\r\nb\r\nc", u"\r\n"), u"a\nb\rc");
    EXPECT_EQ(WithLineBreaksOf(u"a\r\n\n", u"a\r\n", u""), u"a\r\n");
    EXPECT_EQ(WithLineBreaksOf(u"a\nb\rc", u"other", u""), u"other");
    EXPECT_EQ(WithLineBreaksOf(u"aa", u"a", u""), u"a");
    EXPECT_EQ(WithLineBreaksOf(u"", u"", u"\n"), u"");
}

TEST(LineBreaks, OfATextThatHadNoneAreTheOtherOne)
{
    EXPECT_EQ(WithLineBreaksOf(u"ab", u"a\r\nb", u"\n"), u"a\nb");
    EXPECT_EQ(WithLineBreaksOf(u"ab", u"a\r\nb", u""), u"a\r\nb");
}

TEST(LineBreaks, NeverBecomeFewer)
{
    EXPECT_EQ(WithLineBreaksOf(u"a\nb\rc", u"a\r\nb\r\n\r\nx", u""), u"a\nb\n\nx")
        << "a CR that stayed would be one with the LF behind it";
}
