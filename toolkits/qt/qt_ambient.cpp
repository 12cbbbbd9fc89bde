#include "qt_ambient.h"

#include "automation/font_description.h"
#ifdef VORNIX_WITH_ICU
#include "vornix/icu_locale.h"
#endif

#include <QColor>
#include <QFontInfo>

#include <algorithm>

namespace vornix {

namespace {

struct RoleOfIndex {
    int index;
    QPalette::ColorRole role;
    QPalette::ColorGroup group;
};

constexpr int MenuFace = 4;
constexpr int MenuText = 7;
constexpr int WorkspaceGround = 12;
constexpr int TipText = 23;
constexpr int TipGround = 24;

// Both systems name the edges of a raised button by their brightness: highlight, light, face, shadow, dark shadow.
constexpr RoleOfIndex roles[] = {
    { SystemColor::ScrollBar, QPalette::Midlight, QPalette::Active },
    { MenuFace, QPalette::Window, QPalette::Active },
    { SystemColor::Window, QPalette::Base, QPalette::Active },
    { SystemColor::WindowFrame, QPalette::Shadow, QPalette::Active },
    { MenuText, QPalette::WindowText, QPalette::Active },
    { SystemColor::WindowText, QPalette::Text, QPalette::Active },
    { WorkspaceGround, QPalette::Mid, QPalette::Active },
    { SystemColor::Highlight, QPalette::Highlight, QPalette::Active },
    { SystemColor::HighlightText, QPalette::HighlightedText, QPalette::Active },
    { SystemColor::ButtonFace, QPalette::Button, QPalette::Active },
    { SystemColor::ButtonShadow, QPalette::Dark, QPalette::Active },
    { SystemColor::GrayText, QPalette::Text, QPalette::Disabled },
    { SystemColor::ButtonText, QPalette::ButtonText, QPalette::Active },
    { SystemColor::ButtonHighlight, QPalette::Light, QPalette::Active },
    { SystemColor::DarkShadow, QPalette::Shadow, QPalette::Active },
    { SystemColor::Light, QPalette::Midlight, QPalette::Active },
    { TipText, QPalette::ToolTipText, QPalette::Active },
    { TipGround, QPalette::ToolTipBase, QPalette::Active },
};

ColorRef ColorFrom(const QColor& color)
{
    return static_cast<ColorRef>(color.red() | color.green() << 8 | color.blue() << 16);
}

} // namespace

const Locale& UserLocale()
{
#ifdef VORNIX_WITH_ICU
    static const std::unique_ptr<Locale> locale = MakeIcuLocale();
    return *locale;
#else
    return BuiltinLocale();
#endif
}

SystemColors SystemColorsFrom(const QPalette& palette)
{
    SystemColors colors;
    for (const RoleOfIndex& role : roles)
        colors.values[static_cast<std::size_t>(role.index)] = ColorFrom(palette.color(role.group, role.role));
    return colors;
}

FontPtr FontFrom(const QFont& font, int dotsPerInch)
{
    constexpr double PointsPerInch = 72;
    constexpr double PixelsPerInch = 96;
    auto object = std::make_shared<FontObject>();
    object->Name = FromQString(QFontInfo(font).family());
    // A font given in pixels has no point size.
    const double pixels
        = font.pointSizeF() > 0 ? font.pointSizeF() * dotsPerInch / PointsPerInch : double { 1 } * font.pixelSize();
    object->Size = pixels * PointsPerInch / PixelsPerInch;
    object->Bold = font.bold();
    object->Italic = font.italic();
    object->Underline = font.underline();
    object->Strikethrough = font.strikeOut();
    return object;
}

QFont QFontFrom(const FontObject& font)
{
    QFont made(ToQString(font.Name));
    made.setPixelSize(std::max(-Described(font).height, 1));
    made.setBold(font.Bold);
    made.setItalic(font.Italic);
    made.setUnderline(font.Underline);
    made.setStrikeOut(font.Strikethrough);
    // Characters stand where the grid puts them.
    made.setHintingPreference(QFont::PreferNoHinting);
    return made;
}

QColor QColorFrom(ColorRef color)
{
    return QColor(
        static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF), static_cast<int>(color >> 16 & 0xFF));
}

void UseColors(QPalette& palette, ColorRef foreColor, ColorRef backColor)
{
    for (const QPalette::ColorRole role : { QPalette::Text, QPalette::WindowText, QPalette::ButtonText })
        palette.setColor(role, QColorFrom(foreColor));
    for (const QPalette::ColorRole role : { QPalette::Base, QPalette::Window })
        palette.setColor(role, QColorFrom(backColor));
}

bool SameFont(const FontObject& a, const FontObject& b)
{
    return a.Name == b.Name && a.Size == b.Size && a.Bold == b.Bold && a.Italic == b.Italic
        && a.Underline == b.Underline && a.Strikethrough == b.Strikethrough;
}

} // namespace vornix
