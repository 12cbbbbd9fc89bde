#include "model/select_collection.h"

#include "model/plain_selection.h"
#include "vornix/automation.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>
#include <vector>

namespace vornix {
namespace {

using Ranges = std::vector<std::pair<i32, i32>>;

Ranges LiveRanges(const SelectCollection& selection)
{
    Ranges ranges;
    for (int slot = 0; slot < selection.SlotCount(); ++slot) {
        if (selection.Slot(slot).isActive)
            ranges.emplace_back(selection.Slot(slot).left, selection.Slot(slot).right);
    }
    return ranges;
}

SelectCollection Rows(i32 first, i32 last)
{
    SelectCollection selection;
    selection.AddRows(true, first, last);
    return selection;
}

TEST(SelectCollection, IsEmptyAtFirst)
{
    const SelectCollection selection;
    EXPECT_EQ(selection.Mode(), SelectionKind::None);
    EXPECT_EQ(selection.Count(), 0);
    EXPECT_EQ(selection.CountCells() + selection.CountCols() + selection.CountRows(), 0);
    EXPECT_FALSE(selection.IsCellSelected(0, 0));
}

TEST(SelectCollection, HoldsOneKindAtATime)
{
    SelectCollection selection = Rows(1, 2);
    selection.AddCols(false, 4, 6);
    EXPECT_EQ(selection.Mode(), SelectionKind::Cols);
    EXPECT_EQ(selection.CountCols(), 3);
    EXPECT_EQ(selection.CountRows(), 0);
    EXPECT_TRUE(selection.IsColSelected(5));
    EXPECT_FALSE(selection.IsRowSelected(5));
    selection.AddCells(false, 1, 2, 3, 4);
    EXPECT_EQ(selection.CountCells(), 9);
    EXPECT_TRUE(selection.IsCellSelected(3, 4));
    EXPECT_FALSE(selection.IsCellSelected(4, 3));
}

TEST(SelectCollection, ForgetsTheModeWithTheLastRange)
{
    SelectCollection selection = Rows(1, 2);
    selection.SetMode(SelectionKind::Cols);
    EXPECT_EQ(selection.Mode(), SelectionKind::Cols);
    selection.RemoveAll();
    selection.SetMode(SelectionKind::Rows);
    EXPECT_EQ(selection.Mode(), SelectionKind::None);
}

TEST(SelectCollection, AddsNothingForALastIndexBeforeTheFirst)
{
    SelectCollection selection;
    selection.AddRows(true, 5, 4);
    EXPECT_EQ(selection.Count(), 0);
}

TEST(SelectCollection, CountsARangeThatIsAddedTwiceTwice)
{
    SelectCollection selection = Rows(3, 3);
    selection.AddRows(false, 3, 3);
    EXPECT_EQ(selection.CountRows(), 2);
}

TEST(SelectCollection, TellsAnotherKindOnlyWhileSomethingIsSelected)
{
    SelectCollection selection;
    EXPECT_FALSE(selection.IsNewModeSelection(SelectionKind::Cols));
    selection.AddRows(true, 1, 1);
    EXPECT_TRUE(selection.IsNewModeSelection(SelectionKind::Cols));
    EXPECT_FALSE(selection.IsNewModeSelection(SelectionKind::Rows));
}

TEST(SelectCollection, RemovesOnlyRangesThatReachOverTheInterval)
{
    SelectCollection single = Rows(5, 5);
    single.RemoveRows(5, 5);
    EXPECT_EQ(single.Count(), 1);

    SelectCollection range = Rows(4, 6);
    range.RemoveCols(4, 6);
    EXPECT_EQ(range.Count(), 1);
    range.RemoveRows(5, 5);
    EXPECT_EQ(range.Count(), 0);
    EXPECT_EQ(range.Mode(), SelectionKind::None);
}

TEST(SelectCollection, TakesOneLineOutOfTheMiddleOfARange)
{
    SelectCollection selection = Rows(2, 6);
    selection.UnSelectRange(4);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 2, 3 }, { 5, 6 } }));
    EXPECT_EQ(selection.Count(), 2);
}

TEST(SelectCollection, TakesOneLineOffTheEndsOfARange)
{
    SelectCollection selection = Rows(2, 4);
    selection.UnSelectRange(2);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 3, 4 } }));
    selection.UnSelectRange(4);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 3, 3 } }));
    EXPECT_TRUE(selection.Slot(0).isSingle);
    selection.UnSelectRange(3);
    EXPECT_EQ(selection.Count(), 0);
}

TEST(SelectCollection, TakesALineOutOfTheFirstOfTwoRangesOnly)
{
    SelectCollection selection = Rows(3, 3);
    selection.AddRows(false, 2, 6);
    selection.UnSelectRange(3);
    EXPECT_TRUE(selection.IsRowSelected(3));
    EXPECT_EQ(selection.Count(), 1);
}

TEST(SelectCollection, KeepsAnEmptyRangeThatAnswersToItsNextLine)
{
    SelectCollection selection = Rows(2, 6);
    selection.UnSelectRange(3);
    selection.UnSelectRange(2);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 3, 2 }, { 4, 6 } })) << "the part in front was not marked single";
    EXPECT_EQ(selection.Count(), 2);
    EXPECT_EQ(selection.CountRows(), 3);
    EXPECT_FALSE(selection.IsRowSelected(2));
    selection.AddRows(false, 3, 3);
    selection.UnSelectRange(3);
    EXPECT_TRUE(selection.IsRowSelected(3)) << "the empty range was the first match";
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 4, 2 }, { 4, 6 }, { 3, 3 } }));
    selection.UnSelectRange(2);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 4, 1 }, { 4, 6 }, { 3, 3 } }));
    selection.UnSelectRange(3);
    EXPECT_FALSE(selection.IsRowSelected(3));
}

TEST(SelectCollection, LosesThePartBeforeDeletedLinesThatIsWrittenIntoItsOwnSlot)
{
    SelectCollection selection = Rows(1, 1);
    selection.AddRows(false, 3, 3);
    selection.AddRows(false, 5, 9);
    selection.UnSelectRange(1);
    selection.AddRows(false, 0, 0);
    selection.AddRows(false, 2, 2);
    selection.DeleteItems(7, 1);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 0, 0 }, { 2, 2 }, { 7, 8 } }));
    EXPECT_EQ(selection.Count(), 5);
}

TEST(SelectCollection, OverwritesTheRangeBehindAFreedSlot)
{
    SelectCollection selection = Rows(1, 1);
    selection.AddRows(false, 3, 3);
    selection.AddRows(false, 5, 5);
    selection.UnSelectRange(1);
    selection.AddRows(false, 7, 7);
    selection.AddRows(false, 9, 9);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 7, 7 }, { 9, 9 }, { 5, 5 } }));
    EXPECT_EQ(selection.Count(), 4);
}

TEST(SelectCollection, KeepsCoveredRangesCountedWhenARunIsUnselected)
{
    SelectCollection selection = Rows(2, 3);
    selection.AddRows(false, 5, 9);
    selection.UnselectItems(1, 6);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 7, 9 } }));
    EXPECT_EQ(selection.Count(), 2);
}

TEST(SelectCollection, CutsARangeAroundAnUnselectedRun)
{
    SelectCollection selection = Rows(2, 9);
    selection.UnselectItems(4, 5);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 2, 3 }, { 6, 9 } }));
    selection.UnselectItems(9, 12);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 2, 3 }, { 6, 8 } }));
}

TEST(SelectCollection, CutsARangeAroundInsertedLines)
{
    SelectCollection selection = Rows(2, 6);
    selection.InsertItems(4, 2);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 2, 3 }, { 6, 8 } }));
    selection.InsertItems(0, 1);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 3, 4 }, { 7, 9 } }));
}

TEST(SelectCollection, ShrinksARangeByDeletedLines)
{
    SelectCollection selection = Rows(2, 6);
    selection.DeleteItems(3, 2);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 3, 4 }, { 2, 2 } }));
    EXPECT_EQ(selection.Count(), 2);
}

TEST(SelectCollection, DropsRangesThatAreDeletedWhole)
{
    SelectCollection selection = Rows(2, 3);
    selection.AddRows(false, 6, 9);
    selection.DeleteItems(2, 2);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 4, 7 } }));
    EXPECT_EQ(selection.Count(), 1);
    selection.DeleteItems(6, 9);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 4, 5 } }));
}

TEST(SelectCollection, LeavesRectanglesAloneWhenLinesComeAndGo)
{
    SelectCollection selection;
    selection.AddCells(true, 1, 1, 4, 4);
    selection.InsertItems(2, 3);
    selection.DeleteItems(0, 1);
    selection.UnselectItems(0, 9);
    selection.InvertSelection(0, 9);
    EXPECT_EQ(selection.CountCells(), 16);
}

TEST(SelectCollection, InvertsWhatIsSelected)
{
    SelectCollection selection = Rows(2, 3);
    selection.AddRows(false, 6, 6);
    selection.InvertSelection(0, 9);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 0, 1 }, { 4, 5 }, { 7, 9 } }));
    EXPECT_EQ(selection.Mode(), SelectionKind::Rows);
}

TEST(SelectCollection, InvertsNothingToNothing)
{
    SelectCollection selection;
    selection.InvertSelection(0, 9);
    EXPECT_EQ(selection.Count(), 0);
}

TEST(SelectCollection, WalksRangesFromASlotOn)
{
    SelectCollection selection = Rows(1, 2);
    selection.AddRows(false, 5, 5);
    i16 slot = 0;
    i32 first = 0;
    i32 last = 0;
    EXPECT_TRUE(selection.SelectItem(slot, first, last));
    EXPECT_EQ(std::make_pair(first, last), std::make_pair(1, 2));
    ++slot;
    EXPECT_TRUE(selection.SelectItem(slot, first, last));
    EXPECT_EQ(first, 5);
    ++slot;
    EXPECT_FALSE(selection.SelectItem(slot, first, last));
}

TEST(SelectCollection, GivesTheFirstRectangle)
{
    SelectCollection selection;
    selection.AddCells(true, 4, 3, 2, 1);
    i16 slot = 0;
    i32 row1 = 0;
    i32 col1 = 0;
    i32 row2 = 0;
    i32 col2 = 0;
    EXPECT_TRUE(selection.SelectCell(slot, row1, col1, row2, col2));
    EXPECT_EQ((std::vector<i32> { row1, col1, row2, col2 }), (std::vector<i32> { 4, 3, 2, 1 }));
    EXPECT_EQ(slot, 0);
    selection.AddRows(true, 1, 1);
    EXPECT_FALSE(selection.SelectCell(slot, row1, col1, row2, col2));
}

TEST(SelectCollection, CannotHoldMoreRangesThanAreCounted)
{
    SelectCollection selection;
    for (int row = 0; row < 32766; ++row)
        selection.AddRows(false, row, row);
    try {
        for (int more = 0; more < 3; ++more)
            selection.AddRows(false, 0, 0);
        FAIL() << "no error";
    } catch (const AutomationError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::Overflow);
    }
    selection.InsertItems(0, 1);
    EXPECT_TRUE(selection.IsRowSelected(32766));
}

TEST(SelectCollection, AgreesWithAPlainOneOverRandomOperations)
{
    std::mt19937 random(20240611);
    const auto below = [&](int limit) { return static_cast<i32>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 400; ++round) {
        SelectCollection selection;
        PlainSelection plain;
        for (int step = 0; step < 60; ++step) {
            const i32 a = below(30);
            const i32 b = a + below(8);
            switch (below(7)) {
            case 0:
            case 1: {
                const bool reset = below(12) == 0;
                selection.AddRows(reset, a, b);
                plain.AddRows(reset, a, b);
                break;
            }
            case 2:
                selection.UnSelectRange(a);
                plain.UnSelect(a);
                break;
            case 3:
                selection.UnselectItems(a, b);
                plain.Unselect(a, b);
                break;
            case 4:
                selection.InsertItems(a, b - a);
                plain.Insert(a, b - a);
                break;
            case 5:
                selection.DeleteItems(a, b - a);
                plain.Delete(a, b - a);
                break;
            default:
                selection.InvertSelection(0, 30);
                plain.Invert(0, 30);
            }
            ASSERT_EQ(selection.Count(), plain.count) << "round " << round << " step " << step;
            Ranges expected;
            for (const auto& [slot, item] : plain.live)
                expected.emplace_back(item.left, item.right);
            if (plain.count > 0) {
                ASSERT_EQ(LiveRanges(selection), expected) << "round " << round << " step " << step;
            }
        }
    }
}

} // namespace
} // namespace vornix
