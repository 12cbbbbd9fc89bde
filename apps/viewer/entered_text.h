// Texts that come to a cell as a whole, and not by the keys of its editor.
#pragma once

#include "column_inputs.h"
#include "document.h"

#include <optional>
#include <string>
#include <string_view>

namespace vornix::viewer {

struct EnteredText {
    std::optional<std::u16string> text = {}; // as the document takes it; nothing when the cell does not take it
    std::string reason = {}; // why not, in one line
};

// Asks what the cell's editor would: that it can be changed, that a key is one, a date whole, a truth value true or false.
EnteredText EnterText(
    const Document& document, const ColumnInputs& inputs, int row, int column, std::u16string_view text);

} // namespace vornix::viewer
