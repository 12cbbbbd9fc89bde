#include "blit.h"

#include "fill.h"

#include <cstring>

namespace vornix {

namespace {

constexpr u32 Opaque = 0xFF000000u;
constexpr u32 White = 0xFFFFFFFFu;

// Runs `operate(target, source, count)` on every line.
template <class Operation>
bool RunLines(const PixelView& target, TransferMap& map, const PixelView& source, const PixelConversion& conversion,
    Operation operate)
{
    if (map.IsEmpty())
        return true;
    PixelBlock copied;
    PixelView from = source;
    if (MayOverlap(target, source, map)) {
        from = CopySource(source, map, copied);
        if (!copied)
            return false;
    }
    TransferLines lines(from, map, conversion);
    const int count = map.x.end - map.x.begin;
    for (int y = map.y.begin; y < map.y.end; ++y)
        operate(target.Row(y) + map.x.begin, lines.Line(y), count);
    return true;
}

// A line operation out of an operation on two pixels. The lines never overlap.
template <class Bits> auto Bitwise(Bits bits)
{
    return [bits](u32* __restrict target, const u32* __restrict source, int count) {
        for (int i = 0; i < count; ++i)
            target[i] = bits(target[i], source[i]) | Opaque;
    };
}

void CopyLine(u32* target, const u32* source, int count)
{
    std::memcpy(target, source, static_cast<std::size_t>(count) * sizeof(u32));
}

// Device pixels onto device pixels, also within the same memory; nothing to do when they are the same ones.
void MoveRows(const PixelView& target, const TransferMap& map, const PixelView& source)
{
    const u32* from = source.Row(map.y.first) + map.x.first;
    u32* to = target.Row(map.y.begin) + map.x.begin;
    if (from == to)
        return;
    const int rows = map.y.end - map.y.begin;
    const std::size_t bytes = static_cast<std::size_t>(map.x.end - map.x.begin) * sizeof(u32);
    std::ptrdiff_t step = target.stride;
    if (to > from) {
        // Last row first, so that no row is overwritten before it is read.
        from += (rows - 1) * step;
        to += (rows - 1) * step;
        step = -step;
    }
    for (int row = 0; row < rows; ++row, from += step, to += step)
        std::memmove(to, from, bytes);
}

bool Copy(const PixelView& target, TransferMap& map, const PixelView& source, const PixelConversion& conversion)
{
    const bool plain = map.IsDirect() && conversion.kind == PixelConversion::Kind::None;
    if (!map.IsEmpty() && plain && target.stride == source.stride && MayOverlap(target, source, map)) {
        MoveRows(target, map, source);
        return true;
    }
    return RunLines(target, map, source, conversion, CopyLine);
}

// Two channels at once, each in the low half of 16 bits: (source * alpha + target * (255 - alpha)) / 255 to the
// nearest. With t the sum, (t + 128 + (t + 128) / 256) / 256 is exactly that for every t up to 255 * 255.
u32 BlendPair(u32 target, u32 source, u32 alpha)
{
    constexpr u32 Low = 0x00FF00FFu;
    const u32 sum = (source & Low) * alpha + (target & Low) * (255 - alpha) + 0x00800080u;
    return (sum + (sum >> 8 & Low)) >> 8 & Low;
}

u32 BlendPixel(u32 target, u32 source, u32 alpha)
{
    return Opaque | BlendPair(target, source, alpha) | (BlendPair(target >> 8, source >> 8, alpha) << 8 & 0x0000FF00u);
}

} // namespace

bool IsKnown(RasterOp operation)
{
    switch (operation) {
    case RasterOp::Blackness:
    case RasterOp::NotSrcErase:
    case RasterOp::NotSrcCopy:
    case RasterOp::SrcErase:
    case RasterOp::DstInvert:
    case RasterOp::PatInvert:
    case RasterOp::SrcInvert:
    case RasterOp::SrcAnd:
    case RasterOp::MergePaint:
    case RasterOp::MergeCopy:
    case RasterOp::SrcCopy:
    case RasterOp::SrcPaint:
    case RasterOp::PatCopy:
    case RasterOp::PatPaint:
    case RasterOp::Whiteness:
        return true;
    }
    return false;
}

bool NeedsSource(RasterOp operation)
{
    switch (operation) {
    case RasterOp::Blackness:
    case RasterOp::DstInvert:
    case RasterOp::PatInvert:
    case RasterOp::PatCopy:
    case RasterOp::Whiteness:
        return false;
    default:
        return true;
    }
}

void FillWithOperation(const PixelView& target, const Rect& deviceRect, RasterOp operation)
{
    if (operation == RasterOp::DstInvert || operation == RasterOp::PatInvert)
        InvertDeviceRect(target, deviceRect);
    else
        FillDeviceRect(target, deviceRect, operation == RasterOp::Blackness ? Opaque : White);
}

bool CopyWithOperation(const PixelView& target, TransferMap map, const PixelView& source,
    const PixelConversion& conversion, RasterOp operation)
{
    const auto run = [&](auto bits) { return RunLines(target, map, source, conversion, Bitwise(bits)); };
    switch (operation) {
    case RasterOp::SrcCopy:
    case RasterOp::MergeCopy: // pattern and source
        return Copy(target, map, source, conversion);
    case RasterOp::NotSrcErase:
        return run([](u32 d, u32 s) { return ~(s | d); });
    case RasterOp::NotSrcCopy:
        return run([](u32, u32 s) { return ~s; });
    case RasterOp::SrcErase:
        return run([](u32 d, u32 s) { return s & ~d; });
    case RasterOp::SrcInvert:
        return run([](u32 d, u32 s) { return s ^ d; });
    case RasterOp::SrcAnd:
        return run([](u32 d, u32 s) { return s & d; });
    case RasterOp::MergePaint:
        return run([](u32 d, u32 s) { return ~s | d; });
    case RasterOp::SrcPaint:
        return run([](u32 d, u32 s) { return s | d; });
    case RasterOp::PatPaint: // pattern, inverted source or target
        return run([](u32, u32) { return White; });
    default:
        return false;
    }
}

bool CopyTransparent(const PixelView& target, TransferMap map, const PixelView& source,
    const PixelConversion& conversion, u32 transparent)
{
    return RunLines(
        target, map, source, conversion, [transparent](u32* __restrict to, const u32* __restrict from, int count) {
            for (int i = 0; i < count; ++i)
                to[i] = from[i] == transparent ? to[i] : from[i];
        });
}

bool CopyBlended(
    const PixelView& target, TransferMap map, const PixelView& source, const PixelConversion& conversion, int alpha)
{
    if (alpha == 255)
        return Copy(target, map, source, conversion);
    return RunLines(target, map, source, conversion,
        [weight = static_cast<u32>(alpha)](u32* __restrict to, const u32* __restrict from, int count) {
            for (int i = 0; i < count; ++i)
                to[i] = BlendPixel(to[i], from[i], weight);
        });
}

bool CopyWithOwnAlpha(const PixelView& target, TransferMap map, const PixelView& source)
{
    return RunLines(
        target, map, source, PixelConversion {}, [](u32* __restrict to, const u32* __restrict from, int count) {
            for (int i = 0; i < count; ++i)
                to[i] = BlendPixel(to[i], from[i], from[i] >> 24);
        });
}

} // namespace vornix
