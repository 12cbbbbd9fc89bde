// Values that go in and come out, and what they hold.
#include "c_grid.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using namespace vornix::test;
using testing::HasSubstr;

namespace {

// The text that a value becomes in a cell.
std::u16string TextOf(vornix_grid* grid, const vornix_value& value)
{
    EXPECT_EQ(Let(grid, "Text", { Integer(0), Integer(0), value }), 0) << vornix_last_error();
    return Get(grid, "Text", { Integer(0), Integer(0) }).ToText();
}

TEST(CValues, ComeOutAsTheyWentIn)
{
    const GridPtr grid = MakeSmallGrid();
    const std::u16string odd = { u'a', u'\0', 0xD800, u'b', 0xDC00, 0xD83D, 0xDE00 };
    EXPECT_EQ(TextOf(grid.get(), Text(odd)), odd);
    EXPECT_EQ(TextOf(grid.get(), Text(u"")), u"");
    EXPECT_EQ(TextOf(grid.get(), Integer(-32768, VORNIX_I16)), u"-32768");
    EXPECT_EQ(
        TextOf(grid.get(), Integer(std::numeric_limits<std::int64_t>::min(), VORNIX_I64)), u"-9223372036854775808");
    EXPECT_EQ(TextOf(grid.get(), Number(0.1f, VORNIX_SINGLE)), u"0.1");
    EXPECT_EQ(TextOf(grid.get(), Number(0.1)), u"0.1");
    EXPECT_EQ(TextOf(grid.get(), Integer(-5, VORNIX_CURRENCY)), u"-0.0005");
    EXPECT_EQ(TextOf(grid.get(), Number(2, VORNIX_DATE)), u"1/1/1900");
    EXPECT_EQ(TextOf(grid.get(), Boolean(true)), u"True");
    EXPECT_EQ(TextOf(grid.get(), Integer(7, VORNIX_BOOLEAN)), u"True");
    EXPECT_EQ(TextOf(grid.get(), Typed(VORNIX_EMPTY)), u"");
}

TEST(CValues, KeepEveryDigitOfADecimal)
{
    const GridPtr grid = MakeSmallGrid();
    vornix_value value = Typed(VORNIX_DECIMAL);
    value.as.decimal = { 0xFFFFFFFFFFFFFFFFu, 0xFFFFFFFFu, 28, 1 };
    EXPECT_EQ(TextOf(grid.get(), value), u"-7.9228162514264337593543950335");
    value.as.decimal.scale = 29;
    EXPECT_EQ(Let(grid.get(), "Text", { Integer(0), Integer(0), value }), 5);
}

TEST(CValues, OutsideTheirTypeAreErrors)
{
    const GridPtr grid = MakeSmallGrid();
    const auto write = [&](const vornix_value& value) { return Let(grid.get(), "Caption", { value }); };
    EXPECT_EQ(write(Integer(32768, VORNIX_I16)), 6);
    EXPECT_EQ(write(Integer(-2147483649LL, VORNIX_I32)), 6);
    EXPECT_EQ(write(Number(1e39, VORNIX_SINGLE)), 6);
    EXPECT_EQ(write(Number(std::numeric_limits<double>::infinity(), VORNIX_SINGLE)), 0);
    EXPECT_EQ(write(Typed(17)), 13);
    EXPECT_EQ(write(Typed(65535)), 13);
    vornix_value text = Typed(VORNIX_TEXT);
    text.as.text = { nullptr, 1 };
    EXPECT_EQ(write(text), 5);
    const std::uint16_t unit = u'x';
    text.as.text = { &unit, (std::size_t { 1 } << 30) + 1 };
    EXPECT_EQ(write(text), 7);
    EXPECT_EQ(write(Typed(VORNIX_ARRAY)), 5);
    EXPECT_EQ(write(Typed(VORNIX_NULL)), 94);
}

TEST(CValues, SayThatTheyAreOwnedAndAreEmptiedWhenCleared)
{
    const GridPtr grid = MakeSmallGrid();
    vornix_value text;
    std::vector<vornix_value> cell { Integer(2), Integer(1) };
    ASSERT_EQ(vornix_invoke(grid.get(), "Text", VORNIX_GET, cell.data(), 2, &text), 0);
    EXPECT_EQ(text.owned, 1);
    EXPECT_EQ(ToString(text.as.text), u"21");
    vornix_value_clear(&text);
    EXPECT_EQ(text.type, VORNIX_EMPTY);
    EXPECT_EQ(text.owned, 0);
    EXPECT_EQ(text.as.integer, 0);
    vornix_value_clear(&text);
    vornix_value_clear(nullptr);
}

TEST(CValues, OfTheCallerAreNeverFreed)
{
    const GridPtr grid = MakeSmallGrid();
    std::u16string mine = u"on the caller's side";
    vornix_value value = Text(mine);
    ASSERT_EQ(Let(grid.get(), "Caption", { value }), 0);
    vornix_value_clear(&value);
    EXPECT_EQ(value.type, VORNIX_EMPTY);
    EXPECT_EQ(mine, u"on the caller's side");
    EXPECT_EQ(Get(grid.get(), "Caption").ToText(), mine);
}

TEST(CValues, ByReferenceComeBackInTheirPlaces)
{
    const GridPtr grid = MakeSmallGrid();
    Values arguments { Integer(1), Integer(2), Text(u"7"), Number(3.4) };
    ASSERT_EQ(vornix_invoke(grid.get(), "GetSizeCell", VORNIX_CALL, arguments.data(), 4, nullptr), 0);
    EXPECT_EQ(arguments[0].as.integer, 1);
    EXPECT_EQ(arguments[2].type, VORNIX_I16);
    EXPECT_EQ(arguments[2].as.integer, Get(grid.get(), "ColWidth", { Integer(2) }).ToInteger());
    EXPECT_EQ(arguments[3].type, VORNIX_I16);
    EXPECT_EQ(arguments[3].as.integer, Get(grid.get(), "RowHeight", { Integer(1) }).ToInteger());
}

TEST(CValues, ByReferenceStayAsTheyWereWhenTheCallFails)
{
    const GridPtr grid = MakeSmallGrid();
    Values arguments { Integer(100), Integer(2), Integer(7), Integer(8) };
    EXPECT_EQ(vornix_invoke(grid.get(), "GetSizeCell", VORNIX_CALL, arguments.data(), 4, nullptr), 9);
    EXPECT_EQ(arguments[2].type, VORNIX_I32);
    EXPECT_EQ(arguments[2].as.integer, 7);
    vornix_value result = Integer(77);
    EXPECT_EQ(vornix_invoke(grid.get(), "Nonsense", VORNIX_GET, nullptr, 0, &result), 438);
    EXPECT_EQ(result.as.integer, 77);
}

TEST(CValues, MayBeGivenByName)
{
    const GridPtr grid = MakeSmallGrid();
    Values arguments { Integer(2), Integer(1), Integer(0), Integer(0) };
    const char* const names[] = { "COL", "Row", "height", "Width" };
    ASSERT_EQ(vornix_invoke_named(grid.get(), "GetSizeCell", VORNIX_CALL, arguments.data(), 4, names, 4, nullptr), 0);
    EXPECT_EQ(arguments[0].as.integer, 2);
    EXPECT_EQ(arguments[2].as.integer, Get(grid.get(), "RowHeight", { Integer(1) }).ToInteger());
    EXPECT_EQ(arguments[3].as.integer, Get(grid.get(), "ColWidth", { Integer(2) }).ToInteger());

    const char* const unknown[] = { "Depth" };
    EXPECT_EQ(
        vornix_invoke_named(grid.get(), "GetSizeCell", VORNIX_CALL, arguments.data(), 4, unknown, 1, nullptr), 448);
    const char* const twice[] = { "Row" };
    EXPECT_EQ(vornix_invoke_named(grid.get(), "GetSizeCell", VORNIX_CALL, arguments.data(), 4, twice, 1, nullptr), 450);
    EXPECT_EQ(vornix_invoke_named(grid.get(), "GetSizeCell", VORNIX_CALL, arguments.data(), 1, names, 2, nullptr), 5);
    const char* const none[] = { nullptr };
    EXPECT_EQ(vornix_invoke_named(grid.get(), "GetSizeCell", VORNIX_CALL, arguments.data(), 4, none, 1, nullptr), 5);
    EXPECT_EQ(vornix_invoke_named(grid.get(), "GetSizeCell", VORNIX_CALL, arguments.data(), 4, nullptr, 1, nullptr), 5);
}

TEST(CValues, ErrorsAreDescribed)
{
    const GridPtr grid = MakeSmallGrid();
    EXPECT_EQ(Let(grid.get(), "Rows", { Text(u"x") }), 13);
    EXPECT_STREQ(vornix_last_error(), "Type mismatch");
    EXPECT_EQ(Let(grid.get(), "Rows", { Integer(2) }), 0);
    EXPECT_STREQ(vornix_last_error(), "Type mismatch") << "stays until the next failure";
    EXPECT_STREQ(vornix_error_description(9), "Subscript out of range");
    EXPECT_STREQ(vornix_error_description(53), "File not found");
    EXPECT_STREQ(vornix_error_description(-12345), "Automation error");
    EXPECT_STREQ(vornix_version(), "0.1.0");
}

TEST(CValues, LongErrorTextsAreCutBetweenCharacters)
{
    std::string path = "/";
    for (int i = 0; i < 1000; ++i)
        path += "\xC3\xA9";
    vornix_picture* picture = nullptr;
    EXPECT_NE(vornix_picture_load(path.c_str(), &picture), 0);
    const std::string text = vornix_last_error();
    EXPECT_LE(text.size(), 1023u);
    EXPECT_GE(text.size(), 1020u);
    EXPECT_EQ(text.back(), '\xA9');
    EXPECT_EQ(picture, nullptr);
}

} // namespace
