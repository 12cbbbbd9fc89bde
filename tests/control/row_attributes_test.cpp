#include "control/line_case.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Columns that are painted: a fixed one, three, and the filler.
constexpr int PaintedCols = 5;

template <typename Value>
LineCase Row(const char* name, void (Vornix::*set)(i16, Value), Value (Vornix::*read)(i16, i16) const,
    std::type_identity_t<Value> value, Reach reach = Reach::All)
{
    return { name, [=](Vornix& grid, i16 line) { (grid.*set)(line, value); },
        [=](const Vornix& grid, i16 row, i16 col) { return (grid.*read)(row, col) == value; }, reach };
}

LineCase Silent(LineCase test)
{
    test.refreshes = false;
    return test;
}

LineCase FontCase()
{
    return { "RowFont", [](Vornix& grid, i16 line) { grid.SetRowFont(line, MakeFont(u"Serif", 13.5)); },
        [](const Vornix& grid, i16 row, i16 col) {
            return grid.CellFontName(row, col) == u"Serif" && grid.CellFontBold(row, col)
                && grid.CellFontItalic(row, col) && grid.CellFontUnderline(row, col)
                && grid.CellFontStrikeThrough(row, col) && grid.CellFontSize(row, col) == 14;
        } };
}

class RowAttribute : public GridTest, public testing::WithParamInterface<LineCase> {
protected:
    RowAttribute() { Table(4, 3, 2, 1); }

    void Write(i16 line) { GetParam().write(Grid(), line); }
    bool IsReached(i16 row, i16 col)
    {
        const Reach reach = GetParam().reach;
        if (reach == Reach::BehindFixedRowCount)
            return row < 0 || col + Grid().FixedCols() >= Grid().FixedRows();
        if (reach != Reach::All && col >= Grid().Cols())
            return false;
        return col >= 0 || (row < 0 && reach != Reach::RealNotFixed);
    }
    std::vector<CellPlace> Reached(i16 row)
    {
        return CellsWhere(Grid(), [&](CellPlace cell) { return cell.Row == row && IsReached(row, cell.Col); });
    }
};

TEST_P(RowAttribute, WritesTheCellsOfARow)
{
    EXPECT_EQ(CellsChangedBy(Grid(), [&] { Write(1); }), Reached(1));
    for (const CellPlace cell : Reached(1))
        EXPECT_TRUE(GetParam().isWritten(Grid(), cell.Row, cell.Col));
}

TEST_P(RowAttribute, WritesAllCellsOfAFixedRow)
{
    EXPECT_EQ(CellsChangedBy(Grid(), [&] { Write(-2); }), Reached(-2));
}

TEST_P(RowAttribute, WritesTheFillerRow)
{
    EXPECT_EQ(CellsChangedBy(Grid(), [&] { Write(4); }), Reached(4));
}

TEST_P(RowAttribute, NewColumnsDoNotSeeIt)
{
    Write(1);
    Grid().SetCols(5);
    EXPECT_FALSE(GetParam().isWritten(Grid(), 1, 4));
    EXPECT_TRUE(GetParam().isWritten(Grid(), 1, 1));
}

TEST_P(RowAttribute, RefreshesTheRowEveryTimeAndReportsNothing)
{
    Write(1);
    EXPECT_EQ(host->Refreshes(), GetParam().refreshes ? PaintedCols : 0);
    Write(1);
    EXPECT_EQ(host->Refreshes(), GetParam().refreshes ? 2 * PaintedCols : 0);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_P(RowAttribute, IsNotPaintedWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Write(1);
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_TRUE(GetParam().isWritten(Grid(), 1, 2));
}

TEST_P(RowAttribute, OutsideTheStoreIsError9)
{
    EXPECT_EQ(ErrorOf([&] { Write(5); }), 9);
    EXPECT_EQ(ErrorOf([&] { Write(-3); }), 9);
    EXPECT_EQ(ErrorOf([&] { Write(32767); }), 6);
}

INSTANTIATE_TEST_SUITE_P(All, RowAttribute,
    testing::Values(Row("RowBackColor", &Vornix::SetRowBackColor, &Vornix::CellBackColor, 0x0102F3),
        Row("RowForeColor", &Vornix::SetRowForeColor, &Vornix::CellForeColor, 0x0102F3),
        Row("RowBorderColor", &Vornix::SetRowBorderColor, &Vornix::CellBorderColor, 0x0102F3),
        Silent(Row("RowEnabled", &Vornix::SetRowEnabled, &Vornix::CellEnabled, false)), FontCase(),
        Row("RowGradientMode", &Vornix::SetRowGradientMode, &Vornix::CellGradientMode, vxGradientBT),
        Row("RowGradientEnd", &Vornix::SetRowGradientEnd, &Vornix::CellGradientEnd, 0x0102F3),
        Row("RowMode", &Vornix::SetRowMode, &Vornix::CellMode, vxTextBox, Reach::RealNotFixed),
        Row("RowStyle", &Vornix::SetRowStyle, &Vornix::CellStyle, vxCellBox),
        Row("RowTextAlign", &Vornix::SetRowTextAlign, &Vornix::TextAlignment, vxTxtRight),
        Row("RowTextMarginLeft", &Vornix::SetRowTextMarginLeft, &Vornix::TextMarginLeft, 6, Reach::BehindFixedRowCount),
        Row("RowTextMarginRight", &Vornix::SetRowTextMarginRight, &Vornix::TextMarginRight, 6,
            Reach::BehindFixedRowCount)),
    [](const auto& test) { return std::string(test.param.name); });

class RowAttributes : public GridTest {
protected:
    RowAttributes() { Table(4, 3, 2, 1); }
};

TEST_F(RowAttributes, MarginsCountFixedRowsAsColumns)
{
    Grid().SetRowTextMarginLeft(0, 9);
    EXPECT_EQ(Grid().TextMarginLeft(0, -1), 0);
    EXPECT_EQ(Grid().TextMarginLeft(0, 0), 0);
    EXPECT_EQ(Grid().TextMarginLeft(0, 1), 9);
    EXPECT_EQ(Grid().TextMarginLeft(0, 3), 9);
}

TEST_F(RowAttributes, MarginsReachNothingWhenThereAreMoreFixedRowsThanColumns)
{
    Grid().SetFixedRows(6);
    EXPECT_THAT(CellsChangedBy(Grid(), [&] { Grid().SetRowTextMarginRight(0, 9); }), IsEmpty());
}

TEST_F(RowAttributes, MarginsReachFixedColumnsWithoutFixedRows)
{
    Grid().SetFixedRows(0);
    Grid().SetRowTextMarginLeft(0, 9);
    EXPECT_EQ(Grid().TextMarginLeft(0, -1), 9);
}

TEST_F(RowAttributes, NegativeMarginsAreIgnored)
{
    Grid().SetRowTextMarginLeft(0, -1);
    Grid().SetRowTextMarginRight(0, -1);
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(RowAttributes, ACheckBoxRowIsCentred)
{
    Grid().SetRowMode(1, vxCheckBox);
    EXPECT_EQ(Grid().TextAlignment(1, 1), vxTxtCenter | vxNoPrefix);
    EXPECT_EQ(Grid().TextAlignment(1, -1), 0);
}

TEST_F(RowAttributes, NegativeAlignmentTogglesEachValueOfItsOwn)
{
    Grid().SetTextAlignment(1, 1, vxTxtRight);
    Grid().SetRowTextAlign(1, -vxTxtRight);
    EXPECT_EQ(Grid().TextAlignment(1, 0), vxTxtRight);
    EXPECT_EQ(Grid().TextAlignment(1, 1), 0);
}

TEST_F(RowAttributes, LineColorIsOneForTheRow)
{
    EXPECT_THAT(CellsChangedBy(Grid(), [&] { Grid().SetRowLineColor(0, 0x0000FF); }), IsEmpty());
    EXPECT_EQ(host->Refreshes(), PaintedCols);
    EXPECT_EQ(host->Pixel(60, 3 * 21 - 1), 0x0000FFu);
    EXPECT_EQ(ErrorOf([&] { Grid().SetRowLineColor(5, 0); }), 9);
}

TEST_F(RowAttributes, ResizeIsComparedReportedAndNotPainted)
{
    Grid().SetRowResize(1, true);
    EXPECT_THAT(Reported(), IsEmpty());
    Grid().SetRowResize(1, false);
    EXPECT_FALSE(Grid().RowResize(1));
    EXPECT_TRUE(Grid().RowResize(0));
    EXPECT_THAT(Reported(), ElementsAre("RowResize"));
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(RowAttributes, NoFontIsError5)
{
    EXPECT_EQ(ErrorOf([&] { Grid().SetRowFont(1, nullptr); }), 5);
}

} // namespace
} // namespace vornix
