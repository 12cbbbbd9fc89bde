// The grid's border is the widget's frame.
#include "widget_support.h"

namespace vornix {

namespace {

class QVornixBorderTest : public testing::TestWithParam<std::pair<i32, int>> {
protected:
    QVornixBorderTest()
    {
        widget.setParent(&window);
        window.resize(500, 400);
        FillTable(widget.Grid());
        widget.setGeometry(8, 12, 333, 287);
        ShowAndSettle(window);
    }

    QWidget window;
    NotedWidget widget;
};

} // namespace

TEST_P(QVornixBorderTest, ItNarrowsTheClientArea)
{
    const auto [style, width] = GetParam();
    widget.Grid().SetBorderStyle(style);
    Settle();
    EXPECT_EQ(widget.contentsRect(), QRect(width, width, 333 - 2 * width, 287 - 2 * width));
    EXPECT_EQ(widget.Grid().GetScaleWidth(), static_cast<float>(333 - 2 * width));
    EXPECT_EQ(widget.Grid().GetScaleHeight(), static_cast<float>(287 - 2 * width));
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST_P(QVornixBorderTest, TakingItAwayGivesTheRoomBack)
{
    widget.Grid().SetBorderStyle(GetParam().first);
    Settle();
    widget.Grid().SetBorderStyle(vxNoBorder);
    Settle();
    EXPECT_EQ(widget.contentsRect(), widget.rect());
    EXPECT_EQ(widget.Grid().GetScaleWidth(), 333.0F);
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST_P(QVornixBorderTest, ItIsTheSameOneWhenTheGridIsRefreshed)
{
    const auto [style, width] = GetParam();
    widget.Grid().SetBorderStyle(style);
    widget.Grid().Refresh();
    Settle();
    EXPECT_EQ(widget.frameWidth(), width);
    EXPECT_TRUE(ShowsItsGrid(widget));
}

// All of the ring around the picture is painted: what the window showed there before is gone.
TEST_P(QVornixBorderTest, NoPixelOfTheFrameIsLeftOut)
{
    const auto [style, width] = GetParam();
    if (width == 0)
        return;
    widget.setAutoFillBackground(false);
    widget.Grid().SetBorderStyle(style);
    const QRgb alien = 0xFF12FE56;
    QPalette palette = window.palette();
    palette.setColor(QPalette::Window, QColor::fromRgb(alien));
    window.setPalette(palette);
    QPalette own = widget.palette();
    own.setColor(QPalette::Window, Qt::gray);
    widget.setPalette(own);
    Settle();
    const QImage screen = ScreenPicture(window);
    const double scale = widget.devicePixelRatioF();
    ASSERT_EQ(screen.pixel(1, 1), alien);
    // The outermost device pixel may belong to both.
    const int left = DeviceEdge(8, scale) + 1;
    const int top = DeviceEdge(12, scale) + 1;
    const int right = DeviceEdge(8 + 333, scale) - 1;
    const int bottom = DeviceEdge(12 + 287, scale) - 1;
    int alienPixels = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x)
            alienPixels += screen.pixel(x, y) == alien;
    }
    EXPECT_EQ(alienPixels, 0);
}

INSTANTIATE_TEST_SUITE_P(Styles, QVornixBorderTest,
    testing::Values(std::pair<i32, int> { vxNoBorder, 0 }, std::pair<i32, int> { vxInset, 2 },
        std::pair<i32, int> { vxInsetThin, 1 }));

TEST(QVornixFrameTest, AFrameOfTheHostsOwnIsKeptAndMakesTheClientAreaSmaller)
{
    NotedWidget widget;
    FillTable(widget.Grid());
    widget.resize(300, 200);
    ShowAndSettle(widget);
    widget.setLineWidth(3);
    widget.setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    Settle();
    EXPECT_EQ(widget.Grid().GetScaleWidth(), 294.0F);
    widget.Grid().Refresh();
    EXPECT_EQ(widget.frameShape(), QFrame::Box);
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST(QVornixFrameTest, MarginsOfTheHostMakeTheClientAreaSmaller)
{
    NotedWidget widget;
    FillTable(widget.Grid());
    widget.resize(300, 200);
    ShowAndSettle(widget);
    widget.setContentsMargins(5, 7, 11, 13);
    Settle();
    EXPECT_EQ(widget.Grid().GetScaleWidth(), 284.0F);
    EXPECT_EQ(widget.Grid().GetScaleHeight(), 180.0F);
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST(QVornixFrameTest, ABorderWiderThanTheWidgetLeavesNoClientArea)
{
    NotedWidget widget;
    widget.Grid().SetBorderStyle(vxInset);
    widget.Grid().SetScrollHBar(vxNoScrollBar);
    widget.Grid().SetScrollVBar(vxNoScrollBar);
    widget.setMinimumSize(1, 1);
    widget.resize(3, 3);
    ShowAndSettle(widget);
    EXPECT_EQ(widget.Grid().GetScaleWidth(), 0.0F);
    EXPECT_EQ(widget.Grid().GetScaleHeight(), 0.0F);
}

} // namespace vornix
