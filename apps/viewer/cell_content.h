// What a text could be: a number, a date, a truth value.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vornix::viewer {

// The kinds a text fits, as bits. A kind that holds for every text of a column is found by combining them with &.
// Numbers come in two writings, with a decimal point (1,234.5) and with a decimal comma (1.234,5; 1 234,5); a column
// keeps to one.
enum ContentBits : std::uint32_t {
    IntegerWithPoint = 1u << 0,
    IntegerWithComma = 1u << 1,
    RealWithPoint = 1u << 2,
    RealWithComma = 1u << 3,
    MoneyWithPoint = 1u << 4,
    MoneyWithComma = 1u << 5,
    DateOnly = 1u << 6,
    DateAndTime = 1u << 7, // a date without a time fits too
    WordTrueFalse = 1u << 8,
    WordYesNo = 1u << 9,
    LetterYesNo = 1u << 10,
    LetterTrueFalse = 1u << 11,
    IsoDate = 1u << 12, // year-month-day, with or without a time
};
using Content = std::uint32_t;

inline constexpr Content AnyInteger = IntegerWithPoint | IntegerWithComma;
inline constexpr Content AnyReal = RealWithPoint | RealWithComma;
inline constexpr Content AnyMoney = MoneyWithPoint | MoneyWithComma;
inline constexpr Content AnyNumber = AnyInteger | AnyReal | AnyMoney;
inline constexpr Content AnyDate = DateOnly | DateAndTime;
inline constexpr Content AnyTruthValue = WordTrueFalse | WordYesNo | LetterYesNo | LetterTrueFalse;

// Upper case ASCII with one kind of blank, and none of them outside; empty where it is too long for a value.
std::u16string NormalizedValue(std::u16string_view text);

// Blanks around the text do not count. A number with leading zeros is none (it is a code), neither is one of more
// than 18 digits. Days are tested against the month; where day and month could be either, both orders are tried.
Content ContentOf(std::u16string_view text);

// True for true, yes, y, t and 1; false for their opposites; nothing for any other text. In any case.
std::optional<bool> TruthValueOf(std::u16string_view text);

// No for Yes, t for f: the other truth value in the same writing. The text must be a truth value.
std::u16string OppositeTruthText(std::u16string_view text);

} // namespace vornix::viewer
