#include "blend.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vornix {

namespace {

// Coverage 0..255 to 0..256, so that full coverage is the colour itself.
constexpr u32 Weight(u32 coverage)
{
    return coverage + (coverage >> 7);
}

inline u32 BlendPixel(u32 target, u32 coverage, u32 color)
{
    const u32 weight = Weight(coverage);
    const u32 redBlue = ((target & 0xFF00FFu) * (256 - weight) + (color & 0xFF00FFu) * weight) >> 8 & 0xFF00FFu;
    const u32 green = ((target & 0xFF00u) * (256 - weight) + (color & 0xFF00u) * weight) >> 8 & 0xFF00u;
    return 0xFF000000u | redBlue | green;
}

void BlendCoverageSlowly(u32* target, const u8* coverage, int count, u32 color)
{
    for (int pixel = 0; pixel < count; ++pixel) {
        if (coverage[pixel] != 0)
            target[pixel] = BlendPixel(target[pixel], coverage[pixel], color);
    }
}

} // namespace

#if defined(__SSE2__)

namespace {

// Four pixels; `weights` has four 16-bit weights in its low half.
inline __m128i BlendFour(__m128i target, __m128i weights, __m128i color16)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i full = _mm_set1_epi16(256);
    const __m128i pairs = _mm_unpacklo_epi16(weights, weights);
    const __m128i weightsLow = _mm_shuffle_epi32(pairs, _MM_SHUFFLE(1, 1, 0, 0));
    const __m128i weightsHigh = _mm_shuffle_epi32(pairs, _MM_SHUFFLE(3, 3, 2, 2));
    const __m128i low = _mm_unpacklo_epi8(target, zero);
    const __m128i high = _mm_unpackhi_epi8(target, zero);
    const __m128i lowSum
        = _mm_add_epi16(_mm_mullo_epi16(low, _mm_sub_epi16(full, weightsLow)), _mm_mullo_epi16(color16, weightsLow));
    const __m128i highSum
        = _mm_add_epi16(_mm_mullo_epi16(high, _mm_sub_epi16(full, weightsHigh)), _mm_mullo_epi16(color16, weightsHigh));
    return _mm_packus_epi16(_mm_srli_epi16(lowSum, 8), _mm_srli_epi16(highSum, 8));
}

} // namespace

void BlendCoverage(u32* target, const u8* coverage, int count, u32 color)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i color16 = _mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(color | 0xFF000000u)), zero);
    int pixel = 0;
    for (; pixel + 8 <= count; pixel += 8) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, coverage + pixel, 8);
        if (bits == 0)
            continue;
        const __m128i bytes = _mm_unpacklo_epi8(_mm_cvtsi64_si128(static_cast<long long>(bits)), zero);
        const __m128i weights = _mm_add_epi16(bytes, _mm_srli_epi16(bytes, 7));
        auto* first = reinterpret_cast<__m128i*>(target + pixel);
        auto* second = reinterpret_cast<__m128i*>(target + pixel + 4);
        if (static_cast<u32>(bits) != 0)
            _mm_storeu_si128(first, BlendFour(_mm_loadu_si128(first), weights, color16));
        if (bits >> 32 != 0)
            _mm_storeu_si128(second, BlendFour(_mm_loadu_si128(second), _mm_unpackhi_epi64(weights, weights), color16));
    }
    if (pixel + 4 <= count) {
        u32 bits = 0;
        std::memcpy(&bits, coverage + pixel, 4);
        if (bits != 0) {
            const __m128i bytes = _mm_unpacklo_epi8(_mm_cvtsi32_si128(static_cast<int>(bits)), zero);
            const __m128i weights = _mm_add_epi16(bytes, _mm_srli_epi16(bytes, 7));
            auto* first = reinterpret_cast<__m128i*>(target + pixel);
            _mm_storeu_si128(first, BlendFour(_mm_loadu_si128(first), weights, color16));
        }
        pixel += 4;
    }
    BlendCoverageSlowly(target + pixel, coverage + pixel, count - pixel, color);
}

void AddCoverage(u8* target, const u8* source, int count)
{
    for (int pixel = 0; pixel < count; pixel += 8) {
        auto* place = reinterpret_cast<__m128i*>(target + pixel);
        const auto* bytes = reinterpret_cast<const __m128i*>(source + pixel);
        _mm_storel_epi64(place, _mm_adds_epu8(_mm_loadl_epi64(place), _mm_loadl_epi64(bytes)));
    }
}

#else

void BlendCoverage(u32* target, const u8* coverage, int count, u32 color)
{
    BlendCoverageSlowly(target, coverage, count, color | 0xFF000000u);
}

void AddCoverage(u8* target, const u8* source, int count)
{
    for (int pixel = 0; pixel < count; ++pixel)
        target[pixel] = static_cast<u8>(std::min(255, target[pixel] + source[pixel]));
}

#endif

void BlendColors(u32* target, const u32* source, int count)
{
    for (int pixel = 0; pixel < count; ++pixel) {
        const u32 over = source[pixel];
        const u32 alpha = over >> 24;
        if (alpha == 0)
            continue;
        const u32 rest = 256 - Weight(alpha);
        const u32 redBlue = ((target[pixel] & 0xFF00FFu) * rest >> 8 & 0xFF00FFu) + (over & 0xFF00FFu);
        const u32 green = ((target[pixel] & 0xFF00u) * rest >> 8 & 0xFF00u) + (over & 0xFF00u);
        target[pixel] = 0xFF000000u | redBlue | green;
    }
}

} // namespace vornix
