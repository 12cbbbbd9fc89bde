// The UTF-16 of a table as the bytes of a text file.
#pragma once

#include "text_decoder.h"

#include <string>
#include <string_view>

namespace vornix::viewer {

// What TextDecoder has read comes out as it was, byte for byte, as long as no character is cut in two. Unpaired
// surrogates become U+FFFD.
void AppendEncoded(std::u16string_view text, TextEncoding encoding, std::string& bytes);

} // namespace vornix::viewer
