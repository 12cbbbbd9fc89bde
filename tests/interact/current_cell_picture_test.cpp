// The mark of the current cell as it is seen.
#include "interact/keyboard_fixture.h"

namespace vornix {
namespace {

class CurrentCellPicture : public KeyboardTest {
protected:
    void MakeAt(double scale)
    {
        HeadlessOptions options;
        options.width = 320;
        options.height = 160;
        options.scale = scale;
        Make(options);
        Table(4, 3, 1, 1);
        Grid().SetFocusRect(vxFocusHeavy);
        for (i16 row = 0; row < 4; ++row) {
            for (i16 col = 0; col < 3; ++col)
                Grid().SetText(row, col, u"cell");
        }
    }
    // The smallest rectangle around the pixels that differ, in logical pixels.
    Rect DifferenceTo(const RgbaImage& before, double scale)
    {
        const RgbaImage now = host->Image();
        int left = now.width, top = now.height, right = 0, bottom = 0;
        for (int y = 0; y < now.height; ++y) {
            for (int x = 0; x < now.width; ++x) {
                const auto at = static_cast<std::size_t>((y * now.width + x) * 4);
                if (std::equal(&now.bytes[at], &now.bytes[at] + 4, &before.bytes[at]))
                    continue;
                left = std::min(left, x);
                top = std::min(top, y);
                right = std::max(right, x + 1);
                bottom = std::max(bottom, y + 1);
            }
        }
        const auto logical = [&](int pixel) { return static_cast<int>(pixel / scale); };
        return { logical(left), logical(top), logical(right), logical(bottom) };
    }
};

TEST_F(CurrentCellPicture, TheMarkLiesInsideItsCellAtEveryScale)
{
    for (const double scale : { 1.0, 2.0 }) {
        MakeAt(scale);
        const RgbaImage unmarked = host->Image();
        Grid().CurrentPos(1, 1);
        const Rect mark = DifferenceTo(unmarked, scale);
        const int left = Grid().ColWidth(-1) + Grid().ColWidth(0);
        const int top = Grid().RowHeight(-1) + Grid().RowHeight(0);
        EXPECT_GE(mark.left, left);
        EXPECT_GE(mark.top, top);
        EXPECT_LE(mark.right, left + Grid().ColWidth(1));
        EXPECT_LE(mark.bottom, top + Grid().RowHeight(1));
        EXPECT_GT(mark.Width(), Grid().ColWidth(1) / 2) << "all around";
        EXPECT_GT(mark.Height(), Grid().RowHeight(1) / 2);
        host->ExitFocus();
        EXPECT_EQ(host->Image().bytes, unmarked.bytes) << "gone with the focus";
    }
}

TEST_F(CurrentCellPicture, TheMarkCoversAWholeSpan)
{
    MakeAt(1.0);
    Grid().SetRowSpan(1, 1, 2);
    Grid().SetColSpan(1, 1, 2);
    const RgbaImage unmarked = host->Image();
    Grid().CurrentPos(2, 2);
    const Rect mark = DifferenceTo(unmarked, 1.0);
    EXPECT_GT(mark.Width(), Grid().ColWidth(1));
    EXPECT_GT(mark.Height(), Grid().RowHeight(1));
}

} // namespace
} // namespace vornix
