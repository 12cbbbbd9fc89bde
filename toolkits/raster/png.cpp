// PNG files in and out.
#include "pixel_surface.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <png.h>

namespace vornix {

namespace {

// Larger pictures are refused before memory is asked for them.
constexpr std::size_t MaxPicturePixels = std::size_t { 1 } << 28;

[[noreturn]] void Fail(const std::string& path, const std::string& reason)
{
    throw std::runtime_error(path + ": " + reason);
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

FilePtr Open(const std::string& path, const char* mode)
{
    FilePtr file(std::fopen(path.c_str(), mode));
    if (!file)
        Fail(path, std::strerror(errno));
    return file;
}

// The library's own record of one picture in work.
class PngImage {
public:
    PngImage() { image_.version = PNG_IMAGE_VERSION; }
    ~PngImage() { png_image_free(&image_); }
    PngImage(const PngImage&) = delete;
    PngImage& operator=(const PngImage&) = delete;
    png_image& operator*() { return image_; }
    png_image* operator->() { return &image_; }

private:
    png_image image_ {};
};

std::vector<png_byte> RgbOf(const PixelView& view)
{
    std::vector<png_byte> rgb;
    rgb.reserve(static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height) * 3);
    for (int y = 0; y < view.height; ++y) {
        const u32* const row = view.Row(y);
        for (int x = 0; x < view.width; ++x) {
            rgb.push_back(static_cast<png_byte>(row[x] >> 16 & 0xFF));
            rgb.push_back(static_cast<png_byte>(row[x] >> 8 & 0xFF));
            rgb.push_back(static_cast<png_byte>(row[x] & 0xFF));
        }
    }
    return rgb;
}

bool IsTransparentAnywhere(const std::vector<u8>& rgba)
{
    for (std::size_t i = 3; i < rgba.size(); i += 4) {
        if (rgba[i] != 0xFF)
            return true;
    }
    return false;
}

} // namespace

void PixelSurface::SavePng(const std::string& path) const
{
    if (view_.width == 0 || view_.height == 0)
        Fail(path, "an empty picture cannot be written");
    const std::vector<png_byte> rgb = RgbOf(view_);
    FilePtr file = Open(path, "wb");
    PngImage image;
    image->width = static_cast<png_uint_32>(view_.width);
    image->height = static_cast<png_uint_32>(view_.height);
    image->format = PNG_FORMAT_RGB;
    if (!png_image_write_to_stdio(&*image, file.get(), 0, rgb.data(), 0, nullptr))
        Fail(path, image->message);
    // Closing writes the rest; a full disk shows only here.
    if (std::fclose(file.release()) != 0)
        Fail(path, std::strerror(errno));
}

PicturePtr LoadPng(const std::string& path)
{
    const FilePtr file = Open(path, "rb");
    PngImage image;
    if (!png_image_begin_read_from_stdio(&*image, file.get()))
        Fail(path, image->message);
    image->format = PNG_FORMAT_RGBA;
    if (std::size_t { image->width } * image->height > MaxPicturePixels)
        Fail(path, "the picture is too large");
    std::vector<u8> rgba(PNG_IMAGE_SIZE(*image));
    if (!png_image_finish_read(&*image, nullptr, rgba.data(), 0, nullptr))
        Fail(path, image->message);
    const PictureType type = IsTransparentAnywhere(rgba) ? PictureType::Icon : PictureType::Bitmap;
    return PictureObject::FromRgba(static_cast<int>(image->width), static_cast<int>(image->height), rgba, type);
}

} // namespace vornix
