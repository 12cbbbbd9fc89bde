#include "headless/person_fixture.h"

namespace vornix {
namespace {

class SpaceOnACheckBox : public PersonTest {
protected:
    SpaceOnACheckBox()
    {
        Table(3, 3, 1, 1);
        Grid().SetCellMode(0, 0, vxCheckBox);
        Grid().CurrentPos(0, 0);
        host->ClearLog();
    }
};

TEST_F(SpaceOnACheckBox, TurnsTheTextOverAndTellsIt)
{
    host->KeyDown(32);
    EXPECT_EQ(Grid().Text(0, 0), u"-1");
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=32 Shift=0", "TextChange Row=0 Col=0" }));
    host->KeyDown(32);
    EXPECT_EQ(Grid().Text(0, 0), u"0");
    EXPECT_FALSE(Grid().CellChecked(0, 0));
}

TEST_F(SpaceOnACheckBox, TakesATextThatIsNoTruthValueAsUnchecked)
{
    Grid().SetText(0, 0, u"maybe");
    host->KeyDown(32);
    EXPECT_EQ(Grid().Text(0, 0), u"-1");
    Grid().SetText(0, 0, u"true");
    host->KeyDown(32);
    EXPECT_EQ(Grid().Text(0, 0), u"0");
}

TEST_F(SpaceOnACheckBox, PaintsTheCell)
{
    const int before = host->Refreshes();
    host->KeyDown(32);
    EXPECT_EQ(host->Refreshes(), before + 1);
    Grid().SetRedraw(false);
    host->ClearLog();
    host->KeyDown(32);
    EXPECT_EQ(host->Refreshes() + host->Repaints(), 0);
}

TEST_F(SpaceOnACheckBox, LeavesADisabledCellAlone)
{
    Grid().SetCellEnabled(0, 0, false);
    host->ClearLog();
    host->KeyDown(32);
    EXPECT_EQ(Grid().Text(0, 0), u"");
    EXPECT_EQ(SaidNames(), Lines { "KeyDown" });
}

TEST_F(SpaceOnACheckBox, LeavesOtherModesAndOtherKeysAlone)
{
    Grid().CurrentPos(0, 1);
    host->KeyDown(32);
    EXPECT_EQ(Grid().Text(0, 1), u"");
    Grid().CurrentPos(0, 0);
    for (const i16 shift : std::initializer_list<i16> { 1, 2, 3, 4 })
        host->KeyDown(32, shift);
    EXPECT_EQ(Grid().Text(0, 0), u"");
    EXPECT_EQ(host->Count("TextChange"), 0);
}

TEST_F(SpaceOnACheckBox, DoesNothingWithoutACurrentCell)
{
    Make({});
    Table(3, 3);
    Grid().SetColMode(0, vxCheckBox);
    host->KeyDown(32);
    EXPECT_EQ(Grid().Text(0, 0), u"");
    EXPECT_EQ(host->Count("TextChange"), 0);
}

TEST_F(SpaceOnACheckBox, StandsWhateverTheHandlerDoes)
{
    handlers.OnTextChange = [&](i16 Row, i16) {
        EXPECT_EQ(Grid().Text(Row, 0), u"-1");
        Grid().SetRows(0);
    };
    host->KeyDown(32);
    EXPECT_EQ(Grid().CurrentRow(), -32767);
    Make({});
    Table(2, 2);
    Grid().SetCellMode(0, 0, vxCheckBox);
    Grid().CurrentPos(0, 0);
    handlers.OnTextChange = [&](i16, i16) { Grid().Terminate(); };
    host->KeyDown(32);
    EXPECT_TRUE(Grid().IsTerminated());
}

} // namespace
} // namespace vornix
