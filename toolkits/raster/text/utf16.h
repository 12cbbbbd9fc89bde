// UTF-16 as it comes from hosts: valid or not.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vornix {

inline constexpr char32_t ReplacementCharacter = 0xFFFD;

struct DecodedCharacter {
    char32_t codePoint = 0;
    std::size_t units = 1;
};

constexpr bool IsHighSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xD800;
}

constexpr bool IsLowSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xDC00;
}

// The character at the index; a surrogate without its partner is U+FFFD.
constexpr DecodedCharacter DecodeUtf16(std::u16string_view text, std::size_t index)
{
    const char16_t unit = text[index];
    if (!IsHighSurrogate(unit) && !IsLowSurrogate(unit))
        return { unit, 1 };
    if (IsLowSurrogate(unit) || index + 1 == text.size() || !IsLowSurrogate(text[index + 1]))
        return { ReplacementCharacter, 1 };
    return { 0x10000 + ((static_cast<char32_t>(unit) & 0x3FF) << 10 | (text[index + 1] & 0x3FF)), 2 };
}

// Cuts the text to at most `units` without leaving half a pair.
constexpr std::u16string_view CutUtf16(std::u16string_view text, std::size_t units)
{
    if (text.size() <= units)
        return text;
    if (units > 0 && IsHighSurrogate(text[units - 1]) && IsLowSurrogate(text[units]))
        --units;
    return text.substr(0, units);
}

// For names of fonts and files; what is not valid becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

} // namespace vornix
