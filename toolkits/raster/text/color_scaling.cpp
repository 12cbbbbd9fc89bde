#include "color_scaling.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vornix {

namespace {

struct Tap {
    int place = 0;
    float weight = 0;
};

// Which source lines make one target line, weights summing to 1: a triangle at least two source lines wide.
std::vector<Tap> TapsFor(int target, int targetSize, int sourceSize)
{
    const float ratio = static_cast<float>(sourceSize) / static_cast<float>(targetSize);
    const float center = (static_cast<float>(target) + 0.5f) * ratio - 0.5f;
    const float reach = std::max(1.0f, ratio * 0.75f);
    std::vector<Tap> taps;
    float sum = 0;
    const int first = static_cast<int>(std::ceil(center - reach));
    const int last = static_cast<int>(std::floor(center + reach));
    for (int place = first; place <= last; ++place) {
        const float weight = reach - std::abs(static_cast<float>(place) - center);
        if (weight <= 0)
            continue;
        taps.push_back({ std::clamp(place, 0, sourceSize - 1), weight });
        sum += weight;
    }
    for (Tap& tap : taps)
        tap.weight /= sum;
    return taps;
}

u32 Pack(const float* channels)
{
    const auto byte = [](float value) { return static_cast<u32>(std::clamp(value + 0.5f, 0.0f, 255.0f)); };
    return byte(channels[3]) << 24 | byte(channels[2]) << 16 | byte(channels[1]) << 8 | byte(channels[0]);
}

} // namespace

void ScaleColors(const ColorPixels& source, u32* target, int width, int height)
{
    // First every source row to the target's width, then the columns.
    std::vector<float> rows(static_cast<std::size_t>(source.height) * width * 4);
    for (int x = 0; x < width; ++x) {
        const std::vector<Tap> taps = TapsFor(x, width, source.width);
        for (int y = 0; y < source.height; ++y) {
            const u8* row = source.bytes + y * source.pitch;
            float* sum = &rows[(static_cast<std::size_t>(y) * width + x) * 4];
            for (const Tap& tap : taps) {
                for (int channel = 0; channel < 4; ++channel)
                    sum[channel] += tap.weight * static_cast<float>(row[tap.place * 4 + channel]);
            }
        }
    }
    for (int y = 0; y < height; ++y) {
        const std::vector<Tap> taps = TapsFor(y, height, source.height);
        for (int x = 0; x < width; ++x) {
            float sum[4] = {};
            for (const Tap& tap : taps) {
                for (int channel = 0; channel < 4; ++channel)
                    sum[channel] += tap.weight * rows[(static_cast<std::size_t>(tap.place) * width + x) * 4 + channel];
            }
            target[y * width + x] = Pack(sum);
        }
    }
}

} // namespace vornix
