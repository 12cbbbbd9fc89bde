// The characters that are space in a value.
#pragma once

#include <string_view>

namespace vornix::viewer {

// The last three do not break a line, or are narrow: they group the digits of numbers.
inline constexpr std::u16string_view Blanks = u"\t \u00A0\u202F\u2009";
// Those within a value: a tab is not.
inline constexpr std::u16string_view Spaces = Blanks.substr(1);

constexpr bool IsSpace(char16_t unit)
{
    return Spaces.find(unit) != std::u16string_view::npos;
}

inline bool IsBlank(std::u16string_view text)
{
    return text.find_first_not_of(Blanks) == std::u16string_view::npos;
}

} // namespace vornix::viewer
