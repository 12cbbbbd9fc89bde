// A day number taken apart, and put together: the calendar behind dates.
#pragma once

namespace vornix {

// The first and the last day that a date can be, and the first day past it.
inline constexpr int FirstDay = -657434; // 1 January 100
inline constexpr int LastDay = 2958465; // 31 December 9999

struct DateFields {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int weekday = 6; // 0 is Sunday
    int dayOfYear = 364; // 1 is 1 January

    bool HasTime() const { return hour != 0 || minute != 0 || second != 0; }
    // Day 0 stands for "no date".
    bool HasDate() const { return !(year == 1899 && month == 12 && day == 30); }
};

bool IsValidDate(int year, int month, int day);

// Days since 30 December 1899.
int DayNumber(int year, int month, int day);

// The time of day counts away from zero: 6 in the morning of day -1 is -1.25.
double JoinDate(int dayNumber, int secondOfDay);

bool IsDateInRange(double date);

// To the nearest second. The date is in range.
DateFields SplitDate(double date);

// 1 to 53; the week with 1 January is the first, weeks start on `firstDayOfWeek` (0 is Sunday).
int WeekOfYear(const DateFields& fields, int firstDayOfWeek);

} // namespace vornix
