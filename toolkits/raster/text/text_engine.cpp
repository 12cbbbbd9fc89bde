#include "text_engine.h"

#include <cstring>

namespace vornix {

namespace {

constexpr std::size_t MostLineBytes = 4 * 1024 * 1024;
constexpr std::size_t MostLines = 32 * 1024;

std::uint64_t Mix(std::uint64_t value)
{
    value *= 0x9E3779B97F4A7C15u;
    return value ^ value >> 29;
}

std::uint64_t HashLine(u32 font, std::u16string_view text, bool rightToLeft)
{
    std::uint64_t hash = Mix((static_cast<std::uint64_t>(font) << 33 | text.size() << 1) + (rightToLeft ? 1 : 0));
    std::size_t unit = 0;
    for (; unit + 4 <= text.size(); unit += 4) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, text.data() + unit, sizeof bits);
        hash = Mix(hash ^ bits);
    }
    std::uint64_t rest = 0;
    for (; unit < text.size(); ++unit)
        rest = rest << 16 | text[unit];
    hash = Mix(hash ^ rest);
    return hash ^ hash >> 32;
}

} // namespace

TextEngine& TextEngine::OfThread()
{
    thread_local TextEngine engine;
    return engine;
}

TextEngine::TextEngine()
    : lines_(MostLineBytes, MostLines)
{
}

void TextEngine::BeginCall()
{
    if (!library_.Trim())
        return;
    shaper_.Fallback().Clear();
    glyphs_.Clear();
    strips_.Clear();
    lines_.Clear();
}

ShapedLine& TextEngine::Line(Font& font, std::u16string_view text, bool rightToLeft, Keep keep)
{
    if (text.size() > LongestCachedLine)
        return ShapeAside(font, text, rightToLeft);
    const std::uint64_t hash = HashLine(font.Id(), text, rightToLeft);
    ShapedLine* known = lines_.Find(hash, [&](const ShapedLine& line) {
        return line.font == font.Id() && line.rightToLeft == rightToLeft && line.Text() == text;
    });
    if (known)
        return *known;
    if (keep == Keep::No)
        return ShapeAside(font, text, rightToLeft);
    const Shaper::Result& shaped = shaper_.Shape(font, text, rightToLeft);
    ShapedLine* line = lines_.Add(hash, ShapedLine::BytesFor(text.size(), shaped.glyphs.size()));
    return Fill(*line, font, text, rightToLeft);
}

ShapedLine& TextEngine::ShapeAside(Font& font, std::u16string_view text, bool rightToLeft)
{
    const Shaper::Result& shaped = shaper_.Shape(font, text, rightToLeft);
    aside_.resize(ShapedLine::BytesFor(text.size(), shaped.glyphs.size()));
    return Fill(*new (aside_.data()) ShapedLine, font, text, rightToLeft);
}

ShapedLine& TextEngine::Fill(ShapedLine& line, const Font& font, std::u16string_view text, bool rightToLeft)
{
    const Shaper::Result& shaped = shaper_.Last();
    line.font = font.Id();
    line.units = static_cast<u32>(text.size());
    line.glyphs = static_cast<u32>(shaped.glyphs.size());
    line.width = shaped.width;
    line.rightToLeft = rightToLeft;
    line.simple = shaped.simple;
    line.hasColor = shaped.hasColor;
    line.bidirectional = shaped.bidirectional;
    line.strip = nullptr;
    line.stripEpoch = 0;
    if (!shaped.glyphs.empty())
        std::memcpy(line.GlyphData(), shaped.glyphs.data(), shaped.glyphs.size() * sizeof(ShapedGlyph));
    if (!text.empty())
        std::memcpy(line.TextData(), text.data(), text.size() * sizeof(char16_t));
    return line;
}

} // namespace vornix
