#include "coverage_strip.h"

#include "blend.h"
#include "font_library.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace vornix {

const CoverageStrip* StripStore::Make(ShapedLine& line, RasterSize size, LinePhase phase)
{
    if (line.hasColor || line.glyphs > MostGlyphs || line.width * size.scale > WidestLine
        || size.emHeight64 > TallestEm64)
        return nullptr;
    // Pieces point into the glyph cache; when it dropped pictures meanwhile, all are fetched once more.
    if (!Collect(line, size, phase) && !Collect(line, size, phase))
        return nullptr;
    int left = line.glyphs > 0 ? pieces_[0].x : 0;
    int right = left;
    int top = 0;
    int bottom = 0;
    for (u32 index = 0; index < line.glyphs; ++index) {
        const Piece& piece = pieces_[index];
        left = std::min(left, piece.x);
        top = std::min(top, piece.y);
        right = std::max(right, piece.x + piece.image->width);
        bottom = std::max(bottom, piece.y + piece.image->height);
    }
    CoverageStrip* strip = Allocate(right - left, bottom - top);
    strip->left = left;
    strip->top = top;
    for (u32 index = 0; index < line.glyphs; ++index) {
        const Piece& piece = pieces_[index];
        const GlyphImage& image = *piece.image;
        for (int row = 0; row < image.height; ++row)
            AddCoverage(strip->Row(piece.y - top + row) + (piece.x - left), image.Coverage() + row * image.Stride(),
                image.Stride());
    }
    line.strip = strip;
    line.stripEpoch = epoch_;
    line.stripScale = size.scale;
    line.stripPhase = phase;
    return strip;
}

bool StripStore::Collect(const ShapedLine& line, RasterSize size, LinePhase phase)
{
    const std::size_t rotations = glyphs_.Images().Rotations();
    Piece* piece = pieces_;
    for (const ShapedGlyph& glyph : line.Glyphs()) {
        const PenPosition pen = size.PenOf(glyph, line, phase);
        const int rise = glyph.y == 0 ? 0 : static_cast<int>(std::lround(glyph.y * size.scale));
        const GlyphImage& image
            = glyphs_.Get(library_.Face(glyph.face), glyph.glyph, size.EmHeightOf(glyph), pen.phase);
        *piece++ = { &image, pen.pixel + image.left, image.top - rise };
    }
    return glyphs_.Images().Rotations() == rotations;
}

CoverageStrip* StripStore::Allocate(int width, int height)
{
    // Rows are written in steps of 8 bytes.
    const int stride = (width + 15) & ~7;
    const std::size_t bytes = static_cast<std::size_t>(stride) * height;
    if (arenas_[epoch_ & 1].Used() + bytes > MostBytes / 2) {
        ++epoch_;
        arenas_[epoch_ & 1].Reset();
    }
    auto* strip = new (arenas_[epoch_ & 1].Allocate(sizeof(CoverageStrip) + bytes)) CoverageStrip;
    strip->width = width;
    strip->height = height;
    strip->stride = stride;
    std::memset(static_cast<void*>(strip + 1), 0, bytes);
    return strip;
}

void StripStore::Clear()
{
    epoch_ += 2;
    arenas_[0].Reset();
    arenas_[1].Reset();
}

} // namespace vornix
