// Scrolling: ties the position of the view to the two bars, to the wheel and to the steps that must bring a cell into
// sight. A new position always ends in a repaint; no pixels are moved. Internal indices.
//
// Events are raised on the way; a handler may do anything, closing the control included. What stands here is read anew
// behind each of them.
#pragma once

#include "layout/scroll_positions.h"
#include "layout/unseen_scroll_bar.h"
#include "model/redraw_gate.h"
#include "model/repainter.h"
#include "render/paint_pipeline.h"
#include "vornix/events.h"
#include "vornix/scroll_bar.h"

namespace vornix {

// Virtual mode, as the steps that scroll see it.
class PageRoller {
public:
    virtual ~PageRoller() = default;
    // The first row is another one: the page follows it. May raise PopulateGrid.
    virtual void RollPage() = 0;
};

struct ScrollContext {
    GridStore& store;
    LayoutEngine& layout;
    ScrollModel& scroll;
    const HiddenLines& hidden;
    const Spans& spans;
    const RedrawGate& gate;
    PaintPipeline& paint;
    Repainter& repainter;
    EditorControl& editor;
    PageRoller& pages;
    Container& container;
    VornixEvents& events;
};

class Scrolling {
public:
    explicit Scrolling(ScrollContext context);
    Scrolling(const Scrolling&) = delete;
    Scrolling& operator=(const Scrolling&) = delete;

    // Places both bars, their corner and the split's handle, and gives the bars range and position. Nothing while the
    // gate is closed.
    void UpdateScrollBars();
    void UpdateHScrollRange();
    void UpdateVScrollRange();
    // After a change of the position: closes the editor; bars and picture follow.
    void ApplyScrollAndRepaint();

    // Writing a position. Lines are limited to those that scroll. True when the view was another one; while the gate is
    // open it is painted by then.
    bool SetFirstRow(int row);
    bool SetFirstCol(int col);
    // Scrolls so that the line comes last.
    void SetLastRow(int row);
    void SetLastCol(int col);
    // True when the view has moved. A cell outside the store is error 9.
    bool EnsureCellVisible(int row, int col);

    void HideSplitHandle();

    // What the user does. Nothing arrives while the bars are not hooked.
    void SetHooked(bool hooked);
    // What the user is doing with a bar is over, and the bars stand where the view does; nothing is raised.
    void EndUserActions();
    void Notify(ChildName bar, i32 code);
    // 120 a notch, away from the user positive.
    void Wheel(i32 delta);
    void Wheel(ChildName bar, i32 delta);
    // So many positions of a bar at once.
    void MoveBar(ChildName bar, i32 steps);

    ScrollBar& HorizontalBar() { return hBar_.control; }
    ScrollBar& VerticalBar() { return vBar_.control; }
    const ScrollPositions& Positions() const { return positions_; }

private:
    // Passes the notifications of one bar on.
    class Relay final : public ScrollBarEvents {
    public:
        using OnChange = void (Scrolling::*)(i32& value, i32 direction);
        using OnTrack = void (Scrolling::*)(i32& value);
        Relay(Scrolling& scrolling, OnChange change, OnTrack track)
            : scrolling_(scrolling)
            , change_(change)
            , track_(track)
        {
        }
        void Change(i32& value, i32 direction) override { (scrolling_.*change_)(value, direction); }
        void Scroll(i32& value) override { (scrolling_.*track_)(value); }

    private:
        Scrolling& scrolling_;
        OnChange change_;
        OnTrack track_;
    };

    // One bar: the component over the toolkit's window, or over none.
    struct Bar {
        Bar(Container& container, ChildName name, i32 orientation, Relay relayOfBar);
        UnseenScrollBar unseen;
        NativeScrollBar* native;
        ChildWindow& window;
        Relay relay;
        ScrollBar control;
    };

    void HideAllBars();
    void UpdateHorizontalBar();
    void UpdateVerticalBar();
    void PlaceSplitHandle();
    void PlaceCorner();

    void HookBar(ScrollBar& bar);
    // The mode has changed since the bar was given its range, between columns and pixels.
    bool IsHBarOfOtherUnit() const { return hBarCountsPixels_ != positions_.IsSmooth(); }
    void FollowUnitOfHBar();
    void HorizontalChange(i32& value, i32 direction);
    void HorizontalTrack(i32& value);
    void VerticalChange(i32& value, i32 direction);
    void VerticalTrack(i32& value);
    void WheelOver(ScrollBar& bar, i32 step, Relay::OnChange change);
    BarRange RangeOf(const ScrollBar& bar) const { return { bar.Min(), bar.Max() }; }
    i32 HPosition() const;
    void MoveToPixel(i32 pixel);
    void CloseEditor();

    bool BringColIntoView(int col, CellIndex parent);
    bool BringRowIntoView(int row, CellIndex parent);

    ScrollContext context_;
    ScrollPositions positions_;
    Bar hBar_;
    Bar vBar_;
    bool hooked_ = false;
    bool hBarCountsPixels_ = false;
};

} // namespace vornix
