#include "control/line_case.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Rows that are painted: two fixed ones, four, and the filler.
constexpr int PaintedRows = 7;

template <typename Value>
LineCase Column(const char* name, void (Vornix::*set)(i16, Value), Value (Vornix::*read)(i16, i16) const,
    std::type_identity_t<Value> value)
{
    return { name, [=](Vornix& grid, i16 Col) { (grid.*set)(Col, value); },
        [=](const Vornix& grid, i16 Row, i16 Col) { return (grid.*read)(Row, Col) == value; } };
}

LineCase WithReach(LineCase test, Reach reach)
{
    test.reach = reach;
    return test;
}

LineCase CellsOnly(LineCase test)
{
    test.writesDefaults = false;
    return test;
}

LineCase Silent(LineCase test)
{
    test.refreshes = false;
    return test;
}

LineCase FontCase()
{
    return { "ColFont", [](Vornix& grid, i16 Col) { grid.SetColFont(Col, MakeFont(u"Serif", 12.5)); },
        [](const Vornix& grid, i16 Row, i16 Col) {
            return grid.CellFontName(Row, Col) == u"Serif" && grid.CellFontBold(Row, Col)
                && grid.CellFontItalic(Row, Col) && grid.CellFontUnderline(Row, Col)
                && grid.CellFontStrikeThrough(Row, Col) && grid.CellFontSize(Row, Col) == 12;
        } };
}

LineCase PictureCase()
{
    const PicturePtr picture = MakePicture(0x0000FF);
    return { "ColPicture", [=](Vornix& grid, i16 Col) { grid.SetColPicture(Col, picture); },
        [=](const Vornix& grid, i16 Row, i16 Col) { return grid.CellPicture(Row, Col) == picture; } };
}

class ColumnAttribute : public GridTest, public testing::WithParamInterface<LineCase> {
protected:
    ColumnAttribute() { Table(4, 3, 2, 1); }

    void Write(i16 Col) { GetParam().write(Grid(), Col); }
    bool IsReached(i16 Row, i16 Col)
    {
        const Reach reach = GetParam().reach;
        if (reach != Reach::All && Row >= Grid().Rows())
            return false;
        return Row >= 0 || (Col < 0 && reach != Reach::RealNotFixed);
    }
    std::vector<CellPlace> Reached(i16 Col)
    {
        return CellsWhere(Grid(), [&](CellPlace cell) { return cell.Col == Col && IsReached(cell.Row, Col); });
    }
};

TEST_P(ColumnAttribute, WritesTheCellsOfAColumnButNotThoseInFixedRows)
{
    EXPECT_EQ(CellsChangedBy(Grid(), [&] { Write(1); }), Reached(1));
    for (const CellPlace cell : Reached(1))
        EXPECT_TRUE(GetParam().isWritten(Grid(), cell.Row, cell.Col));
}

TEST_P(ColumnAttribute, WritesAllCellsOfAFixedColumn)
{
    EXPECT_EQ(CellsChangedBy(Grid(), [&] { Write(-1); }), Reached(-1));
}

TEST_P(ColumnAttribute, WritesTheFillerColumn)
{
    EXPECT_EQ(CellsChangedBy(Grid(), [&] { Write(3); }), Reached(3));
}

TEST_P(ColumnAttribute, NewRowsTakeItWhereTheColumnKeepsIt)
{
    Write(1);
    Grid().SetRows(6);
    EXPECT_EQ(GetParam().isWritten(Grid(), 5, 1), GetParam().writesDefaults);
    EXPECT_FALSE(GetParam().isWritten(Grid(), 5, 0));
}

TEST_P(ColumnAttribute, RefreshesTheColumnEveryTimeAndReportsNothing)
{
    Write(1);
    EXPECT_EQ(host->Refreshes(), GetParam().refreshes ? PaintedRows : 0);
    Write(1);
    EXPECT_EQ(host->Refreshes(), GetParam().refreshes ? 2 * PaintedRows : 0);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_P(ColumnAttribute, IsNotPaintedWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Write(1);
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_TRUE(GetParam().isWritten(Grid(), 0, 1));
}

TEST_P(ColumnAttribute, OutsideTheStoreIsError9)
{
    EXPECT_EQ(ErrorOf([&] { Write(4); }), 9);
    EXPECT_EQ(ErrorOf([&] { Write(-2); }), 9);
    EXPECT_EQ(ErrorOf([&] { Write(32767); }), 6);
}

TEST_P(ColumnAttribute, LaterNarrowerWritesWin)
{
    const std::vector<std::string> before = LookOf(Grid(), { 2, 1 });
    Write(1);
    Grid().StoreVisualCell(0, 2, 0);
    Grid().RestoreVisualToCell(0, 2, 1);
    if (GetParam().name != std::string("ColPicture")) {
        EXPECT_EQ(LookOf(Grid(), { 2, 1 }), before);
    }
    EXPECT_TRUE(GetParam().isWritten(Grid(), 1, 1));
}

INSTANTIATE_TEST_SUITE_P(All, ColumnAttribute,
    testing::Values(Column("ColBackColor", &Vornix::SetColBackColor, &Vornix::CellBackColor, 0x0102F3),
        Column("ColForeColor", &Vornix::SetColForeColor, &Vornix::CellForeColor, 0x0102F3),
        Column("ColBorderColor", &Vornix::SetColBorderColor, &Vornix::CellBorderColor, 0x0102F3),
        Silent(Column("ColEnabled", &Vornix::SetColEnabled, &Vornix::CellEnabled, false)), CellsOnly(FontCase()),
        Column("ColGradientMode", &Vornix::SetColGradientMode, &Vornix::CellGradientMode, vxGradientRL),
        Column("ColGradientEnd", &Vornix::SetColGradientEnd, &Vornix::CellGradientEnd, 0x0102F3),
        WithReach(Column("ColMode", &Vornix::SetColMode, &Vornix::CellMode, vxTextBox), Reach::RealNotFixed),
        WithReach(CellsOnly(PictureCase()), Reach::Real),
        Column("ColPictureAlignment", &Vornix::SetColPictureAlignment, &Vornix::CellPictureAlignment, vxStretch),
        Column("ColStyle", &Vornix::SetColStyle, &Vornix::CellStyle, vxCellBox),
        Column("ColTextAlign", &Vornix::SetColTextAlign, &Vornix::TextAlignment, vxTxtRight),
        Column("ColTextMarginLeft", &Vornix::SetColTextMarginLeft, &Vornix::TextMarginLeft, 6),
        Column("ColTextMarginRight", &Vornix::SetColTextMarginRight, &Vornix::TextMarginRight, 6)),
    [](const auto& test) { return std::string(test.param.name); });

class ColumnAttributes : public GridTest {
protected:
    ColumnAttributes() { Table(4, 3, 2, 1); }
};

TEST_F(ColumnAttributes, ReadersTellWhatNewRowsTake)
{
    Grid().SetColMode(1, vxTextBox);
    Grid().SetColEnabled(1, false);
    Grid().SetColPictureAlignment(1, vxStretch);
    Grid().SetColStyle(1, vxCellInset);
    Grid().SetColTextAlign(1, vxTxtRight);
    Grid().SetColTextMarginLeft(1, 3);
    Grid().SetColTextMarginRight(1, 4);
    // The cells alone do not change what the column keeps.
    Grid().SetCellMode(0, 1, vxCheckBox);
    Grid().SetCellEnabled(0, 1, true);
    EXPECT_EQ(Grid().ColMode(1), vxTextBox);
    EXPECT_FALSE(Grid().ColEnabled(1));
    EXPECT_EQ(Grid().ColPictureAlignment(1), vxStretch);
    EXPECT_EQ(Grid().ColStyle(1), vxCellInset);
    EXPECT_EQ(Grid().ColTextAlign(1), vxTxtRight);
    EXPECT_EQ(Grid().ColTextMarginLeft(1), 3);
    EXPECT_EQ(Grid().ColTextMarginRight(1), 4);
    EXPECT_EQ(ErrorOf([&] { Grid().ColMode(4); }), 9);
}

TEST_F(ColumnAttributes, ACheckBoxColumnIsCentredInColumnAndCells)
{
    Grid().SetColMode(1, vxCheckBox);
    EXPECT_EQ(Grid().ColTextAlign(1), vxTxtCenter | vxNoPrefix);
    EXPECT_EQ(Grid().TextAlignment(0, 1), vxTxtCenter | vxNoPrefix);
    EXPECT_EQ(Grid().TextAlignment(-1, 1), 0);
    Grid().SetRows(5);
    EXPECT_EQ(Grid().TextAlignment(4, 1), vxTxtCenter | vxNoPrefix);
}

TEST_F(ColumnAttributes, ModeOfAFixedColumnLeavesOutTheCorner)
{
    Grid().SetColMode(-1, vxCommandButton);
    EXPECT_EQ(Grid().CellMode(-1, -1), vxCellFixed);
    EXPECT_EQ(Grid().CellMode(0, -1), vxCommandButton);
}

TEST_F(ColumnAttributes, NegativeAlignmentTogglesEachValueOfItsOwn)
{
    Grid().SetTextAlignment(1, 1, vxTxtRight);
    Grid().SetColTextAlign(1, -vxTxtRight);
    EXPECT_EQ(Grid().TextAlignment(0, 1), vxTxtRight);
    EXPECT_EQ(Grid().TextAlignment(1, 1), 0);
    EXPECT_EQ(Grid().ColTextAlign(1), vxTxtRight);
}

TEST_F(ColumnAttributes, BackColorBringsShadesIntoColumnAndCells)
{
    Grid().SetColBackColor(1, 0xFFFFFF);
    EXPECT_EQ(Grid().CellBorderColor(0, 1), 0xB2B2B2u);
    Grid().SetRows(5);
    EXPECT_EQ(Grid().CellBorderColor(4, 1), 0xB2B2B2u);
}

TEST_F(ColumnAttributes, NegativeMarginsAreIgnored)
{
    Grid().SetColTextMarginLeft(1, -1);
    Grid().SetColTextMarginRight(1, -1);
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_EQ(Grid().ColTextMarginLeft(1), 0);
}

TEST_F(ColumnAttributes, NoFontIsError5)
{
    EXPECT_EQ(ErrorOf([&] { Grid().SetColFont(1, nullptr); }), 5);
}

TEST_F(ColumnAttributes, LineColorIsOneForTheColumn)
{
    EXPECT_THAT(CellsChangedBy(Grid(), [&] { Grid().SetColLineColor(1, 0x0000FF); }), IsEmpty());
    EXPECT_EQ(host->Refreshes(), PaintedRows);
    EXPECT_EQ(host->Pixel(30 + 240 - 1, 50), 0x0000FFu);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColLineColor(4, 0); }), 9);
}

TEST_F(ColumnAttributes, ResizeIsComparedReportedAndNotPainted)
{
    Grid().SetColResize(1, true);
    EXPECT_THAT(Reported(), IsEmpty());
    Grid().SetColResize(1, false);
    EXPECT_FALSE(Grid().ColResize(1));
    EXPECT_TRUE(Grid().ColResize(0));
    EXPECT_THAT(Reported(), ElementsAre("ColResize"));
    EXPECT_EQ(host->Refreshes(), 0);
}

} // namespace
} // namespace vornix
