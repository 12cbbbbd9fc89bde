#include "line_layout.h"
#include "line_painter.h"
#include "text_engine.h"
#include "text_renderer.h"

#include <algorithm>

namespace vornix {

namespace {

// No surface reaches this far: a rectangle that does is cut, so that no sum of its edges and a text leaves 32 bits.
constexpr int FarAway = 1 << 24;

Rect Near(const Rect& rect)
{
    const auto near = [](int edge) { return std::clamp(edge, -FarAway, FarAway); };
    return { near(rect.left), near(rect.top), near(rect.right), near(rect.bottom) };
}

class NoLines : public LineSink {
public:
    bool Wants(int, int) override { return false; }
    void Take(const PlacedLine&) override { }
};

// With DT_TABSTOP these bits are a number.
bool Measures(u32 format)
{
    return (format & DT_CALCRECT) && !(format & DT_TABSTOP);
}

int TakeExtent(LineLayout& layout, std::u16string_view text, Rect& rect)
{
    NoLines none;
    const LineLayout::Extent extent = layout.LayOut(text, none);
    rect.right = rect.left + extent.widest;
    rect.bottom = extent.bottom;
    return extent.bottom - rect.top;
}

Rect ClipFor(const PixelView& view, const Rect& rect, u32 format)
{
    // With DT_TABSTOP these bits are a number.
    if ((format & DT_NOCLIP) && !(format & DT_TABSTOP))
        return view.clip;
    const Rect device = view.map.ToDevice(rect);
    return { std::max(view.clip.left, device.left), std::max(view.clip.top, device.top),
        std::min(view.clip.right, device.right), std::min(view.clip.bottom, device.bottom) };
}

} // namespace

int DrawTextOnPixels(const PixelView& view, std::u16string_view text, Rect& rect, u32 format,
    const FontDescription& font, const TextColors& colors)
{
    TextEngine& engine = TextEngine::OfThread();
    engine.BeginCall();
    Font& resolved = engine.Resolve(font);
    rect = Near(rect);
    LineLayout layout(engine, resolved, rect, format);
    if (Measures(format))
        return TakeExtent(layout, text, rect);
    const Rect clip = ClipFor(view, rect, format);
    if (clip.IsEmpty() || !view.pixels) {
        NoLines none;
        return layout.LayOut(text, none).bottom - rect.top;
    }
    LinePainter painter(engine, resolved, view, clip, colors);
    painter.Decorate(layout, rect, format, font);
    return layout.LayOut(text, painter).bottom - rect.top;
}

int MeasureTextAside(std::u16string_view text, Rect& rect, u32 format, const FontDescription& font)
{
    TextEngine& engine = TextEngine::OfThread();
    engine.BeginCall();
    rect = Near(rect);
    LineLayout layout(engine, engine.Resolve(font), rect, format | DT_CALCRECT, TextEngine::Keep::No);
    return TakeExtent(layout, text, rect);
}

FontMetrics MeasureFont(const FontDescription& font)
{
    TextEngine& engine = TextEngine::OfThread();
    engine.BeginCall();
    return engine.Resolve(font).Metrics();
}

} // namespace vornix
