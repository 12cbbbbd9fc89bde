// Handlers that do anything at all at every event of a sort or a search.
#include "support/handler_deeds.h"

namespace vornix {
namespace {

class SortSearchHandlers : public HandlerDeeds {
protected:
    void FillGrid() override
    {
        Vornix& grid = Grid();
        grid.SetRedraw(false);
        grid.SetFixedRows(1);
        grid.SetFixedCols(1);
        grid.SetRows(40);
        grid.SetCols(6);
        for (i16 Row = 0; Row < 40; ++Row) {
            for (i16 Col = 0; Col < 6; ++Col) {
                grid.SetText(Row, Col, std::u16string(1, static_cast<char16_t>(u'a' + Row * 7 % 11)));
                grid.SetKey(Row, Col, Row % 2 ? u"odd" : u"even");
            }
        }
        grid.SetColMode(0, vxTextBox);
        grid.SetCellStyle(2, 1, vxCustomDraw);
        grid.SetCellStyle(-1, 1, vxCustomDraw);
        grid.SetSortOrder(1, 1);
        grid.SetSortOrder(0, 2);
        grid.SetRedraw(true);
    }

    void Edit(i16 Row)
    {
        Grid().CurrentPos(Row, 0);
        Grid().EnterEdit();
    }

    Steps AllSteps() override
    {
        return {
            [&] { Edit(3); },
            [&] { Grid().Sort(); },
            [&] { Grid().SpanRows(1); },
            [&] { Grid().SetRowSpan(4, 3, 5); },
            [&] { Edit(0); },
            [&] { Grid().SetSortOrder(1, 1); },
            [&] { Grid().Sort(); },
            [&] { Grid().HideRow(5, 10); },
            [&] { Grid().SetSelectedCells(0, 0, 3, 3); },
            [&] { Grid().Sort(); },
            [&] { Grid().SearchRow(vxText, 1, u"c", 1); },
            [&] { Grid().SearchCol(vxKey, 0, u"*e*", 1, u"*"); },
            [&] { Grid().SearchRow(vxKey, 5, u"*n", 1, u"*"); },
        };
    }

    void CheckWhole() override
    {
        Vornix& grid = Grid();
        EXPECT_FALSE(grid.IsInCall());
        if (grid.IsEditMode())
            host->Paint();
        else if (grid.Redraw())
            Try([&] { grid.Refresh(); });
    }
};

TEST_F(SortSearchHandlers, AreReachedByAllEventsOnTheWay)
{
    MakeGrid();
    LiveThroughIt();
    for (const char* const event : { "AfterEdit", "BeforeEdit", "DrawCell", "SearchResult" })
        EXPECT_GT(host->Count(event), 0) << event;
}

class SortSearchHandlersOf : public SortSearchHandlers, public testing::WithParamInterface<const char*> { };

TEST_P(SortSearchHandlersOf, MayDoAnythingToTheGrid)
{
    TryAll(Deeds(), GetParam(), { 1, 2 });
}

TEST_P(SortSearchHandlersOf, MayDoAnythingToTheEditors)
{
    TryAll(EditingDeeds(), GetParam(), { 1, 2 });
}

INSTANTIATE_TEST_SUITE_P(Data, SortSearchHandlersOf,
    testing::Values("AfterEdit", "BeforeEdit", "DrawCell", "SearchResult"),
    [](const auto& event) { return std::string(event.param); });

} // namespace
} // namespace vornix
