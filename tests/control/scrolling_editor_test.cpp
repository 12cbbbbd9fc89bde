// Scrolling beside an open editor and a list page: what is asked of whom, and in which order.
#include "control/control.h"
#include "control/scroll_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using Calls = std::vector<std::string>;

class OpenEditor : public EditorControl {
public:
    explicit OpenEditor(Calls& calls)
        : calls_(calls)
    {
    }
    bool IsEditorOpen() const override { return isOpen; }
    void CloseEditor() override
    {
        isOpen = false;
        calls_.push_back("CloseEditor");
        then();
    }

    bool isOpen = true;
    // In place of a handler of AfterEdit.
    std::function<void()> then = [] {};

private:
    Calls& calls_;
};

class WrittenPages : public PageRoller {
public:
    explicit WrittenPages(Calls& calls)
        : calls_(calls)
    {
    }
    void RollPage() override { calls_.push_back("RollPage"); }

private:
    Calls& calls_;
};

class WrittenPaints : public RepaintFunnel {
public:
    WrittenPaints(RepaintContext context, Calls& calls)
        : RepaintFunnel(context)
        , calls_(calls)
    {
        SetReady(true);
    }
    void RepaintGrid() override
    {
        calls_.push_back("RepaintGrid");
        RepaintFunnel::RepaintGrid();
    }

private:
    Calls& calls_;
};

class WrittenScroll : public VornixEvents {
public:
    explicit WrittenScroll(Calls& calls)
        : calls_(calls)
    {
    }
    void Scroll() override { calls_.push_back("Scroll"); }
    void ScrollTrackRow(i16) override { calls_.push_back("ScrollTrackRow"); }
    void ScrollTrackCol(i16) override { calls_.push_back("ScrollTrackCol"); }

private:
    Calls& calls_;
};

// The steps of scrolling over a table of 100 rows and 30 columns, whose editor is open at each. Internal indices.
class ScrollingWithAnEditor : public ScrollTest {
protected:
    ScrollingWithAnEditor()
    {
        Grid().SetRedraw(false); // the bars tell the control of the window, too: it does not listen
        MemoryBag bag;
        bag.values["Rows"] = i32 { 100 };
        bag.values["Cols"] = i32 { 30 };
        bag.values["FixedRows"] = i32 { 1 };
        bag.values["FixedCols"] = i32 { 1 };
        control.ReadSettings(bag);
        control.Load();
        control.funnel.ClientSizeChanged();
        scrolling.SetHooked(true);
        SetModes(vxNormalScroll);
    }

    void SetModes(i32 mode)
    {
        control.layout.Settings.ScrollVBar = mode == vxScrollSmooth ? i32(vxNormalScroll) : mode;
        control.layout.Settings.ScrollHBar = mode;
        control.layout.SetSmoothOffset(0);
        scrolling.UpdateScrollBars();
    }
    Calls Asked(const std::function<void()>& step)
    {
        calls.clear();
        editor.isOpen = true;
        step();
        return calls;
    }
    Calls Told(ChildName bar, i32 code)
    {
        return Asked([&] { scrolling.Notify(bar, code); });
    }
    Calls Dragged(ChildName name, i32 position)
    {
        (name == ChildName::scrV ? V() : H()).Notify(ThumbTrack, position);
        return Told(name, ThumbTrack);
    }
    int FirstRow() const { return control.scroll.FirstRow(); }
    int FirstCol() const { return control.scroll.FirstCol(); }

    Calls calls;
    OpenEditor editor { calls };
    WrittenPages pages { calls };
    WrittenScroll events { calls };
    Control control { *host, events };
    WrittenPaints paints {
        { control.store, control.layout, control.paint, control.gate, editor, control.scrolling, *host }, calls
    };
    Scrolling scrolling { { control.store, control.layout, control.scroll, control.hidden, control.spans, control.gate,
        control.paint, paints, editor, pages, *host, events } };
};

TEST_F(ScrollingWithAnEditor, AVerticalStepAsksForThePageClosesPaintsAndTells)
{
    EXPECT_THAT(Told(ChildName::scrV, LineDown), ElementsAre("RollPage", "CloseEditor", "RepaintGrid", "Scroll"));
    EXPECT_THAT(Told(ChildName::scrV, PageDown), ElementsAre("RollPage", "CloseEditor", "RepaintGrid", "Scroll"));
    EXPECT_THAT(Asked([&] { scrolling.Wheel(-120); }), ElementsAre("RollPage", "CloseEditor", "RepaintGrid", "Scroll"));
    SetModes(vxScrollTrack);
    EXPECT_THAT(Told(ChildName::scrV, LineDown), ElementsAre("RollPage", "CloseEditor", "RepaintGrid"));
}

TEST_F(ScrollingWithAnEditor, AHorizontalStepClosesPaintsAndTells)
{
    EXPECT_THAT(Told(ChildName::scrH, LineDown), ElementsAre("CloseEditor", "RepaintGrid", "Scroll"));
    SetModes(vxScrollSmooth);
    EXPECT_THAT(Told(ChildName::scrH, LineDown), ElementsAre("CloseEditor", "RepaintGrid", "Scroll"));
    SetModes(vxScrollTrack);
    EXPECT_THAT(Told(ChildName::scrH, PageDown), ElementsAre("CloseEditor", "RepaintGrid"));
}

TEST_F(ScrollingWithAnEditor, ADragClosesItWhereItMovesTheView)
{
    EXPECT_THAT(Dragged(ChildName::scrV, 9), ElementsAre("ScrollTrackRow")) << "the editor stays until the release";
    EXPECT_THAT(Dragged(ChildName::scrH, 9), ElementsAre("ScrollTrackCol"));
    SetModes(vxScrollTrack);
    EXPECT_THAT(Dragged(ChildName::scrV, 9), ElementsAre("CloseEditor", "RepaintGrid", "Scroll"));
    EXPECT_EQ(FirstRow(), 9);
    EXPECT_THAT(Dragged(ChildName::scrH, 9), ElementsAre("CloseEditor", "RepaintGrid", "Scroll"));
    EXPECT_EQ(FirstCol(), 9);
    SetModes(vxScrollSmooth);
    EXPECT_THAT(Dragged(ChildName::scrH, 250), ElementsAre("CloseEditor", "RepaintGrid"));
    EXPECT_EQ(FirstCol(), 3);
}

TEST_F(ScrollingWithAnEditor, PositionsThatAreWrittenAskForThePageFirst)
{
    EXPECT_THAT(Asked([&] { scrolling.SetFirstRow(30); }), ElementsAre("RollPage", "CloseEditor", "RepaintGrid"));
    EXPECT_THAT(Asked([&] { scrolling.SetLastRow(70); }), ElementsAre("RollPage", "CloseEditor", "RepaintGrid"));
    EXPECT_THAT(Asked([&] { scrolling.SetFirstCol(9); }), ElementsAre("CloseEditor", "RepaintGrid"));
    EXPECT_THAT(Asked([&] { scrolling.SetLastCol(20); }), ElementsAre("CloseEditor", "RepaintGrid"));
    EXPECT_THAT(Asked([&] { scrolling.SetLastCol(20); }), ElementsAre()) << "where it is already";
    EXPECT_TRUE(editor.isOpen);
}

TEST_F(ScrollingWithAnEditor, BehindAClosedGateItClosesAllTheSame)
{
    control.gate.Close();
    EXPECT_THAT(Asked([&] { scrolling.SetFirstRow(30); }), ElementsAre("RollPage", "CloseEditor"));
    control.gate.Open();
}

TEST_F(ScrollingWithAnEditor, AClosedOneIsLeftAlone)
{
    calls.clear();
    editor.isOpen = false;
    scrolling.Notify(ChildName::scrV, LineDown);
    EXPECT_THAT(calls, ElementsAre("RollPage", "RepaintGrid", "Scroll"));
}

TEST_F(ScrollingWithAnEditor, AnotherModeChosenAtItsEndEndsTheDrag)
{
    for (const auto& [mode, position, other] : std::vector<std::tuple<i32, i32, i32>> {
             { vxScrollSmooth, 1234, vxNormalScroll }, { vxScrollSmooth, 1234, vxScrollTrack },
             { vxScrollTrack, 9, vxScrollSmooth }, { vxScrollTrack, 9, vxNoScrollBar } }) {
        SCOPED_TRACE(testing::Message() << "from " << mode << " to " << other);
        SetModes(mode);
        scrolling.SetFirstCol(5);
        editor.then = [&, chosen = other] { SetModes(chosen); };
        EXPECT_THAT(Dragged(ChildName::scrH, position), ElementsAre("CloseEditor"));
        EXPECT_EQ(FirstCol(), other == vxNoScrollBar ? 1 : 5) << "the view is where the new mode has it";
        EXPECT_EQ(control.layout.SmoothOffset(), 0);
        const bool doesBarFollow = other == vxNoScrollBar || H().Value() == (other == vxScrollSmooth ? 480 : 5);
        EXPECT_TRUE(doesBarFollow) << H().Value();
        editor.then = [] {};
        Told(ChildName::scrH, EndScroll);
    }
}

TEST_F(ScrollingWithAnEditor, ABarThatGoesAtItsEndLeavesTheFirstRow)
{
    SetModes(vxScrollTrack);
    editor.then = [&] { SetModes(vxNoScrollBar); };
    EXPECT_THAT(Dragged(ChildName::scrV, 30), ElementsAre("CloseEditor"));
    EXPECT_EQ(FirstRow(), 1);
}

TEST_F(ScrollingWithAnEditor, ATableThatShrinksAtItsEndLimitsTheDrag)
{
    SetModes(vxScrollTrack);
    editor.then = [&] {
        control.store.ResizeRowStore(41);
        control.store.RefreshLastIndices();
        scrolling.UpdateScrollBars();
    };
    Dragged(ChildName::scrV, 70);
    EXPECT_EQ(FirstRow(), V().Max());
    EXPECT_EQ(control.scroll.LastRow(), 40);
}

} // namespace
} // namespace vornix
