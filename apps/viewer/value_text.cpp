#include "value_text.h"

#include "unicode.h"

#include <array>
#include <charconv>

namespace vornix::viewer {

namespace {

std::u16string RealText(double value)
{
    // Fifteen digits are what a double holds of any decimal number. The decimal point is one in any country.
    std::array<char, 32> text {};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 15).ptr;
    return ToUtf16(std::string_view(text.data(), end));
}

std::u16string WithoutNul(std::u16string_view stored)
{
    std::u16string text(stored);
    for (char16_t& unit : text)
        unit = unit == 0 ? u'\u2400' : unit;
    return text;
}

} // namespace

std::u16string TextOfValue(const sqlite::Statement& statement, int column)
{
    switch (statement.Type(column)) {
    case sqlite::ValueType::Integer:
        return ToUtf16(std::to_string(statement.Integer(column)));
    case sqlite::ValueType::Real:
        return RealText(statement.Real(column));
    case sqlite::ValueType::Text:
        return WithoutNul(statement.Text(column));
    case sqlite::ValueType::Blob:
        return ToUtf16("<blob, " + std::to_string(statement.ByteCount(column)) + " bytes>");
    default:
        return {};
    }
}

} // namespace vornix::viewer
