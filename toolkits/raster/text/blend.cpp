#include "blend.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <immintrin.h>
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

void BlendPixels(u32* target, const u8* coverage, int count, u32 color)
{
    for (int pixel = 0; pixel < count; ++pixel) {
        if (coverage[pixel] != 0)
            target[pixel] = BlendPixel(target[pixel], coverage[pixel], color);
    }
}

#if defined(__SSE2__)

// Channels are worked on in 16-bit halves of each pixel, two at a time: red with blue, alpha with green.
struct FourPixels {
    __m128i color;
    __m128i redBlue;
    __m128i alphaGreen;

    explicit FourPixels(u32 value)
        : color(_mm_set1_epi32(static_cast<int>(value | 0xFF000000u)))
        , redBlue(_mm_and_si128(color, _mm_set1_epi32(0x00FF00FF)))
        , alphaGreen(_mm_srli_epi16(color, 8))
    {
    }

    // `weights`: 0..256 in both halves of each pixel.
    void Blend(u32* target, __m128i weights) const
    {
        auto* place = reinterpret_cast<__m128i*>(target);
        const __m128i before = _mm_loadu_si128(place);
        const __m128i rest = _mm_sub_epi16(_mm_set1_epi16(256), weights);
        const __m128i low = _mm_mullo_epi16(_mm_and_si128(before, _mm_set1_epi32(0x00FF00FF)), rest);
        const __m128i high = _mm_mullo_epi16(_mm_srli_epi16(before, 8), rest);
        const __m128i lowSum = _mm_srli_epi16(_mm_add_epi16(low, _mm_mullo_epi16(redBlue, weights)), 8);
        const __m128i highSum = _mm_add_epi16(high, _mm_mullo_epi16(alphaGreen, weights));
        _mm_storeu_si128(place, _mm_or_si128(lowSum, _mm_andnot_si128(_mm_set1_epi32(0x00FF00FF), highSum)));
    }
};

void BlendBlock(u32* target, std::ptrdiff_t stride, const CoverageBlock& coverage, u32 color)
{
    const FourPixels four(color);
    const __m128i zero = _mm_setzero_si128();
    for (int row = 0; row < coverage.height; ++row) {
        u32* pixels = target + row * stride;
        const u8* bytes = coverage.bytes + row * coverage.stride;
        int pixel = 0;
        for (; pixel + 8 <= coverage.width; pixel += 8) {
            std::uint64_t bits = 0;
            std::memcpy(&bits, bytes + pixel, 8);
            if (bits == 0)
                continue;
            const __m128i wide = _mm_unpacklo_epi8(_mm_cvtsi64_si128(static_cast<long long>(bits)), zero);
            const __m128i weights = _mm_add_epi16(wide, _mm_srli_epi16(wide, 7));
            four.Blend(pixels + pixel, _mm_unpacklo_epi16(weights, weights));
            four.Blend(pixels + pixel + 4, _mm_unpackhi_epi16(weights, weights));
        }
        BlendPixels(pixels + pixel, bytes + pixel, coverage.width - pixel, color);
    }
}

#endif

#if defined(__SSE2__) && defined(__GNUC__)

__attribute__((target("avx2"))) inline __m256i BlendEight(
    __m256i before, std::uint64_t coverage, __m256i redBlue, __m256i alphaGreen)
{
    const __m256i mask = _mm256_set1_epi32(0x00FF00FF);
    const __m256i wide = _mm256_cvtepu8_epi32(_mm_cvtsi64_si128(static_cast<long long>(coverage)));
    const __m256i single = _mm256_add_epi32(wide, _mm256_srli_epi32(wide, 7));
    const __m256i weights = _mm256_or_si256(single, _mm256_slli_epi32(single, 16));
    const __m256i rest = _mm256_sub_epi16(_mm256_set1_epi16(256), weights);
    const __m256i low = _mm256_mullo_epi16(_mm256_and_si256(before, mask), rest);
    const __m256i high = _mm256_mullo_epi16(_mm256_srli_epi16(before, 8), rest);
    const __m256i lowSum = _mm256_srli_epi16(_mm256_add_epi16(low, _mm256_mullo_epi16(redBlue, weights)), 8);
    const __m256i highSum = _mm256_add_epi16(high, _mm256_mullo_epi16(alphaGreen, weights));
    return _mm256_or_si256(lowSum, _mm256_andnot_si256(mask, highSum));
}

__attribute__((target("avx2"))) void BlendBlockWide(
    u32* target, std::ptrdiff_t stride, const CoverageBlock& coverage, u32 color)
{
    const __m256i colors = _mm256_set1_epi32(static_cast<int>(color | 0xFF000000u));
    const __m256i redBlue = _mm256_and_si256(colors, _mm256_set1_epi32(0x00FF00FF));
    const __m256i alphaGreen = _mm256_srli_epi16(colors, 8);
    const int whole = coverage.width & ~7;
    const int rest = coverage.width & 7;
    const std::uint64_t restBits = (std::uint64_t { 1 } << 8 * rest) - 1;
    const __m256i lanes = _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7);
    const __m256i written = _mm256_cmpgt_epi32(_mm256_set1_epi32(rest), lanes);
    for (int row = 0; row < coverage.height; ++row) {
        u32* pixels = target + row * stride;
        const u8* bytes = coverage.bytes + row * coverage.stride;
        for (int pixel = 0; pixel < whole; pixel += 8) {
            std::uint64_t bits = 0;
            std::memcpy(&bits, bytes + pixel, 8);
            if (bits == 0)
                continue;
            auto* place = reinterpret_cast<__m256i*>(pixels + pixel);
            _mm256_storeu_si256(place, BlendEight(_mm256_loadu_si256(place), bits, redBlue, alphaGreen));
        }
        std::uint64_t bits = 0;
        std::memcpy(&bits, bytes + whole, 8);
        bits &= restBits;
        if (bits == 0)
            continue;
        auto* place = reinterpret_cast<int*>(pixels + whole);
        const __m256i before = _mm256_maskload_epi32(place, written);
        _mm256_maskstore_epi32(place, written, BlendEight(before, bits, redBlue, alphaGreen));
    }
}

using BlendFunctionPointer = void (*)(u32*, std::ptrdiff_t, const CoverageBlock&, u32);

BlendFunctionPointer ChooseBlend()
{
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") ? BlendBlockWide : BlendBlock;
}

const BlendFunctionPointer blendBlock = ChooseBlend();

#endif

} // namespace

void BlendCoverage(u32* target, std::ptrdiff_t stride, const CoverageBlock& coverage, u32 color)
{
#if defined(__SSE2__) && defined(__GNUC__)
    blendBlock(target, stride, coverage, color);
#elif defined(__SSE2__)
    BlendBlock(target, stride, coverage, color);
#else
    for (int row = 0; row < coverage.height; ++row)
        BlendPixels(target + row * stride, coverage.bytes + row * coverage.stride, coverage.width, color);
#endif
}

void AddCoverage(u8* target, const u8* source, int count)
{
#if defined(__SSE2__)
    for (int pixel = 0; pixel < count; pixel += 8) {
        auto* place = reinterpret_cast<__m128i*>(target + pixel);
        const auto* bytes = reinterpret_cast<const __m128i*>(source + pixel);
        _mm_storel_epi64(place, _mm_adds_epu8(_mm_loadl_epi64(place), _mm_loadl_epi64(bytes)));
    }
#else
    for (int pixel = 0; pixel < count; ++pixel)
        target[pixel] = static_cast<u8>(std::min(255, target[pixel] + source[pixel]));
#endif
}

void BlendColors(u32* target, const u32* source, int count)
{
    int pixel = 0;
#if defined(__SSE2__)
    const __m128i mask = _mm_set1_epi32(0x00FF00FF);
    for (; pixel + 4 <= count; pixel += 4) {
        auto* place = reinterpret_cast<__m128i*>(target + pixel);
        const __m128i before = _mm_loadu_si128(place);
        const __m128i over = _mm_loadu_si128(reinterpret_cast<const __m128i*>(source + pixel));
        const __m128i alpha = _mm_srli_epi32(over, 24);
        const __m128i rest = _mm_sub_epi32(_mm_sub_epi32(_mm_set1_epi32(256), alpha), _mm_srli_epi32(alpha, 7));
        const __m128i weights = _mm_or_si128(rest, _mm_slli_epi32(rest, 16));
        const __m128i low = _mm_srli_epi16(_mm_mullo_epi16(_mm_and_si128(before, mask), weights), 8);
        const __m128i high = _mm_andnot_si128(mask, _mm_mullo_epi16(_mm_srli_epi16(before, 8), weights));
        const __m128i sum = _mm_adds_epu8(_mm_or_si128(low, high), over);
        _mm_storeu_si128(place, _mm_or_si128(sum, _mm_set1_epi32(static_cast<int>(0xFF000000u))));
    }
#endif
    for (; pixel < count; ++pixel) {
        const u32 over = source[pixel];
        const u32 rest = 256 - Weight(over >> 24);
        const u32 redBlue = ((target[pixel] & 0xFF00FFu) * rest >> 8 & 0xFF00FFu) + (over & 0xFF00FFu);
        const u32 green = ((target[pixel] & 0xFF00u) * rest >> 8 & 0xFF00u) + (over & 0xFF00u);
        target[pixel] = 0xFF000000u | redBlue | green;
    }
}

} // namespace vornix
