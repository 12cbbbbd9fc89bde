// Handlers that do anything at all, at every place where a key raises an event.
#include "interact/keyboard_fixture.h"

namespace vornix {
namespace {

struct Deed {
    const char* name;
    std::function<void(HeadlessContainer&)> act;
};

const std::vector<Deed>& Deeds()
{
    static const std::vector<Deed> deeds {
        { "closes the control", [](HeadlessContainer& host) { host.Close(); } },
        { "takes all rows", [](HeadlessContainer& host) { host.Grid().SetRows(0); } },
        { "takes all columns", [](HeadlessContainer& host) { host.Grid().SetCols(0); } },
        { "leaves one cell",
            [](HeadlessContainer& host) {
                host.Grid().SetRows(1);
                host.Grid().SetCols(1);
            } },
        { "takes the fixed lines",
            [](HeadlessContainer& host) {
                host.Grid().SetFixedRows(0);
                host.Grid().SetFixedCols(0);
            } },
        { "adds fixed lines",
            [](HeadlessContainer& host) {
                host.Grid().SetFixedRows(5);
                host.Grid().SetFixedCols(5);
            } },
        { "adds rows", [](HeadlessContainer& host) { host.Grid().SetRows(300); } },
        { "moves the current cell", [](HeadlessContainer& host) { host.Grid().CurrentPos(7, 3); } },
        { "moves it to a fixed one", [](HeadlessContainer& host) { host.Grid().CurrentPos(-1, -1); } },
        { "moves it away and back",
            [](HeadlessContainer& host) {
                host.Grid().CurrentPos(39, 9);
                host.Grid().CurrentPos(0, 0);
            } },
        { "hides rows", [](HeadlessContainer& host) { host.Grid().HideRow(0, host.Grid().Rows()); } },
        { "hides columns", [](HeadlessContainer& host) { host.Grid().HideCol(0, host.Grid().Cols()); } },
        { "merges cells",
            [](HeadlessContainer& host) {
                host.Grid().SetRowSpan(0, 0, 4);
                host.Grid().SetColSpan(0, 0, 4);
            } },
        { "scrolls",
            [](HeadlessContainer& host) {
                host.Grid().SetFirstRow(30);
                host.Grid().SetFirstCol(8);
            } },
        { "switches Redraw", [](HeadlessContainer& host) { host.Grid().SetRedraw(!host.Grid().Redraw()); } },
        { "resizes", [](HeadlessContainer& host) { host.Resize(60, 40); } },
        { "selects", [](HeadlessContainer& host) { host.Grid().SetRowsSelected(0, 20, true); } },
        { "presses a key", [](HeadlessContainer& host) { host.KeyDown(Code::Down); } },
        { "extends the selection", [](HeadlessContainer& host) { host.KeyDown(Code::Right, 1); } },
        { "jumps", [](HeadlessContainer& host) { host.KeyDown(Code::End, 2); } },
        { "fails", [](HeadlessContainer& host) { host.Grid().SetText(-32768, -32768, u""); } },
    };
    return deeds;
}

const std::vector<std::string> Events { "KeyDown", "ValidateRow", "CellChange", "Scroll", "TextChange", "DrawCell" };

class KeyboardHandlers : public KeyboardTest {
protected:
    // What the key asked, without the painting around it.
    Lines Asked(i16 code)
    {
        Lines lines = Key(code);
        std::erase_if(lines, [](const std::string& line) { return line.starts_with("DrawCell"); });
        return lines;
    }
    // A small window, so that many a key scrolls; every cell draws with an event.
    void MakeGrid()
    {
        handlers = EventHandlers {};
        HeadlessOptions options;
        options.width = 200;
        options.height = 120;
        Make(options);
        Table(40, 10, 1, 1);
        Grid().SetCellSelection(true);
        Grid().SetColMode(2, vxCheckBox);
        Grid().SetColMode(3, vxTextBox);
        for (i16 row = 0; row < 40; ++row)
            Grid().SetRowStyle(row, vxCustomDraw);
        Grid().CurrentPos(5, 2);
    }
    // Does the deed at the first time that the event is raised from now on.
    void OnFirst(const std::string& event, const Deed& deed)
    {
        const auto once = [this, &deed] {
            if (--left >= 0)
                deed.act(*host);
        };
        left = 1;
        if (event == "KeyDown")
            handlers.OnKeyDown = [once](i16&, i16&) { once(); };
        else if (event == "ValidateRow")
            handlers.OnValidateRow = once;
        else if (event == "CellChange")
            handlers.OnCellChange = [once](i16, i16, bool&) { once(); };
        else if (event == "Scroll")
            handlers.OnScroll = once;
        else if (event == "TextChange")
            handlers.OnTextChange = [once](i16, i16) { once(); };
        else
            handlers.OnDrawCell = [once](i16, i16, Hdc&, bool&) { once(); };
    }
    // Automation errors may come out; whatever stands afterwards is a grid.
    void PressSome(const Deed& deed)
    {
        static const std::vector<std::pair<i16, i16>> keys { { Code::Space, 0 }, { Code::Right, 0 }, { Code::Down, 0 },
            { Code::Left, 0 }, { Code::Up, 0 }, { Code::Down, 1 }, { Code::Right, 1 }, { Code::PageDown, 0 },
            { Code::End, 0 }, { Code::End, 2 }, { Code::PageUp, 0 }, { Code::Home, 2 }, { Code::Up, 2 } };
        for (const auto& [code, shift] : keys) {
            if (Grid().IsTerminated())
                return;
            const bool wasBody = IsInBody();
            const std::optional<int> error = ErrorOf([&, code = code, shift = shift] { host->KeyDown(code, shift); });
            EXPECT_TRUE(!error || std::string_view(deed.name) == "fails") << *error;
            if (Grid().IsTerminated())
                return;
            CheckCurrent();
            const bool isHostsMove = std::string_view(deed.name) == "moves it to a fixed one";
            EXPECT_TRUE(!wasBody || isHostsMove || IsInBody() || Current() == Nowhere)
                << "no key leads from the body to a fixed cell: " << code << " with " << shift;
        }
    }
    bool IsInBody() { return Current().Row >= 0 && Current().Col >= 0; }
    void CheckCurrent()
    {
        const i32 Row = Grid().CurrentRow();
        const i16 Col = Grid().CurrentCol();
        if (Row == -32767) {
            EXPECT_EQ(Col, -32767);
            return;
        }
        EXPECT_TRUE(Row >= -Grid().FixedRows() && Row < Grid().Rows()) << Row;
        EXPECT_TRUE(Col >= -Grid().FixedCols() && Col < Grid().Cols()) << Col;
        EXPECT_TRUE(Grid().IsCurrent(static_cast<i16>(Row), Col));
    }

    int left = 0;
};

TEST_F(KeyboardHandlers, MayDoAnythingAtAnyKey)
{
    int done = 0;
    for (const std::string& event : Events) {
        for (const Deed& deed : Deeds()) {
            SCOPED_TRACE(event + ": " + deed.name);
            MakeGrid();
            OnFirst(event, deed);
            PressSome(deed);
            done += left < 1;
        }
    }
    EXPECT_EQ(done, static_cast<int>(Events.size() * Deeds().size())) << "each was reached";
}

TEST_F(KeyboardHandlers, MayDoItFromTheBottomEdgeToo)
{
    for (const std::string& event : Events) {
        for (const Deed& deed : Deeds()) {
            SCOPED_TRACE(event + ": " + deed.name);
            MakeGrid();
            Grid().CurrentPos(Grid().LastRow(), Grid().LastCol());
            OnFirst(event, deed);
            PressSome(deed);
        }
    }
}

TEST_F(KeyboardHandlers, ARowThatGoesInValidateRowIsNotAskedFor)
{
    MakeGrid();
    handlers.OnValidateRow = [&] { Grid().SetRows(6); };
    EXPECT_EQ(Asked(Code::Down), Lines { "ValidateRow" });
    EXPECT_EQ(Current(), (CellPlace { 5, 2 }));
}

TEST_F(KeyboardHandlers, ARowThatGoesInCellChangeIsNotTaken)
{
    MakeGrid();
    handlers.OnCellChange = [&](i16, i16, bool&) { Grid().SetRows(6); };
    Key(Code::Down);
    EXPECT_EQ(Current(), (CellPlace { 5, 2 }));
}

TEST_F(KeyboardHandlers, AClosedControlIsSilentFromThenOn)
{
    MakeGrid();
    handlers.OnValidateRow = [&] { host->Close(); };
    EXPECT_EQ(Asked(Code::Down), Lines { "ValidateRow" });
    MakeGrid();
    handlers.OnKeyDown = [&](i16&, i16&) { host->Close(); };
    host->ClearLog();
    host->KeyDown(Code::Down);
    EXPECT_EQ(SaidNames(), Lines { "KeyDown" });
}

TEST_F(KeyboardHandlers, AKeyInsideAKeyIsTheMoveThatCounts)
{
    MakeGrid();
    bool isNested = false;
    handlers.OnCellChange = [&](i16, i16, bool&) {
        if (!std::exchange(isNested, true))
            host->KeyDown(Code::Left);
    };
    Key(Code::Down);
    EXPECT_EQ(Current(), (CellPlace { 5, 1 }));
}

} // namespace
} // namespace vornix
