#include "date_pictures.h"

#include <gtest/gtest.h>

namespace vornix {

TEST(DatePictures, PatternsBecomePictures)
{
    EXPECT_EQ(ToDatePicture(u"EEEE, MMMM d, y"), u"dddd, MMMM d, yyyy");
    EXPECT_EQ(ToDatePicture(u"dd.MM.yy"), u"dd.MM.yy");
    EXPECT_EQ(ToDatePicture(u"h:mm:ss a"), u"h:mm:ss tt");
    EXPECT_EQ(ToDatePicture(u"EEEE d 'de' MMMM 'de' y"), u"dddd d 'de' MMMM 'de' yyyy");
    EXPECT_EQ(ToDatePicture(u"y\u5E74M\u6708d\u65E5EEEE"), u"yyyy\u5E74M\u6708d\u65E5dddd");
    EXPECT_EQ(ToDatePicture(u"ccc d LLLLL G"), u"ddd d MMM ");
    EXPECT_EQ(ToDatePicture(u"'open"), u"'open");
    EXPECT_EQ(ToDatePicture(u""), u"");
}

TEST(DatePictures, YearsCanBeFull)
{
    EXPECT_EQ(WithFullYears(u"dd.MM.yy"), u"dd.MM.yyyy");
    EXPECT_EQ(WithFullYears(u"yyyy-MM-dd"), u"yyyy-MM-dd");
    EXPECT_EQ(WithFullYears(u"d 'yy' yy"), u"d 'yy' yyyy");
}

TEST(DatePictures, OrderAndSeparatorAreRead)
{
    EXPECT_EQ(OrderOf(u"M/d/yyyy"), DateOrder::MonthDayYear);
    EXPECT_EQ(OrderOf(u"d.M.yyyy"), DateOrder::DayMonthYear);
    EXPECT_EQ(OrderOf(u"yyyy-MM-dd"), DateOrder::YearMonthDay);
    EXPECT_EQ(SeparatorOf(u"d. M. yyyy", u"/"), u".");
    EXPECT_EQ(SeparatorOf(u"yyyy-MM-dd", u"/"), u"-");
    EXPECT_EQ(SeparatorOf(u"HH 'h' mm", u":"), u":");
    EXPECT_EQ(SeparatorOf(u"HH", u":"), u":");
    EXPECT_EQ(SeparatorOf(u"", u":"), u":");
}

TEST(DatePictures, DirectionMarksGo)
{
    EXPECT_EQ(WithoutDirectionMarks(u"d\u200F/M\u200F/y"), u"d/M/y");
    EXPECT_EQ(WithoutDirectionMarks(u"h:mm\u202Fa"), u"h:mm a");
}

} // namespace vornix
