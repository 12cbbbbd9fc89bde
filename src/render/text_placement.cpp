#include "render/text_placement.h"

namespace vornix {

namespace {

constexpr int SideInset = 4;
constexpr int TopInset = 2;
// The bottom pixel row belongs to the grid line, two more to the inset.
constexpr int BottomInset = 3;
constexpr u32 OwnVerticalFlags = static_cast<u32>(vxAlwaysTop) | static_cast<u32>(vxAlwaysVCenter);

// One placement; each flag that places vertically is taken out of the format when it has been followed.
class Placer {
public:
    Placer(i32 textAlignment, const TextFrame& frame, TextMeasurer& measurer)
        : format_(static_cast<u32>(textAlignment))
        , frame_(frame)
        , measurer_(measurer)
        , rect_ { frame.marginLeft + SideInset, TopInset, frame.cell.width - frame.marginRight - SideInset, Bottom() }
    {
    }

    TextPlacement Place()
    {
        if (Take(vxTxtVCenter))
            Center();
        else if (Take(vxTxtBottom))
            AlignBottom();
        else if (Take(vxAlwaysVCenter))
            CenterVisible();
        else if (Take(vxAlwaysTop))
            AlignVisibleTop();
        return { rect_, format_ & ~OwnVerticalFlags };
    }

private:
    int Bottom() const { return frame_.cell.height - BottomInset; }

    bool Take(i32 flag)
    {
        const u32 bit = static_cast<u32>(flag);
        const bool set = (format_ & bit) != 0;
        format_ &= ~bit;
        return set;
    }

    int Measure() { return measurer_.MeasuredBottom(rect_, format_ & ~OwnVerticalFlags); }

    void Center() { rect_.top = (frame_.cell.height - Measure()) / 2; }

    void AlignBottom() { rect_.top = 2 + frame_.cell.height - (Measure() + frame_.gridLineWidth) - 2; }

    void CenterVisible()
    {
        const int measured = Measure();
        const int visibleHeight = frame_.cell.height - frame_.sourceY;
        if (frame_.roomBelow >= visibleHeight) {
            rect_.top = frame_.sourceY + (visibleHeight - measured) / 2;
            rect_.bottom = frame_.sourceY + Bottom();
            return;
        }
        // The lower edge is off the screen: the text begins in the middle of what shows.
        rect_.top = frame_.sourceY + frame_.roomBelow / 2;
        rect_.bottom = frame_.sourceY + frame_.roomBelow;
    }

    void AlignVisibleTop() { rect_.top = frame_.sourceY + (frame_.cell.height - Bottom()) / 2; }

    u32 format_;
    const TextFrame& frame_;
    TextMeasurer& measurer_;
    Rect rect_;
};

} // namespace

TextPlacement PlaceText(i32 textAlignment, const TextFrame& frame, TextMeasurer& measurer)
{
    return Placer(textAlignment, frame, measurer).Place();
}

} // namespace vornix
