#include "automation/date_fields.h"

#include <chrono>
#include <cmath>

namespace vornix {

namespace {

namespace chrono = std::chrono;

constexpr chrono::sys_days Epoch = chrono::year(1899) / 12 / 30;
constexpr int SecondsPerDay = 86400;

chrono::year_month_day ToCalendar(int year, int month, int day)
{
    return chrono::year(year) / month / day;
}

} // namespace

bool IsValidDate(int year, int month, int day)
{
    return year >= 100 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 && day <= 31
        && ToCalendar(year, month, day).ok();
}

int DayNumber(int year, int month, int day)
{
    return static_cast<int>((chrono::sys_days(ToCalendar(year, month, day)) - Epoch).count());
}

double JoinDate(int dayNumber, int secondOfDay)
{
    const double time = static_cast<double>(secondOfDay) / SecondsPerDay;
    return dayNumber < 0 ? dayNumber - time : dayNumber + time;
}

bool IsDateInRange(double date)
{
    return date > FirstDay - 1 && date < LastDay + 1;
}

DateFields SplitDate(double date)
{
    int dayNumber = static_cast<int>(date);
    int secondOfDay = static_cast<int>(std::lround(std::fabs(date - dayNumber) * SecondsPerDay));
    if (secondOfDay == SecondsPerDay) {
        secondOfDay = dayNumber < LastDay ? 0 : SecondsPerDay - 1;
        dayNumber += dayNumber < LastDay;
    }

    const chrono::sys_days days = Epoch + chrono::days(dayNumber);
    const chrono::year_month_day calendar(days);
    DateFields fields;
    fields.year = static_cast<int>(calendar.year());
    fields.month = static_cast<int>(static_cast<unsigned>(calendar.month()));
    fields.day = static_cast<int>(static_cast<unsigned>(calendar.day()));
    fields.hour = secondOfDay / 3600;
    fields.minute = secondOfDay / 60 % 60;
    fields.second = secondOfDay % 60;
    fields.weekday = static_cast<int>(chrono::weekday(days).c_encoding());
    fields.dayOfYear = dayNumber - DayNumber(fields.year, 1, 1) + 1;
    return fields;
}

int WeekOfYear(const DateFields& fields, int firstDayOfWeek)
{
    // How many days of its week lie before 1 January.
    const int weekdayOfNewYear = ((fields.weekday - (fields.dayOfYear - 1)) % 7 + 7) % 7;
    const int daysBefore = (weekdayOfNewYear - firstDayOfWeek + 7) % 7;
    return (fields.dayOfYear - 1 + daysBefore) / 7 + 1;
}

} // namespace vornix
