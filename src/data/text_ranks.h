// The order of many texts, told by numbers.
#pragma once

#include "vornix/platform/locale.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vornix {

// The different texts among some, and which of them each one is.
struct DistinctTexts {
    explicit DistinctTexts(std::span<const std::u16string_view> all);

    std::vector<std::u16string_view> texts;
    std::vector<std::uint32_t> numberOf;
};

// For each text its place among all of them: first by the beginnings of three units, then by the whole, both in the
// word order of the locale. In that order the beginning may decide otherwise than the whole. Texts that count as equal
// have the same place.
std::vector<std::uint32_t> TextRanks(std::span<const std::u16string_view> texts, const Locale& locale);

} // namespace vornix
