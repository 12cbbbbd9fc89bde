// Whether a text is what is looked for.
#pragma once

#include "vornix/platform/locale.h"

#include <string>
#include <string_view>

namespace vornix {

class SearchPattern {
public:
    enum class Kind { Exact, Contains, EndsWith, BeginsWith, Nothing };

    // A wildcard stands for anything in front of the text, behind it or both; one that stands only inside finds nothing.
    // It is seen as it is written, but any writing of it, inside too, makes the text one with a wildcard. Error 5 where
    // the text is too short to hold the wildcard at both its ends.
    SearchPattern(std::u16string_view searchString, std::u16string_view wildcard, const Locale& locale);

    Kind MatchKind() const { return kind_; }
    const std::u16string& Needle() const { return needle_; }

    // Without regard to case, whole texts and their ends in the word order of the locale.
    bool Matches(std::u16string_view value, const Locale& locale) const;
    // The same, but an end has to be equal to the unit.
    bool MatchesWithExactEnd(std::u16string_view value, const Locale& locale) const;

private:
    Kind kind_ = Kind::Exact;
    std::u16string needle_;
};

} // namespace vornix
