#include "font_library.h"

#include <algorithm>
#include <cmath>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace vornix {

namespace {

// What a height of 0 asks for.
constexpr int DefaultEmHeight = 12;
constexpr double TallestEm = 1000;

double EmHeightOf(int height, const FaceMetrics& metrics)
{
    if (height == 0)
        return DefaultEmHeight;
    if (height < 0)
        return std::min(TallestEm, -static_cast<double>(height));
    const int cell = std::max(1, metrics.ascent + metrics.descent);
    return std::min(TallestEm, static_cast<double>(height) * metrics.unitsPerEm / cell);
}

int RoundToPixel(double value)
{
    return static_cast<int>(std::floor(value + 0.5));
}

} // namespace

Font::Font(FontFace& face, double emHeight, u32 id)
    : face_(face)
    , emHeight_(static_cast<float>(emHeight))
    , unitsToPixels_(static_cast<float>(emHeight / face.Metrics().unitsPerEm))
    , id_(id)
    , simple_(SimpleCharacters)
{
    const FaceMetrics& units = face.Metrics();
    const double scale = emHeight / units.unitsPerEm;
    metrics_.ascent = RoundToPixel(units.ascent * scale);
    metrics_.descent = RoundToPixel(units.descent * scale);
    metrics_.lineHeight = std::max(1, metrics_.ascent + metrics_.descent);
    metrics_.externalLeading = RoundToPixel(units.externalLeading * scale);
    metrics_.averageWidth = std::max(1, RoundToPixel(units.averageWidth * scale));
}

const Font::SimpleGlyph& Font::LookUpSimple(int index, char16_t unit)
{
    SimpleGlyph& glyph = simple_[static_cast<std::size_t>(index)];
    glyph.glyph = static_cast<u16>(face_.NominalGlyph(unit));
    glyph.advance = static_cast<float>(face_.Advance(glyph.glyph)) * unitsToPixels_;
    glyph.known = true;
    return glyph;
}

FontLibrary::FontLibrary()
{
    if (FT_Init_FreeType(&freeType_) != 0)
        throw std::bad_alloc();
}

FontLibrary::~FontLibrary()
{
    fonts_.clear();
    faces_.clear();
    FT_Done_FreeType(freeType_);
}

bool FontLibrary::Trim()
{
    if (fonts_.size() <= MostFonts && faces_.size() <= MostFaces)
        return false;
    fonts_.clear();
    faces_.clear();
    return true;
}

Font& FontLibrary::Resolve(const FontDescription& description)
{
    const FontStyle style { description.weight >= 600, description.italic };
    for (std::size_t place = 0; place < fonts_.size(); ++place) {
        KnownFont& known = fonts_[place];
        if (known.height != description.height || known.style != style || known.face != description.face)
            continue;
        // What is used stays in front.
        if (place > 0)
            std::swap(known, fonts_[place / 2]);
        return *fonts_[place / 2].font;
    }
    FontFace& face = Open(*MatchFont(description.face, style), style);
    auto font = std::make_unique<Font>(face, EmHeightOf(description.height, face.Metrics()), nextFont_++);
    return *fonts_.emplace_back(KnownFont { description.face, description.height, style, std::move(font) }).font;
}

FontFace& FontLibrary::Open(const FontSource& source, FontStyle style)
{
    for (const auto& face : faces_) {
        if (&face->Source() == &source && face->Style() == style)
            return *face;
    }
    const u16 id = static_cast<u16>(faces_.size());
    return *faces_.emplace_back(std::make_unique<FontFace>(freeType_, source, style, id));
}

} // namespace vornix
