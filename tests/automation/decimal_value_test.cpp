#include "automation/comma_locale.h"
#include "automation/reference_table.h"
#include "vornix/automation.h"

#include <gtest/gtest.h>

#include <limits>

namespace vornix {

using test::ErrorOf;

namespace {

constexpr std::uint64_t AllLow = std::numeric_limits<std::uint64_t>::max();
constexpr u32 AllHigh = std::numeric_limits<u32>::max();

Variant Decimal(std::uint64_t low, u8 scale, bool negative = false)
{
    return Variant::FromDecimal({ low, 0, scale, negative });
}

Variant LargestDecimal(bool negative = false)
{
    return Variant::FromDecimal({ AllLow, AllHigh, 0, negative });
}

std::u16string TextOfDecimal(const Variant& value)
{
    return Variant::FromDecimal(value.ToDecimal()).ToText();
}

} // namespace

TEST(DecimalValue, ComesBackAsItWent)
{
    const DecimalValue value { 150, 7, 2, true };
    EXPECT_EQ(Variant::FromDecimal(value).Type(), VariantType::Decimal);
    EXPECT_EQ(Variant::FromDecimal(value).ToDecimal(), value);
    EXPECT_EQ(ErrorOf([] { Variant::FromDecimal({ 1, 0, 29, false }); }), ErrorNumber::InvalidArgument);
    EXPECT_NE(Decimal(150, 2), Decimal(15, 1)) << "equality compares what is held";
}

TEST(DecimalValue, TextHasEveryDigitAndNoZerosAtTheEndOfTheFraction)
{
    EXPECT_EQ(Decimal(150, 2).ToText(), u"1.5");
    EXPECT_EQ(Decimal(150, 0).ToText(), u"150");
    EXPECT_EQ(Decimal(15000, 4, true).ToText(), u"-1.5");
    EXPECT_EQ(Decimal(1, 28).ToText(), u"0.0000000000000000000000000001");
    EXPECT_EQ(Decimal(5, 1, true).ToText(), u"-0.5");
    EXPECT_EQ(Decimal(1234567890123456789, 3).ToText(), u"1234567890123456.789");
    EXPECT_EQ(LargestDecimal().ToText(), u"79228162514264337593543950335");
    EXPECT_EQ(LargestDecimal(true).ToText(), u"-79228162514264337593543950335");
    EXPECT_EQ(Variant::FromDecimal({ AllLow, AllHigh, 28, false }).ToText(), u"7.9228162514264337593543950335");
}

TEST(DecimalValue, AZeroHasNoSignInItsText)
{
    EXPECT_EQ(Decimal(0, 0).ToText(), u"0");
    EXPECT_EQ(Decimal(0, 5, true).ToText(), u"0");
}

TEST(DecimalValue, TextsAreThoseOfTheLocale)
{
    const CommaLocale locale;
    EXPECT_EQ(Decimal(123456789, 2, true).ToText(locale), u"\u22121234567,89");
    EXPECT_EQ(Variant::FromCurrency(-12345678).ToText(locale), u"\u22121234,5678");
    EXPECT_EQ(Variant(u"1.234.567,89").ToDecimal(locale), (DecimalValue { 123456789, 0, 2, false }));
    EXPECT_EQ(Variant(u"\u22120,1").ToDecimal(locale), (DecimalValue { 1, 0, 1, true }));
}

TEST(DecimalValue, IntegersRoundTiesToEven)
{
    EXPECT_EQ(Decimal(25, 1).ToI16(), 2);
    EXPECT_EQ(Decimal(35, 1).ToI32(), 4);
    EXPECT_EQ(Decimal(35, 1, true).ToI64(), -4);
    EXPECT_EQ(Decimal(25, 1, true).ToI64(), -2);
    EXPECT_EQ(Decimal(5, 1).ToI16(), 0);
    EXPECT_EQ(Decimal(15, 1).ToI16(), 2);
    EXPECT_EQ(Decimal(250000000000000001, 17).ToI16(), 3);
    EXPECT_EQ(Decimal(249999999999999999, 17).ToI16(), 2);
    EXPECT_EQ(Decimal(95, 1).ToI16(), 10);
    EXPECT_EQ(Decimal(4, 28).ToI16(), 0);
    EXPECT_EQ(Decimal(3276749, 2).ToI16(), 32767);
}

TEST(DecimalValue, IntegersOutOfRangeAreErrorSix)
{
    EXPECT_EQ(ErrorOf([] { Decimal(3276750, 2).ToI16(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Decimal(3276850, 2, true).ToI16(), -32768);
    EXPECT_EQ(ErrorOf([] { Decimal(3276851, 2, true).ToI16(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Decimal(2147483648, 0).ToI32(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Decimal(2147483648, 0, true).ToI32(), std::numeric_limits<i32>::min());
    EXPECT_EQ(Decimal(9223372036854775807, 0).ToI64(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(Decimal(9223372036854775808u, 0, true).ToI64(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(ErrorOf([] { Decimal(9223372036854775808u, 0).ToI64(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Decimal(9223372036854775809u, 0, true).ToI64(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { LargestDecimal().ToI64(); }), ErrorNumber::Overflow);
}

TEST(DecimalValue, FloatsAreTheNearestOnes)
{
    EXPECT_EQ(Decimal(1, 1).ToDouble(), 0.1);
    EXPECT_EQ(Decimal(1, 1, true).ToSingle(), -0.1f);
    EXPECT_EQ(Decimal(1, 28).ToDouble(), 1e-28);
    EXPECT_EQ(Decimal(9007199254740993, 0).ToDouble(), 9007199254740992.0);
    EXPECT_EQ(LargestDecimal().ToDouble(), 79228162514264337593543950335.0);
    EXPECT_EQ(LargestDecimal().ToSingle(), 79228162514264337593543950335.0f);
    EXPECT_EQ(Decimal(0, 3, true).ToDouble(), 0);
}

TEST(DecimalValue, CurrencyRoundsTiesToEvenInTheFourthPlace)
{
    EXPECT_EQ(Decimal(150, 2).ToCurrency(), 15000);
    EXPECT_EQ(Decimal(100005, 5).ToCurrency(), 10000);
    EXPECT_EQ(Decimal(100015, 5).ToCurrency(), 10002);
    EXPECT_EQ(Decimal(100015, 5, true).ToCurrency(), -10002);
    EXPECT_EQ(Decimal(1000050000001, 12).ToCurrency(), 10001);
    EXPECT_EQ(Decimal(9223372036854775807, 4).ToCurrency(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(ErrorOf([] { Decimal(9223372036854775808u, 4).ToCurrency(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { LargestDecimal().ToCurrency(); }), ErrorNumber::Overflow);
}

TEST(DecimalValue, IsTrueUnlessZero)
{
    EXPECT_TRUE(Decimal(1, 28).ToBool());
    EXPECT_TRUE(LargestDecimal(true).ToBool());
    EXPECT_FALSE(Decimal(0, 28, true).ToBool());
}

TEST(DecimalValue, IsADayNumber)
{
    EXPECT_EQ(Decimal(438325, 1).ToDate(), 43832.5);
    EXPECT_EQ(Decimal(657434, 0, true).ToDate(), -657434);
    EXPECT_EQ(ErrorOf([] { Decimal(2958466, 0).ToDate(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Decimal(657435, 0, true).ToDate(); }), ErrorNumber::Overflow);
}

TEST(DecimalValue, IsAColour)
{
    EXPECT_EQ(Decimal(0x80000005, 0).ToColor(), 0x80000005u);
    EXPECT_EQ(Variant::FromCurrency(std::int64_t { 0x80000005 } * 10000).ToColor(), 0x80000005u);
    EXPECT_EQ(ErrorOf([] { Decimal(0x100000000, 0).ToColor(); }), ErrorNumber::Overflow);
}

TEST(DecimalValue, IntegersAndBooleansAreExact)
{
    EXPECT_EQ(Variant().ToDecimal(), DecimalValue());
    EXPECT_EQ(Variant(i16 { -5 }).ToDecimal(), (DecimalValue { 5, 0, 0, true }));
    EXPECT_EQ(Variant(i32 { 100 }).ToDecimal(), (DecimalValue { 100, 0, 0, false }));
    EXPECT_EQ(Variant(std::numeric_limits<std::int64_t>::min()).ToDecimal(),
        (DecimalValue { 9223372036854775808u, 0, 0, true }));
    EXPECT_EQ(Variant(true).ToDecimal(), (DecimalValue { 1, 0, 0, true }));
    EXPECT_EQ(Variant(false).ToDecimal(), DecimalValue());
    EXPECT_EQ(Variant::FromCurrency(-5001).ToDecimal(), (DecimalValue { 5001, 0, 4, true }));
    EXPECT_EQ(Variant::FromCurrency(std::numeric_limits<std::int64_t>::max()).ToDecimal(),
        (DecimalValue { 9223372036854775807, 0, 4, false }));
}

TEST(DecimalValue, FloatsComeByTheDigitsTheyAreSureOf)
{
    EXPECT_EQ(Variant(0.1).ToDecimal(), (DecimalValue { 1, 0, 1, false }));
    EXPECT_EQ(Variant(0.1f).ToDecimal(), (DecimalValue { 1, 0, 1, false }));
    EXPECT_EQ(TextOfDecimal(Variant(1.0 / 3)), u"0.333333333333333");
    EXPECT_EQ(TextOfDecimal(Variant(1.0f / 3)), u"0.3333333");
    EXPECT_EQ(TextOfDecimal(Variant(-1e28)), u"-10000000000000000000000000000");
    EXPECT_EQ(TextOfDecimal(Variant(7.9e28)), u"79000000000000000000000000000");
    EXPECT_EQ(Variant(1e-29).ToDecimal(), DecimalValue());
    EXPECT_EQ(Variant(-1e-300).ToDecimal(), DecimalValue());
    EXPECT_EQ(Variant(-0.0).ToDecimal(), DecimalValue());
    EXPECT_EQ(TextOfDecimal(Variant::FromDate(43832.25)), u"43832.25");
    for (const double tooLarge :
        { 8e28, 1e300, -8e28, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN() })
        EXPECT_EQ(ErrorOf([&] { Variant(tooLarge).ToDecimal(); }), ErrorNumber::Overflow) << tooLarge;
}

TEST(DecimalValue, TextsComeByTheirDigitsNotByTheNearestFloat)
{
    EXPECT_EQ(Variant(u"0.1").ToDecimal(), (DecimalValue { 1, 0, 1, false }));
    EXPECT_EQ(TextOfDecimal(Variant(u"9007199254740993.5")), u"9007199254740993.5");
    EXPECT_EQ(Variant(u"79228162514264337593543950335").ToDecimal(), LargestDecimal().ToDecimal());
    EXPECT_EQ(TextOfDecimal(Variant(u"-0.0000000000000000000000000001")), u"-0.0000000000000000000000000001");
    EXPECT_EQ(TextOfDecimal(Variant(u"($1,234.50)")), u"-1234.5");
    EXPECT_EQ(TextOfDecimal(Variant(u"1.25E-3")), u"0.00125");
    EXPECT_EQ(TextOfDecimal(Variant(u"12e2")), u"1200");
    EXPECT_EQ(TextOfDecimal(Variant(u"&HFF")), u"255");
    EXPECT_EQ(TextOfDecimal(Variant(u".5")), u"0.5");
    EXPECT_EQ(TextOfDecimal(Variant(u"000")), u"0");
    for (const char16_t* text : { u"1e-1000000000000", u"0.001e-2147483647", u"123e-1000000001" })
        EXPECT_EQ(Variant(text).ToDecimal(), DecimalValue());
}

TEST(DecimalValue, TextsRoundToTheRoomThereIsTiesToEven)
{
    EXPECT_EQ(TextOfDecimal(Variant(u"0.00000000000000000000000000005")), u"0");
    EXPECT_EQ(TextOfDecimal(Variant(u"0.00000000000000000000000000015")), u"0.0000000000000000000000000002");
    EXPECT_EQ(TextOfDecimal(Variant(u"0.00000000000000000000000000025")), u"0.0000000000000000000000000002");
    EXPECT_EQ(TextOfDecimal(Variant(u"0.000000000000000000000000000250001")), u"0.0000000000000000000000000003");
    // Too wide for 96 bits with all of its places.
    EXPECT_EQ(TextOfDecimal(Variant(u"9.9999999999999999999999999999")), u"10");
    EXPECT_EQ(TextOfDecimal(Variant(u"79228162514264337593543950335.4")), u"79228162514264337593543950335");
    EXPECT_EQ(TextOfDecimal(Variant(u"7922816251426433759354395033.55")), u"7922816251426433759354395034");
    EXPECT_EQ(TextOfDecimal(Variant(u"7922816251426433759354395033.45")), u"7922816251426433759354395033.4");
}

TEST(DecimalValue, WhatIsTooLargeIsErrorSixWhatIsNoNumberErrorThirteen)
{
    for (const char16_t* text : { u"79228162514264337593543950336", u"79228162514264337593543950335.5", u"1e29",
             u"-80000000000000000000000000000", u"1e1000000000000", u"1234e2147483647" })
        EXPECT_EQ(ErrorOf([&] { Variant(text).ToDecimal(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(u"").ToDecimal(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Variant(u"one").ToDecimal(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Variant::Missing().ToDecimal(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Variant(FontPtr()).ToDecimal(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Variant::FromArray(nullptr).ToDecimal(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Variant::Null().ToDecimal(); }), ErrorNumber::InvalidUseOfNull);
}

TEST(DecimalValue, EveryTextOfADecimalReadsBackToTheSameNumber)
{
    // A walk over mantissas and scales; the text of what was read is the text that was read.
    std::uint64_t state = 1;
    for (int round = 0; round < 20000; ++round) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        const DecimalValue value { state * 2862933555777941757u,
            round % 3 ? static_cast<u32>(state >> (round % 32 + 8)) : 0, static_cast<u8>(round % 29), round % 2 == 0 };
        const std::u16string text = Variant::FromDecimal(value).ToText();
        ASSERT_EQ(TextOfDecimal(Variant(text)), text);
    }
}

} // namespace vornix
