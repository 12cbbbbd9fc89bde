#include "automation/case_mapping.h"
#include "automation/word_sort.h"
#include "vornix/platform/locale.h"

namespace vornix {

namespace {

DateSymbols EnglishDates()
{
    DateSymbols dates;
    dates.months = { u"January", u"February", u"March", u"April", u"May", u"June", u"July", u"August", u"September",
        u"October", u"November", u"December" };
    dates.monthAbbreviations
        = { u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun", u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec" };
    dates.days = { u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday" };
    dates.dayAbbreviations = { u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat" };
    return dates;
}

// The symbol types start out as those of the United States.
class EnglishLocale final : public Locale {
public:
    const NumberSymbols& Numbers() const override { return numbers_; }
    const DateSymbols& Dates() const override { return dates_; }
    const LocaleWords& Words() const override { return words_; }
    char16_t ToLower(char16_t unit) const override { return SimpleLower(unit); }
    char16_t ToUpper(char16_t unit) const override { return SimpleUpper(unit); }

    int CompareNoCase(std::u16string_view a, std::u16string_view b) const override { return CompareWordSort(a, b); }

private:
    NumberSymbols numbers_;
    DateSymbols dates_ = EnglishDates();
    LocaleWords words_;
};

} // namespace

const Locale& BuiltinLocale()
{
    static const EnglishLocale locale;
    return locale;
}

} // namespace vornix
