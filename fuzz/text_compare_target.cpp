// The order of texts is one: reflexive, antisymmetric, transitive, and blind to the case of letters.
#include "automation/text_compare.h"
#include "fuzz_input.h"

#include <algorithm>

using namespace vornix;

namespace {

std::u16string UpperAscii(std::u16string text)
{
    for (char16_t& unit : text) {
        if (unit >= u'a' && unit <= u'z')
            unit = static_cast<char16_t>(unit - u'a' + u'A');
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzInput input(data, size);
    std::u16string texts[3];
    for (std::u16string& text : texts)
        text = input.Text(60);
    const auto compare = [](const std::u16string& a, const std::u16string& b) { return CompareTextNoCase(a, b); };
    for (const std::u16string& a : texts) {
        fuzz::Require(compare(a, a) == 0, "a text equals itself");
        fuzz::Require(compare(a, UpperAscii(a)) == 0, "the case of letters does not count");
        for (const std::u16string& b : texts)
            fuzz::Require(compare(a, b) == -compare(b, a), "the order turned round is its opposite");
    }
    std::sort(std::begin(texts), std::end(texts), [&](const auto& a, const auto& b) { return compare(a, b) < 0; });
    fuzz::Require(compare(texts[0], texts[1]) <= 0 && compare(texts[1], texts[2]) <= 0, "sorting sorts");
    fuzz::Require(compare(texts[0], texts[2]) <= 0, "the order is transitive");
    if (compare(texts[0], texts[1]) == 0)
        fuzz::Require(compare(texts[0], texts[2]) == compare(texts[1], texts[2]), "equal texts order alike");
    return 0;
}
