#include "transfer.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <utility>

namespace vornix {

namespace {

// No surface is this large; a stretch that reaches farther is not drawn.
constexpr std::int64_t FarAway = 1 << 26;

// One axis of a surface.
struct Axis {
    const ScaleMap& map;
    bool horizontal;
    int logical;
    int device;
    int clipBegin;
    int clipEnd;

    int Edge(int value) const { return horizontal ? map.X(value) : map.Y(value); }
};

// From one edge to another, logical.
struct Span {
    std::int64_t begin;
    std::int64_t end;
    std::int64_t Length() const { return end - begin; }
    bool IsFar() const { return std::max(std::abs(begin), std::abs(end)) > FarAway; }
};

Axis HorizontalAxis(const PixelView& view, Size logical)
{
    return { view.map, true, logical.width, view.width, view.clip.left, view.clip.right };
}

Axis VerticalAxis(const PixelView& view, Size logical)
{
    return { view.map, false, logical.height, view.height, view.clip.top, view.clip.bottom };
}

AxisMap MapOneToOne(const Axis& target, const Span& targetSpan, const Axis& source, const Span& sourceSpan)
{
    const std::int64_t skipped = std::max({ std::int64_t { 0 }, -targetSpan.begin, -sourceSpan.begin });
    const std::int64_t kept
        = std::min({ targetSpan.Length(), target.logical - targetSpan.begin, source.logical - sourceSpan.begin });
    if (kept <= skipped)
        return {};
    const int targetBegin = target.Edge(static_cast<int>(targetSpan.begin + skipped));
    const int targetEnd = target.Edge(static_cast<int>(targetSpan.begin + kept));
    AxisMap map;
    map.begin = std::max(targetBegin, target.clipBegin);
    map.end = std::min(targetEnd, target.clipEnd);
    map.first = source.Edge(static_cast<int>(sourceSpan.begin + skipped)) + map.begin - targetBegin;
    // Rounded edges may leave the source a pixel short: its last one serves twice.
    if (!map.IsEmpty() && map.first + (map.end - map.begin) > source.device) {
        for (int i = map.begin; i < map.end; ++i)
            map.table.push_back(std::min(map.first + i - map.begin, source.device - 1));
    }
    return map;
}

AxisMap MapStretched(const Axis& target, Span targetSpan, const Axis& source, Span sourceSpan)
{
    if (targetSpan.IsFar() || sourceSpan.IsFar())
        return {};
    const bool mirrored = (targetSpan.Length() < 0) != (sourceSpan.Length() < 0);
    if (targetSpan.Length() < 0)
        std::swap(targetSpan.begin, targetSpan.end);
    if (sourceSpan.Length() < 0)
        std::swap(sourceSpan.begin, sourceSpan.end);
    const int targetBegin = target.Edge(static_cast<int>(targetSpan.begin));
    const std::int64_t targetSize = target.Edge(static_cast<int>(targetSpan.end)) - targetBegin;
    const int sourceBegin = source.Edge(static_cast<int>(sourceSpan.begin));
    const std::int64_t sourceSize = source.Edge(static_cast<int>(sourceSpan.end)) - sourceBegin;
    AxisMap map;
    map.begin = std::max(targetBegin, target.clipBegin);
    const int end = static_cast<int>(std::min(targetBegin + targetSize, std::int64_t { target.clipEnd }));
    for (int i = map.begin; i < end; ++i) {
        const std::int64_t step = mirrored ? targetBegin + targetSize - 1 - i : i - targetBegin;
        const std::int64_t from = sourceBegin + (2 * step + 1) * sourceSize / (2 * targetSize);
        if (from >= 0 && from < source.device && sourceSize > 0)
            map.table.push_back(static_cast<int>(from));
        else if (map.table.empty())
            map.begin = i + 1;
        else
            break;
    }
    map.end = map.begin + static_cast<int>(map.table.size());
    return map;
}

AxisMap MapAxis(const Axis& target, const Span& targetSpan, const Axis& source, const Span& sourceSpan)
{
    const bool oneToOne = target.map.Scale() == source.map.Scale() && targetSpan.Length() == sourceSpan.Length()
        && targetSpan.Length() >= 0;
    return oneToOne ? MapOneToOne(target, targetSpan, source, sourceSpan)
                    : MapStretched(target, targetSpan, source, sourceSpan);
}

// Leaves out the target pixels whose source pixel lies outside begin..end. Maps run one way.
void KeepSourceWithin(AxisMap& map, int begin, int end)
{
    const auto exists = [&](int target) { return map.Source(target) >= begin && map.Source(target) < end; };
    int first = map.begin;
    while (first < map.end && !exists(first))
        ++first;
    int last = map.end;
    while (last > first && !exists(last - 1))
        --last;
    if (map.IsDirect())
        map.first += first - map.begin;
    else
        map.table = std::vector<int>(map.table.begin() + (first - map.begin), map.table.begin() + (last - map.begin));
    map.begin = first;
    map.end = last;
}

// The least and the greatest source pixel read; maps run one way, so they are at the ends.
Span SourceRange(const AxisMap& map)
{
    const int first = map.Source(map.begin);
    const int last = map.Source(map.end - 1);
    return { std::min(first, last), std::max(first, last) + 1 };
}

void MoveSource(AxisMap& map, int offset)
{
    map.first -= offset;
    for (int& index : map.table)
        index -= offset;
}

} // namespace

TransferMap MapTransfer(const PixelView& target, Size targetLogical, const Rect& targetRect,
    const TransferSource& source, const Rect& sourceRect)
{
    TransferMap map;
    map.x = MapAxis(HorizontalAxis(target, targetLogical), { targetRect.left, targetRect.right },
        HorizontalAxis(source.view, source.logical), { sourceRect.left, sourceRect.right });
    map.y = MapAxis(VerticalAxis(target, targetLogical), { targetRect.top, targetRect.bottom },
        VerticalAxis(source.view, source.logical), { sourceRect.top, sourceRect.bottom });
    if (source.stored != Rect { 0, 0, source.view.width, source.view.height }) {
        KeepSourceWithin(map.x, source.stored.left, source.stored.right);
        KeepSourceWithin(map.y, source.stored.top, source.stored.bottom);
    }
    return map;
}

TransferLines::TransferLines(const PixelView& source, const TransferMap& map, const PixelConversion& conversion)
    : source_(source)
    , map_(map)
    , conversion_(conversion)
{
}

const u32* TransferLines::Line(int targetY)
{
    const int sourceY = map_.y.Source(targetY);
    if (map_.x.IsDirect() && conversion_.kind == PixelConversion::Kind::None)
        return source_.Row(sourceY) + map_.x.first;
    if (sourceY != gathered_)
        Gather(sourceY);
    return line_.data();
}

void TransferLines::Gather(int sourceY)
{
    const std::size_t count = static_cast<std::size_t>(map_.x.end - map_.x.begin);
    line_.resize(count);
    const u32* const from = source_.Row(sourceY);
    if (map_.x.IsDirect()) {
        std::copy_n(from + map_.x.first, count, line_.data());
    } else {
        for (std::size_t i = 0; i < count; ++i)
            line_[i] = from[map_.x.table[i]];
    }
    if (conversion_.kind == PixelConversion::Kind::ToMonochrome) {
        for (u32& pixel : line_)
            pixel = pixel == conversion_.background ? 0xFFFFFFFFu : 0xFF000000u;
    } else if (conversion_.kind == PixelConversion::Kind::FromMonochrome) {
        for (u32& pixel : line_)
            pixel = pixel == 0xFFFFFFFFu ? conversion_.white : conversion_.black;
    }
    gathered_ = sourceY;
}

bool MayOverlap(const PixelView& target, const PixelView& source, const TransferMap& map)
{
    const Span columns = SourceRange(map.x);
    const Span rows = SourceRange(map.y);
    const u32* const readBegin = source.Row(static_cast<int>(rows.begin)) + columns.begin;
    const u32* const readEnd = source.Row(static_cast<int>(rows.end) - 1) + columns.end;
    const u32* const writeBegin = target.Row(map.y.begin) + map.x.begin;
    const u32* const writeEnd = target.Row(map.y.end - 1) + map.x.end;
    const std::less<const u32*> before;
    return before(readBegin, writeEnd) && before(writeBegin, readEnd);
}

PixelView CopySource(const PixelView& source, TransferMap& map, PixelBlock& block)
{
    const Span columns = SourceRange(map.x);
    const Span rows = SourceRange(map.y);
    PixelView copy;
    copy.width = static_cast<int>(columns.Length());
    copy.height = static_cast<int>(rows.Length());
    copy.stride = copy.width;
    block = PixelBlock::Allocate(static_cast<std::size_t>(columns.Length() * rows.Length()));
    copy.pixels = block.Data();
    if (!block)
        return copy;
    for (int y = 0; y < copy.height; ++y)
        std::memcpy(copy.Row(y), source.Row(static_cast<int>(rows.begin) + y) + columns.begin,
            static_cast<std::size_t>(copy.width) * sizeof(u32));
    MoveSource(map.x, static_cast<int>(columns.begin));
    MoveSource(map.y, static_cast<int>(rows.begin));
    return copy;
}

} // namespace vornix
