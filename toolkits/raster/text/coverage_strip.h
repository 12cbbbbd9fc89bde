// Whole lines as coverage, ready to be blended in one go.
#pragma once

#include "arena.h"
#include "glyph_cache.h"
#include "shaped_line.h"

#include <cmath>
#include <cstdint>

namespace vornix {

// `left` and `top` lead to the corner from the pixel on the baseline where the line begins or, AtRight, ends.
struct CoverageStrip {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int stride = 0;

    u8* Row(int row) { return reinterpret_cast<u8*>(this + 1) + static_cast<std::ptrdiff_t>(row) * stride; }
    const u8* Row(int row) const
    {
        return reinterpret_cast<const u8*>(this + 1) + static_cast<std::ptrdiff_t>(row) * stride;
    }
};

// A device pixel and the quarter of it where something begins.
struct PenPosition {
    int pixel = 0;
    int phase = 0;

    static PenPosition At(float x)
    {
        const int quarters = static_cast<int>(std::floor(x * GlyphCache::Phases + 0.5f));
        return { quarters >> 2, quarters & 3 };
    }
};

// Where a line begins within its first pixel, in quarters; or AtRight: its end is the left edge of a pixel. Then equal
// ends of lines are equal pixels, and columns of digits stand straight.
using LinePhase = u8;
inline constexpr LinePhase AtRight = GlyphCache::Phases;

// How a line is rasterised.
struct RasterSize {
    float scale = 1;
    // 64ths of a device pixel.
    int emHeight64 = 0;

    int EmHeightOf(const ShapedGlyph& glyph) const
    {
        return glyph.percent == 100 ? emHeight64 : emHeight64 * glyph.percent / 100;
    }
    // Relative to the pixel the line begins, or ends, at.
    PenPosition PenOf(const ShapedGlyph& glyph, const ShapedLine& line, LinePhase phase) const
    {
        if (phase == AtRight)
            return PenPosition::At((glyph.x - line.width) * scale);
        return PenPosition::At(static_cast<float>(phase) / GlyphCache::Phases + glyph.x * scale);
    }
};

class FontLibrary;

// Strips in memory that is used round and round: the oldest half goes when the newest is full.
class StripStore {
public:
    StripStore(FontLibrary& library, GlyphCache& glyphs)
        : library_(library)
        , glyphs_(glyphs)
    {
    }

    // The line's strip, made when there is none; null for lines that are better drawn glyph by glyph. Valid until the
    // next call.
    const CoverageStrip* Get(ShapedLine& line, RasterSize size, LinePhase phase)
    {
        const bool isHeld = line.strip && line.stripEpoch + 1 >= epoch_;
        if (isHeld && line.stripScale == size.scale && line.stripPhase == phase)
            return line.strip;
        return Make(line, size, phase);
    }

    void Clear();
    std::size_t Bytes() const { return arenas_[0].Used() + arenas_[1].Used(); }

    static constexpr std::size_t MostBytes = 8 * 1024 * 1024;

private:
    struct Piece {
        const GlyphImage* image;
        int x;
        int y;
    };
    static constexpr int MostGlyphs = 256;
    static constexpr float WidestLine = 1536;
    static constexpr int TallestEm64 = 64 * 64;

    const CoverageStrip* Make(ShapedLine& line, RasterSize size, LinePhase phase);
    bool Collect(const ShapedLine& line, RasterSize size, LinePhase phase);
    CoverageStrip* Allocate(int width, int height);

    FontLibrary& library_;
    GlyphCache& glyphs_;
    Arena arenas_[2];
    std::uint64_t epoch_ = 1;
    Piece pieces_[MostGlyphs];
};

} // namespace vornix
