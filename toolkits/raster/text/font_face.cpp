#include "font_face.h"

#include <algorithm>
#include <hb-ot.h>
#include <hb.h>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

namespace vornix {

namespace {

constexpr std::size_t OtherPairs = 4096;

} // namespace

FontFace::FontFace(FT_LibraryRec_* library, const FontSource& source, FontStyle style, u16 id)
    : source_(source)
    , style_(style)
    , id_(id)
    , asciiKerning_(KernedCharacters * KernedCharacters, UnknownKerning)
{
    if (source.path.empty())
        return;
    hb_blob_t* blob = hb_blob_create_from_file_or_fail(source.path.c_str());
    if (!blob)
        return;
    hb_face_t* face = hb_face_create(blob, static_cast<unsigned>(source.index & 0xFFFF));
    shaping_ = hb_font_create(face);
    unsigned length = 0;
    const char* data = hb_blob_get_data(blob, &length);
    if (FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(data), static_cast<FT_Long>(length),
            source.index & 0xFFFF, &rasterizing_)
        != 0) {
        rasterizing_ = nullptr;
        hb_font_destroy(shaping_);
        shaping_ = nullptr;
    }
    // The shaping font keeps both alive, and with them the bytes the rasterising face reads.
    hb_face_destroy(face);
    hb_blob_destroy(blob);
    if (shaping_)
        ReadMetrics();
}

FontFace::~FontFace()
{
    if (rasterizing_)
        FT_Done_Face(rasterizing_);
    if (shaping_)
        hb_font_destroy(shaping_);
    if (pairBuffer_)
        hb_buffer_destroy(pairBuffer_);
}

void FontFace::ReadMetrics()
{
    metrics_.unitsPerEm = static_cast<int>(std::max(1u, hb_face_get_upem(hb_font_get_face(shaping_))));
    hb_font_set_scale(shaping_, metrics_.unitsPerEm, metrics_.unitsPerEm);
    const int em = metrics_.unitsPerEm;
    metrics_.averageWidth = em / 2;
    metrics_.underlinePosition = -em / 10;
    metrics_.underlineThickness = em / 20;
    metrics_.strikeOutPosition = em * 3 / 10;
    metrics_.strikeOutThickness = em / 20;
    metrics_.ascent = em * 9 / 10;
    metrics_.descent = em / 4;
    if (rasterizing_->ascender > 0) {
        metrics_.ascent = rasterizing_->ascender;
        metrics_.descent = -rasterizing_->descender;
    }
    if (rasterizing_->underline_thickness > 0) {
        // FreeType gives the middle of the line.
        metrics_.underlinePosition = rasterizing_->underline_position + rasterizing_->underline_thickness / 2;
        metrics_.underlineThickness = rasterizing_->underline_thickness;
    }
    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(rasterizing_, FT_SFNT_OS2));
    if (!os2 || os2->version == 0xFFFF)
        return;
    const auto* horizontal = static_cast<const TT_HoriHeader*>(FT_Get_Sfnt_Table(rasterizing_, FT_SFNT_HHEA));
    if (os2->usWinAscent + os2->usWinDescent > 0) {
        metrics_.ascent = os2->usWinAscent;
        metrics_.descent = os2->usWinDescent;
    }
    if (horizontal) {
        const int height = horizontal->Ascender - horizontal->Descender;
        metrics_.externalLeading = std::max(0, horizontal->Line_Gap - (metrics_.ascent + metrics_.descent - height));
    }
    if (os2->xAvgCharWidth > 0)
        metrics_.averageWidth = os2->xAvgCharWidth;
    if (os2->yStrikeoutSize > 0) {
        metrics_.strikeOutPosition = os2->yStrikeoutPosition;
        metrics_.strikeOutThickness = os2->yStrikeoutSize;
    }
}

u32 FontFace::NominalGlyph(char32_t codePoint) const
{
    hb_codepoint_t glyph = 0;
    if (!shaping_ || !hb_font_get_nominal_glyph(shaping_, codePoint, &glyph))
        return 0;
    return glyph;
}

int FontFace::Advance(u32 glyph) const
{
    return shaping_ ? hb_font_get_glyph_h_advance(shaping_, glyph) + ExtraAdvance() : metrics_.unitsPerEm * 6 / 10;
}

int FontFace::LearnAsciiKerning(char16_t first, char16_t second)
{
    const i16 kerning = ShapePair(first, second);
    asciiKerning_[(first - FirstKerned) * KernedCharacters + (second - FirstKerned)] = kerning;
    return kerning;
}

int FontFace::KerningOfOthers(char16_t first, char16_t second)
{
    if (first == u' ' || second == u' ')
        return 0;
    if (otherKerning_.empty())
        otherKerning_.resize(OtherPairs);
    const u32 characters = static_cast<u32>(first) << 16 | second;
    Pair& pair = otherKerning_[(characters * 0x9E3779B1u) >> 20];
    if (pair.characters != characters)
        pair = { characters, ShapePair(first, second) };
    return pair.kerning;
}

i16 FontFace::ShapePair(char16_t first, char16_t second)
{
    if (!shaping_)
        return 0;
    if (!pairBuffer_)
        pairBuffer_ = hb_buffer_create();
    static const hb_feature_t noLigatures[]
        = { { HB_TAG('l', 'i', 'g', 'a'), 0, 0, ~0u }, { HB_TAG('c', 'l', 'i', 'g'), 0, 0, ~0u } };
    const u16 units[] = { first, second };
    hb_buffer_reset(pairBuffer_);
    hb_buffer_add_utf16(pairBuffer_, units, 2, 0, 2);
    hb_buffer_guess_segment_properties(pairBuffer_);
    hb_shape(shaping_, pairBuffer_, noLigatures, 2);
    unsigned count = 0;
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(pairBuffer_, &count);
    if (count != 2)
        return 0;
    const int plain = hb_font_get_glyph_h_advance(shaping_, NominalGlyph(first));
    return static_cast<i16>(std::clamp(positions[0].x_advance - plain, -32000, 32000));
}

} // namespace vornix
