// Conversions between UTF-8 and the UTF-16 of a table.
#pragma once

#include <string>
#include <string_view>

namespace vornix::viewer {

// Unpaired surrogates become U+FFFD.
std::string ToUtf8(std::u16string_view text);

// The text with U+FFFD for each unpaired surrogate.
std::u16string WellFormed(std::u16string_view text);

// Bytes that are no UTF-8 become U+FFFD, one for each.
std::u16string ToUtf16(std::string_view text);

// The length of the longest beginning of `bytes` that is well-formed UTF-8, with no overlong forms, no
// surrogates, nothing above U+10FFFF; its text is appended to `text`.
std::size_t AppendUtf8(std::string_view bytes, std::u16string& text);

// True when `bytes`, which is not empty, could be the beginning of one well-formed character and nothing more.
bool IsIncompleteUtf8(std::string_view bytes);

// Line breaks and other control characters as spaces, for messages of one line.
std::string OneLine(std::string_view text);

} // namespace vornix::viewer
