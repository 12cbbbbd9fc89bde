#include "automation/number_pattern.h"

#include "automation/date_picture.h"
#include "automation/decimal_digits.h"
#include "automation/number_section.h"
#include "automation/pattern_text.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace vornix {

namespace {

// Does a group end to the left of the digit with `right` digits on its right?
bool EndsGroup(int right, const NumberSymbols& symbols)
{
    if (right == 0 || right < symbols.firstGroup || symbols.firstGroup <= 0)
        return false;
    const int further = symbols.furtherGroups > 0 ? symbols.furtherGroups : symbols.firstGroup;
    return (right - symbols.firstGroup) % further == 0;
}

class SectionWriter {
public:
    SectionWriter(const NumberSection& section, DecimalDigits number, const NumberSymbols& symbols)
        : section_(section)
        , number_(std::move(number))
        , symbols_(symbols)
    {
        ScaleAndRound();
        integer_ = number_.IntegerPart();
        fraction_ = number_.FractionPart(section_.fractionPlaces);
        // Digits that optional places show: up to the last one that is not zero.
        shownFraction_ = static_cast<int>(fraction_.find_last_not_of('0') + 1);
        shownFraction_ = std::max(shownFraction_, section_.mandatoryFraction);
    }

    std::u16string Write()
    {
        for (const NumberPiece& piece : section_.pieces)
            WritePiece(piece);
        return std::move(text_);
    }

private:
    void ScaleAndRound()
    {
        if (!number_.IsZero())
            number_.point += section_.scale;
        if (section_.hasExponent && !number_.IsZero()) {
            MoveToMantissa();
            number_.RoundToPlaces(section_.fractionPlaces);
            // 9.995 has become 10.00.
            if (number_.point > section_.integerPlaces)
                MoveToMantissa();
            return;
        }
        number_.RoundToPlaces(section_.fractionPlaces);
    }

    // As many digits left of the point as the section has places there.
    void MoveToMantissa()
    {
        exponent_ += number_.point - section_.integerPlaces;
        number_.point = section_.integerPlaces;
    }

    void WritePiece(const NumberPiece& piece)
    {
        switch (piece.kind) {
        case NumberPiece::Kind::Literal:
            text_ += piece.literal;
            break;
        case NumberPiece::Kind::Point:
            WriteUnplacedDigits();
            text_ += symbols_.decimalSeparator;
            isBehindPoint_ = true;
            break;
        case NumberPiece::Kind::Exponent:
            WriteExponent();
            break;
        default:
            if (isBehindPoint_)
                WriteFractionPlace();
            else
                WriteIntegerPlace(piece.kind == NumberPiece::Kind::Mandatory);
        }
    }

    // A section that starts with its point still shows the whole number.
    void WriteUnplacedDigits()
    {
        if (section_.integerPlaces == 0)
            WriteIntegerDigits(static_cast<int>(integer_.size()), 0);
    }

    // The digits with less than `from` and at least `to` digits on their right.
    void WriteIntegerDigits(int from, int to)
    {
        for (int right = from - 1; right >= to; --right)
            WriteIntegerDigit(integer_[integer_.size() - 1 - static_cast<std::size_t>(right)], right);
    }

    void WriteIntegerDigit(char digit, int right)
    {
        text_ += static_cast<char16_t>(digit);
        if (section_.hasGroups && EndsGroup(right, symbols_))
            text_ += symbols_.groupSeparator;
    }

    // The first place takes all digits that have no place of their own.
    void WriteIntegerPlace(bool isMandatory)
    {
        const int right = section_.integerPlaces - 1 - writtenInteger_;
        const int digits = static_cast<int>(integer_.size());
        showsZeros_ = showsZeros_ || isMandatory;
        if (writtenInteger_++ == 0 && digits > right)
            WriteIntegerDigits(digits, right);
        else if (digits > right)
            WriteIntegerDigits(right + 1, right);
        else if (showsZeros_)
            WriteIntegerDigit('0', right);
    }

    void WriteFractionPlace()
    {
        if (writtenFraction_ < shownFraction_)
            text_ += static_cast<char16_t>(fraction_[static_cast<std::size_t>(writtenFraction_)]);
        ++writtenFraction_;
    }

    void WriteExponent()
    {
        text_ += section_.exponentLetter;
        if (exponent_ < 0)
            text_ += u'-';
        else if (section_.showsPlus)
            text_ += u'+';
        text_ += exponent_ == 0 && section_.exponentWidth == 0 ? u"0"
                                                               : DigitText(std::abs(exponent_), section_.exponentWidth);
    }

    const NumberSection& section_;
    DecimalDigits number_;
    const NumberSymbols& symbols_;
    std::string integer_;
    std::string fraction_;
    std::u16string text_;
    int shownFraction_ = 0;
    int exponent_ = 0;
    int writtenInteger_ = 0;
    int writtenFraction_ = 0;
    bool showsZeros_ = false;
    bool isBehindPoint_ = false;
};

// An empty section shows the number like a positive one.
std::u16string_view SectionFor(double value, const std::vector<std::u16string_view>& sections)
{
    const std::size_t wanted = value < 0 ? 1 : value == 0 ? 2 : 0;
    return wanted < sections.size() && !sections[wanted].empty() ? sections[wanted] : sections[0];
}

std::u16string ReplaceAmount(std::u16string_view form, std::u16string_view amount, std::u16string_view symbol)
{
    std::u16string text;
    for (const char16_t unit : form) {
        if (unit == u'n')
            text += amount;
        else if (unit == 0x00A4)
            text += symbol;
        else
            text += unit;
    }
    return text;
}

} // namespace

std::u16string FormatNumberPattern(double value, std::u16string_view pattern, const Locale& locale)
{
    const std::vector<std::u16string_view> sections = SplitSections(pattern);
    const std::u16string_view chosen = SectionFor(value, sections);
    const bool isOwnNegative = sections.size() > 1 && chosen.data() == sections[1].data() && !sections[1].empty();

    const NumberSection section = ParseNumberSection(chosen);
    std::u16string text = SectionWriter(section, ToDecimalDigits(value), locale.Numbers()).Write();
    return value < 0 && !isOwnNegative ? locale.Numbers().negativeSign + text : text;
}

std::u16string FormatCurrency(double value, const Locale& locale)
{
    const NumberSymbols& symbols = locale.Numbers();
    std::u16string pattern = u"#,##0";
    if (symbols.currencyDigits > 0)
        pattern += u'.' + std::u16string(static_cast<std::size_t>(symbols.currencyDigits), u'0');
    const std::u16string amount = FormatNumberPattern(value < 0 ? -value : value, pattern, locale);
    return ReplaceAmount(
        value < 0 ? symbols.negativeCurrency : symbols.positiveCurrency, amount, symbols.currencySymbol);
}

} // namespace vornix
