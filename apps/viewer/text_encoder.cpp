#include "text_encoder.h"

#include "unicode.h"

namespace vornix::viewer {

void AppendEncoded(std::u16string_view text, TextEncoding encoding, std::string& bytes)
{
    if (encoding == TextEncoding::Utf8) {
        bytes += ToUtf8(text);
        return;
    }
    for (const char16_t unit : WellFormed(text)) {
        const auto low = static_cast<char>(unit & 0xFF);
        const auto high = static_cast<char>(unit >> 8);
        bytes += encoding == TextEncoding::Utf16Little ? low : high;
        bytes += encoding == TextEncoding::Utf16Little ? high : low;
    }
}

} // namespace vornix::viewer
