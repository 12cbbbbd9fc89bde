#include "present.h"

#include "dark_colors.h"
#include "vornix/headless_container.h"

#include <gtest/gtest.h>

using namespace vornix;
using namespace vornix::viewer;

namespace {

constexpr int CaptionHeight = 34;
constexpr int HeaderHeight = 26;
constexpr int RowHeight = 24;

void Append(Table& table, std::initializer_list<Field> fields)
{
    const std::vector<Field> row(fields);
    table.AppendRow(row);
    table.SetTotalRows(static_cast<std::uint64_t>(table.RowCount()));
}

Table Orders()
{
    Table table;
    table.SetName(u"orders");
    table.Columns() = { { u"city", ColumnKind::Text }, { u"total", ColumnKind::Money },
        { u"paid", ColumnKind::Boolean }, { u"shipped", ColumnKind::Date } };
    Append(table, { { u"Oslo" }, { u"1,950.53" }, { u"-1" }, { u"2025-06-30" } });
    Append(table, { { u"成都" }, { u"12.00" }, { u"0" }, { u"", true } });
    Append(table, { { u"", true }, { u"" }, { u"" } });
    Append(table, { { u"Lima" }, { u"3.00" }, { u"", true }, { u"2025-07-01" } });
    return table;
}

Table TextColumn(const std::u16string& name, std::initializer_list<std::u16string> texts)
{
    Table table;
    table.Columns() = { { name } };
    for (const std::u16string& text : texts)
        Append(table, { { text } });
    return table;
}

struct Shown {
    explicit Shown(const Table& table, const SystemColors& colors = {})
    {
        PresentTable(grid, container.WindowDevice(), colors, table);
        container.Paint();
    }

    // The highest contrast of a cell's ground with any of its pixels; rows of the screen from the caption on.
    double InkContrast(int top, int height) const
    {
        constexpr int fromLeft = 62; // in the first column
        const ColorRef ground = GroundAt(top);
        double contrast = 1;
        for (int y = top + 2; y < top + height - 2; ++y) {
            for (int x = fromLeft; x < fromLeft + 20; ++x)
                contrast = std::max(contrast, Contrast(ground, container.Pixel(x, y)));
        }
        return contrast;
    }
    ColorRef GroundAt(int top) const { return container.Pixel(62, top + 2); }

    HeadlessContainer container { HeadlessOptions { .width = 600, .height = 300 } };
    Vornix& grid { container.Grid() };
};

int TopOfRow(int row)
{
    return CaptionHeight + HeaderHeight + row * RowHeight;
}

int WidthShown(const Table& table)
{
    return Shown(table).grid.ColWidth(0);
}

// What the cell's own drawing call needs.
int WidthOfText(std::u16string_view text)
{
    Shown shown(TextColumn(u"a", { std::u16string(text) }));
    Device& device = shown.container.WindowDevice();
    FontDescription font;
    font.face = shown.grid.Font()->Name;
    font.height = -13;
    font.weight = 400;
    device.SelectFont(font);
    Rect extent;
    device.DrawText(text, extent, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    return extent.Width();
}

} // namespace

TEST(PresentTable, HasTheNameAsCaptionAndTheColumnNamesAsHeader)
{
    Shown shown(Orders());
    EXPECT_TRUE(shown.grid.CaptionEnabled());
    EXPECT_EQ(shown.grid.Caption(), u"orders");
    EXPECT_EQ(shown.grid.Cols(), 4);
    EXPECT_EQ(shown.grid.Rows(), 4);
    EXPECT_EQ(shown.grid.Text(-1, 0), u"city");
    EXPECT_EQ(shown.grid.Text(-1, 3), u"shipped");
    EXPECT_EQ(shown.grid.RowHeight(-2), CaptionHeight);
    EXPECT_EQ(shown.grid.RowHeight(-1), HeaderHeight);
    EXPECT_EQ(shown.grid.RowHeight(0), RowHeight);
}

TEST(PresentTable, NumbersTheRowsFromOne)
{
    Shown shown(Orders());
    EXPECT_EQ(shown.grid.Text(-1, -1), u"#");
    EXPECT_EQ(shown.grid.Text(0, -1), u"1");
    EXPECT_EQ(shown.grid.Text(3, -1), u"4");
    EXPECT_EQ(shown.grid.TextAlignment(0, -1) & vxTxtRight, vxTxtRight);
}

TEST(PresentTable, ShowsTheTextsAndNothingForNulls)
{
    Shown shown(Orders());
    EXPECT_EQ(shown.grid.Text(0, 0), u"Oslo");
    EXPECT_EQ(shown.grid.Text(1, 0), u"成都");
    EXPECT_EQ(shown.grid.Text(0, 1), u"1,950.53");
    EXPECT_EQ(shown.grid.Text(2, 0), u"");
    EXPECT_EQ(shown.grid.Text(1, 3), u"");
    EXPECT_EQ(shown.grid.Text(2, 3), u"");
}

TEST(PresentTable, AlignsNumbersAndDatesToTheRightUnderTheirNames)
{
    Shown shown(Orders());
    for (const i16 row : { i16 { -1 }, i16 { 0 } }) {
        EXPECT_EQ(shown.grid.TextAlignment(row, 0) & (vxTxtRight | vxTxtCenter), 0) << row;
        EXPECT_EQ(shown.grid.TextAlignment(row, 1) & (vxTxtRight | vxTxtCenter), vxTxtRight) << row;
        EXPECT_EQ(shown.grid.TextAlignment(row, 2) & (vxTxtRight | vxTxtCenter), vxTxtCenter) << row;
        EXPECT_EQ(shown.grid.TextAlignment(row, 3) & (vxTxtRight | vxTxtCenter), vxTxtRight) << row;
    }
}

TEST(PresentTable, ShowsCheckBoxesWhereThereIsATruthValueOnly)
{
    Shown shown(Orders());
    EXPECT_EQ(shown.grid.CellMode(0, 2), vxCheckBox);
    EXPECT_TRUE(shown.grid.CellChecked(0, 2));
    EXPECT_EQ(shown.grid.CellMode(1, 2), vxCheckBox);
    EXPECT_FALSE(shown.grid.CellChecked(1, 2));
    EXPECT_EQ(shown.grid.CellMode(2, 2), vxCellFixed);
    EXPECT_EQ(shown.grid.CellMode(3, 2), vxCellFixed);
    const int left = shown.grid.ColWidth(-1) + shown.grid.ColWidth(0) + shown.grid.ColWidth(1);
    const auto isEmpty = [&](int row) {
        const int middle = TopOfRow(row) + RowHeight / 2;
        for (int x = left + 4; x < left + shown.grid.ColWidth(2) - 4; ++x) {
            if (shown.container.Pixel(x, middle) != shown.container.Pixel(left + 4, middle))
                return false;
        }
        return true;
    };
    EXPECT_FALSE(isEmpty(0));
    EXPECT_FALSE(isEmpty(1));
    EXPECT_TRUE(isEmpty(2));
    EXPECT_TRUE(isEmpty(3));
}

TEST(PresentTable, AlternatesTheGroundOfTheRows)
{
    const Shown shown(Orders());
    EXPECT_EQ(shown.GroundAt(TopOfRow(0)), shown.GroundAt(TopOfRow(2)));
    EXPECT_EQ(shown.GroundAt(TopOfRow(1)), shown.GroundAt(TopOfRow(3)));
    EXPECT_NE(shown.GroundAt(TopOfRow(0)), shown.GroundAt(TopOfRow(1)));
}

TEST(PresentTable, IsReadableInLightAndDarkColors)
{
    const Table table = TextColumn(u"MMMMMM", { u"MMMMMM", u"MMMMMM" });
    for (const SystemColors& colors : { SystemColors(), DarkColors() }) {
        Table named = table;
        named.SetName(u"MMMMMMMMMMMMMM");
        const Shown shown(named, colors);
        const ColorRef window = colors.values[static_cast<std::size_t>(SystemColor::Window)];
        EXPECT_EQ(shown.GroundAt(0), window);
        EXPECT_EQ(shown.GroundAt(TopOfRow(0)), window);
        EXPECT_LT(Contrast(shown.GroundAt(CaptionHeight), window), 1.6);
        EXPECT_GT(shown.InkContrast(0, CaptionHeight), 4.5);
        EXPECT_GT(shown.InkContrast(CaptionHeight, HeaderHeight), 4.5);
        EXPECT_GT(shown.InkContrast(TopOfRow(0), RowHeight), 4.5);
        EXPECT_GT(shown.InkContrast(TopOfRow(1), RowHeight), 4.5);
    }
}

TEST(PresentTable, MakesAColumnAsWideAsItsWidestText)
{
    const std::u16string chinese = u"欧阳家咖啡欧阳家";
    const std::u16string latin = u"illicit titillation";
    ASSERT_GT(WidthOfText(chinese), 0);
    const int width = WidthShown(TextColumn(u"a", { latin, chinese, u"x" }));
    EXPECT_GT(width, std::max(WidthOfText(chinese), WidthOfText(latin)) + 8);
    EXPECT_LT(width, std::max(WidthOfText(chinese), WidthOfText(latin)) + 24);
    EXPECT_GT(WidthShown(TextColumn(u"a rather long name of a column", { u"x" })), 150);
}

TEST(PresentTable, MeasuresTextsWithLineBreaksAsOneLine)
{
    const std::u16string broken = u"first\nsecond\nthird";
    EXPECT_EQ(WidthShown(TextColumn(u"a", { broken })), WidthShown(TextColumn(u"a", { u"first second third" })));
    EXPECT_EQ(WidthShown(TextColumn(u"a", { u"first\r\nsecond" })), WidthShown(TextColumn(u"a", { u"first second" })));
}

TEST(PresentTable, KeepsWidthsWithinBounds)
{
    EXPECT_EQ(WidthShown(TextColumn(u"a", { u"x" })), 44);
    EXPECT_EQ(WidthShown(TextColumn(u"a", {})), 44);
    EXPECT_EQ(WidthShown(TextColumn(u"body", { std::u16string(5000, u'i') })), 340);
    std::u16string lines;
    for (int line = 0; line < 30; ++line)
        lines += u"a few words\n";
    EXPECT_EQ(WidthShown(TextColumn(u"body", { lines })), 340);
}

TEST(StatusLine, CountsRowsAndColumns)
{
    EXPECT_EQ(StatusLine(Orders()), "4 rows, 4 columns");
    Table table = TextColumn(u"a", { u"x" });
    EXPECT_EQ(StatusLine(table), "1 row, 1 column");
    table.SetTotalRows(40'000);
    EXPECT_EQ(StatusLine(table), "the first 1 of 40,000 rows, 1 column");
}
