#include "persist/script_elements.h"

#include <algorithm>
#include <iterator>

namespace vornix {

namespace {

using enum ScriptAddressing;
using enum ScriptValueKind;
using enum ScriptAction;

constexpr ScriptElement Elements[] = {
    { u"AltBkColor", Grid, Number, "AltBkColor" },
    { u"AltColorEnabled", Grid, Boolean, "AltColorEnabled" },
    { u"AltForeColor", Grid, Number, "AltForeColor" },
    { u"AutoSizeRows", Grid, ShortNumber, "AutoSizeRows" },
    { u"BorderStyle", Grid, Number, "BorderStyle" },
    { u"BoxBorder", Cell, Number, "BoxBorder" },
    { u"ButtonPressed", Cell, Boolean, "ButtonPressed" },
    { u"Caption", Grid, Text, "Caption" },
    { u"CaptionEnabled", Grid, Boolean, "CaptionEnabled" },
    { u"CellBackColor", Cell, Number, "CellBackColor" },
    { u"CellBorderColor", Cell, Number, "CellBorderColor" },
    { u"CellEnabled", Cell, Boolean, "CellEnabled" },
    { u"CellFontBold", Cell, Boolean, "CellFontBold" },
    { u"CellFontItalic", Cell, Boolean, "CellFontItalic" },
    { u"CellFontName", Cell, Text, "CellFontName" },
    { u"CellFontSize", Cell, ShortNumber, "CellFontSize" },
    { u"CellFontStrikeThrough", Cell, Boolean, "CellFontStrikeThrough" },
    { u"CellFontUnderline", Cell, Boolean, "CellFontUnderline" },
    { u"CellForeColor", Cell, Number, "CellForeColor" },
    { u"CellGradientEnd", Cell, Number, "CellGradientEnd" },
    { u"CellGradientMode", Cell, Number, "CellGradientMode" },
    { u"CellMode", Cell, Number, "CellMode" },
    { u"CellPictureAlignment", Cell, Number, "CellPictureAlignment" },
    { u"CellStyle", Cell, Number, "CellStyle" },
    { u"CheckEnable", Cell, Boolean, "CheckEnable" },
    { u"Col", Grid, Number, "", MoveCursorCol },
    { u"ColBackColor", Column, Number, "ColBackColor" },
    { u"ColBorderColor", Column, Number, "ColBorderColor" },
    { u"ColEnabled", Column, NumericBoolean, "ColEnabled" },
    { u"ColForeColor", Column, Number, "ColForeColor" },
    { u"ColFormat", Column, Text, "ColFormat" },
    { u"ColGradientEnd", Column, Number, "ColGradientEnd" },
    { u"ColGradientMode", Column, Number, "ColGradientMode" },
    { u"ColLineColor", Column, Number, "ColLineColor" },
    { u"ColMode", Column, Number, "ColMode" },
    { u"ColPictureAlignment", Column, Number, "ColPictureAlignment" },
    { u"ColSpan", Cell, ShortNumber, "ColSpan" },
    { u"ColStyle", Column, Number, "ColStyle" },
    { u"ColTextAlign", Column, Number, "ColTextAlign" },
    { u"ColTextMarginLeft", Column, ShortNumber, "ColTextMarginLeft" },
    { u"ColTextMarginRight", Column, ShortNumber, "ColTextMarginRight" },
    { u"ColWidth", Column, ShortNumber, "ColWidth" },
    { u"ColWidthPercent", Column, ShortNumber, "ColWidthPercent" },
    { u"Cols", Grid, ShortNumber, "Cols" },
    { u"ColumnSetting", Grid, ShortNumber, "ColumnSetting" },
    { u"FixedCols", Grid, ShortNumber, "FixedCols" },
    { u"FixedRows", Grid, ShortNumber, "FixedRows" },
    { u"Redraw", Grid, Boolean, "Redraw" },
    { u"Row", Grid, Number, "", MoveCursorRow },
    { u"RowBackColor", Row, Number, "RowBackColor" },
    { u"RowBorderColor", Row, Number, "RowBorderColor" },
    { u"RowForeColor", Row, Number, "RowForeColor" },
    { u"RowGradientEnd", Row, Number, "RowGradientEnd" },
    { u"RowGradientMode", Row, Number, "RowGradientMode" },
    { u"RowHeight", Row, ShortNumber, "RowHeight" },
    { u"RowLineColor", Row, Number, "RowLineColor" },
    { u"RowMode", Row, Number, "RowMode" },
    // Sets what ColSpan sets.
    { u"RowSpan", Cell, ShortNumber, "ColSpan" },
    { u"RowStyle", Row, Number, "RowStyle" },
    { u"RowTextAlign", Row, Number, "RowTextAlign" },
    { u"RowTextMarginLeft", Row, ShortNumber, "RowTextMarginLeft" },
    { u"RowTextMarginRight", Row, ShortNumber, "RowTextMarginRight" },
    { u"Rows", Grid, ShortNumber, "Rows" },
    { u"TextAlignment", Cell, Number, "TextAlignment" },
    { u"TextMarginLeft", Cell, ShortNumber, "TextMarginLeft" },
    { u"TextMarginRight", Cell, ShortNumber, "TextMarginRight" },
};

constexpr bool ComesBefore(const ScriptElement& element, std::u16string_view name)
{
    return element.name < name;
}

static_assert(std::adjacent_find(std::begin(Elements), std::end(Elements),
                  [](const ScriptElement& a, const ScriptElement& b) { return a.name >= b.name; })
        == std::end(Elements),
    "a search halves the table");

} // namespace

std::span<const ScriptElement> ScriptElements()
{
    return Elements;
}

const ScriptElement* FindScriptElement(std::u16string_view name)
{
    const ScriptElement* found = std::lower_bound(std::begin(Elements), std::end(Elements), name, ComesBefore);
    return found != std::end(Elements) && found->name == name ? found : nullptr;
}

} // namespace vornix
