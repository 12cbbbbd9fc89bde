// Conversions of the value at the edges of its types.
#include "automation/reference_table.h"
#include "vornix/automation.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace vornix {

using test::ErrorOf;

TEST(VariantConversions, TextsBecomeWideIntegersByTheirDigits)
{
    EXPECT_EQ(Variant(u"9007199254740993").ToI64(), 9007199254740993);
    EXPECT_EQ(Variant(u"9223372036854775807").ToI64(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(Variant(u"-9223372036854775808").ToI64(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(ErrorOf([] { Variant(u"9223372036854775808").ToI64(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(u"1e400").ToI64(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Variant(u"x").ToI64(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(Variant(u"&HFFFFFFFFFFFFFFFF").ToI64(), -1);
    EXPECT_EQ(Variant(u"&HFFFFFFFF").ToI64(), 4294967295);
    EXPECT_EQ(ErrorOf([] { Variant(u"-&H8000000000000000").ToI64(); }), ErrorNumber::Overflow);
}

TEST(VariantConversions, TextsRoundByTheirDigitsTiesToEven)
{
    EXPECT_EQ(Variant(u"2.5").ToI16(), 2);
    EXPECT_EQ(Variant(u"3.5").ToI16(), 4);
    EXPECT_EQ(Variant(u"-2.5").ToI32(), -2);
    EXPECT_EQ(Variant(u"2.50000000000000000000001").ToI32(), 3);
    EXPECT_EQ(Variant(u"0.5").ToI64(), 0);
    EXPECT_EQ(Variant(u"5e-1").ToI64(), 0);
    EXPECT_EQ(Variant(u"32767.4999999999999999999").ToI16(), 32767);
    EXPECT_EQ(ErrorOf([] { Variant(u"32767.5").ToI16(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Variant(u"-32768.5").ToI16(), -32768);
}

TEST(VariantConversions, TextsBecomeCurrencyByTheirDigits)
{
    EXPECT_EQ(Variant(u"922337203685477.5807").ToCurrency(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(Variant(u"-922337203685477.5808").ToCurrency(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(ErrorOf([] { Variant(u"922337203685477.5808").ToCurrency(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Variant(u"1.00005").ToCurrency(), 10000);
    EXPECT_EQ(Variant(u"1.00015").ToCurrency(), 10002);
    EXPECT_EQ(Variant(u"$(1,234.5)").ToCurrency(), -12345000);
    EXPECT_EQ(Variant(u"&H10").ToCurrency(), 160000);
}

TEST(VariantConversions, CurrencyTextIsExact)
{
    EXPECT_EQ(Variant::FromCurrency(std::numeric_limits<std::int64_t>::max()).ToText(), u"922337203685477.5807");
    EXPECT_EQ(Variant::FromCurrency(std::numeric_limits<std::int64_t>::min()).ToText(), u"-922337203685477.5808");
    EXPECT_EQ(Variant::FromCurrency(0).ToText(), u"0");
    EXPECT_EQ(Variant::FromCurrency(1).ToText(), u"0.0001");
    EXPECT_EQ(Variant::FromCurrency(-10).ToText(), u"-0.001");
    EXPECT_EQ(Variant::FromCurrency(12340000).ToText(), u"1234");
}

TEST(VariantConversions, BooleansAreNumbersToEveryType)
{
    EXPECT_EQ(Variant(true).ToI64(), -1);
    EXPECT_EQ(Variant(true).ToSingle(), -1.0f);
    EXPECT_EQ(Variant(true).ToCurrency(), -10000);
    EXPECT_EQ(Variant(true).ToDate(), -1);
    EXPECT_TRUE(Variant(i16 { 2 }).ToBool());
    EXPECT_TRUE(Variant(std::numeric_limits<std::int64_t>::min()).ToBool());
    EXPECT_TRUE(Variant::FromCurrency(1).ToBool());
    EXPECT_FALSE(Variant::FromDate(0).ToBool());
    EXPECT_FALSE(Variant(u"faLSE").ToBool());
    EXPECT_EQ(ErrorOf([] { Variant(u"yes").ToBool(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Variant(u"").ToBool(); }), ErrorNumber::TypeMismatch);
}

TEST(VariantConversions, NullAndMissingAreErrorsToEveryType)
{
    const auto errorsOf = [](const Variant& value) {
        std::u16string scratch;
        return std::vector { ErrorOf([&] { value.ToI16(); }), ErrorOf([&] { value.ToI32(); }),
            ErrorOf([&] { value.ToI64(); }), ErrorOf([&] { value.ToSingle(); }), ErrorOf([&] { value.ToDouble(); }),
            ErrorOf([&] { value.ToBool(); }), ErrorOf([&] { value.ToText(); }), ErrorOf([&] { value.ToDate(); }),
            ErrorOf([&] { value.ToCurrency(); }), ErrorOf([&] { value.ToDecimal(); }),
            ErrorOf([&] { value.ToColor(); }), ErrorOf([&] { value.ViewText(scratch); }) };
    };
    EXPECT_EQ(errorsOf(Variant::Null()), std::vector<int>(12, ErrorNumber::InvalidUseOfNull));
    for (const Variant& value : { Variant::Missing(), Variant(FontPtr()), Variant(PicturePtr()),
             Variant::FromObject(nullptr), Variant::FromArray(nullptr) })
        EXPECT_EQ(errorsOf(value), std::vector<int>(12, ErrorNumber::TypeMismatch));
}

TEST(VariantConversions, FloatTextsHaveTheDigitsOfTheirType)
{
    EXPECT_EQ(Variant(123456789012345678.0).ToText(), u"1.23456789012346E+17");
    EXPECT_EQ(Variant(123456789012345.0).ToText(), u"123456789012345");
    EXPECT_EQ(Variant(0.1 + 0.2).ToText(), u"0.3");
    EXPECT_EQ(Variant(-2.5).ToText(), u"-2.5");
    EXPECT_EQ(Variant(16777216.0f).ToText(), u"1.677722E+07");
    EXPECT_EQ(Variant(-0.0).ToText(), u"0");
}

TEST(VariantConversions, DateTextsShowTheTimeWhenThereIsOne)
{
    EXPECT_EQ(Variant::FromDate(43832).ToText(), u"1/2/2020");
    EXPECT_EQ(Variant::FromDate(43832.75).ToText(), u"1/2/2020 6:00:00 PM");
    EXPECT_EQ(Variant::FromDate(0.25).ToText(), u"6:00:00 AM");
    EXPECT_EQ(Variant::FromDate(-1.25).ToText(), u"12/29/1899 6:00:00 AM");
    EXPECT_EQ(ErrorOf([] { Variant::FromDate(1e9).ToText(); }), ErrorNumber::Overflow);
}

TEST(VariantConversions, AViewOfATextIsTheTextItself)
{
    const Variant text(u"a text that lies on the heap");
    std::u16string scratch;
    const std::u16string_view view = text.ViewText(scratch);
    EXPECT_EQ(view, u"a text that lies on the heap");
    EXPECT_TRUE(scratch.empty());
    EXPECT_EQ(text.ViewText(scratch).data(), view.data());
    EXPECT_EQ(Variant(i32 { -17 }).ViewText(scratch), u"-17");
    EXPECT_EQ(Variant().ViewText(scratch), u"");
}

TEST(VariantConversions, AValueIsSmall)
{
    EXPECT_LE(sizeof(Variant), std::size_t { 48 });
}

} // namespace vornix
