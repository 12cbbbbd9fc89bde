// Handlers that do anything at all while lines are fitted to their texts. Whatever comes out is a grid that still holds
// together, or an automation error.
#include "support/handler_deeds.h"

namespace vornix {
namespace {

class FittingHandlers : public HandlerDeeds {
protected:
    FittingHandlers() { size = { 300, 200 }; }

    void FillGrid() override
    {
        Vornix& grid = Grid();
        grid.SetRedraw(false);
        grid.SetFixedRows(1);
        grid.SetFixedCols(1);
        grid.SetRows(30);
        grid.SetCols(6);
        for (i16 Row = 0; Row < 30; ++Row)
            grid.SetText(Row, Row % 6, u"a text of words");
        grid.SetTextAlignment(2, 2, vxWordBreak);
        grid.SetColSpan(3, 0, 3);
        grid.SetRowSpan(5, 1, 4);
        grid.HideRow(6);
        grid.HideCol(3);
        grid.SetColMode(0, vxTextBox);
        grid.SetRedraw(true);
    }

    Steps AllSteps() override
    {
        return {
            [&] { Grid().AdjustWidth(0); },
            [&] { Grid().AdjustHeight(2); },
            [&] { Grid().EnterEdit(); },
            [&] { Grid().AdjustHeight(3, NoIndex, true); },
            [&] { Grid().AdjustWidth(-1); },
            [&] { Grid().AdjustHeight(-1); },
            [&] { Grid().AdjustWidth(3); },
            [&] { Grid().AdjustHeight(6, 1, true); },
            [&] { host->DblClickAt(149, 10); },
            [&] { host->DblClickAt(10, 41); },
            [&] { Grid().AutoSizeRows(2); },
            [&] { Grid().AdjustWidth(5, 5); },
            [&] { Grid().AdjustHeight(29); },
            [&] { host->Paint(); },
        };
    }

    void CheckWhole() override
    {
        Vornix& grid = Grid();
        EXPECT_FALSE(grid.IsInCall());
        // Every line can be read, and none has less than nothing.
        for (i16 Row = static_cast<i16>(-grid.FixedRows()); Row < grid.Rows(); ++Row)
            ASSERT_GE(grid.RowHeight(Row), 0) << Row;
        for (i16 Col = static_cast<i16>(-grid.FixedCols()); Col < grid.Cols(); ++Col)
            ASSERT_GE(grid.ColWidth(Col), 0) << Col;
        if (grid.Redraw())
            Try([&] { grid.Refresh(); });
    }
};

class FittingHandlersOf : public FittingHandlers, public testing::WithParamInterface<const char*> { };

TEST_P(FittingHandlersOf, MayDoAnythingToTheGrid)
{
    TryAll(Deeds(), GetParam(), { 1, 2, 4 });
}

TEST_P(FittingHandlersOf, MayDoAnythingToTheEditors)
{
    TryAll(EditingDeeds(), GetParam(), { 1, 2 });
}

INSTANTIATE_TEST_SUITE_P(Fitting, FittingHandlersOf, testing::Values("ResizeCol", "ResizeRow"));

} // namespace
} // namespace vornix
