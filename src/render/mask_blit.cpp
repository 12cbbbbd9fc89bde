#include "render/mask_blit.h"

#include <memory>

namespace vornix {

namespace {

// A checkerboard of black and white pixels.
std::unique_ptr<Surface> DitherPattern(Device& device)
{
    constexpr int side = 8;
    std::unique_ptr<Surface> pattern = device.CreateCompatible({ side, side });
    if (!pattern)
        return nullptr;
    pattern->FillRect({ 0, 0, side, side }, 0x000000);
    for (int y = 0; y < side; ++y) {
        for (int x = y % 2; x < side; x += 2)
            pattern->SetPixel(x, y, 0xFFFFFF);
    }
    return pattern;
}

// ANDs the dither into the mask, by way of the work surface.
void DitherMask(Surface& mask, Surface& work, const Rect& whole)
{
    const std::unique_ptr<Surface> pattern = DitherPattern(work);
    if (!pattern)
        return;
    work.FillPattern(whole, *pattern);
    mask.BitBlt(whole, work, {}, RasterOp::SrcAnd);
}

void BlitByMasks(Device& device, Point place, Size size, Surface& bitmap, ColorRef transparent, bool selected)
{
    const std::unique_ptr<Surface> mask = device.CreateMonochrome(size);
    const std::unique_ptr<Surface> work = device.CreateCompatible(size);
    if (!mask || !work)
        return;
    const Rect whole { 0, 0, size.width, size.height };
    const Rect target { place.x, place.y, place.x + size.width, place.y + size.height };
    bitmap.SetBkColor(transparent);
    mask->BitBlt(whole, bitmap, {}, RasterOp::SrcCopy);
    device.BitBlt(target, *mask, {}, RasterOp::SrcAnd);
    mask->BitBlt(whole, *mask, {}, RasterOp::DstInvert);
    if (selected)
        DitherMask(*mask, *work, whole);
    work->BitBlt(whole, bitmap, {}, RasterOp::SrcCopy);
    work->BitBlt(whole, *mask, {}, RasterOp::SrcAnd);
    device.BitBlt(target, *work, {}, RasterOp::SrcPaint);
}

} // namespace

void MaskBlit(Device& device, Point place, Size size, Surface& bitmap, ColorRef transparent, bool selected)
{
    const Rect target { place.x, place.y, place.x + size.width, place.y + size.height };
    if (device.TransparentBlt(target, bitmap, { 0, 0, size.width, size.height }, transparent))
        return;
    BlitByMasks(device, place, size, bitmap, transparent, selected);
}

} // namespace vornix
