#include "line_breaks.h"

namespace vornix::viewer {

namespace {

// Of the line break that begins, or ends, at that place; 0 where there is none.
std::size_t BreakAt(std::u16string_view text, std::size_t place)
{
    if (text[place] != u'\r' && text[place] != u'\n')
        return 0;
    return text.substr(place).starts_with(u"\r\n") ? 2 : 1;
}
std::size_t BreakBefore(std::u16string_view text, std::size_t place)
{
    if (text[place - 1] != u'\r' && text[place - 1] != u'\n')
        return 0;
    return text.substr(0, place).ends_with(u"\r\n") ? 2 : 1;
}

struct Lengths {
    std::size_t old = 0;
    std::size_t text = 0;
};

// Of what both begin with; one line break is as good as another.
Lengths CommonStart(std::u16string_view old, std::u16string_view text)
{
    Lengths common;
    while (common.old < old.size() && common.text < text.size()) {
        const std::size_t oldBreak = BreakAt(old, common.old);
        const std::size_t textBreak = BreakAt(text, common.text);
        const bool isSameUnit = oldBreak == 0 && textBreak == 0 && old[common.old] == text[common.text];
        if (!isSameUnit && (oldBreak == 0 || textBreak == 0))
            return common;
        common.old += isSameUnit ? 1 : oldBreak;
        common.text += isSameUnit ? 1 : textBreak;
    }
    return common;
}

// Of what both end with.
Lengths CommonEnd(std::u16string_view old, std::u16string_view text)
{
    Lengths rest { old.size(), text.size() };
    while (rest.old > 0 && rest.text > 0) {
        const std::size_t oldBreak = BreakBefore(old, rest.old);
        const std::size_t textBreak = BreakBefore(text, rest.text);
        const bool isSameUnit = oldBreak == 0 && textBreak == 0 && old[rest.old - 1] == text[rest.text - 1];
        if (!isSameUnit && (oldBreak == 0 || textBreak == 0))
            break;
        rest.old -= isSameUnit ? 1 : oldBreak;
        rest.text -= isSameUnit ? 1 : textBreak;
    }
    return { old.size() - rest.old, text.size() - rest.text };
}

} // namespace

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

std::u16string WithLineBreaksOf(std::u16string_view old, std::u16string_view text, std::u16string_view otherwise)
{
    const std::u16string_view lineBreak = LineBreakOf(old).empty() ? otherwise : LineBreakOf(old);
    if (lineBreak.empty())
        return std::u16string(text);
    const Lengths start = CommonStart(old, text);
    const Lengths end = CommonEnd(old.substr(start.old), text.substr(start.text));
    const std::u16string_view changed = text.substr(start.text, text.size() - start.text - end.text);
    std::u16string result(old.substr(0, start.old));
    result.append(WithLineBreaks(changed, lineBreak)).append(old.substr(old.size() - end.old));
    // Where a CR has come to stand before an LF that was another line break, they are all written alike.
    const bool isSame = WithLineBreaks(result, u"\n") == WithLineBreaks(text, u"\n");
    return isSame ? result : WithLineBreaks(text, lineBreak);
}

} // namespace vornix::viewer
