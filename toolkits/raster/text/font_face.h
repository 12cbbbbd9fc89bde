// One face of a font file, open for shaping and rasterising, in font units. Belongs to one thread.
#pragma once

#include "font_match.h"

#include <array>
#include <memory>
#include <vector>

struct FT_LibraryRec_;
struct FT_FaceRec_;
struct hb_font_t;
struct hb_buffer_t;

namespace vornix {

// All in font units; what lies below the baseline counts positive in `descent` and negative elsewhere.
struct FaceMetrics {
    int unitsPerEm = 1000;
    int ascent = 900;
    int descent = 250;
    int externalLeading = 0;
    int averageWidth = 500;
    int underlinePosition = -100;
    int underlineThickness = 50;
    int strikeOutPosition = 300;
    int strikeOutThickness = 50;
};

class FontFace {
public:
    // A style the file does not have is made up: the outlines are emboldened or slanted.
    FontFace(FT_LibraryRec_* library, const FontSource& source, FontStyle style, u16 id);
    ~FontFace();
    FontFace(const FontFace&) = delete;
    FontFace& operator=(const FontFace&) = delete;

    // Places in the tables of this thread's library; glyph images are kept under it.
    u16 Id() const { return id_; }
    const FontSource& Source() const { return source_; }
    FontStyle Style() const { return style_; }
    const FaceMetrics& Metrics() const { return metrics_; }
    bool IsColor() const { return source_.color; }
    bool Emboldens() const { return style_.bold && !source_.bold && !source_.color; }
    bool Slants() const { return style_.italic && !source_.italic && !source_.color; }

    // Null when the file could not be opened.
    hb_font_t* Shaping() const { return shaping_; }
    FT_FaceRec_* Rasterizing() const { return rasterizing_; }

    // 0 when the face has none.
    u32 NominalGlyph(char32_t codePoint) const;
    int Advance(u32 glyph) const;
    // What emboldening adds to an advance.
    int ExtraAdvance() const { return Emboldens() ? metrics_.unitsPerEm / 32 : 0; }
    // How far the second of two plain characters moves; learned from the shaping of the pair.
    int Kerning(char16_t first, char16_t second)
    {
        const unsigned from = static_cast<unsigned>(first) - FirstKerned;
        const unsigned to = static_cast<unsigned>(second) - FirstKerned;
        if (from >= KernedCharacters || to >= KernedCharacters)
            return KerningOfOthers(first, second);
        const i16 kerning = asciiKerning_[from * KernedCharacters + to];
        return kerning == UnknownKerning ? LearnAsciiKerning(first, second) : kerning;
    }

private:
    // Printable ASCII but the space.
    static constexpr unsigned FirstKerned = 0x21;
    static constexpr unsigned KernedCharacters = 0x7F - FirstKerned;
    static constexpr i16 UnknownKerning = -32768;

    struct Pair {
        u32 characters = 0;
        i16 kerning = 0;
    };

    void ReadMetrics();
    int KerningOfOthers(char16_t first, char16_t second);
    int LearnAsciiKerning(char16_t first, char16_t second);
    i16 ShapePair(char16_t first, char16_t second);

    const FontSource& source_;
    FontStyle style_;
    u16 id_;
    FaceMetrics metrics_;
    FT_FaceRec_* rasterizing_ = nullptr;
    hb_font_t* shaping_ = nullptr;
    hb_buffer_t* pairBuffer_ = nullptr;
    // By index, and other pairs by a hash that forgets.
    std::vector<i16> asciiKerning_;
    std::vector<Pair> otherKerning_;
};

} // namespace vornix
