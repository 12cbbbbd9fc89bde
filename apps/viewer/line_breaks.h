// Line breaks of texts: CR LF, LF and CR.
#pragma once

#include <string>
#include <string_view>

namespace vornix::viewer {

// The first one of the text; empty when there is none.
std::u16string_view LineBreakOf(std::u16string_view text);

// The text with each of its line breaks written like this.
std::u16string WithLineBreaks(std::u16string_view text, std::u16string_view lineBreak);

} // namespace vornix::viewer
