// What the grid takes from the application's look: colours, font, and texts between the two worlds.
#pragma once

#include "vornix/platform/locale.h"
#include "vornix/platform/system_colors.h"
#include "vornix/types.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

#include <string>
#include <string_view>

namespace vornix {

// The running user's own where ICU is built in; otherwise the built-in one.
const Locale& UserLocale();
SystemColors SystemColorsFrom(const QPalette& palette);
// The size in points of 1/72 inch at 96 pixels an inch, whatever the resolution that Qt reckons with.
FontPtr FontFrom(const QFont& font, int dotsPerInch);
// The other way round: as large as the grid draws it.
QFont QFontFrom(const FontObject& font);
QColor QColorFrom(ColorRef color);
// Text and ground of a field, also while it is disabled.
void UseColors(QPalette& palette, ColorRef foreColor, ColorRef backColor);
bool SameFont(const FontObject& a, const FontObject& b);

inline QString ToQString(std::u16string_view text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

inline std::u16string FromQString(const QString& text)
{
    return std::u16string(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size()));
}

} // namespace vornix
