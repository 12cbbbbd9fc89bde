#include "vornix/automation.h"

#include "automation/reference_table.h"

#include <gtest/gtest.h>

#include <limits>

namespace vornix {

using test::ErrorOf;

TEST(Variant, ANewOneIsEmptyAndConvertsToNothing)
{
    const Variant value;
    EXPECT_TRUE(value.IsEmpty());
    EXPECT_EQ(value.ToI16(), 0);
    EXPECT_EQ(value.ToI32(), 0);
    EXPECT_EQ(value.ToDouble(), 0);
    EXPECT_FALSE(value.ToBool());
    EXPECT_EQ(value.ToText(), u"");
    EXPECT_EQ(value.ToDate(), 0);
    EXPECT_EQ(value.ToCurrency(), 0);
    EXPECT_EQ(value.ToFont(), nullptr);
}

TEST(Variant, NullIsErrorNinetyFourToEveryConversion)
{
    const Variant null = Variant::Null();
    EXPECT_TRUE(null.IsNull());
    EXPECT_EQ(ErrorOf([&] { null.ToI16(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToI32(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToI64(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToDouble(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToBool(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToText(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToDate(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToCurrency(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToColor(); }), ErrorNumber::InvalidUseOfNull);
}

TEST(Variant, AMissingArgumentAndAnObjectHaveNoValue)
{
    const FontPtr font = std::make_shared<FontObject>();
    for (const Variant& value : { Variant::Missing(), Variant(font), Variant::FromObject(nullptr),
             Variant::FromArray(std::make_shared<VariantArray>()) }) {
        EXPECT_EQ(ErrorOf([&] { value.ToI16(); }), ErrorNumber::TypeMismatch);
        EXPECT_EQ(ErrorOf([&] { value.ToText(); }), ErrorNumber::TypeMismatch);
        EXPECT_EQ(ErrorOf([&] { value.ToDate(); }), ErrorNumber::TypeMismatch);
    }
    EXPECT_TRUE(Variant::Missing().IsMissing());
}

TEST(Variant, IntegersOutOfWidthAreErrorSix)
{
    EXPECT_EQ(Variant(i32 { 32767 }).ToI16(), 32767);
    EXPECT_EQ(ErrorOf([] { Variant(i32 { 32768 }).ToI16(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(std::int64_t { 2147483648 }).ToI32(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(1e19).ToI64(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(std::numeric_limits<double>::quiet_NaN()).ToI64(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(1e300).ToSingle(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Variant(-9.2e18).ToI64(), -9200000000000000000);
}

TEST(Variant, FloatsRoundToTheEvenInteger)
{
    EXPECT_EQ(Variant(2.5).ToI16(), 2);
    EXPECT_EQ(Variant(3.5).ToI32(), 4);
    EXPECT_EQ(Variant(-2.5f).ToI64(), -2);
    EXPECT_EQ(ErrorOf([] { Variant(32767.5).ToI16(); }), ErrorNumber::Overflow);
}

TEST(Variant, BooleansAreMinusOneAndZero)
{
    EXPECT_EQ(Variant(true).Type(), VariantType::Boolean);
    EXPECT_EQ(Variant(true).ToI16(), -1);
    EXPECT_EQ(Variant(true).ToDouble(), -1);
    EXPECT_EQ(Variant(false).ToI32(), 0);
    EXPECT_EQ(Variant(true).ToText(), u"True");
    EXPECT_EQ(Variant(false).ToText(), u"False");
    EXPECT_TRUE(Variant(0.1).ToBool());
    EXPECT_TRUE(Variant(u"#TRUE#").ToBool());
    EXPECT_FALSE(Variant(u"0").ToBool());
}

TEST(Variant, TextsConvertLikeTexts)
{
    EXPECT_EQ(Variant(u"(5)").ToI16(), -5);
    EXPECT_EQ(Variant(u"&HFFFF").ToI16(), -1);
    EXPECT_EQ(Variant(u"&HFFFF").ToI32(), 65535);
    EXPECT_EQ(Variant(u"2.5").ToI32(), 2);
    EXPECT_EQ(Variant(u"1,234.5").ToDouble(), 1234.5);
    EXPECT_EQ(Variant(u"1/2/2020").ToDate(), 43832);
    EXPECT_EQ(Variant(u"1.23456").ToCurrency(), 12346);
    EXPECT_EQ(ErrorOf([] { Variant(u"abc").ToI16(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Variant(u"").ToDouble(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Variant(u"40000").ToI16(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(u"43832").ToDate(); }), ErrorNumber::TypeMismatch);
}

TEST(Variant, NumbersAsTexts)
{
    EXPECT_EQ(Variant(i16 { -5 }).ToText(), u"-5");
    EXPECT_EQ(Variant(std::numeric_limits<std::int64_t>::min()).ToText(), u"-9223372036854775808");
    EXPECT_EQ(Variant(0.1).ToText(), u"0.1");
    EXPECT_EQ(Variant(0.1f).ToText(), u"0.1");
    EXPECT_EQ(Variant(1.0 / 3).ToText(), u"0.333333333333333");
    EXPECT_EQ(Variant(1.0f / 3).ToText(), u"0.3333333");
}

TEST(Variant, CurrencyHasFourDecimals)
{
    EXPECT_EQ(Variant::FromCurrency(15000).ToText(), u"1.5");
    EXPECT_EQ(Variant::FromCurrency(-5001).ToText(), u"-0.5001");
    EXPECT_EQ(Variant::FromCurrency(-120000).ToText(), u"-12");
    EXPECT_EQ(Variant::FromCurrency(25000).ToI16(), 2);
    EXPECT_EQ(Variant::FromCurrency(-35000).ToI32(), -4);
    EXPECT_EQ(Variant::FromCurrency(25001).ToI32(), 3);
    EXPECT_EQ(Variant::FromCurrency(25000).ToDouble(), 2.5);
    EXPECT_EQ(Variant(i16 { 3 }).ToCurrency(), 30000);
    EXPECT_EQ(ErrorOf([] { Variant(std::int64_t { 1'000'000'000'000'000 }).ToCurrency(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(1e15).ToCurrency(); }), ErrorNumber::Overflow);
}

TEST(Variant, DatesAreDayNumbersInRange)
{
    EXPECT_EQ(Variant::FromDate(43832.5).ToText(), u"1/2/2020 12:00:00 PM");
    EXPECT_EQ(Variant::FromDate(43832.5).ToDouble(), 43832.5);
    EXPECT_EQ(Variant::FromDate(43832.5).ToI32(), 43832);
    EXPECT_EQ(Variant(i32 { 43832 }).ToDate(), 43832);
    EXPECT_EQ(Variant(-657434.0).ToDate(), -657434);
    EXPECT_EQ(ErrorOf([] { Variant(-657435.0).ToDate(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(2958466.0).ToDate(); }), ErrorNumber::Overflow);
}

TEST(Variant, ColoursAreThirtyTwoBitPatterns)
{
    EXPECT_EQ(Variant(i32 { 255 }).ToColor(), 0xFFu);
    EXPECT_EQ(Variant(static_cast<i32>(0x80000005)).ToColor(), 0x80000005u);
    EXPECT_EQ(Variant(std::int64_t { 0x80000005 }).ToColor(), 0x80000005u);
    EXPECT_EQ(Variant(u"&HFF").ToColor(), 0xFFu);
    EXPECT_EQ(Variant(u"&H80000005").ToColor(), 0x80000005u);
    EXPECT_EQ(ErrorOf([] { Variant(std::int64_t { 0x100000000 }).ToColor(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(std::int64_t { -0x80000001LL }).ToColor(); }), ErrorNumber::Overflow);
}

TEST(Variant, ObjectsComeBackAsTheyWent)
{
    const FontPtr font = std::make_shared<FontObject>();
    EXPECT_EQ(Variant(font).ToFont(), font);
    EXPECT_EQ(Variant(PicturePtr()).ToPicture(), nullptr);
    EXPECT_EQ(Variant::Null().ToPicture(), nullptr);
    EXPECT_EQ(ErrorOf([&] { Variant(font).ToPicture(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { Variant(i16 { 0 }).ToFont(); }), ErrorNumber::TypeMismatch);

    const auto object = std::make_shared<int>(5);
    EXPECT_EQ(Variant::FromObject(object).ToObject(), object);

    auto array = std::make_shared<VariantArray>();
    array->columns = { { Variant(i32 { 1 }), Variant::Null() }, { Variant(u"a") } };
    const Variant table = Variant::FromArray(array);
    EXPECT_EQ(table.ToArray().columns[1][0].ToText(), u"a");
    EXPECT_EQ(ErrorOf([] { Variant().ToArray(); }), ErrorNumber::TypeMismatch);
}

TEST(Variant, EqualityComparesTypeAndValue)
{
    EXPECT_EQ(Variant(u"a"), Variant(std::u16string(u"a")));
    EXPECT_NE(Variant(i16 { 1 }), Variant(i32 { 1 }));
    EXPECT_NE(Variant(), Variant::Null());
    EXPECT_NE(Variant(true), Variant(false));
}

} // namespace vornix
