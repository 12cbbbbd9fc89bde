// Everything one thread keeps for its texts.
#pragma once

#include "coverage_strip.h"
#include "font_library.h"
#include "generation_cache.h"
#include "glyph_cache.h"
#include "shaped_line.h"
#include "shaper.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vornix {

class TextEngine {
public:
    static TextEngine& OfThread();

    // At the start of every call from outside: makes room when too much is open.
    void BeginCall();

    Font& Resolve(const FontDescription& description) { return library_.Resolve(description); }

    // The line shaped, from the cache where it is short enough. Valid until the next call.
    ShapedLine& Line(Font& font, std::u16string_view text, bool rightToLeft);

    FontLibrary& Library() { return library_; }
    Shaper& Shaping() { return shaper_; }
    GlyphCache& Glyphs() { return glyphs_; }
    StripStore& Strips() { return strips_; }
    const GenerationCache<ShapedLine>& Lines() const { return lines_; }

    // Longer lines are shaped each time.
    static constexpr std::size_t LongestCachedLine = 1024;

private:
    TextEngine();

    ShapedLine& Fill(ShapedLine& line, const Font& font, std::u16string_view text, bool rightToLeft);

    FontLibrary library_;
    Shaper shaper_ { library_ };
    GlyphCache glyphs_;
    StripStore strips_ { library_, glyphs_ };
    GenerationCache<ShapedLine> lines_;
    // A line too long for the cache.
    std::vector<std::byte> longLine_;
};

} // namespace vornix
