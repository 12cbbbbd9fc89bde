// Pictures of glyphs at a size and a place within the pixel.
#pragma once

#include "font_face.h"
#include "generation_cache.h"

namespace vornix {

// Coverage of one byte a pixel in rows of a multiple of 8 bytes, or premultiplied 0xAARRGGBB pixels. `left` and `top`
// lead from the pen's pixel on the baseline to the picture's corner, rightwards and downwards.
struct GlyphImage {
    std::uint64_t hash;
    std::uint64_t key;
    int left;
    int top;
    int width;
    int height;
    bool isColor;

    static int StrideFor(int width, bool isColor) { return isColor ? width * 4 : (width + 7) & ~7; }
    static std::size_t BytesFor(int width, int height, bool isColor)
    {
        // The loops that blend may read a little beyond the last row.
        return sizeof(GlyphImage) + static_cast<std::size_t>(StrideFor(width, isColor)) * height + 8;
    }
    int Stride() const { return StrideFor(width, isColor); }
    std::size_t Bytes() const { return BytesFor(width, height, isColor); }
    u8* Coverage() { return reinterpret_cast<u8*>(this + 1); }
    const u8* Coverage() const { return reinterpret_cast<const u8*>(this + 1); }
    u32* Colors() { return reinterpret_cast<u32*>(this + 1); }
    const u32* Colors() const { return reinterpret_cast<const u32*>(this + 1); }
};

class GlyphCache {
public:
    // Places within a pixel that are told apart, horizontally.
    static constexpr int Phases = 4;

    GlyphCache();

    // The picture at an em height in 64ths of a device pixel. Valid until a later call.
    const GlyphImage& Get(FontFace& face, u32 glyph, int emHeight64, int phase)
    {
        const std::uint64_t key = static_cast<std::uint64_t>(face.Id()) << 48
            | static_cast<std::uint64_t>(glyph & 0xFFFF) << 32 | static_cast<u32>(emHeight64) << 2
            | static_cast<u32>(phase);
        const std::uint64_t hash = (key ^ key >> 32) * 0x9E3779B97F4A7C15u >> 16;
        if (const GlyphImage* image = images_.Find(hash, [key](const GlyphImage& known) { return known.key == key; }))
            return *image;
        return Render(face, glyph, emHeight64, phase, key, hash);
    }

    void Clear() { images_.Clear(); }
    const GenerationCache<GlyphImage>& Images() const { return images_; }

private:
    const GlyphImage& Render(
        FontFace& face, u32 glyph, int emHeight64, int phase, std::uint64_t key, std::uint64_t hash);
    GlyphImage& Add(std::uint64_t key, std::uint64_t hash, int width, int height, bool isColor);

    GenerationCache<GlyphImage> images_;
};

} // namespace vornix
