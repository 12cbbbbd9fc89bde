// A position in a text, for the parsers of numbers and dates.
#pragma once

#include "vornix/platform/locale.h"

#include <string_view>

namespace vornix {

class TextCursor {
public:
    explicit TextCursor(std::u16string_view text)
        : rest_(text)
    {
    }

    bool AtEnd() const { return rest_.empty(); }
    // The unit at the position, or 0 at the end.
    char16_t Peek() const { return rest_.empty() ? u'\0' : rest_.front(); }
    std::u16string_view Rest() const { return rest_; }
    void Advance(std::size_t count = 1) { rest_.remove_prefix(count); }

    bool Take(char16_t unit)
    {
        if (Peek() != unit || rest_.empty())
            return false;
        Advance();
        return true;
    }

    // An empty word is never there.
    bool TakeWord(std::u16string_view word)
    {
        if (word.empty() || !rest_.starts_with(word))
            return false;
        Advance(word.size());
        return true;
    }

    bool TakeWordNoCase(std::u16string_view word, const Locale& locale);

    // Blanks and control blanks; says whether there was one.
    bool SkipBlanks()
    {
        const std::size_t before = rest_.size();
        while (IsBlank(Peek()))
            Advance();
        return rest_.size() != before;
    }

    static bool IsBlank(char16_t unit)
    {
        return unit == u' ' || (unit >= u'\t' && unit <= u'\r') || unit == 0x00A0 || unit == 0x202F;
    }
    static bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

private:
    std::u16string_view rest_;
};

// Unit by unit, without regard to case.
bool EqualsNoCase(std::u16string_view a, std::u16string_view b, const Locale& locale);

} // namespace vornix
