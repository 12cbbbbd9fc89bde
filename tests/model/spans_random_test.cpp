// Spans beside a list of rectangles, through random operations.
#include "model/spans.h"
#include "model/store_support.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace vornix {
namespace {

struct StoredSize {
    int rows = 0;
    int cols = 0;
};

// One rectangle for each parent, and for each cell the sizes that reading gives.
class RectangleList {
public:
    RectangleList(int rows, int cols)
        : rows_(rows)
        , cols_(cols)
        , stored_(static_cast<std::size_t>(rows * cols))
    {
    }

    StoredSize& Stored(int row, int col) { return stored_[static_cast<std::size_t>(row * cols_ + col)]; }
    int RowsAt(int row, int col) { return std::max(Stored(row, col).rows, 1); }
    int ColsAt(int row, int col) { return std::max(Stored(row, col).cols, 1); }
    Rect RectOf(int row, int col) { return { col, row, col + ColsAt(row, col), row + RowsAt(row, col) }; }

    // The parent whose rectangle covers the cell and that is not the cell itself.
    std::optional<CellIndex> ParentAbove(int row, int col)
    {
        for (int r = 0; r <= row; ++r)
            for (int c = 0; c <= col; ++c) {
                const Rect rect = RectOf(r, c);
                if ((r != row || c != col) && row < rect.bottom && col < rect.right)
                    return CellIndex { r, c };
            }
        return std::nullopt;
    }

    void Remove(int row, int col) { Stored(row, col) = {}; }

    // A direction is `cols` or `rows` of the stored size.
    void Set(int row, int col, int span, int StoredSize::*along)
    {
        const bool isColumns = along == &StoredSize::cols;
        span = span == 0 ? 1 : span;
        if (isColumns ? col + span > cols_ : row + span > rows_)
            return;
        if (const auto parent = ParentAbove(row, col))
            Remove(parent->row, parent->col);
        const Rect old = RectOf(row, col);
        Rect wanted = old;
        (isColumns ? wanted.right : wanted.bottom)
            = std::max((isColumns ? col : row) + span, (isColumns ? col : row) + 1);
        for (int r = wanted.top; r < wanted.bottom; ++r)
            for (int c = wanted.left; c < wanted.right; ++c)
                if (r >= old.bottom || c >= old.right)
                    Free(r, c);
        Stored(row, col).*along = span;
    }

private:
    void Free(int row, int col)
    {
        if (Stored(row, col).rows > 0 || Stored(row, col).cols > 0)
            Remove(row, col);
        if (const auto parent = ParentAbove(row, col))
            Remove(parent->row, parent->col);
    }

    int rows_;
    int cols_;
    std::vector<StoredSize> stored_;
};

class SpansRandomTest : public testing::TestWithParam<unsigned> {
protected:
    static constexpr int Count = 8;

    SpansRandomTest()
        : random_(GetParam())
        , store_(BuildStore(Count, Count))
        , spans_(*store_)
        , model_(Count, Count)
    {
    }

    void Step()
    {
        const int row = random_.Between(0, Count - 1);
        const int col = random_.Between(0, Count - 1);
        const auto span = static_cast<i16>(random_.Between(-2, 5));
        if (random_.OneIn(6)) {
            if (store_->CellAt(row, col).IsChild())
                return;
            spans_.RemoveSpan(row, col);
            return model_.Remove(row, col);
        }
        if (random_.OneIn(2)) {
            spans_.SetColSpan(row, col, span);
            return model_.Set(row, col, span, &StoredSize::cols);
        }
        spans_.SetRowSpan(row, col, span);
        model_.Set(row, col, span, &StoredSize::rows);
    }

    void CompareWithModel()
    {
        for (int row = 0; row < Count; ++row)
            for (int col = 0; col < Count; ++col) {
                const Cell& cell = store_->CellAt(row, col);
                ASSERT_EQ(cell.RowSpan(), model_.Stored(row, col).rows) << row << ", " << col;
                ASSERT_EQ(cell.ColSpan(), model_.Stored(row, col).cols) << row << ", " << col;
                const CellIndex self { row, col };
                ASSERT_EQ(spans_.ParentOf(row, col), model_.ParentAbove(row, col).value_or(self));
            }
    }

    void CheckInvariants()
    {
        std::vector<int> covers(static_cast<std::size_t>(Count * Count));
        for (int row = 0; row < Count; ++row)
            for (int col = 0; col < Count; ++col)
                CoverFrom(row, col, covers);
        for (const int count : covers)
            ASSERT_LE(count, 1) << "spans overlap";
        for (int line = 0; line <= Count; ++line) {
            ASSERT_FALSE(store_->CellAt(Count, line).HasExtras());
            ASSERT_FALSE(store_->CellAt(line, Count).HasExtras());
        }
    }

    void CoverFrom(int row, int col, std::vector<int>& covers)
    {
        const CellIndex parent = spans_.ParentOf(row, col);
        ASSERT_LE(parent.row, row);
        ASSERT_LE(parent.col, col);
        ASSERT_GE(parent.row, 0);
        ASSERT_GE(parent.col, 0);
        ASSERT_FALSE(store_->CellAt(parent.row, parent.col).IsChild());
        ASSERT_LT(row, parent.row + spans_.RowsCovered(parent.row, parent.col));
        ASSERT_LT(col, parent.col + spans_.ColsCovered(parent.row, parent.col));
        if (store_->CellAt(row, col).IsChild())
            return;
        ASSERT_LE(row + spans_.RowsCovered(row, col), Count);
        ASSERT_LE(col + spans_.ColsCovered(row, col), Count);
        for (int r = row; r < row + spans_.RowsCovered(row, col); ++r)
            for (int c = col; c < col + spans_.ColsCovered(row, col); ++c)
                ++covers[static_cast<std::size_t>(r * Count + c)];
    }

    RandomNumbers random_;
    std::unique_ptr<GridStore> store_;
    Spans spans_;
    RectangleList model_;
};

TEST_P(SpansRandomTest, AreWhatAListOfRectanglesGives)
{
    for (int step = 0; step < 1500; ++step) {
        Step();
        CompareWithModel();
        CheckInvariants();
        ASSERT_FALSE(HasFatalFailure()) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SpansRandomTest, testing::Range(0u, 20u));

} // namespace
} // namespace vornix
