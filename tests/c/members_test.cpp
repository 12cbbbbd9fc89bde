// Every member that is built, called with right arguments: what it gives, and what it does.
#include "member_calls.h"

#include "vornix/vornix_constants.h"

#include <functional>
#include <map>
#include <set>
#include <string>

using namespace vornix::test;

namespace {

// The value in the type that a property reads it in.
std::string Same(int type, const vornix_value& value)
{
    switch (type) {
    case VORNIX_TYPE_I16:
        return "i16 " + std::to_string(value.as.integer);
    case VORNIX_TYPE_I32:
        return "i32 " + std::to_string(value.as.integer);
    case VORNIX_TYPE_COLOR:
        return "i64 " + std::to_string(value.as.integer);
    default:
        return Described(value);
    }
}

// Where the value of a member that is only written shows.
Result ReadBack(vornix_grid* grid, const Member& member)
{
    static const std::map<std::string, std::string> readers {
        { "ColBackColor", "CellBackColor" },
        { "ColForeColor", "CellForeColor" },
        { "ColBorderColor", "CellBorderColor" },
        { "ColFont", "CellFontBold" },
        { "ColGradientMode", "CellGradientMode" },
        { "ColGradientEnd", "CellGradientEnd" },
        { "ColPicture", "CellPicture" },
        { "RowBackColor", "CellBackColor" },
        { "RowForeColor", "CellForeColor" },
        { "RowBorderColor", "CellBorderColor" },
        { "RowEnabled", "CellEnabled" },
        { "RowFont", "CellFontBold" },
        { "RowGradientMode", "CellGradientMode" },
        { "RowGradientEnd", "CellGradientEnd" },
        { "RowMode", "CellMode" },
        { "RowStyle", "CellStyle" },
        { "RowTextAlign", "TextAlignment" },
        { "RowTextMarginLeft", "TextMarginLeft" },
        { "RowTextMarginRight", "TextMarginRight" },
        { "CellsBackColor", "CellBackColor" },
        { "CellsForeColor", "CellForeColor" },
        { "CellsFont", "CellFontBold" },
    };
    if (member.Name() == "RowsSelected")
        return Get(grid, "RowSelected", { Integer(1) });
    const auto found = readers.find(member.info.name);
    if (found == readers.end()) {
        ADD_FAILURE() << member.info.name << " is read back nowhere";
        return {};
    }
    return Get(grid, found->second.c_str(), { Integer(1), Integer(1) });
}

// Members whose writing shows nowhere: what a toolkit without windows of the host's can do with one.
const std::set<std::string> ShownNowhere { "CustomhWnd" };
// Members whose writing shows on the picture alone.
const std::set<std::string> ShownOnly { "ColLineColor", "RowLineColor" };

TEST(CMembers, ReadWhatWasWritten)
{
    for (const Member& member : AllMembers()) {
        if (!member.IsWritable())
            continue;
        SCOPED_TRACE(member.Name());
        const GridPtr grid = MakeSmallGrid();
        const Writing writing = WritingOf(member);
        if (writing.before)
            writing.before(grid.get());
        Values arguments = RightArguments(member);
        arguments.push_back(writing.value);
        ASSERT_EQ(InvokeMember(grid.get(), member, VORNIX_LET, arguments), 0) << vornix_last_error();
        if (ShownOnly.contains(member.Name()) || ShownNowhere.contains(member.Name()))
            continue;
        arguments.pop_back();
        const std::string expected = writing.read.empty() ? Same(member.info.type, writing.value) : writing.read;
        if (member.info.kind == VORNIX_WRITE_ONLY) {
            const Result read = ReadBack(grid.get(), member);
            EXPECT_EQ(Described(read.Value()), member.info.type == VORNIX_TYPE_FONT ? "true" : expected);
            continue;
        }
        Result read;
        ASSERT_EQ(InvokeMember(grid.get(), member, VORNIX_GET, arguments, &read), 0) << vornix_last_error();
        EXPECT_EQ(Described(read.Value()), expected);
    }
}

TEST(CMembers, LinesOfColumnsAndRowsShow)
{
    for (const std::string& name : ShownOnly) {
        const GridPtr grid = MakeSmallGrid();
        ASSERT_EQ(Let(grid.get(), "GridLines", { Integer(vxBoth) }), 0);
        std::vector<std::uint8_t> before(640 * 480 * 4);
        std::vector<std::uint8_t> after(before.size());
        ASSERT_EQ(vornix_host_image(grid.get(), before.data(), before.size()), 0);
        ASSERT_EQ(Let(grid.get(), name.c_str(), { Integer(1), Integer(0x0000FF) }), 0);
        ASSERT_EQ(vornix_host_image(grid.get(), after.data(), after.size()), 0);
        EXPECT_NE(before, after) << name;
    }
}

// -- What is called --

struct Calling {
    // Of the result, and of the arguments by reference.
    std::string result;
    std::vector<std::string> references = {};
    std::function<void(vornix_grid*)> before = {};
    std::function<void(vornix_grid*)> after = {};
};

// A check that a property reads so after the call.
std::function<void(vornix_grid*)> Reads(const char* name, Values arguments, std::string expected)
{
    return [=](vornix_grid* grid) { EXPECT_EQ(DescribedGet(grid, name, arguments), expected) << name; };
}

std::function<void(vornix_grid*)> Writes(const char* name, Values arguments)
{
    return [=](vornix_grid* grid) { LetOk(grid, name, arguments); };
}

std::function<void(vornix_grid*)> Calls(const char* name, Values arguments)
{
    return [=](vornix_grid* grid) { CallOk(grid, name, arguments); };
}

std::map<std::string, Calling> SpanCallings()
{
    const auto equalTexts = [](vornix_grid* grid) {
        LetOk(grid, "Text", { Integer(1), Integer(1), Text(u"same") });
        LetOk(grid, "Text", { Integer(2), Integer(1), Text(u"SAME") });
    };
    const auto spanned = [=](vornix_grid* grid) {
        equalTexts(grid);
        CallOk(grid, "SpanRows", { Integer(1) });
    };
    const auto equalKeys = [](vornix_grid* grid) {
        LetOk(grid, "Key", { Integer(1), Integer(1), Text(u"key") });
        LetOk(grid, "Key", { Integer(2), Integer(1), Text(u"key") });
    };
    const auto wide = Writes("ColSpan", { Integer(1), Integer(0), Integer(2) });
    return {
        { "ParentRow", { "i16 1", {}, wide } },
        { "ParentCol", { "i16 0", {}, wide } },
        { "IsParent", { "true" } },
        { "SpanRows", { "empty", { "true" }, equalKeys, Reads("RowSpan", { Integer(1), Integer(1) }, "i16 2") } },
        { "RemoveSpanRows", { "empty", {}, spanned, Reads("RowSpan", { Integer(1), Integer(1) }, "i16 0") } },
    };
}

std::map<std::string, Calling> LineCallings()
{
    const auto renamed = Writes("ColBackColor", { Integer(1), Integer(0x00FF00) });
    return {
        { "HideRow", { "empty", {}, {}, Reads("RowHide", { Integer(1) }, "true") } },
        { "ShowRow", { "empty", {}, Calls("HideRow", { Integer(1) }), Reads("RowHide", { Integer(1) }, "false") } },
        { "HideCol", { "empty", {}, {}, Reads("ColHide", { Integer(1) }, "true") } },
        { "ShowCol", { "empty", {}, Calls("HideCol", { Integer(1) }), Reads("ColHide", { Integer(1) }, "false") } },
        { "ColOrder", { "i16 1" } },
        { "ReOrderCols", { "empty", {}, {}, Reads("ColName", { Integer(0) }, "text ColumnA") } },
        { "StoreVisualCell",
            { "empty", {}, renamed,
                [](vornix_grid* grid) {
                    LetOk(grid, "CellBackColor", { Integer(1), Integer(1), Integer(0) });
                    CallOk(grid, "RestoreVisualCell", { Integer(1) });
                    EXPECT_EQ(DescribedGet(grid, "CellBackColor", { Integer(1), Integer(1) }), "i64 65280");
                } } },
        { "RestoreVisualCell",
            { "empty", {},
                [](vornix_grid* grid) {
                    CallOk(grid, "StoreVisualCell", { Integer(1), Integer(1), Integer(1) });
                    LetOk(grid, "CellBackColor", { Integer(1), Integer(1), Integer(5) });
                },
                Reads("CellBackColor", { Integer(1), Integer(1) }, "i64 2147483653") } },
        { "RestoreVisualToCell",
            { "empty", {},
                [](vornix_grid* grid) {
                    LetOk(grid, "CellBackColor", { Integer(2), Integer(2), Integer(5) });
                    CallOk(grid, "StoreVisualCell", { Integer(1), Integer(2), Integer(2) });
                },
                Reads("CellBackColor", { Integer(1), Integer(1) }, "i64 5") } },
        { "ClearVisualCell",
            { "empty", {},
                [](vornix_grid* grid) {
                    CallOk(grid, "StoreVisualCell", { Integer(1), Integer(1), Integer(1) });
                    LetOk(grid, "CellBackColor", { Integer(1), Integer(1), Integer(5) });
                },
                [](vornix_grid* grid) {
                    CallOk(grid, "RestoreVisualCell", { Integer(1) });
                    EXPECT_EQ(DescribedGet(grid, "CellBackColor", { Integer(1), Integer(1) }), "i64 5");
                } } },
        { "CurrentPos", { "empty", {}, {}, Reads("CurrentRow", {}, "i32 1") } },
        { "IsCurrent", { "false" } },
        { "VirtualOffset", { "i32 0" } },
        { "VirtualPageSize", { "i16 0" } },
        { "LastRow", { "i16 3" } },
        { "LastCol", { "i16 2" } },
    };
}

// Called with the second row and column; they move to the first, and change places with the third.
std::map<std::string, Calling> StructureCallings()
{
    const auto marks = [](int row, int col) { return Writes("Text", { Integer(row), Integer(col), Text(u"marked") }); };
    const auto isMarked = [](int row, int col) { return Reads("Text", { Integer(row), Integer(col) }, "text marked"); };
    const auto isEmpty = Reads("Text", { Integer(1), Integer(1) }, "text ");
    const auto bold = Writes("CellFontBold", { Integer(1), Integer(1), Boolean(true) });
    return {
        { "InsertRows", { "empty", {}, marks(1, 1), isMarked(2, 1) } },
        { "DeleteRows", { "empty", {}, marks(2, 1), isMarked(1, 1) } },
        { "InsertCols", { "empty", {}, marks(1, 1), isMarked(1, 2) } },
        { "DeleteCols", { "empty", {}, marks(1, 2), isMarked(1, 1) } },
        { "MoveRow", { "empty", {}, marks(1, 1), isMarked(0, 1) } },
        { "MoveCol", { "empty", {}, marks(1, 1), isMarked(1, 0) } },
        { "SwapRows", { "empty", {}, marks(1, 1), isMarked(2, 1) } },
        { "SwapCols", { "empty", {}, marks(1, 1), isMarked(1, 2) } },
        { "CopyCell", { "empty", {}, marks(1, 1), isMarked(1, 1) } },
        { "CopyRow", { "empty", {}, marks(1, 1), isMarked(1, 1) } },
        { "CopyCol", { "empty", {}, marks(1, 1), isMarked(1, 1) } },
        { "ClearRow", { "empty", {}, marks(1, 1), isEmpty } },
        { "ClearCol", { "empty", {}, marks(1, 1), isEmpty } },
        { "ResetCells", { "empty", {}, bold, Reads("CellFontBold", { Integer(1), Integer(1) }, "false") } },
    };
}

std::map<std::string, Calling> ExchangeCallings()
{
    const auto setClipboard = [](vornix_grid* grid) { EXPECT_EQ(vornix_host_set_clipboard(grid, View(u"pasted")), 0); };
    const auto hasCopied = [](vornix_grid* grid) {
        vornix_text text {};
        EXPECT_EQ(vornix_host_get_clipboard(grid, &text), 0);
        EXPECT_EQ(ToString(text), u"copied\t12\r\n21\t22");
    };
    const auto add = Calls("VXScriptAdd", { Text(u"<Rows>7</Rows>") });
    return {
        { "LoadFromArray", { "empty", {}, {}, Reads("Text", { Integer(4), Integer(1) }, "text 71") } },
        { "CopyToClipboard", { "empty", {}, Writes("Text", { Integer(1), Integer(1), Text(u"copied") }), hasCopied } },
        { "PasteFromClipboard",
            { "empty", {}, setClipboard, Reads("Text", { Integer(1), Integer(1) }, "text pasted") } },
        { "VXScriptAdd", { "i32 -1" } },
        { "VXScriptClear", { "empty", {}, add, Reads("VXScriptExecute", {}, "i32 0") } },
        { "VXScriptExecute", { "i32 -1", {}, add, Reads("Rows", {}, "i16 7") } },
    };
}

std::map<std::string, Calling> SelectionCallings()
{
    const auto cells = Calls("SetSelectedCells", { Integer(0), Integer(1), Integer(2), Integer(2) });
    const auto cols = Writes("ColSelected", { Integer(1), Boolean(true) });
    const auto rows = Writes("RowsSelected", { Integer(1), Integer(2), Boolean(true) });
    return {
        { "CellSelected", { "true", {}, cells } },
        { "SelectCountCell", { "i32 6", {}, cells } },
        { "SelectCountCol", { "i32 1", {}, cols } },
        { "SelectCountRow", { "i32 2", {}, rows } },
        { "GetSelectedCells", { "true", { "i16 0", "i16 1", "i16 2", "i16 2" }, cells } },
        { "SetSelectedCells", { "empty", {}, {}, Reads("CellSelected", { Integer(1), Integer(1) }, "true") } },
        { "StartSelectedItems",
            { "empty", {},
                [=](vornix_grid* grid) {
                    rows(grid);
                    EXPECT_EQ(DescribedGet(grid, "NextSelectedRows", { Integer(0), Integer(0) }), "true");
                },
                Reads("NextSelectedRows", { Integer(0), Integer(0) }, "true") } },
        { "NextSelectedCols", { "true", { "i16 1", "i16 1" }, cols } },
        { "NextSelectedRows", { "true", { "i16 1", "i16 2" }, rows } },
        { "SelectItem", { "i32 2", {}, rows } },
        { "InvertSelect", { "true", {}, rows, Reads("RowSelected", { Integer(1) }, "false") } },
        { "DeselectAll", { "empty", {}, rows, Reads("SelectCountRow", {}, "i32 0") } },
    };
}

// Of columns 60 wide and rows 20 high.
std::map<std::string, Calling> PlaceCallings()
{
    const auto sized = [](vornix_grid* grid) {
        for (int line = -1; line < 3; ++line) {
            LetOk(grid, "ColWidth", { Integer(line), Integer(60) });
            LetOk(grid, "RowHeight", { Integer(line), Integer(20) });
        }
    };
    return {
        { "GetCellAtPos", { "true", { "i16 1", "i16 1" }, sized } },
        { "GetCellParentAtPos", { "true", { "i16 1", "i16 1" }, sized } },
        { "GetPositionCell", { "empty", { "i32 1800", "i32 600" }, sized } },
        { "GetSizeCell", { "empty", { "i16 60", "i16 20" }, sized } },
        { "GetSizeCells", { "empty", { "i16 120", "i16 40" }, sized } },
        { "getWidthHeightCell", { "empty", { "i16 0", "i16 0" } } },
        { "IsVisibleCell", { "true" } },
        { "IsVisibleScrollH", { "false" } },
        { "IsVisibleScrollV", { "false" } },
        { "CurrentPos", { "empty", {}, {}, Reads("CurrentRow", {}, "i32 1") } },
        { "IsCurrent", { "true", {}, Calls("CurrentPos", { Integer(1), Integer(1) }) } },
        { "IsVisibleRow", { "true" } },
        { "IsVisibleCol", { "true" } },
        { "GetScaleWidth", { "single 640.000000" } },
        { "GetScaleHeight", { "single 480.000000" } },
    };
}

std::map<std::string, Calling> FittingCallings()
{
    const auto narrowAndLow = [](vornix_grid* grid) {
        LetOk(grid, "Text", { Integer(1), Integer(1), Text(u"a text") });
        LetOk(grid, "ColWidth", { Integer(1), Integer(1) });
        LetOk(grid, "RowHeight", { Integer(1), Integer(1) });
    };
    const auto isLarger = [](const char* name) {
        return [=](vornix_grid* grid) { EXPECT_GT(Get(grid, name, { Integer(1) }).ToInteger(), 15) << name; };
    };
    // The height of a line in the font of the container without a screen is 14, of an empty text as of any other.
    return {
        { "CalcRectText", { "empty", { "i32 8", "i32 18" }, Writes("Text", { Integer(1), Integer(1), Text(u"") }) } },
        { "AdjustHeight", { "empty", {}, narrowAndLow, isLarger("RowHeight") } },
        { "AdjustWidth", { "empty", {}, narrowAndLow, isLarger("ColWidth") } },
        { "AutoSizeRows", { "empty", {}, narrowAndLow, isLarger("RowHeight") } },
    };
}

std::map<std::string, Calling> PointerCallings()
{
    const auto pressed = [](vornix_grid* grid) { EXPECT_EQ(vornix_host_mouse_down(grid, 5, 5, 2, 5), 0); };
    const auto onBoundary = [](vornix_grid* grid) {
        LetOk(grid, "ColWidth", { Integer(-1), Integer(60) });
        LetOk(grid, "ColWidth", { Integer(0), Integer(60) });
        EXPECT_EQ(vornix_host_mouse_move(grid, 118, 5, 0, 0), 0);
    };
    const auto sizing = [=](vornix_grid* grid) {
        onBoundary(grid);
        EXPECT_EQ(vornix_host_mouse_down(grid, 118, 5, 1, 0), 0);
    };
    return {
        { "GetMouseButton", { "i16 2", {}, pressed } },
        { "GetMouseShift", { "i16 5", {}, pressed } },
        { "MousePointer", { "i32 99", {}, onBoundary } },
        { "IsSizingMode", { "true", {}, sizing } },
    };
}

std::map<std::string, Calling> LookCallings()
{
    const auto clearLog = [](vornix_grid* grid) { EXPECT_EQ(vornix_host_clear_log(grid), 0); };
    const auto painted = [](std::int32_t repaints, std::int32_t refreshes) {
        return [=](vornix_grid* grid) {
            std::int32_t wholes = -1;
            std::int32_t cells = -1;
            EXPECT_EQ(vornix_host_paint_counts(grid, &wholes, &cells), 0);
            EXPECT_EQ(wholes, repaints);
            EXPECT_EQ(cells, refreshes);
        };
    };
    return {
        { "ColorBrightness", { "i64 0" } },
        { "Refresh", { "empty", {}, clearLog, painted(1, 0) } },
        { "RefreshCell", { "empty", {}, clearLog, painted(0, 1) } },
        { "ResetGrid",
            { "empty", {}, Writes("CellStyle", { Integer(1), Integer(1), Integer(2) }),
                Reads("CellStyle", { Integer(1), Integer(1) }, "i32 0") } },
        // Nothing shows it before pictures are taken of the grid.
        { "SetPictureAlpha", { "empty" } },
    };
}

std::map<std::string, Calling> EditingCallings()
{
    const auto onTextCell = [](vornix_grid* grid) {
        LetOk(grid, "CellMode", { Integer(1), Integer(1), Integer(vxTextBox) });
        CallOk(grid, "CurrentPos", { Integer(1), Integer(1) });
    };
    const auto edits = [=](vornix_grid* grid) {
        onTextCell(grid);
        CallOk(grid, "EnterEdit");
    };
    return {
        { "EnterEdit", { "empty", {}, onTextCell, Reads("IsEditMode", {}, "true") } },
        { "ExitEdit", { "empty", {}, edits, Reads("IsEditMode", {}, "false") } },
        { "IsEditMode", { "true", {}, edits } },
        { "ComboAddItem", { "empty", {}, {}, Reads("ComboList", { Integer(1) }, "text 1") } },
        { "ComboRemoveItem", { "empty", {}, {}, Reads("ComboList", { Integer(1) }, "text ColumnC") } },
        { "ComboClear", { "empty", {}, {}, Reads("ComboListCount", {}, "i16 0") } },
        { "ComboListCount", { "i16 3" } },
        { "ComboNewIndex", { "i16 2" } },
    };
}

std::map<std::string, Calling> SortSearchCallings()
{
    const auto descending = [](vornix_grid* grid) {
        LetOk(grid, "SortOrder", { Integer(1), Integer(1) });
        LetOk(grid, "SortOrder", { Integer(1), Integer(1) });
    };
    const auto oneToFind = Writes("Text", { Integer(1), Integer(2), Integer(1) });
    return {
        { "Sort", { "empty", {}, descending, Reads("Text", { Integer(0), Integer(1) }, "text 31") } },
        { "SearchRow", { "i16 1" } },
        { "SearchCol", { "i16 1", {}, oneToFind } },
    };
}

std::map<std::string, Calling> AllCallings()
{
    std::map<std::string, Calling> all;
    for (auto&& part :
        { SpanCallings(), LineCallings(), StructureCallings(), ExchangeCallings(), SelectionCallings(), PlaceCallings(),
            FittingCallings(), PointerCallings(), LookCallings(), EditingCallings(), SortSearchCallings() })
        all.insert(part.begin(), part.end());
    return all;
}

// Numbers that nobody can know before.
const std::set<std::string> Handles { "hDC", "hWnd" };

TEST(CMembers, GiveAndDoWhatTheyAreCalledFor)
{
    const std::map<std::string, Calling> callings = AllCallings();
    for (const Member& member : AllMembers()) {
        // What is read as it was written has a test of its own.
        if (!member.IsReadable() || member.IsWritable() || Handles.contains(member.Name()))
            continue;
        SCOPED_TRACE(member.Name());
        const auto found = callings.find(member.Name());
        if (found == callings.end()) {
            ADD_FAILURE() << "nothing is expected of it";
            continue;
        }
        const Calling& calling = found->second;
        for (const int kind : { VORNIX_GET, VORNIX_CALL }) {
            const GridPtr grid = MakeSmallGrid();
            if (calling.before)
                calling.before(grid.get());
            Values arguments = RightArguments(member);
            Result result;
            ASSERT_EQ(vornix_invoke_member(
                          grid.get(), member.handle, kind, arguments.data(), arguments.size(), result.Address()),
                0)
                << vornix_last_error();
            EXPECT_EQ(Described(result.Value()), calling.result);
            std::vector<std::string> references;
            for (std::size_t i = 0; i < arguments.size(); ++i) {
                if (member.info.arguments[i].by_reference)
                    references.push_back(Described(arguments[i]));
            }
            EXPECT_EQ(references, calling.references);
            if (calling.after)
                calling.after(grid.get());
        }
    }
}

TEST(CMembers, HandlesAreNumbersThatAreNotZero)
{
    const GridPtr grid = MakeSmallGrid();
    for (const std::string& name : Handles) {
        const Result handle = Get(grid.get(), name.c_str());
        EXPECT_EQ(handle.Type(), VORNIX_I64);
        EXPECT_NE(handle.ToInteger(), 0) << name;
    }
}

} // namespace
