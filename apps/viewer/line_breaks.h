// Line breaks of texts: CR LF, LF and CR.
#pragma once

#include <string>
#include <string_view>

namespace vornix::viewer {

// The first one of the text; empty when there is none.
std::u16string_view LineBreakOf(std::u16string_view text);

// The text with each of its line breaks written like this.
std::u16string WithLineBreaks(std::u16string_view text, std::u16string_view lineBreak);

// The text, typed in place of an old one: the beginning and the end that both have in common keep the old one's line
// breaks, the rest gets its first one; where it has none, the other one given, or nothing happens if that is empty.
std::u16string WithLineBreaksOf(std::u16string_view old, std::u16string_view text, std::u16string_view otherwise);

} // namespace vornix::viewer
