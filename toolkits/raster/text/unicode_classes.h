// What layout asks about code points.
#pragma once

#include <cstddef>
#include <vector>

namespace vornix {

// The plain characters: one glyph each, left to right, no shaping. They have places 0 to SimpleCharacters - 1 in a
// font's table; -1 is every other character.
inline constexpr int SimpleCharacters = 0x530 + 0x30 + 0x20 + 1;

constexpr int SimpleIndex(char16_t unit)
{
    if (unit < 0x7F)
        return unit >= 0x20 ? unit : -1;
    if (unit < 0x250)
        return unit >= 0xA0 && unit != 0xAD ? unit : -1;
    if (unit < 0x530) {
        const bool greek = unit >= 0x384 && unit <= 0x3FF;
        const bool cyrillic = unit >= 0x400 && (unit < 0x483 || unit > 0x489);
        return greek || cyrillic ? unit : -1;
    }
    if (unit >= 0x2010 && unit <= 0x203F && (unit <= 0x2027 || unit >= 0x2030))
        return 0x530 + (unit - 0x2010);
    if (unit >= 0x20A0 && unit <= 0x20BF)
        return 0x560 + (unit - 0x20A0);
    return unit == 0x2122 ? 0x580 : -1;
}

// C0 and C1 controls.
constexpr bool IsControl(char32_t codePoint)
{
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}

// Letters of scripts that run from right to left, and the marks that switch direction.
bool MakesLineBidirectional(char32_t codePoint);

// Shown in colours unless a variation selector says otherwise.
bool IsEmojiByDefault(char32_t codePoint);
// Characters that belong to what stands before them: marks, joiners, selectors, skin tones, tags.
bool ExtendsCluster(char32_t codePoint);
// Needs no glyph of its own.
bool IsDefaultIgnorable(char32_t codePoint);
constexpr bool IsRegionalIndicator(char32_t codePoint)
{
    return codePoint >= 0x1F1E6 && codePoint <= 0x1F1FF;
}

inline constexpr char32_t ZeroWidthJoiner = 0x200D;
inline constexpr char32_t TextSelector = 0xFE0E;
inline constexpr char32_t EmojiSelector = 0xFE0F;
inline constexpr char32_t KeycapMark = 0x20E3;

// The end of the cluster that begins at the index: a base with all that belongs to it, a flag, a joined emoji.
std::size_t ClusterEnd(const std::vector<char32_t>& codePoints, std::size_t index);

// Ideographs, kana and syllables: a line may break on either side of them, except as the next two say.
bool BreaksFreely(char32_t codePoint);
// Closing punctuation and small kana stay with what stands before them.
bool MayNotBeginLine(char32_t codePoint);
// Opening punctuation stays with what follows.
bool MayNotEndLine(char32_t codePoint);

} // namespace vornix
