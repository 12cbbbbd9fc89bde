#include "glyph_cache.h"

#include "color_scaling.h"

#include <algorithm>
#include <cmath>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

namespace vornix {

namespace {

constexpr std::size_t MostBytes = std::size_t { 4 } * 1024 * 1024;
constexpr std::size_t MostImages = std::size_t { 16 } * 1024;

bool LoadOutline(const FontFace& face, u32 glyph, int emHeight64, int phase)
{
    FT_Face file = face.Rasterizing();
    if (FT_Set_Char_Size(file, emHeight64, emHeight64, 72, 72) != 0)
        return false;
    // Light hinting moves outlines vertically only: rows stay crisp, advances stay true.
    if (FT_Load_Glyph(file, glyph, FT_LOAD_TARGET_LIGHT | FT_LOAD_NO_BITMAP) != 0
        || file->glyph->format != FT_GLYPH_FORMAT_OUTLINE)
        return false;
    FT_Outline& outline = file->glyph->outline;
    if (face.Emboldens())
        FT_Outline_EmboldenXY(&outline, emHeight64 / 24, 0);
    if (face.Slants()) {
        const FT_Matrix slant { 0x10000, 0x3333, 0, 0x10000 };
        FT_Outline_Transform(&outline, &slant);
    }
    FT_Outline_Translate(&outline, phase * 64 / GlyphCache::Phases, 0);
    return FT_Render_Glyph(file->glyph, FT_RENDER_MODE_NORMAL) == 0;
}

// The strike that is next larger than the em, else the largest.
bool SelectStrike(FT_Face file, int emHeight64)
{
    if (!FT_HAS_FIXED_SIZES(file))
        return false;
    int best = 0;
    for (int strike = 1; strike < file->num_fixed_sizes; ++strike) {
        const FT_Pos size = file->available_sizes[strike].y_ppem;
        const FT_Pos bestSize = file->available_sizes[best].y_ppem;
        const bool isCloser = bestSize < emHeight64 ? size > bestSize : size >= emHeight64 && size < bestSize;
        if (isCloser)
            best = strike;
    }
    return FT_Select_Size(file, best) == 0;
}

bool LoadPicture(const FontFace& face, u32 glyph, int emHeight64)
{
    FT_Face file = face.Rasterizing();
    return SelectStrike(file, emHeight64) && FT_Load_Glyph(file, glyph, FT_LOAD_COLOR) == 0
        && file->glyph->format == FT_GLYPH_FORMAT_BITMAP && file->glyph->bitmap.pixel_mode == FT_PIXEL_MODE_BGRA
        && file->size->metrics.y_ppem > 0;
}

} // namespace

GlyphCache::GlyphCache()
    : images_(MostBytes, MostImages)
{
}

const GlyphImage& GlyphCache::Render(
    FontFace& face, u32 glyph, int emHeight64, int phase, std::uint64_t key, std::uint64_t hash)
{
    FT_Face file = face.Rasterizing();
    if (file && face.IsColor() && LoadPicture(face, glyph, emHeight64)) {
        const FT_GlyphSlot slot = file->glyph;
        const FT_Bitmap& bitmap = slot->bitmap;
        const double scale = emHeight64 / 64.0 / file->size->metrics.y_ppem;
        const int width = std::max(1, static_cast<int>(std::lround(bitmap.width * scale)));
        const int height = std::max(1, static_cast<int>(std::lround(bitmap.rows * scale)));
        GlyphImage& image = Add(key, hash, width, height, true);
        image.left = static_cast<int>(std::lround(slot->bitmap_left * scale));
        image.top = -static_cast<int>(std::lround(slot->bitmap_top * scale));
        const ColorPixels source { bitmap.buffer, static_cast<int>(bitmap.width), static_cast<int>(bitmap.rows),
            bitmap.pitch };
        ScaleColors(source, image.Colors(), width, height);
        return image;
    }
    if (!file || !LoadOutline(face, glyph, emHeight64, phase))
        return Add(key, hash, 0, 0, false);
    const FT_GlyphSlot slot = file->glyph;
    const FT_Bitmap& bitmap = slot->bitmap;
    GlyphImage& image = Add(key, hash, static_cast<int>(bitmap.width), static_cast<int>(bitmap.rows), false);
    image.left = slot->bitmap_left;
    image.top = -slot->bitmap_top;
    for (int row = 0; row < image.height; ++row) {
        const u8* source = bitmap.buffer + static_cast<std::ptrdiff_t>(row) * bitmap.pitch;
        u8* target = image.Coverage() + static_cast<std::ptrdiff_t>(row) * image.Stride();
        std::fill(std::copy_n(source, image.width, target), target + image.Stride(), u8 { 0 });
    }
    return image;
}

GlyphImage& GlyphCache::Add(std::uint64_t key, std::uint64_t hash, int width, int height, bool isColor)
{
    GlyphImage* image = images_.Add(hash, GlyphImage::BytesFor(width, height, isColor));
    image->key = key;
    image->left = 0;
    image->top = 0;
    image->width = width;
    image->height = height;
    image->isColor = isColor;
    return *image;
}

} // namespace vornix
