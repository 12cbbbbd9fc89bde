// Rows selected by the members of a grid, beside rows selected by a plain model of the same bookkeeping.
#include "control/grid_fixture.h"
#include "model/plain_selection.h"

#include <random>

namespace vornix {
namespace {

constexpr i16 Rows = 30;
constexpr i16 FixedRows = 3;

class RandomSelection : public GridTest {
protected:
    using Lines = std::vector<std::pair<int, int>>;

    RandomSelection()
    {
        Table(Rows, 2, FixedRows, 1);
        Grid().SetRedraw(false);
    }

    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    void Step()
    {
        const i16 a = static_cast<i16>(Below(Rows));
        const i16 b = static_cast<i16>(Below(Rows));
        const auto [first, last] = std::minmax(a, b);
        switch (Below(12)) {
        case 0:
        case 1:
        case 2:
            Grid().SetRowSelected(a, true);
            plain_.AddRows(false, a + FixedRows, a + FixedRows);
            break;
        case 3:
        case 4:
            Grid().SetRowSelected(a, false);
            if (plain_.count > 0 && plain_.IsSelected(a + FixedRows))
                plain_.UnSelect(a + FixedRows);
            break;
        case 5:
        case 6:
            Grid().SetRowsSelected(a, b, true);
            plain_.AddRows(false, first + FixedRows, last + FixedRows);
            break;
        case 7:
        case 8:
            Grid().SetRowsSelected(a, b, false);
            plain_.Unselect(first + FixedRows, last + FixedRows);
            break;
        case 9:
            ASSERT_EQ(Grid().InvertSelect(), plain_.count > 0);
            plain_.Invert(FixedRows, FixedRows + Rows - 1);
            break;
        case 10:
            CompareItem(Below(Rows));
            break;
        default:
            if (Below(8) != 0)
                break;
            Grid().DeselectAll();
            plain_.RemoveAll();
        }
    }

    void CompareSelection()
    {
        const bool any = plain_.count > 0;
        ASSERT_EQ(Grid().SelectCountRow(), any ? plain_.Sum() : 0);
        for (i16 row = 0; row < Rows; ++row)
            ASSERT_EQ(Grid().RowSelected(row), any && plain_.IsSelected(row + FixedRows)) << row;
        Lines expected;
        for (const auto& [slot, item] : plain_.live) {
            if (any)
                expected.emplace_back(item.left - FixedRows, item.right - FixedRows);
        }
        Lines walked;
        i16 first = 0;
        i16 last = 0;
        Grid().StartSelectedItems();
        while (Grid().NextSelectedRows(first, last))
            walked.emplace_back(first, last);
        ASSERT_EQ(walked, expected);
    }

    // From where the latest one left off, or from the start.
    void CompareItem(i32 place)
    {
        if (place == 0)
            slot_ = sum_ = 0;
        i32 expected = 0;
        if (plain_.count > 0) {
            for (auto each = plain_.live.lower_bound(slot_); each != plain_.live.end(); ++each) {
                const i32 length = each->second.right - each->second.left + 1;
                slot_ = each->first;
                if (place < sum_ + length) {
                    expected = each->second.left + place - sum_ - FixedRows;
                    break;
                }
                sum_ += length;
                ++slot_;
            }
        }
        ASSERT_EQ(Grid().SelectItem(place), expected) << place;
    }

    PlainSelection plain_;

private:
    std::mt19937 random_ { 7041 };
    int slot_ = 0;
    i32 sum_ = 0;
};

TEST_F(RandomSelection, AgreesWithAPlainOne)
{
    for (int round = 0; round < 120; ++round) {
        Grid().DeselectAll();
        plain_.RemoveAll();
        for (int step = 0; step < 80; ++step) {
            SCOPED_TRACE(testing::Message() << "round " << round << " step " << step);
            ASSERT_NO_FATAL_FAILURE(Step());
            ASSERT_NO_FATAL_FAILURE(CompareSelection());
        }
        for (i32 place = 0; place <= Grid().SelectCountRow(); ++place)
            ASSERT_NO_FATAL_FAILURE(CompareItem(place));
    }
}

} // namespace
} // namespace vornix
