#include "window_stack.h"

#include "headless/person_fixture.h"
#include "person.h"

namespace vornix {
namespace {

// A child that writes down what arrives.
class RecordingChild : public HeadlessChild {
public:
    RecordingChild(std::string name, std::vector<std::string>& said)
        : name_(std::move(name))
        , said_(said)
    {
    }
    void MouseDown(i16 button, i16, float x, float y) override { Say("MouseDown", button, x, y); }
    void MouseMove(i16 button, i16, float x, float y) override { Say("MouseMove", button, x, y); }
    void MouseUp(i16 button, i16, float x, float y) override { Say("MouseUp", button, x, y); }
    void Click() override { said_.push_back(name_ + " Click"); }
    void DblClick() override { said_.push_back(name_ + " DblClick"); }
    void KeyDown(i16& code, i16&) override { said_.push_back(name_ + " KeyDown " + std::to_string(code)); }
    void KeyPress(i16& character, i16) override { said_.push_back(name_ + " KeyPress " + std::to_string(character)); }
    void KeyUp(i16& code, i16&) override { said_.push_back(name_ + " KeyUp " + std::to_string(code)); }

private:
    void Say(const std::string& what, i16 button, float x, float y)
    {
        std::ostringstream line;
        line << name_ << ' ' << what << ' ' << button << ' ' << x << ' ' << y;
        said_.push_back(line.str());
    }

    std::string name_;
    std::vector<std::string>& said_;
};

// The control's own events are in the log; what the children get is in `said`.
class Windows : public PersonTest {
protected:
    Windows() { stack.SetShown(true); }

    RecordingChild& At(ChildName name) { return children[static_cast<std::size_t>(name)]; }
    RecordingChild& Show(ChildName name, const Rect& place)
    {
        RecordingChild& child = At(name);
        child.Move(place);
        child.Show(true);
        return child;
    }
    InputWindow* Control() { return &stack.TheControl(); }
    void Click(float x, float y) { person.ClickAt({ x, y }, 1, 0); }

    Lines said;
    std::array<RecordingChild, 8> children {
        RecordingChild { "scrV", said },
        RecordingChild { "scrH", said },
        RecordingChild { "txtTmp", said },
        RecordingChild { "cboTmp", said },
        RecordingChild { "fraEdit", said },
        RecordingChild { "cPivot", said },
        RecordingChild { "picSplitCol", said },
        RecordingChild { "picSplitMove", said },
    };
    std::array<HeadlessChild*, 8> pointers { &children[0], &children[1], &children[2], &children[3], &children[4],
        &children[5], &children[6], &children[7] };
    WindowStack stack { *host, pointers };
    Person person { *host, stack };
};

TEST_F(Windows, TheControlLiesBelowItsChildren)
{
    RecordingChild& bar = Show(ChildName::scrV, { 600, 0, 640, 480 });
    EXPECT_EQ(stack.TopAt(599.9F, 5), Control());
    EXPECT_EQ(stack.TopAt(600, 5), &bar);
    EXPECT_EQ(stack.TopAt(639.9F, 479), &bar);
    EXPECT_EQ(stack.TopAt(640, 5), nullptr);
    EXPECT_EQ(stack.TopAt(5, -1), nullptr);
}

TEST_F(Windows, AChildGetsTheNotificationsInItsOwnCoordinates)
{
    Show(ChildName::scrH, { 10, 460, 500, 480 });
    Click(15, 462.5F);
    EXPECT_EQ(
        said, (Lines { "scrH MouseMove 0 5 2.5", "scrH MouseDown 1 5 2.5", "scrH MouseUp 1 5 2.5", "scrH Click" }));
    EXPECT_TRUE(host->Log().empty());
    EXPECT_FALSE(stack.HasFocus()) << "a child takes the focus itself";
}

TEST_F(Windows, HiddenAndDisabledChildrenLetThroughWhatLiesBelow)
{
    RecordingChild& corner = Show(ChildName::cPivot, { 0, 0, 50, 50 });
    RecordingChild& split = Show(ChildName::picSplitCol, { 0, 0, 50, 50 });
    EXPECT_EQ(stack.TopAt(5, 5), &split);
    split.SetEnabled(false);
    EXPECT_EQ(stack.TopAt(5, 5), &corner);
    corner.Show(false);
    EXPECT_EQ(stack.TopAt(5, 5), Control());
    split.SetEnabled(true);
    EXPECT_EQ(stack.TopAt(5, 5), &split);
}

TEST_F(Windows, ARaisedChildLiesAboveItsSiblings)
{
    RecordingChild& bar = Show(ChildName::scrV, { 0, 0, 50, 50 });
    RecordingChild& corner = Show(ChildName::cPivot, { 0, 0, 50, 50 });
    EXPECT_EQ(stack.TopAt(5, 5), &corner);
    bar.Raise();
    EXPECT_EQ(stack.TopAt(5, 5), &bar);
    corner.Raise();
    EXPECT_EQ(stack.TopAt(5, 5), &corner);
    corner.Raise();
    EXPECT_EQ(stack.TopAt(5, 5), &corner);
}

TEST_F(Windows, EditorsLieInTheirFrame)
{
    RecordingChild& box = Show(ChildName::txtTmp, { 0, 0, 100, 40 });
    EXPECT_EQ(stack.TopAt(110, 110), Control()) << "the frame is hidden";
    EXPECT_FALSE(box.SetFocus());
    EXPECT_TRUE(box.IsVisible());
    RecordingChild& frame = Show(ChildName::fraEdit, { 100, 100, 200, 120 });
    EXPECT_EQ(stack.TopAt(110, 110), &box);
    EXPECT_EQ(box.Area(), (Rect { 100, 100, 200, 140 }));
    EXPECT_EQ(stack.TopAt(110, 130), Control()) << "the frame clips it";
    RecordingChild& combo = Show(ChildName::cboTmp, { 50, 0, 100, 20 });
    EXPECT_EQ(stack.TopAt(160, 110), &combo);
    box.Raise();
    EXPECT_EQ(stack.TopAt(160, 110), &box);
    RecordingChild& handle = Show(ChildName::picSplitMove, { 120, 0, 122, 480 });
    EXPECT_EQ(stack.TopAt(121, 110), &handle) << "raising an editor raises it in the frame only";
    frame.Raise();
    EXPECT_EQ(stack.TopAt(121, 110), &box) << "a frame is raised with what it holds";
    frame.SetEnabled(false);
    EXPECT_EQ(stack.TopAt(110, 110), Control());
}

TEST_F(Windows, FromPressToReleaseAllGoesToTheWindowOfThePress)
{
    Show(ChildName::scrV, { 600, 0, 640, 480 });
    person.Drag({ 610, 10 }, { 20, 30 }, 1, 0, 2);
    EXPECT_EQ(said,
        (Lines { "scrV MouseMove 0 10 10", "scrV MouseDown 1 10 10", "scrV MouseMove 1 -285 20",
            "scrV MouseMove 1 -580 30", "scrV MouseUp 1 -580 30" }));
    EXPECT_TRUE(host->Log().empty());
    said.clear();
    person.Drag({ 20, 30 }, { 610, 10 }, 1, 0, 1);
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "MouseDown", "MouseMove", "MouseUp", "Click" }))
        << "the release lies in the control, below its bar";
}

TEST_F(Windows, AChildShownByThePressDoesNotTakeTheRelease)
{
    handlers.OnMouseDown = [&](i16, i16, float, float) { Show(ChildName::fraEdit, { 0, 0, 100, 100 }); };
    Click(5, 5);
    EXPECT_EQ(HeardNames(), (Lines { "MouseMove", "MouseDown", "MouseUp", "Click" }));
    EXPECT_TRUE(said.empty());
    Click(5, 5);
    EXPECT_EQ(said.size(), 4u);
}

TEST_F(Windows, ASecondPressOnAnotherWindowIsNoDoubleClick)
{
    handlers.OnClick = [&] { Show(ChildName::fraEdit, { 0, 0, 100, 100 }); };
    person.DblClickAt({ 5, 6 }, 1, 0);
    EXPECT_EQ(HeardNames(), (Lines { "MouseMove", "MouseDown", "MouseUp", "Click" }));
    EXPECT_EQ(said, (Lines { "fraEdit MouseDown 1 5 6", "fraEdit MouseUp 1 5 6", "fraEdit Click" }));
    said.clear();
    person.DblClickAt({ 5, 6 }, 1, 0);
    EXPECT_EQ(said,
        (Lines { "fraEdit MouseMove 0 5 6", "fraEdit MouseDown 1 5 6", "fraEdit MouseUp 1 5 6", "fraEdit Click",
            "fraEdit DblClick", "fraEdit MouseUp 1 5 6" }));
}

TEST_F(Windows, AClickInsideAHandlerGoesToTheWindowOfThePressAroundIt)
{
    Show(ChildName::scrV, { 600, 0, 640, 480 });
    bool nested = false;
    handlers.OnMouseDown = [&](i16, i16, float, float) {
        if (!std::exchange(nested, true))
            person.ClickAt({ 610, 10 }, 2, 0);
    };
    Click(5, 5);
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(HeardNames(),
        (Lines { "MouseMove", "MouseDown", "MouseMove", "MouseDown", "MouseUp", "Click", "MouseUp", "Click" }));
    Click(610, 10);
    EXPECT_EQ(said.size(), 4u) << "nothing is held any more";
}

TEST_F(Windows, KeysGoToTheChildWithTheFocus)
{
    RecordingChild& frame = Show(ChildName::fraEdit, { 0, 0, 100, 100 });
    RecordingChild& box = Show(ChildName::txtTmp, { 0, 0, 100, 100 });
    EXPECT_TRUE(box.SetFocus());
    EXPECT_EQ(stack.Focused(), &box);
    person.Type(u"a");
    EXPECT_EQ(said, (Lines { "txtTmp KeyDown 65", "txtTmp KeyPress 97", "txtTmp KeyUp 65" }));
    EXPECT_TRUE(host->Log().empty());
    frame.Show(false);
    EXPECT_EQ(stack.Focused(), Control()) << "the focus of a child that is gone is the control's";
    person.Press(40, 0);
    EXPECT_EQ(SaidNames(), (Lines { "KeyDown", "KeyUp" }));
    frame.Show(true);
    EXPECT_EQ(stack.Focused(), Control());
}

TEST_F(Windows, EachPartOfAKeyGoesToWhatHasTheFocusThen)
{
    RecordingChild& frame = Show(ChildName::fraEdit, { 0, 0, 100, 100 });
    handlers.OnKeyDown = [&](i16&, i16&) { EXPECT_TRUE(frame.SetFocus()); };
    person.Type(u"a");
    EXPECT_EQ(SaidNames(), (Lines { "KeyDown" }));
    EXPECT_EQ(said, (Lines { "fraEdit KeyPress 97", "fraEdit KeyUp 65" }));
}

TEST_F(Windows, APressOnTheControlTakesTheFocusFromAChild)
{
    RecordingChild& frame = Show(ChildName::fraEdit, { 0, 0, 100, 100 });
    EXPECT_TRUE(frame.SetFocus());
    EXPECT_TRUE(stack.HasFocus());
    Click(5, 5);
    EXPECT_EQ(stack.Focused(), &frame);
    Click(300, 300);
    EXPECT_EQ(stack.Focused(), Control());
    stack.ExitFocus();
    EXPECT_EQ(stack.Focused(), nullptr);
}

} // namespace
} // namespace vornix
