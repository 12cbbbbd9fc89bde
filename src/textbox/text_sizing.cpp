#include "textbox/text_sizing.h"

#include <algorithm>
#include <string>

namespace vornix {

namespace {

Size Unbroken(Device& device, std::u16string_view text)
{
    Rect rect;
    device.DrawText(text, rect, DT_CALCRECT);
    return rect.GetSize();
}

Size BrokenWithin(Device& device, std::u16string_view text, Rect rect)
{
    device.DrawText(text, rect, DT_CALCRECT | DT_WORDBREAK);
    return rect.GetSize();
}

} // namespace

TextExtent MeasureBoxText(
    Device& device, const FontDescription& font, std::u16string_view text, const SizeLimits& limits)
{
    // What is put behind the text keeps an empty last line, and room for the next character.
    const std::u16string lines = std::u16string(text) + u"Aj";
    const int widest = limits.MaxWidth - BoxMargin;
    const int highest = limits.MaxHeight - BoxMargin;

    device.SelectFont(font);
    Size size = Unbroken(device, std::u16string(text) + u"AAj");
    if (size.width > widest) {
        size = BrokenWithin(device, lines, { 0, 0, std::max(widest, 0), size.height });
        size.width = std::min(size.width, widest);
    }
    // Too wide, and lower than the box is anyway: lines that break inside it.
    if (size.height + BoxMargin < limits.NormalHeight && size.width + BoxMargin > limits.NormalWidth)
        size = BrokenWithin(device, lines, { 0, 0, std::max<int>(limits.NormalWidth, 0), limits.NormalHeight });
    const bool isCut = size.height > highest;
    return { size.width, isCut ? highest : size.height, isCut };
}

} // namespace vornix
