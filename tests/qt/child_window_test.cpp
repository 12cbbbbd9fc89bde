// Canvases and bars of the Qt widget without a grid: what they are before they are shown, and at other resolutions.
#include "qt_canvas_window.h"
#include "qt_container.h"
#include "qt_scroll_bar.h"
#include "widget_support.h"

#include <QScrollBar>

namespace vornix {

namespace {

class QtCanvasWindowTest : public testing::Test {
protected:
    QFrame frame;
    QtSetting setting { frame, {}, {}, 2.0 };
    QtCanvasWindow child { setting, ChildName::picSplitMove, QtCanvasWindow::Pointer::Through };
};

class BareQtScrollBarTest : public testing::Test {
protected:
    QScrollBar* Shown() { return frame.findChild<QScrollBar*>(); }

    QFrame frame;
    QtSetting setting { frame, {}, {}, 1.0 };
    QtScrollBar bar { setting, ChildName::scrV };
};

} // namespace

TEST_F(QtCanvasWindowTest, TheCanvasHasThePlacesSizeAndTheWindowsResolution)
{
    child.Move({ 5, 6, 7, 46 });
    Device* const canvas = child.Canvas();
    ASSERT_TRUE(canvas);
    EXPECT_EQ(canvas->Scale(), 2.0);
    const auto* const surface = dynamic_cast<RasterSurface*>(canvas);
    ASSERT_TRUE(surface);
    EXPECT_EQ(surface->GetSize(), (Size { 2, 40 }));
    EXPECT_EQ(canvas->GetPixel(1, 39), setting.colors.values[SystemColor::ButtonFace]);
}

TEST_F(QtCanvasWindowTest, ItStaysUntilThePlaceHasAnotherSize)
{
    child.Move({ 5, 6, 7, 46 });
    Device* const canvas = child.Canvas();
    canvas->FillRect({ 0, 0, 2, 40 }, 0x112233);
    child.Move({ 50, 0, 52, 40 });
    EXPECT_EQ(child.Canvas()->GetPixel(0, 0), 0x112233u);
    child.Move({ 50, 0, 53, 40 });
    EXPECT_EQ(child.Canvas()->GetPixel(2, 0), setting.colors.values[SystemColor::ButtonFace]);
}

TEST_F(QtCanvasWindowTest, AnotherResolutionBringsAnotherCanvas)
{
    child.Move({ 0, 0, 4, 40 });
    EXPECT_EQ(child.Canvas()->Scale(), 2.0);
    setting.scale = 1.25;
    child.FollowSetting();
    EXPECT_EQ(child.Canvas()->Scale(), 1.25);
}

TEST_F(QtCanvasWindowTest, APlaceWithoutRoomHasACanvasAllTheSame)
{
    child.Move({ 0, 0, 0, 0 });
    EXPECT_TRUE(child.Canvas());
}

TEST_F(QtCanvasWindowTest, WhatIsDrawnIsSeen)
{
    const double scale = frame.devicePixelRatioF();
    setting.scale = scale;
    frame.resize(100, 60);
    child.Move({ 10, 5, 30, 25 });
    child.Show(true);
    ShowAndSettle(frame);
    child.Canvas()->FillRect({ 0, 0, 20, 20 }, 0x0000FF);
    child.CanvasChanged();
    Settle();
    const QRect place = DevicePlace(frame, QRect(10, 5, 20, 20));
    EXPECT_EQ(ScreenPicture(frame).pixel(place.center()), 0xFFFF0000u);
}

TEST_F(BareQtScrollBarTest, ItKeepsItsRangeBeforeThereIsAnythingToSee)
{
    bar.SetInfo({ .min = 2, .max = 40, .page = 1, .position = 7 });
    EXPECT_FALSE(Shown());
    EXPECT_EQ(bar.Position(), 7);
    bar.SetRange(9, 40);
    EXPECT_EQ(bar.Position(), 9);
    bar.Show(true);
    ASSERT_TRUE(Shown());
    EXPECT_EQ(Shown()->minimum(), 9);
    EXPECT_EQ(Shown()->maximum(), 40);
    EXPECT_EQ(Shown()->value(), 9);
    EXPECT_EQ(Shown()->pageStep(), 1);
}

TEST_F(BareQtScrollBarTest, OfARangeThatIsUpsideDownTheUpperEndIsThePosition)
{
    bar.Show(true);
    bar.SetInfo({ .min = 10, .max = 3, .page = 1, .position = 8 });
    EXPECT_EQ(bar.Position(), 3);
    EXPECT_EQ(Shown()->value(), 3);
    EXPECT_EQ(Shown()->minimum(), Shown()->maximum());
    bar.SetPosition(50);
    EXPECT_EQ(bar.Position(), 3);
}

TEST_F(BareQtScrollBarTest, WithoutAControlItStaysWhereItIs)
{
    bar.SetInfo({ .min = 0, .max = 10, .page = 1, .position = 4 });
    bar.Show(true);
    Shown()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    Shown()->setValue(9);
    EXPECT_EQ(Shown()->value(), 4);
    EXPECT_EQ(Shown()->sliderPosition(), 4);
    EXPECT_EQ(bar.TrackPosition(), 9);
}

TEST_F(BareQtScrollBarTest, OnlyANativeWindowHasAHandle)
{
    EXPECT_EQ(bar.Handle(), 0);
    bar.Show(true);
    EXPECT_EQ(bar.Handle(), 0);
    Shown()->setAttribute(Qt::WA_NativeWindow);
    EXPECT_EQ(bar.Handle(), static_cast<std::intptr_t>(Shown()->winId()));
    EXPECT_NE(bar.Handle(), 0);
}

TEST(QtContainerTest, BarsAreThoseOfTheirChildren)
{
    QFrame frame;
    QtContainer container(frame);
    EXPECT_FALSE(container.ScrollBar(ChildName::cPivot));
    for (const ChildName name : { ChildName::scrV, ChildName::scrH }) {
        NativeScrollBar* const bar = container.ScrollBar(name);
        ASSERT_TRUE(bar);
        EXPECT_EQ(dynamic_cast<ChildWindow*>(bar), &container.Child(name));
    }
}

TEST(QtContainerTest, TheHandleOfTheSplitHasAWidthFromTheStart)
{
    QFrame frame;
    QtContainer container(frame);
    EXPECT_EQ(container.Child(ChildName::picSplitCol).Place().Width(), 6);
    EXPECT_TRUE(container.Child(ChildName::picSplitCol).Canvas());
    EXPECT_FALSE(container.Child(ChildName::cPivot).Canvas());
}

} // namespace vornix
