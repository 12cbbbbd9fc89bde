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

    // Whether a line that was not in the cache enters it. Lines that are only measured, by the thousands, would push out
    // those that are painted again.
    enum class Keep { No, Yes };

    // The line shaped, from the cache where it is short enough. Valid until the next call.
    ShapedLine& Line(Font& font, std::u16string_view text, bool rightToLeft, Keep keep = Keep::Yes);

    FontLibrary& Library() { return library_; }
    Shaper& Shaping() { return shaper_; }
    GlyphCache& Glyphs() { return glyphs_; }
    StripStore& Strips() { return strips_; }
    const GenerationCache<ShapedLine>& Lines() const { return lines_; }

    // Longer lines are shaped each time.
    static constexpr std::size_t LongestCachedLine = 1024;

private:
    TextEngine();

    ShapedLine& ShapeAside(Font& font, std::u16string_view text, bool rightToLeft);
    ShapedLine& Fill(ShapedLine& line, const Font& font, std::u16string_view text, bool rightToLeft);

    FontLibrary library_;
    Shaper shaper_ { library_ };
    GlyphCache glyphs_;
    StripStore strips_ { library_, glyphs_ };
    GenerationCache<ShapedLine> lines_;
    // A line that is not in the cache.
    std::vector<std::byte> aside_;
};

} // namespace vornix
