#include "automation/decimal_digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string_view>

namespace vornix {

void DecimalDigits::TrimZeros()
{
    digits.erase(digits.find_last_not_of('0') + 1);
    const std::size_t first = digits.find_first_not_of('0');
    if (first == std::string::npos) {
        digits.clear();
        point = 0;
        return;
    }
    digits.erase(0, first);
    point -= static_cast<int>(first);
}

DecimalDigits ToDecimalDigits(double value, int significantDigits)
{
    // d.dddddddddddddde[+-]xx
    char buffer[40];
    const auto [end, error] = std::to_chars(
        std::begin(buffer), std::end(buffer), std::fabs(value), std::chars_format::scientific, significantDigits - 1);
    DecimalDigits number;
    number.isNegative = value < 0;
    number.digits = std::string(buffer, 1) + std::string(buffer + 2, static_cast<std::size_t>(significantDigits - 1));
    const char* exponentText = buffer + significantDigits + 2;
    int exponent = 0;
    std::from_chars(exponentText + (*exponentText == '+'), end, exponent);
    number.point = exponent + 1;
    number.TrimZeros();
    return number;
}

void DecimalDigits::RoundToPlaces(int places)
{
    const int kept = point + places;
    if (kept < static_cast<int>(digits.size()))
        CutDigits(kept, kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5');
}

void DecimalDigits::RoundToEvenPlaces(int places)
{
    const int kept = point + places;
    if (kept >= static_cast<int>(digits.size()))
        return;
    if (kept < 0)
        return CutDigits(kept, false);
    // No zeros stand at the end, so that a tie is a single 5.
    const std::string_view rest = std::string_view(digits).substr(static_cast<std::size_t>(kept));
    const bool isOdd = kept > 0 && (digits[static_cast<std::size_t>(kept - 1)] - '0') % 2 != 0;
    CutDigits(kept, rest == "5" ? isOdd : rest.front() >= '5');
}

// To the first `kept` digits, with one added to the last of them.
void DecimalDigits::CutDigits(int kept, bool roundsUp)
{
    if (kept < 0) {
        *this = { isNegative, {}, 0 };
        return;
    }
    digits.resize(static_cast<std::size_t>(kept));
    if (roundsUp) {
        digits.insert(0, 1, '0');
        ++point;
        std::size_t at = digits.size() - 1;
        for (; digits[at] == '9'; --at)
            digits[at] = '0';
        ++digits[at];
    }
    TrimZeros();
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
