#include "pixel_surface.h"

#include "fill.h"
#include "lines.h"
#include "text/text_renderer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <utility>

namespace vornix {

namespace {

// Beyond this a rectangle is cut before it is mapped, so that no mapped edge leaves 32 bits.
constexpr int FarAway = 1 << 24;
constexpr std::int64_t MaxPixels = std::int64_t { 1 } << 31;

Size NotNegative(Size size)
{
    return { std::max(size.width, 0), std::max(size.height, 0) };
}

bool IsMappable(Size size, const ScaleMap& map)
{
    const double limit = 1 << 28;
    return (double { 1 } * size.width + std::abs(map.Origin().x)) * map.Scale() < limit
        && (double { 1 } * size.height + std::abs(map.Origin().y)) * map.Scale() < limit;
}

Size MappedSize(Size logical, const ScaleMap& map)
{
    return { map.X(logical.width), map.Y(logical.height) };
}

ScaleMap CheckedMap(double scale)
{
    if (!(scale > 0))
        throw std::invalid_argument("The scale of a surface must be above 0.");
    return ScaleMap(scale, {});
}

bool Contains(const Rect& outer, const Rect& inner)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right
        && inner.bottom <= outer.bottom;
}

} // namespace

std::unique_ptr<RasterSurface> RasterSurface::Create(Size logical, double scale, const SystemColors& colors)
{
    return PixelSurface::Allocate(
        logical, CheckedMap(scale), PixelSurface::Kind::Color, std::make_shared<const SystemColors>(colors));
}

std::unique_ptr<RasterSurface> RasterSurface::Over(
    u32* pixels, std::ptrdiff_t stride, Size logical, double scale, const SystemColors& colors)
{
    return std::make_unique<PixelSurface>(PixelBlock(), pixels, stride, NotNegative(logical), CheckedMap(scale),
        PixelSurface::Kind::Color, std::make_shared<const SystemColors>(colors));
}

Size RasterSurface::DeviceSize(Size logical, double scale)
{
    return MappedSize(NotNegative(logical), CheckedMap(scale));
}

PixelSurface::PixelSurface(PixelBlock block, u32* pixels, std::ptrdiff_t stride, Size logical, const ScaleMap& map,
    Kind kind, ColorsPtr colors)
    : block_(std::move(block))
    , size_(logical)
    , kind_(kind)
    , colors_(std::move(colors))
{
    const Size device = MappedSize(logical, map);
    stored_ = { 0, 0, device.width, device.height };
    view_ = { pixels, device.width, device.height, stride, map, stored_ };
}

PixelSurface::PixelSurface(
    PixelBlock block, const Rect& stored, Size logical, const ScaleMap& map, Kind kind, ColorsPtr colors)
    : PixelSurface(std::move(block), nullptr, stored.Width(), logical, map, kind, std::move(colors))
{
    stored_ = stored;
    view_.clip = stored;
    // Where pixel (0, 0) would lie. Rows and columns outside `stored` are never touched.
    const std::ptrdiff_t before = stored.top * view_.stride + stored.left;
    view_.pixels = reinterpret_cast<u32*>(
        reinterpret_cast<std::uintptr_t>(block_.Data()) - static_cast<std::uintptr_t>(before) * sizeof(u32));
}

std::unique_ptr<PixelSurface> PixelSurface::Allocate(Size logical, const ScaleMap& map, Kind kind, ColorsPtr colors)
{
    logical = NotNegative(logical);
    if (!IsMappable(logical, map))
        return nullptr;
    const Size device = MappedSize(logical, map);
    const std::int64_t count = std::int64_t { device.width } * device.height;
    if (count > MaxPixels)
        return nullptr;
    PixelBlock block = PixelBlock::Allocate(static_cast<std::size_t>(count));
    if (!block)
        return nullptr;
    u32* const pixels = block.Data();
    return std::make_unique<PixelSurface>(
        std::move(block), pixels, device.width, logical, map, kind, std::move(colors));
}

PixelSurface::~PixelSurface()
{
    if (handle_ != 0)
        UnregisterDevice(handle_);
}

Hdc PixelSurface::Handle() const
{
    // Given out late: most surfaces live for one cell, and no host ever asks for their number. The table hands the
    // device back for drawing, as if it had been registered when it was made.
    if (handle_ == 0)
        handle_ = RegisterDevice(const_cast<PixelSurface&>(*this));
    return handle_;
}

std::unique_ptr<Surface> PixelSurface::CreateCompatible(Size size, Point origin)
{
    const Point base = view_.map.Origin();
    return Allocate(size, ScaleMap(Scale(), { base.x + origin.x, base.y + origin.y }), kind_, colors_);
}

std::unique_ptr<Surface> PixelSurface::CreateMonochrome(Size size)
{
    return Allocate(size, ScaleMap(Scale(), {}), Kind::Monochrome, colors_);
}

std::unique_ptr<Surface> PixelSurface::CreateFromPicture(const PictureObject& picture)
{
    const std::span<const u32> pixels = picture.Pixels();
    if (pixels.empty())
        return nullptr;
    std::unique_ptr<PixelSurface> surface
        = Allocate({ picture.PixelWidth(), picture.PixelHeight() }, ScaleMap(), Kind::Color, colors_);
    if (surface)
        std::transform(
            pixels.begin(), pixels.end(), surface->view_.pixels, [](u32 pixel) { return pixel | 0xFF000000u; });
    return surface;
}

bool PixelSurface::OwnsAll(const Rect& rect) const
{
    return !rect.IsEmpty() && Contains({ 0, 0, size_.width, size_.height }, rect)
        && Contains(view_.clip, view_.map.ToDevice(rect));
}

std::unique_ptr<Surface> PixelSurface::ComposeAt(Point origin, Size size, const Rect& visible)
{
    if (kind_ == Kind::Monochrome || size.width > FarAway || size.height > FarAway)
        return CreateCompatible(size, origin);
    const Rect place { origin.x, origin.y, origin.x + size.width, origin.y + size.height };
    const Rect seen = Intersect(Intersect(place, visible), { 0, 0, size_.width, size_.height });
    if (seen != place && !seen.IsEmpty())
        return ComposePart(origin, size, seen);
    if (!OwnsAll(place))
        return CreateCompatible(size, origin);
    const Point base = view_.map.Origin();
    const Rect device = view_.map.ToDevice(place);
    return std::make_unique<PixelSurface>(block_, view_.Row(device.top) + device.left, view_.stride, size,
        ScaleMap(Scale(), { base.x + origin.x, base.y + origin.y }), kind_, colors_);
}

// A cell of which little is seen, such as a span over thousands of rows, needs pixels for that part alone.
std::unique_ptr<Surface> PixelSurface::ComposePart(Point origin, Size size, const Rect& seen)
{
    const Point base = view_.map.Origin();
    const ScaleMap map(Scale(), { base.x + origin.x, base.y + origin.y });
    if (!IsMappable(size, map))
        return nullptr;
    const Rect stored
        = map.ToDevice({ seen.left - origin.x, seen.top - origin.y, seen.right - origin.x, seen.bottom - origin.y });
    PixelBlock block
        = PixelBlock::Allocate(static_cast<std::size_t>(std::int64_t { stored.Width() } * stored.Height()));
    if (!block)
        return nullptr;
    return std::make_unique<PixelSurface>(std::move(block), stored, size, map, kind_, colors_);
}

bool PixelSurface::IsSamePicture(const Device& other) const
{
    const auto* const surface = dynamic_cast<const PixelSurface*>(&other);
    return surface && surface->view_.pixels == view_.pixels && surface->view_.stride == view_.stride
        && surface->size_ == size_;
}

u32 PixelSurface::PixelFor(ColorRef color) const
{
    const u32 pixel = PixelFromColor(color);
    if (kind_ == Kind::Color)
        return pixel;
    const u32 lightness = (pixel >> 16 & 0xFF) * 299 + (pixel >> 8 & 0xFF) * 587 + (pixel & 0xFF) * 114;
    return lightness >= 128 * 1000 ? 0xFFFFFFFFu : 0xFF000000u;
}

void PixelSurface::KeepMonochrome(const Rect& deviceRect)
{
    if (kind_ == Kind::Color)
        return;
    const Rect area = Intersect(deviceRect, view_.clip);
    for (int y = area.top; y < area.bottom; ++y) {
        u32* const row = view_.Row(y);
        for (int x = area.left; x < area.right; ++x)
            row[x] = PixelFor(ColorFromPixel(row[x]));
    }
}

Rect PixelSurface::DeviceRect(const Rect& rect) const
{
    return DeviceRectWithin(view_, size_, rect);
}

void PixelSurface::FillRect(const Rect& rect, ColorRef color)
{
    FillDeviceRect(view_, DeviceRect(rect), PixelFor(color));
}

void PixelSurface::FillPattern(const Rect& rect, const Surface& pattern)
{
    const auto* const surface = dynamic_cast<const PixelSurface*>(&pattern);
    if (!surface)
        return;
    const Rect area = DeviceRect(rect);
    FillDevicePattern(view_, area, surface->view_, surface->size_);
    KeepMonochrome(area);
}

void PixelSurface::FrameRect(const Rect& rect, ColorRef color)
{
    DrawFrame(GetCanvas(), rect, PixelFor(color));
}

bool PixelSurface::GradientFill(const GradientVertex& first, const GradientVertex& second, GradientDirection direction)
{
    if (direction != GradientDirection::Horizontal && direction != GradientDirection::Vertical)
        return false;
    const bool swapped = direction == GradientDirection::Horizontal ? first.x > second.x : first.y > second.y;
    const Rect corners { std::min(first.x, second.x), std::min(first.y, second.y), std::max(first.x, second.x),
        std::max(first.y, second.y) };
    const Rect near = Intersect(corners, { -FarAway, -FarAway, FarAway, FarAway });
    if (near.IsEmpty())
        return true;
    const Rect area = view_.map.ToDevice(near);
    FillDeviceGradient(view_, area, swapped ? second : first, swapped ? first : second, direction);
    KeepMonochrome(area);
    return true;
}

void PixelSurface::LineTo(int x, int y)
{
    DrawDeviceLine(view_, size_, position_, { x, y }, pen_.width, PixelFor(pen_.color));
    position_ = { x, y };
}

void PixelSurface::SetPixel(int x, int y, ColorRef color)
{
    if (x < size_.width && y < size_.height)
        FillRect({ x, y, x + 1, y + 1 }, color);
}

ColorRef PixelSurface::GetPixel(int x, int y) const
{
    if (x < 0 || y < 0 || x >= size_.width || y >= size_.height)
        return 0xFFFFFFFFu;
    const Point pixel { view_.map.X(x), view_.map.Y(y) };
    if (!Contains(stored_, { pixel.x, pixel.y, pixel.x + 1, pixel.y + 1 }))
        return 0xFFFFFFFFu;
    return ColorFromPixel(view_.Row(pixel.y)[pixel.x]);
}

void PixelSurface::DrawEdge(const Rect& rect, u32 edge, u32 sides)
{
    DrawEdges(GetCanvas(), rect, edge, sides, *colors_);
    KeepMonochrome(DeviceRect(rect));
}

void PixelSurface::DrawFrameControl(const Rect& rect, u32 kind, u32 state)
{
    constexpr u32 ButtonKindMask = 0xFF;
    if (kind != DFC_BUTTON || (state & ButtonKindMask) != DFCS_BUTTONCHECK)
        return;
    DrawCheckBox(GetCanvas(), rect, state, *colors_);
    KeepMonochrome(DeviceRect(rect));
}

void PixelSurface::DrawFocusRect(const Rect& rect)
{
    InvertFocusRect(GetCanvas(), rect);
}

int PixelSurface::DrawText(std::u16string_view text, Rect& rect, u32 format)
{
    const int height = DrawTextOnPixels(view_, text, rect, format, font_, { textColor_, backColor_, backMode_ });
    KeepMonochrome(view_.clip);
    return height;
}

int PixelSurface::MeasureText(std::u16string_view text, Rect& rect, u32 format)
{
    if (format & DT_TABSTOP)
        return DrawText(text, rect, format | DT_CALCRECT);
    return MeasureTextAside(text, rect, format, font_);
}

void PixelSurface::SetClip(const Rect* clip)
{
    view_.clip = clip ? Intersect(DeviceRect(*clip), stored_) : stored_;
}

DevicePixels PixelSurface::Pixels()
{
    return { view_.pixels, view_.width, view_.height, view_.stride };
}

void PixelSurface::SetSystemColors(const SystemColors& colors)
{
    colors_ = std::make_shared<const SystemColors>(colors);
}

} // namespace vornix
