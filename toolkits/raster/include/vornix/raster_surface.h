// Surfaces in memory: 32 bits a pixel, every operation exact. What a window, a file and a test show is the same
// picture.
#pragma once

#include "vornix/picture.h"
#include "vornix/platform/device.h"
#include "vornix/platform/system_colors.h"

#include <cstddef>
#include <memory>
#include <string>

namespace vornix {

// The pixels of a surface as a toolkit shows them: 0xFFRRGGBB, device pixels, rows from the top, `stride` in pixels.
struct DevicePixels {
    u32* data = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;
};

class RasterSurface : public Surface {
public:
    // A surface of `logical` pixels at `scale` device pixels each (above 0), its contents undefined. Null when memory
    // is short. Its number for hosts (Handle) is given out on the first question for it.
    static std::unique_ptr<RasterSurface> Create(Size logical, double scale, const SystemColors& colors);
    // The same on memory of DeviceSize(logical, scale) that the caller keeps alive for as long as this surface and
    // those composed on it live; `stride` in pixels.
    static std::unique_ptr<RasterSurface> Over(
        u32* pixels, std::ptrdiff_t stride, Size logical, double scale, const SystemColors& colors);
    // Device pixels that a surface of this size has.
    static Size DeviceSize(Size logical, double scale);

    virtual DevicePixels Pixels() = 0;
    // The colours of frames and check boxes from now on, also on surfaces made from this one later.
    virtual void SetSystemColors(const SystemColors& colors) = 0;
    // Writes the device pixels. Throws std::runtime_error with a line that names the file and the reason.
    virtual void SavePng(const std::string& path) const = 0;
};

// The picture in a PNG file: an icon when any of it is transparent, otherwise a bitmap. Throws std::runtime_error with
// a line that names the file and the reason.
PicturePtr LoadPng(const std::string& path);

} // namespace vornix
