#include "model/select_collection.h"

#include "model/plain_selection.h"
#include "vornix/automation.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <tuple>
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

TEST(SelectCollection, RemovesRangesThatShareMoreThanAnEnd)
{
    for (const auto& [first, last, isRemoved] :
        std::vector<std::tuple<i32, i32, bool>> { { 0, 4, false }, { 6, 9, false }, { 0, 5, true }, { 5, 9, true },
            { 4, 4, false }, { 5, 5, true }, { 6, 6, false }, { 4, 6, true }, { 6, 4, false } }) {
        SelectCollection rows = Rows(4, 6);
        rows.RemoveRows(first, last);
        EXPECT_EQ(rows.Count() == 0, isRemoved) << first << " to " << last;
        SelectCollection cols;
        cols.AddCols(true, 4, 6);
        cols.RemoveCols(first, last);
        EXPECT_EQ(cols.Count() == 0, isRemoved) << first << " to " << last;
    }
    SelectCollection single = Rows(5, 5);
    single.RemoveRows(4, 5);
    single.RemoveRows(5, 6);
    EXPECT_EQ(single.Count(), 1);
    single.RemoveRows(4, 6);
    EXPECT_EQ(single.Count(), 0) << "a line alone goes when it lies between the ends";
}

TEST(SelectCollection, RemovesOnlyFromItsKind)
{
    SelectCollection cells;
    cells.AddCells(true, 1, 1, 9, 9);
    cells.RemoveRows(2, 8);
    cells.RemoveCols(2, 8);
    EXPECT_EQ(cells.CountCells(), 81);
}

TEST(SelectCollection, TellsTheSameLineAnewAfterEveryChange)
{
    SelectCollection selection = Rows(2, 6);
    EXPECT_TRUE(selection.IsRowSelected(4));
    selection.UnSelectRange(4);
    EXPECT_FALSE(selection.IsRowSelected(4));
    selection.AddRows(false, 4, 4);
    EXPECT_TRUE(selection.IsRowSelected(4));
    selection.InsertItems(0, 9);
    EXPECT_FALSE(selection.IsRowSelected(4));
    selection.DeleteItems(0, 9);
    EXPECT_TRUE(selection.IsRowSelected(4));
    selection.UnselectItems(4, 4);
    EXPECT_FALSE(selection.IsRowSelected(4));
    selection.InvertSelection(0, 9);
    EXPECT_TRUE(selection.IsRowSelected(4));
    selection.SetMode(SelectionKind::Cols);
    EXPECT_FALSE(selection.IsRowSelected(4));
    EXPECT_TRUE(selection.IsColSelected(4));
    selection.RemoveCols(0, 9);
    EXPECT_FALSE(selection.IsColSelected(4));
    selection = Rows(4, 4);
    EXPECT_TRUE(selection.IsRowSelected(4));
    selection.RemoveAll();
    EXPECT_FALSE(selection.IsRowSelected(4));
}

TEST(SelectCollection, HasNothingToTakeALineOutOfOnceAllIsRemoved)
{
    SelectCollection selection = Rows(2, 2);
    selection.AddRows(false, 5, 9);
    selection.RemoveAll();
    selection.UnSelectRange(2);
    selection.UnSelectRange(7);
    EXPECT_EQ(selection.Count(), 0);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 2, 2 }, { 5, 9 } })) << "slots keep what they hold";
    selection.AddRows(false, 4, 4);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 4, 4 } }));
}

TEST(SelectCollection, RefillsTheSlotOfARangeThatWasDeletedWhole)
{
    SelectCollection selection = Rows(1, 2);
    selection.AddRows(false, 5, 6);
    selection.AddRows(false, 9, 9);
    selection.DeleteItems(5, 2);
    selection.AddRows(false, 20, 20);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 1, 2 }, { 20, 20 }, { 7, 7 } }));
    EXPECT_EQ(selection.Count(), 3);
}

TEST(SelectCollection, TakesALineOutOfARangeThatWasWrittenOverItsOwnFront)
{
    SelectCollection selection = Rows(1, 1);
    selection.AddRows(false, 5, 9);
    selection.UnSelectRange(1);
    selection.AddRows(false, 0, 0); // its slot is followed by that of 5 to 9
    selection.DeleteItems(6, 1);
    ASSERT_EQ(LiveRanges(selection), (Ranges { { 0, 0 }, { 6, 8 } }));
    EXPECT_FALSE(selection.Slot(1).isSingle);
    selection.UnSelectRange(7);
    EXPECT_EQ(LiveRanges(selection), (Ranges { { 0, 0 }, { 6, 6 }, { 8, 8 } }));
    EXPECT_FALSE(selection.IsRowSelected(7));
}

class RandomRanges : public testing::Test {
protected:
    i32 Below(int limit) { return static_cast<i32>(random_() % static_cast<unsigned>(limit)); }

    void Step()
    {
        const i32 a = Below(30);
        const i32 b = a + Below(8);
        const bool reset = Below(12) == 0;
        switch (Below(14)) {
        case 0:
        case 1:
        case 2:
            selection.AddRows(reset, a, b);
            return plain.AddRows(reset, a, b);
        case 3:
        case 4:
            selection.UnSelectRange(a);
            return plain.UnSelect(a);
        case 5:
            selection.UnselectItems(a, b);
            return plain.Unselect(a, b);
        case 6:
            selection.InsertItems(a, b - a);
            return plain.Insert(a, b - a);
        case 7:
        case 8:
            selection.DeleteItems(a, b - a);
            return plain.Delete(a, b - a);
        case 9:
            selection.InvertSelection(0, 30);
            return plain.Invert(0, 30);
        case 10:
            selection.RemoveRows(a, b);
            return plain.RemoveLines(PlainSelection::Rows, a, b);
        case 11:
            selection.RemoveCols(a, b);
            return plain.RemoveLines(PlainSelection::Cols, a, b);
        default:
            // Seldom, as it ends what the others have made.
            return Below(5) == 0 ? ChangeKind(a, b) : AddToKind(a, b);
        }
    }

    void AddToKind(i32 a, i32 b)
    {
        if (plain.Mode() == PlainSelection::Cols) {
            selection.AddCols(false, a, b);
            plain.AddCols(false, a, b);
        } else if (plain.Mode() == PlainSelection::Cells) {
            selection.AddCells(false, b, a, a, b);
            plain.AddCells(false, b, a, a, b);
        }
    }

    void ChangeKind(i32 a, i32 b)
    {
        switch (Below(4)) {
        case 0:
            selection.AddCols(false, a, b);
            return plain.AddCols(false, a, b);
        case 1:
            selection.AddCells(false, a, a, b, b + 2);
            return plain.AddCells(false, a, a, b, b + 2);
        case 2: {
            const int mode = Below(4);
            selection.SetMode(static_cast<SelectionKind>(mode));
            return plain.SetMode(mode);
        }
        default:
            selection.RemoveAll();
            return plain.RemoveAll();
        }
    }

    void Compare()
    {
        ASSERT_EQ(selection.Count(), plain.count);
        ASSERT_EQ(static_cast<int>(selection.Mode()), plain.Mode());
        ASSERT_EQ(selection.CountRows(), plain.CountLines(PlainSelection::Rows));
        ASSERT_EQ(selection.CountCols(), plain.CountLines(PlainSelection::Cols));
        ASSERT_EQ(selection.CountCells(), plain.CountCells());
        ASSERT_EQ(selection.IsNewModeSelection(SelectionKind::Rows), plain.IsNewMode(PlainSelection::Rows));
        CompareLines();
        CompareSlots();
        CompareWalk(static_cast<i16>(Below(8)));
    }

    void CompareLines()
    {
        for (i32 line = 0; line < 40; ++line) {
            const bool isHeld = plain.IsSelected(line);
            ASSERT_EQ(selection.IsRowSelected(line), isHeld && plain.Mode() == PlainSelection::Rows) << line;
            ASSERT_EQ(selection.IsColSelected(line), isHeld && plain.Mode() == PlainSelection::Cols) << line;
            ASSERT_EQ(selection.IsCellSelected(line, 12), plain.IsCellSelected(line, 12)) << line;
        }
    }

    void CompareSlots()
    {
        std::map<int, PlainSelection::Item> live;
        for (int slot = 0; slot < selection.SlotCount(); ++slot) {
            const SelectedRange& item = selection.Slot(slot);
            if (item.isActive)
                live[slot] = { item.left, item.right, item.isSingle, item.top, item.bottom };
        }
        ASSERT_TRUE(live == plain.live);
    }

    void CompareWalk(i16 from)
    {
        i16 slot = from;
        i32 first = 0;
        i32 last = 0;
        const auto next = plain.live.lower_bound(from);
        const bool found = selection.SelectItem(slot, first, last);
        ASSERT_EQ(found, next != plain.live.end());
        if (!found)
            return;
        ASSERT_EQ(slot, next->first);
        ASSERT_EQ(std::pair(first, last), std::pair(next->second.left, next->second.right));
    }

    SelectCollection selection;
    PlainSelection plain;

private:
    std::mt19937 random_ { 20240611 };
};

TEST_F(RandomRanges, AgreeWithPlainOnes)
{
    for (int round = 0; round < 600; ++round) {
        selection = SelectCollection();
        plain = PlainSelection();
        for (int step = 0; step < 60; ++step) {
            SCOPED_TRACE(testing::Message() << "round " << round << " step " << step);
            Step();
            ASSERT_NO_FATAL_FAILURE(Compare());
        }
    }
}

} // namespace
} // namespace vornix
