#include "persist/batch_script.h"
#include "persist/script_recorder.h"

#include <gtest/gtest.h>

#include <functional>

namespace vornix {
namespace {

// One script added, one run.
std::string StoryOfScript(std::u16string_view text)
{
    BatchScript script;
    script.Add(text);
    return StoryOf(script);
}

class ActingTarget : public ScriptRecorder {
public:
    void CallMember(const ScriptElement& element, ScriptPlace place, const ScriptValue& value) override
    {
        ScriptRecorder::CallMember(element, place, value);
        // A copy, so that it may replace itself.
        const auto now = act;
        now();
    }
    bool IsThere() const override { return isThere; }

    std::function<void()> act = [] {};
    bool isThere = true;
};

} // namespace

TEST(BatchScript, AppliesElementsInTheirOrder)
{
    EXPECT_EQ(StoryOfScript(u"<Cols>4</Cols><Redraw>False</Redraw><Caption>a<b</Caption><AltBkColor>&HFF</AltBkColor>"),
        "Cols = 4s\nRedraw = false\nCaption = \"a<b\"\nAltBkColor = 255\napplied");
}

TEST(BatchScript, EmptyOrCommentsAloneIsNotApplied)
{
    EXPECT_EQ(StoryOfScript(u""), "not applied");
    EXPECT_EQ(StoryOfScript(u"   "), "not applied");
    EXPECT_EQ(StoryOfScript(u"<!-- nothing -->"), "not applied");
}

TEST(BatchScript, IsAddedToInAnyPieces)
{
    BatchScript script;
    script.Add(u"<Ro");
    EXPECT_EQ(StoryOf(script), "not applied");
    script.Add(u"ws>4</");
    script.Add(u"Rows>");
    EXPECT_EQ(StoryOf(script), "Rows = 4s\napplied");
    EXPECT_EQ(StoryOf(script), "Rows = 4s\napplied") << "the script stays";
    script.Clear();
    EXPECT_EQ(StoryOf(script), "not applied");
}

TEST(BatchScript, AnOpenCommentAppliesNothing)
{
    EXPECT_EQ(StoryOfScript(u"<Cols>4</Cols><!-- "), "not applied");
}

TEST(BatchScript, WhatStandsAheadOfAFaultStaysApplied)
{
    for (const std::u16string_view fault : { u"<Cols>abc</Cols>", u"<cols>4</cols>", u"<Text>x</Text>", u"<Cols>4",
             u"<>1</>", u"<Redraw>maybe</Redraw>", u"<ColWidth Row=\"1\">4</ColWidth>",
             u"<ColEnabled>False</ColEnabled>", u"<Cols/>", u"<AltBkColor>4294967296</AltBkColor>" })
        EXPECT_EQ(StoryOfScript(u"<Rows>3</Rows>" + std::u16string(fault) + u"<Caption>x</Caption>"),
            "Rows = 3s\nnot applied")
            << testing::PrintToString(fault);
    EXPECT_EQ(StoryOfScript(u"<Rows>3</Rows>\n"), "Rows = 3s\nnot applied");
}

TEST(BatchScript, AddressesCellsColumnsAndRows)
{
    EXPECT_EQ(
        StoryOfScript(u"<CellFontBold Row=\"3\" Col=\"0\">True</CellFontBold>"), "CellFontBold(3, 0) = true\napplied");
    EXPECT_EQ(StoryOfScript(u"<ColWidth Col=\"2\">80</ColWidth>"), "ColWidth(2) = 80s\napplied");
    EXPECT_EQ(StoryOfScript(u"<RowHeight Row=\"2\">30</RowHeight>"), "RowHeight(2) = 30s\napplied");
    EXPECT_EQ(StoryOfScript(u"<CellBackColor Row=\"1\">255</CellBackColor>"), "not applied");
    EXPECT_EQ(
        StoryOfScript(u"<CellBackColor Row=\"x\" Col=\"1\">255</CellBackColor>"), "CellBackColor(0, 0) = 255\napplied");
    EXPECT_EQ(StoryOfScript(u"<CellBackColor Rows=\"1\">255</CellBackColor>"), "not applied");
    EXPECT_EQ(StoryOfScript(u"<Rows anything=1>2</Rows>"), "Rows = 2s\napplied");
}

TEST(BatchScript, RowSpanSetsTheColumnSpan)
{
    EXPECT_EQ(StoryOfScript(u"<RowSpan>2</RowSpan>"), "ColSpan(0, 0) = 2s\napplied");
}

TEST(BatchScript, ColEnabledTakesNumbersAlone)
{
    EXPECT_EQ(StoryOfScript(u"<ColEnabled>0</ColEnabled>"), "ColEnabled(0) = false\napplied");
    EXPECT_EQ(StoryOfScript(u"<ColEnabled>False</ColEnabled>"), "not applied");
    EXPECT_EQ(StoryOfScript(u"<CellEnabled>False</CellEnabled>"), "CellEnabled(0, 0) = false\napplied");
}

TEST(BatchScript, RowAndColPlaceWhatFollows)
{
    EXPECT_EQ(StoryOfScript(
                  u"<Row>2</Row><Col>1</Col><CellBackColor>1</CellBackColor>"
                  u"<CellFontBold Row=\"3\" Col=\"0\">True</CellFontBold><ColWidth>5</ColWidth><RowHeight>6</RowHeight>"
                  u"<ColWidth Col=\"7\">5</ColWidth><CellMode>0</CellMode>"),
        "CellBackColor(2, 1) = 1\nCellFontBold(3, 0) = true\nColWidth(1) = 5s\nRowHeight(2) = 6s\nColWidth(7) = 5s\n"
        "CellMode(2, 1) = 0\napplied");
}

TEST(BatchScript, TheCursorHoldsOverRunsClearingAndFaults)
{
    BatchScript script;
    script.Add(u"<CellMode>0</CellMode><Row>2</Row><Col>1</Col>x");
    EXPECT_EQ(StoryOf(script), "CellMode(0, 0) = 0\nnot applied");
    EXPECT_EQ(StoryOf(script), "CellMode(2, 1) = 0\nnot applied");
    script.Clear();
    script.Add(u"<CellMode>1</CellMode>");
    EXPECT_EQ(StoryOf(script), "CellMode(2, 1) = 1\napplied");
}

TEST(BatchScript, ACursorBeyond16BitsIsAnErrorOfWhateverComesNext)
{
    for (const std::u16string_view next :
        { u"<Redraw>True</Redraw>", u"<Row>1</Row>", u"<Nothing>1</Nothing>", u"<ColWidth Row=\"1\">x</ColWidth>" }) {
        EXPECT_EQ(StoryOfScript(u"<Row>32768</Row>" + std::u16string(next)), "error 6");
        EXPECT_EQ(StoryOfScript(u"<Col>-32769</Col>" + std::u16string(next)), "error 6");
    }
    EXPECT_EQ(StoryOfScript(u"<Row>32768</Row>"), "applied") << "nothing comes";
    EXPECT_EQ(StoryOfScript(u"<Row>32768</Row>x"), "not applied") << "and this is no element";
    EXPECT_EQ(StoryOfScript(u"<Row>2147483648</Row>"), "not applied");
}

TEST(BatchScript, ACursorBeyond16BitsStays)
{
    BatchScript script;
    script.Add(u"<Col>40000</Col>");
    EXPECT_EQ(StoryOf(script), "applied");
    script.Clear();
    script.Add(u"<Col>0</Col>");
    EXPECT_EQ(StoryOf(script), "error 6");
    EXPECT_EQ(StoryOf(script), "error 6");
}

TEST(BatchScript, ErrorsEndTheRun)
{
    EXPECT_EQ(StoryOfScript(u"<Rows>1</Rows><Rows>40000</Rows><Rows>2</Rows>"), "Rows = 1s\nerror 6");
    EXPECT_EQ(StoryOfScript(u"<ColWidth Col=\"40000\">1</ColWidth><Rows>2</Rows>"), "error 6");
    EXPECT_EQ(StoryOfScript(u"<RowMode Row=\"13\">1</RowMode><Rows>2</Rows>"), "RowMode(13) = 1\nerror 9");
}

TEST(BatchScript, AttributesAreReadAheadOfTheValue)
{
    EXPECT_EQ(StoryOfScript(u"<ColWidth Col=\"40000\">x</ColWidth>"), "error 6");
    EXPECT_EQ(StoryOfScript(u"<ColWidth Row=\"1\">40000</ColWidth>"), "not applied");
}

TEST(BatchScript, ARunGoesOnWithTheScriptAsItWas)
{
    BatchScript script;
    ActingTarget target;
    script.Add(u"<Rows>1</Rows><Cols>2</Cols>");
    target.act = [&] {
        script.Clear();
        script.Add(u"<Caption>later</Caption>");
    };
    EXPECT_TRUE(script.Execute(target, BuiltinLocale()));
    EXPECT_EQ(target.story, "Rows = 1s\nCols = 2s\n");
    EXPECT_EQ(StoryOf(script), "Caption = \"later\"\napplied");
}

TEST(BatchScript, ARunWithinARunMovesTheCursorOfBoth)
{
    BatchScript script;
    ActingTarget target;
    script.Add(u"<Rows>1</Rows><ColWidth>2</ColWidth><Col>5</Col>");
    target.act = [&] {
        target.act = [] {};
        EXPECT_TRUE(script.Execute(target, BuiltinLocale()));
    };
    EXPECT_TRUE(script.Execute(target, BuiltinLocale()));
    EXPECT_EQ(target.story, "Rows = 1s\nRows = 1s\nColWidth(0) = 2s\nColWidth(5) = 2s\n");
}

TEST(BatchScript, EndsWhenTheTargetIsGone)
{
    BatchScript script;
    ActingTarget target;
    script.Add(u"<Rows>1</Rows><Cols>2</Cols>");
    target.act = [&] { target.isThere = false; };
    EXPECT_FALSE(script.Execute(target, BuiltinLocale()));
    EXPECT_EQ(target.story, "Rows = 1s\n");
}

} // namespace vornix
