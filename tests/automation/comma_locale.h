// A locale whose numbers are not those of the built-in one.
#pragma once

#include "vornix/platform/locale.h"

namespace vornix {

class CommaLocale : public Locale {
public:
    CommaLocale()
    {
        numbers_.decimalSeparator = u",";
        numbers_.groupSeparator = u".";
        numbers_.negativeSign = u"\u2212";
    }
    const NumberSymbols& Numbers() const override { return numbers_; }
    const DateSymbols& Dates() const override { return BuiltinLocale().Dates(); }
    const LocaleWords& Words() const override { return BuiltinLocale().Words(); }
    char16_t ToLower(char16_t unit) const override { return BuiltinLocale().ToLower(unit); }
    char16_t ToUpper(char16_t unit) const override { return BuiltinLocale().ToUpper(unit); }
    int CompareNoCase(std::u16string_view a, std::u16string_view b) const override
    {
        return BuiltinLocale().CompareNoCase(a, b);
    }

private:
    NumberSymbols numbers_;
};

} // namespace vornix
