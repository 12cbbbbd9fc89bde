// The copies of a surface: everything with a source.
#include "blit.h"
#include "fill.h"
#include "pixel_surface.h"

#include <algorithm>
#include <utility>

namespace vornix {

namespace {

// No surface reaches farther; what a copy wants beyond is cut before sums are made.
constexpr int FarAway = 1 << 24;

const PixelSurface* InMemory(const Surface& surface)
{
    return dynamic_cast<const PixelSurface*>(&surface);
}

bool IsMirrored(const Rect& rect)
{
    return rect.right < rect.left || rect.bottom < rect.top;
}

bool IsFar(Point point)
{
    return std::min(point.x, point.y) < -FarAway || std::max(point.x, point.y) > FarAway;
}

bool LeavesSurface(const Rect& rect, Size size)
{
    return rect.left < 0 || rect.top < 0 || rect.right > size.width || rect.bottom > size.height;
}

// The pixels of a picture, to be read only.
TransferSource AsSource(const PictureObject& picture)
{
    TransferSource source;
    source.logical = { picture.PixelWidth(), picture.PixelHeight() };
    source.stored = { 0, 0, picture.PixelWidth(), picture.PixelHeight() };
    // Views write as well as read; this one is never a target.
    source.view.pixels = const_cast<u32*>(picture.Pixels().data());
    source.view.width = picture.PixelWidth();
    source.view.height = picture.PixelHeight();
    source.view.stride = picture.PixelWidth();
    return source;
}

} // namespace

PixelConversion PixelSurface::ConversionFrom(const PixelSurface& source) const
{
    PixelConversion conversion;
    if (source.kind_ == kind_)
        return conversion;
    if (kind_ == Kind::Monochrome) {
        conversion.kind = PixelConversion::Kind::ToMonochrome;
        conversion.background = PixelFromColor(source.backColor_);
        return conversion;
    }
    conversion.black = PixelFromColor(textColor_);
    conversion.white = PixelFromColor(backColor_);
    if (conversion.black != 0xFF000000u || conversion.white != 0xFFFFFFFFu)
        conversion.kind = PixelConversion::Kind::FromMonochrome;
    return conversion;
}

bool PixelSurface::CopyRect(const Rect& target, const PixelSurface& source, const Rect& sourceRect, RasterOp operation)
{
    TransferMap map = MapTransfer(view_, size_, target, source.AsSource(), sourceRect);
    return CopyWithOperation(view_, std::move(map), source.view_, ConversionFrom(source), operation);
}

bool PixelSurface::BitBlt(const Rect& target, const Surface& source, Point sourceOrigin, RasterOp operation)
{
    if (!IsKnown(operation))
        return false;
    if (!NeedsSource(operation)) {
        FillWithOperation(view_, DeviceRect(target), operation);
        return true;
    }
    const PixelSurface* const from = InMemory(source);
    if (!from)
        return false;
    if (target.IsEmpty() || IsFar(sourceOrigin) || IsFar({ target.left, target.top }))
        return true;
    const Rect near { target.left, target.top, std::min(target.right, FarAway), std::min(target.bottom, FarAway) };
    const Rect sourceRect { sourceOrigin.x, sourceOrigin.y, sourceOrigin.x + near.Width(),
        sourceOrigin.y + near.Height() };
    return CopyRect(near, *from, sourceRect, operation);
}

bool PixelSurface::StretchBlt(const Rect& target, const Surface& source, const Rect& sourceRect, RasterOp operation)
{
    if (!IsKnown(operation))
        return false;
    if (!NeedsSource(operation)) {
        const Rect upright { std::min(target.left, target.right), std::min(target.top, target.bottom),
            std::max(target.left, target.right), std::max(target.top, target.bottom) };
        FillWithOperation(view_, DeviceRect(upright), operation);
        return true;
    }
    const PixelSurface* const from = InMemory(source);
    return from && CopyRect(target, *from, sourceRect, operation);
}

bool PixelSurface::TransparentBlt(
    const Rect& target, const Surface& source, const Rect& sourceRect, ColorRef transparent)
{
    const PixelSurface* const from = InMemory(source);
    if (!from || IsMirrored(target) || IsMirrored(sourceRect))
        return false;
    TransferMap map = MapTransfer(view_, size_, target, from->AsSource(), sourceRect);
    const Rect changed = map.Target();
    const PixelConversion conversion = kind_ == Kind::Monochrome ? PixelConversion {} : ConversionFrom(*from);
    if (!CopyTransparent(view_, std::move(map), from->view_, conversion, PixelFromColor(transparent)))
        return false;
    KeepMonochrome(changed);
    return true;
}

bool PixelSurface::AlphaBlend(const Rect& target, const Surface& source, const Rect& sourceRect, u32 blendFunction)
{
    const PixelSurface* const from = InMemory(source);
    if (!from || IsMirrored(target) || IsMirrored(sourceRect) || LeavesSurface(sourceRect, from->size_))
        return false;
    TransferMap map = MapTransfer(view_, size_, target, from->AsSource(), sourceRect);
    const Rect changed = map.Target();
    const PixelConversion conversion = kind_ == Kind::Monochrome ? PixelConversion {} : ConversionFrom(*from);
    const int alpha = static_cast<int>(blendFunction >> 16 & 0xFF);
    if (!CopyBlended(view_, std::move(map), from->view_, conversion, alpha))
        return false;
    KeepMonochrome(changed);
    return true;
}

void PixelSurface::DrawIcon(int x, int y, const PictureObject& picture)
{
    if (picture.Pixels().empty() || IsFar({ x, y }))
        return;
    const TransferSource source = vornix::AsSource(picture);
    const Rect target { x, y, x + source.logical.width, y + source.logical.height };
    TransferMap map = MapTransfer(view_, size_, target, source, { 0, 0, source.logical.width, source.logical.height });
    const Rect changed = map.Target();
    if (CopyWithOwnAlpha(view_, std::move(map), source.view))
        KeepMonochrome(changed);
}

} // namespace vornix
