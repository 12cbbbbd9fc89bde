// The window shows the grid's picture, device pixel by device pixel.
#include "widget_support.h"

#include <QMainWindow>
#include <QPainter>
#include <QVBoxLayout>

namespace vornix {

namespace {

// A widget at a place of its own in a window, as a form would hold it.
class InWindow {
public:
    explicit InWindow(const QRect& place)
        : widget_(&window_)
    {
        window_.resize(500, 400);
        FillTable(widget_.Grid());
        widget_.setGeometry(place);
        ShowAndSettle(window_);
    }

    NotedWidget& Widget() { return widget_; }
    Vornix& Grid() { return widget_.Grid(); }
    QWidget& Window() { return window_; }

private:
    QWidget window_;
    NotedWidget widget_;
};

} // namespace

TEST(QVornixPictureTest, TheResolutionIsThatOfTheEnvironment)
{
    const double factor = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble();
    QVornix widget;
    EXPECT_DOUBLE_EQ(widget.devicePixelRatioF(), factor);
    ShowAndSettle(widget);
    ASSERT_NE(widget.Grid().BackStore(), nullptr);
    EXPECT_DOUBLE_EQ(widget.Grid().BackStore()->Scale(), factor);
}

TEST(QVornixPictureTest, AWindowShowsThePictureOfItsGrid)
{
    NotedWidget widget;
    FillTable(widget.Grid());
    widget.resize(333, 221);
    ShowAndSettle(widget);
    EXPECT_TRUE(ShowsItsGrid(widget));
    // It is a picture: texts on cells of different colours.
    EXPECT_NE(widget.Grid().BackStore()->GetPixel(2, 2), widget.Grid().BackStore()->GetPixel(70, 40));
}

TEST(QVornixPictureTest, AChildShowsItAtAnyPlace)
{
    for (int offset = 0; offset < 8; ++offset) {
        InWindow form(QRect(10 + offset, 20 + 3 * offset, 301 + offset, 211 - offset));
        EXPECT_TRUE(ShowsItsGrid(form.Widget())) << "at offset " << offset;
    }
}

// At fractional scales the room is a device pixel wider than the picture at some places, and that pixel is painted too.
TEST(QVornixPictureTest, NoPixelOfItsPlaceIsLeftToItsParent)
{
    constexpr QRgb alien = 0xFF12FE56;
    for (int offset = 0; offset < 8; ++offset) {
        InWindow form(QRect(10 + offset, 20 + 3 * offset, 301 + offset, 211 - offset));
        QPalette palette;
        palette.setColor(QPalette::Window, QColor::fromRgb(alien));
        form.Window().setPalette(palette);
        Settle();
        ASSERT_EQ(ScreenPicture(form.Window()).pixel(1, 1), alien);
        const QImage shown = ShownClient(form.Widget());
        int alienPixels = 0;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x)
                alienPixels += shown.pixel(x, y) == alien;
        }
        EXPECT_EQ(alienPixels, 0) << "at offset " << offset;
    }
}

TEST(QVornixPictureTest, AGrabbedPictureIsTheSame)
{
    NotedWidget widget;
    FillTable(widget.Grid());
    widget.resize(333, 221);
    QImage grabbed = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    grabbed.setDevicePixelRatio(1);
    const double scale = widget.devicePixelRatioF();
    const QSize device(DeviceEdge(333, scale), DeviceEdge(221, scale));
    EXPECT_TRUE(SameImage(
        grabbed.copy(QRect(QPoint(0, 0), device)), GridPicture(widget.Grid(), widget.contentsRect().size(), scale)));
}

TEST(QVornixPictureTest, ItFollowsEverySizeOfTheWidget)
{
    InWindow form(QRect(7, 9, 300, 200));
    for (const QSize size : { QSize(411, 307), QSize(222, 133), QSize(5, 3), QSize(1, 1), QSize(353, 288) }) {
        form.Widget().resize(size);
        Settle();
        EXPECT_TRUE(ShowsItsGrid(form.Widget())) << "at " << size.width() << "x" << size.height();
    }
}

TEST(QVornixPictureTest, ASizeOfNothingShowsNothingAndComesBack)
{
    InWindow form(QRect(7, 9, 300, 200));
    for (const QSize size : { QSize(0, 0), QSize(0, 50), QSize(50, 0) }) {
        form.Widget().resize(size);
        Settle();
        form.Grid().SetText(0, 0, u"Changed unseen");
        Settle();
        EXPECT_EQ(form.Grid().GetScaleWidth(), static_cast<float>(size.width()));
        EXPECT_EQ(form.Grid().GetScaleHeight(), static_cast<float>(size.height()));
    }
    form.Widget().resize(300, 200);
    Settle();
    EXPECT_TRUE(ShowsItsGrid(form.Widget()));
}

TEST(QVornixPictureTest, ItComesBackAfterHiding)
{
    InWindow form(QRect(7, 9, 300, 200));
    form.Widget().hide();
    Settle();
    form.Grid().SetCellBackColor(0, 0, 0x0000FF);
    form.Widget().resize(280, 180);
    form.Widget().show();
    Settle();
    EXPECT_TRUE(ShowsItsGrid(form.Widget()));
    const QRect client = form.Widget().contentsRect();
    EXPECT_EQ(form.Grid().GetScaleWidth(), static_cast<float>(client.width()));
}

TEST(QVornixPictureTest, ThePictureIsNoCopy)
{
    NotedWidget widget;
    FillTable(widget.Grid());
    widget.resize(300, 200);
    ShowAndSettle(widget);
    EXPECT_TRUE(widget.MeasuringDevice().IsSamePicture(*widget.Grid().BackStore()));
}

TEST(QVornixPictureTest, TwoWidgetsShowTheirOwnGrids)
{
    QMainWindow window;
    auto* const center = new QWidget;
    auto* const column = new QVBoxLayout(center);
    auto* const above = new NotedWidget;
    auto* const below = new NotedWidget;
    column->addWidget(above);
    column->addWidget(below);
    window.setCentralWidget(center);
    window.resize(420, 380);
    FillTable(above->Grid());
    below->Grid().SetRows(3);
    below->Grid().SetText(0, 0, u"The other one");
    ShowAndSettle(window);
    EXPECT_TRUE(ShowsItsGrid(*above));
    EXPECT_TRUE(ShowsItsGrid(*below));
    EXPECT_FALSE(SameImage(ShownClient(*above), ShownClient(*below)));

    above->ClearNotes();
    below->ClearNotes();
    below->Grid().SetText(1, 0, u"changes alone");
    Settle();
    EXPECT_EQ(above->paints, 0);
    EXPECT_GT(below->paints, 0);
    EXPECT_TRUE(ShowsItsGrid(*below));
}

TEST(QVornixPictureTest, AClosedGridLeavesItsPictureStanding)
{
    InWindow form(QRect(7, 9, 300, 200));
    const QImage before = ShownClient(form.Widget());
    form.Grid().Terminate();
    form.Widget().update();
    Settle();
    EXPECT_TRUE(SameImage(ShownClient(form.Widget()), before));

    form.Widget().resize(350, 250);
    form.Widget().hide();
    form.Widget().show();
    Settle();
    const QImage larger = ShownClient(form.Widget());
    EXPECT_TRUE(SameImage(larger.copy(before.rect()), before));
    // Beyond the picture there is the plain ground.
    EXPECT_EQ(
        larger.pixel(larger.width() - 3, larger.height() - 3), form.Widget().palette().color(QPalette::Base).rgb());
}

TEST(QVornixPictureTest, ASceneOfAnotherResolutionScalesThePicture)
{
    NotedWidget widget;
    widget.Grid().SetScrollHBar(vxNoScrollBar);
    widget.Grid().SetScrollVBar(vxNoScrollBar);
    widget.Grid().SetCellBackColor(0, 0, 0x000000FF);
    widget.Grid().SetColWidth(0, 2000);
    widget.Grid().SetRowHeight(0, 2000);
    widget.resize(100, 60);
    ShowAndSettle(widget);
    QImage page(500, 300, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.scale(5, 5);
    widget.render(&painter);
    painter.end();
    for (const QPoint at : { QPoint(250, 150), QPoint(480, 280), QPoint(20, 200) })
        EXPECT_EQ(page.pixel(at), 0xFFFF0000u) << at.x() << "," << at.y();
}

} // namespace vornix
