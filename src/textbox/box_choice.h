// Which of six prepared boxes a text box shows:
//
//     left aligned   right aligned
//          0              1         one line, or a size that follows the text
//          2              5         a size that follows the text, with a scroll bar
//          3              4         several lines
//
// One box that changes its style stands for the six.
#pragma once

#include "vornix/platform/edit_box.h"
#include "vornix/types.h"

namespace vornix {

struct BoxSettings {
    i16 Alignment = 0;
    i16 ScrollBars = 0;
    bool MultiLine = false;
    bool AutoResize = false;
};

// The left one, whatever the alignment: the one that a text too high for its box is shown in.
inline constexpr int BoxWithScrollBar = 2;

inline int ChosenBox(const BoxSettings& settings)
{
    const bool isRight = settings.Alignment != 0;
    if (settings.AutoResize && settings.ScrollBars != 0)
        return isRight ? 5 : BoxWithScrollBar;
    if (settings.MultiLine && !settings.AutoResize)
        return isRight ? 4 : 3;
    return isRight ? 1 : 0;
}

// A size that follows the text needs lines that break.
inline EditBoxStyle StyleOf(int box, bool autoResize)
{
    return {
        .isRightAligned = box == 1 || box == 4 || box == 5,
        .isMultiLine = autoResize || box == 3 || box == 4,
        .hasScrollBar = box == 2 || box == 5,
    };
}

} // namespace vornix
