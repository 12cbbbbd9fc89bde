// A number as its decimal digits: all of an exact one; of a float the 15 significant ones that a person sees, so that
// 99.995 rounds up.
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
    // Ties go to the even digit.
    void RoundToEvenPlaces(int places);
    // Takes the zeros off both ends.
    void TrimZeros();
    std::string IntegerPart() const;
    // Exactly `places` digits of a number rounded to as many.
    std::string FractionPart(int places) const;

private:
    void CutDigits(int kept, bool roundsUp);
};

// The value is finite. A single has 7 significant digits.
DecimalDigits ToDecimalDigits(double value, int significantDigits = 15);

} // namespace vornix
