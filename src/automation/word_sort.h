// The built-in word order: symbols, digits, letters; accents count after letters, hyphen and apostrophe last, case
// never.
#pragma once

#include <string_view>

namespace vornix {

// Negative, 0 or positive.
int CompareWordSort(std::u16string_view a, std::u16string_view b);

// The last step of the order alone: hyphens and apostrophes of two texts that are equal without them.
int CompareWordMarks(std::u16string_view a, std::u16string_view b);

// Hyphens and apostrophes: they decide only between texts that are equal otherwise.
bool IsWordMark(char16_t unit);

// The symbols of ASCII and Latin-1 in their order.
std::u16string_view WordSortSymbols();

} // namespace vornix
