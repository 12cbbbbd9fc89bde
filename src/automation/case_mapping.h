// Upper and lower case of the alphabets that have it, one code unit to one code unit, without a library.
#pragma once

namespace vornix {

char16_t SimpleLower(char16_t unit);
char16_t SimpleUpper(char16_t unit);

} // namespace vornix
