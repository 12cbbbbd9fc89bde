#include "automation/text_pattern.h"

#include "automation/pattern_text.h"

#include <algorithm>

namespace vornix {

namespace {

enum class TextCase { Kept, Lower, Upper };

struct TextPiece {
    // '@' shows a blank where the text has no unit, '&' nothing; 0 is a literal.
    char16_t place = 0;
    std::u16string literal;
};

struct TextSection {
    std::vector<TextPiece> pieces;
    std::size_t places = 0;
    TextCase textCase = TextCase::Kept;
    bool fillsFromLeft = false;
};

TextSection ParseTextSection(std::u16string_view pattern)
{
    TextSection section;
    TextCursor cursor(pattern);
    while (!cursor.AtEnd()) {
        TextPiece piece;
        const char16_t unit = cursor.Peek();
        if (TakeLiteral(cursor, piece.literal)) {
            section.pieces.push_back(piece);
            continue;
        }
        cursor.Advance();
        if (unit == u'<') {
            section.textCase = TextCase::Lower;
        } else if (unit == u'>') {
            section.textCase = TextCase::Upper;
        } else if (unit == u'!') {
            section.fillsFromLeft = true;
        } else if (unit == u'@' || unit == u'&') {
            ++section.places;
            section.pieces.push_back({ unit, {} });
        } else {
            section.pieces.push_back({ 0, std::u16string(1, unit) });
        }
    }
    return section;
}

std::u16string InCase(std::u16string_view text, TextCase textCase, const Locale& locale)
{
    std::u16string result(text);
    if (textCase == TextCase::Kept)
        return result;
    for (char16_t& unit : result)
        unit = textCase == TextCase::Lower ? locale.ToLower(unit) : locale.ToUpper(unit);
    return result;
}

// Places fill from the right unless the section says otherwise; what has no place comes before the first one, or
// behind the last when they fill from the left. Without any place the text follows the literals.
std::u16string FillPlaces(const TextSection& section, std::u16string_view text)
{
    const std::size_t missing = section.places > text.size() ? section.places - text.size() : 0;
    std::size_t excess = text.size() > section.places ? text.size() - section.places : 0;
    if (section.places == 0 || section.fillsFromLeft)
        excess = 0;

    std::u16string result;
    std::size_t place = 0;
    for (const TextPiece& piece : section.pieces) {
        result += piece.literal;
        if (piece.place == 0)
            continue;
        const bool isEmpty = section.fillsFromLeft ? text.empty() : place < missing;
        const std::size_t count = isEmpty ? 0 : 1 + (place == 0 ? excess : 0);
        result += text.substr(0, count);
        text.remove_prefix(count);
        if (isEmpty && piece.place == u'@')
            result += u' ';
        ++place;
    }
    result += text;
    return result;
}

} // namespace

std::u16string FormatTextPattern(std::u16string_view text, std::u16string_view pattern, const Locale& locale)
{
    const std::vector<std::u16string_view> sections = SplitSections(pattern);
    const bool isForEmpty = text.empty() && sections.size() > 1;
    const TextSection section = ParseTextSection(isForEmpty ? sections[1] : sections[0]);
    return FillPlaces(section, InCase(text, section.textCase, locale));
}

} // namespace vornix
