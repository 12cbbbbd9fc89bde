#include "data/search.h"

#include "automation/checked.h"
#include "automation/text_compare.h"

#include <algorithm>

namespace vornix {

namespace {

bool ContainsNoCase(std::u16string_view text, std::u16string_view wanted, const Locale& locale)
{
    const auto isSame = [&](char16_t a, char16_t b) { return a == b || locale.ToLower(a) == locale.ToLower(b); };
    return std::search(text.begin(), text.end(), wanted.begin(), wanted.end(), isSame) != text.end();
}

std::u16string_view EndOf(std::u16string_view text, std::size_t length)
{
    return text.substr(text.size() - std::min(length, text.size()));
}

} // namespace

SearchPattern::SearchPattern(std::u16string_view searchString, std::u16string_view wildcard, const Locale& locale)
{
    std::u16string_view needle = searchString;
    if (!wildcard.empty() && ContainsNoCase(searchString, wildcard, locale)) {
        const bool begins = searchString.starts_with(wildcard);
        const bool ends = searchString.ends_with(wildcard);
        CheckArgument(!(begins && ends) || searchString.size() >= 2 * wildcard.size());
        if (begins)
            needle.remove_prefix(wildcard.size());
        if (ends)
            needle.remove_suffix(wildcard.size());
        if (begins)
            kind_ = ends ? Kind::Contains : Kind::EndsWith;
        else
            kind_ = ends ? Kind::BeginsWith : Kind::Nothing;
    }
    OrOutOfMemory([&] { needle_ = needle; });
}

bool SearchPattern::Matches(std::u16string_view value, const Locale& locale) const
{
    switch (kind_) {
    case Kind::Exact:
        return CompareTextNoCase(value, needle_, locale) == 0;
    case Kind::BeginsWith:
        return CompareTextNoCase(value.substr(0, needle_.size()), needle_, locale) == 0;
    case Kind::EndsWith:
        return CompareTextNoCase(EndOf(value, needle_.size()), needle_, locale) == 0;
    case Kind::Contains:
        // An empty value contains nothing, not even nothing.
        return !value.empty() && ContainsNoCase(value, needle_, locale);
    default:
        return false;
    }
}

bool SearchPattern::MatchesWithExactEnd(std::u16string_view value, const Locale& locale) const
{
    return kind_ == Kind::EndsWith ? value.ends_with(needle_) : Matches(value, locale);
}

} // namespace vornix
