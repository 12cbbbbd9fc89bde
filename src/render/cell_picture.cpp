#include "render/cell_picture.h"

#include <cmath>

namespace vornix {

namespace {

int PixelsFromHiMetric(i32 length, int twipsPerPixel)
{
    constexpr double hiMetricPerInch = 2540;
    constexpr double twipsPerInch = 1440;
    return static_cast<int>(std::lrint(length * twipsPerInch / hiMetricPerInch / twipsPerPixel));
}

} // namespace

Size PicturePixelSize(const PictureObject& picture, Size twipsPerPixel)
{
    return { PixelsFromHiMetric(picture.Width(), twipsPerPixel.width),
        PixelsFromHiMetric(picture.Height(), twipsPerPixel.height) };
}

Point PicturePlace(i32 alignment, Size cell, Size picture, int gridLineWidth)
{
    Point place { 2, 2 };
    if (alignment & vxPicCenter)
        place.x = (cell.width - picture.width) / 2;
    if (alignment & vxPicRight)
        place.x = cell.width - 4 - (picture.width + gridLineWidth);
    if (alignment & vxPicVCenter)
        place.y = (cell.height - picture.height) / 2;
    if (alignment & vxPicBottom)
        place.y = cell.height - 4 - (picture.height + gridLineWidth);
    return place;
}

Surface* PictureSurfaces::SurfaceOf(const PicturePtr& picture, Device& device)
{
    for (const Entry& entry : entries_) {
        if (entry.picture == picture)
            return entry.surface.get();
    }
    if (entries_.size() == Limit)
        entries_.erase(entries_.begin());
    entries_.push_back({ picture, device.CreateFromPicture(*picture) });
    return entries_.back().surface.get();
}

} // namespace vornix
