// Where the text of an editor is seen: as far as a device pixel goes, where the cell has painted it.
#include "vornix/qvornix.h"
#include "widget_support.h"

#include <QPoint>

#include <cstdlib>
#include <limits>

namespace vornix {

namespace {

constexpr int FarthestLookedFor = 3;

struct PaintedText {
    const char* name;
    i32 alignment;
    i32 mode;
    i16 rowHeight;
};

// How far the second picture has to be moved to be most like the first one. The caret stands within `leftOut` pixels of
// an edge.
QPoint Shift(const QImage& first, const QImage& second, int leftOut)
{
    QPoint best;
    qint64 least = std::numeric_limits<qint64>::max();
    for (int dy = -FarthestLookedFor; dy <= FarthestLookedFor; ++dy) {
        for (int dx = -FarthestLookedFor; dx <= FarthestLookedFor; ++dx) {
            qint64 apart = 0;
            for (int y = FarthestLookedFor; y < first.height() - FarthestLookedFor; ++y) {
                for (int x = leftOut; x < first.width() - leftOut; ++x)
                    apart += std::abs(qGray(first.pixel(x, y)) - qGray(second.pixel(x - dx, y - dy)));
            }
            if (apart < least) {
                least = apart;
                best = { dx, dy };
            }
        }
    }
    return best;
}

bool HasInk(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < 100)
                return true;
        }
    }
    return false;
}

class EditorPictureTest : public testing::TestWithParam<PaintedText> { };

INSTANTIATE_TEST_SUITE_P(Texts, EditorPictureTest,
    testing::Values(PaintedText { "Lines", vxTxtDefault, vxTextBox, 24 },
        PaintedText { "LinesAtTheRight", vxTxtRight, vxTextBox, 24 },
        PaintedText { "Line", vxSingleLine, vxTextBox, 24 },
        PaintedText { "LineAtTheRight", vxSingleLine | vxTxtRight, vxTextBox, 24 },
        PaintedText { "LowRow", vxTxtDefault, vxTextBox, 19 },
        PaintedText { "Combo", vxTxtDefault, vxComboDropDownBox, 24 }),
    [](const auto& text) { return std::string(text.param.name); });

} // namespace

TEST_P(EditorPictureTest, TheTextStaysWhereItWas)
{
    NotedWidget widget;
    widget.resize(300, 160);
    Vornix& grid = widget.Grid();
    grid.SetFocusRect(vxFocusNone);
    grid.SetRows(3);
    grid.SetCols(2);
    for (i16 Row = 0; Row < 3; ++Row)
        grid.SetRowHeight(Row, GetParam().rowHeight);
    grid.SetColWidth(0, 200);
    grid.SetText(1, 0, u"Wagner & 12,50");
    grid.SetCellFontName(1, 0, u"DejaVu Sans");
    grid.SetTextAlignment(1, 0, GetParam().alignment | vxNoPrefix);
    grid.SetCellMode(1, 0, GetParam().mode);
    ShowAndSettle(widget);
    widget.activateWindow();
    widget.setFocus();
    Settle();
    i32 x = 0;
    i32 y = 0;
    grid.GetPositionCell(1, 0, x, y);
    const QRect cell = DevicePlace(widget, QRect(x / 15 + 2, y / 15 + 1, 200 - 30, GetParam().rowHeight - 3));
    const QRect atRight = DevicePlace(widget, QRect(x / 15 + 30, y / 15 + 1, 200 - 32, GetParam().rowHeight - 3));
    const QRect seen = GetParam().alignment & vxTxtRight ? atRight : cell;
    const QImage painted = ScreenPicture(widget).copy(seen);
    ASSERT_TRUE(HasInk(painted));
    grid.CurrentPos(1, 0);
    grid.EnterEdit();
    Settle();
    ASSERT_TRUE(grid.IsEditMode());
    const QImage edited = ScreenPicture(widget).copy(seen);
    // Room for the caret in front of the text.
    const QPoint shift = Shift(painted, edited, static_cast<int>(7 * widget.devicePixelRatioF()));
    EXPECT_LE(std::abs(shift.x()), 1) << shift.x();
    EXPECT_LE(std::abs(shift.y()), 1) << shift.y();
}

} // namespace vornix
