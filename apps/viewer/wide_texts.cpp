#include "wide_texts.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

// Far beyond the widest column, however narrow the characters.
constexpr std::size_t LongEnough = 400;

bool IsBetween(char16_t unit, char16_t first, char16_t last)
{
    return unit >= first && unit <= last;
}

int AsciiWidth(char16_t unit)
{
    constexpr std::u16string_view narrow = u" !'(),./:;I[\\]fijlrt|";
    constexpr std::u16string_view wide = u"%@GMOQWmw";
    if (narrow.find(unit) != std::u16string_view::npos)
        return 5;
    if (wide.find(unit) != std::u16string_view::npos)
        return 12;
    return IsBetween(unit, u'A', u'Z') ? 9 : 8;
}

bool IsCombining(char16_t unit)
{
    return IsBetween(unit, 0x300, 0x36F) || IsBetween(unit, 0x591, 0x5BD) || IsBetween(unit, 0x64B, 0x65F)
        || IsBetween(unit, 0x200B, 0x200F) || IsBetween(unit, 0xFE00, 0xFE0F);
}

bool IsWide(char16_t unit)
{
    return IsBetween(unit, 0x1100, 0x115F) || IsBetween(unit, 0x2E80, 0xA4CF) || IsBetween(unit, 0xAC00, 0xD7A3)
        || IsBetween(unit, 0xF900, 0xFAFF) || IsBetween(unit, 0xFE30, 0xFE4F) || IsBetween(unit, 0xFF00, 0xFF60);
}

int UnitWidth(char16_t unit)
{
    if (unit < 0x80)
        return AsciiWidth(unit);
    if (IsCombining(unit))
        return 0;
    // Two of them are one character, mostly an emoji.
    if (IsBetween(unit, 0xD800, 0xDFFF))
        return 7;
    return IsWide(unit) ? 14 : 8;
}

struct Candidate {
    int row = 0;
    int width = 0;
};

} // namespace

int EstimatedWidth(std::u16string_view text)
{
    int width = 0;
    for (const char16_t unit : text.substr(0, LongEnough))
        width += UnitWidth(unit);
    return width;
}

std::vector<int> WidestRows(const Table& table, int column, std::size_t count)
{
    std::vector<Candidate> best;
    for (int row = 0; row < table.RowCount(); ++row) {
        const std::u16string_view text = table.Text(row, column);
        const Candidate candidate { row, EstimatedWidth(text) };
        if (candidate.width == 0 || (best.size() == count && candidate.width <= best.back().width))
            continue;
        const auto isSame = [&](const Candidate& known) { return table.Text(known.row, column) == text; };
        if (std::any_of(best.begin(), best.end(), isSame))
            continue;
        const auto isNarrower = [&](const Candidate& known) { return known.width < candidate.width; };
        best.insert(std::find_if(best.begin(), best.end(), isNarrower), candidate);
        if (best.size() > count)
            best.pop_back();
    }
    std::vector<int> rows;
    for (const Candidate& candidate : best)
        rows.push_back(candidate.row);
    return rows;
}

} // namespace vornix::viewer
