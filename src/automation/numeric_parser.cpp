#include "automation/numeric_parser.h"

#include "automation/text_cursor.h"

#include <utility>

namespace vornix {

namespace {

// Sixteen hexadecimal digits fill 64 bits.
constexpr int WidestBits = 64;

class NumericParser {
public:
    NumericParser(std::u16string_view text, const Locale& locale)
        : cursor_(text)
        , symbols_(locale.Numbers())
    {
    }

    std::optional<ParsedNumber> Parse()
    {
        ReadPrefix();
        if (!(cursor_.Peek() == u'&' ? ReadBits() : ReadDecimal()))
            return std::nullopt;
        ReadSuffix();
        if (!cursor_.AtEnd() || isBracketOpen_)
            return std::nullopt;
        number_.isNegative = hasMinus_ || hasBrackets_;
        return std::move(number_);
    }

private:
    bool TakeMinus() { return cursor_.Take(u'-') || cursor_.TakeWord(symbols_.negativeSign); }
    bool TakeCurrency() { return cursor_.TakeWord(symbols_.currencySymbol); }

    // Signs, a bracket and the currency symbol may each come once, in any order, with blanks between them.
    void ReadPrefix()
    {
        while (cursor_.SkipBlanks() || ReadSign() || ReadCurrency() || OpenBracket()) { }
    }

    void ReadSuffix()
    {
        const bool isSigned = hasPlus_ || hasMinus_;
        while (cursor_.SkipBlanks() || (!isSigned && ReadSign()) || ReadCurrency() || CloseBracket()) { }
    }

    bool ReadSign()
    {
        if (!hasPlus_ && cursor_.Take(u'+'))
            return hasPlus_ = true;
        if (!hasMinus_ && TakeMinus())
            return hasMinus_ = true;
        return false;
    }

    bool ReadCurrency()
    {
        if (hasCurrency_ || !TakeCurrency())
            return false;
        return hasCurrency_ = true;
    }

    bool OpenBracket()
    {
        if (hasBrackets_ || !cursor_.Take(u'('))
            return false;
        return hasBrackets_ = isBracketOpen_ = true;
    }

    bool CloseBracket()
    {
        if (!isBracketOpen_ || !cursor_.Take(u')'))
            return false;
        isBracketOpen_ = false;
        return true;
    }

    // A grouping blank groups only between digits, so that a blank behind the number stays a blank.
    bool TakeGroupSeparator()
    {
        const std::u16string_view separator = symbols_.groupSeparator;
        if (separator.size() != 1 || !TextCursor::IsBlank(separator.front()))
            return cursor_.TakeWord(separator);
        const std::u16string_view rest = cursor_.Rest();
        if (rest.size() < 2 || !TextCursor::IsBlank(rest[0]) || !TextCursor::IsDigit(rest[1]))
            return false;
        cursor_.Advance();
        return true;
    }

    // Groups may have any length and stand behind the decimal separator too, but not in front of the first digit.
    bool ReadDecimal()
    {
        bool hasDigit = false;
        bool hasPoint = false;
        while (!cursor_.AtEnd()) {
            if (TextCursor::IsDigit(cursor_.Peek())) {
                hasDigit = true;
                TakeDigit();
            } else if (!hasPoint && cursor_.TakeWord(symbols_.decimalSeparator)) {
                hasPoint = true;
                number_.digits += '.';
            } else if (!hasDigit || !TakeGroupSeparator()) {
                break;
            }
        }
        return hasDigit && ReadExponent();
    }

    void TakeDigit()
    {
        number_.digits += static_cast<char>(cursor_.Peek());
        cursor_.Advance();
    }

    // False for an exponent without digits.
    bool ReadExponent()
    {
        if (!cursor_.Take(u'e') && !cursor_.Take(u'E'))
            return true;
        number_.digits += 'e';
        if (cursor_.Take(u'-'))
            number_.digits += '-';
        else
            cursor_.Take(u'+');
        const std::size_t before = number_.digits.size();
        while (TextCursor::IsDigit(cursor_.Peek()))
            TakeDigit();
        return number_.digits.size() > before;
    }

    bool ReadBits()
    {
        cursor_.Advance();
        number_.kind = ParsedNumber::Kind::Bits;
        if (cursor_.Take(u'h') || cursor_.Take(u'H'))
            return ReadBitDigits(4);
        if (cursor_.Take(u'o') || cursor_.Take(u'O'))
            return ReadBitDigits(3);
        return false;
    }

    bool ReadBitDigits(int bitsPerDigit)
    {
        bool hasDigit = false;
        for (int digit = BitDigit(); digit >= 0 && digit < (1 << bitsPerDigit); digit = BitDigit()) {
            if (number_.bits >> (WidestBits - bitsPerDigit) != 0)
                return false;
            number_.bits = number_.bits << bitsPerDigit | static_cast<std::uint64_t>(digit);
            hasDigit = true;
            cursor_.Advance();
        }
        return hasDigit;
    }

    // -1 for none.
    int BitDigit() const
    {
        const char16_t unit = cursor_.Peek();
        if (TextCursor::IsDigit(unit))
            return unit - u'0';
        if (unit >= u'a' && unit <= u'f')
            return unit - u'a' + 10;
        if (unit >= u'A' && unit <= u'F')
            return unit - u'A' + 10;
        return -1;
    }

    TextCursor cursor_;
    const NumberSymbols& symbols_;
    ParsedNumber number_;
    bool hasPlus_ = false;
    bool hasMinus_ = false;
    bool hasCurrency_ = false;
    bool hasBrackets_ = false;
    bool isBracketOpen_ = false;
};

} // namespace

std::optional<ParsedNumber> ParseNumber(std::u16string_view text, const Locale& locale)
{
    return NumericParser(text, locale).Parse();
}

} // namespace vornix
