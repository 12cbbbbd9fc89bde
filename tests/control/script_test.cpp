#include "control/grid_fixture.h"
#include "persist/script_elements.h"

#include <algorithm>
#include <utility>

namespace vornix {
namespace {

using testing::Contains;
using testing::ElementsAre;

class Script : public GridTest {
protected:
    // One script added and run; the one before is gone.
    i32 Run(std::u16string_view text)
    {
        Grid().VXScriptClear();
        EXPECT_EQ(Grid().VXScriptAdd(text), -1);
        return Grid().VXScriptExecute();
    }
    std::optional<int> ErrorOfRun(std::u16string_view text)
    {
        return ErrorOf([&] { static_cast<void>(Run(text)); });
    }
};

// A host that acts when a property has changed.
class ReportingContainer : public HeadlessContainer {
public:
    void PropertyChanged(std::string_view name) override
    {
        HeadlessContainer::PropertyChanged(name);
        if (const auto act = onChange)
            act(name);
    }

    std::function<void(std::string_view)> onChange;
};

// How the interface file declares what an element sets.
std::vector<std::string_view> ArgumentNames(const MemberInfo& member)
{
    std::vector<std::string_view> names;
    for (const ArgumentInfo& argument : member.arguments)
        names.push_back(argument.name);
    return names;
}

ValueType ValueTypeOf(const MemberInfo& member)
{
    return member.kind == MemberKind::Method ? member.arguments[0].type : member.type;
}

bool Carries(ScriptValueKind kind, ValueType type)
{
    switch (kind) {
    case ScriptValueKind::Number:
        return type == ValueType::I32 || type == ValueType::Color;
    case ScriptValueKind::ShortNumber:
        return type == ValueType::I16;
    case ScriptValueKind::Boolean:
    case ScriptValueKind::NumericBoolean:
        return type == ValueType::Boolean;
    case ScriptValueKind::Text:
        return type == ValueType::Text;
    }
    return false;
}

const std::pair<ScriptAddressing, std::vector<std::string_view>> argumentsOf[] = {
    { ScriptAddressing::Cell, { "Row", "Col" } },
    { ScriptAddressing::Column, { "Col" } },
    { ScriptAddressing::Row, { "Row" } },
    { ScriptAddressing::Grid, {} },
};

} // namespace

TEST_F(Script, EveryElementSetsAMemberOfTheInterfaceWithItsArgumentsAndValue)
{
    for (const ScriptElement& element : ScriptElements()) {
        if (element.action != ScriptAction::CallMember)
            continue;
        const MemberInfo* member = FindMember(element.member);
        ASSERT_NE(member, nullptr) << element.member;
        EXPECT_EQ(member->name, element.member);
        EXPECT_NE(member->kind, MemberKind::ReadOnly) << element.member;
        EXPECT_TRUE(Carries(element.value, ValueTypeOf(*member))) << element.member;
        if (member->kind == MemberKind::Method)
            continue;
        const auto* expected = std::ranges::find(
            argumentsOf, element.addressing, &std::pair<ScriptAddressing, std::vector<std::string_view>>::first);
        EXPECT_EQ(ArgumentNames(*member), expected->second) << element.member;
    }
}

TEST_F(Script, OnlyAutoSizeRowsIsAMethod)
{
    std::vector<std::string_view> methods;
    for (const ScriptElement& element : ScriptElements()) {
        if (!element.member.empty() && FindMember(element.member)->kind == MemberKind::Method)
            methods.push_back(element.member);
    }
    EXPECT_THAT(methods, ElementsAre("AutoSizeRows"));
}

TEST_F(Script, DoesWhatEachLineOfAnExampleSays)
{
    Table(5, 5);
    EXPECT_EQ(Run(u"<!-- header -->\n"
                  u"<Redraw>False</Redraw>\n"
                  u"<Cols>4</Cols>\n"
                  u"<Row>2</Row>\n"
                  u"<Col>1</Col>\n"
                  u"<CellBackColor>&HFF</CellBackColor>\n"
                  u"<CellFontBold Row=\"3\" Col=\"0\">True</CellFontBold>\n"
                  u"<ColWidth Col=\"2\">80</ColWidth>\n"
                  u"<Redraw>True</Redraw>"),
        -1);
    EXPECT_TRUE(Grid().Redraw());
    EXPECT_EQ(Grid().Cols(), 4);
    EXPECT_EQ(Grid().CellBackColor(2, 1), 255u);
    EXPECT_TRUE(Grid().CellFontBold(3, 0));
    EXPECT_FALSE(Grid().CellFontBold(2, 1));
    EXPECT_EQ(Grid().ColWidth(2), 80);
    EXPECT_EQ(host->Repaints(), 1) << "the gate was closed up to the last element";
    EXPECT_NE(Grid().CurrentRow(), 2) << "the cursor of the script is not the current cell";
}

TEST_F(Script, HalvesOfAnElementAddUp)
{
    Grid().VXScriptAdd(u"<Rows>1");
    EXPECT_EQ(Grid().VXScriptExecute(), 0);
    EXPECT_EQ(Grid().VXScriptAdd(u"2</Rows>"), -1);
    EXPECT_EQ(Grid().VXScriptExecute(), -1);
    EXPECT_EQ(Grid().Rows(), 12);
}

TEST_F(Script, TextsStandAsTheyAre)
{
    EXPECT_EQ(Run(u"<Caption>a<b</Caption>"), -1);
    EXPECT_EQ(Grid().Caption(), u"a<b");
    EXPECT_EQ(Run(u"<Caption> \"x\" <!-- gone -->\r\n</Caption>"), -1);
    EXPECT_EQ(Grid().Caption(), u" \"x\" \r\n");
    EXPECT_EQ(Run(u"<Caption></Caption>"), -1);
    EXPECT_EQ(Grid().Caption(), u"");
}

TEST_F(Script, ALineBreakAtTheEndIsZeroWithAllApplied)
{
    EXPECT_EQ(Run(u"<Rows>7</Rows>\r\n"), 0);
    EXPECT_EQ(Grid().Rows(), 7);
}

TEST_F(Script, AFaultLeavesWhatFollows)
{
    EXPECT_EQ(Run(u"<Rows>7</Rows><Cols>abc</Cols><Rows>8</Rows>"), 0);
    EXPECT_EQ(Grid().Rows(), 7);
    EXPECT_EQ(Run(u"<cols>4</cols>"), 0);
    EXPECT_EQ(Run(u"<Text>4</Text>"), 0) << "no element of the language";
}

TEST_F(Script, ColEnabledTakesNumbersAlone)
{
    Table(2, 2);
    EXPECT_EQ(Run(u"<ColEnabled>0</ColEnabled>"), -1);
    EXPECT_FALSE(Grid().ColEnabled(0));
    EXPECT_EQ(Run(u"<ColEnabled Col=\"1\">False</ColEnabled>"), 0);
    EXPECT_TRUE(Grid().ColEnabled(1));
    EXPECT_EQ(Run(u"<CellEnabled Row=\"1\" Col=\"1\">False</CellEnabled>"), -1);
    EXPECT_FALSE(Grid().CellEnabled(1, 1));
}

TEST_F(Script, RowSpanSetsTheColumnSpan)
{
    Table(3, 3);
    EXPECT_EQ(Run(u"<RowSpan>1</RowSpan>"), -1);
    EXPECT_EQ(Grid().ColSpan(0, 0), 1);
    EXPECT_EQ(Grid().RowSpan(0, 0), 0);
    EXPECT_EQ(Run(u"<ColSpan Row=\"1\" Col=\"0\">2</ColSpan>"), -1);
    EXPECT_EQ(Grid().ColSpan(1, 0), 2);
}

TEST_F(Script, FixedLinesHaveNegativePlaces)
{
    Table(2, 2, 1, 1);
    EXPECT_EQ(Run(u"<Row>-1</Row><Col>-1</Col><CellForeColor>17</CellForeColor><RowHeight>44</RowHeight>"
                  u"<ColWidth Col=\"-1\">33</ColWidth>"),
        -1);
    EXPECT_EQ(Grid().CellForeColor(-1, -1), 17u);
    EXPECT_EQ(Grid().RowHeight(-1), 44);
    EXPECT_EQ(Grid().ColWidth(-1), 33);
}

TEST_F(Script, TheFillerLinesAreReached)
{
    Table(2, 2);
    EXPECT_EQ(Run(u"<CellForeColor Row=\"2\" Col=\"2\">17</CellForeColor>"), -1);
    EXPECT_EQ(Grid().CellForeColor(2, 2), 17u);
    EXPECT_EQ(ErrorOfRun(u"<CellForeColor Row=\"3\" Col=\"2\">17</CellForeColor>"), 9);
}

TEST_F(Script, ASystemColourIsWrittenInHexadecimal)
{
    Table(1, 1);
    EXPECT_EQ(Run(u"<CellBackColor>&H8000000F</CellBackColor>"), -1);
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0x8000000Fu);
    EXPECT_EQ(Run(u"<AltBkColor>-2147483633</AltBkColor>"), -1);
    EXPECT_EQ(Grid().AltBkColor(), 0x8000000Fu);
}

TEST_F(Script, ErrorsOfSettersComeOutAndEndTheRun)
{
    Table(2, 2);
    EXPECT_EQ(ErrorOfRun(u"<Cols>3</Cols><CellBackColor Row=\"9\" Col=\"0\">1</CellBackColor><Cols>4</Cols>"), 9);
    EXPECT_EQ(Grid().Cols(), 3);
    EXPECT_EQ(ErrorOfRun(u"<Rows>32768</Rows>"), 6);
    EXPECT_EQ(ErrorOfRun(u"<RowHeight Row=\"32768\">1</RowHeight>"), 6);
    EXPECT_EQ(Run(u"<AltBkColor>4294967296</AltBkColor>"), 0);
    EXPECT_TRUE(host->MessageBoxes().empty());
}

TEST_F(Script, TheCursorOutlivesRunsAndClearing)
{
    Table(4, 4);
    EXPECT_EQ(Run(u"<Row>1</Row><Col>2</Col><Nothing>1</Nothing>"), 0);
    EXPECT_EQ(Run(u"<CellMode>1</CellMode><Row>3</Row>"), -1);
    EXPECT_EQ(Grid().CellMode(1, 2), 1);
    EXPECT_EQ(Grid().VXScriptExecute(), -1);
    EXPECT_EQ(Grid().CellMode(3, 2), 1);
    EXPECT_EQ(ErrorOfRun(u"<Row>40000</Row><Redraw>0</Redraw>"), 6);
    EXPECT_TRUE(Grid().Redraw());
    EXPECT_EQ(ErrorOfRun(u"<Row>0</Row>"), 6) << "no script leads back from there";
}

TEST_F(Script, AlwaysBelongsToItsOwnControl)
{
    HeadlessContainer other;
    Grid().VXScriptAdd(u"<Rows>3</Rows>");
    EXPECT_EQ(other.Grid().VXScriptExecute(), 0);
    EXPECT_EQ(Grid().VXScriptExecute(), -1);
}

TEST_F(Script, SetsWhatEveryElementNames)
{
    Table(3, 3);
    for (const ScriptElement& element : ScriptElements()) {
        if (element.action != ScriptAction::CallMember || FindMember(element.member)->writePending
            || FindMember(element.member)->kind == MemberKind::Method)
            continue;
        const std::u16string name(element.name);
        const std::u16string value = element.value == ScriptValueKind::Text ? u"x" : u"1";
        EXPECT_EQ(Run(u"<" + name + u">" + value + u"</" + name + u">"), -1) << element.member;
    }
    EXPECT_EQ(Grid().TextMarginLeft(0, 0), 1);
    EXPECT_EQ(Grid().ColFormat(0), u"x");
    EXPECT_EQ(Grid().CellFontName(0, 0), u"x");
    EXPECT_EQ(Grid().BorderStyle(), 1);
    EXPECT_EQ(Grid().FixedRows(), 1);
}

TEST_F(Script, AutoSizeRowsCallsTheMethod)
{
    HeadlessContainer other;
    for (Vornix* grid : { &Grid(), &other.Grid() }) {
        grid->SetRows(2);
        grid->SetRowHeight(1, 77);
    }
    other.Grid().AutoSizeRows(2);
    EXPECT_EQ(Run(u"<AutoSizeRows>2</AutoSizeRows>"), -1);
    EXPECT_EQ(Grid().RowHeight(1), other.Grid().RowHeight(1));
    EXPECT_NE(Grid().RowHeight(1), 77);
    EXPECT_EQ(Run(u"<AutoSizeRows>x</AutoSizeRows>"), 0);
    EXPECT_EQ(ErrorOfRun(u"<AutoSizeRows>32768</AutoSizeRows>"), 6);
}

TEST_F(Script, ReportsWhatItsPropertiesReport)
{
    host->ClearLog();
    EXPECT_EQ(Run(u"<AltBkColor>1</AltBkColor><Caption>x</Caption>"), -1);
    EXPECT_THAT(Reported(), Contains("AltBkColor"));
    EXPECT_THAT(Reported(), Contains("Caption"));
}

TEST_F(Script, AHandlerMayAddClearAndRunMeanwhile)
{
    ReportingContainer container;
    Vornix& grid = container.Grid();
    grid.VXScriptAdd(u"<AltBkColor>1</AltBkColor><Row>1</Row><AltForeColor>2</AltForeColor>");
    i32 inner = 0;
    container.onChange = [&](std::string_view) {
        container.onChange = nullptr;
        grid.VXScriptClear();
        grid.VXScriptAdd(u"<Rows>5</Rows>");
        inner = grid.VXScriptExecute();
    };
    EXPECT_EQ(grid.VXScriptExecute(), -1);
    EXPECT_EQ(inner, -1);
    EXPECT_EQ(grid.Rows(), 5);
    EXPECT_EQ(grid.AltForeColor(), 2u) << "the run goes on with the script as it was";
    EXPECT_EQ(grid.VXScriptExecute(), -1);
}

TEST_F(Script, AHandlerThatFailsEndsTheRun)
{
    ReportingContainer container;
    Vornix& grid = container.Grid();
    grid.SetRows(2);
    container.onChange = [&](std::string_view) { throw AutomationError(13); };
    grid.VXScriptAdd(u"<AltBkColor>1</AltBkColor><AltForeColor>2</AltForeColor>");
    EXPECT_EQ(ErrorOf([&] { grid.VXScriptExecute(); }), 13);
    EXPECT_EQ(grid.AltBkColor(), 1u);
    EXPECT_NE(grid.AltForeColor(), 2u);
}

TEST_F(Script, AHandlerThatClosesTheControlEndsTheRun)
{
    ReportingContainer container;
    Vornix& grid = container.Grid();
    container.onChange = [&](std::string_view) { container.Close(); };
    grid.VXScriptAdd(u"<AltBkColor>1</AltBkColor><AltForeColor>2</AltForeColor>");
    EXPECT_EQ(grid.VXScriptExecute(), 0);
    EXPECT_TRUE(grid.IsTerminated());
    EXPECT_EQ(ErrorOf([&] { grid.VXScriptExecute(); }), 5);
    EXPECT_EQ(ErrorOf([&] { grid.VXScriptAdd(u""); }), 5);
    EXPECT_EQ(ErrorOf([&] { grid.VXScriptClear(); }), 5);
}

TEST_F(Script, AHandlerOfARepaintMayTakeTheRowsAway)
{
    Table(5, 2);
    Grid().SetRowStyle(0, vxCustomDraw);
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) {
        handlers.OnDrawCell = nullptr;
        Grid().SetRows(1);
    };
    EXPECT_EQ(ErrorOfRun(u"<AltBkColor>1</AltBkColor><CellMode Row=\"4\" Col=\"0\">1</CellMode>"), 9);
    EXPECT_EQ(Grid().Rows(), 1);
}

TEST_F(Script, ManyElementsRunInOneGo)
{
    Table(1000, 10);
    Grid().SetRedraw(false);
    std::u16string script;
    for (int row = 0; row < 1000; ++row) {
        const std::string digits = std::to_string(row);
        script += u"<Row>" + std::u16string(digits.begin(), digits.end()) + u"</Row>\r\n";
        for (int col = 0; col < 10; ++col)
            script += u"<CellForeColor Row=\"" + std::u16string(digits.begin(), digits.end()) + u"\" Col=\""
                + static_cast<char16_t>(u'0' + col) + u"\">255</CellForeColor>";
    }
    EXPECT_EQ(Run(script), -1);
    EXPECT_EQ(Grid().CellForeColor(999, 9), 255u);
}

} // namespace vornix
