#include "unicode_classes.h"

#include <algorithm>
#include <hb.h>
#include <iterator>
#include <string_view>

namespace vornix {

namespace {

struct CodePointRange {
    char32_t first;
    char32_t last;
};

// Ordered. Unicode 14; the open ends of the last blocks are taken whole, since new emoji land there.
constexpr CodePointRange emojiByDefault[] = { { 0x231A, 0x231B }, { 0x23E9, 0x23EC }, { 0x23F0, 0x23F0 },
    { 0x23F3, 0x23F3 }, { 0x25FD, 0x25FE }, { 0x2614, 0x2615 }, { 0x2648, 0x2653 }, { 0x267F, 0x267F },
    { 0x2693, 0x2693 }, { 0x26A1, 0x26A1 }, { 0x26AA, 0x26AB }, { 0x26BD, 0x26BE }, { 0x26C4, 0x26C5 },
    { 0x26CE, 0x26CE }, { 0x26D4, 0x26D4 }, { 0x26EA, 0x26EA }, { 0x26F2, 0x26F3 }, { 0x26F5, 0x26F5 },
    { 0x26FA, 0x26FA }, { 0x26FD, 0x26FD }, { 0x2705, 0x2705 }, { 0x270A, 0x270B }, { 0x2728, 0x2728 },
    { 0x274C, 0x274C }, { 0x274E, 0x274E }, { 0x2753, 0x2755 }, { 0x2757, 0x2757 }, { 0x2795, 0x2797 },
    { 0x27B0, 0x27B0 }, { 0x27BF, 0x27BF }, { 0x2B1B, 0x2B1C }, { 0x2B50, 0x2B50 }, { 0x2B55, 0x2B55 },
    { 0x1F004, 0x1F004 }, { 0x1F0CF, 0x1F0CF }, { 0x1F18E, 0x1F18E }, { 0x1F191, 0x1F19A }, { 0x1F1E6, 0x1F1FF },
    { 0x1F201, 0x1F201 }, { 0x1F21A, 0x1F21A }, { 0x1F22F, 0x1F22F }, { 0x1F232, 0x1F236 }, { 0x1F238, 0x1F23A },
    { 0x1F250, 0x1F251 }, { 0x1F300, 0x1F320 }, { 0x1F32D, 0x1F335 }, { 0x1F337, 0x1F37C }, { 0x1F37E, 0x1F393 },
    { 0x1F3A0, 0x1F3CA }, { 0x1F3CF, 0x1F3D3 }, { 0x1F3E0, 0x1F3F0 }, { 0x1F3F4, 0x1F3F4 }, { 0x1F3F8, 0x1F43E },
    { 0x1F440, 0x1F440 }, { 0x1F442, 0x1F4FC }, { 0x1F4FF, 0x1F53D }, { 0x1F54B, 0x1F54E }, { 0x1F550, 0x1F567 },
    { 0x1F57A, 0x1F57A }, { 0x1F595, 0x1F596 }, { 0x1F5A4, 0x1F5A4 }, { 0x1F5FB, 0x1F64F }, { 0x1F680, 0x1F6C5 },
    { 0x1F6CC, 0x1F6CC }, { 0x1F6D0, 0x1F6D2 }, { 0x1F6D5, 0x1F6D8 }, { 0x1F6DC, 0x1F6DF }, { 0x1F6EB, 0x1F6EC },
    { 0x1F6F4, 0x1F6FC }, { 0x1F7E0, 0x1F7EB }, { 0x1F7F0, 0x1F7F0 }, { 0x1F90C, 0x1F93A }, { 0x1F93C, 0x1F945 },
    { 0x1F947, 0x1F9FF }, { 0x1FA70, 0x1FAFF } };

// Strong right-to-left letters and the explicit marks, taken by block.
constexpr CodePointRange rightToLeft[] = { { 0x590, 0x8FF }, { 0x200E, 0x200F }, { 0x202A, 0x202E }, { 0x2066, 0x2069 },
    { 0xFB1D, 0xFDFF }, { 0xFE70, 0xFEFE }, { 0x10800, 0x10FFF }, { 0x1E800, 0x1EFFF } };

constexpr CodePointRange breakingFreely[] = { { 0x2E80, 0x312F }, { 0x3190, 0x4DBF }, { 0x4E00, 0xA4CF },
    { 0xAC00, 0xD7A3 }, { 0xF900, 0xFAFF }, { 0xFE30, 0xFE4F }, { 0xFF01, 0xFF60 }, { 0xFF66, 0xFF9F },
    { 0x1F300, 0x1F64F }, { 0x1F680, 0x1F6FF }, { 0x1F900, 0x1F9FF }, { 0x20000, 0x3FFFF } };

constexpr std::u32string_view notFirst
    = U"!),.:;?]}\u00B7\u2026\u2019\u201D\u3001\u3002\u3005\u3009\u300B\u300D"
      U"\u300F\u3011\u3015\u3017\u3019\u301B\u301C\u301F\u3041\u3043\u3045\u3047\u3049\u3063"
      U"\u3083\u3085\u3087\u308E\u3095\u3096\u309D\u309E\u30A1\u30A3\u30A5\u30A7\u30A9\u30C3"
      U"\u30E3\u30E5\u30E7\u30EE\u30F5\u30F6\u30FB\u30FC\u30FD\u30FE\uFF01\uFF05\uFF09\uFF0C"
      U"\uFF0E\uFF1A\uFF1B\uFF1F\uFF3D\uFF5D\uFF60\uFF61\uFF63\uFF64\uFF67\uFF68\uFF69\uFF6A"
      U"\uFF6B\uFF6C\uFF6D\uFF6E\uFF6F\uFF70\uFF9E\uFF9F";

constexpr std::u32string_view notLast = U"([{\u2018\u201C\u3008\u300A\u300C\u300E\u3010\u3014\u3016\u3018\u301A\u301D"
                                        U"\uFF04\uFF08\uFF3B\uFF5B\uFF5F\uFF62";

template <std::size_t count> bool IsIn(const CodePointRange (&ranges)[count], char32_t codePoint)
{
    const auto* range = std::lower_bound(std::begin(ranges), std::end(ranges), codePoint,
        [](const CodePointRange& candidate, char32_t value) { return candidate.last < value; });
    return range != std::end(ranges) && range->first <= codePoint;
}

bool IsMark(char32_t codePoint)
{
    const hb_unicode_general_category_t category
        = hb_unicode_general_category(hb_unicode_funcs_get_default(), codePoint);
    return category == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK
        || category == HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK
        || category == HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK;
}

bool IsPictograph(char32_t codePoint)
{
    return codePoint >= 0x2190 && (codePoint < 0x3300 || codePoint >= 0x1F000);
}

} // namespace

bool MakesLineBidirectional(char32_t codePoint)
{
    return codePoint >= 0x590 && IsIn(rightToLeft, codePoint);
}

bool IsEmojiByDefault(char32_t codePoint)
{
    return codePoint >= 0x231A && IsIn(emojiByDefault, codePoint);
}

bool ExtendsCluster(char32_t codePoint)
{
    if (codePoint < 0x300)
        return false;
    const bool skinTone = codePoint >= 0x1F3FB && codePoint <= 0x1F3FF;
    const bool tag = codePoint >= 0xE0020 && codePoint <= 0xE007F;
    return skinTone || tag || codePoint == ZeroWidthJoiner || codePoint == 0x200C || IsMark(codePoint);
}

bool IsDefaultIgnorable(char32_t codePoint)
{
    if (codePoint < 0xAD)
        return false;
    return codePoint == 0xAD || codePoint == 0x34F || codePoint == 0x61C || (codePoint >= 0x200B && codePoint <= 0x200F)
        || (codePoint >= 0x202A && codePoint <= 0x202E) || (codePoint >= 0x2060 && codePoint <= 0x206F)
        || (codePoint >= 0xFE00 && codePoint <= 0xFE0F) || codePoint == 0xFEFF
        || (codePoint >= 0xE0000 && codePoint <= 0xE0FFF);
}

std::size_t ClusterEnd(const std::vector<char32_t>& codePoints, std::size_t index)
{
    std::size_t end = index + 1;
    if (IsRegionalIndicator(codePoints[index]) && end < codePoints.size() && IsRegionalIndicator(codePoints[end]))
        ++end;
    while (end < codePoints.size()) {
        const bool joined = codePoints[end - 1] == ZeroWidthJoiner && IsPictograph(codePoints[end]);
        if (!joined && !ExtendsCluster(codePoints[end]))
            break;
        ++end;
    }
    return end;
}

bool BreaksFreely(char32_t codePoint)
{
    return codePoint >= 0x2E80 && IsIn(breakingFreely, codePoint);
}

bool MayNotBeginLine(char32_t codePoint)
{
    return notFirst.find(codePoint) != std::u32string_view::npos || ExtendsCluster(codePoint);
}

bool MayNotEndLine(char32_t codePoint)
{
    return notLast.find(codePoint) != std::u32string_view::npos;
}

} // namespace vornix
