#include "text_block.h"

#include "line_breaks.h"

#include <optional>

namespace vornix::viewer {

namespace {

constexpr char16_t Quote = u'"';

std::u16string FieldOf(std::u16string_view text)
{
    if (!text.starts_with(Quote) && text.find_first_of(u"\t\r\n") == std::u16string_view::npos)
        return std::u16string(text);
    std::u16string field(1, Quote);
    for (const char16_t unit : WithLineBreaks(text, u"\n")) {
        field += unit;
        if (unit == Quote)
            field += Quote;
    }
    return field + Quote;
}

bool EndsField(std::u16string_view text)
{
    return text.empty() || text.find_first_of(u"\t\r\n") == 0;
}

// Takes it from the front of the text. Nothing, and nothing taken, when no mark ends it.
std::optional<std::u16string> TakeQuoted(std::u16string_view& text)
{
    if (!text.starts_with(Quote))
        return {};
    std::u16string field;
    std::u16string_view rest = text.substr(1);
    while (true) {
        const std::size_t mark = rest.find(Quote);
        if (mark == std::u16string_view::npos)
            return {};
        field += rest.substr(0, mark);
        rest = rest.substr(mark + 1);
        if (EndsField(rest)) {
            text = rest;
            return field;
        }
        // Two are one; one alone stays.
        field += Quote;
        if (rest.starts_with(Quote))
            rest = rest.substr(1);
    }
}

std::u16string TakePlain(std::u16string_view& text)
{
    std::u16string field(text.substr(0, text.find_first_of(u"\t\r\n")));
    text = text.substr(field.size());
    return field;
}

} // namespace

std::u16string TextOf(const TextBlock& block)
{
    std::u16string text;
    for (std::size_t row = 0; row < block.size(); ++row) {
        text += row > 0 ? u"\r\n" : u"";
        for (std::size_t column = 0; column < block[row].size(); ++column) {
            text += column > 0 ? u"\t" : u"";
            text += FieldOf(block[row][column]);
        }
    }
    return text;
}

TextBlock BlockOf(std::u16string_view text)
{
    TextBlock block;
    if (text.empty())
        return block;
    block.emplace_back();
    while (true) {
        std::optional<std::u16string> quoted = TakeQuoted(text);
        block.back().push_back(quoted ? std::move(*quoted) : TakePlain(text));
        if (text.empty())
            return block;
        const bool endsRow = text.front() != u'\t';
        text = text.substr(text.starts_with(u"\r\n") ? 2 : 1);
        if (!endsRow)
            continue;
        if (text.empty())
            return block;
        block.emplace_back();
    }
}

} // namespace vornix::viewer
