#include "automation/colors.h"

#include <algorithm>

namespace vornix {

namespace {

constexpr int ColorMax = 255;
constexpr int HueMax = 240;
// The hue of a gray: any value would do, this one is what the platform reports.
constexpr int GrayHue = HueMax * 2 / 3;

constexpr OleColor SystemColorMark = 0x80000000u;

int Red(ColorRef color)
{
    return static_cast<int>(color & 0xFF);
}
int Green(ColorRef color)
{
    return static_cast<int>(color >> 8 & 0xFF);
}
int Blue(ColorRef color)
{
    return static_cast<int>(color >> 16 & 0xFF);
}

ColorRef FromChannels(int red, int green, int blue)
{
    const auto channel = [](int value) { return static_cast<ColorRef>(std::clamp(value, 0, ColorMax)); };
    return channel(red) | channel(green) << 8 | channel(blue) << 16;
}

int ChannelOfHue(int low, int high, int hue)
{
    if (hue < 0)
        hue += HueMax;
    if (hue > HueMax)
        hue -= HueMax;
    if (hue < HueMax / 6)
        return low + ((high - low) * hue + HueMax / 12) / (HueMax / 6);
    if (hue < HueMax / 2)
        return high;
    if (hue < HueMax * 2 / 3)
        return low + ((high - low) * (HueMax * 2 / 3 - hue) + HueMax / 12) / (HueMax / 6);
    return low;
}

int BrightenChannel(int channel, int percent)
{
    if (percent > 0)
        return ((100 - percent) * channel + percent * ColorMax) / 100;
    return (percent + 100) * channel / 100;
}

} // namespace

ColorRef OleTranslateColor(OleColor color, const SystemColors& table)
{
    if ((color & SystemColorMark) == 0)
        return color & 0xFFFFFFu;
    const OleColor index = color & ~SystemColorMark;
    return index < table.values.size() ? table.values[index] : 0;
}

HueLumaSaturation ToHueLumaSaturation(ColorRef color)
{
    const int red = Red(color);
    const int green = Green(color);
    const int blue = Blue(color);
    const int highest = std::max({ red, green, blue });
    const int lowest = std::min({ red, green, blue });
    const int sum = highest + lowest;
    const int range = highest - lowest;

    HueLumaSaturation result;
    result.luma = (sum * HueMax + ColorMax) / (2 * ColorMax);
    if (range == 0) {
        result.hue = GrayHue;
        return result;
    }

    const int room = result.luma <= HueMax / 2 ? sum : 2 * ColorMax - sum;
    result.saturation = (range * HueMax + room / 2) / room;

    const auto distance = [&](int channel) { return ((highest - channel) * (HueMax / 6) + range / 2) / range; };
    if (red == highest)
        result.hue = distance(blue) - distance(green);
    else if (green == highest)
        result.hue = HueMax / 3 + distance(red) - distance(blue);
    else
        result.hue = 2 * HueMax / 3 + distance(green) - distance(red);
    if (result.hue < 0)
        result.hue += HueMax;
    if (result.hue > HueMax)
        result.hue -= HueMax;
    return result;
}

ColorRef FromHueLumaSaturation(const HueLumaSaturation& color)
{
    const auto [hue, luma, saturation] = color;
    if (saturation == 0) {
        const int gray = luma * ColorMax / HueMax;
        return FromChannels(gray, gray, gray);
    }

    const int high = luma <= HueMax / 2 ? (luma * (HueMax + saturation) + HueMax / 2) / HueMax
                                        : luma + saturation - (luma * saturation + HueMax / 2) / HueMax;
    const int low = 2 * luma - high;
    const auto channel
        = [&](int channelHue) { return (ChannelOfHue(low, high, channelHue) * ColorMax + HueMax / 2) / HueMax; };
    return FromChannels(channel(hue + HueMax / 3), channel(hue), channel(hue - HueMax / 3));
}

ColorRef ColorAdjustLuma(ColorRef color, int n)
{
    if (n == 0)
        return color;
    n = std::clamp(n, -1000, 1000);
    HueLumaSaturation adjusted = ToHueLumaSaturation(color);
    adjusted.luma = n > 0 ? (adjusted.luma * (1000 - n) + (HueMax + 1) * n) / 1000 : adjusted.luma * (1000 + n) / 1000;
    // A full rise ends one above the range.
    adjusted.luma = std::min(adjusted.luma, HueMax);
    return FromHueLumaSaturation(adjusted);
}

ColorRef ColorBrightness(ColorRef color, int percent)
{
    if (percent == 0)
        return color;
    percent = std::clamp(percent, -100, 100);
    return FromChannels(BrightenChannel(Red(color), percent), BrightenChannel(Green(color), percent),
        BrightenChannel(Blue(color), percent));
}

} // namespace vornix
