#include "vornix/platform/edit_box.h"

namespace vornix {

std::u16string WithLineEnds(std::u16string_view text)
{
    std::u16string lines;
    lines.reserve(text.size());
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (text[place] != u'\r' && text[place] != u'\n') {
            lines += text[place];
            continue;
        }
        lines += u"\r\n";
        if (text[place] == u'\r' && text.substr(place + 1).starts_with(u'\n'))
            ++place;
    }
    return lines;
}

} // namespace vornix
