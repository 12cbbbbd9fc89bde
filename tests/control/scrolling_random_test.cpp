// The steps of scrolling beside slow ones that walk over plain lists of sizes.
#include "control/scroll_fixture.h"

#include <algorithm>
#include <random>

namespace vornix {
namespace {

// A table as lists of sizes, and where its view stands; what the notifications should do, said in the plainest way.
struct PlainScroll {
    std::vector<int> widths, heights; // fixed lines first, 0 where hidden
    int fixedCols = 1, fixedRows = 1, frozen = 1; // frozen columns include the fixed ones
    int clientWidth = 0, clientHeight = 0;
    int firstRow = 1, firstCol = 1, offset = 0;
    bool smooth = false;

    static int Sum(const std::vector<int>& sizes, int first, int last)
    {
        int sum = 0;
        for (int i = first; i <= last; ++i)
            sum += sizes[static_cast<std::size_t>(i)];
        return sum;
    }
    static int FirstForLast(const std::vector<int>& sizes, int last, int firstScrolling, int client)
    {
        if (last < firstScrolling)
            return last;
        const int fixed = Sum(sizes, 0, firstScrolling - 1);
        int best = last;
        for (int line = last; line >= firstScrolling; --line) {
            const int size = sizes[static_cast<std::size_t>(line)];
            if (fixed + Sum(sizes, line, last) > client)
                return size + fixed <= client ? best : line;
            if (size > 0)
                best = line;
        }
        return best;
    }
    static int FirstShown(const std::vector<int>& sizes, int from)
    {
        for (int line = from; line < static_cast<int>(sizes.size()); ++line) {
            if (sizes[static_cast<std::size_t>(line)] > 0)
                return line;
        }
        return from;
    }
    int LastRowIndex() const { return static_cast<int>(heights.size()) - 1; }
    int LastColIndex() const { return static_cast<int>(widths.size()) - 1; }
    int MinRow() const { return FirstShown(heights, fixedRows); }
    int MaxRow() const { return FirstForLast(heights, LastRowIndex(), fixedRows, clientHeight); }
    int MinPosition() const { return smooth ? 0 : FirstShown(widths, frozen); }
    int MaxPosition() const
    {
        if (smooth)
            return Sum(widths, frozen, LastColIndex()) - (clientWidth - Sum(widths, 0, frozen - 1));
        return FirstForLast(widths, LastColIndex(), frozen, clientWidth);
    }
    int Position() const { return smooth ? Sum(widths, frozen, firstCol - 1) - offset : firstCol; }

    // The last row that is whole, hidden ones behind it included.
    int LastRow() const
    {
        int last = firstRow;
        const int fixed = Sum(heights, 0, fixedRows - 1);
        for (int row = firstRow; row <= LastRowIndex() && fixed + Sum(heights, firstRow, row) <= clientHeight; ++row)
            last = row;
        return last;
    }
    int LastCol() const
    {
        int last = firstCol;
        const int fixed = Sum(widths, 0, frozen - 1) + offset;
        for (int col = firstCol; col <= LastColIndex() && fixed + Sum(widths, firstCol, col) <= clientWidth; ++col)
            last = col;
        return last;
    }

    void MoveRow(int target, bool forward)
    {
        while (heights[static_cast<std::size_t>(target)] == 0 && target > MinRow() && target < LastRowIndex())
            target += forward ? 1 : -1;
        firstRow = target;
    }
    void GoToRow(int target) { MoveRow(target, target > firstRow); }
    void PageRow(int direction)
    {
        const int page = direction > 0 ? std::min(LastRow() + 1, MaxRow())
                                       : FirstForLast(heights, firstRow - 1, fixedRows, clientHeight);
        GoToRow(std::max(page, MinRow()));
    }
    void GoToPosition(int target)
    {
        if (smooth) {
            int col = frozen;
            while (col < LastColIndex() && Sum(widths, frozen, col) <= target)
                ++col;
            firstCol = col;
            offset = Sum(widths, frozen, col - 1) - target;
            return;
        }
        const int step = target > firstCol ? 1 : -1;
        int col = target;
        while (col >= MinPosition() && col <= MaxPosition() && widths[static_cast<std::size_t>(col)] == 0)
            col += step;
        firstCol = col >= MinPosition() && col <= MaxPosition() ? col : target;
    }
    void PagePosition(int direction)
    {
        if (smooth) {
            const int page = clientWidth - Sum(widths, 0, frozen - 1);
            GoToPosition(std::clamp(Position() + direction * page, MinPosition(), MaxPosition()));
        } else if (direction > 0) {
            GoToPosition(std::min(LastCol() + 1, MaxPosition()));
        } else {
            GoToPosition(std::max(FirstForLast(widths, firstCol - 1, frozen, clientWidth), MinPosition()));
        }
    }
};

class RandomScroll : public ScrollTest {
protected:
    int Between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

    // A table of random sizes with some hidden lines, and its plain twin. Sizes never fill the window alone.
    void Begin(bool smooth, bool split)
    {
        Make({});
        Grid().SetRedraw(false);
        Table(static_cast<i16>(Between(60, 200)), static_cast<i16>(Between(25, 60)), 1, 1);
        Grid().SetScrollHBar(smooth ? vxScrollSmooth : vxNormalScroll);
        Grid().SetShowSplit(split);
        for (i16 row = 0; row < Grid().Rows(); ++row)
            Grid().SetRowHeight(row, static_cast<i16>(Between(8, 60)));
        for (i16 col = 0; col < Grid().Cols(); ++col)
            Grid().SetColWidth(col, static_cast<i16>(Between(20, 200)));
        for (int i = 0; i < 30; ++i)
            Grid().HideRow(static_cast<i16>(Between(1, Grid().Rows() - 30)));
        for (int i = 0; i < 5; ++i)
            Grid().HideCol(static_cast<i16>(Between(3, Grid().Cols() - 10)));
        Grid().SetRedraw(true);
        if (split)
            Grid().SetSplitCols(2);
        ReadPlain(smooth);
    }
    void ReadPlain(bool smooth)
    {
        plain = {};
        plain.smooth = smooth;
        for (int row = -1; row < Grid().Rows(); ++row)
            plain.heights.push_back(
                row >= 0 && Grid().RowHide(static_cast<i16>(row)) ? 0 : Grid().RowHeight(static_cast<i16>(row)));
        for (int col = -1; col < Grid().Cols(); ++col)
            plain.widths.push_back(
                col >= 0 && Grid().ColHide(static_cast<i16>(col)) ? 0 : Grid().ColWidth(static_cast<i16>(col)));
        plain.frozen = 1 + Grid().SplitCols();
        plain.clientWidth = 623;
        plain.clientHeight = 463;
        plain.firstCol = plain.smooth ? plain.frozen : plain.MinPosition();
        plain.firstRow = plain.MinRow();
    }
    void Compare()
    {
        ASSERT_EQ(Grid().FirstRow(), plain.firstRow - 1);
        ASSERT_EQ(Grid().FirstCol(), plain.firstCol - 1);
        ASSERT_EQ(Grid().LastRow(), plain.LastRow() - 1);
        ASSERT_EQ(Grid().LastCol(), plain.LastCol() - 1);
        ASSERT_EQ(V().Min(), plain.MinRow());
        ASSERT_EQ(V().Max(), plain.MaxRow());
        ASSERT_EQ(V().Value(), plain.firstRow);
        ASSERT_EQ(H().Min(), plain.MinPosition());
        ASSERT_EQ(H().Max(), plain.MaxPosition());
        ASSERT_EQ(H().Value(), plain.Position());
    }
    void Step()
    {
        const int pick = Between(plain.MinPosition(), plain.MaxPosition());
        switch (Between(0, 8)) {
        case 0:
            plain.GoToRow(std::min(V().Value() + 1, V().Max()));
            return Do(V(), LineDown);
        case 1:
            plain.GoToRow(std::max(V().Value() - 1, V().Min()));
            return Do(V(), LineUp);
        case 2:
            plain.PageRow(1);
            return Do(V(), PageDown);
        case 3:
            plain.PageRow(-1);
            return Do(V(), PageUp);
        case 4:
            plain.GoToRow(std::min(V().Value() + 6, V().Max()));
            return host->Wheel(-240);
        case 5:
            plain.GoToRow(std::max(V().Value() - 3, V().Min()));
            return host->Wheel(120);
        case 6:
            plain.PagePosition(1);
            return Do(H(), PageDown);
        case 7:
            plain.PagePosition(-1);
            return Do(H(), PageUp);
        default:
            plain.GoToPosition(pick);
            return DragTo(H(), pick);
        }
    }
    void WalkAbout(bool smooth, bool split)
    {
        for (int table = 0; table < 8; ++table) {
            Begin(smooth, split);
            for (int step = 0; step < 60; ++step) {
                SCOPED_TRACE(testing::Message() << "table " << table << ", step " << step);
                Compare();
                if (HasFatalFailure())
                    return;
                Step();
            }
        }
    }

    PlainScroll plain;

private:
    std::mt19937 random_ { 20260 };
};

TEST_F(RandomScroll, ByColumnsIsWhatTheSizesSay)
{
    WalkAbout(false, false);
}

TEST_F(RandomScroll, ByPixelsIsWhatTheSizesSay)
{
    WalkAbout(true, false);
}

TEST_F(RandomScroll, BesideSplitColumnsIsWhatTheSizesSay)
{
    WalkAbout(false, true);
    WalkAbout(true, true);
}

} // namespace
} // namespace vornix
