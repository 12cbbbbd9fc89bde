// Fonts, pictures and objects: counted handles on what the control shares by reference.
#include "handles.h"
#include "png_file.h"
#include "status.h"
#include "values.h"

#include "vornix/raster_surface.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

namespace vornix::c {

namespace {

constexpr double LargestFont = 32767;

double CheckedFontSize(double points)
{
    if (!(points > 0))
        Raise(ErrorNumber::InvalidArgument, "A font needs a size above 0");
    if (points > LargestFont)
        Raise(ErrorNumber::Overflow);
    return points;
}

i16 CheckedCharset(std::int32_t charset)
{
    if (charset < 0 || charset > 255)
        Raise(ErrorNumber::InvalidArgument, "A character set is a number from 0 to 255");
    return static_cast<i16>(charset);
}

FontObject ToFont(const vornix_font_info& info)
{
    FontObject font;
    font.Name = ToText(info.name);
    font.Size = CheckedFontSize(info.size);
    font.Bold = info.bold != 0;
    font.Italic = info.italic != 0;
    font.Underline = info.underline != 0;
    font.Strikethrough = info.strikethrough != 0;
    font.Charset = CheckedCharset(info.charset);
    return font;
}

bool IsOpaque(std::span<const u8> rgba)
{
    for (std::size_t i = 3; i < rgba.size(); i += 4) {
        if (rgba[i] != 0xFF)
            return false;
    }
    return true;
}

PicturePtr LoadPicture(const char* path)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found)
        Raise(FileError::NotFound, (std::string(path) + ": no such file").c_str());
    if (error || status.type() == std::filesystem::file_type::directory || !std::ifstream(path).is_open())
        Raise(FileError::AccessFailed, (std::string(path) + ": cannot be read").c_str());
    try {
        return LoadPng(path);
    } catch (const std::runtime_error& failure) {
        Raise(FileError::InvalidPicture, failure.what());
    }
}

// What a caller gave, and gets back at the end.
struct Held {
    void* pointer = nullptr;
    void (*release)(void* pointer) = nullptr;

    Held() = default;
    ~Held()
    {
        if (release != nullptr)
            release(pointer);
    }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
};

} // namespace

void SavePng(const RasterSurface& surface, const char* path)
{
    try {
        surface.SavePng(path);
    } catch (const std::runtime_error& failure) {
        Raise(FileError::AccessFailed, failure.what());
    }
}

} // namespace vornix::c

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_font_create(const vornix_font_info* info, vornix_font** font)
{
    return Guarded([&] {
        Require(info);
        Require(font);
        auto made = std::make_unique<vornix_font>();
        made->font = std::make_shared<const FontObject>(ToFont(*info));
        *font = made.release();
    });
}

std::int32_t vornix_font_describe(const vornix_font* font, vornix_font_info* info)
{
    return Guarded([&] {
        Require(font);
        Require(info);
        const FontObject& object = *font->font;
        *info = { ViewOf(object.Name), object.Size, object.Bold, object.Italic, object.Underline, object.Strikethrough,
            object.Charset };
    });
}

void vornix_font_retain(vornix_font* font)
{
    if (font != nullptr)
        font->Retain();
}

void vornix_font_release(vornix_font* font)
{
    ReleaseHandle(font);
}

std::int32_t vornix_picture_from_rgba(
    std::int32_t width, std::int32_t height, const std::uint8_t* rgba, std::size_t length, vornix_picture** picture)
{
    return Guarded([&] {
        Require(picture);
        if (length > 0)
            Require(rgba);
        const std::span<const u8> bytes(rgba, length);
        auto made = std::make_unique<vornix_picture>();
        const PictureType type = IsOpaque(bytes) ? PictureType::Bitmap : PictureType::Icon;
        made->picture = PictureObject::FromRgba(width, height, bytes, type);
        *picture = made.release();
    });
}

std::int32_t vornix_picture_load(const char* path, vornix_picture** picture)
{
    return Guarded([&] {
        Require(path);
        Require(picture);
        auto made = std::make_unique<vornix_picture>();
        made->picture = LoadPicture(path);
        *picture = made.release();
    });
}

std::int32_t vornix_picture_describe(const vornix_picture* picture, vornix_picture_info* info)
{
    return Guarded([&] {
        Require(picture);
        Require(info);
        const PictureObject& object = *picture->picture;
        *info = { object.Handle(), static_cast<std::int32_t>(object.Type()), object.Width(), object.Height(),
            object.PixelWidth(), object.PixelHeight() };
    });
}

void vornix_picture_retain(vornix_picture* picture)
{
    if (picture != nullptr)
        picture->Retain();
}

void vornix_picture_release(vornix_picture* picture)
{
    ReleaseHandle(picture);
}

std::int32_t vornix_object_create(void* pointer, void (*release)(void* pointer), vornix_object** object)
{
    return Guarded([&] {
        Require(pointer);
        Require(object);
        auto made = std::make_unique<vornix_object>();
        // Nothing is released to the caller until all is made: a failure leaves the pointer his.
        auto holder = std::make_shared<Held>();
        made->object = ObjectPtr(holder, pointer);
        holder->pointer = pointer;
        holder->release = release;
        *object = made.release();
    });
}

void* vornix_object_pointer(const vornix_object* object)
{
    return object == nullptr ? nullptr : object->object.get();
}

void vornix_object_retain(vornix_object* object)
{
    if (object != nullptr)
        object->Retain();
}

void vornix_object_release(vornix_object* object)
{
    ReleaseHandle(object);
}
