// Pasting as it is described, with every text a copy: slow, and too plain to be wrong.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace vornix {

// A cell of the rectangle, counted from 0.
using CellWriter = std::function<void(int row, int col, const std::u16string& text)>;

void PlainPaste(std::u16string_view text, int rows, int cols, const CellWriter& write);

// What a table of marked cells holds when a text was pasted plainly, and as the control does it.
struct PasteStories {
    std::u16string plain;
    std::u16string fast;
};
PasteStories StoriesOfPaste(std::u16string_view text, int rows, int cols);

} // namespace vornix
