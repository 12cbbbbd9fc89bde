// The characters that are space in a value.
#pragma once

#include <string_view>

namespace vornix::viewer {

// The last three do not break a line, or are narrow: they group the digits of numbers.
inline constexpr std::u16string_view Blanks = u" \t\u00A0\u202F\u2009";

inline bool IsBlank(std::u16string_view text)
{
    return text.find_first_not_of(Blanks) == std::u16string_view::npos;
}

} // namespace vornix::viewer
