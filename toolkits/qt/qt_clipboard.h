// The plain text on the system clipboard.
#pragma once

#include <string>
#include <string_view>

namespace vornix {

std::u16string ClipboardPlainText();
void SetClipboardPlainText(std::u16string_view text);

// Lines of a text that another program wrote, with CR LF between them as the control reads them. A text that has a CR
// LF stays as it is; in others each line feed becomes one, but those inside fields that stand between double quotes.
std::u16string WithLineEnds(std::u16string_view text);

} // namespace vornix
