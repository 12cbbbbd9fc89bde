// The word order of a locale: its letters, the system's own order of symbols.
#pragma once

#include <unicode/coll.h>
#include <unicode/locid.h>

#include <memory>
#include <mutex>
#include <string_view>

namespace vornix {

// The rules are put together at the first comparison, which takes a third of a second for the largest scripts.
class IcuCollation {
public:
    explicit IcuCollation(const icu::Locale& locale);

    // Negative, 0 or positive; the built-in order where ICU has none.
    int Compare(std::u16string_view a, std::u16string_view b) const;

private:
    const icu::Collator* Collator() const;

    icu::Locale locale_;
    mutable std::once_flag isMade_;
    mutable std::unique_ptr<icu::Collator> collator_;
};

} // namespace vornix
