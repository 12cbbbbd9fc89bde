#include "text_ruler.h"

#include <cmath>

namespace vornix {

namespace {

constexpr double TwipsAPoint = 20;
constexpr double TwipsAPixel = 15;
constexpr u32 Measuring = DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX;

FontDescription Describe(const FontObject& font)
{
    FontDescription description;
    description.face = font.Name;
    description.height = -static_cast<int>(std::lround(font.Size * TwipsAPoint / TwipsAPixel));
    description.weight = font.Bold ? 700 : 400;
    description.italic = font.Italic;
    description.charset = font.Charset;
    return description;
}

} // namespace

TextRuler::TextRuler(Device& device, const FontObject& font)
    : device_(device)
{
    device_.SelectFont(Describe(font));
}

int TextRuler::LineHeight() const
{
    Rect rect;
    return device_.DrawText(u"Aj", rect, Measuring);
}

int TextRuler::Width(std::u16string_view line) const
{
    if (line.empty())
        return 0;
    Rect rect;
    device_.DrawText(line, rect, Measuring);
    return rect.Width();
}

int TextRuler::CharactersBefore(std::u16string_view line, int x) const
{
    // The fewest characters that reach behind x lie between these.
    std::size_t inFront = 0;
    std::size_t behind = line.size();
    while (inFront < behind) {
        const std::size_t middle = (inFront + behind) / 2;
        if (Width(line.substr(0, middle)) > x)
            behind = middle;
        else
            inFront = middle + 1;
    }
    const int reached = Width(line.substr(0, behind));
    if (behind == 0 || reached <= x)
        return static_cast<int>(behind);
    const int before = Width(line.substr(0, behind - 1));
    return static_cast<int>(x - before < reached - x ? behind - 1 : behind);
}

} // namespace vornix
