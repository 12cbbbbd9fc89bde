#include "qt_ambient.h"

#include <QFontInfo>

namespace vornix {

namespace {

struct RoleOfIndex {
    int index;
    QPalette::ColorRole role;
    QPalette::ColorGroup group;
};

constexpr RoleOfIndex roles[] = {
    { 0, QPalette::Midlight, QPalette::Active },
    { SystemColor::Window, QPalette::Base, QPalette::Active },
    { SystemColor::WindowFrame, QPalette::Dark, QPalette::Active },
    { SystemColor::WindowText, QPalette::Text, QPalette::Active },
    { SystemColor::Highlight, QPalette::Highlight, QPalette::Active },
    { SystemColor::HighlightText, QPalette::HighlightedText, QPalette::Active },
    { SystemColor::ButtonFace, QPalette::Button, QPalette::Active },
    { SystemColor::ButtonShadow, QPalette::Mid, QPalette::Active },
    { SystemColor::GrayText, QPalette::Text, QPalette::Disabled },
    { SystemColor::ButtonText, QPalette::ButtonText, QPalette::Active },
    { SystemColor::ButtonHighlight, QPalette::Light, QPalette::Active },
    { SystemColor::DarkShadow, QPalette::Dark, QPalette::Active },
    { SystemColor::Light, QPalette::Midlight, QPalette::Active },
};

ColorRef ColorFrom(const QColor& color)
{
    return static_cast<ColorRef>(color.red() | color.green() << 8 | color.blue() << 16);
}

} // namespace

SystemColors SystemColorsFrom(const QPalette& palette)
{
    SystemColors colors;
    for (const RoleOfIndex& role : roles)
        colors.values[static_cast<std::size_t>(role.index)] = ColorFrom(palette.color(role.group, role.role));
    return colors;
}

FontPtr FontFrom(const QFont& font)
{
    auto object = std::make_shared<FontObject>();
    const QFontInfo info(font);
    object->Name = FromQString(info.family());
    // A font given in pixels has no point size of its own; the one it comes out as is asked for.
    object->Size = font.pointSizeF() > 0 ? font.pointSizeF() : info.pointSizeF();
    object->Bold = font.bold();
    object->Italic = font.italic();
    object->Underline = font.underline();
    object->Strikethrough = font.strikeOut();
    return object;
}

} // namespace vornix
