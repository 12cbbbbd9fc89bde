#include "automation/comma_locale.h"
#include "persist/batch_script.h"
#include "vornix/automation.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

std::optional<ScriptValue> Read(std::u16string_view text, ScriptValueKind kind)
{
    return ReadScriptValue(text, kind, BuiltinLocale());
}

std::optional<i32> Number(std::u16string_view text)
{
    const auto value = Read(text, ScriptValueKind::Number);
    return value ? std::optional(std::get<i32>(*value)) : std::nullopt;
}

std::optional<i16> ShortNumber(std::u16string_view text)
{
    const auto value = Read(text, ScriptValueKind::ShortNumber);
    return value ? std::optional(std::get<i16>(*value)) : std::nullopt;
}

std::optional<bool> Truth(std::u16string_view text, ScriptValueKind kind = ScriptValueKind::Boolean)
{
    const auto value = Read(text, kind);
    return value ? std::optional(std::get<bool>(*value)) : std::nullopt;
}

} // namespace

TEST(ScriptValues, NumbersAreReadAsConversionsDo)
{
    EXPECT_EQ(Number(u"255"), 255);
    EXPECT_EQ(Number(u"&HFF"), 255);
    EXPECT_EQ(Number(u"&hff"), 255);
    EXPECT_EQ(Number(u"&HFFFF"), 65535);
    EXPECT_EQ(Number(u"&H8000000F"), -2147483633);
    EXPECT_EQ(Number(u"&O17"), 15);
    EXPECT_EQ(Number(u" -7 "), -7);
    EXPECT_EQ(Number(u"(7)"), -7);
    EXPECT_EQ(Number(u"1,000"), 1000);
    EXPECT_EQ(Number(u"1E3"), 1000);
}

TEST(ScriptValues, FractionsGoToTheNearestTiesToTheEven)
{
    EXPECT_EQ(Number(u"1.5"), 2);
    EXPECT_EQ(Number(u"2.5"), 2);
    EXPECT_EQ(Number(u"-2.5"), -2);
    EXPECT_EQ(Number(u"2.51"), 3);
    EXPECT_EQ(ShortNumber(u"32767.4"), 32767);
}

TEST(ScriptValues, WhatIsNoNumberIsNoValue)
{
    for (const std::u16string_view text : { u"", u" ", u"abc", u"4x", u"1 2", u"True", u"&HZZ", u"#FF" }) {
        EXPECT_EQ(Number(text), std::nullopt) << testing::PrintToString(text);
        EXPECT_EQ(ShortNumber(text), std::nullopt) << testing::PrintToString(text);
    }
}

TEST(ScriptValues, ANumberBeyond32BitsIsNoValue)
{
    EXPECT_EQ(Number(u"2147483647"), 2147483647);
    EXPECT_EQ(Number(u"2147483648"), std::nullopt);
    EXPECT_EQ(Number(u"-2147483648"), -2147483647 - 1);
    EXPECT_EQ(Number(u"-2147483649"), std::nullopt);
    EXPECT_EQ(Number(u"&H100000000"), std::nullopt);
    EXPECT_EQ(Number(u"1E300"), std::nullopt);
    EXPECT_EQ(ShortNumber(u"2147483648"), std::nullopt);
}

TEST(ScriptValues, AShortNumberBeyond16BitsIsErrorSix)
{
    EXPECT_EQ(ShortNumber(u"32767"), 32767);
    EXPECT_EQ(ShortNumber(u"-32768"), -32768);
    for (const std::u16string_view text : { u"32768", u"-32769", u"32767.5", u"&HFFFF", u"2147483647" }) {
        try {
            Read(text, ScriptValueKind::ShortNumber);
            ADD_FAILURE() << testing::PrintToString(text);
        } catch (const AutomationError& error) {
            EXPECT_EQ(error.Number(), 6);
        }
    }
}

TEST(ScriptValues, BooleansAreWordsOrNumbers)
{
    EXPECT_EQ(Truth(u"True"), true);
    EXPECT_EQ(Truth(u"true"), true);
    EXPECT_EQ(Truth(u"#TRUE#"), true);
    EXPECT_EQ(Truth(u"False"), false);
    EXPECT_EQ(Truth(u"#FALSE#"), false);
    EXPECT_EQ(Truth(u"-1"), true);
    EXPECT_EQ(Truth(u"0.4"), true);
    EXPECT_EQ(Truth(u"0"), false);
    EXPECT_EQ(Truth(u"99999999999"), true);
    for (const std::u16string_view text : { u"", u"yes", u"True ", u"1E999" })
        EXPECT_EQ(Truth(text), std::nullopt) << testing::PrintToString(text);
}

TEST(ScriptValues, ANumericBooleanTakesNoWords)
{
    constexpr auto kind = ScriptValueKind::NumericBoolean;
    EXPECT_EQ(Truth(u"0", kind), false);
    EXPECT_EQ(Truth(u"-1", kind), true);
    EXPECT_EQ(Truth(u"0.4", kind), true);
    for (const std::u16string_view text : { u"True", u"False", u"#TRUE#", u"", u"yes" })
        EXPECT_EQ(Truth(text, kind), std::nullopt) << testing::PrintToString(text);
}

TEST(ScriptValues, TextsStayAsTheyAre)
{
    for (const std::u16string_view text : { u"", u"  a ", u"<b>", u"\r\n", u"\"" })
        EXPECT_EQ(std::get<std::u16string_view>(*Read(text, ScriptValueKind::Text)), text);
}

TEST(ScriptValues, FollowTheLocale)
{
    const CommaLocale locale;
    EXPECT_EQ(std::get<i32>(*ReadScriptValue(u"1,5", ScriptValueKind::Number, locale)), 2);
    EXPECT_EQ(Number(u"1,5"), 15) << "a comma groups";
}

} // namespace vornix
