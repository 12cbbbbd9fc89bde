// Commas between the thousands of a number.
#pragma once

#include <algorithm>
#include <string>

namespace vornix::viewer {

// -1234567.89 as -1,234,567.89. The number is a plain decimal: digits, with or without a minus sign and a point.
template <typename Character> std::basic_string<Character> WithDigitGroups(std::basic_string<Character> number)
{
    const std::size_t firstDigit = number.starts_with(Character('-')) ? 1 : 0;
    for (std::size_t end = std::min(number.find(Character('.')), number.size()); end > firstDigit + 3; end -= 3)
        number.insert(end - 3, 1, Character(','));
    return number;
}

} // namespace vornix::viewer
