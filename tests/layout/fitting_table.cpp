#include "layout/fitting_table.h"

#include <algorithm>

namespace vornix {

namespace {

// What of a line without breaks stands in the room: lines, and the widest of them.
Size BrokenExtent(std::u16string_view line, int room)
{
    Size extent { 0, 1 };
    int used = 0;
    while (!line.empty()) {
        const std::size_t end = std::min(line.find(u' '), line.size());
        const int word = FakeDevice::CharWidth * static_cast<int>(end);
        const int wanted = used == 0 ? word : used + FakeDevice::CharWidth + word;
        const bool fits = used == 0 || wanted <= room;
        extent.height += fits ? 0 : 1;
        used = fits ? wanted : word;
        extent.width = std::max(extent.width, used);
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return extent;
}

} // namespace

Size PlainExtent(std::u16string_view text, const Rect& rect, u32 format)
{
    Size extent;
    while (true) {
        const std::size_t end = std::min(text.find(u'\r'), text.size());
        const std::u16string_view line = text.substr(0, end);
        const bool breaks = (format & DT_WORDBREAK) != 0;
        const Size part = breaks ? BrokenExtent(line, rect.Width())
                                 : Size { FakeDevice::CharWidth * static_cast<int>(line.size()), 1 };
        extent.width = std::max(extent.width, part.width);
        extent.height += part.height * FakeDevice::LineHeight;
        if (end == text.size())
            return extent;
        text.remove_prefix(end + 1);
    }
}

} // namespace vornix
