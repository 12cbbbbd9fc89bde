// The templates that new lines and cells are made from. At design time the grid is a preview: existing cells follow.
#include "control/control.h"
#include "control/format_edits.h"

namespace vornix {

namespace {

// The two halves of the table that a template stands for.
enum class CellArea { NotFixed, Fixed };

void EditArea(GridStore& store, CellArea area, const FormatEdit& edit)
{
    if (area == CellArea::NotFixed) {
        store.EditRectFormats(store.FixedRows(), store.FixedCols(), store.MaxRow(), store.MaxCol(), edit);
        return;
    }
    store.EditRectFormats(0, 0, store.FixedRows() - 1, store.MaxCol(), edit);
    store.EditRectFormats(store.FixedRows(), 0, store.MaxRow(), store.FixedCols() - 1, edit);
}

CellFormat& TemplateOf(GridStore& store, CellArea area)
{
    return area == CellArea::Fixed ? store.Defaults.DefaultCellFormatFixed : store.Defaults.DefaultCellFormat;
}

// Writes the template and, at design time, the cells it stands for.
void WriteTemplate(Control& control, CellArea area, const FormatEdit& edit)
{
    edit(TemplateOf(control.store, area));
    if (!control.IsRunMode())
        EditArea(control.store, area, edit);
}

// The back colour of a template replaces the whole format of the cells.
void WriteTemplateBackColor(Control& control, CellArea area, OleColor color)
{
    CellFormat& format = TemplateOf(control.store, area);
    BackColorEdit(color, control.container.Colors())(format);
    if (!control.IsRunMode())
        EditArea(control.store, area, [&](CellFormat& cell) { cell = format; });
}

void RepaintAndReport(Control& control, std::string_view name)
{
    control.funnel.RepaintGrid();
    control.Report(name);
}

void SetTemplateBackColor(Control& control, OleColor& field, OleColor color, CellArea area, std::string_view name)
{
    if (field == color)
        return;
    field = color;
    WriteTemplateBackColor(control, area, color);
    RepaintAndReport(control, name);
}

template <typename Value>
void SetTemplateField(
    Control& control, Value& stored, Value CellFormat::*field, Value value, CellArea area, std::string_view name)
{
    if (stored == value)
        return;
    stored = value;
    WriteTemplate(control, area, [&](CellFormat& format) { format.*field = value; });
    RepaintAndReport(control, name);
}

void SetAlignment(Control& control, i32& stored, i32 value, CellArea area, std::string_view name)
{
    stored = value;
    const i32 alignment = value | control.store.Defaults.CommonTextAlign;
    WriteTemplate(control, area, [&](CellFormat& format) { format.TextAlignment = alignment; });
    RepaintAndReport(control, name);
}

void SetTemplateFont(Control& control, FontPtr& stored, const FontPtr& font, CellArea area, std::string_view name)
{
    const FormatEdit edit = FontEdit(font);
    stored = font;
    WriteTemplate(control, area, edit);
    control.funnel.RepaintUnderGate();
    control.Report(name);
}

struct LineRange {
    int first;
    int last;
};

void WriteHeights(GridStore& store, LineRange rows, i16 height)
{
    for (int row = rows.first; row <= rows.last; ++row)
        store.RowAt(row).Height = height;
}

void WriteWidths(GridStore& store, LineRange cols, i16 width)
{
    for (int col = cols.first; col <= cols.last; ++col)
        store.ColumnAt(col).Width = width;
}

} // namespace

OleColor Vornix::DefaultBkColor() const
{
    return Enter()->store.Defaults.DefaultBkColor;
}

void Vornix::SetDefaultBkColor(OleColor Value)
{
    const auto control = Enter();
    SetTemplateBackColor(*control, control->store.Defaults.DefaultBkColor, Value, CellArea::NotFixed, "DefaultBkColor");
}

OleColor Vornix::DefaultForeColor() const
{
    return Enter()->store.Defaults.DefaultForeColor;
}

void Vornix::SetDefaultForeColor(OleColor Value)
{
    const auto control = Enter();
    SetTemplateField(*control, control->store.Defaults.DefaultForeColor, &CellFormat::ForeColor, Value,
        CellArea::NotFixed, "DefaultForeColor");
}

i32 Vornix::DefaultTextAlign() const
{
    return Enter()->store.Defaults.DefaultTextAlign;
}

void Vornix::SetDefaultTextAlign(i32 Value)
{
    const auto control = Enter();
    SetAlignment(*control, control->store.Defaults.DefaultTextAlign, Value, CellArea::NotFixed, "DefaultTextAlign");
}

FontPtr Vornix::Font() const
{
    return Enter()->store.Defaults.Font;
}

void Vornix::SetFont(const FontPtr& Value)
{
    const auto control = Enter();
    SetTemplateFont(*control, control->store.Defaults.Font, Value, CellArea::NotFixed, "Font");
}

OleColor Vornix::DefaultBkColorFixed() const
{
    return Enter()->store.Defaults.DefaultBkColorFixed;
}

void Vornix::SetDefaultBkColorFixed(OleColor Value)
{
    const auto control = Enter();
    SetTemplateBackColor(
        *control, control->store.Defaults.DefaultBkColorFixed, Value, CellArea::Fixed, "DefaultBkColorFixed");
}

OleColor Vornix::DefaultForeColorFixed() const
{
    return Enter()->store.Defaults.DefaultForeColorFixed;
}

void Vornix::SetDefaultForeColorFixed(OleColor Value)
{
    const auto control = Enter();
    SetTemplateField(*control, control->store.Defaults.DefaultForeColorFixed, &CellFormat::ForeColor, Value,
        CellArea::Fixed, "DefaultForeColorFixed");
}

i32 Vornix::DefaultTextAlignFixed() const
{
    return Enter()->store.Defaults.DefaultTextAlignFixed;
}

void Vornix::SetDefaultTextAlignFixed(i32 Value)
{
    const auto control = Enter();
    SetAlignment(
        *control, control->store.Defaults.DefaultTextAlignFixed, Value, CellArea::Fixed, "DefaultTextAlignFixed");
}

FontPtr Vornix::FontFixed() const
{
    return Enter()->store.Defaults.FontFixed;
}

void Vornix::SetFontFixed(const FontPtr& Value)
{
    const auto control = Enter();
    SetTemplateFont(*control, control->store.Defaults.FontFixed, Value, CellArea::Fixed, "FontFixed");
}

i32 Vornix::DefaultMode() const
{
    return Enter()->store.Defaults.DefaultMode;
}

void Vornix::SetDefaultMode(i32 Value)
{
    const auto control = Enter();
    SetTemplateField(
        *control, control->store.Defaults.DefaultMode, &CellFormat::Mode, Value, CellArea::NotFixed, "DefaultMode");
}

OleColor Vornix::DefaultLineColor() const
{
    return Enter()->store.Defaults.DefaultLineColor;
}

void Vornix::SetDefaultLineColor(OleColor Value)
{
    const auto control = Enter();
    GridStore& store = control->store;
    if (store.Defaults.DefaultLineColor == Value)
        return;
    store.Defaults.DefaultLineColor = Value;
    if (!control->IsRunMode()) {
        for (int row = 0; store.ContainsRow(row); ++row)
            store.RowAt(row).LineColor = Value;
        for (int col = store.FixedCols(); store.ContainsCol(col); ++col)
            store.ColumnAt(col).LineColor = Value;
    }
    RepaintAndReport(*control, "DefaultLineColor");
}

i32 Vornix::CommonTextAlign() const
{
    return Enter()->store.Defaults.CommonTextAlign;
}

void Vornix::SetCommonTextAlign(i32 Value)
{
    const auto control = Enter();
    GridDefaults& defaults = control->store.Defaults;
    defaults.CommonTextAlign = Value | NoPrefixFlag;
    defaults.DefaultCellFormat.TextAlignment = defaults.DefaultTextAlign | defaults.CommonTextAlign;
    defaults.DefaultCellFormatFixed.TextAlignment = defaults.DefaultTextAlignFixed | defaults.CommonTextAlign;
    // The cells take the value as it came, without the flag that the common value always has.
    control->store.EditRectFormats(0, 0, control->store.MaxRow(), control->store.MaxCol(),
        [&](CellFormat& format) { format.TextAlignment = Value; });
    control->funnel.RepaintUnderGate();
    control->Report("CommonTextAlign");
}

i16 Vornix::DefaultHeight() const
{
    return Enter()->store.Defaults.DefaultHeight;
}

void Vornix::SetDefaultHeight(i16 Value)
{
    const auto control = Enter();
    GridStore& store = control->store;
    if (store.Defaults.DefaultHeight == Value)
        return;
    store.Defaults.DefaultHeight = Value;
    if (!control->IsRunMode()) {
        WriteHeights(store, { store.FixedRows(), store.MaxRow() }, Value);
        control->layout.MarkMetricsDirty();
        control->funnel.RecalcLayout();
    }
    control->Report("DefaultHeight");
}

i16 Vornix::DefaultWidth() const
{
    return Enter()->store.Defaults.DefaultWidth;
}

void Vornix::SetDefaultWidth(i16 Value)
{
    const auto control = Enter();
    GridStore& store = control->store;
    if (store.Defaults.DefaultWidth == Value)
        return;
    store.Defaults.DefaultWidth = Value;
    if (!control->IsRunMode()) {
        WriteWidths(store, { store.FixedCols(), store.MaxCol() }, Value);
        control->layout.MarkMetricsDirty();
        control->funnel.RecalcLayout();
    }
    control->Report("DefaultWidth");
}

i16 Vornix::DefaultHeightFixed() const
{
    return Enter()->store.Defaults.DefaultHeightFixed;
}

void Vornix::SetDefaultHeightFixed(i16 Value)
{
    const auto control = Enter();
    GridStore& store = control->store;
    if (store.Defaults.DefaultHeightFixed == Value)
        return;
    store.Defaults.DefaultHeightFixed = Value;
    if (!control->IsRunMode()) {
        WriteHeights(store, { 0, store.FixedRows() - 1 }, Value);
        control->layout.MarkMetricsDirty();
        control->funnel.RecalcLayout();
    }
    control->Report("DefaultHeightFixed");
}

i16 Vornix::DefaultWidthFixed() const
{
    return Enter()->store.Defaults.DefaultWidthFixed;
}

void Vornix::SetDefaultWidthFixed(i16 Value)
{
    const auto control = Enter();
    GridStore& store = control->store;
    if (store.Defaults.DefaultWidthFixed == Value)
        return;
    store.Defaults.DefaultWidthFixed = Value;
    if (!control->IsRunMode()) {
        WriteWidths(store, { 0, store.FixedCols() - 1 }, Value);
        control->layout.MarkMetricsDirty();
        control->funnel.RecalcLayout();
    }
    control->Report("DefaultWidthFixed");
}

void Vornix::ResetGrid()
{
    const auto control = Enter();
    control->store.ResetAttributes();
    control->layout.RescanPercentActive();
    control->layout.MarkMetricsDirty();
    control->funnel.RecalcLayout();
}

} // namespace vornix
