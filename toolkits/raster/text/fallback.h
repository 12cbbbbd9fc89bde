// Which face draws a cluster: the font's own, or the best one that has its characters.
#pragma once

#include "font_library.h"

#include <hb.h>
#include <span>
#include <unordered_map>

namespace vornix {

// Faces of scripts that stack marks are made a little smaller when they stand in for another one, so that the marks
// keep within its line. In percent of the em height.
int FallbackPercent(hb_script_t script);

class FallbackFinder {
public:
    explicit FallbackFinder(FontLibrary& library)
        : library_(library)
    {
    }

    // For an ideograph the script says what it stands among (kana, hangul). Never fails: a character that no face has
    // is drawn by the font's own, as its missing-glyph box.
    FontFace& FaceFor(const Font& font, std::span<const char32_t> cluster, hb_script_t script);

    void Clear() { known_.clear(); }
    std::size_t Entries() const { return known_.size(); }

    static constexpr std::size_t MostEntries = 8192;

private:
    FontFace& Search(FontFace& primary, std::span<const char32_t> cluster, hb_script_t script, bool emoji);
    // What is preferred for a script, looked up once.
    const FontSource* PreferredSource(hb_script_t script, FontStyle style);

    FontLibrary& library_;
    // By face, script and character; clusters of several characters are searched each time their line is shaped.
    std::unordered_map<std::uint64_t, FontFace*> known_;
    std::unordered_map<std::uint64_t, const FontSource*> preferred_;
};

} // namespace vornix
