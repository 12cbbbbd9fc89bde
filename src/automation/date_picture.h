// Writes dates and times in the pictures of a locale.
#pragma once

#include "automation/date_fields.h"
#include "vornix/platform/locale.h"

#include <string>
#include <string_view>

namespace vornix {

std::u16string FormatDatePicture(const DateFields& fields, std::u16string_view picture, const DateSymbols& symbols);

// The short date, the long time when there is one; the time alone on day 0, where no time is midnight.
std::u16string GeneralDateText(const DateFields& fields, const DateSymbols& symbols);

// The picture without its seconds, and the separator before them.
std::u16string WithoutSeconds(std::u16string_view timePicture);

// At least `width` digits.
std::u16string DigitText(int value, int width);

} // namespace vornix
