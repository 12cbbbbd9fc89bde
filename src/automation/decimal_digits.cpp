#include "automation/decimal_digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace vornix {

namespace {

void TrimZeros(DecimalDigits& number)
{
    number.digits.erase(number.digits.find_last_not_of('0') + 1);
    const std::size_t first = number.digits.find_first_not_of('0');
    if (first == std::string::npos) {
        number.digits.clear();
        number.point = 0;
        return;
    }
    number.digits.erase(0, first);
    number.point -= static_cast<int>(first);
}

} // namespace

DecimalDigits ToDecimalDigits(double value)
{
    // d.dddddddddddddde[+-]xx
    char buffer[40];
    const auto [end, error]
        = std::to_chars(std::begin(buffer), std::end(buffer), std::fabs(value), std::chars_format::scientific, 14);
    DecimalDigits number;
    number.isNegative = value < 0;
    number.digits = std::string(buffer, 1) + std::string(buffer + 2, 14);
    const char* exponentText = buffer + 17;
    int exponent = 0;
    std::from_chars(exponentText + (*exponentText == '+'), end, exponent);
    number.point = exponent + 1;
    TrimZeros(number);
    return number;
}

void DecimalDigits::RoundToPlaces(int places)
{
    const int kept = point + places;
    if (kept >= static_cast<int>(digits.size()))
        return;
    if (kept < 0) {
        *this = { isNegative, {}, 0 };
        return;
    }
    const bool roundsUp = digits[static_cast<std::size_t>(kept)] >= '5';
    digits.resize(static_cast<std::size_t>(kept));
    if (roundsUp) {
        digits.insert(0, 1, '0');
        ++point;
        std::size_t at = digits.size() - 1;
        for (; digits[at] == '9'; --at)
            digits[at] = '0';
        ++digits[at];
    }
    TrimZeros(*this);
}

std::string DecimalDigits::IntegerPart() const
{
    if (point <= 0)
        return {};
    std::string part = digits.substr(0, static_cast<std::size_t>(point));
    part.resize(static_cast<std::size_t>(point), '0');
    return part;
}

std::string DecimalDigits::FractionPart(int places) const
{
    std::string part;
    if (point < 0)
        part.assign(static_cast<std::size_t>(-point), '0');
    part += point > 0 ? digits.substr(std::min(digits.size(), static_cast<std::size_t>(point))) : digits;
    part.resize(static_cast<std::size_t>(places), '0');
    return part;
}

} // namespace vornix
