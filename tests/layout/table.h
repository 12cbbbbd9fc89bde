// A small table with its layout, for the tests of this folder.
#pragma once

#include "layout/layout_engine.h"
#include "model/hidden_lines.h"
#include "vornix/automation.h"
#include "vornix/platform/system_colors.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace vornix {

struct Table {
    GridStore store;
    ScrollModel scroll { store };
    LayoutEngine layout { store, scroll };

    Table(int fixedRows, int rows, int fixedCols, int cols)
    {
        const auto font = std::make_shared<FontObject>();
        store.Defaults.Font = font;
        store.Defaults.FontFixed = font;
        store.StoreFixedRows(static_cast<i16>(fixedRows));
        store.StoreRows(static_cast<i16>(rows));
        store.StoreFixedCols(static_cast<i16>(fixedCols));
        store.StoreCols(static_cast<i16>(cols));
        store.InitGridStore(SystemColors());
        layout.ResetFor(store);
    }

    // Sizes from line 0 on, fixed ones included.
    void Heights(const std::vector<int>& heights)
    {
        for (std::size_t row = 0; row < heights.size(); ++row)
            store.RowAt(static_cast<int>(row)).Height = static_cast<i16>(heights[row]);
        layout.MarkMetricsDirty();
    }
    void Widths(const std::vector<int>& widths)
    {
        for (std::size_t col = 0; col < widths.size(); ++col)
            store.ColumnAt(static_cast<int>(col)).Width = static_cast<i16>(widths[col]);
        layout.MarkMetricsDirty();
    }
    std::vector<int> Widths() const
    {
        std::vector<int> widths;
        for (int col = 0; col <= store.LastColIndex(); ++col)
            widths.push_back(store.ColumnAt(col).Width);
        return widths;
    }

    // A window that never needs a bar unless the test turns one on.
    void Window(int width, int height) { layout.SetScaleSize({ width, height }); }
    void NoBars()
    {
        layout.Settings.ScrollHBar = vxNoScrollBar;
        layout.Settings.ScrollVBar = vxNoScrollBar;
    }

    // The steps of a layout that this floor has, in their order.
    void Layout(bool forcePercent = false)
    {
        layout.UpdateCaptionHeight();
        layout.MeasureIfDirty();
        layout.CalcScrollBarNeed(forcePercent);
        layout.UpdateClientArea();
    }
    // Measured in a window without bars.
    void LayoutWithoutBars(int width, int height)
    {
        NoBars();
        Window(width, height);
        Layout();
    }
};

// The number of the automation error that `step` raises, 0 for none.
template <class Step> int ErrorOf(Step step)
{
    try {
        step();
    } catch (const AutomationError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace vornix
