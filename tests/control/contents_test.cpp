#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::IsEmpty;

class Contents : public GridTest {
protected:
    Contents() { Table(3, 2, 1, 1); }
};

TEST_F(Contents, TextAndTextValueAreOneText)
{
    Grid().SetText(1, 1, u"a");
    EXPECT_EQ(Grid().TextValue(1, 1), u"a");
    Grid().SetTextValue(1, 1, u"b");
    EXPECT_EQ(Grid().Text(1, 1), u"b");
}

TEST_F(Contents, TextIsWrittenAndRefreshedEveryTime)
{
    Grid().SetText(0, 0, u"a");
    Grid().SetText(0, 0, u"a");
    EXPECT_EQ(host->Refreshes(), 2);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Contents, NothingIsRefreshedWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetText(0, 0, u"a");
    Grid().SetCellChecked(0, 0, true);
    Grid().SetColFormat(0, u"0.00");
    Grid().SetColMask(0, u"##");
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_EQ(Grid().Text(0, 0), u"-1");
}

TEST_F(Contents, FixedCellsHaveNegativeIndices)
{
    Grid().SetText(-1, -1, u"corner");
    Grid().SetText(-1, 0, u"header");
    EXPECT_EQ(Grid().Text(-1, -1), u"corner");
    EXPECT_EQ(Grid().Text(-1, 0), u"header");
    EXPECT_EQ(ErrorOf([&] { Grid().Text(-2, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetText(0, -2, u""); }), 9);
}

TEST_F(Contents, FillersAreReachableAndOneBeyondIsNot)
{
    Grid().SetText(3, 2, u"filler");
    EXPECT_EQ(Grid().Text(3, 2), u"filler");
    EXPECT_EQ(ErrorOf([&] { Grid().Text(4, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(0, 3); }), 9);
}

TEST_F(Contents, AnIndexThatLeavesSixteenBitsIsOverflow)
{
    EXPECT_EQ(ErrorOf([&] { Grid().Text(32767, 0); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(0, 32767); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(32766, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(-32768, 0); }), 9);
}

TEST_F(Contents, KeyIsASecondTextThatIsNeverPainted)
{
    Grid().SetText(1, 1, u"shown");
    host->ClearLog();
    Grid().SetKey(1, 1, u"hidden");
    Grid().SetKey(1, 1, u"hidden");
    EXPECT_EQ(Grid().Key(1, 1), u"hidden");
    EXPECT_EQ(Grid().Text(1, 1), u"shown");
    EXPECT_EQ(Grid().Key(0, 0), u"");
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(Contents, CheckedIsAViewOfTheText)
{
    const std::pair<const char16_t*, bool> forms[] = { { u"", false }, { u"0", false }, { u"1", true }, { u"-1", true },
        { u"0.5", true }, { u"True", true }, { u"false", false }, { u"perhaps", false }, { u"&H10", true } };
    for (const auto& [text, checked] : forms) {
        Grid().SetText(0, 0, text);
        EXPECT_EQ(Grid().CellChecked(0, 0), checked) << testing::PrintToString(std::u16string(text));
    }
}

TEST_F(Contents, CheckedIsWrittenAsAText)
{
    Grid().SetCellChecked(0, 0, true);
    EXPECT_EQ(Grid().Text(0, 0), u"-1");
    Grid().SetCellChecked(0, 0, false);
    EXPECT_EQ(Grid().Text(0, 0), u"0");
    Grid().SetCellChecked(0, 0, false);
    EXPECT_EQ(host->Refreshes(), 3);
}

TEST_F(Contents, NamesAreNotPainted)
{
    Grid().SetColName(1, u"Amount");
    EXPECT_EQ(Grid().ColName(1), u"Amount");
    EXPECT_EQ(Grid().ColName(0), u"");
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColName(3, u"x"); }), 9);
}

TEST_F(Contents, FormatAndMaskRefreshTheColumnEveryTime)
{
    // One fixed row, three rows, the filler row.
    Grid().SetColFormat(1, u"0.00");
    EXPECT_EQ(host->Refreshes(), 5);
    Grid().SetColFormat(1, u"0.00");
    EXPECT_EQ(host->Refreshes(), 10);
    Grid().SetColMask(1, u"##");
    EXPECT_EQ(host->Refreshes(), 15);
    EXPECT_EQ(Grid().ColFormat(1), u"0.00");
    EXPECT_EQ(Grid().ColMask(1), u"##");
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Contents, TextsOfAnyLengthAndScriptComeBack)
{
    const std::u16string texts[]
        = { u"", u"a", std::u16string(5000, u'x'), u"Grüße, 世界 👋", std::u16string(u"a\0b", 3) };
    for (const std::u16string& text : texts) {
        Grid().SetText(2, 1, text);
        EXPECT_EQ(Grid().Text(2, 1), text);
    }
}

} // namespace
} // namespace vornix
