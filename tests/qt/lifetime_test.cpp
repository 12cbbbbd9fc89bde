// The widget's life: without handlers, inside handlers, with errors on the way, and its end.
#include "qt_container.h"
#include "widget_support.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>

namespace vornix {

TEST(QVornixLifetimeTest, AWidgetThatIsNeverShownIsWholeAllTheSame)
{
    QVornix widget;
    widget.Grid().SetRows(5);
    widget.Grid().SetText(4, 0, u"last");
    EXPECT_EQ(widget.Grid().Text(4, 0), u"last");
    Rect extent;
    EXPECT_GT(widget.MeasuringDevice().DrawText(u"text", extent, DT_CALCRECT | DT_SINGLELINE), 0);
    EXPECT_FALSE(extent.IsEmpty());
}

TEST(QVornixLifetimeTest, WithoutHandlersEventsGoNowhere)
{
    NotedWidget widget;
    widget.Grid().SetCellStyle(0, 0, vxCustomDraw);
    ShowAndSettle(widget);
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST(QVornixLifetimeTest, AHandlerMayHaveItsWidgetDeletedLater)
{
    TestEvents events;
    QPointer<NotedWidget> widget = new NotedWidget(events);
    int drawn = 0;
    events.drawCell = [&](i16, i16) {
        ++drawn;
        widget->deleteLater();
    };
    widget->Grid().SetCellStyle(0, 0, vxCustomDraw);
    widget->show();
    Settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_GT(drawn, 0);
    EXPECT_TRUE(widget.isNull());
}

TEST(QVornixLifetimeTest, AHandlerMayCloseTheGridItIsCalledBy)
{
    TestEvents events;
    NotedWidget widget(events);
    widget.resize(300, 200);
    widget.Grid().SetRows(4);
    for (i16 Row = 0; Row < 4; ++Row)
        widget.Grid().SetCellStyle(Row, 0, vxCustomDraw);
    int drawn = 0;
    events.drawCell = [&](i16, i16) {
        ++drawn;
        widget.Grid().Terminate();
    };
    ShowAndSettle(widget);
    EXPECT_EQ(drawn, 1);
    EXPECT_TRUE(widget.Grid().IsTerminated());
    widget.resize(320, 220);
    widget.setPalette(QPalette(Qt::darkGreen));
    widget.hide();
    widget.show();
    Settle();
    EXPECT_EQ(drawn, 1);
}

TEST(QVornixLifetimeTest, AHandlerMayResizeItsWidget)
{
    TestEvents events;
    NotedWidget widget(events);
    FillTable(widget.Grid());
    widget.Grid().SetCellStyle(0, 0, vxCustomDraw);
    widget.resize(200, 150);
    ShowAndSettle(widget);
    int left = 1;
    events.drawCell = [&](i16, i16) {
        if (left-- > 0)
            widget.resize(400, 300);
    };
    widget.Grid().SetText(0, 0, u"grow");
    Settle();
    EXPECT_LE(left, 0);
    EXPECT_EQ(widget.Grid().GetScaleWidth(), 400.0F);
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST(QVornixLifetimeTest, AnErrorInAHandlerStaysInsideQt)
{
    TestEvents events;
    NotedWidget widget(events);
    widget.resize(300, 200);
    widget.Grid().SetCellStyle(0, 0, vxCustomDraw);
    int thrown = 0;
    events.drawCell = [&](i16, i16) {
        ++thrown;
        widget.Grid().SetText(9000, 9000, u"nowhere");
    };
    widget.show();
    EXPECT_NO_THROW(Settle());
    EXPECT_GT(thrown, 0);
    events.drawCell = nullptr;
    widget.Grid().Refresh();
    Settle();
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST(QVornixLifetimeTest, AWidgetDiesWithItsParent)
{
    TestEvents events;
    auto window = std::make_unique<QWidget>();
    QPointer<QVornix> widget = new QVornix(events, window.get());
    FillTable(widget->Grid());
    ShowAndSettle(*window);
    widget->Grid().SetRedraw(false);
    widget->Grid().SetRedraw(true); // the timer runs now
    window.reset();
    EXPECT_TRUE(widget.isNull());
    Settle();
}

TEST(QVornixLifetimeTest, ASizeBeyondSixteenBitsIsCutOff)
{
    QFrame frame;
    frame.resize(40000, 10);
    QtContainer container(frame);
    EXPECT_EQ(container.ClientSize(), (Size { 32767, 10 }));
}

TEST(QtContainerTest, TheBackStoreOnlyGrows)
{
    QFrame frame;
    frame.resize(100, 80);
    QtContainer container(frame);
    const Surface* const first = container.BackStore({ 100, 80 });
    EXPECT_EQ(first->GetSize(), (Size { 100, 80 }));
    EXPECT_EQ(container.BackStore({ 50, 60 }), first);
    EXPECT_EQ(container.BackStore({ 50, 90 })->GetSize(), (Size { 100, 90 }));
    EXPECT_EQ(&container.WindowDevice(), container.BackStore({ 1, 1 }));
}

TEST(QtContainerTest, ABackStoreThatMemoryCannotHoldLeavesTheOldOne)
{
    QFrame frame;
    QtContainer container(frame);
    const Surface* const before = container.BackStore({ 100, 80 });
    EXPECT_EQ(container.BackStore({ 1 << 20, 1 << 20 }), before);
}

TEST(QtContainerTest, AChildWindowIsPlacedOnTheClientArea)
{
    QFrame frame;
    frame.resize(200, 100);
    QtContainer container(frame);
    ChildWindow& child = container.Child(ChildName::fraEdit);
    EXPECT_TRUE(frame.children().isEmpty());
    EXPECT_FALSE(child.SetFocus());
    child.Move({ 10, 20, 60, 45 });
    child.SetEnabled(false);
    child.Show(true);
    ASSERT_EQ(frame.findChildren<QWidget*>().size(), 1);
    const QWidget& window = *frame.findChildren<QWidget*>().front();
    EXPECT_EQ(window.geometry(), QRect(10, 20, 50, 25));
    EXPECT_FALSE(window.isEnabled());
    EXPECT_TRUE(child.IsVisible());

    container.SetExtendedStyle(512);
    EXPECT_TRUE(container.FitToWidget());
    EXPECT_EQ(window.geometry(), QRect(12, 22, 50, 25));
    EXPECT_EQ(child.Place(), (Rect { 10, 20, 60, 45 }));
    child.Show(false);
    EXPECT_TRUE(window.isHidden());
}

TEST(QtContainerTest, ThePointerIsTheParentsAgainAfterSizing)
{
    QFrame frame;
    QtContainer container(frame);
    frame.setCursor(Qt::CrossCursor);
    container.SetPointerShape(PointerShape::Default);
    EXPECT_EQ(frame.cursor().shape(), Qt::CrossCursor);
    container.SetPointerShape(PointerShape::SizeWE);
    EXPECT_EQ(frame.cursor().shape(), Qt::SplitHCursor);
    container.SetPointerShape(PointerShape::SizeNS);
    EXPECT_EQ(frame.cursor().shape(), Qt::SplitVCursor);
    container.SetPointerShape(PointerShape::Default);
    EXPECT_EQ(frame.cursor().shape(), Qt::ArrowCursor);
}

TEST(QtContainerTest, SettingsAreTheUsersOwnAndComeBack)
{
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QFrame frame;
    QtContainer container(frame);
    container.Settings().SaveSetting(u"vornix test", u"properties", u"value", u"a;b=\"c\"\u00e9");
    EXPECT_EQ(container.Settings().GetSetting(u"vornix test", u"properties", u"value", u"none"), u"a;b=\"c\"\u00e9");
    EXPECT_EQ(container.Settings().GetSetting(u"vornix test", u"properties", u"absent", u"none"), u"none");
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("Vornix/vornix test.ini"))));
}

TEST(QtContainerTest, TheClipboardKeepsText)
{
    QFrame frame;
    QtContainer container(frame);
    container.SetClipboardText(u"one\ttwo\r\n\u0928");
    EXPECT_EQ(container.ClipboardText(), u"one\ttwo\r\n\u0928");
}

} // namespace vornix
