// A grid larger than its window, and a user of its bars.
#pragma once

#include "control/grid_fixture.h"

namespace vornix {

class ScrollTest : public GridTest {
protected:
    // What a bar notifies.
    enum Code { LineUp, LineDown, PageUp, PageDown, ThumbPosition, ThumbTrack, Top, Bottom, EndScroll };

    // 640 by 480 with bars of 17, rows of 21 and columns of 120 behind a fixed column of 30: 21 rows and 4 columns are
    // whole.
    ScrollTest() { Table(100, 30, 1, 1); }

    HeadlessScrollBar& H() { return host->HorizontalBar(); }
    HeadlessScrollBar& V() { return host->VerticalBar(); }
    // One action from its beginning to its end.
    void Do(HeadlessScrollBar& bar, i32 code)
    {
        bar.Notify(code);
        bar.Notify(EndScroll);
    }
    void DragTo(HeadlessScrollBar& bar, i32 position)
    {
        bar.Notify(ThumbTrack, position);
        bar.Notify(ThumbPosition);
        bar.Notify(EndScroll);
    }
    // Events since the last call, with their argument where they have one.
    std::vector<std::string> Said()
    {
        std::vector<std::string> lines;
        for (const LoggedEvent& event : host->Log()) {
            std::string line = event.name;
            for (const auto& argument : event.arguments)
                line += " " + std::to_string(static_cast<int>(argument.second.ToDouble()));
            lines.push_back(line);
        }
        host->ClearLog();
        return lines;
    }
    // How far the first scrolling column is pushed out at the left, seen from the second one.
    int SmoothOffset()
    {
        i32 x = 0, y = 0, xBehind = 0;
        i16 width = 0, height = 0;
        Grid().GetPositionCell(0, Grid().FirstCol(), x, y);
        Grid().GetPositionCell(0, static_cast<i16>(Grid().FirstCol() + 1), xBehind, y);
        Grid().GetSizeCell(0, Grid().FirstCol(), width, height);
        return (xBehind - x) / 15 - width;
    }
};

} // namespace vornix
