// Dates and times as people and programs write them.
#pragma once

#include "cell_content.h"

#include <cstdint>
#include <optional>

namespace vornix::viewer {

// The date kinds of a text in upper case without outer blanks: 2024-03-05, 2024/3/5, 5.3.2024, 3/5/2024, 5 Mar 2024,
// Mar 5, 2024, each with or without a time such as 14:30, 2:30:15 PM or T14:30:15.250+01:00.
Content DateContentOf(std::u16string_view text);

// How 5/3/2024 is read where both would be dates.
enum class DayOrder { DayFirst, MonthFirst };

// A place in time, in any of these writings. A date without a time is its first second; a year of two digits is one from
// 1970 to 2069.
struct Moment {
    std::int64_t seconds = 0; // from the year 1 on, of the zone that is written or of none
    int nanoseconds = 0;
    // The only one that it can have been written in, if it is not both.
    std::optional<DayOrder> order = {};
};
std::optional<Moment> MomentIn(std::u16string_view text, DayOrder order);

} // namespace vornix::viewer
