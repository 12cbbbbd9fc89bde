#include "automation/font_description.h"

#include <algorithm>
#include <cmath>

namespace vornix {

int FontHeight(double points, int twipsPerPixelY)
{
    constexpr double Highest = 1e6;
    if (twipsPerPixelY == 0 || std::isnan(points))
        return -1;
    return static_cast<int>(std::clamp(std::round(-20 * points / twipsPerPixelY), -Highest, Highest));
}

FontDescription Described(const FontObject& font, int twipsPerPixelY)
{
    FontDescription description;
    description.face = font.Name;
    description.height = FontHeight(font.Size, twipsPerPixelY);
    description.weight = font.Bold ? 700 : 400;
    description.italic = font.Italic;
    description.underline = font.Underline;
    description.strikeOut = font.Strikethrough;
    description.charset = font.Charset;
    return description;
}

} // namespace vornix
