// Date pictures out of the patterns of the locale data.
#pragma once

#include "vornix/platform/locale.h"

#include <string>
#include <string_view>

namespace vornix {

// A pattern of the locale data ("EEEE, d. MMMM y") as a picture ("dddd, d. MMMM yyyy").
std::u16string ToDatePicture(std::u16string_view pattern);

// The picture with four digits for every year.
std::u16string WithFullYears(std::u16string_view picture);

// The order of day, month and year in a picture.
DateOrder OrderOf(std::u16string_view picture);

// What stands between the first field of a picture and the next, blanks aside; `fallback` when that is a word or
// nothing.
std::u16string SeparatorOf(std::u16string_view picture, std::u16string_view fallback);

// The text without marks of writing direction, and with one kind of narrow blank less.
std::u16string WithoutDirectionMarks(std::u16string_view text);

} // namespace vornix
