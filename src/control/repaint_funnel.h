// The funnels that carry changes to the screen: every member of the control that changes a look or a size ends in one
// of these. Internal indices.
#pragma once

#include "interact/scrolling.h"
#include "layout/layout_engine.h"
#include "model/redraw_gate.h"
#include "model/repainter.h"
#include "render/paint_pipeline.h"
#include "vornix/platform/container.h"

namespace vornix {

struct RepaintContext {
    GridStore& store;
    LayoutEngine& layout;
    PaintPipeline& paint;
    RedrawGate& gate;
    EditorControl& editor;
    Scrolling& scrolling;
    Container& container;
};

// Handlers that run inside a paint may ask for another one; as a paint has one target only, such a request is dropped,
// and a change of the client size waits until the paint is over. A handler that changes it at every paint is served
// once a paint.
class RepaintFunnel : public Repainter {
public:
    explicit RepaintFunnel(RepaintContext context)
        : context_(context)
    {
    }

    // Nothing is laid out or painted before the table exists and after the control is closed.
    void SetReady(bool ready) { ready_ = ready; }

    void RepaintGrid() override;
    // Lays out and repaints. While the gate is closed nothing is painted, and only a forced layout measures.
    void RecalcLayout(bool forcePercent) override;
    // Forced when percent widths are active.
    void RecalcLayout() { RecalcLayout(context_.layout.PercentActive()); }
    void RefreshRowCells(int row) override;
    void RefreshColCells(int col) override;
    void RefreshIfInRange(int row, int col) override;
    void RefreshOneCell(int row, int col) override;

    // The same, only while the gate is open.
    void RepaintUnderGate() override;
    void RefreshCellUnderGate(int row, int col) override;
    void RefreshRowUnderGate(int row);
    void RefreshColUnderGate(int col);

    // The window has another client size: back store and layout follow.
    void ClientSizeChanged();
    void PaintMessage();
    void PaintSplitBar();

private:
    template <typename Step> void Paint(const Step& step);
    void FollowClientSize();

    RepaintContext context_;
    bool ready_ = false;
    bool painting_ = false;
    bool sizeChangePending_ = false;
    bool followingSize_ = false;
};

} // namespace vornix
