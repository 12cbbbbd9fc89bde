#include "vornix/picture.h"

#include "automation/checked.h"

#include <atomic>
#include <cstddef>

namespace vornix {

namespace {

constexpr int HiMetricPerInch = 2540;
constexpr int PixelsPerInch = 96;

i32 NextHandle()
{
    static std::atomic<i32> last { 0 };
    return ++last;
}

i32 HiMetric(int pixels)
{
    return static_cast<i32>((static_cast<std::int64_t>(pixels) * HiMetricPerInch + PixelsPerInch / 2) / PixelsPerInch);
}

std::size_t ByteCount(int width, int height)
{
    if (width < 0 || height < 0)
        RaiseError(ErrorNumber::InvalidArgument);
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
}

} // namespace

PictureObject::PictureObject(PictureType type, int width, int height, std::span<const u8> rgba)
    : type_(type)
    , pixelWidth_(width)
    , pixelHeight_(height)
{
    if (rgba.size() != ByteCount(width, height))
        RaiseError(ErrorNumber::InvalidArgument);
    if (rgba.empty() || type == PictureType::None) {
        *this = PictureObject();
        return;
    }
    handle_ = NextHandle();
    // A bitmap is opaque whatever its fourth channel says.
    const u32 forcedAlpha = type == PictureType::Bitmap ? 0xFF000000u : 0;
    pixels_.resize(rgba.size() / 4);
    const u8* from = rgba.data();
    for (u32& pixel : pixels_) {
        const u32 alpha = from[3];
        const u32 red = from[0];
        const u32 green = from[1];
        const u32 blue = from[2];
        pixel = alpha << 24 | red << 16 | green << 8 | blue | forcedAlpha;
        from += 4;
    }
}

PicturePtr PictureObject::FromRgba(int width, int height, std::span<const u8> rgba, PictureType type)
{
    return std::make_shared<const PictureObject>(type, width, height, rgba);
}

i32 PictureObject::Width() const
{
    return HiMetric(pixelWidth_);
}

i32 PictureObject::Height() const
{
    return HiMetric(pixelHeight_);
}

} // namespace vornix
