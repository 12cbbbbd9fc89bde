#include "automation/pattern_text.h"

#include <algorithm>

namespace vornix {

bool TakeLiteral(TextCursor& cursor, std::u16string& text)
{
    if (cursor.Take(u'\\')) {
        if (!cursor.AtEnd()) {
            text += cursor.Peek();
            cursor.Advance();
        }
        return true;
    }
    if (cursor.Take(u'"')) {
        const std::u16string_view rest = cursor.Rest();
        const std::size_t length = std::min(rest.find(u'"'), rest.size());
        text += rest.substr(0, length);
        cursor.Advance(std::min(length + 1, rest.size()));
        return true;
    }
    return false;
}

std::vector<std::u16string_view> SplitSections(std::u16string_view pattern)
{
    std::vector<std::u16string_view> sections;
    std::u16string skipped;
    TextCursor cursor(pattern);
    std::u16string_view section = pattern;
    while (!cursor.AtEnd()) {
        if (TakeLiteral(cursor, skipped))
            continue;
        const std::u16string_view before = cursor.Rest();
        cursor.Advance();
        if (before.front() == u';') {
            sections.push_back(section.substr(0, section.size() - before.size()));
            section = cursor.Rest();
        }
    }
    sections.push_back(section);
    return sections;
}

} // namespace vornix
