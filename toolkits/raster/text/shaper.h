// From characters to glyphs: direction, scripts, faces, shaping. One instance a thread; its buffers are reused.
#pragma once

#include "fallback.h"
#include "font_library.h"
#include "shaped_line.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

struct hb_buffer_t;

namespace vornix {

class Shaper {
public:
    struct Result {
        std::vector<ShapedGlyph> glyphs;
        float width = 0;
        bool simple = false;
        bool hasColor = false;
        bool bidirectional = false;
    };

    explicit Shaper(FontLibrary& library);
    ~Shaper();
    Shaper(const Shaper&) = delete;
    Shaper& operator=(const Shaper&) = delete;

    // One line, without line breaks: a line feed and a tab show as spaces, other controls not at all. The result is
    // valid until the next call.
    const Result& Shape(Font& font, std::u16string_view text, bool rightToLeft);

    // The width that Shape gives a plain line, without its glyphs; nothing for any other line.
    static std::optional<float> PlainWidth(Font& font, std::u16string_view text);

    const Result& Last() const { return result_; }
    FallbackFinder& Fallback() { return fallback_; }

private:
    struct Run {
        std::size_t begin = 0;
        std::size_t end = 0;
        FontFace* face = nullptr;
        hb_script_t script {};
        u8 level = 0;
    };

    bool ShapeSimple(Font& font, std::u16string_view text);
    void Decode(std::u16string_view text);
    void FindLevels(bool rightToLeft);
    void FindScripts();
    void FindRuns(const Font& font);
    void OrderRuns();
    bool PlacePlainRun(Font& font, const Run& run);
    void ShapeRun(Font& font, const Run& run);

    FontLibrary& library_;
    FallbackFinder fallback_;
    hb_buffer_t* buffer_;
    Result result_;
    // By character of the line.
    std::vector<char32_t> codePoints_;
    std::vector<u32> units_;
    std::vector<hb_script_t> scripts_;
    std::vector<std::int8_t> levels_;
    std::vector<u32> bidiTypes_;
    std::vector<u32> bracketTypes_;
    std::vector<Run> runs_;
};

} // namespace vornix
