// Decides what is painted, in which order and onto which surface. A picture of the whole grid lives in the back store;
// a full repaint redraws it and copies it to the control, a refresh paints single cells onto both. Where the control's
// window shows the back store itself, the copies are left out.
//
// A paint has one target, so a paint asked for inside another one (by a handler of DrawCell) is dropped; a new size of
// the back store and the end of the control wait until the paint is over.
#pragma once

#include "render/background_picture.h"
#include "render/cell_painter.h"
#include "render/mem_dc.h"
#include "render/paint_context.h"
#include "render/paint_settings.h"
#include "render/paint_walk.h"

#include <optional>

namespace vornix {

class PaintPipeline {
public:
    explicit PaintPipeline(PaintContext context);
    ~PaintPipeline();
    PaintPipeline(const PaintPipeline&) = delete;
    PaintPipeline& operator=(const PaintPipeline&) = delete;

    PaintSettings Settings;

    // Full repaint, and refreshes of parts. None tests the gate. Internal indices; error 9 for one outside the store.
    void RepaintGrid();
    void RefreshOneCell(int row, int col);
    // Nothing for cells beyond the last painted row or column.
    void RefreshIfInRange(int row, int col);
    // Split columns are passed over by a row refresh; the next full repaint brings them up.
    void RefreshRowCells(int row);
    void RefreshColCells(int col);

    // The container's paint message.
    void PaintMessage();
    // Places and draws the handle of the split. One that makes no sense any more takes the split with it, and the view
    // back to the first column: true when that changed anything, and the horizontal bar's range and the picture are due.
    bool PaintSplitBar();

    // The back store takes the client size; the next refresh counts as a size change.
    void ResizeBackStore(Size client);
    // Background picture: a stale surface is made anew in the next layout.
    void MarkBackgroundStale();
    void RebuildBackgroundIfStale();
    void SetPicture(const PicturePtr& picture);
    // Percent, 0 to 100; other values are ignored.
    void SetPictureBrightness(i32 brightness);
    // A surface at least as large as the screen and as `width` by `height` pixels; for 0, as the cells that show.
    void RenderBackgroundPicture(int width, int height);

    // Set at the end of RepaintGrid; the layout funnel clears it before its steps and asks for it behind them.
    bool Repainted() const { return repainted_; }
    void ClearRepainted() { repainted_ = false; }

    int PaintLastRow() const { return walk_.PaintLastRow(); }
    int PaintLastCol() const { return walk_.PaintLastCol(); }
    // Written ahead of the next paint, when the program says which lines come last.
    void SetPaintLastRow(int row) { walk_.SetPaintLastRow(row); }
    void SetPaintLastCol(int col) { walk_.SetPaintLastCol(col); }
    // Forgets where the last cell was painted.
    void ResetCache() { walk_.ResetCache(); }
    // The visible rectangle of the cell in progress.
    const Rect& CellRect() const { return walk_.CellRect(); }
    // Null before the first size is known, and when memory is short.
    const Surface* BackStore() const { return Store(); }

    // Full repaints, and cells painted one by one, since the counters were cleared.
    int Repaints() const { return repaints_; }
    int Refreshes() const { return refreshes_; }
    void ClearCounters() { repaints_ = refreshes_ = 0; }

    // Gives back surfaces and pictures.
    void Release();

private:
    class Painting;

    Surface* Store() const { return lent_ ? lent_ : backStore_.hMemDC(); }
    PaintJob JobForRepaint() const;
    PaintJob JobForRefresh() const;
    bool ShowsBackStore() const;
    template <typename Cells> void Refresh(const Cells& cells);
    void RefreshCell(PaintJob& job, int row, int col);
    void ReportChange(const Rect& area);
    void CopyToControl();
    void FillStrip(ChildName bar);

    void BuildOwnBackStore(Size client);
    void FollowPendingSize();

    void PlaceSplitHandleOverCells();
    bool SplitMakesNoSense() const;
    void PlaceSplitHandleAtBar();
    void DrawSplitHandleOnItsWindow();

    PaintContext context_;
    BackgroundPicture background_;
    CellPainter painter_;
    PaintWalk walk_;
    // The back store: the container's own picture where it lends one, otherwise a surface made for it.
    Surface* lent_ = nullptr;
    cMemDC backStore_;
    bool repainted_ = false;
    bool firstPaintDone_ = false;
    int repaints_ = 0;
    int refreshes_ = 0;
    // What refreshed cells have covered so far.
    Rect refreshed_;
    // The paint that is going on.
    PaintJob* running_ = nullptr;
    bool releasePending_ = false;
    std::optional<Size> sizePending_;
};

} // namespace vornix
