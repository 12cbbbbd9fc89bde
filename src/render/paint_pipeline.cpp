#include "render/paint_pipeline.h"

#include "automation/colors.h"

#include <algorithm>
#include <utility>

namespace vornix {

namespace {

Rect Joined(const Rect& a, const Rect& b)
{
    if (a.IsEmpty())
        return b;
    if (b.IsEmpty())
        return a;
    return { std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
        std::max(a.bottom, b.bottom) };
}

Rect Clipped(const Rect& rect, Size size)
{
    return { std::max(rect.left, 0), std::max(rect.top, 0), std::min(rect.right, size.width),
        std::min(rect.bottom, size.height) };
}

Rect WholeOf(Size size)
{
    return { 0, 0, size.width, size.height };
}

} // namespace

// From the first cell of a paint to its last, however it ends. A control that a handler closed meanwhile is released then.
class PaintPipeline::Painting {
public:
    Painting(PaintPipeline& pipeline, PaintJob& job)
        : pipeline_(pipeline)
    {
        pipeline_.running_ = &job;
        pipeline_.painter_.BeginPaint();
    }
    ~Painting()
    {
        pipeline_.painter_.EndPaint();
        pipeline_.running_ = nullptr;
        if (pipeline_.releasePending_)
            pipeline_.Release();
    }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;

private:
    PaintPipeline& pipeline_;
};

PaintPipeline::PaintPipeline(PaintContext context)
    : context_(context)
    , painter_(context_, Settings, background_)
    , walk_(context_, painter_)
{
}

PaintPipeline::~PaintPipeline() = default;

bool PaintPipeline::ShowsBackStore() const
{
    const Surface* const store = Store();
    return store && context_.container.WindowDevice().IsSamePicture(*store);
}

PaintJob PaintPipeline::JobForRepaint() const
{
    return { .target = Store() };
}

PaintJob PaintPipeline::JobForRefresh() const
{
    if (ShowsBackStore())
        return { .target = Store() };
    return { .target = &context_.container.WindowDevice(), .mirror = Store() };
}

void PaintPipeline::RepaintGrid()
{
    if (running_)
        return;
    PaintJob job = JobForRepaint();
    try {
        const Painting painting(*this, job);
        walk_.PaintGrid(job);
    } catch (...) {
        FollowPendingSize();
        if (!job.stopped)
            ReportChange(WholeOf(context_.container.ClientSize())); // what was painted before the error is seen
        throw;
    }
    FollowPendingSize();
    if (job.stopped)
        return;
    CopyToControl();
    repainted_ = true;
    ++repaints_;
    ReportChange(WholeOf(context_.container.ClientSize()));
}

// The whole scale area, the strips below the bars included; the bars lie above it.
void PaintPipeline::CopyToControl()
{
    const Surface* const store = Store();
    if (store && !ShowsBackStore())
        context_.container.WindowDevice().BitBlt(
            WholeOf(context_.container.ClientSize()), *store, {}, RasterOp::SrcCopy);
}

void PaintPipeline::ReportChange(const Rect& area)
{
    const Rect seen = Clipped(area, context_.container.ClientSize());
    if (!seen.IsEmpty())
        context_.container.PictureChanged(seen);
}

template <typename Cells> void PaintPipeline::Refresh(const Cells& cells)
{
    if (running_)
        return;
    refreshed_ = {};
    PaintJob job = JobForRefresh();
    const auto finish = [&] {
        FollowPendingSize();
        if (!job.stopped)
            ReportChange(refreshed_);
    };
    try {
        const Painting painting(*this, job);
        cells(job);
    } catch (...) {
        finish(); // what was painted before the error is seen
        throw;
    }
    finish();
}

void PaintPipeline::RefreshCell(PaintJob& job, int row, int col)
{
    ++refreshes_;
    if (walk_.PaintCellAt(job, row, col))
        refreshed_ = Joined(refreshed_, walk_.CellRect());
}

void PaintPipeline::RefreshOneCell(int row, int col)
{
    Refresh([&](PaintJob& job) { RefreshCell(job, row, col); });
}

void PaintPipeline::RefreshIfInRange(int row, int col)
{
    if (row <= PaintLastRow() && col <= PaintLastCol())
        RefreshOneCell(row, col);
}

void PaintPipeline::RefreshRowCells(int row)
{
    Refresh([&](PaintJob& job) {
        // A handler may take the row away meanwhile.
        for (int col = 0; col <= PaintLastCol() && !job.stopped && context_.store.ContainsRow(row); ++col) {
            col = walk_.ScrollJump(col, context_.store.FixedCols(), context_.scroll.FirstCol());
            if (col <= PaintLastCol())
                RefreshCell(job, row, col);
        }
    });
}

void PaintPipeline::RefreshColCells(int col)
{
    Refresh([&](PaintJob& job) {
        for (int row = 0; row <= PaintLastRow() && !job.stopped && context_.store.ContainsCol(col); ++row) {
            row = walk_.ScrollJump(row, context_.store.FixedRows(), context_.scroll.FirstRow());
            if (row <= PaintLastRow())
                RefreshCell(job, row, col);
        }
    });
}

void PaintPipeline::PaintMessage()
{
    if (firstPaintDone_) {
        CopyToControl();
    } else {
        firstPaintDone_ = true;
        RepaintGrid();
    }
    FillStrip(ChildName::scrH);
    FillStrip(ChildName::scrV);
}

void PaintPipeline::FillStrip(ChildName bar)
{
    Container& container = context_.container;
    const ChildWindow& window = container.Child(bar);
    if (!window.IsVisible())
        return;
    const ColorRef face = OleTranslateColor(SystemOleColor(SystemColor::ButtonFace), container.Colors());
    container.WindowDevice().FillRect(window.Place(), face);
}

void PaintPipeline::ResizeBackStore(Size client)
{
    if (running_) {
        sizePending_ = client;
        return;
    }
    lent_ = context_.container.BackStore(client);
    if (!lent_)
        BuildOwnBackStore(client);
    firstPaintDone_ = true;
    background_.MarkStale();
}

void PaintPipeline::BuildOwnBackStore(Size client)
{
    bool rebuilt = false;
    Device& window = context_.container.WindowDevice();
    Surface* const store = backStore_.BuildMemDC(window, client.width, client.height, rebuilt);
    // Never shown as it comes: it may be a while until the first repaint.
    if (store && rebuilt)
        store->FillRect(WholeOf(store->GetSize()), window.GetBkColor());
}

void PaintPipeline::FollowPendingSize()
{
    if (const std::optional<Size> size = std::exchange(sizePending_, std::nullopt))
        ResizeBackStore(*size);
}

void PaintPipeline::MarkBackgroundStale()
{
    background_.MarkStale();
}

void PaintPipeline::RebuildBackgroundIfStale()
{
    if (!background_.IsStale())
        return;
    RenderBackgroundPicture(0, 0);
    background_.ClearStale();
}

void PaintPipeline::SetPicture(const PicturePtr& picture)
{
    Settings.Picture = picture && picture->Handle() != 0 ? picture : nullptr;
    background_.SetPicture(Settings.Picture);
    RenderBackgroundPicture(0, 0);
}

void PaintPipeline::SetPictureBrightness(i32 brightness)
{
    if (brightness < 0 || brightness > 100)
        return;
    Settings.PictureBrightness = brightness;
    background_.ForgetSize();
    RenderBackgroundPicture(0, 0);
}

void PaintPipeline::RenderBackgroundPicture(int width, int height)
{
    if (!background_.HasPicture())
        return;
    const Size screen = context_.container.ScreenSizeInTwips();
    const Size twips = context_.container.TwipsPerPixel();
    const GridStore& store = context_.store;
    const int lastCol = context_.scroll.LastCol();
    const int lastRow = context_.scroll.LastRow();
    int neededWidth = context_.layout.ClientWidth() + (store.ContainsCol(lastCol) ? store.WidthOf(lastCol) : 0);
    int neededHeight = context_.layout.ClientHeight() + (store.ContainsRow(lastRow) ? store.HeightOf(lastRow) : 0);
    if (width > 0)
        neededWidth = width;
    if (height > 0)
        neededHeight = height;
    const Size needed { std::max(screen.width / twips.width, neededWidth),
        std::max(screen.height / twips.height, neededHeight) };
    background_.Render(context_.container.WindowDevice(), needed, Settings.PictureBrightness);
}

void PaintPipeline::Release()
{
    if (running_) {
        running_->stopped = true;
        releasePending_ = true;
        return;
    }
    releasePending_ = false;
    lent_ = nullptr;
    backStore_.ClearMemDC();
    background_.SetPicture(nullptr);
    Settings.Picture = nullptr;
    painter_.Release();
}

} // namespace vornix
