// The persisted properties that the control reads when it is loaded, in the order of the bag, with their defaults.
#include "automation/checked.h"
#include "control/control.h"

#include <array>

namespace vornix {

namespace {

[[noreturn]] void RaiseMismatch()
{
    RaiseError(ErrorNumber::TypeMismatch);
}

i32 ToInteger(const BagValue& value)
{
    if (const auto* number = std::get_if<i32>(&value))
        return *number;
    if (const auto* truth = std::get_if<bool>(&value))
        return *truth ? -1 : 0;
    RaiseMismatch();
}

bool ToTruth(const BagValue& value)
{
    return ToInteger(value) != 0;
}

i16 ToShort(const BagValue& value)
{
    return ToI16(ToInteger(value));
}

i16 ToCount(const BagValue& value)
{
    const i16 count = ToShort(value);
    if (count < 0)
        RaiseError(ErrorNumber::SubscriptOutOfRange);
    return count;
}

OleColor ToColor(const BagValue& value)
{
    return static_cast<OleColor>(ToInteger(value));
}

std::u16string ToText(const BagValue& value)
{
    if (const auto* text = std::get_if<std::u16string>(&value))
        return *text;
    RaiseMismatch();
}

FontPtr ToFont(const BagValue& value, const Control& control)
{
    const auto* font = std::get_if<FontPtr>(&value);
    if (!font)
        RaiseMismatch();
    return *font ? *font : control.container.AmbientFont();
}

PicturePtr ToPicture(const BagValue& value)
{
    if (const auto* picture = std::get_if<PicturePtr>(&value))
        return *picture;
    RaiseMismatch();
}

constexpr i32 System(int index)
{
    return static_cast<i32>(SystemOleColor(index));
}

struct Setting {
    std::string_view name;
    BagValue fallback;
    void (*store)(Control&, const BagValue&);
};

// A missing font stands for the ambient one.
const FontPtr ambientFont;

const std::array settingsInOrder {
    Setting { "DefaultMode", 0, [](Control& c, const BagValue& v) { c.store.Defaults.DefaultMode = ToInteger(v); } },
    Setting { "DefaultBkColor", System(SystemColor::Window),
        [](Control& c, const BagValue& v) { c.store.Defaults.DefaultBkColor = ToColor(v); } },
    Setting { "DefaultForeColor", System(SystemColor::WindowText),
        [](Control& c, const BagValue& v) { c.store.Defaults.DefaultForeColor = ToColor(v); } },
    Setting { "DefaultLineColor", System(SystemColor::ButtonFace),
        [](Control& c, const BagValue& v) { c.store.Defaults.DefaultLineColor = ToColor(v); } },
    Setting { "DefaultBkColorFixed", System(SystemColor::ButtonFace),
        [](Control& c, const BagValue& v) { c.store.Defaults.DefaultBkColorFixed = ToColor(v); } },
    Setting { "DefaultForeColorFixed", System(SystemColor::ButtonText),
        [](Control& c, const BagValue& v) { c.store.Defaults.DefaultForeColorFixed = ToColor(v); } },
    Setting { "AltColorEnabled", false,
        [](Control& c, const BagValue& v) { c.paint.Settings.AltColorEnabled = ToTruth(v); } },
    Setting { "AltBkColor", System(SystemColor::Window),
        [](Control& c, const BagValue& v) { c.paint.Settings.AltBkColor = ToColor(v); } },
    Setting { "AltForeColor", System(SystemColor::WindowText),
        [](Control& c, const BagValue& v) { c.paint.Settings.AltForeColor = ToColor(v); } },
    Setting { "BackColorSel", System(SystemColor::Highlight),
        [](Control& c, const BagValue& v) { c.paint.Settings.BackColorSel = ToColor(v); } },
    Setting { "ForeColorSel", System(SystemColor::HighlightText),
        [](Control& c, const BagValue& v) { c.paint.Settings.ForeColorSel = ToColor(v); } },
    Setting { "DefaultHeight", 21, [](Control& c, const BagValue& v) { c.store.Defaults.DefaultHeight = ToShort(v); } },
    Setting { "DefaultWidth", 120, [](Control& c, const BagValue& v) { c.store.Defaults.DefaultWidth = ToShort(v); } },
    Setting { "DefaultHeightFixed", 21,
        [](Control& c, const BagValue& v) { c.store.Defaults.DefaultHeightFixed = ToShort(v); } },
    Setting { "DefaultWidthFixed", 30,
        [](Control& c, const BagValue& v) { c.store.Defaults.DefaultWidthFixed = ToShort(v); } },
    Setting { "DefaultTextAlign", 0,
        [](Control& c, const BagValue& v) { c.store.Defaults.DefaultTextAlign = ToInteger(v); } },
    Setting { "DefaultTextAlignFixed", 0,
        [](Control& c, const BagValue& v) { c.store.Defaults.DefaultTextAlignFixed = ToInteger(v); } },
    Setting { "Cols", 1, [](Control& c, const BagValue& v) { c.store.StoreCols(ToCount(v)); } },
    Setting { "Rows", 1, [](Control& c, const BagValue& v) { c.store.StoreRows(ToCount(v)); } },
    Setting { "FixedCols", 0, [](Control& c, const BagValue& v) { c.store.StoreFixedCols(ToCount(v)); } },
    Setting { "FixedRows", 0, [](Control& c, const BagValue& v) { c.store.StoreFixedRows(ToCount(v)); } },
    Setting { "BorderStyle", vxNoBorder, [](Control& c, const BagValue& v) { c.settings.BorderStyle = ToInteger(v); } },
    Setting { "BackColor", System(SystemColor::Window),
        [](Control& c, const BagValue& v) { c.paint.Settings.BackColor = ToColor(v); } },
    Setting { "Font", ambientFont, [](Control& c, const BagValue& v) { c.store.Defaults.Font = ToFont(v, c); } },
    Setting {
        "FontFixed", ambientFont, [](Control& c, const BagValue& v) { c.store.Defaults.FontFixed = ToFont(v, c); } },
    Setting {
        "PictureBrightness", 0, [](Control& c, const BagValue& v) { c.paint.SetPictureBrightness(ToInteger(v)); } },
    Setting { "Picture", PicturePtr(), [](Control& c, const BagValue& v) { c.paint.SetPicture(ToPicture(v)); } },
    Setting {
        "PictureMode", vxDefault, [](Control& c, const BagValue& v) { c.paint.Settings.PictureMode = ToInteger(v); } },
    Setting { "ScrollHBar", vxScrollSmooth,
        [](Control& c, const BagValue& v) { c.layout.Settings.ScrollHBar = ToInteger(v); } },
    Setting { "ScrollVBar", vxScrollTrack,
        [](Control& c, const BagValue& v) { c.layout.Settings.ScrollVBar = ToInteger(v); } },
    Setting { "GridLines", vxBoth, [](Control& c, const BagValue& v) { c.paint.Settings.GridLines = ToInteger(v); } },
    Setting {
        "FocusRect", vxFocusLight, [](Control& c, const BagValue& v) { c.paint.Settings.FocusRect = ToInteger(v); } },
    Setting { "UseMask", vxNoMask, [](Control& c, const BagValue& v) { c.paint.Settings.UseMask = ToInteger(v); } },
    Setting { "MaskColor", 0, [](Control& c, const BagValue& v) { c.paint.Settings.MaskColor = ToColor(v); } },
    Setting { "ShowSplit", false, [](Control& c, const BagValue& v) { c.layout.Settings.ShowSplit = ToTruth(v); } },
    Setting { "ResizeMode", vxBoth, [](Control& c, const BagValue& v) { c.settings.ResizeMode = ToInteger(v); } },
    Setting {
        "ResizingRows", false, [](Control& c, const BagValue& v) { c.layout.Settings.ResizingRows = ToTruth(v); } },
    Setting {
        "SelectMode", vxBoth, [](Control& c, const BagValue& v) { c.selection.Settings.SelectMode = ToInteger(v); } },
    Setting { "SelectByRowCol", false,
        [](Control& c, const BagValue& v) { c.selection.Settings.SelectByRowCol = ToTruth(v); } },
    Setting { "CellSelection", false,
        [](Control& c, const BagValue& v) { c.selection.Settings.CellSelection = ToTruth(v); } },
    Setting { "Redraw", true, [](Control& c, const BagValue& v) { c.gate.SetRedraw(ToTruth(v)); } },
    Setting { "GridLineWidth", 1, [](Control& c, const BagValue& v) { c.paint.Settings.GridLineWidth = ToShort(v); } },
    Setting {
        "CaptionEnabled", false, [](Control& c, const BagValue& v) { c.layout.Settings.CaptionEnabled = ToTruth(v); } },
    Setting { "Caption", std::u16string(), [](Control& c, const BagValue& v) { c.settings.Caption = ToText(v); } },
    Setting { "VirtualPageSize", 0, [](Control& c, const BagValue& v) { c.settings.VirtualPageSize = ToShort(v); } },
    Setting {
        "ScrollBarSize", 17, [](Control& c, const BagValue& v) { c.layout.Settings.ScrollBarSize = ToShort(v); } },
    Setting { "AdjustLast", vxBoth, [](Control& c, const BagValue& v) { c.settings.AdjustLast = ToInteger(v); } },
    Setting { "Opacity", 100, [](Control& c, const BagValue& v) { c.paint.Settings.Opacity = ToShort(v); } },
};

} // namespace

void Control::ReadSettings(const PropertyBag& bag)
{
    for (const Setting& setting : settingsInOrder)
        setting.store(*this, bag.ReadProperty(setting.name).value_or(setting.fallback));
}

} // namespace vornix
