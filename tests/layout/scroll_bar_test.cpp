#include "layout/scroll_bar.h"

#include "support/fake_device.h"
#include "vornix/automation.h"

#include <gmock/gmock.h>

#include <functional>
#include <map>

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A bar that keeps what it is given, as it is given, and writes down how.
class PlainBar : public NativeScrollBar {
public:
    ScrollBarInfo info;
    i32 track = 0;
    int infos = 0;
    int ranges = 0;

    void SetInfo(const ScrollBarInfo& given) override
    {
        info = given;
        ++infos;
    }
    void SetRange(i32 min, i32 max) override
    {
        info.min = min;
        info.max = max;
        ++ranges;
    }
    i32 Position() const override { return info.position; }
    void SetPosition(i32 position) override { info.position = position; }
    i32 TrackPosition() const override { return track; }
    std::intptr_t Handle() const override { return 4711; }
};

class PlainWindow : public ChildWindow {
public:
    void Move(const Rect& place) override { place_ = place; }
    Rect Place() const override { return place_; }
    void Show(bool visible) override { visible_ = visible; }
    bool IsVisible() const override { return visible_; }
    void SetEnabled(bool enabled) override { enabled_ = enabled; }
    bool IsEnabled() const override { return enabled_; }
    void Raise() override { }
    bool SetFocus() override { return false; }
    Device* Canvas() override { return canvas; }
    void CanvasChanged() override { ++shown; }

    Device* canvas = nullptr;
    int shown = 0;

private:
    Rect place_;
    bool visible_ = true;
    bool enabled_ = true;
};

class Bag : public PropertyBag {
public:
    std::map<std::string, BagValue, std::less<>> values;
    std::optional<BagValue> ReadProperty(std::string_view name) const override
    {
        const auto found = values.find(name);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void WriteProperty(std::string_view name, const BagValue& value) override
    {
        values.insert_or_assign(std::string(name), value);
    }
};

class Receiver : public ScrollBarEvents {
public:
    std::vector<std::string> said;
    std::function<void(i32&)> handler;

    void Change(i32& value, i32 direction) override { Say("change", value, " " + std::to_string(direction)); }
    void Scroll(i32& value) override { Say("scroll", value, ""); }

private:
    void Say(const std::string& what, i32& value, const std::string& rest)
    {
        said.push_back(what + " " + std::to_string(value) + rest);
        if (handler)
            handler(value);
    }
};

enum Code { LineUp, LineDown, PageUp, PageDown, ThumbPosition, ThumbTrack, Top, Bottom, EndScroll };

class ScrollBarLogic : public testing::Test {
protected:
    ScrollBarLogic()
    {
        bar.Initialize();
        bar.SetInfo(50, 10, 90, 1);
    }
    std::vector<std::string> Said() { return std::exchange(receiver.said, {}); }

    PlainBar native;
    Receiver receiver;
    cScrollBar bar { native, receiver };
};

TEST_F(ScrollBarLogic, StartsAtOneToAHundred)
{
    bar.Initialize();
    EXPECT_EQ(bar.Min(), 1);
    EXPECT_EQ(bar.Max(), 100);
    EXPECT_EQ(native.info.min, 1);
    EXPECT_EQ(native.info.max, 100);
    EXPECT_EQ(native.info.page, 1);
}

TEST_F(ScrollBarLogic, GivesTheBarAllAtOnceOrTheRangeAlone)
{
    native.infos = 0;
    bar.SetInfo(200, 5, 60, 7);
    EXPECT_EQ(native.infos, 1);
    EXPECT_EQ(native.info.position, 60) << "limited";
    EXPECT_EQ(native.info.page, 7);
    bar.SetMin(20);
    bar.SetMax(30);
    EXPECT_EQ(native.ranges, 2);
    EXPECT_EQ(native.infos, 1);
    EXPECT_EQ(native.info.min, 20);
    EXPECT_EQ(native.info.max, 30);
    EXPECT_EQ(bar.Min(), 20);
    EXPECT_EQ(bar.Max(), 30);
    native.info = {};
    bar.Refresh();
    EXPECT_EQ(native.info.min, 20);
    EXPECT_EQ(native.info.page, 7);
}

TEST_F(ScrollBarLogic, TheUpperEndWinsWhereTheRangeIsUpsideDown)
{
    bar.SetInfo(50, 40, 20, 1);
    EXPECT_EQ(native.info.position, 20);
    bar.SetValue(100);
    EXPECT_EQ(bar.Value(), 20);
}

TEST_F(ScrollBarLogic, AValueIsLimitedAndRaisesNothing)
{
    bar.SetValue(1000);
    EXPECT_EQ(bar.Value(), 90);
    bar.SetValue(-5);
    EXPECT_EQ(bar.Value(), 10);
    EXPECT_THAT(receiver.said, IsEmpty());
}

TEST_F(ScrollBarLogic, LinesMoveByTheSmallChangeWithinTheRange)
{
    bar.DispatchMessage(LineDown);
    EXPECT_EQ(bar.Value(), 51);
    bar.SetSmallChange(30);
    bar.DispatchMessage(LineDown);
    bar.DispatchMessage(LineDown);
    bar.DispatchMessage(LineUp);
    EXPECT_THAT(Said(), ElementsAre("change 51 0", "change 81 0", "change 90 0", "change 60 0"));
    EXPECT_EQ(bar.Value(), 60);
}

TEST_F(ScrollBarLogic, LinesStayInTheRangeAtTheEndsOfNumbers)
{
    bar.SetInfo(2147483647, -2147483647 - 1, 2147483647, 1);
    bar.SetSmallChange(2147483647);
    bar.DispatchMessage(LineDown);
    EXPECT_EQ(bar.Value(), 2147483647);
    bar.DispatchMessage(LineUp);
    bar.DispatchMessage(LineUp);
    bar.DispatchMessage(LineUp);
    EXPECT_EQ(bar.Value(), -2147483647 - 1);
}

TEST_F(ScrollBarLogic, APageIsTheReceiversBusiness)
{
    receiver.handler = [](i32& value) { value = 77; };
    bar.DispatchMessage(PageDown);
    EXPECT_EQ(bar.Value(), 77);
    receiver.handler = nullptr;
    bar.DispatchMessage(PageUp);
    EXPECT_EQ(bar.Value(), 77) << "nobody moved it";
    EXPECT_THAT(Said(), ElementsAre("change 50 1", "change 77 -1"));
}

TEST_F(ScrollBarLogic, TheThumbLetGoDoesNothingByItself)
{
    native.track = 70;
    bar.DispatchMessage(ThumbPosition);
    EXPECT_THAT(receiver.said, IsEmpty());
    EXPECT_EQ(bar.Value(), 50);
}

TEST_F(ScrollBarLogic, ADragTracksAndChangesAtItsEnd)
{
    native.track = 60;
    bar.DispatchMessage(ThumbTrack);
    EXPECT_EQ(bar.Value(), 60);
    native.track = 65;
    bar.DispatchMessage(ThumbTrack);
    bar.DispatchMessage(ThumbPosition);
    bar.DispatchMessage(EndScroll);
    bar.DispatchMessage(EndScroll);
    EXPECT_THAT(Said(), ElementsAre("scroll 60", "scroll 65", "change 65 0"));
    EXPECT_EQ(bar.Value(), 65);
}

TEST_F(ScrollBarLogic, AThumbHeldOutsideTheRangeIsAtItsEnd)
{
    native.track = 200;
    bar.DispatchMessage(ThumbTrack);
    native.track = -200;
    bar.DispatchMessage(ThumbTrack);
    EXPECT_THAT(Said(), ElementsAre("scroll 90", "scroll 10"));
    native.track = 60;
    bar.SetInfo(10, 20, 30, 1);
    bar.DispatchMessage(EndScroll);
    EXPECT_THAT(Said(), ElementsAre("change 30 0")) << "the range of the end, not of the drag";
    EXPECT_EQ(bar.Value(), 30);
}

TEST_F(ScrollBarLogic, AnActionThatIsOverHasNoEnd)
{
    bar.SetSmoothScroll(true);
    bar.DispatchMessage(LineDown);
    bar.DispatchMessage(LineDown);
    native.track = 60;
    bar.DispatchMessage(ThumbTrack);
    Said();
    bar.EndAction();
    bar.DispatchMessage(EndScroll);
    EXPECT_THAT(Said(), IsEmpty());
    bar.SetValue(50);
    bar.DispatchMessage(LineDown);
    EXPECT_THAT(Said(), ElementsAre("change 52 0")) << "the first step again";
}

TEST_F(ScrollBarLogic, TheBarEndsUpWhereTheHandlerLeavesTheValue)
{
    receiver.handler = [](i32& value) { value = 33; };
    for (const i32 code : { LineUp, LineDown, PageUp, PageDown, ThumbTrack, EndScroll, Top, Bottom }) {
        bar.SetValue(50);
        bar.DispatchMessage(code);
        EXPECT_EQ(bar.Value(), 33) << code;
    }
    receiver.handler = [](i32& value) { value = 1000; };
    bar.DispatchMessage(LineUp);
    EXPECT_EQ(bar.Value(), 90) << "limited to the range";
}

TEST_F(ScrollBarLogic, TopAndBottomAreTheEndsOfTheRange)
{
    bar.DispatchMessage(Top);
    EXPECT_EQ(bar.Value(), 10);
    bar.DispatchMessage(Bottom);
    EXPECT_EQ(bar.Value(), 90);
    EXPECT_THAT(Said(), ElementsAre("change 10 0", "change 90 0"));
}

TEST_F(ScrollBarLogic, AHeldArrowDoublesItsStepUntilTheRelease)
{
    bar.SetInfo(0, 0, 1000, 1);
    bar.SetSmoothScroll(true);
    for (int i = 0; i < 7; ++i)
        bar.DispatchMessage(LineDown);
    EXPECT_THAT(Said(),
        ElementsAre(
            "change 2 0", "change 6 0", "change 14 0", "change 30 0", "change 62 0", "change 94 0", "change 126 0"));
    bar.DispatchMessage(EndScroll);
    EXPECT_THAT(Said(), IsEmpty()) << "no drag was on";
    bar.DispatchMessage(LineUp);
    EXPECT_THAT(Said(), ElementsAre("change 124 0"));
}

TEST_F(ScrollBarLogic, UnknownMessagesDoNothing)
{
    bar.DispatchMessage(9);
    bar.DispatchMessage(-1);
    EXPECT_THAT(receiver.said, IsEmpty());
    EXPECT_EQ(bar.Value(), 50);
}

// -- The component --

class ScrollBarComponent : public testing::Test {
protected:
    ScrollBarComponent()
    {
        bar.InitProperties();
        bar.Subclass();
    }

    PlainBar native;
    PlainWindow window;
    Receiver receiver;
    ScrollBar bar { window, native, receiver };
};

TEST_F(ScrollBarComponent, IsNewWithZeroToAHundred)
{
    EXPECT_EQ(bar.Min(), 0);
    EXPECT_EQ(bar.Max(), 100);
    EXPECT_EQ(bar.Orientation(), 0);
    EXPECT_EQ(native.info.min, 0);
    EXPECT_EQ(bar.hWnd(), 4711);
}

TEST_F(ScrollBarComponent, KeepsThreeProperties)
{
    Bag bag;
    bar.SetOrientation(1);
    bar.SetInfo(3, 30, 5);
    bar.WriteProperties(bag);
    EXPECT_EQ(bag.values.size(), 3u);
    ScrollBar loaded(window, native, receiver);
    loaded.ReadProperties(bag);
    EXPECT_EQ(loaded.Orientation(), 1);
    EXPECT_EQ(loaded.Min(), 3);
    EXPECT_EQ(loaded.Max(), 30);
    loaded.ReadProperties(Bag());
    EXPECT_EQ(loaded.Orientation(), 0);
    EXPECT_EQ(loaded.Min(), 0);
    EXPECT_EQ(loaded.Max(), 100);
    bag.values["Max"] = u"many";
    EXPECT_THROW(loaded.ReadProperties(bag), AutomationError);
}

TEST_F(ScrollBarComponent, SetInfoKeepsThePositionAsFarAsItGoes)
{
    bar.SetValue(40);
    bar.SetInfo(0, 60, 1);
    EXPECT_EQ(bar.Value(), 40);
    bar.SetInfo(0, 30, 1);
    EXPECT_EQ(bar.Value(), 30);
    bar.SetValue(99);
    EXPECT_EQ(bar.Value(), 30);
    EXPECT_THAT(receiver.said, IsEmpty());
}

TEST_F(ScrollBarComponent, RaisesItsEventsOnlyWhileItIsShown)
{
    bar.Notify(LineDown);
    bar.Hide();
    bar.Notify(LineDown);
    bar.Notify(ThumbTrack);
    EXPECT_FALSE(bar.IsShown());
    EXPECT_THAT(receiver.said, ElementsAre("change 1 0"));
    bar.Show();
    bar.SetValue(5);
    bar.Notify(LineDown);
    EXPECT_THAT(receiver.said, ElementsAre("change 1 0", "change 6 0"));
}

TEST_F(ScrollBarComponent, MovesUnseenWhileItIsHidden)
{
    bar.Hide();
    bar.Notify(LineDown);
    EXPECT_EQ(bar.Value(), 1);
    bar.Notify(PageDown);
    EXPECT_EQ(bar.Value(), 1) << "how far a page goes nobody says";
    bar.Notify(Bottom);
    EXPECT_EQ(bar.Value(), 100);
    native.track = 40;
    bar.Notify(ThumbTrack);
    EXPECT_EQ(bar.Value(), 40);
    bar.Notify(EndScroll);
    EXPECT_EQ(bar.Value(), 40);
    EXPECT_THAT(receiver.said, IsEmpty());
}

TEST_F(ScrollBarComponent, CoversItsAreaOnACanvasOfTheControl)
{
    const auto screen = std::make_shared<FakeScreen>();
    FakeDevice canvas(screen, "bar", { 100, 17 });
    canvas.SetBkColor(0x123456);
    screen->journal.clear();
    window.Move({ 20, 300, 120, 317 });
    bar.Paint();
    EXPECT_EQ(window.shown, 0) << "the toolkit draws the bar";
    window.canvas = &canvas;
    bar.Paint();
    EXPECT_THAT(screen->journal, ElementsAre("bar.FillRect 0,0,100,17 #123456"));
    EXPECT_EQ(window.shown, 1);
    window.Move({ 20, 300, 120, 300 });
    bar.Paint();
    EXPECT_EQ(screen->journal.size(), 1u) << "no height, nothing to cover";
    EXPECT_EQ(window.shown, 1);
    window.Move({ 20, 300, 20, 301 });
    bar.Paint();
    EXPECT_EQ(screen->journal.size(), 2u) << "the width is not asked for";
}

TEST_F(ScrollBarComponent, TakesNoActionAcrossUnSubclass)
{
    native.track = 40;
    bar.Notify(ThumbTrack);
    bar.UnSubclass();
    bar.Subclass();
    bar.Notify(EndScroll);
    EXPECT_THAT(receiver.said, ElementsAre("scroll 40")) << "the drag is over";
    bar.SetSmoothScroll(true);
    bar.Notify(LineDown);
    bar.Notify(LineDown);
    bar.UnSubclass();
    bar.Subclass();
    bar.Notify(LineDown);
    EXPECT_EQ(bar.Value(), 40 + 2 + 4 + 2);
}

TEST_F(ScrollBarComponent, AnswersBetweenSubclassAndUnSubclass)
{
    bar.UnSubclass();
    bar.Notify(LineDown);
    EXPECT_EQ(bar.Value(), 0);
    bar.SetOrientation(2);
    bar.Subclass();
    bar.Notify(LineDown);
    EXPECT_THAT(receiver.said, IsEmpty()) << "there is no third direction";
    bar.SetOrientation(1);
    bar.Subclass();
    bar.Notify(LineDown);
    EXPECT_EQ(bar.Value(), 1);
}

TEST_F(ScrollBarComponent, PassesStepsAndInputOn)
{
    bar.SetSmallChange(3);
    bar.SetSmoothScroll(true);
    bar.Notify(LineDown);
    EXPECT_EQ(bar.Value(), 6);
    bar.SetEnabled(false);
    EXPECT_FALSE(window.IsEnabled());
    EXPECT_FALSE(bar.Enabled());
}

} // namespace
} // namespace vornix
