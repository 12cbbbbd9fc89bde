#include "support/handler_deeds.h"

namespace vornix {

namespace {

// By the name of a member, through the table that scripts use.
void Set(HeadlessContainer& host, std::string_view member, const Variant& value)
{
    std::vector<Variant> arguments { value };
    host.Grid().Invoke(member, InvokeKind::Let, arguments);
}

void SetModes(HeadlessContainer& host, i32 mode)
{
    for (i16 Col = 0; Col < host.Grid().Cols(); ++Col)
        host.Grid().SetColMode(Col, mode);
}

} // namespace

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
                host.Grid().SetFixedRows(4);
                host.Grid().SetFixedCols(3);
            } },
        { "adds lines",
            [](HeadlessContainer& host) {
                host.Grid().SetRows(400);
                host.Grid().SetCols(40);
            } },
        { "moves the current cell", [](HeadlessContainer& host) { host.Grid().CurrentPos(7, 3); } },
        { "moves it to a fixed one", [](HeadlessContainer& host) { host.Grid().CurrentPos(-1, -1); } },
        { "hides rows", [](HeadlessContainer& host) { host.Grid().HideRow(0, host.Grid().Rows()); } },
        { "hides columns", [](HeadlessContainer& host) { host.Grid().HideCol(0, host.Grid().Cols()); } },
        { "gives lines no size",
            [](HeadlessContainer& host) {
                host.Grid().SetRowHeight(1, 0);
                host.Grid().SetColWidth(1, 0);
            } },
        { "makes lines large",
            [](HeadlessContainer& host) {
                host.Grid().SetRowHeight(0, 9000);
                host.Grid().SetColWidth(0, 9000);
            } },
        { "merges cells",
            [](HeadlessContainer& host) {
                host.Grid().SetRowSpan(0, 0, 6);
                host.Grid().SetColSpan(0, 0, 4);
            } },
        { "inserts lines",
            [](HeadlessContainer& host) {
                host.Grid().InsertRows(0, 3);
                host.Grid().InsertCols(0, 2);
            } },
        { "deletes lines",
            [](HeadlessContainer& host) {
                host.Grid().DeleteRows(0, host.Grid().Rows());
                host.Grid().DeleteCols(1, 2);
            } },
        { "moves lines",
            [](HeadlessContainer& host) {
                host.Grid().MoveRow(1, 5);
                host.Grid().MoveCol(2, 0);
                host.Grid().ReOrderCols();
            } },
        { "exchanges lines",
            [](HeadlessContainer& host) {
                host.Grid().SetRowSpan(0, 0, 4);
                host.Grid().SwapRows(1, 7);
                host.Grid().SwapCols(0, 2);
            } },
        { "sorts",
            [](HeadlessContainer& host) {
                host.Grid().SetText(0, 0, u"z");
                host.Grid().SetSortOrder(0, 1);
                host.Grid().Sort();
            } },
        { "searches", [](HeadlessContainer& host) { host.Grid().SearchCol(vxText, 0, u"", 1); } },
        { "scrolls",
            [](HeadlessContainer& host) {
                host.Grid().SetFirstRow(20);
                host.Grid().SetFirstCol(5);
            } },
        { "changes the bars",
            [](HeadlessContainer& host) {
                host.Grid().SetScrollHBar(vxNormalScroll);
                host.Grid().SetScrollVBar(vxNormalScroll);
            } },
        { "takes the bars",
            [](HeadlessContainer& host) {
                host.Grid().SetScrollHBar(vxNoScrollBar);
                host.Grid().SetScrollVBar(vxNoScrollBar);
            } },
        { "splits",
            [](HeadlessContainer& host) {
                host.Grid().SetShowSplit(true);
                host.Grid().SetSplitCols(1);
            } },
        { "takes the split", [](HeadlessContainer& host) { host.Grid().SetShowSplit(!host.Grid().ShowSplit()); } },
        { "shows the title", [](HeadlessContainer& host) { host.Grid().SetCaptionEnabled(true); } },
        { "switches Redraw", [](HeadlessContainer& host) { host.Grid().SetRedraw(!host.Grid().Redraw()); } },
        { "disables the control", [](HeadlessContainer& host) { Set(host, "Enabled", Variant(false)); } },
        { "resizes", [](HeadlessContainer& host) { host.Resize(60, 40); } },
        { "makes the window nothing", [](HeadlessContainer& host) { host.Resize(0, 0); } },
        { "hides the control", [](HeadlessContainer& host) { host.Hide(); } },
        { "selects", [](HeadlessContainer& host) { host.Grid().SetRowsSelected(0, 20, true); } },
        { "selects nothing", [](HeadlessContainer& host) { host.Grid().SetColSelected(0, false); } },
        { "presses elsewhere", [](HeadlessContainer& host) { host.MouseDown(60, 60); } },
        { "lets go", [](HeadlessContainer& host) { host.MouseUp(100, 60); } },
        { "moves the pointer away", [](HeadlessContainer& host) { host.MouseMove(-50, 300, 1); } },
        { "clicks", [](HeadlessContainer& host) { host.ClickAt(100, 60); } },
        { "sizes a line", [](HeadlessContainer& host) { host.Drag(69, 10, 90, 10, 1, 0, 2); } },
        { "presses a key", [](HeadlessContainer& host) { host.KeyDown(40); } },
        { "ticks", [](HeadlessContainer& host) { host.Tick(); } },
        { "makes the table anew", [](HeadlessContainer& host) { host.Grid().ReadProperties(MemoryBag()); } },
        { "fails", [](HeadlessContainer& host) { host.Grid().SetText(-32768, -32768, u""); } },
    };
    return deeds;
}

const std::vector<Deed>& EditingDeeds()
{
    static const std::vector<Deed> deeds {
        { "enters the editor", [](HeadlessContainer& host) { host.Grid().EnterEdit(); } },
        { "enters another editor",
            [](HeadlessContainer& host) {
                host.Grid().CurrentPos(4, 2);
                host.Grid().EnterEdit();
            } },
        { "leaves the editor", [](HeadlessContainer& host) { host.Grid().ExitEdit(); } },
        { "writes the selected text", [](HeadlessContainer& host) { host.Grid().SetSelText(u"new"); } },
        { "selects in the editor",
            [](HeadlessContainer& host) {
                host.Grid().SetSelStart(1);
                host.Grid().SetSelLength(100);
            } },
        { "types", [](HeadlessContainer& host) { host.Type(u"12"); } },
        { "presses Escape", [](HeadlessContainer& host) { host.Press("Escape"); } },
        { "presses Left", [](HeadlessContainer& host) { host.Press("Left"); } },
        { "clicks on another cell", [](HeadlessContainer& host) { host.ClickAt(50, 90); } },
        { "takes the focus away", [](HeadlessContainer& host) { host.ExitFocus(); } },
        { "gives the focus", [](HeadlessContainer& host) { host.EnterFocus(); } },
        { "empties the list", [](HeadlessContainer& host) { host.Grid().ComboClear(); } },
        { "fills the list", [](HeadlessContainer& host) { host.Grid().ComboAddItem(u"more", 0); } },
        { "picks a row", [](HeadlessContainer& host) { host.Grid().SetComboListIndex(0); } },
        { "lets the editor grow",
            [](HeadlessContainer& host) { host.Grid().SetTBoxAutoResize(!host.Grid().TBoxAutoResize()); } },
        { "changes the masks",
            [](HeadlessContainer& host) {
                host.Grid().SetTBoxPromptChar(u".");
                host.Grid().SetTBoxIncludeLiteral(true);
                host.Grid().SetColMask(1, u"L-L-L-L-L-L");
            } },
        { "makes all cells lists", [](HeadlessContainer& host) { SetModes(host, vxComboListBox); } },
        { "edits no cell", [](HeadlessContainer& host) { SetModes(host, vxCellFixed); } },
        { "disables the cells", [](HeadlessContainer& host) { host.Grid().SetColEnabled(0, false); } },
        { "names a window", [](HeadlessContainer& host) { host.Grid().SetCustomhWnd(4711); } },
        { "loads the editor anew", [](HeadlessContainer& host) { host.Grid().RefreshCell(0, 0); } },
    };
    return deeds;
}

void Try(const std::function<void()>& step)
{
    try {
        step();
    } catch (const AutomationError&) {
    }
}

void HandlerDeeds::MakeGrid()
{
    events.Then = [](std::string_view) {};
    host = nullptr;
    HeadlessOptions options;
    options.width = size.width;
    options.height = size.height;
    options.events = &events;
    host = std::make_unique<HeadlessContainer>(options);
    FillGrid();
}

void HandlerDeeds::LiveThroughIt()
{
    for (const auto& step : AllSteps()) {
        if (!Grid().IsTerminated())
            Try(step);
        if (!Grid().IsTerminated())
            CheckWhole();
    }
}

void HandlerDeeds::TryAll(const std::vector<Deed>& deeds, std::string_view event, std::initializer_list<int> times)
{
    for (const int time : times) {
        for (const Deed& deed : deeds) {
            SCOPED_TRACE(std::string(deed.name) + " at time " + std::to_string(time));
            MakeGrid();
            int raised = 0;
            events.Then = [&](std::string_view name) {
                if (name == event && ++raised == time)
                    deed.act(*host);
            };
            LiveThroughIt();
            EXPECT_GE(raised, 1);
        }
    }
}

} // namespace vornix
