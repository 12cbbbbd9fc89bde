#include "line_breaks.h"

namespace vornix::viewer {

std::u16string_view LineBreakOf(std::u16string_view text)
{
    const auto start = text.find_first_of(u"\r\n");
    if (start == std::u16string_view::npos)
        return {};
    const bool isPair = text.substr(start).starts_with(u"\r\n");
    return text.substr(start, isPair ? 2 : 1);
}

std::u16string WithLineBreaks(std::u16string_view text, std::u16string_view lineBreak)
{
    std::u16string result;
    while (true) {
        const std::u16string_view found = LineBreakOf(text);
        if (found.empty())
            return result.append(text);
        const auto start = static_cast<std::size_t>(found.data() - text.data());
        result.append(text.substr(0, start)).append(lineBreak);
        text.remove_prefix(start + found.size());
    }
}

} // namespace vornix::viewer
