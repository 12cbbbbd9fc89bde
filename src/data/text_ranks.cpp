#include "data/text_ranks.h"

#include "automation/text_compare.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <limits>
#include <numeric>

namespace vornix {

namespace {

using Texts = std::span<const std::u16string_view>;
using Numbers = std::vector<std::uint32_t>;

constexpr std::size_t PrefixLength = 3;

// The place of each of the numbers 0 to count - 1 in an order, equal ones in the same place.
template <typename Compare> Numbers RanksBy(std::size_t count, const Compare& compare)
{
    Numbers order(count);
    std::iota(order.begin(), order.end(), 0u);
    // A merge stays inside the array whatever order a container's locale makes up.
    std::stable_sort(order.begin(), order.end(), [&](auto a, auto b) { return compare(a, b) < 0; });
    Numbers ranks(count);
    for (std::size_t i = 1; i < count; ++i)
        ranks[order[i]] = ranks[order[i - 1]] + (compare(order[i - 1], order[i]) != 0);
    return ranks;
}

// What holds for the distinct texts, for all of them.
Numbers Spread(const Numbers& ranks, const DistinctTexts& distinct)
{
    Numbers all;
    all.reserve(distinct.numberOf.size());
    for (const std::uint32_t number : distinct.numberOf)
        all.push_back(ranks[number]);
    return all;
}

Numbers PrefixRanks(Texts texts, const Locale& locale)
{
    std::vector<std::u16string_view> prefixes;
    prefixes.reserve(texts.size());
    for (const std::u16string_view text : texts)
        prefixes.push_back(text.substr(0, PrefixLength));
    const DistinctTexts distinct(prefixes);
    const Numbers ranks = RanksBy(distinct.texts.size(),
        [&](auto a, auto b) { return CompareTextNoCase(distinct.texts[a], distinct.texts[b], locale); });
    return Spread(ranks, distinct);
}

} // namespace

// A table of numbers of texts, each in the first free slot from the one that its hash names.
DistinctTexts::DistinctTexts(Texts all)
{
    constexpr std::uint32_t Free = std::numeric_limits<std::uint32_t>::max();
    Numbers slots(std::bit_ceil(2 * all.size() + 1), Free);
    const std::size_t mask = slots.size() - 1;
    numberOf.reserve(all.size());
    for (const std::u16string_view text : all) {
        std::size_t slot = std::hash<std::u16string_view>()(text) & mask;
        while (slots[slot] != Free && texts[slots[slot]] != text)
            slot = (slot + 1) & mask;
        if (slots[slot] == Free) {
            slots[slot] = static_cast<std::uint32_t>(texts.size());
            texts.push_back(text);
        }
        numberOf.push_back(slots[slot]);
    }
}

std::vector<std::uint32_t> TextRanks(Texts texts, const Locale& locale)
{
    const DistinctTexts distinct(texts);
    const Numbers prefixRanks = PrefixRanks(distinct.texts, locale);
    const Numbers ranks = RanksBy(distinct.texts.size(), [&](auto a, auto b) {
        if (prefixRanks[a] != prefixRanks[b])
            return prefixRanks[a] < prefixRanks[b] ? -1 : 1;
        return CompareTextNoCase(distinct.texts[a], distinct.texts[b], locale);
    });
    return Spread(ranks, distinct);
}

} // namespace vornix
