// A number as the decimal digits that a person sees: 15 significant ones, so that 99.995 rounds up.
#pragma once

#include <string>

namespace vornix {

struct DecimalDigits {
    bool isNegative = false;
    // No zeros at either end; empty for zero.
    std::string digits;
    // How many of the digits stand left of the point; negative for zeros between point and digits.
    int point = 0;

    bool IsZero() const { return digits.empty(); }
    // Ties go away from zero.
    void RoundToPlaces(int places);
    std::string IntegerPart() const;
    // Exactly `places` digits of a number rounded to as many.
    std::string FractionPart(int places) const;
};

// The value is finite.
DecimalDigits ToDecimalDigits(double value);

} // namespace vornix
