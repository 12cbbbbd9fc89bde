// Cells as a clipboard carries them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

// Rows of texts.
using TextBlock = std::vector<std::vector<std::u16string>>;

// Separated by tabs, the rows by CR LF, which stands behind the last one only where that is a single empty text. A text with
// a tab or a line break, or with a quotation mark at its beginning, stands in quotes, inner ones doubled, and its line breaks
// are LF.
std::u16string TextOf(const TextBlock& block);

// The other way, from any of the line breaks; one at the end ends the last row. A quotation mark that begins a text but
// does not end it is one like any other.
TextBlock BlockOf(std::u16string_view text);

} // namespace vornix::viewer
