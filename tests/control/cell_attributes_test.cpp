#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// One attribute of a cell: how it is written, whether an equal value is written again, whether it is painted.
struct CellCase {
    const char* name;
    std::function<void(Vornix&, i16, i16)> write;
    std::function<bool(Vornix&, i16, i16)> isWritten;
    bool comparesFirst = true;
    bool refreshes = true;
};

void PrintTo(const CellCase& test, std::ostream* out)
{
    *out << test.name;
}

template <typename Value>
CellCase Attribute(const char* name, Value (Vornix::*get)(i16, i16) const, void (Vornix::*set)(i16, i16, Value),
    std::type_identity_t<Value> value)
{
    return { name, [=](Vornix& grid, i16 Row, i16 Col) { (grid.*set)(Row, Col, value); },
        [=](Vornix& grid, i16 Row, i16 Col) { return (grid.*get)(Row, Col) == value; } };
}

CellCase Always(CellCase test)
{
    test.comparesFirst = false;
    return test;
}

CellCase Silent(CellCase test)
{
    test.refreshes = false;
    return test;
}

CellCase FontNameCase()
{
    return { "CellFontName", [](Vornix& grid, i16 Row, i16 Col) { grid.SetCellFontName(Row, Col, u"Serif"); },
        [](Vornix& grid, i16 Row, i16 Col) { return grid.CellFontName(Row, Col) == u"Serif"; } };
}

CellCase PictureCase()
{
    const PicturePtr picture = MakePicture(0x0000FF);
    return { "CellPicture", [=](Vornix& grid, i16 Row, i16 Col) { grid.SetCellPicture(Row, Col, picture); },
        [=](Vornix& grid, i16 Row, i16 Col) { return grid.CellPicture(Row, Col) == picture; }, false };
}

class CellAttribute : public GridTest, public testing::WithParamInterface<CellCase> {
protected:
    CellAttribute() { Table(4, 3, 2, 1); }

    void Write(i16 Row, i16 Col) { GetParam().write(Grid(), Row, Col); }
    bool IsWritten(i16 Row, i16 Col) { return GetParam().isWritten(Grid(), Row, Col); }
};

TEST_P(CellAttribute, WritesOneCell)
{
    for (const CellPlace place : { CellPlace { 1, 1 }, CellPlace { -2, -1 }, CellPlace { 4, 3 } }) {
        EXPECT_FALSE(IsWritten(place.Row, place.Col));
        EXPECT_THAT(CellsChangedBy(Grid(), [&] { Write(place.Row, place.Col); }), ElementsAre(place));
        EXPECT_TRUE(IsWritten(place.Row, place.Col));
    }
}

TEST_P(CellAttribute, RefreshesTheCellAndReportsNothing)
{
    Write(1, 1);
    EXPECT_EQ(host->Refreshes(), GetParam().refreshes ? 1 : 0);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_P(CellAttribute, AnEqualValueIsWrittenOnlyWhereNothingIsCompared)
{
    Write(1, 1);
    host->ClearLog();
    Write(1, 1);
    EXPECT_EQ(host->Refreshes(), GetParam().refreshes && !GetParam().comparesFirst ? 1 : 0);
}

TEST_P(CellAttribute, IsNotPaintedWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Write(1, 1);
    EXPECT_TRUE(IsWritten(1, 1));
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_P(CellAttribute, OutsideTheStoreIsError9)
{
    EXPECT_EQ(ErrorOf([&] { Write(5, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Write(0, 4); }), 9);
    EXPECT_EQ(ErrorOf([&] { Write(-3, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { IsWritten(0, -2); }), 9);
    EXPECT_EQ(ErrorOf([&] { Write(32767, 0); }), 6);
}

INSTANTIATE_TEST_SUITE_P(All, CellAttribute,
    testing::Values(Always(Attribute("CellBackColor", &Vornix::CellBackColor, &Vornix::SetCellBackColor, 0x0102F3)),
        Attribute("CellForeColor", &Vornix::CellForeColor, &Vornix::SetCellForeColor, 0x0102F3),
        Attribute("CellBorderColor", &Vornix::CellBorderColor, &Vornix::SetCellBorderColor, 0x0102F3),
        Attribute("BoxBorder", &Vornix::BoxBorder, &Vornix::SetBoxBorder, 0x0102F3),
        Always(Silent(Attribute("CellEnabled", &Vornix::CellEnabled, &Vornix::SetCellEnabled, false))),
        Attribute("CheckEnable", &Vornix::CheckEnable, &Vornix::SetCheckEnable, false), FontNameCase(),
        Attribute("CellFontBold", &Vornix::CellFontBold, &Vornix::SetCellFontBold, true),
        Attribute("CellFontItalic", &Vornix::CellFontItalic, &Vornix::SetCellFontItalic, true),
        Attribute("CellFontUnderline", &Vornix::CellFontUnderline, &Vornix::SetCellFontUnderline, true),
        Attribute("CellFontStrikeThrough", &Vornix::CellFontStrikeThrough, &Vornix::SetCellFontStrikeThrough, true),
        Attribute("CellFontSize", &Vornix::CellFontSize, &Vornix::SetCellFontSize, 14),
        Always(Attribute("CellGradientMode", &Vornix::CellGradientMode, &Vornix::SetCellGradientMode, vxGradientTB)),
        Always(Attribute("CellGradientEnd", &Vornix::CellGradientEnd, &Vornix::SetCellGradientEnd, 0x0102F3)),
        Attribute("CellMode", &Vornix::CellMode, &Vornix::SetCellMode, vxTextBox), PictureCase(),
        Attribute("CellPictureAlignment", &Vornix::CellPictureAlignment, &Vornix::SetCellPictureAlignment, vxStretch),
        Attribute("CellStyle", &Vornix::CellStyle, &Vornix::SetCellStyle, vxCellRoundBox),
        Attribute("CellStyleUnknown", &Vornix::CellStyle, &Vornix::SetCellStyle, 12),
        Attribute("ButtonPressed", &Vornix::ButtonPressed, &Vornix::SetButtonPressed, true),
        // Compared with the raw argument, which never carries the common flags.
        Always(Attribute("TextAlignment", &Vornix::TextAlignment, &Vornix::SetTextAlignment, vxTxtRight)),
        Attribute("TextMarginLeft", &Vornix::TextMarginLeft, &Vornix::SetTextMarginLeft, 7),
        Attribute("TextMarginRight", &Vornix::TextMarginRight, &Vornix::SetTextMarginRight, 7)),
    [](const auto& test) { return std::string(test.param.name); });

class CellAttributes : public GridTest {
protected:
    CellAttributes() { Table(4, 3, 1, 1); }
};

TEST_F(CellAttributes, BackColorBringsTheBorderColourWithIt)
{
    Grid().SetCellBorderColor(0, 0, 0x123456);
    Grid().SetCellBackColor(0, 0, 0xFFFFFF);
    EXPECT_NE(Grid().CellBorderColor(0, 0), 0x123456u);
    Grid().SetCellBorderColor(0, 0, 0x123456);
    EXPECT_EQ(Grid().CellBorderColor(0, 0), 0x123456u);
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0xFFFFFFu);
}

TEST_F(CellAttributes, BorderColourFollowsFromWhite)
{
    Grid().SetCellBackColor(0, 0, 0xFFFFFF);
    // Luminance 240 lowered by 300 thousandths is 168, and 168 * 255 / 240 truncates to 178.
    EXPECT_EQ(Grid().CellBorderColor(0, 0), 0xB2B2B2u);
}

TEST_F(CellAttributes, BorderColorAndBoxBorderAreOne)
{
    Grid().SetBoxBorder(0, 0, 0x0A0B0C);
    EXPECT_EQ(Grid().CellBorderColor(0, 0), 0x0A0B0Cu);
}

TEST_F(CellAttributes, BackColorIsPaintedAtOnce)
{
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    EXPECT_EQ(host->Pixel(90, 31), 0x00FFFFu);
}

TEST_F(CellAttributes, EnabledAndCheckEnableAreOneState)
{
    Grid().SetCellEnabled(0, 0, false);
    EXPECT_FALSE(Grid().CheckEnable(0, 0));
    Grid().SetCheckEnable(0, 0, true);
    EXPECT_TRUE(Grid().CellEnabled(0, 0));
}

TEST_F(CellAttributes, GradientEndReadsBackAfterABackColor)
{
    Grid().SetCellGradientMode(0, 0, vxGradientLR);
    Grid().SetCellGradientEnd(0, 0, 0x0000FF);
    const ColorRef withEnd = host->Pixel(140, 31);
    Grid().SetCellBackColor(0, 0, 0xFFFFFF);
    EXPECT_EQ(Grid().CellGradientEnd(0, 0), 0x0000FFu);
    EXPECT_NE(host->Pixel(140, 31), withEnd) << "what is drawn follows the back colour";
}

TEST_F(CellAttributes, CheckBoxesAreCentredWithoutTheCommonFlags)
{
    Grid().SetTextAlignment(0, 0, vxTxtRight);
    Grid().SetCellMode(0, 0, vxCheckBox);
    // Stored as 1 alone, so that taking the common flags out puts them in.
    EXPECT_EQ(Grid().TextAlignment(0, 0), vxTxtCenter | vxNoPrefix);
    Grid().SetCellMode(1, 1, vxTextBox);
    EXPECT_EQ(Grid().TextAlignment(1, 1), 0);
}

TEST_F(CellAttributes, AlignmentIsReadWithoutTheCommonFlags)
{
    Grid().SetTextAlignment(0, 0, vxTxtRight);
    EXPECT_EQ(Grid().TextAlignment(0, 0), vxTxtRight);
    Grid().SetTextAlignment(0, 0, vxTxtRight | vxNoPrefix);
    EXPECT_EQ(Grid().TextAlignment(0, 0), vxTxtRight);
}

TEST_F(CellAttributes, NegativeAlignmentTogglesFlags)
{
    Grid().SetTextAlignment(0, 0, vxTxtVCenter);
    Grid().SetTextAlignment(0, 0, -vxTxtRight);
    EXPECT_EQ(Grid().TextAlignment(0, 0), vxTxtVCenter | vxTxtRight);
    Grid().SetTextAlignment(0, 0, -vxTxtRight);
    EXPECT_EQ(Grid().TextAlignment(0, 0), vxTxtVCenter);
}

TEST_F(CellAttributes, AlignmentEqualToTheRawStoredValueIsNotWritten)
{
    Grid().SetTextAlignment(0, 0, vxTxtRight | vxNoPrefix);
    host->ClearLog();
    Grid().SetTextAlignment(0, 0, vxTxtRight | vxNoPrefix);
    EXPECT_EQ(host->Refreshes(), 0);
    Grid().SetTextAlignment(0, 0, vxTxtRight);
    EXPECT_EQ(host->Refreshes(), 1);
}

TEST_F(CellAttributes, NegativeMarginsAreIgnored)
{
    Grid().SetTextMarginLeft(0, 0, 5);
    Grid().SetTextMarginLeft(0, 0, -1);
    Grid().SetTextMarginRight(0, 0, -32768);
    EXPECT_EQ(Grid().TextMarginLeft(0, 0), 5);
    EXPECT_EQ(Grid().TextMarginRight(0, 0), 0);
}

TEST_F(CellAttributes, FontNamesAreComparedWithCase)
{
    Grid().SetCellFontName(0, 0, u"Serif");
    host->ClearLog();
    Grid().SetCellFontName(0, 0, u"SERIF");
    EXPECT_EQ(host->Refreshes(), 1);
    EXPECT_EQ(Grid().CellFontName(0, 0), u"SERIF");
}

TEST_F(CellAttributes, PicturesAreReferencesAndCanBeTakenAway)
{
    const PicturePtr picture = MakePicture(0x0000FF);
    Grid().SetCellPicture(0, 0, picture);
    EXPECT_EQ(Grid().CellPicture(0, 0), picture);
    EXPECT_EQ(host->Pixel(33, 24), 0x0000FFu);
    Grid().SetCellPicture(0, 0, nullptr);
    EXPECT_EQ(Grid().CellPicture(0, 0), nullptr);
    EXPECT_NE(host->Pixel(33, 24), 0x0000FFu);
}

} // namespace
} // namespace vornix
