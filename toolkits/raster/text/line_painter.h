// Lines in their places onto pixels.
#pragma once

#include "line_layout.h"
#include "text_engine.h"
#include "text_renderer.h"

namespace vornix {

class LinePainter : public LineSink {
public:
    // The clip is in device pixels, within the view.
    LinePainter(TextEngine& engine, Font& font, const PixelView& view, const Rect& clip, const TextColors& colors);

    // What the flags and the description add to the letters. The layout hands out the segments of lines with tabs.
    void Decorate(LineLayout& layout, const Rect& rect, u32 format, const FontDescription& description);

    bool Wants(int top, int bottom) override;
    void Take(const PlacedLine& line) override;

private:
    void DrawShaped(ShapedLine& line, int pixel, LinePhase phase, int baseline);
    void DrawStrip(const CoverageStrip& strip, int x, int y);
    void DrawGlyph(const GlyphImage& image, int x, int y);
    void DrawMark(const PlacedLine& line, float x, int baseline);
    // A horizontal stroke at a font unit height above the baseline.
    void DrawStroke(float left, float right, int baseline, int position, int thickness);
    void Fill(Rect rect, u32 color);

    TextEngine& engine_;
    Font& font_;
    const PixelView& view_;
    Rect clip_;
    u32 textColor_;
    u32 backgroundColor_;
    bool isOpaque_;
    RasterSize size_;
    LineLayout* layout_ = nullptr;
    Rect rect_;
    bool alignsRight_ = false;
    bool marksOnly_ = false;
    bool underlines_ = false;
    bool strikesOut_ = false;
};

} // namespace vornix
