// Where the handle of the split lies, and when a split makes no sense any more.
#include "render/paint_pipeline.h"
#include "render/split_handle.h"

#include <algorithm>
#include <tuple>

namespace vornix {

bool PaintPipeline::PaintSplitBar()
{
    const LayoutEngine& layout = context_.layout;
    const auto standing
        = [&] { return std::tuple(layout.Settings.SplitCols, context_.scroll.FirstCol(), layout.SmoothOffset()); };
    const auto before = standing();
    if (layout.Settings.SplitCols >= 1 && layout.HBarHeight() != 0)
        PlaceSplitHandleOverCells();
    if (SplitMakesNoSense())
        context_.layout.DropSplit();
    if (layout.Settings.SplitCols == 0)
        PlaceSplitHandleAtBar();
    DrawSplitHandleOnItsWindow();
    return standing() != before;
}

void PaintPipeline::DrawSplitHandleOnItsWindow()
{
    ChildWindow& handle = context_.container.Child(ChildName::picSplitCol);
    Device* const canvas = handle.Canvas();
    if (!canvas)
        return;
    DrawSplitHandle(
        *canvas, context_.container.Colors(), handle.Place().Height(), context_.layout.Settings.SplitCols > 0);
    handle.CanvasChanged();
}

void PaintPipeline::PlaceSplitHandleOverCells()
{
    const LayoutEngine& layout = context_.layout;
    const int lastFrozen = layout.FirstScrollCol() - 1;
    ChildWindow& handle = context_.container.Child(ChildName::picSplitCol);
    const int left = layout.CellOriginAt(0, lastFrozen).x + context_.store.WidthOf(lastFrozen) - 3;
    const int top = layout.CaptionHeight();
    const int height = std::clamp<int>(layout.ClientHeight() - top, 0, layout.ClientHeight());
    handle.Move({ left, top, left + handle.Place().Width(), top + height });
}

bool PaintPipeline::SplitMakesNoSense() const
{
    const LayoutEngine& layout = context_.layout;
    const bool nothingSplit = layout.Settings.SplitCols >= 1 && layout.FrozenColsWidth() == layout.FixedColsWidth();
    const bool outside = context_.container.Child(ChildName::picSplitCol).Place().left >= layout.ClientWidth();
    return layout.HBarHeight() == 0 || nothingSplit || outside;
}

// Without a split the handle waits at the left end of the horizontal bar.
void PaintPipeline::PlaceSplitHandleAtBar()
{
    LayoutEngine& layout = context_.layout;
    ChildWindow& handle = context_.container.Child(ChildName::picSplitCol);
    const int width = handle.Place().Width();
    const int clientHeight = layout.ClientHeight();
    handle.Move({ 0, clientHeight, width, clientHeight + layout.Settings.ScrollBarSize });
    const int barTop = clientHeight - 1;
    const int barLeft = layout.Settings.ShowSplit ? width : 0;
    const int barRight = std::max<int>(layout.ClientWidth(), barLeft);
    context_.container.Child(ChildName::scrH).Move({ barLeft, barTop, barRight, barTop + layout.HBarHeight() + 1 });
    layout.SetFrozenColsWidth(layout.FixedColsWidth());
}

} // namespace vornix
