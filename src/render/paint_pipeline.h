// Decides what is painted, in which order and onto which surface. A picture of the whole grid lives in the back store; a
// full repaint redraws it and copies it to the control, a refresh paints single cells onto both.
#pragma once

#include "layout/layout_engine.h"
#include "model/grid_store.h"
#include "model/redraw_gate.h"
#include "render/interaction_view.h"
#include "render/mem_dc.h"
#include "render/paint_settings.h"
#include "render/pattern_brush.h"
#include "vornix/events.h"
#include "vornix/platform/container.h"

#include <memory>

namespace vornix {

class CellPainter;

// What the pipeline reads and reports to. All outlive it.
struct PaintContext {
    GridStore& store;
    LayoutEngine& layout;
    ScrollModel& scroll;
    RedrawGate& gate;
    const InteractionView& interaction;
    Container& container;
    VornixEvents& events;
};

class PaintPipeline {
public:
    explicit PaintPipeline(PaintContext context);
    ~PaintPipeline();

    PaintSettings Settings;

    // Full repaint, and refreshes of parts. None tests the gate.
    void RepaintGrid();
    void RefreshOneCell(int row, int col);
    void RefreshIfInRange(int row, int col);
    void RefreshRowCells(int row);
    void RefreshColCells(int col);

    // The container's paint message.
    void PaintMessage();
    void PaintSplitBar();

    // The back store takes the client size; the next refresh counts as a size change.
    void ResizeBackStore(Size client);
    // Background picture: a stale surface is made anew in the next layout.
    void MarkBackgroundStale();
    void RebuildBackgroundIfStale();
    void SetPicture(const PicturePtr& picture);
    void SetPictureBrightness(i32 brightness);
    void RenderBackgroundPicture(int width, int height);

    // Set at the end of RepaintGrid; the layout funnel clears it before its steps and asks for it behind them.
    bool Repainted() const { return repainted_; }
    void ClearRepainted() { repainted_ = false; }

    int PaintLastRow() const { return paintLastRow_; }
    int PaintLastCol() const { return paintLastCol_; }
    // Forgets where the last cell was painted.
    void ResetCache();
    // The visible rectangle of the cell in progress.
    const Rect& CellRect() const { return cellRect_; }
    const Surface* BackStore() const;

    // Full repaints, and cells painted one by one, since the counters were cleared.
    int Repaints() const { return repaints_; }
    int Refreshes() const { return refreshes_; }
    void ClearCounters() { repaints_ = refreshes_ = 0; }

    // Gives back surfaces and pictures.
    void Release();

private:
    bool repainted_ = false;
    int paintLastRow_ = 0;
    int paintLastCol_ = 0;
    int repaints_ = 0;
    int refreshes_ = 0;
    Rect cellRect_;
};

} // namespace vornix
