#include "textbox/text_box_fixture.h"

#include <algorithm>

namespace vornix {

namespace {

int WidthOf(std::u16string_view text)
{
    return FakeDevice::CharWidth * static_cast<int>(text.size());
}

// Splits off what stands in front of the separator.
std::u16string_view TakeUntil(std::u16string_view& rest, std::u16string_view separator)
{
    const std::size_t end = rest.find(separator);
    const std::u16string_view taken = rest.substr(0, end);
    rest = end == std::u16string_view::npos ? std::u16string_view() : rest.substr(end + separator.size());
    return taken;
}

// Adds the lines that one line takes when it is broken.
void Break(std::u16string_view line, int room, Size& size)
{
    int width = 0;
    size.height += FakeDevice::LineHeight;
    while (!line.empty()) {
        const int word = WidthOf(TakeUntil(line, u" "));
        const bool fits = width == 0 || width + FakeDevice::CharWidth + word <= room;
        if (!fits)
            size.height += FakeDevice::LineHeight;
        width = fits && width > 0 ? width + FakeDevice::CharWidth + word : word;
        size.width = std::max(size.width, width);
    }
}

} // namespace

Size SizeInGrid(std::u16string_view text, const Rect& rect, u32 format)
{
    Size size;
    bool isLast = false;
    while (!isLast) {
        isLast = text.find(u"\r\n") == std::u16string_view::npos;
        const std::u16string_view line = TakeUntil(text, u"\r\n");
        if (format & DT_WORDBREAK) {
            Break(line, rect.Width(), size);
            continue;
        }
        size.width = std::max(size.width, WidthOf(line));
        size.height += FakeDevice::LineHeight;
    }
    return size;
}

} // namespace vornix
