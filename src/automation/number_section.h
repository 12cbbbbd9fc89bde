// One section of a number pattern, taken apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vornix {

struct NumberPiece {
    // Mandatory places show a zero where the number has no digit; optional ones show nothing.
    enum class Kind { Literal, Mandatory, Optional, Point, Exponent };

    Kind kind = Kind::Literal;
    std::u16string literal;

    bool IsPlace() const { return kind == Kind::Mandatory || kind == Kind::Optional; }
};

struct NumberSection {
    // The places left of the point come before the point piece.
    std::vector<NumberPiece> pieces;
    int integerPlaces = 0;
    int fractionPlaces = 0;
    // The section's fraction shows at least so many digits.
    int mandatoryFraction = 0;
    bool hasPoint = false;
    bool hasGroups = false;
    // Powers of ten that the number is multiplied by before it is written.
    int scale = 0;

    bool hasExponent = false;
    bool showsPlus = false;
    char16_t exponentLetter = u'E';
    int exponentWidth = 0;
};

NumberSection ParseNumberSection(std::u16string_view text);

} // namespace vornix
