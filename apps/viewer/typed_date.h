// Dates as a form with a place for each digit takes them.
#pragma once

#include <string_view>

namespace vornix::viewer {

inline constexpr std::u16string_view DateMask = u"0000-00-00";

// A day of the calendar as 2024-03-05, with nothing around it.
bool IsWholeDate(std::u16string_view text);

// Without a single digit, as the form is before something is typed; an empty text too.
bool IsBlankDate(std::u16string_view text);

} // namespace vornix::viewer
