// Reads a text as a number: signs, brackets, currency, grouping, exponents, hexadecimal and octal forms.
#pragma once

#include "vornix/platform/locale.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vornix {

struct ParsedNumber {
    enum class Kind { Decimal, Bits };

    Kind kind = Kind::Decimal;
    bool isNegative = false;
    // Decimal: ASCII digits with at most one '.' and an exponent, without a sign.
    std::string digits;
    // Bits: what a hexadecimal or octal text holds.
    std::uint64_t bits = 0;
};

// Nothing when the text is no number.
std::optional<ParsedNumber> ParseNumber(std::u16string_view text, const Locale& locale);

} // namespace vornix
