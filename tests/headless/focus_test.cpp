#include "headless/person_fixture.h"

namespace vornix {
namespace {

class Focus : public PersonTest { };

TEST_F(Focus, IsElsewhereAtFirst)
{
    EXPECT_FALSE(host->HasFocus());
}

TEST_F(Focus, ComesWithAPressBeforeItsNotification)
{
    bool inMove = true;
    bool inPress = false;
    handlers.OnMouseMove = [&](i16, i16, float, float) { inMove = host->HasFocus(); };
    handlers.OnMouseDown = [&](i16, i16, float, float) { inPress = host->HasFocus(); };
    host->ClickAt(5, 5, 2);
    EXPECT_FALSE(inMove);
    EXPECT_TRUE(inPress);
    EXPECT_TRUE(host->HasFocus());
}

TEST_F(Focus, ComesAndGoesWithTheForm)
{
    host->EnterFocus();
    EXPECT_TRUE(host->HasFocus());
    host->ExitFocus();
    EXPECT_FALSE(host->HasFocus());
}

TEST_F(Focus, IsTakenByTheControlItself)
{
    EXPECT_TRUE(host->SetFocus());
    EXPECT_TRUE(host->HasFocus());
}

TEST_F(Focus, IsTakenByAChildThatIsSeenAndEnabled)
{
    HeadlessChild& bar = ShowChild(ChildName::scrV, { 600, 0, 640, 480 });
    bar.SetEnabled(false);
    EXPECT_FALSE(bar.SetFocus());
    EXPECT_FALSE(host->HasFocus());
    bar.SetEnabled(true);
    EXPECT_TRUE(bar.SetFocus());
    EXPECT_TRUE(host->HasFocus());
    host->Type(u"a");
    EXPECT_TRUE(host->Log().empty()) << "the keys are the child's";
    bar.Show(false);
    host->Type(u"a");
    EXPECT_EQ(SaidNames(), (Lines { "KeyDown", "KeyPress", "KeyUp" }));
}

TEST_F(Focus, AClickOnAChildWithoutBehaviourGivesItNone)
{
    ShowChild(ChildName::scrV, { 600, 0, 640, 480 });
    host->ClickAt(610, 10);
    EXPECT_TRUE(host->Log().empty());
    EXPECT_FALSE(host->HasFocus());
    host->ClickAt(10, 10);
    host->ClickAt(610, 10);
    host->ClearLog();
    host->Press("Down");
    EXPECT_EQ(SaidNames(), (Lines { "KeyDown", "KeyUp" }));
}

TEST_F(Focus, TypingGivesItToTheControlFirst)
{
    bool had = false;
    handlers.OnKeyDown = [&](i16&, i16&) { had = host->HasFocus(); };
    host->Type(u"a");
    EXPECT_TRUE(had);
    host->ExitFocus();
    host->Press("Down");
    EXPECT_TRUE(had);
    EXPECT_TRUE(host->HasFocus());
}

TEST_F(Focus, KeysGoElsewhereWhenItLeavesInTheMiddle)
{
    handlers.OnKeyPress = [&](i16& KeyAscii) {
        if (KeyAscii == u'b')
            host->ExitFocus();
    };
    host->Type(u"abc");
    EXPECT_EQ(Said(),
        (Lines { "KeyDown KeyCode=65 Shift=0", "KeyPress KeyAscii=97", "KeyUp KeyCode=65 Shift=0",
            "KeyDown KeyCode=66 Shift=0", "KeyPress KeyAscii=98" }));
    EXPECT_FALSE(host->HasFocus());
}

// The focus mark of the current cell goes when the focus leaves, which only the form tells.
TEST_F(Focus, LeavingRepaintsNothingWithoutACurrentCell)
{
    Table(3, 3);
    host->EnterFocus();
    host->ExitFocus();
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(host->Refreshes(), 0);
}

} // namespace
} // namespace vornix
