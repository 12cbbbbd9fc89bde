#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum class Area { NotFixed, Fixed };

struct TemplateCase {
    const char* name;
    Area area;
    std::function<void(Vornix&)> write;
    std::function<bool(const Vornix&, i16, i16)> isWritten;
    bool comparesFirst = true;
    // Repaints whether Redraw is on or not.
    bool ignoresRedraw = true;
};

void PrintTo(const TemplateCase& test, std::ostream* out)
{
    *out << test.name;
}

template <typename Value>
TemplateCase Template(const char* name, Area area, void (Vornix::*set)(Value), Value (Vornix::*read)(i16, i16) const,
    std::type_identity_t<Value> value)
{
    return { name, area, [=](Vornix& grid) { (grid.*set)(value); },
        [=](const Vornix& grid, i16 Row, i16 Col) { return (grid.*read)(Row, Col) == value; } };
}

TemplateCase Always(TemplateCase test)
{
    test.comparesFirst = false;
    return test;
}

TemplateCase FontCase(const char* name, Area area, void (Vornix::*set)(const FontPtr&))
{
    return { name, area, [=](Vornix& grid) { (grid.*set)(MakeFont(u"Serif", 12)); },
        [](const Vornix& grid, i16 Row, i16 Col) {
            return grid.CellFontName(Row, Col) == u"Serif" && grid.CellFontBold(Row, Col)
                && grid.CellFontSize(Row, Col) == 12;
        },
        false, false };
}

class TemplateProperty : public GridTest, public testing::WithParamInterface<TemplateCase> {
protected:
    TemplateProperty() { Table(3, 2, 2, 1); }

    void Write() { GetParam().write(Grid()); }
    bool IsInArea(CellPlace cell) { return (cell.Row < 0 || cell.Col < 0) == (GetParam().area == Area::Fixed); }
    bool IsWritten(i16 Row, i16 Col) { return GetParam().isWritten(Grid(), Row, Col); }
};

TEST_P(TemplateProperty, TouchesNoCellAtRunTime)
{
    EXPECT_THAT(CellsChangedBy(Grid(), [&] { Write(); }), IsEmpty());
}

TEST_P(TemplateProperty, RewritesItsCellsAtDesignTime)
{
    host->SetUserMode(false);
    const auto expected = CellsWhere(Grid(), [&](CellPlace cell) { return IsInArea(cell); });
    EXPECT_EQ(CellsChangedBy(Grid(), [&] { Write(); }), expected);
    for (const CellPlace cell : expected)
        EXPECT_TRUE(IsWritten(cell.Row, cell.Col));
}

TEST_P(TemplateProperty, ReachesNewCellsButNotNewRowsOfOldColumns)
{
    Write();
    Grid().SetCols(3);
    Grid().SetRows(4);
    Grid().SetFixedRows(3);
    const bool isFixed = GetParam().area == Area::Fixed;
    EXPECT_EQ(IsWritten(3, 2), !isFixed) << "a cell of a new column";
    EXPECT_FALSE(IsWritten(3, 0)) << "a new row takes what the old column keeps";
    EXPECT_EQ(IsWritten(-3, 0), isFixed) << "a new fixed row";
}

TEST_P(TemplateProperty, RepaintsAndReportsInBothModes)
{
    for (const bool userMode : { true, false }) {
        MakeDesign();
        host->SetUserMode(userMode);
        host->ClearLog();
        Write();
        EXPECT_EQ(host->Repaints(), 1);
        EXPECT_THAT(Reported(), ElementsAre(GetParam().name));
    }
}

TEST_P(TemplateProperty, EqualValuesEndAtOnceWhereTheyAreCompared)
{
    Write();
    host->ClearLog();
    Write();
    EXPECT_EQ(host->Repaints(), GetParam().comparesFirst ? 0 : 1);
    EXPECT_EQ(Reported().size(), GetParam().comparesFirst ? 0u : 1u);
}

TEST_P(TemplateProperty, OnlyFontsWaitForRedraw)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Write();
    EXPECT_EQ(host->Repaints(), GetParam().ignoresRedraw ? 1 : 0);
    EXPECT_THAT(Reported(), ElementsAre(GetParam().name));
}

INSTANTIATE_TEST_SUITE_P(All, TemplateProperty,
    testing::Values(
        Template("DefaultBkColor", Area::NotFixed, &Vornix::SetDefaultBkColor, &Vornix::CellBackColor, 0x0102F3),
        Template("DefaultForeColor", Area::NotFixed, &Vornix::SetDefaultForeColor, &Vornix::CellForeColor, 0x0102F3),
        Template("DefaultBkColorFixed", Area::Fixed, &Vornix::SetDefaultBkColorFixed, &Vornix::CellBackColor, 0x0102F3),
        Template(
            "DefaultForeColorFixed", Area::Fixed, &Vornix::SetDefaultForeColorFixed, &Vornix::CellForeColor, 0x0102F3),
        Template("DefaultMode", Area::NotFixed, &Vornix::SetDefaultMode, &Vornix::CellMode, vxTextBox),
        Always(Template(
            "DefaultTextAlign", Area::NotFixed, &Vornix::SetDefaultTextAlign, &Vornix::TextAlignment, vxTxtRight)),
        Always(Template("DefaultTextAlignFixed", Area::Fixed, &Vornix::SetDefaultTextAlignFixed, &Vornix::TextAlignment,
            vxTxtRight)),
        FontCase("Font", Area::NotFixed, &Vornix::SetFont), FontCase("FontFixed", Area::Fixed, &Vornix::SetFontFixed)),
    [](const auto& test) { return std::string(test.param.name); });

class Templates : public GridTest {
protected:
    Templates() { Table(3, 2, 1, 1); }
};

TEST_F(Templates, BackColorReplacesTheWholeFormatAtDesignTime)
{
    host->SetUserMode(false);
    Grid().SetCellForeColor(0, 0, 0x123456);
    Grid().SetCellStyle(0, 0, vxCellBox);
    Grid().SetCellForeColor(-1, 0, 0x123456);
    Grid().SetDefaultBkColor(0x0000FF);
    EXPECT_EQ(Grid().CellForeColor(0, 0), 0x80000008u);
    EXPECT_EQ(Grid().CellStyle(0, 0), vxCellFlat);
    EXPECT_EQ(Grid().CellForeColor(-1, 0), 0x123456u);
    Grid().SetDefaultBkColorFixed(0x00FF00);
    EXPECT_EQ(Grid().CellForeColor(-1, 0), 0x80000012u);
}

TEST_F(Templates, BackColorShadesTheTemplate)
{
    Grid().SetDefaultBkColor(0x000000);
    Grid().SetCols(3);
    EXPECT_EQ(Grid().CellBorderColor(0, 2), 0x000000u);
    Grid().SetDefaultBkColor(0xFFFFFF);
    Grid().SetCols(4);
    EXPECT_EQ(Grid().CellBorderColor(0, 3), 0xB2B2B2u);
}

TEST_F(Templates, ValuesReadBack)
{
    Grid().SetDefaultBkColor(1);
    Grid().SetDefaultForeColor(2);
    Grid().SetDefaultBkColorFixed(3);
    Grid().SetDefaultForeColorFixed(4);
    Grid().SetDefaultMode(5);
    Grid().SetDefaultTextAlign(6);
    Grid().SetDefaultTextAlignFixed(7);
    Grid().SetDefaultLineColor(8);
    const FontPtr font = MakeFont(u"Serif", 8);
    Grid().SetFont(font);
    EXPECT_EQ(Grid().DefaultBkColor(), 1u);
    EXPECT_EQ(Grid().DefaultForeColor(), 2u);
    EXPECT_EQ(Grid().DefaultBkColorFixed(), 3u);
    EXPECT_EQ(Grid().DefaultForeColorFixed(), 4u);
    EXPECT_EQ(Grid().DefaultMode(), 5);
    EXPECT_EQ(Grid().DefaultTextAlign(), 6);
    EXPECT_EQ(Grid().DefaultTextAlignFixed(), 7);
    EXPECT_EQ(Grid().DefaultLineColor(), 8u);
    EXPECT_EQ(Grid().Font(), font);
    EXPECT_NE(Grid().FontFixed(), font);
}

TEST_F(Templates, NoFontIsError5AndChangesNothing)
{
    const FontPtr before = Grid().Font();
    EXPECT_EQ(ErrorOf([&] { Grid().SetFont(nullptr); }), 5);
    EXPECT_EQ(ErrorOf([&] { Grid().SetFontFixed(nullptr); }), 5);
    EXPECT_EQ(Grid().Font(), before);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Templates, LineColorReachesRowsAndColumnsAtDesignTimeOnly)
{
    Grid().SetDefaultLineColor(0x0000FF);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_NE(host->Pixel(60, 41), 0x0000FFu);
    host->SetUserMode(false);
    Grid().SetDefaultLineColor(0x00FF00);
    EXPECT_EQ(host->Pixel(60, 41), 0x00FF00u);
    EXPECT_EQ(host->Pixel(30 + 119, 30), 0x00FF00u);
    EXPECT_THAT(Reported(), ElementsAre("DefaultLineColor", "DefaultLineColor"));
    host->ClearLog();
    Grid().SetDefaultLineColor(0x00FF00);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Templates, LineColorOfNewLines)
{
    Grid().SetDefaultLineColor(0x0000FF);
    Grid().SetRows(4);
    EXPECT_EQ(host->Pixel(60, 21 * 5 - 1), 0x0000FFu);
}

TEST_F(Templates, SizesAreThoseOfLaterLinesAtRunTime)
{
    Grid().SetDefaultHeight(30);
    Grid().SetDefaultWidth(70);
    Grid().SetDefaultHeightFixed(31);
    Grid().SetDefaultWidthFixed(71);
    EXPECT_EQ(Grid().RowHeight(0), 21);
    EXPECT_EQ(Grid().RowHeight(-1), 21);
    EXPECT_EQ(Grid().ColWidth(0), 120);
    EXPECT_EQ(Grid().ColWidth(-1), 30);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), ElementsAre("DefaultHeight", "DefaultWidth", "DefaultHeightFixed", "DefaultWidthFixed"));
    Grid().SetRows(4);
    Grid().SetCols(3);
    Grid().SetFixedRows(2);
    Grid().SetFixedCols(2);
    EXPECT_EQ(Grid().RowHeight(3), 30);
    EXPECT_EQ(Grid().ColWidth(2), 70);
    EXPECT_EQ(Grid().RowHeight(-2), 31);
    EXPECT_EQ(Grid().ColWidth(-2), 71);
}

TEST_F(Templates, SizesAreWrittenToTheirLinesAtDesignTime)
{
    host->SetUserMode(false);
    Grid().SetDefaultHeight(30);
    EXPECT_EQ(Grid().RowHeight(2), 30);
    EXPECT_EQ(Grid().RowHeight(-1), 21);
    Grid().SetDefaultWidth(70);
    EXPECT_EQ(Grid().ColWidth(1), 70);
    EXPECT_EQ(Grid().ColWidth(-1), 30);
    Grid().SetDefaultHeightFixed(31);
    EXPECT_EQ(Grid().RowHeight(-1), 31);
    EXPECT_EQ(Grid().RowHeight(0), 30);
    Grid().SetDefaultWidthFixed(71);
    EXPECT_EQ(Grid().ColWidth(-1), 71);
    EXPECT_EQ(host->Repaints(), 4);
    i32 x = 0, y = 0;
    Grid().GetPositionCell(0, 0, x, y);
    EXPECT_EQ(x, 71 * 15);
    EXPECT_EQ(y, 31 * 15);
}

TEST_F(Templates, EqualSizesEndAtOnce)
{
    host->SetUserMode(false);
    Grid().SetDefaultHeight(21);
    Grid().SetDefaultWidth(120);
    Grid().SetDefaultHeightFixed(21);
    Grid().SetDefaultWidthFixed(30);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Templates, HeightAtDesignTimeWritesHiddenRowsToo)
{
    host->SetUserMode(false);
    Grid().HideRow(1);
    Grid().SetDefaultHeight(30);
    EXPECT_EQ(Grid().RowHeight(1), 30);
    EXPECT_TRUE(Grid().RowHide(1));
    Grid().ShowRow(1);
    EXPECT_EQ(Grid().RowHeight(1), 21) << "the saved size is not touched";
}

TEST_F(Templates, CommonAlignmentAlwaysHasNoPrefix)
{
    EXPECT_EQ(Grid().CommonTextAlign(), vxNoPrefix);
    Grid().SetCommonTextAlign(vxTxtVCenter);
    EXPECT_EQ(Grid().CommonTextAlign(), vxTxtVCenter | vxNoPrefix);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Reported(), ElementsAre("CommonTextAlign"));
}

TEST_F(Templates, CommonAlignmentDropsTheAlignmentOfEveryCell)
{
    Grid().SetTextAlignment(0, 0, vxTxtRight);
    Grid().SetCommonTextAlign(vxTxtVCenter);
    // The cells hold the value as given; reading it takes the common flags out, which puts the missing one in.
    for (const CellPlace cell : AllCells(Grid()))
        EXPECT_EQ(Grid().TextAlignment(cell.Row, cell.Col), vxNoPrefix);
    Grid().SetTextAlignment(0, 0, vxTxtRight);
    EXPECT_EQ(Grid().TextAlignment(0, 0), vxTxtRight);
}

TEST_F(Templates, CommonAlignmentReachesTheTemplates)
{
    Grid().SetDefaultTextAlign(vxTxtRight);
    Grid().SetCommonTextAlign(vxTxtVCenter);
    Grid().SetCols(3);
    EXPECT_EQ(Grid().TextAlignment(0, 2), vxTxtRight);
    EXPECT_EQ(Grid().TextAlignment(-1, 2), 0);
}

TEST_F(Templates, CommonAlignmentIsWrittenEveryTime)
{
    Grid().SetCommonTextAlign(vxTxtVCenter);
    Grid().SetTextAlignment(0, 0, vxTxtRight);
    Grid().SetCommonTextAlign(vxTxtVCenter);
    EXPECT_EQ(Grid().TextAlignment(0, 0), vxNoPrefix);
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetCommonTextAlign(vxTxtVCenter);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Templates, ResetGridRestoresAttributesAndKeepsContents)
{
    Grid().SetText(0, 0, u"text");
    Grid().SetKey(0, 0, u"key");
    Grid().SetColName(0, u"name");
    const PicturePtr picture = MakePicture(0);
    Grid().SetCellPicture(0, 0, picture);
    Grid().SetColBackColor(0, 0x0000FF);
    Grid().SetCellEnabled(0, 0, false);
    Grid().SetButtonPressed(0, 0, true);
    Grid().SetColFormat(0, u"0.0");
    Grid().SetColMask(0, u"#");
    Grid().SetColWidthPercent(0, 50);
    Grid().SetColWidth(1, 7);
    Grid().SetRowHeight(1, 7);
    Grid().SetRowHeight(-1, 9);
    Grid().SetColSpan(0, 0, 2);
    Grid().SetCellStyle(-1, 0, vxCellBox);
    host->ClearLog();
    Grid().ResetGrid();
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(Grid().Text(0, 0), u"text");
    EXPECT_EQ(Grid().Key(0, 0), u"key");
    EXPECT_EQ(Grid().ColName(0), u"name");
    EXPECT_EQ(Grid().CellPicture(0, 0), picture);
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0x80000005u);
    EXPECT_TRUE(Grid().CellEnabled(0, 0));
    EXPECT_FALSE(Grid().ButtonPressed(0, 0));
    EXPECT_EQ(Grid().ColFormat(0), u"");
    EXPECT_EQ(Grid().ColMask(0), u"");
    EXPECT_EQ(Grid().ColWidthPercent(0), 0);
    EXPECT_EQ(Grid().ColWidth(1), 120);
    EXPECT_EQ(Grid().RowHeight(1), 21);
    EXPECT_EQ(Grid().RowHeight(-1), 21);
    EXPECT_EQ(Grid().ColSpan(0, 0), 0);
    EXPECT_EQ(Grid().ParentCol(0, 1), 1);
    EXPECT_EQ(Grid().CellStyle(-1, 0), vxCellRaised);
    Grid().SetRows(4);
    EXPECT_EQ(Grid().CellBackColor(3, 0), 0x80000005u) << "what the column keeps is reset too";
}

TEST_F(Templates, ResetGridShowsHiddenRowsButLeavesColumnsMarked)
{
    Grid().HideRow(1);
    Grid().HideCol(1);
    Grid().ResetGrid();
    EXPECT_FALSE(Grid().RowHide(1));
    EXPECT_EQ(Grid().RowHeight(1), 21);
    EXPECT_TRUE(Grid().ColHide(1));
    EXPECT_EQ(Grid().ColWidth(1), 120);
}

TEST_F(Templates, ResetGridTakesTheTemplatesOfNow)
{
    Grid().SetDefaultBkColor(0x0000FF);
    Grid().ResetGrid();
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0x0000FFu);
    EXPECT_EQ(Grid().CellBackColor(-1, 0), 0x8000000Fu);
}

} // namespace
} // namespace vornix
