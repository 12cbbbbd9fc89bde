// A canvas to draw texts on, and a sink that keeps the lines of a layout.
#pragma once

#include "text/line_layout.h"
#include "text/text_engine.h"
#include "text/text_renderer.h"

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace vornix {

inline FontDescription TestFont(int height = -12, std::u16string face = u"DejaVu Sans")
{
    FontDescription font;
    font.face = std::move(face);
    font.height = height;
    return font;
}

// 32 bits a call, the same in every run.
class Random {
public:
    explicit Random(u32 seed)
        : engine_(seed)
    {
    }
    u32 operator()() { return static_cast<u32>(engine_()); }

private:
    std::mt19937 engine_;
};

inline constexpr u32 Black = 0xFF000000;
inline constexpr u32 White = 0xFFFFFFFF;

// White, in logical pixels.
class Canvas {
public:
    explicit Canvas(int width, int height, double scale = 1)
        : map_(scale, {})
        , width_(map_.X(width))
        , height_(map_.Y(height))
        , pixels_(static_cast<std::size_t>(width_) * height_, White)
    {
    }

    PixelView View() { return { pixels_.data(), width_, height_, width_, map_, { 0, 0, width_, height_ } }; }
    u32 At(int x, int y) const { return pixels_[static_cast<std::size_t>(y) * width_ + x]; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    const std::vector<u32>& Pixels() const { return pixels_; }

    int Draw(std::u16string_view text, Rect rect, u32 format, const FontDescription& font = TestFont(),
        const TextColors& colors = { 0, 0xFFFFFF, BackgroundMode::Transparent })
    {
        return DrawTextOnPixels(View(), text, rect, format, font, colors);
    }

    // Device pixels that are not white, as the smallest rectangle around them; empty when there are none.
    Rect Ink() const
    {
        Rect ink { width_, height_, 0, 0 };
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                if (At(x, y) == White)
                    continue;
                ink = { std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x + 1),
                    std::max(ink.bottom, y + 1) };
            }
        }
        return ink;
    }

private:
    ScaleMap map_;
    int width_;
    int height_;
    std::vector<u32> pixels_;
};

struct KeptLine {
    std::u16string text;
    int left = 0;
    int top = 0;
    int width = 0;
    int mark = -1;
};

class LineKeeper : public LineSink {
public:
    bool Wants(int, int) override { return true; }
    void Take(const PlacedLine& line) override
    {
        lines.push_back({ std::u16string(line.text), line.left, line.top, line.width, line.mark });
    }
    std::vector<KeptLine> lines;
};

inline std::vector<KeptLine> LinesOf(
    std::u16string_view text, const Rect& rect, u32 format, const FontDescription& font = TestFont())
{
    TextEngine& engine = TextEngine::OfThread();
    engine.BeginCall();
    LineLayout layout(engine, engine.Resolve(font), rect, format);
    LineKeeper keeper;
    layout.LayOut(text, keeper);
    return keeper.lines;
}

inline std::vector<std::u16string> TextsOf(
    std::u16string_view text, const Rect& rect, u32 format, const FontDescription& font = TestFont())
{
    std::vector<std::u16string> texts;
    for (const KeptLine& line : LinesOf(text, rect, format, font))
        texts.push_back(line.text);
    return texts;
}

// The rectangle DT_CALCRECT makes of one at (0, 0).
inline Rect Measured(
    std::u16string_view text, u32 format = 0, int width = 1000, const FontDescription& font = TestFont())
{
    Rect rect { 0, 0, width, 1000 };
    DrawTextOnPixels({}, text, rect, format | DT_CALCRECT, font, {});
    return rect;
}

inline int WidthOf(std::u16string_view text, const FontDescription& font = TestFont())
{
    return Measured(text, DT_SINGLELINE | DT_NOPREFIX, 1000, font).right;
}

} // namespace vornix
