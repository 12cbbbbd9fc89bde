// A line of text after shaping: glyphs in their places from left to right. Flat, so that a cache can keep and move it.
#pragma once

#include "vornix/types.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vornix {

struct CoverageStrip;

// Lengths are logical pixels, so a line serves all scales.
struct ShapedGlyph {
    float x = 0;
    // Upwards from the baseline.
    float y = 0;
    float advance = 0;
    u32 glyph = 0;
    // The code unit its cluster begins at.
    u32 cluster = 0;
    u16 face = 0;
    // Of the font's em height.
    u16 percent = 100;
};

struct ShapedLine {
    std::uint64_t hash;
    u32 font;
    u32 units;
    u32 glyphs;
    float width;
    // The paragraph runs from right to left.
    bool rightToLeft;
    // One glyph a unit, in order.
    bool simple;
    bool hasColor;
    // Parts of it run from right to left.
    bool bidirectional;

    // The picture made of the line last, as long as its store still holds it.
    const CoverageStrip* strip;
    std::uint64_t stripEpoch;
    float stripScale;
    u8 stripPhase;

    static std::size_t BytesFor(std::size_t units, std::size_t glyphs)
    {
        return sizeof(ShapedLine) + glyphs * sizeof(ShapedGlyph) + units * sizeof(char16_t);
    }
    std::size_t Bytes() const { return BytesFor(units, glyphs); }

    ShapedGlyph* GlyphData() { return reinterpret_cast<ShapedGlyph*>(this + 1); }
    const ShapedGlyph* GlyphData() const { return reinterpret_cast<const ShapedGlyph*>(this + 1); }
    std::span<const ShapedGlyph> Glyphs() const { return { GlyphData(), glyphs }; }
    char16_t* TextData() { return reinterpret_cast<char16_t*>(GlyphData() + glyphs); }
    std::u16string_view Text() const { return { reinterpret_cast<const char16_t*>(GlyphData() + glyphs), units }; }
};

} // namespace vornix
