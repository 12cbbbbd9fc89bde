// Surfaces that a caller makes to have something drawn on.
#include "png_file.h"
#include "status.h"

#include "automation/colors.h"
#include "vornix/platform/system_colors.h"
#include "vornix/raster_surface.h"
#include "vornix/vornix_c.h"

#include <memory>
#include <stdexcept>

struct vornix_surface {
    vornix::SystemColors colors;
    vornix::Size size;
    std::unique_ptr<vornix::RasterSurface> pixels;
};

namespace vornix::c {

namespace {

constexpr std::int32_t LargestSide = 32767;
constexpr ColorRef White = 0xFFFFFF;

void Fill(vornix_surface& surface, ColorRef color)
{
    surface.pixels->FillRect({ 0, 0, surface.size.width, surface.size.height }, color);
}

std::unique_ptr<vornix_surface> MakeSurface(Size size, double scale)
{
    if (size.width < 1 || size.height < 1 || size.width > LargestSide || size.height > LargestSide)
        Raise(ErrorNumber::InvalidArgument, "A surface has 1 to 32767 pixels in each direction");
    if (!(scale >= 1 && scale <= 4))
        Raise(ErrorNumber::InvalidArgument, "A scale is a number from 1 to 4");
    auto made = std::make_unique<vornix_surface>();
    made->size = size;
    made->pixels = RasterSurface::Create(size, scale, made->colors);
    if (made->pixels == nullptr)
        throw std::bad_alloc();
    Fill(*made, White);
    return made;
}

} // namespace

} // namespace vornix::c

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_surface_create(std::int32_t width, std::int32_t height, double scale, vornix_surface** surface)
{
    return Guarded([&] {
        Require(surface);
        *surface = MakeSurface({ width, height }, scale).release();
    });
}

void vornix_surface_destroy(vornix_surface* surface)
{
    delete surface;
}

std::int32_t vornix_surface_hdc(const vornix_surface* surface, std::intptr_t* hdc)
{
    return Guarded([&] {
        Require(surface);
        Require(hdc);
        *hdc = surface->pixels->Handle();
    });
}

std::int32_t vornix_surface_fill(vornix_surface* surface, std::uint32_t color)
{
    return Guarded([&] {
        Require(surface);
        Fill(*surface, OleTranslateColor(color, surface->colors));
    });
}

std::int32_t vornix_surface_pixel(const vornix_surface* surface, std::int32_t x, std::int32_t y, std::uint32_t* color)
{
    return Guarded([&] {
        Require(surface);
        Require(color);
        *color = surface->pixels->GetPixel(x, y);
    });
}

std::int32_t vornix_surface_save_png(const vornix_surface* surface, const char* path)
{
    return Guarded([&] {
        Require(surface);
        Require(path);
        SavePng(*surface->pixels, path);
    });
}
