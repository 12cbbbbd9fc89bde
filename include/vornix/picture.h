// Pictures that cells and the control's background show.
#pragma once

#include "vornix/types.h"

#include <span>
#include <vector>

namespace vornix {

enum class PictureType : i16 { None = 0, Bitmap = 1, Icon = 3 };

// An immutable picture, shared by reference. A bitmap is opaque; an icon has transparency of its own.
class PictureObject {
public:
    // The empty picture: handle 0.
    PictureObject() = default;
    // `rgba` holds width * height * 4 bytes, straight alpha, rows from the top. Error 5 for other lengths.
    PictureObject(PictureType type, int width, int height, std::span<const u8> rgba);

    static PicturePtr FromRgba(int width, int height, std::span<const u8> rgba, PictureType type = PictureType::Bitmap);

    // Not 0 for a picture with bits; each has its own.
    i32 Handle() const { return handle_; }
    PictureType Type() const { return type_; }
    // In HiMetric (hundredths of a millimetre), 96 pixels an inch.
    i32 Width() const;
    i32 Height() const;
    int PixelWidth() const { return pixelWidth_; }
    int PixelHeight() const { return pixelHeight_; }
    // 0xAARRGGBB, straight alpha, rows from the top.
    std::span<const u32> Pixels() const { return pixels_; }

private:
    PictureType type_ = PictureType::None;
    i32 handle_ = 0;
    int pixelWidth_ = 0;
    int pixelHeight_ = 0;
    std::vector<u32> pixels_;
};

} // namespace vornix
