// What a person does to the bars with the pointer.
#include "headless/person_fixture.h"

namespace vornix {
namespace {

class BarPointer : public PersonTest {
protected:
    BarPointer() { Load(); }

    void Load()
    {
        Table(200, 60, 1, 1);
        Grid().SetScrollVBar(vxNormalScroll);
        Grid().SetScrollHBar(vxNormalScroll);
        host->ClearLog();
    }

    static constexpr float Middle = 8;

    HeadlessScrollBar& Vertical() { return host->VerticalBar(); }
    HeadlessScrollBar& Horizontal() { return host->HorizontalBar(); }
    // Where the window's own place lies in the control.
    static std::pair<float, float> In(const HeadlessScrollBar& bar, float x, float y)
    {
        return { static_cast<float>(bar.Place().left) + x, static_cast<float>(bar.Place().top) + y };
    }
    void ClickOn(const HeadlessScrollBar& bar, float x, float y, i16 button = 1)
    {
        const auto [left, top] = In(bar, x, y);
        host->ClickAt(left, top, button);
    }
    // From the thumb where it is at the start.
    void DragThumb(HeadlessScrollBar& bar, float by, i32 steps)
    {
        ASSERT_EQ(bar.Value(), bar.Min());
        const bool isVertical = &bar == &Vertical();
        const float thumb = Thickness(bar) + 3;
        const auto [x, y] = isVertical ? In(bar, Middle, thumb) : In(bar, thumb, Middle);
        host->Drag(x, y, isVertical ? x : x + by, isVertical ? y + by : y, 1, 0, steps);
    }
    float Thickness(const HeadlessScrollBar& bar) const
    {
        return static_cast<float>(std::min(bar.Place().Width(), bar.Place().Height()));
    }
    float Length(const HeadlessScrollBar& bar) const
    {
        return static_cast<float>(std::max(bar.Place().Width(), bar.Place().Height()));
    }
};

TEST_F(BarPointer, AnArrowIsAStep)
{
    ASSERT_TRUE(Vertical().IsVisible());
    ASSERT_TRUE(Horizontal().IsVisible());
    ClickOn(Vertical(), Middle, Length(Vertical()) - 5);
    EXPECT_EQ(Grid().FirstRow(), 1);
    ClickOn(Vertical(), Middle, Length(Vertical()) - 5);
    EXPECT_EQ(Grid().FirstRow(), 2);
    ClickOn(Vertical(), Middle, 5);
    EXPECT_EQ(Grid().FirstRow(), 1);
    ClickOn(Horizontal(), Length(Horizontal()) - 5, Middle);
    EXPECT_EQ(Grid().FirstCol(), 2) << "one that was loaded as smooth has a step of two";
    ClickOn(Horizontal(), 5, Middle);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_EQ(SaidNames(), Lines(5, "Scroll")) << "and the control hears nothing of the pointer";
    EXPECT_FALSE(host->HasFocus());
}

TEST_F(BarPointer, ADoubleClickIsTwoSteps)
{
    const auto [x, y] = In(Vertical(), Middle, Length(Vertical()) - 5);
    host->DblClickAt(x, y);
    EXPECT_EQ(Grid().FirstRow(), 2);
}

TEST_F(BarPointer, TheTroughIsAPage)
{
    const i16 page = static_cast<i16>(Grid().LastRow() + 1);
    ClickOn(Vertical(), Middle, Length(Vertical()) / 2);
    EXPECT_EQ(Grid().FirstRow(), page);
    ClickOn(Vertical(), Middle, Thickness(Vertical()) + 1);
    EXPECT_EQ(Grid().FirstRow(), 0);
    const i16 screen = static_cast<i16>(Grid().LastCol() + 1);
    ClickOn(Horizontal(), Length(Horizontal()) / 2, Middle);
    EXPECT_EQ(Grid().FirstCol(), screen);
}

TEST_F(BarPointer, ADragOfTheThumbScrollsAtItsEnd)
{
    DragThumb(Vertical(), 2000, 4);
    EXPECT_EQ(
        SaidNames(), (Lines { "ScrollTrackRow", "ScrollTrackRow", "ScrollTrackRow", "ScrollTrackRow", "Scroll" }));
    EXPECT_EQ(Vertical().Value(), Vertical().Max());
    EXPECT_EQ(Grid().LastRow(), Grid().Rows() - 1);
    DragThumb(Horizontal(), 2000, 1);
    EXPECT_EQ(SaidNames(), (Lines { "ScrollTrackCol", "Scroll" }));
    EXPECT_EQ(Horizontal().Value(), Horizontal().Max());
}

TEST_F(BarPointer, ADragOfTheThumbGoesAsFarAsThePointer)
{
    const float way = Length(Vertical()) - 2 * Thickness(Vertical()) - 8;
    DragThumb(Vertical(), way / 2, 1);
    EXPECT_NEAR(Vertical().Value(), (Vertical().Min() + Vertical().Max()) / 2.0, 1);
    EXPECT_EQ(Grid().FirstRow(), Vertical().Value() - 1);
}

TEST_F(BarPointer, ADragOfTheThumbScrollsOnTheWayWhereTheGridTracks)
{
    Grid().SetScrollVBar(vxScrollTrack);
    host->ClearLog();
    i16 before = 0;
    handlers.OnScroll = [&] {
        EXPECT_GT(Grid().FirstRow(), before);
        before = Grid().FirstRow();
    };
    DragThumb(Vertical(), 300, 3);
    EXPECT_EQ(host->Count("Scroll"), 3);
}

TEST_F(BarPointer, APressOnTheThumbAloneMovesNothing)
{
    DragThumb(Vertical(), 0, 1);
    EXPECT_EQ(Grid().FirstRow(), 0);
    ClickOn(Vertical(), Middle, Thickness(Vertical()) + 3);
    EXPECT_EQ(Grid().FirstRow(), 0);
}

TEST_F(BarPointer, OtherButtonsDoNothing)
{
    for (const i16 button : std::initializer_list<i16> { 2, 4 }) {
        ClickOn(Vertical(), Middle, Length(Vertical()) - 5, button);
        ClickOn(Vertical(), Middle, Length(Vertical()) / 2, button);
    }
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_TRUE(host->Log().empty());
}

TEST_F(BarPointer, ADisabledBarLetsThePressThroughToTheControl)
{
    Grid().SetScrollVEnabled(false);
    host->ClearLog();
    ClickOn(Vertical(), Middle, Length(Vertical()) - 5);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(host->Count("MouseDown"), 1);
}

TEST_F(BarPointer, ADragFromTheArrowStaysOneStep)
{
    const auto [x, y] = In(Vertical(), Middle, Length(Vertical()) - 5);
    host->Drag(x, y, x, y - 200, 1, 0, 5);
    EXPECT_EQ(Grid().FirstRow(), 1);
    EXPECT_EQ(SaidNames(), (Lines { "Scroll" }));
}

TEST_F(BarPointer, AHandlerMayCloseTheControlInAnyOfIt)
{
    for (const float place : { 0.F, 100.F }) {
        Make({});
        Load();
        handlers.OnScroll = [&] { host->Close(); };
        handlers.OnScrollTrackRow = [&](i16) { host->Close(); };
        const auto [x, y] = In(Vertical(), Middle, place > 0 ? Thickness(Vertical()) + 3 : 5 + Length(Vertical()) - 10);
        EXPECT_EQ(ErrorOf([&] { host->Drag(x, y, x, y + place, 1, 0, 3); }), std::nullopt);
        EXPECT_TRUE(Grid().IsTerminated());
    }
}

} // namespace
} // namespace vornix
