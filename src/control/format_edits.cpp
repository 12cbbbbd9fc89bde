#include "control/format_edits.h"

#include "automation/colors.h"

namespace vornix {

FormatEdit BackColorEdit(OleColor color, const SystemColors& colors)
{
    return [set = BackColorSet(color, colors)](CellFormat& format) { set.ApplyTo(format); };
}

FormatEdit GradientEndEdit(OleColor color, const SystemColors& colors)
{
    const GradientColor stop = MakeGradientColor(OleTranslateColor(color, colors), 0);
    return [color, stop](CellFormat& format) {
        format.GradientEnd = color;
        format.GradientStop = stop;
    };
}

FormatEdit ModeEdit(i32 mode)
{
    return [mode](CellFormat& format) {
        format.Mode = mode;
        if (mode == vxCheckBox)
            format.TextAlignment = vxTxtCenter;
    };
}

FormatEdit FontEdit(const FontPtr& font)
{
    return [values = FontValues(font)](CellFormat& format) { values.ApplyTo(format); };
}

FormatEdit TextAlignmentEdit(i32 value, i32 commonFlags)
{
    return [=](CellFormat& format) {
        format.TextAlignment = MergedTextAlignment(format.TextAlignment, value, commonFlags);
    };
}

} // namespace vornix
