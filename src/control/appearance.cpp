// Properties of the whole grid's look, background picture included.
#include "automation/colors.h"
#include "control/control.h"

namespace vornix {

OleColor Vornix::BackColor() const
{
    return Enter()->paint.Settings.BackColor;
}

void Vornix::SetBackColor(OleColor Value)
{
    const auto control = Enter();
    control->SetLook(control->paint.Settings.BackColor, Value, "BackColor");
}

OleColor Vornix::BackColorSel() const
{
    return Enter()->paint.Settings.BackColorSel;
}

void Vornix::SetBackColorSel(OleColor Value)
{
    const auto control = Enter();
    control->SetLook(control->paint.Settings.BackColorSel, Value, "BackColorSel");
}

OleColor Vornix::ForeColorSel() const
{
    return Enter()->paint.Settings.ForeColorSel;
}

void Vornix::SetForeColorSel(OleColor Value)
{
    const auto control = Enter();
    control->SetLook(control->paint.Settings.ForeColorSel, Value, "ForeColorSel");
}

OleColor Vornix::AltBkColor() const
{
    return Enter()->paint.Settings.AltBkColor;
}

void Vornix::SetAltBkColor(OleColor Value)
{
    const auto control = Enter();
    control->SetLook(control->paint.Settings.AltBkColor, Value, "AltBkColor");
}

OleColor Vornix::AltForeColor() const
{
    return Enter()->paint.Settings.AltForeColor;
}

void Vornix::SetAltForeColor(OleColor Value)
{
    const auto control = Enter();
    control->SetLook(control->paint.Settings.AltForeColor, Value, "AltForeColor");
}

bool Vornix::AltColorEnabled() const
{
    return Enter()->paint.Settings.AltColorEnabled;
}

void Vornix::SetAltColorEnabled(bool Value)
{
    const auto control = Enter();
    control->SetLook(control->paint.Settings.AltColorEnabled, Value, "AltColorEnabled");
}

i32 Vornix::GridLines() const
{
    return Enter()->paint.Settings.GridLines;
}

void Vornix::SetGridLines(i32 Value)
{
    const auto control = Enter();
    control->SetLook(control->paint.Settings.GridLines, Value, "GridLines");
}

i16 Vornix::GridLineWidth() const
{
    return Enter()->paint.Settings.GridLineWidth;
}

void Vornix::SetGridLineWidth(i16 Value)
{
    const auto control = Enter();
    i16& width = control->paint.Settings.GridLineWidth;
    if (Value == width)
        return;
    width = Value == 0 ? i16(1) : Value;
    control->funnel.RepaintUnderGate();
    control->Report("GridLineWidth");
}

i32 Vornix::FocusRect() const
{
    return Enter()->paint.Settings.FocusRect;
}

void Vornix::SetFocusRect(i32 Value)
{
    const auto control = Enter();
    control->SetLook(control->paint.Settings.FocusRect, Value, "FocusRect");
}

PicturePtr Vornix::Picture() const
{
    return Enter()->paint.Settings.Picture;
}

void Vornix::SetPicture(const PicturePtr& Value)
{
    const auto control = Enter();
    if (Value == control->paint.Settings.Picture)
        return;
    control->paint.SetPicture(Value);
    control->funnel.RepaintUnderGate();
    control->Report("Picture");
}

i32 Vornix::PictureMode() const
{
    return Enter()->paint.Settings.PictureMode;
}

void Vornix::SetPictureMode(i32 Value)
{
    const auto control = Enter();
    control->SetLook(control->paint.Settings.PictureMode, Value, "PictureMode");
}

i32 Vornix::PictureBrightness() const
{
    return Enter()->paint.Settings.PictureBrightness;
}

void Vornix::SetPictureBrightness(i32 Value)
{
    const auto control = Enter();
    if (Value < 0 || Value > 100 || Value == control->paint.Settings.PictureBrightness)
        return;
    control->paint.SetPictureBrightness(Value);
    control->funnel.RepaintUnderGate();
    control->Report("PictureBrightness");
}

i16 Vornix::Opacity() const
{
    return Enter()->paint.Settings.Opacity;
}

void Vornix::SetOpacity(i16 Value)
{
    const auto control = Enter();
    if (Value < 1 || Value > 100)
        return;
    control->SetLook(control->paint.Settings.Opacity, Value, "Opacity");
}

i32 Vornix::UseMask() const
{
    return Enter()->paint.Settings.UseMask;
}

void Vornix::SetUseMask(i32 Value)
{
    const auto control = Enter();
    control->SetSetting(control->paint.Settings.UseMask, Value, "UseMask");
}

OleColor Vornix::MaskColor() const
{
    return Enter()->paint.Settings.MaskColor;
}

void Vornix::SetMaskColor(OleColor Value)
{
    const auto control = Enter();
    control->SetSetting(control->paint.Settings.MaskColor, Value, "MaskColor");
}

void Vornix::SetPictureAlpha(i16 AlphaPourcent)
{
    Enter()->paint.Settings.PictureAlpha = AlphaPourcent;
}

OleColor Vornix::ColorBrightness(OleColor Color, i16 Percent) const
{
    const auto control = Enter();
    return vornix::ColorBrightness(OleTranslateColor(Color, control->container.Colors()), Percent);
}

} // namespace vornix
