// The locale of a person, out of ICU's data.
#pragma once

#include "vornix/platform/locale.h"

#include <memory>
#include <string_view>

namespace vornix {

// A name like "de-DE" or "de_DE"; empty for the locale of the running user. Digits are ASCII, the calendar is the
// Gregorian one, the sign of negative numbers is '-' everywhere. A name that ICU does not know gets the customs of the
// nearest one that it does; without any data the built-in ones stand in.
std::unique_ptr<Locale> MakeIcuLocale(std::string_view localeName = "");

} // namespace vornix
