// Paints every look that a cell can have into one table and writes it as pictures: contact_sheet FOLDER
#include "render/raster_paint_table.h"

#include <cmath>
#include <cstdio>

namespace vornix {
namespace {

constexpr int Cols = 8;

class Sheet {
public:
    Sheet(Size client, double scale, int rows)
        : table(client, scale, 1, rows, 1, Cols)
    {
        for (int i = 1; i <= Cols; ++i)
            table.store.ColumnAt(i).Width = 124;
        table.store.ColumnAt(0).Width = 130;
        for (int i = 1; i <= rows; ++i)
            table.store.RowAt(i).Height = 44;
        table.store.RowAt(0).Height = 24;
        table.pipeline.Settings.GridLines = vxBoth;
    }

    // Begins a row of samples.
    void Begin(std::u16string_view title)
    {
        ++row;
        col = 0;
        table.SetText(row, 0, title);
    }
    void Sample(std::u16string_view text, const FormatEdit& edit)
    {
        ++col;
        table.SetText(row, col, text);
        table.Format(row, col, edit);
    }
    void Picture(const PicturePtr& picture) { table.store.EditCell(row, col).SetPicture(picture); }
    void Back(OleColor color) { table.BackColor(row, col, color); }
    void Latch() { table.store.EditCell(row, col).SetButtonPressed(true); }

    RasterPaintTable table;
    int row = 0;
    int col = 0;
};

PicturePtr Ball(PictureType type)
{
    constexpr int side = 24;
    std::vector<u8> rgba;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double distance = std::hypot(x - 11.5, y - 11.5);
            const bool inside = distance < 11;
            rgba.insert(rgba.end(),
                { static_cast<u8>(inside ? 230 - distance * 8 : 255), static_cast<u8>(inside ? 90 : 0),
                    static_cast<u8>(inside ? 40 : 255), static_cast<u8>(inside ? 255 : 0) });
        }
    }
    return PictureObject::FromRgba(side, side, rgba, type);
}

PicturePtr Texture()
{
    constexpr int side = 32;
    std::vector<u8> rgba;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const bool dark = (x / 8 + y / 8) % 2 == 0;
            const u8 tone = dark ? 190 : 225;
            rgba.insert(rgba.end(), { tone, static_cast<u8>(tone + 10), 245, 255 });
        }
    }
    return PictureObject::FromRgba(side, side, rgba);
}

FormatEdit Style(i32 style, i32 mode = vxCellFixed)
{
    return [=](CellFormat& format) {
        format.Style = style;
        format.Mode = mode;
        format.TextAlignment = vxTxtCenter | vxTxtVCenter | vxNoPrefix;
    };
}

FormatEdit Gradient(i32 mode, i32 style = vxCellFlat)
{
    return [=](CellFormat& format) {
        format.GradientMode = mode;
        format.Style = style;
        format.GradientStop = MakeGradientColor(0x30A0F0, 0);
        format.TextAlignment = vxTxtCenter | vxTxtVCenter | vxNoPrefix;
    };
}

FormatEdit Align(i32 alignment)
{
    return [=](CellFormat& format) { format.TextAlignment = alignment | vxNoPrefix; };
}

FormatEdit Check(i32 alignment, bool disabled = false)
{
    return [=](CellFormat& format) {
        format.Mode = vxCheckBox;
        format.TextAlignment = alignment;
        format.Disabled = disabled;
    };
}

FormatEdit PictureAt(i32 alignment)
{
    return [=](CellFormat& format) {
        format.PictureAlignment = alignment;
        format.TextAlignment = vxTxtCenter | vxTxtBottom | vxNoPrefix;
    };
}

void FillStyles(Sheet& sheet)
{
    const std::pair<std::u16string_view, i32> styles[]
        = { { u"Flat", vxCellFlat }, { u"Inset", vxCellInset }, { u"Raised", vxCellRaised },
              { u"Button", vxCellButton }, { u"Box", vxCellBox }, { u"RoundBox", vxCellRoundBox } };
    sheet.Begin(u"Styles");
    for (const auto& [name, style] : styles)
        sheet.Sample(name, Style(style));
    sheet.Begin(u"Styles, coloured");
    for (const auto& [name, style] : styles) {
        sheet.Sample(name, Style(style));
        sheet.Back(0xF0D8B8);
    }
    sheet.Begin(u"Latched press button");
    for (const auto& [name, style] : styles) {
        sheet.Sample(name, Style(style, vxPressButton));
        sheet.Back(0xE0E0E0);
        sheet.Latch();
    }
    sheet.Begin(u"Latched command button");
    for (const auto& [name, style] : styles) {
        sheet.Sample(name, Style(style, vxCommandButton));
        sheet.Back(0xE0E0E0);
        sheet.Latch();
    }
    sheet.Begin(u"Gradients");
    sheet.Sample(u"LR", Gradient(vxGradientLR));
    sheet.Sample(u"RL", Gradient(vxGradientRL));
    sheet.Sample(u"TB", Gradient(vxGradientTB));
    sheet.Sample(u"BT", Gradient(vxGradientBT));
    sheet.Sample(u"Round TB", Gradient(vxGradientTB, vxCellRoundBox));
    sheet.Sample(u"Raised LR", Gradient(vxGradientLR, vxCellRaised));
    sheet.Sample(u"Button BT", Gradient(vxGradientBT, vxCellButton));
}

void FillTexts(Sheet& sheet)
{
    sheet.Begin(u"Text, across");
    sheet.Sample(u"left, top", Align(vxTxtDefault));
    sheet.Sample(u"center", Align(vxTxtCenter));
    sheet.Sample(u"right", Align(vxTxtRight));
    sheet.Sample(u"word break wraps this text", Align(vxWordBreak));
    sheet.Sample(u"single line is longer than it", Align(vxSingleLine));
    sheet.Sample(u"ellipsis for what is longer", Align(vxSingleLine | vxWordEllipsis));
    sheet.Sample(u"two\nlines", Align(vxTxtDefault));
    sheet.Sample(u"R&D &prefix", [](CellFormat& format) { format.TextAlignment = 0; });
    sheet.Begin(u"Text, down");
    sheet.Sample(u"v-center", Align(vxTxtVCenter));
    sheet.Sample(u"bottom", Align(vxTxtBottom));
    sheet.Sample(u"center, center", Align(vxTxtCenter | vxTxtVCenter));
    sheet.Sample(u"right, bottom", Align(vxTxtRight | vxTxtBottom));
    sheet.Sample(u"always v-center", Align(vxAlwaysVCenter));
    sheet.Sample(u"always top", Align(vxAlwaysTop));
    sheet.Sample(u"wrapped and centred on both axes", Align(vxWordBreak | vxTxtCenter | vxTxtVCenter));
    sheet.Sample(u"margins 20, 20", [](CellFormat& format) {
        format.TextMarginLeft = format.TextMarginRight = 20;
        format.TextAlignment = vxTxtVCenter | vxNoPrefix;
    });
    sheet.Begin(u"Fonts, scripts");
    const auto font = [](auto change) {
        return [=](CellFormat& format) {
            format.TextAlignment = vxTxtVCenter | vxNoPrefix;
            change(format);
        };
    };
    sheet.Sample(u"Bold", font([](CellFormat& format) { format.FontBold = true; }));
    sheet.Sample(u"Italic", font([](CellFormat& format) { format.FontItalic = true; }));
    sheet.Sample(u"Underline", font([](CellFormat& format) { format.FontUnderline = true; }));
    sheet.Sample(u"Strike through", font([](CellFormat& format) { format.FontStrikeThrough = true; }));
    sheet.Sample(u"18 points", font([](CellFormat& format) { format.FontSize = 18; }));
    sheet.Sample(u"\u05E9\u05DC\u05D5\u05DD \u0645\u0631\u062D\u0628\u0627", font([](CellFormat&) {}));
    sheet.Sample(u"\u6771\u4EAC \u0928\u092E\u0938\u094D\u0924\u0947", font([](CellFormat&) {}));
    sheet.Sample(u"Gr\u00FC\u00DFe \U0001F600 \u017D", font([](CellFormat&) {}));
}

void FillBoxesAndPictures(Sheet& sheet)
{
    sheet.Begin(u"Check boxes");
    sheet.Sample(u"0", Check(0));
    sheet.Sample(u"-1", Check(vxTxtCenter));
    sheet.Sample(u"-1", Check(vxTxtCenter | vxTxtVCenter | vxCheck3D));
    sheet.Sample(u"0", Check(vxTxtRight | vxCheck3D));
    sheet.Sample(u"-1", Check(vxTxtCenter | vxTxtVCenter, true));
    sheet.Sample(u"-1", Check(vxTxtCenter | vxTxtVCenter | vxCheck3D, true));
    sheet.Sample(u"-1", Check(vxTxtBottom));
    sheet.Sample(u"none", Check(vxTxtCenter | vxTxtVCenter));
    const auto row = [&](std::u16string_view title, PictureType type) {
        sheet.Begin(title);
        for (const auto& [name, alignment] :
            { std::pair { u"", vxPicLeft | vxPicTop }, { u"", vxPicCenter | vxPicVCenter },
                { u"", vxPicRight | vxPicBottom }, { u"", vxPicCenter }, { u"", vxPicVCenter },
                { u"", vxPicRight | vxPicVCenter }, { u"text", vxPicCenter }, { u"stretched", i32(vxStretch) } }) {
            sheet.Sample(name, PictureAt(alignment));
            sheet.Picture(Ball(type));
        }
    };
    row(u"Bitmaps", PictureType::Bitmap);
    row(u"Icons", PictureType::Icon);
}

void FillPlainRows(Sheet& sheet)
{
    sheet.Begin(u"Selected");
    for (const std::u16string_view text : { u"one", u"two", u"three", u"four" })
        sheet.Sample(text, Align(vxTxtVCenter));
    sheet.Sample(u"coloured", Align(vxTxtVCenter));
    sheet.Back(0x80E0FF);
    sheet.Sample(u"round", Style(vxCellRoundBox));
    sheet.Begin(u"Rows in turn");
    for (const std::u16string_view text : { u"current", u"b", u"c", u"d", u"e", u"f", u"g", u"own colour" })
        sheet.Sample(text, Align(vxTxtVCenter));
    sheet.Back(0xC0FFC0);
    sheet.Begin(u"Spans");
    sheet.Sample(u"a span of three columns", Align(vxTxtCenter | vxTxtVCenter));
    sheet.table.Span(sheet.row, 1, 1, 3);
    sheet.col = 4;
    sheet.Sample(u"12345.678", Align(vxTxtRight | vxTxtVCenter));
}

struct Setting {
    std::string name;
    std::function<void(RasterPaintTable&)> set;
};

void Write(const std::string& folder, double scale, const Setting& setting)
{
    constexpr int rows = 14;
    const Size client { 130 + Cols * 124 + 18, 24 + rows * 44 + 12 };
    Sheet sheet(client, scale, rows);
    RasterPaintTable& table = sheet.table;
    sheet.table.SetText(0, 0, u"Contact sheet");
    for (int col = 1; col <= Cols; ++col)
        table.SetText(0, col, std::u16string(1, static_cast<char16_t>(u'A' + col - 1)));
    FillStyles(sheet);
    FillTexts(sheet);
    FillBoxesAndPictures(sheet);
    FillPlainRows(sheet);
    const int selectedRow = 12;
    table.interaction.selected = [=](const Cell&, int row, int, bool) { return row == selectedRow; };
    table.interaction.current = { 13, 1 };
    table.pipeline.Settings.FocusRect = vxFocusLight;
    setting.set(table);
    table.Layout();
    table.Repaint();
    char file[32];
    std::snprintf(file, sizeof file, "_%.2f.png", scale);
    table.Window().SavePng(folder + "/" + setting.name + file);
}

} // namespace
} // namespace vornix

int main(int argc, char** argv)
{
    using namespace vornix;
    if (argc != 2) {
        std::fputs("usage: contact_sheet FOLDER\n", stderr);
        return 1;
    }
    const Setting settings[] = {
        { "plain", [](RasterPaintTable&) {} },
        { "background",
            [](RasterPaintTable& table) {
                table.pipeline.SetPicture(Texture());
                table.pipeline.Settings.Opacity = 60;
                table.pipeline.Settings.AltColorEnabled = true;
                table.pipeline.Settings.AltBkColor = 0xF4FFF4;
                table.pipeline.Settings.UseMask = vxTopLeftPixel;
                table.pipeline.Settings.FocusRect = vxFocusSelect;
                table.AdjustLast(true, true);
            } },
        { "wide_lines",
            [](RasterPaintTable& table) {
                table.pipeline.Settings.GridLineWidth = 3;
                table.pipeline.Settings.FocusRect = vxFocusHeavy;
                table.store.EditColDefaults(1, [](CellFormat&) {});
            } },
    };
    for (const Setting& setting : settings) {
        for (const double scale : { 1.0, 1.25, 2.0 })
            Write(argv[1], scale, setting);
    }
    return 0;
}
