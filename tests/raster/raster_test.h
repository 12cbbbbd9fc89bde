// What the tests of drawing share: surfaces, pictures of pixels as text, noise.
#pragma once

#include "vornix/raster_surface.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace vornix::raster_test {

inline constexpr ColorRef White = 0xFFFFFF;
inline constexpr ColorRef Black = 0x000000;
inline constexpr ColorRef Red = 0x0000FF;
inline constexpr ColorRef Green = 0x00FF00;
inline constexpr ColorRef Blue = 0xFF0000;

inline std::unique_ptr<RasterSurface> WhiteSurface(int width, int height, double scale = 1.0)
{
    std::unique_ptr<RasterSurface> surface = RasterSurface::Create({ width, height }, scale, SystemColors());
    surface->FillRect({ 0, 0, width, height }, White);
    return surface;
}

// One character a device pixel: '.' white, '#' black, 'r' 'g' 'b' the primaries, '?' any other.
inline std::string Drawn(RasterSurface& surface)
{
    const std::map<u32, char> names { { 0xFFFFFFFF, '.' }, { 0xFF000000, '#' }, { 0xFFFF0000, 'r' },
        { 0xFF00FF00, 'g' }, { 0xFF0000FF, 'b' } };
    const DevicePixels pixels = surface.Pixels();
    std::string text = "\n";
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            const auto name = names.find(pixels.data[y * pixels.stride + x]);
            text += name == names.end() ? '?' : name->second;
        }
        text += '\n';
    }
    return text;
}

inline std::vector<u32> PixelsOf(RasterSurface& surface)
{
    const DevicePixels pixels = surface.Pixels();
    std::vector<u32> copy;
    for (int y = 0; y < pixels.height; ++y)
        copy.insert(copy.end(), pixels.data + y * pixels.stride, pixels.data + y * pixels.stride + pixels.width);
    return copy;
}

inline u32 PixelAt(RasterSurface& surface, int x, int y)
{
    const DevicePixels pixels = surface.Pixels();
    return pixels.data[y * pixels.stride + x];
}

// Every device pixel a colour of its own making.
inline void FillWithNoise(RasterSurface& surface, unsigned seed)
{
    std::mt19937 random(seed);
    const DevicePixels pixels = surface.Pixels();
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x)
            pixels.data[y * pixels.stride + x] = 0xFF000000u | static_cast<u32>(random() & 0xFFFFFF);
    }
}

inline int Between(std::mt19937& random, int least, int most)
{
    return std::uniform_int_distribution<int>(least, most)(random);
}

inline PicturePtr SolidPicture(int width, int height, u8 red, u8 green, u8 blue, u8 alpha, PictureType type)
{
    std::vector<u8> rgba;
    for (int i = 0; i < width * height; ++i)
        rgba.insert(rgba.end(), { red, green, blue, alpha });
    return PictureObject::FromRgba(width, height, rgba, type);
}

} // namespace vornix::raster_test
