#include "icu_collation.h"

#include "automation/word_sort.h"

#include <unicode/tblcoll.h>

#include <algorithm>
#include <iterator>
#include <string>

namespace vornix {

namespace {

// Every symbol behind the blank, in the order of the system, ahead of all digits and letters.
icu::UnicodeString SymbolRules()
{
    icu::UnicodeString rules(u"&' '");
    for (const char16_t symbol : WordSortSymbols()) {
        if (symbol <= u' ')
            continue;
        rules.append(u"<'");
        rules.append(symbol);
        rules.append(u'\'');
    }
    return rules;
}

std::unique_ptr<icu::Collator> MakeCollator(const icu::Locale& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> plain(icu::Collator::createInstance(locale, status));
    if (U_FAILURE(status))
        return nullptr;
    // Case is the third level: two are compared.
    plain->setStrength(icu::Collator::SECONDARY);

    const auto* ruled = dynamic_cast<const icu::RuleBasedCollator*>(plain.get());
    if (ruled == nullptr)
        return plain;
    auto tailored = std::make_unique<icu::RuleBasedCollator>(
        ruled->getRules() + SymbolRules(), icu::Collator::SECONDARY, UCOL_OFF, status);
    if (U_FAILURE(status))
        return plain;
    tailored->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
    return tailored;
}

// Without hyphens and apostrophes; the text itself when it has none.
std::u16string_view WithoutMarks(std::u16string_view text, std::u16string& buffer)
{
    if (std::none_of(text.begin(), text.end(), IsWordMark))
        return text;
    std::copy_if(text.begin(), text.end(), std::back_inserter(buffer), [](char16_t unit) { return !IsWordMark(unit); });
    return buffer;
}

} // namespace

IcuCollation::IcuCollation(const icu::Locale& locale)
    : locale_(locale)
{
}

const icu::Collator* IcuCollation::Collator() const
{
    std::call_once(isMade_, [this] { collator_ = MakeCollator(locale_); });
    return collator_.get();
}

int IcuCollation::Compare(std::u16string_view a, std::u16string_view b) const
{
    const icu::Collator* collator = Collator();
    if (collator == nullptr)
        return CompareWordSort(a, b);

    std::u16string bufferA;
    std::u16string bufferB;
    const std::u16string_view wordsA = WithoutMarks(a, bufferA);
    const std::u16string_view wordsB = WithoutMarks(b, bufferB);
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult order = collator->compare(
        wordsA.data(), static_cast<int32_t>(wordsA.size()), wordsB.data(), static_cast<int32_t>(wordsB.size()), status);
    if (U_FAILURE(status))
        return CompareWordSort(a, b);
    return order != UCOL_EQUAL ? order : CompareWordMarks(a, b);
}

} // namespace vornix
