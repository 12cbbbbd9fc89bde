// Pictures in cells: their pixel size, their place, and the surfaces they are drawn from.
#pragma once

#include "vornix/picture.h"
#include "vornix/platform/device.h"

#include <memory>
#include <vector>

namespace vornix {

// In pixels, from the picture's HiMetric size.
Size PicturePixelSize(const PictureObject& picture, Size twipsPerPixel);

// Where a picture that is not stretched goes in the cell.
Point PicturePlace(i32 alignment, Size cell, Size picture, int gridLineWidth);

// Surfaces of the pictures met in one paint, so that a column of equal pictures is unpacked once.
class PictureSurfaces {
public:
    // Null when the picture has no bits.
    Surface* SurfaceOf(const PicturePtr& picture, Device& device);
    void Clear() { entries_.clear(); }

private:
    static constexpr std::size_t Limit = 16;
    struct Entry {
        PicturePtr picture;
        std::unique_ptr<Surface> surface;
    };
    std::vector<Entry> entries_;
};

} // namespace vornix
