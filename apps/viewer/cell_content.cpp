#include "cell_content.h"

#include "blanks.h"
#include "date_content.h"
#include "number_content.h"

#include <algorithm>
#include <array>
#include <string>

namespace vornix::viewer {

namespace {

constexpr std::size_t LongestValue = 48;

struct Word {
    std::u16string_view text;
    bool value;
    Content content;
};
// In pairs of opposites.
constexpr std::array Words {
    Word { u"TRUE", true, WordTrueFalse },
    Word { u"FALSE", false, WordTrueFalse },
    Word { u"YES", true, WordYesNo },
    Word { u"NO", false, WordYesNo },
    Word { u"Y", true, LetterYesNo },
    Word { u"N", false, LetterYesNo },
    Word { u"T", true, LetterTrueFalse },
    Word { u"F", false, LetterTrueFalse },
    Word { u"1", true, 0 },
    Word { u"0", false, 0 },
};

const Word* FindWord(std::u16string_view normalized)
{
    const auto* found
        = std::find_if(Words.begin(), Words.end(), [&](const Word& word) { return word.text == normalized; });
    return found == Words.end() ? nullptr : found;
}

} // namespace

std::u16string NormalizedValue(std::u16string_view text)
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    if (text.size() > LongestValue)
        return {};
    std::u16string normalized(text);
    for (char16_t& unit : normalized) {
        if (IsSpace(unit))
            unit = u' ';
        else if (unit >= u'a' && unit <= u'z')
            unit = static_cast<char16_t>(unit - u'a' + u'A');
        else if (unit == 0x2212) // the minus sign of typesetters
            unit = u'-';
    }
    return normalized;
}

Content ContentOf(std::u16string_view text)
{
    const std::u16string value = NormalizedValue(text);
    if (value.empty())
        return 0;
    const Word* word = FindWord(value);
    const Content truth = word ? word->content : 0;
    return truth | NumberContentOf(value) | DateContentOf(value);
}

std::optional<bool> TruthValueOf(std::u16string_view text)
{
    const Word* word = FindWord(NormalizedValue(text));
    return word ? std::optional(word->value) : std::nullopt;
}

std::u16string OppositeTruthText(std::u16string_view text)
{
    const Word& word = *FindWord(NormalizedValue(text));
    std::u16string opposite(Words[static_cast<std::size_t>(&word - Words.data()) ^ 1].text);
    const std::u16string_view written = text.substr(text.find_first_not_of(Spaces));
    const auto isSmall = [](char16_t unit) { return unit >= u'a' && unit <= u'z'; };
    for (std::size_t i = 0; i < opposite.size(); ++i) {
        // TRUE, True and true differ in their first two letters.
        const bool makeSmall = isSmall(written[i == 0 ? 0 : std::min<std::size_t>(1, written.size() - 1)]);
        if (makeSmall && opposite[i] >= u'A')
            opposite[i] = static_cast<char16_t>(opposite[i] - u'A' + u'a');
    }
    return opposite;
}

} // namespace vornix::viewer
