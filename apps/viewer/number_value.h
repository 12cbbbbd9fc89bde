// What a text that is a number is worth.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vornix::viewer {

enum class DecimalMark { Point, Comma };

// 0.DIGITS times ten to the power of the exponent; exact, whatever its length.
struct DecimalNumber {
    bool isNegative = false;
    std::u16string digits = {}; // none for zero; the first and the last are no zero
    int exponent = 0;
};

// As people and programs write it: with groups, a currency, a percent sign, an exponent, brackets around a negative
// amount. Nothing where the text is no number.
std::optional<DecimalNumber> NumberIn(std::u16string_view text, DecimalMark mark);

} // namespace vornix::viewer
