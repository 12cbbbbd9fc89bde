#include "control/repaint_funnel.h"

#include "automation/scoped_flag.h"

namespace vornix {

template <typename Step> void RepaintFunnel::Paint(const Step& step)
{
    if (!ready_ || painting_)
        return;
    {
        const ScopedFlag painting(painting_);
        step();
    }
    if (sizeChangePending_ && !followingSize_ && ready_)
        FollowClientSize();
}

void RepaintFunnel::RepaintGrid()
{
    Paint([this] { context_.paint.RepaintGrid(); });
}

void RepaintFunnel::RecalcLayout(bool forcePercent)
{
    if (!ready_)
        return;
    LayoutEngine& layout = context_.layout;
    context_.paint.ClearRepainted();
    context_.store.RefreshLastIndices();
    layout.UpdateCaptionHeight();
    if (context_.editor.IsEditorOpen())
        context_.editor.CloseEditor();
    if (!context_.gate.IsOpen() && !forcePercent)
        return;

    if (!painting_)
        layout.SetScaleSize(context_.container.ClientSize());
    layout.MeasureIfDirty();
    layout.CalcScrollBarNeed(forcePercent);
    if (!context_.gate.IsOpen() || painting_)
        return;

    layout.UpdateClientArea();
    context_.editor.FollowLayout();
    context_.paint.RebuildBackgroundIfStale();
    context_.scrolling.UpdateScrollBars();
    if (!context_.paint.Repainted())
        RepaintGrid();
}

void RepaintFunnel::RefreshRowCells(int row)
{
    Paint([&] { context_.paint.RefreshRowCells(row); });
}

void RepaintFunnel::RefreshColCells(int col)
{
    Paint([&] { context_.paint.RefreshColCells(col); });
}

void RepaintFunnel::RefreshIfInRange(int row, int col)
{
    Paint([&] { context_.paint.RefreshIfInRange(row, col); });
}

void RepaintFunnel::RefreshOneCell(int row, int col)
{
    Paint([&] { context_.paint.RefreshOneCell(row, col); });
}

void RepaintFunnel::RepaintUnderGate()
{
    if (context_.gate.IsOpen())
        RepaintGrid();
}

void RepaintFunnel::RefreshRowUnderGate(int row)
{
    if (context_.gate.IsOpen())
        RefreshRowCells(row);
}

void RepaintFunnel::RefreshColUnderGate(int col)
{
    if (context_.gate.IsOpen())
        RefreshColCells(col);
}

void RepaintFunnel::RefreshCellUnderGate(int row, int col)
{
    if (context_.gate.IsOpen())
        RefreshIfInRange(row, col);
}

void RepaintFunnel::ClientSizeChanged()
{
    sizeChangePending_ = true;
    if (!painting_ && !followingSize_)
        FollowClientSize();
}

void RepaintFunnel::FollowClientSize()
{
    const ScopedFlag following(followingSize_);
    sizeChangePending_ = false;
    const Size client = context_.container.ClientSize();
    context_.layout.SetScaleSize(client);
    context_.paint.ResizeBackStore(client);
    context_.paint.MarkBackgroundStale();
    RecalcLayout();
}

void RepaintFunnel::PaintMessage()
{
    Paint([this] { context_.paint.PaintMessage(); });
}

void RepaintFunnel::PaintSplitBar()
{
    bool splitDropped = false;
    Paint([&] { splitDropped = context_.paint.PaintSplitBar(); });
    if (!splitDropped)
        return;
    if (context_.layout.HBarHeight() > 0)
        context_.scrolling.UpdateHScrollRange();
    RepaintUnderGate();
}

} // namespace vornix
