#include "automation/word_sort.h"

#include "automation/case_mapping.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <utility>

namespace vornix {

namespace {

// The order within a letter: the plain one first.
enum Accent : std::uint32_t {
    Plain = 2,
    Acute = 14,
    Grave = 15,
    DotAbove = 16,
    Circumflex = 18,
    Diaeresis = 19,
    Caron = 20,
    Breve = 21,
    Macron = 23,
    Tilde = 25,
    Ring = 26,
    Ogonek = 27,
    Cedilla = 28,
    DoubleAcute = 29,
    Stroke = 33,
    OtherAccent = 64
};

struct LetterForm {
    char16_t letter;
    // One letter, or the two that the letter stands for.
    char16_t base[2];
    Accent accent;
};

// Small letters only, in ascending order.
constexpr LetterForm LetterForms[] = {
    { 0x00AA, { u'a' }, Plain },
    { 0x00BA, { u'o' }, Plain },
    { 0x00DF, { u's', u's' }, Plain },
    { 0x00E0, { u'a' }, Grave },
    { 0x00E1, { u'a' }, Acute },
    { 0x00E2, { u'a' }, Circumflex },
    { 0x00E3, { u'a' }, Tilde },
    { 0x00E4, { u'a' }, Diaeresis },
    { 0x00E5, { u'a' }, Ring },
    { 0x00E6, { u'a', u'e' }, Plain },
    { 0x00E7, { u'c' }, Cedilla },
    { 0x00E8, { u'e' }, Grave },
    { 0x00E9, { u'e' }, Acute },
    { 0x00EA, { u'e' }, Circumflex },
    { 0x00EB, { u'e' }, Diaeresis },
    { 0x00EC, { u'i' }, Grave },
    { 0x00ED, { u'i' }, Acute },
    { 0x00EE, { u'i' }, Circumflex },
    { 0x00EF, { u'i' }, Diaeresis },
    { 0x00F0, { u'd' }, OtherAccent },
    { 0x00F1, { u'n' }, Tilde },
    { 0x00F2, { u'o' }, Grave },
    { 0x00F3, { u'o' }, Acute },
    { 0x00F4, { u'o' }, Circumflex },
    { 0x00F5, { u'o' }, Tilde },
    { 0x00F6, { u'o' }, Diaeresis },
    { 0x00F8, { u'o' }, Stroke },
    { 0x00F9, { u'u' }, Grave },
    { 0x00FA, { u'u' }, Acute },
    { 0x00FB, { u'u' }, Circumflex },
    { 0x00FC, { u'u' }, Diaeresis },
    { 0x00FD, { u'y' }, Acute },
    { 0x00FE, { u't', u'h' }, Plain },
    { 0x00FF, { u'y' }, Diaeresis },
    { 0x0101, { u'a' }, Macron },
    { 0x0103, { u'a' }, Breve },
    { 0x0105, { u'a' }, Ogonek },
    { 0x0107, { u'c' }, Acute },
    { 0x0109, { u'c' }, Circumflex },
    { 0x010B, { u'c' }, DotAbove },
    { 0x010D, { u'c' }, Caron },
    { 0x010F, { u'd' }, Caron },
    { 0x0111, { u'd' }, Stroke },
    { 0x0113, { u'e' }, Macron },
    { 0x0115, { u'e' }, Breve },
    { 0x0117, { u'e' }, DotAbove },
    { 0x0119, { u'e' }, Ogonek },
    { 0x011B, { u'e' }, Caron },
    { 0x011D, { u'g' }, Circumflex },
    { 0x011F, { u'g' }, Breve },
    { 0x0121, { u'g' }, DotAbove },
    { 0x0123, { u'g' }, Cedilla },
    { 0x0125, { u'h' }, Circumflex },
    { 0x0127, { u'h' }, Stroke },
    { 0x0129, { u'i' }, Tilde },
    { 0x012B, { u'i' }, Macron },
    { 0x012D, { u'i' }, Breve },
    { 0x012F, { u'i' }, Ogonek },
    { 0x0131, { u'i' }, OtherAccent },
    { 0x0133, { u'i', u'j' }, Plain },
    { 0x0135, { u'j' }, Circumflex },
    { 0x0137, { u'k' }, Cedilla },
    { 0x013A, { u'l' }, Acute },
    { 0x013C, { u'l' }, Cedilla },
    { 0x013E, { u'l' }, Caron },
    { 0x0142, { u'l' }, Stroke },
    { 0x0144, { u'n' }, Acute },
    { 0x0146, { u'n' }, Cedilla },
    { 0x0148, { u'n' }, Caron },
    { 0x014D, { u'o' }, Macron },
    { 0x014F, { u'o' }, Breve },
    { 0x0151, { u'o' }, DoubleAcute },
    { 0x0153, { u'o', u'e' }, Plain },
    { 0x0155, { u'r' }, Acute },
    { 0x0157, { u'r' }, Cedilla },
    { 0x0159, { u'r' }, Caron },
    { 0x015B, { u's' }, Acute },
    { 0x015D, { u's' }, Circumflex },
    { 0x015F, { u's' }, Cedilla },
    { 0x0161, { u's' }, Caron },
    { 0x0163, { u't' }, Cedilla },
    { 0x0165, { u't' }, Caron },
    { 0x0167, { u't' }, Stroke },
    { 0x0169, { u'u' }, Tilde },
    { 0x016B, { u'u' }, Macron },
    { 0x016D, { u'u' }, Breve },
    { 0x016F, { u'u' }, Ring },
    { 0x0171, { u'u' }, DoubleAcute },
    { 0x0173, { u'u' }, Ogonek },
    { 0x0175, { u'w' }, Circumflex },
    { 0x0177, { u'y' }, Circumflex },
    { 0x017A, { u'z' }, Acute },
    { 0x017C, { u'z' }, DotAbove },
    { 0x017E, { u'z' }, Caron },
};

const LetterForm* FindLetterForm(char16_t letter)
{
    if (letter < LetterForms[0].letter)
        return nullptr;
    const auto* found = std::lower_bound(std::begin(LetterForms), std::end(LetterForms), letter,
        [](const LetterForm& form, char16_t wanted) { return form.letter < wanted; });
    return found != std::end(LetterForms) && found->letter == letter ? found : nullptr;
}

bool IsCombiningMark(char16_t unit)
{
    return unit >= 0x0300 && unit <= 0x036F;
}

std::uint32_t AccentOfMark(char16_t mark)
{
    switch (mark) {
    case 0x0300:
        return Grave;
    case 0x0301:
        return Acute;
    case 0x0302:
        return Circumflex;
    case 0x0303:
        return Tilde;
    case 0x0304:
        return Macron;
    case 0x0306:
        return Breve;
    case 0x0307:
        return DotAbove;
    case 0x0308:
        return Diaeresis;
    case 0x030A:
        return Ring;
    case 0x030B:
        return DoubleAcute;
    case 0x030C:
        return Caron;
    case 0x0327:
        return Cedilla;
    case 0x0328:
        return Ogonek;
    default:
        return OtherAccent + (mark - 0x0300u);
    }
}

bool IsIgnored(char16_t unit)
{
    const bool isControl = unit < 0x20 && !(unit >= u'\t' && unit <= u'\r');
    return isControl || unit == 0x7F || unit == 0x00AD || (unit >= 0x200B && unit <= 0x200F) || unit == 0xFEFF;
}

// Outside ASCII and Latin-1: the blocks of punctuation, arrows, signs and shapes.
bool IsFurtherSymbol(char16_t unit)
{
    return (unit >= 0x2000 && unit <= 0x2BFF) || (unit >= 0x3000 && unit <= 0x303F) || (unit >= 0x80 && unit < 0xC0)
        || unit == 0x00D7 || unit == 0x00F7;
}

// Weights of whole classes, so that they never mix.
constexpr std::uint32_t SymbolWeight = 0x00100;
constexpr std::uint32_t FurtherSymbolWeight = 0x10000;
constexpr std::uint32_t DigitWeight = 0x20000;
constexpr std::uint32_t LetterWeight = 0x30000;

std::uint32_t ReckonPrimaryWeight(char16_t unit)
{
    if (unit >= u'0' && unit <= u'9')
        return DigitWeight + unit;
    if (unit >= u'a' && unit <= u'z')
        return LetterWeight + unit;
    const std::size_t symbol = WordSortSymbols().find(unit);
    if (symbol != std::u16string_view::npos)
        return SymbolWeight + static_cast<std::uint32_t>(symbol);
    return (IsFurtherSymbol(unit) ? FurtherSymbolWeight : LetterWeight) + unit;
}

std::uint32_t PrimaryWeight(char16_t unit)
{
    static const auto ascii = [] {
        std::array<std::uint32_t, 0x80> weights {};
        for (char16_t each = 0; each < weights.size(); ++each)
            weights[each] = ReckonPrimaryWeight(each);
        return weights;
    }();
    return unit < ascii.size() ? ascii[unit] : ReckonPrimaryWeight(unit);
}

struct Element {
    std::uint32_t primary = 0;
    std::uint32_t accent = Plain;
};

// Walks a text element by element: a letter with its accents, half of a double letter, a digit or a symbol.
class ElementReader {
public:
    explicit ElementReader(std::u16string_view text)
        : text_(text)
    {
    }

    // The zero element behind the last one, which sorts below all others.
    Element Next()
    {
        if (pending_ != 0)
            return WithMarks({ PrimaryWeight(std::exchange(pending_, u'\0')), Plain });
        while (at_ < text_.size()) {
            const char16_t unit = SimpleLower(text_[at_++]);
            if (IsWordMark(unit) || IsIgnored(unit))
                continue;
            if (IsCombiningMark(unit))
                return { 0, AccentOfMark(unit) };
            const LetterForm* form = FindLetterForm(unit);
            if (form == nullptr)
                return WithMarks({ PrimaryWeight(unit == 0x00A0 ? u' ' : unit), Plain });
            pending_ = form->base[1];
            const Element element { PrimaryWeight(form->base[0]), form->accent };
            return pending_ != 0 ? element : WithMarks(element);
        }
        return {};
    }

private:
    Element WithMarks(Element element)
    {
        while (at_ < text_.size() && IsCombiningMark(text_[at_])) {
            const std::uint32_t accent = AccentOfMark(text_[at_++]);
            element.accent = element.accent == Plain ? accent : element.accent + accent;
        }
        return element;
    }

    std::u16string_view text_;
    std::size_t at_ = 0;
    char16_t pending_ = 0;
};

// The units that both begin with, as far as they make the same elements whatever follows: marks belong to the unit that
// they stand behind.
std::size_t CommonLength(std::u16string_view a, std::u16string_view b)
{
    const auto differing = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    auto length = static_cast<std::size_t>(differing.first - a.begin());
    const auto isMarkAt
        = [&](std::u16string_view text) { return length < text.size() && IsCombiningMark(text[length]); };
    while (length > 0 && (isMarkAt(a) || isMarkAt(b)))
        --length;
    return length;
}

int Sign(std::uint32_t a, std::uint32_t b)
{
    return a < b ? -1 : a > b;
}

} // namespace

bool IsWordMark(char16_t unit)
{
    return unit == u'-' || unit == u'\'' || unit == 0x2010 || unit == 0x2011 || unit == 0x2019;
}

std::u16string_view WordSortSymbols()
{
    return u" \t\n\v\f\r!\"#$%&()*,./:;?@[\\]^_`{|}~\u00A1\u00A6\u00A8\u00AF\u00B4\u00B8\u00BF"
           u"\u00A2\u00A3\u00A4\u00A5\u20AC+\u00B1\u00AB<=>"
           u"\u00BB\u00D7\u00F7\u00A7\u00A9\u00AC\u00AE\u00B0\u00B5\u00B6\u00B7";
}

int CompareWordMarks(std::u16string_view a, std::u16string_view b)
{
    const auto markFrom = [](std::u16string_view text, std::size_t at) {
        while (at < text.size() && !IsWordMark(text[at]))
            ++at;
        return at;
    };
    std::size_t atA = 0;
    std::size_t atB = 0;
    while (true) {
        atA = markFrom(a, atA);
        atB = markFrom(b, atB);
        if (atA == a.size() || atB == b.size())
            return (atA < a.size()) - (atB < b.size());
        if (atA != atB)
            return atA < atB ? -1 : 1;
        const bool isQuoteA = a[atA] == u'\'' || a[atA] == 0x2019;
        const bool isQuoteB = b[atB] == u'\'' || b[atB] == 0x2019;
        if (isQuoteA != isQuoteB)
            return isQuoteA ? -1 : 1;
        ++atA;
        ++atB;
    }
}

int CompareWordSort(std::u16string_view a, std::u16string_view b)
{
    const std::size_t same = CommonLength(a, b);
    ElementReader readerA(a.substr(same));
    ElementReader readerB(b.substr(same));
    int accentOrder = 0;
    while (true) {
        const Element elementA = readerA.Next();
        const Element elementB = readerB.Next();
        if (elementA.primary != elementB.primary)
            return Sign(elementA.primary, elementB.primary);
        if (accentOrder == 0)
            accentOrder = Sign(elementA.accent, elementB.accent);
        if (elementA.primary == 0 && elementA.accent == Plain && elementB.accent == Plain)
            return accentOrder != 0 ? accentOrder : CompareWordMarks(a, b);
    }
}

} // namespace vornix
