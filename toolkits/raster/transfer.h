// Where the pixels of a copy come from: which source pixel lies under each target pixel, along both axes.
#pragma once

#include "pixel_block.h"
#include "pixel_view.h"

#include <vector>

namespace vornix {

// Pixels to copy from. `logical` is the size that the map turns into the view's size; `stored` are the device pixels
// that exist.
struct TransferSource {
    PixelView view;
    Size logical;
    Rect stored;
};

// Device pixels `begin` to `end` of the target along one axis, and the source pixel for each of them.
struct AxisMap {
    int begin = 0;
    int end = 0;
    // Without a table the source pixels follow each other from here.
    int first = 0;
    std::vector<int> table;

    bool IsEmpty() const { return end <= begin; }
    bool IsDirect() const { return table.empty(); }
    int Source(int target) const
    {
        return IsDirect() ? first + target - begin : table[static_cast<std::size_t>(target - begin)];
    }
};

struct TransferMap {
    AxisMap x;
    AxisMap y;
    bool IsEmpty() const { return x.IsEmpty() || y.IsEmpty(); }
    bool IsDirect() const { return x.IsDirect() && y.IsDirect(); }
    Rect Target() const { return { x.begin, y.begin, x.end, y.end }; }
};

// Lays the source rectangle over the target rectangle, both logical. Of the same scale and size, device pixels are
// taken one to one; otherwise each target pixel takes the source pixel below its centre. Edges in reversed order
// mirror. Target pixels outside the clip, and those whose source pixel does not exist, are left out.
TransferMap MapTransfer(const PixelView& target, Size targetLogical, const Rect& targetRect,
    const TransferSource& source, const Rect& sourceRect);

// A colour and a monochrome surface meet: how source pixels change on the way.
struct PixelConversion {
    enum class Kind { None, ToMonochrome, FromMonochrome };
    Kind kind = Kind::None;
    // To monochrome: this colour becomes white, every other black.
    u32 background = 0;
    // From monochrome: what black and white become.
    u32 black = 0;
    u32 white = 0;
};

// The source's pixels, line by line, laid out as the target's.
class TransferLines {
public:
    TransferLines(const PixelView& source, const TransferMap& map, const PixelConversion& conversion);
    // The pixels for line `targetY` of the target, for targets map.x.begin to map.x.end; valid until the next call.
    const u32* Line(int targetY);

private:
    void Gather(int sourceY);

    const PixelView& source_;
    const TransferMap& map_;
    const PixelConversion& conversion_;
    std::vector<u32> line_;
    int gathered_ = -1;
};

// Whether the pixels read may be among those written.
bool MayOverlap(const PixelView& target, const PixelView& source, const TransferMap& map);
// A copy of what the map reads, with the map changed to read it there. The block keeps the copy alive; it is empty when
// memory is short.
PixelView CopySource(const PixelView& source, TransferMap& map, PixelBlock& block);

} // namespace vornix
