#include "line_painter.h"

#include "blend.h"

#include <algorithm>
#include <cmath>

namespace vornix {

namespace {

Rect Intersect(const Rect& first, const Rect& second)
{
    return { std::max(first.left, second.left), std::max(first.top, second.top), std::min(first.right, second.right),
        std::min(first.bottom, second.bottom) };
}

} // namespace

LinePainter::LinePainter(
    TextEngine& engine, Font& font, const PixelView& view, const Rect& clip, const TextColors& colors)
    : engine_(engine)
    , font_(font)
    , view_(view)
    , clip_(clip)
    , textColor_(PixelFromColor(colors.text))
    , backgroundColor_(PixelFromColor(colors.background))
    , isOpaque_(colors.mode == BackgroundMode::Opaque)
{
    size_.scale = static_cast<float>(view.map.Scale());
    const long em = std::lround(font.EmHeight() * size_.scale * 64);
    size_.emHeight64 = static_cast<int>(std::clamp(em, 1l, 4096l * 64));
}

void LinePainter::Decorate(LineLayout& layout, const Rect& rect, u32 format, const FontDescription& description)
{
    layout_ = &layout;
    rect_ = rect;
    alignsRight_ = (format & DT_RIGHT) && !(format & DT_CENTER);
    marksOnly_ = format & DT_PREFIXONLY;
    underlines_ = description.underline;
    strikesOut_ = description.strikeOut;
}

bool LinePainter::Wants(int top, int bottom)
{
    // Accents and letters of other faces may reach beyond the line.
    const int reach = bottom - top;
    return view_.map.Y(bottom + reach) > clip_.top && view_.map.Y(top - reach) < clip_.bottom;
}

void LinePainter::Take(const PlacedLine& line)
{
    if (isOpaque_)
        Fill(view_.map.ToDevice({ line.left, line.top, line.left + line.width, line.top + font_.Metrics().lineHeight }),
            backgroundColor_);
    const int baseline = view_.map.Y(line.top + font_.Metrics().ascent);
    const float width = line.exactWidth * size_.scale;
    const int edge = view_.map.X(alignsRight_ ? rect_.right : line.left);
    const float x = static_cast<float>(edge) - (alignsRight_ ? width : 0);
    if (!marksOnly_) {
        if (line.shaped) {
            DrawShaped(*line.shaped, edge, alignsRight_ ? AtRight : LinePhase { 0 }, baseline);
        } else {
            layout_->ForEachSegment(line.text, [&](ShapedLine& segment, float place) {
                const float from = layout_->RightToLeft() ? line.exactWidth - place - segment.width : place;
                const PenPosition pen = PenPosition::At(x + from * size_.scale);
                DrawShaped(segment, pen.pixel, static_cast<LinePhase>(pen.phase), baseline);
            });
        }
        const FaceMetrics& metrics = font_.Face().Metrics();
        if (underlines_)
            DrawStroke(x, x + width, baseline, metrics.underlinePosition, metrics.underlineThickness);
        if (strikesOut_)
            DrawStroke(x, x + width, baseline, metrics.strikeOutPosition, metrics.strikeOutThickness);
    }
    if (line.mark >= 0)
        DrawMark(line, x, baseline);
}

void LinePainter::DrawShaped(ShapedLine& line, int pixel, LinePhase phase, int baseline)
{
    if (const CoverageStrip* strip = engine_.Strips().Get(line, size_, phase)) {
        DrawStrip(*strip, pixel + strip->left, baseline + strip->top);
        return;
    }
    for (const ShapedGlyph& glyph : line.Glyphs()) {
        const PenPosition pen = size_.PenOf(glyph, line, phase);
        // A glyph reaches at most a few ems from its pen.
        const int left = pixel + pen.pixel;
        const int reach = size_.emHeight64 / 16;
        if (left - reach > clip_.right || left + reach < clip_.left)
            continue;
        const int rise = static_cast<int>(std::lround(glyph.y * size_.scale));
        FontFace& face = engine_.Library().Face(glyph.face);
        const GlyphImage& image
            = engine_.Glyphs().Get(face, glyph.glyph, size_.EmHeightOf(glyph), face.IsColor() ? 0 : pen.phase);
        DrawGlyph(image, left + image.left, baseline - rise + image.top);
    }
}

void LinePainter::DrawStrip(const CoverageStrip& strip, int x, int y)
{
    const Rect shown = Intersect(clip_, { x, y, x + strip.width, y + strip.height });
    if (shown.IsEmpty())
        return;
    const CoverageBlock block { strip.Row(shown.top - y) + (shown.left - x), strip.stride, shown.Width(),
        shown.Height() };
    BlendCoverage(view_.Row(shown.top) + shown.left, view_.stride, block, textColor_);
}

void LinePainter::DrawGlyph(const GlyphImage& image, int x, int y)
{
    const Rect shown = Intersect(clip_, { x, y, x + image.width, y + image.height });
    if (shown.IsEmpty())
        return;
    const std::ptrdiff_t firstRow = shown.top - y;
    if (!image.isColor) {
        const CoverageBlock block { image.Coverage() + firstRow * image.Stride() + (shown.left - x), image.Stride(),
            shown.Width(), shown.Height() };
        BlendCoverage(view_.Row(shown.top) + shown.left, view_.stride, block, textColor_);
        return;
    }
    const u32* colors = image.Colors() + firstRow * image.width + (shown.left - x);
    for (int row = shown.top; row < shown.bottom; ++row, colors += image.width)
        BlendColors(view_.Row(row) + shown.left, colors, shown.Width());
}

void LinePainter::DrawMark(const PlacedLine& line, float x, int baseline)
{
    const FaceMetrics& metrics = font_.Face().Metrics();
    const auto underline = [&](const ShapedLine& shaped, float place, int mark) {
        for (const ShapedGlyph& glyph : shaped.Glyphs()) {
            if (static_cast<int>(glyph.cluster) != mark || glyph.advance <= 0)
                continue;
            const float left = x + (place + glyph.x) * size_.scale;
            DrawStroke(left, left + glyph.advance * size_.scale, baseline, metrics.underlinePosition,
                metrics.underlineThickness);
        }
    };
    if (line.shaped) {
        underline(*line.shaped, 0, line.mark);
        return;
    }
    int before = 0;
    layout_->ForEachSegment(line.text, [&](const ShapedLine& segment, float place) {
        const float from = layout_->RightToLeft() ? line.exactWidth - place - segment.width : place;
        underline(segment, from, line.mark - before);
        before += static_cast<int>(segment.units) + 1;
    });
}

void LinePainter::DrawStroke(float left, float right, int baseline, int position, int thickness)
{
    const float unit = font_.EmHeight() * size_.scale / static_cast<float>(font_.Face().Metrics().unitsPerEm);
    const int rows = std::max(1, static_cast<int>(std::lround(static_cast<float>(thickness) * unit)));
    const int top = baseline - static_cast<int>(std::lround(static_cast<float>(position) * unit));
    const auto edge = [](float x) { return static_cast<int>(std::lround(x)); };
    Fill({ edge(left), top, edge(right), top + rows }, textColor_);
}

void LinePainter::Fill(Rect rect, u32 color)
{
    rect = Intersect(rect, clip_);
    if (rect.IsEmpty())
        return;
    for (int row = rect.top; row < rect.bottom; ++row)
        std::fill_n(view_.Row(row) + rect.left, rect.Width(), color);
}

} // namespace vornix
