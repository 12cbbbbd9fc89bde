#include "vornix/icu_locale.h"

#include "date_pictures.h"
#include "icu_collation.h"

#include <unicode/calendar.h>
#include <unicode/dcfmtsym.h>
#include <unicode/decimfmt.h>
#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/uchar.h>

#include <string>

namespace vornix {

namespace {

std::u16string ToText(const icu::UnicodeString& text)
{
    return { text.getBuffer(), static_cast<std::size_t>(text.length()) };
}

// Not the locale of a system that was given none.
bool HasCustoms(const icu::Locale& locale)
{
    if (locale.isBogus() || *locale.getLanguage() == '\0')
        return false;
    return std::string_view(locale.getVariant()) != "POSIX";
}

icu::Locale FindLocale(std::string_view name)
{
    // An encoding behind a dot says nothing about customs.
    const std::string plain(name.substr(0, name.find('.')));
    icu::Locale locale = plain.empty() ? icu::Locale::getDefault() : icu::Locale::createCanonical(plain.c_str());
    if (!HasCustoms(locale))
        locale = icu::Locale::getUS();
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("numbers", "latn", status);
    locale.setKeywordValue("calendar", "gregorian", status);
    return locale;
}

// A number pattern with 'n' in place of the digits: "#,##0.00 ¤" becomes "n ¤".
std::u16string ToCurrencyForm(std::u16string_view pattern)
{
    std::u16string form;
    bool hasAmount = false;
    for (const char16_t unit : pattern) {
        const bool isAmount = unit == u'#' || unit == u'0' || unit == u',' || unit == u'.';
        if (!isAmount)
            form += unit;
        else if (!hasAmount)
            form += u'n';
        hasAmount = hasAmount || isAmount;
    }
    return form;
}

void ReadCurrency(const icu::Locale& locale, NumberSymbols& symbols)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(icu::NumberFormat::createCurrencyInstance(locale, status));
    const auto* decimal = dynamic_cast<const icu::DecimalFormat*>(format.get());
    if (U_FAILURE(status) || decimal == nullptr)
        return;
    icu::UnicodeString pattern;
    const std::u16string forms = WithoutDirectionMarks(ToText(decimal->toPattern(pattern)));
    const std::size_t end = forms.find(u';');
    symbols.positiveCurrency = ToCurrencyForm(std::u16string_view(forms).substr(0, end));
    symbols.negativeCurrency = end == std::u16string::npos ? u'-' + symbols.positiveCurrency
                                                           : ToCurrencyForm(std::u16string_view(forms).substr(end + 1));
    symbols.currencyDigits = decimal->getMaximumFractionDigits();
}

void ReadGroups(const icu::Locale& locale, NumberSymbols& symbols)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(icu::NumberFormat::createInstance(locale, status));
    const auto* decimal = dynamic_cast<const icu::DecimalFormat*>(format.get());
    if (U_FAILURE(status) || decimal == nullptr || decimal->getGroupingSize() <= 0)
        return;
    symbols.firstGroup = decimal->getGroupingSize();
    const int further = decimal->getSecondaryGroupingSize();
    symbols.furtherGroups = further > 0 ? further : symbols.firstGroup;
}

NumberSymbols ReadNumbers(const icu::Locale& locale)
{
    NumberSymbols symbols;
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols source(locale, status);
    if (U_FAILURE(status))
        return symbols;
    const auto read
        = [&](icu::DecimalFormatSymbols::ENumberFormatSymbol symbol) { return ToText(source.getSymbol(symbol)); };
    symbols.decimalSeparator = read(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol);
    symbols.groupSeparator = read(icu::DecimalFormatSymbols::kGroupingSeparatorSymbol);
    symbols.currencySymbol = WithoutDirectionMarks(read(icu::DecimalFormatSymbols::kCurrencySymbol));
    ReadGroups(locale, symbols);
    ReadCurrency(locale, symbols);
    return symbols;
}

template <std::size_t Count>
void CopyNames(const icu::UnicodeString* names, int first, int count, std::array<std::u16string, Count>& target)
{
    for (int i = 0; i < static_cast<int>(Count) && first + i < count; ++i)
        target[static_cast<std::size_t>(i)] = ToText(names[first + i]);
}

void ReadNames(const icu::Locale& locale, DateSymbols& symbols)
{
    using Source = icu::DateFormatSymbols;
    UErrorCode status = U_ZERO_ERROR;
    const Source source(locale, status);
    if (U_FAILURE(status))
        return;
    int32_t count = 0;
    const icu::UnicodeString* names = source.getMonths(count, Source::FORMAT, Source::WIDE);
    CopyNames(names, 0, count, symbols.months);
    names = source.getMonths(count, Source::FORMAT, Source::ABBREVIATED);
    CopyNames(names, 0, count, symbols.monthAbbreviations);
    // Weekdays count from 1, Sunday.
    names = source.getWeekdays(count, Source::FORMAT, Source::WIDE);
    CopyNames(names, 1, count, symbols.days);
    names = source.getWeekdays(count, Source::FORMAT, Source::ABBREVIATED);
    CopyNames(names, 1, count, symbols.dayAbbreviations);
    names = source.getAmPmStrings(count);
    if (count >= 2) {
        symbols.am = ToText(names[0]);
        symbols.pm = ToText(names[1]);
    }
}

std::u16string PictureOf(const std::unique_ptr<icu::DateFormat>& format, std::u16string_view fallback)
{
    const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get());
    if (simple == nullptr)
        return std::u16string(fallback);
    icu::UnicodeString pattern;
    return ToDatePicture(WithoutDirectionMarks(ToText(simple->toPattern(pattern))));
}

void ReadPictures(const icu::Locale& locale, DateSymbols& symbols)
{
    using Format = icu::DateFormat;
    const auto datePicture = [&](Format::EStyle style, const std::u16string& fallback) {
        return PictureOf(std::unique_ptr<Format>(Format::createDateInstance(style, locale)), fallback);
    };
    symbols.shortDate = WithFullYears(datePicture(Format::kShort, symbols.shortDate));
    symbols.longDate = datePicture(Format::kFull, symbols.longDate);
    symbols.longTime
        = PictureOf(std::unique_ptr<Format>(Format::createTimeInstance(Format::kMedium, locale)), symbols.longTime);
    symbols.order = OrderOf(symbols.shortDate);
    symbols.dateSeparator = SeparatorOf(symbols.shortDate, u"/");
    symbols.timeSeparator = SeparatorOf(symbols.longTime, u":");
    // A time in words, or one that looks like a date, would not be read back.
    const bool hasWords = symbols.longTime.find(u'\'') != std::u16string::npos;
    if (hasWords || symbols.timeSeparator == symbols.dateSeparator) {
        symbols.timeSeparator = u":";
        symbols.longTime = symbols.longTime.find(u'H') != std::u16string::npos ? u"HH:mm:ss" : u"h:mm:ss tt";
    }
}

DateSymbols ReadDates(const icu::Locale& locale)
{
    DateSymbols symbols = BuiltinLocale().Dates();
    ReadNames(locale, symbols);
    ReadPictures(locale, symbols);
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(locale, status));
    if (U_SUCCESS(status))
        symbols.firstDayOfWeek = calendar->getFirstDayOfWeek(status) - UCAL_SUNDAY;
    return symbols;
}

char16_t OneUnit(UChar32 mapped, char16_t original)
{
    return mapped <= 0xFFFF ? static_cast<char16_t>(mapped) : original;
}

class IcuLocale final : public Locale {
public:
    explicit IcuLocale(const icu::Locale& locale)
        : numbers_(ReadNumbers(locale))
        , dates_(ReadDates(locale))
        , collation_(locale)
    {
    }

    const NumberSymbols& Numbers() const override { return numbers_; }
    const DateSymbols& Dates() const override { return dates_; }
    const LocaleWords& Words() const override { return words_; }
    char16_t ToLower(char16_t unit) const override { return OneUnit(u_tolower(unit), unit); }
    char16_t ToUpper(char16_t unit) const override { return OneUnit(u_toupper(unit), unit); }

    int CompareNoCase(std::u16string_view a, std::u16string_view b) const override { return collation_.Compare(a, b); }

private:
    NumberSymbols numbers_;
    DateSymbols dates_;
    LocaleWords words_;
    IcuCollation collation_;
};

} // namespace

std::unique_ptr<Locale> MakeIcuLocale(std::string_view localeName)
{
    return std::make_unique<IcuLocale>(FindLocale(localeName));
}

} // namespace vornix
