#include "automation/text_cursor.h"

namespace vornix {

bool EqualsNoCase(std::u16string_view a, std::u16string_view b, const Locale& locale)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && locale.ToLower(a[i]) != locale.ToLower(b[i]))
            return false;
    return true;
}

bool TextCursor::TakeWordNoCase(std::u16string_view word, const Locale& locale)
{
    if (word.empty() || !EqualsNoCase(rest_.substr(0, word.size()), word, locale))
        return false;
    Advance(word.size());
    return true;
}

} // namespace vornix
