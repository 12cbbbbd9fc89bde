// Formats made ready to draw with: colours translated and fonts described once a paint, however many cells share them.
#pragma once

#include "model/cell_format.h"
#include "model/format_table.h"
#include "vornix/platform/device.h"
#include "vornix/platform/system_colors.h"

#include <array>
#include <optional>

namespace vornix {

struct PreparedFormat {
    ColorRef back = 0;
    ColorRef fore = 0;
    // The edge colour, which a host may have written as a system colour.
    ColorRef shadow = 0;
    FontDescription font;
};

class FormatCache {
public:
    // Forgets everything; what follows is drawn with these colours and this resolution.
    void Begin(const SystemColors& colors, int twipsPerPixelY);
    // Valid until the next call.
    const PreparedFormat& Prepared(FormatId id, const CellFormat& format);

private:
    // Direct mapped: few formats are in sight at once, and what collides is prepared again.
    static constexpr std::size_t SlotCount = 64;
    struct Slot {
        std::optional<FormatId> id;
        PreparedFormat prepared;
    };

    void Prepare(PreparedFormat& prepared, const CellFormat& format) const;

    std::array<Slot, SlotCount> slots_;
    SystemColors colors_;
    int twipsPerPixelY_ = 15;
};

} // namespace vornix
