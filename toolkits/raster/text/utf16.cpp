#include "utf16.h"

namespace vornix {

namespace {

void AppendUtf8(std::string& result, char32_t codePoint)
{
    const auto append = [&result](char32_t byte) { result.push_back(static_cast<char>(byte)); };
    if (codePoint < 0x80) {
        append(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        append(0xC0 | codePoint >> 6);
    } else if (codePoint < 0x10000) {
        append(0xE0 | codePoint >> 12);
        append(0x80 | (codePoint >> 6 & 0x3F));
    } else {
        append(0xF0 | codePoint >> 18);
        append(0x80 | (codePoint >> 12 & 0x3F));
        append(0x80 | (codePoint >> 6 & 0x3F));
    }
    append(0x80 | (codePoint & 0x3F));
}

} // namespace

std::string ToUtf8(std::u16string_view text)
{
    std::string result;
    for (std::size_t index = 0; index < text.size();) {
        const DecodedCharacter character = DecodeUtf16(text, index);
        AppendUtf8(result, character.codePoint);
        index += character.units;
    }
    return result;
}

} // namespace vornix
