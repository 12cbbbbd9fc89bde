#include "persist/script_attributes.h"
#include "vornix/automation.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

constexpr ScriptPlace cursor { 20, 30 };

// The place in words, "invalid", or the error.
std::string PlaceOf(std::u16string_view attributes, ScriptAddressing addressing)
{
    try {
        const std::optional<ScriptPlace> place = ReadScriptPlace(attributes, addressing, cursor, BuiltinLocale());
        return place ? std::to_string(place->Row) + ", " + std::to_string(place->Col) : "invalid";
    } catch (const AutomationError& error) {
        return "error " + std::to_string(error.Number());
    }
}

std::string Cell(std::u16string_view attributes)
{
    return PlaceOf(attributes, ScriptAddressing::Cell);
}
std::string Column(std::u16string_view attributes)
{
    return PlaceOf(attributes, ScriptAddressing::Column);
}
std::string Row(std::u16string_view attributes)
{
    return PlaceOf(attributes, ScriptAddressing::Row);
}

} // namespace

TEST(ScriptAttributes, WithoutThemTheCursorIsThePlace)
{
    EXPECT_EQ(Cell(u""), "20, 30");
    EXPECT_EQ(Column(u""), "20, 30");
    EXPECT_EQ(Row(u""), "20, 30");
}

TEST(ScriptAttributes, ACellTakesBothOrNone)
{
    EXPECT_EQ(Cell(u"Row=\"1\" Col=\"2\""), "1, 2");
    EXPECT_EQ(Cell(u"Col=\"2\" Row=\"1\""), "1, 2");
    EXPECT_EQ(Cell(u"Row=\"1\""), "invalid");
    EXPECT_EQ(Cell(u"Col=\"2\""), "invalid");
    EXPECT_EQ(Cell(u"Row=\"1\" Row=\"2\""), "invalid");
    EXPECT_EQ(Cell(u"Row=\"1\" Col=\"2\" Row=\"3\""), "invalid") << "a sum of four";
}

TEST(ScriptAttributes, RowThreeTimesMakesTheSumOfBoth)
{
    EXPECT_EQ(Cell(u"Row=\"1\" Row=\"2\" Row=\"3\""), "3, 30");
    EXPECT_EQ(Cell(u"Col=\"1\" Col=\"2\""), "invalid");
}

TEST(ScriptAttributes, ALineTakesItsOwnOnce)
{
    EXPECT_EQ(Column(u"Col=\"2\""), "20, 2");
    EXPECT_EQ(Row(u"Row=\"1\""), "1, 30");
    EXPECT_EQ(Column(u"Col=\"2\" Col=\"3\""), "invalid");
    EXPECT_EQ(Row(u"Row=\"1\" Row=\"1\""), "invalid");
}

TEST(ScriptAttributes, ThatOfTheOtherKindIsUnknown)
{
    EXPECT_EQ(Column(u"Row=\"1\""), "invalid");
    EXPECT_EQ(Row(u"Col=\"1\""), "invalid");
    EXPECT_EQ(Column(u"Col=\"1\" Row=\"1\""), "invalid");
}

TEST(ScriptAttributes, UnknownOnesAreInvalid)
{
    for (const std::u16string_view attributes : { u"Rows=\"1\"", u"row=\"1\"", u"=\"1\"", u"Row", u"Row=1", u"Row=\"1",
             u"Row = \"1\"", u"\tRow=\"1\"", u"\tRow=\"1\" Col=\"2\"", u" ", u"Row=\"1\" Col=\"2\" x" })
        EXPECT_EQ(Cell(attributes), "invalid") << testing::PrintToString(attributes);
}

TEST(ScriptAttributes, BlanksAroundNamesDrop)
{
    EXPECT_EQ(Cell(u"   Row =\"1\"   Col =\"2\""), "1, 2");
    EXPECT_EQ(Cell(u"Row=\"1\"Col=\"2\""), "1, 2");
}

TEST(ScriptAttributes, AValueThatIsNoNumberEndsTheReading)
{
    EXPECT_EQ(Cell(u"Row=\"x\" Col=\"1\""), "20, 30") << "both counts 0";
    EXPECT_EQ(Cell(u"Row=\"1\" Col=\"x\""), "invalid");
    EXPECT_EQ(Cell(u"Row=\"1\" Col=\"2\" Row=\"\" Rows=\"1\""), "1, 2");
    EXPECT_EQ(Cell(u"Rows=\"1\" Row=\"x\""), "invalid") << "what was wrong before counts";
    EXPECT_EQ(Column(u"Col=\"\""), "20, 30");
    EXPECT_EQ(Row(u"Row=\"1\" Row=\"x\" Row=\"2\""), "1, 30");
}

TEST(ScriptAttributes, ValuesAreNumbersOf16Bits)
{
    EXPECT_EQ(Row(u"Row=\"-1\""), "-1, 30");
    EXPECT_EQ(Row(u"Row=\" 1.5 \""), "2, 30");
    EXPECT_EQ(Row(u"Row=\"&H10\""), "16, 30");
    EXPECT_EQ(Row(u"Row=\"&HFFFF\""), "-1, 30");
    EXPECT_EQ(Row(u"Row=\"32767\""), "32767, 30");
    EXPECT_EQ(Row(u"Row=\"-32768\""), "-32768, 30");
    EXPECT_EQ(Row(u"Row=\"32768\""), "error 6");
    EXPECT_EQ(Row(u"Row=\"5000000000\""), "error 6");
    EXPECT_EQ(Column(u"Col=\"-32769\""), "error 6");
}

TEST(ScriptAttributes, AnIndexOutOfRangeIsAnErrorBehindAnUnknownOneToo)
{
    EXPECT_EQ(Cell(u"Rows=\"1\" Row=\"99999\""), "error 6");
    EXPECT_EQ(Cell(u"Row=\"x\" Col=\"99999\""), "20, 30") << "not read any more";
}

TEST(ScriptAttributes, ThoseOfAGridElementAreNotRead)
{
    EXPECT_EQ(PlaceOf(u"Row=\"99999\" anything", ScriptAddressing::Grid), "20, 30");
}

TEST(ScriptAttributes, AreReadInTimeLinearInThem)
{
    std::u16string attributes;
    for (int i = 0; i < 200'000; ++i)
        attributes += u" x=\"1\"";
    EXPECT_EQ(Cell(attributes), "invalid");
}

} // namespace vornix
