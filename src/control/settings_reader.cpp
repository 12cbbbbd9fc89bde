// The persisted properties that the control reads when it is loaded, in the order of the bag, with their defaults.
#include "automation/checked.h"
#include "control/control.h"

#include <array>

namespace vornix {

namespace {

// A value of the bag, converted as arguments of members are.
class SettingValue {
public:
    SettingValue(BagValue value, const Locale& locale)
        : value_(std::visit([](auto&& held) { return Variant(std::move(held)); }, std::move(value)))
        , locale_(locale)
    {
    }

    i32 ToInteger() const { return value_.ToI32(locale_); }
    i16 ToShort() const { return value_.ToI16(locale_); }
    bool ToTruth() const { return value_.ToBool(locale_); }
    OleColor ToColor() const { return value_.ToColor(locale_); }
    std::u16string ToText() const { return value_.ToText(locale_); }
    std::u16string ToTextOr(const std::u16string& absent) const
    {
        const std::u16string text = ToText();
        return text.empty() ? absent : text;
    }
    PicturePtr ToPicture() const { return value_.ToPicture(); }

    i16 ToCount() const
    {
        const i16 count = ToShort();
        if (count < 0)
            RaiseError(ErrorNumber::SubscriptOutOfRange);
        return count;
    }

    // None stands for the ambient one.
    FontPtr ToFont(const Control& control) const
    {
        const FontPtr font = value_.ToFont();
        return font ? font : control.container.AmbientFont();
    }

private:
    Variant value_;
    const Locale& locale_;
};

constexpr i32 System(int index)
{
    return static_cast<i32>(SystemOleColor(index));
}

struct Setting {
    std::string_view name;
    BagValue fallback;
    void (*store)(Control&, const SettingValue&);
};

// A missing font stands for the ambient one.
const FontPtr ambientFont;

const std::array settingsInOrder {
    Setting {
        "DefaultMode", 0, [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultMode = v.ToInteger(); } },
    Setting { "DefaultBkColor", System(SystemColor::Window),
        [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultBkColor = v.ToColor(); } },
    Setting { "DefaultForeColor", System(SystemColor::WindowText),
        [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultForeColor = v.ToColor(); } },
    Setting { "DefaultLineColor", System(SystemColor::ButtonFace),
        [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultLineColor = v.ToColor(); } },
    Setting { "DefaultBkColorFixed", System(SystemColor::ButtonFace),
        [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultBkColorFixed = v.ToColor(); } },
    Setting { "DefaultForeColorFixed", System(SystemColor::ButtonText),
        [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultForeColorFixed = v.ToColor(); } },
    Setting { "AltColorEnabled", false,
        [](Control& c, const SettingValue& v) { c.paint.Settings.AltColorEnabled = v.ToTruth(); } },
    Setting { "AltBkColor", System(SystemColor::Window),
        [](Control& c, const SettingValue& v) { c.paint.Settings.AltBkColor = v.ToColor(); } },
    Setting { "AltForeColor", System(SystemColor::WindowText),
        [](Control& c, const SettingValue& v) { c.paint.Settings.AltForeColor = v.ToColor(); } },
    Setting { "BackColorSel", System(SystemColor::Highlight),
        [](Control& c, const SettingValue& v) { c.paint.Settings.BackColorSel = v.ToColor(); } },
    Setting { "ForeColorSel", System(SystemColor::HighlightText),
        [](Control& c, const SettingValue& v) { c.paint.Settings.ForeColorSel = v.ToColor(); } },
    Setting {
        "DefaultHeight", 21, [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultHeight = v.ToShort(); } },
    Setting {
        "DefaultWidth", 120, [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultWidth = v.ToShort(); } },
    Setting { "DefaultHeightFixed", 21,
        [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultHeightFixed = v.ToShort(); } },
    Setting { "DefaultWidthFixed", 30,
        [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultWidthFixed = v.ToShort(); } },
    Setting { "DefaultTextAlign", 0,
        [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultTextAlign = v.ToInteger(); } },
    Setting { "DefaultTextAlignFixed", 0,
        [](Control& c, const SettingValue& v) { c.store.Defaults.DefaultTextAlignFixed = v.ToInteger(); } },
    Setting { "Cols", 1, [](Control& c, const SettingValue& v) { c.store.StoreCols(v.ToCount()); } },
    Setting { "Rows", 1, [](Control& c, const SettingValue& v) { c.store.StoreRows(v.ToCount()); } },
    Setting { "FixedCols", 0, [](Control& c, const SettingValue& v) { c.store.StoreFixedCols(v.ToCount()); } },
    Setting { "FixedRows", 0, [](Control& c, const SettingValue& v) { c.store.StoreFixedRows(v.ToCount()); } },
    Setting {
        "BorderStyle", vxNoBorder, [](Control& c, const SettingValue& v) { c.settings.BorderStyle = v.ToInteger(); } },
    Setting { "BackColor", System(SystemColor::Window),
        [](Control& c, const SettingValue& v) { c.paint.Settings.BackColor = v.ToColor(); } },
    Setting { "Font", ambientFont, [](Control& c, const SettingValue& v) { c.store.Defaults.Font = v.ToFont(c); } },
    Setting {
        "FontFixed", ambientFont, [](Control& c, const SettingValue& v) { c.store.Defaults.FontFixed = v.ToFont(c); } },
    Setting { "PictureBrightness", 0,
        [](Control& c, const SettingValue& v) { c.paint.SetPictureBrightness(v.ToInteger()); } },
    Setting { "Picture", PicturePtr(), [](Control& c, const SettingValue& v) { c.paint.SetPicture(v.ToPicture()); } },
    Setting { "PictureMode", vxDefault,
        [](Control& c, const SettingValue& v) { c.paint.Settings.PictureMode = v.ToInteger(); } },
    Setting { "ScrollHBar", vxScrollSmooth,
        [](Control& c, const SettingValue& v) { c.layout.Settings.ScrollHBar = v.ToInteger(); } },
    Setting { "ScrollVBar", vxScrollTrack,
        [](Control& c, const SettingValue& v) { c.layout.Settings.ScrollVBar = v.ToInteger(); } },
    Setting {
        "GridLines", vxBoth, [](Control& c, const SettingValue& v) { c.paint.Settings.GridLines = v.ToInteger(); } },
    Setting { "FocusRect", vxFocusLight,
        [](Control& c, const SettingValue& v) { c.paint.Settings.FocusRect = v.ToInteger(); } },
    Setting {
        "UseMask", vxNoMask, [](Control& c, const SettingValue& v) { c.paint.Settings.UseMask = v.ToInteger(); } },
    Setting { "MaskColor", 0, [](Control& c, const SettingValue& v) { c.paint.Settings.MaskColor = v.ToColor(); } },
    Setting {
        "ShowSplit", false, [](Control& c, const SettingValue& v) { c.layout.Settings.ShowSplit = v.ToTruth(); } },
    Setting { "ResizeMode", vxBoth, [](Control& c, const SettingValue& v) { c.settings.ResizeMode = v.ToInteger(); } },
    Setting { "Enabled", true, [](Control& c, const SettingValue& v) { c.settings.Enabled = v.ToTruth(); } },
    Setting { "ResizingRows", false,
        [](Control& c, const SettingValue& v) { c.layout.Settings.ResizingRows = v.ToTruth(); } },
    Setting { "SelectMode", vxBoth,
        [](Control& c, const SettingValue& v) { c.selection.Settings.SelectMode = v.ToInteger(); } },
    Setting { "SelectByRowCol", false,
        [](Control& c, const SettingValue& v) { c.selection.Settings.SelectByRowCol = v.ToTruth(); } },
    Setting { "CellSelection", false,
        [](Control& c, const SettingValue& v) { c.selection.Settings.CellSelection = v.ToTruth(); } },
    Setting { "Redraw", true, [](Control& c, const SettingValue& v) { c.gate.SetRedraw(v.ToTruth()); } },
    Setting {
        "GridLineWidth", 1, [](Control& c, const SettingValue& v) { c.paint.Settings.GridLineWidth = v.ToShort(); } },
    Setting { "CaptionEnabled", false,
        [](Control& c, const SettingValue& v) { c.layout.Settings.CaptionEnabled = v.ToTruth(); } },
    Setting { "Caption", std::u16string(), [](Control& c, const SettingValue& v) { c.settings.Caption = v.ToText(); } },
    Setting {
        "VirtualPageSize", 0, [](Control& c, const SettingValue& v) { c.settings.VirtualPageSize = v.ToShort(); } },
    Setting {
        "ScrollBarSize", 17, [](Control& c, const SettingValue& v) { c.layout.Settings.ScrollBarSize = v.ToShort(); } },
    Setting { "AdjustLast", vxBoth, [](Control& c, const SettingValue& v) { c.settings.AdjustLast = v.ToInteger(); } },
    Setting { "Opacity", 100, [](Control& c, const SettingValue& v) { c.paint.Settings.Opacity = v.ToShort(); } },
    Setting { "TBoxAutoResize", false,
        [](Control& c, const SettingValue& v) { c.editor.Settings.TBoxAutoResize = v.ToTruth(); } },
    Setting { "TBoxIncludeLiteral", false,
        [](Control& c, const SettingValue& v) { c.editor.Settings.TBoxIncludeLiteral = v.ToTruth(); } },
    Setting { "TBoxPromptChar", std::u16string(),
        [](Control& c, const SettingValue& v) {
            c.editor.Settings.TBoxPromptChar = v.ToTextOr(c.editor.Text().Box().PromptChar());
        } },
    Setting { "TBoxReplaceChar", std::u16string(),
        [](Control& c, const SettingValue& v) {
            c.editor.Settings.TBoxReplaceChar = v.ToTextOr(c.editor.Text().Box().ReplaceChar());
        } },
};

} // namespace

void Control::ReadSettings(const PropertyBag& bag)
{
    for (const Setting& setting : settingsInOrder)
        setting.store(*this, { bag.ReadProperty(setting.name).value_or(setting.fallback), container.GetLocale() });
    editor.ApplySettings();
}

} // namespace vornix
