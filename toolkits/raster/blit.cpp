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

// (source * alpha + target * (255 - alpha)) / 255 to the nearest. With t the sum, (t + 128 + (t + 128) / 256) / 256 is
// exactly that for every t up to 255 * 255, and stays within 16 bits.
u8 BlendChannel(u8 target, u8 source, u16 alpha)
{
    const u16 sum = static_cast<u16>(source * alpha + target * (255 - alpha) + 128);
    return static_cast<u8>(static_cast<u16>(sum + (sum >> 8)) >> 8);
}

// Byte by byte, so that the compiler takes 16 channels at a time; the byte above the colours is 255 on both sides and
// stays it.
void BlendLine(u32* targetPixels, const u32* sourcePixels, int count, u16 alpha)
{
    u8* __restrict target = reinterpret_cast<u8*>(targetPixels);
    const u8* __restrict source = reinterpret_cast<const u8*>(sourcePixels);
    for (int i = 0; i < 4 * count; ++i)
        target[i] = BlendChannel(target[i], source[i], alpha);
}

u32 BlendPixel(u32 target, u32 source, u16 alpha)
{
    u32 blended = Opaque;
    for (int shift = 0; shift < 24; shift += 8)
        blended |= u32 { BlendChannel(static_cast<u8>(target >> shift), static_cast<u8>(source >> shift), alpha) }
            << shift;
    return blended;
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
    return RunLines(
        target, map, source, conversion, [weight = static_cast<u16>(alpha)](u32* to, const u32* from, int count) {
            BlendLine(to, from, count, weight);
        });
}

bool CopyWithOwnAlpha(const PixelView& target, TransferMap map, const PixelView& source)
{
    return RunLines(
        target, map, source, PixelConversion {}, [](u32* __restrict to, const u32* __restrict from, int count) {
            for (int i = 0; i < count; ++i)
                to[i] = BlendPixel(to[i], from[i], static_cast<u16>(from[i] >> 24));
        });
}

} // namespace vornix
