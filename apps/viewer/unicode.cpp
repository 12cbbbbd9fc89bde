#include "unicode.h"

#include <algorithm>
#include <cstdint>

namespace vornix::viewer {

namespace {

constexpr char16_t ReplacementCharacter = 0xFFFD;

bool IsLeadSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xD800;
}
bool IsTrailSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xDC00;
}

// The form of a character by its first byte: its length, and the range of the second byte, which is what excludes
// overlong forms, surrogates and everything above U+10FFFF.
struct Form {
    std::size_t length = 0; // 0: no character starts like this
    std::uint8_t secondMin = 0x80;
    std::uint8_t secondMax = 0xBF;
};

Form FormOf(std::uint8_t first)
{
    if (first < 0x80)
        return { 1 };
    if (first < 0xC2)
        return {};
    if (first < 0xE0)
        return { 2 };
    if (first < 0xF0)
        return { 3, static_cast<std::uint8_t>(first == 0xE0 ? 0xA0 : 0x80),
            static_cast<std::uint8_t>(first == 0xED ? 0x9F : 0xBF) };
    if (first < 0xF5)
        return { 4, static_cast<std::uint8_t>(first == 0xF0 ? 0x90 : 0x80),
            static_cast<std::uint8_t>(first == 0xF4 ? 0x8F : 0xBF) };
    return {};
}

// How many bytes at the beginning fit the form of the first one.
std::size_t FittingBytes(std::string_view bytes, Form form)
{
    std::size_t count = 1;
    while (count < form.length && count < bytes.size()) {
        const auto byte = static_cast<std::uint8_t>(bytes[count]);
        const bool fits = count == 1 ? byte >= form.secondMin && byte <= form.secondMax : (byte & 0xC0) == 0x80;
        if (!fits)
            break;
        ++count;
    }
    return count;
}

void AppendCodePoint(std::uint32_t code, std::u16string& text)
{
    if (code >= 0x10000) {
        text += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
        code = 0xDC00 + ((code - 0x10000) & 0x3FF);
    }
    text += static_cast<char16_t>(code);
}

void AppendAsUtf8(std::uint32_t code, std::string& text)
{
    const auto append = [&](std::uint32_t byte) { text += static_cast<char>(byte); };
    const auto continuation = [&](int shift) { append(0x80 | ((code >> shift) & 0x3F)); };
    if (code < 0x80) {
        append(code);
    } else if (code < 0x800) {
        append(0xC0 | (code >> 6));
        continuation(0);
    } else if (code < 0x10000) {
        append(0xE0 | (code >> 12));
        continuation(6);
        continuation(0);
    } else {
        append(0xF0 | (code >> 18));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

} // namespace

std::string ToUtf8(std::u16string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (IsLeadSurrogate(unit) && i + 1 < text.size() && IsTrailSurrogate(text[i + 1])) {
            ++i;
            AppendAsUtf8(0x10000 + ((unit & 0x3FFu) << 10) + (text[i] & 0x3FFu), bytes);
            continue;
        }
        const bool isUnpaired = IsLeadSurrogate(unit) || IsTrailSurrogate(unit);
        AppendAsUtf8(isUnpaired ? ReplacementCharacter : unit, bytes);
    }
    return bytes;
}

std::u16string WellFormed(std::u16string_view text)
{
    std::u16string formed(text);
    for (std::size_t i = 0; i < formed.size(); ++i) {
        if (IsLeadSurrogate(formed[i]) && i + 1 < formed.size() && IsTrailSurrogate(formed[i + 1]))
            ++i;
        else if (IsLeadSurrogate(formed[i]) || IsTrailSurrogate(formed[i]))
            formed[i] = ReplacementCharacter;
    }
    return formed;
}

std::u16string ToUtf16(std::string_view bytes)
{
    std::u16string text;
    while (!bytes.empty()) {
        bytes.remove_prefix(AppendUtf8(bytes, text));
        if (bytes.empty())
            break;
        text += ReplacementCharacter;
        bytes.remove_prefix(1);
    }
    return text;
}

std::size_t AppendUtf8(std::string_view bytes, std::u16string& text)
{
    std::size_t position = 0;
    while (position < bytes.size()) {
        const auto first = static_cast<std::uint8_t>(bytes[position]);
        if (first < 0x80) {
            text += static_cast<char16_t>(first);
            ++position;
            continue;
        }
        const Form form = FormOf(first);
        if (form.length == 0 || FittingBytes(bytes.substr(position), form) < form.length)
            break;
        std::uint32_t code = first & (0x7Fu >> form.length);
        for (std::size_t i = 1; i < form.length; ++i)
            code = (code << 6) | (static_cast<std::uint8_t>(bytes[position + i]) & 0x3Fu);
        AppendCodePoint(code, text);
        position += form.length;
    }
    return position;
}

bool IsIncompleteUtf8(std::string_view bytes)
{
    const Form form = FormOf(static_cast<std::uint8_t>(bytes.front()));
    return bytes.size() < form.length && FittingBytes(bytes, form) == bytes.size();
}

std::string OneLine(std::string_view text)
{
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7F; }, ' ');
    return line;
}

} // namespace vornix::viewer
