#include "model/span_edits.h"

#include "automation/checked.h"
#include "model/span_direction.h"

#include <algorithm>

namespace vornix {

void SpanEdits::GrowOverRows(int position, int count)
{
    GrowOver(SpanDirection::Rows(), position, count);
}

void SpanEdits::GrowOverCols(int position, int count)
{
    GrowOver(SpanDirection::Cols(), position, count);
}

std::vector<CellIndex> SpanEdits::CutRows(int position, int count)
{
    return Cut(SpanDirection::Rows(), position, count);
}

std::vector<CellIndex> SpanEdits::CutCols(int position, int count)
{
    return Cut(SpanDirection::Cols(), position, count);
}

void SpanEdits::CloseOverRows(const std::vector<CellIndex>& parents, int count)
{
    CloseOver(SpanDirection::Rows(), parents, count);
}

void SpanEdits::CloseOverCols(const std::vector<CellIndex>& parents, int count)
{
    CloseOver(SpanDirection::Cols(), parents, count);
}

int SpanEdits::Length(const SpanDirection& along, CellIndex parent) const
{
    return std::max<int>(along.Stored(store_.CellAt(parent.row, parent.col)), 1);
}

int SpanEdits::LengthAcross(const SpanDirection& along, CellIndex parent) const
{
    return std::max<int>(along.StoredAcross(store_.CellAt(parent.row, parent.col)), 1);
}

int SpanEdits::End(const SpanDirection& along, CellIndex parent) const
{
    return along.Place(parent) + Length(along, parent);
}

void SpanEdits::Rebuild(const SpanDirection& along, CellIndex parent, int length)
{
    const int end = std::min(along.Place(parent) + length, along.Bound(store_));
    const int firstAcross = along.PlaceAcross(parent);
    const int endAcross = std::min(firstAcross + LengthAcross(along, parent), along.BoundAcross(store_));
    for (int across = firstAcross; across < endAcross; ++across)
        for (int place = along.Place(parent); place < end; ++place)
            LinkToParent(store_, along.At(across, place), parent);
    along.Store(store_.EditCell(parent.row, parent.col), ToI16(end - along.Place(parent)));
}

void SpanEdits::GrowOver(const SpanDirection& along, int position, int count)
{
    const int behind = position + count;
    for (int across = 0; across < along.BoundAcross(store_); ++across) {
        const CellIndex cell = along.At(across, behind);
        const Cell& child = store_.CellAt(cell.row, cell.col);
        if (along.Link(child) >= 0)
            continue;
        // The link still leads as far as it did before the lines came.
        const CellIndex parent = along.At(across + along.LinkAcross(child), position + along.Link(child));
        if (along.Place(parent) < 0 || along.PlaceAcross(parent) < 0 || End(along, parent) <= position
            || along.PlaceAcross(parent) + LengthAcross(along, parent) <= across)
            continue;
        Rebuild(along, parent, Length(along, parent) + count);
        across = std::max(across, along.PlaceAcross(parent) + LengthAcross(along, parent) - 1);
    }
}

std::vector<CellIndex> SpanEdits::Cut(const SpanDirection& along, int position, int count)
{
    std::vector<CellIndex> crossing = CutThoseFromBefore(along, position, count);
    GiveTailsParents(along, position, count);
    return crossing;
}

std::vector<CellIndex> SpanEdits::CutThoseFromBefore(const SpanDirection& along, int position, int count)
{
    std::vector<CellIndex> crossing;
    for (int across = 0; across < along.BoundAcross(store_); ++across) {
        const CellIndex cell = along.At(across, position);
        if (along.Link(store_.CellAt(cell.row, cell.col)) >= 0)
            continue;
        const CellIndex parent = ParentCell(store_, cell.row, cell.col);
        const int end = End(along, parent);
        if (along.Place(parent) >= position || end <= position)
            continue;
        if (end > position + count)
            OrOutOfMemory([&] { crossing.push_back(parent); });
        else
            along.Store(store_.EditCell(parent.row, parent.col), ToI16(position - along.Place(parent)));
        across = std::max(across, along.PlaceAcross(parent) + LengthAcross(along, parent) - 1);
    }
    return crossing;
}

void SpanEdits::GiveTailsParents(const SpanDirection& along, int position, int count)
{
    const int behind = position + count;
    if (behind >= along.Bound(store_))
        return;
    for (int place = position; place < behind; ++place) {
        for (int across = 0; across < along.BoundAcross(store_); ++across) {
            const CellIndex parent = along.At(across, place);
            const Cell& cell = store_.CellAt(parent.row, parent.col);
            const int end = std::min(place + along.Stored(cell), along.Bound(store_));
            if (end <= behind || cell.IsChild())
                continue;
            const i16 spanAcross = along.StoredAcross(cell);
            const CellIndex heir = along.At(across, behind);
            along.StoreAcross(store_.EditCell(heir.row, heir.col), spanAcross);
            Rebuild(along, heir, end - behind);
            across += std::max<int>(spanAcross, 1) - 1;
        }
    }
}

void SpanEdits::CloseOver(const SpanDirection& along, const std::vector<CellIndex>& parents, int count)
{
    for (const CellIndex& parent : parents)
        Rebuild(along, parent, Length(along, parent) - count);
}

} // namespace vornix
