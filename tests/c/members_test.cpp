// Every member that is built, called with right, missing, wrong-typed and out-of-range arguments.
#include "c_grid.h"

#include "vornix/vornix_constants.h"

#include <functional>
#include <map>
#include <set>
#include <string>

using namespace vornix::test;

namespace {

struct Member {
    const vornix_member* handle;
    const vornix_member_info& info;

    std::string Name() const { return info.name; }
    bool IsReadable() const { return info.kind != VORNIX_WRITE_ONLY && !info.read_pending; }
    bool IsWritable() const
    {
        return (info.kind == VORNIX_PROPERTY || info.kind == VORNIX_WRITE_ONLY) && !info.write_pending;
    }
};

std::vector<Member> AllMembers()
{
    std::vector<Member> members;
    for (std::size_t i = 0; i < vornix_member_count(); ++i) {
        const vornix_member* const handle = vornix_member_at(i);
        members.push_back({ handle, *vornix_describe_member(handle) });
    }
    return members;
}

int InvokeMember(vornix_grid* grid, const Member& member, int kind, Values arguments, Result* result = nullptr)
{
    return vornix_invoke_member(
        grid, member.handle, kind, arguments.data(), arguments.size(), result ? result->Address() : nullptr);
}

// What is passed in these tests and has to live as long as they do.
class Objects {
public:
    Objects()
    {
        vornix_font_info info {};
        info.name = View(u"DejaVu Sans Mono");
        info.size = 11;
        info.bold = 1;
        info.charset = 1;
        EXPECT_EQ(vornix_font_create(&info, &font_), 0);
        const std::uint8_t red[] = { 255, 0, 0, 255, 255, 0, 0, 255 };
        EXPECT_EQ(vornix_picture_from_rgba(2, 1, red, 8, &picture_), 0);
        EXPECT_EQ(vornix_array_create(3, 2, &array_), 0);
        const std::int64_t numbers[] = { 71, 72 };
        EXPECT_EQ(vornix_array_set_integers(array_, 1, VORNIX_I32, numbers, 2), 0);
    }
    ~Objects()
    {
        vornix_font_release(font_);
        vornix_picture_release(picture_);
        vornix_array_release(array_);
    }
    Objects(const Objects&) = delete;
    Objects& operator=(const Objects&) = delete;

    vornix_value Font() const
    {
        vornix_value value = Typed(VORNIX_FONT);
        value.as.font = font_;
        return value;
    }
    vornix_value Picture() const
    {
        vornix_value value = Typed(VORNIX_PICTURE);
        value.as.picture = picture_;
        return value;
    }
    vornix_value Array() const
    {
        vornix_value value = Typed(VORNIX_ARRAY);
        value.as.array = array_;
        return value;
    }

private:
    vornix_font* font_ = nullptr;
    vornix_picture* picture_ = nullptr;
    vornix_array* array_ = nullptr;
};

const Objects& TheObjects()
{
    static const Objects objects;
    return objects;
}

std::string Ascii(const std::u16string& text)
{
    return std::string(text.begin(), text.end());
}

// A value in words, so that a difference can be read.
std::string Described(const vornix_value& value)
{
    switch (value.type) {
    case VORNIX_EMPTY:
        return "empty";
    case VORNIX_I16:
        return "i16 " + std::to_string(value.as.integer);
    case VORNIX_I32:
        return "i32 " + std::to_string(value.as.integer);
    case VORNIX_I64:
        return "i64 " + std::to_string(value.as.integer);
    case VORNIX_SINGLE:
        return "single " + std::to_string(value.as.number);
    case VORNIX_BOOLEAN:
        return value.as.integer ? "true" : "false";
    case VORNIX_TEXT:
        return "text " + Ascii(ToString(value.as.text));
    case VORNIX_FONT: {
        vornix_font_info info {};
        EXPECT_EQ(vornix_font_describe(value.as.font, &info), 0);
        return "font " + Ascii(ToString(info.name)) + (info.bold ? " bold" : "");
    }
    case VORNIX_PICTURE: {
        vornix_picture_info info {};
        if (value.as.picture == nullptr)
            return "no picture";
        EXPECT_EQ(vornix_picture_describe(value.as.picture, &info), 0);
        return "picture of type " + std::to_string(info.type);
    }
    default:
        return "a value of type " + std::to_string(value.type);
    }
}

// -- Right arguments --

// Of an index, a place or a number, by the argument's name.
vornix_value RightArgument(const vornix_argument_info& argument)
{
    static const std::map<std::string, int> numbers {
        { "Row", 1 },
        { "Row1", 1 },
        { "iRow", 1 },
        { "ParentRow", 1 },
        { "Row2", 2 }, //
        { "Col", 1 },
        { "Col1", 1 },
        { "iCol", 1 },
        { "ParentCol", 1 },
        { "Col2", 2 }, //
        { "Rows", 1 },
        { "Cols", 1 },
        { "index", 1 },
        { "Percent", -100 },
        { "AlphaPourcent", 50 }, //
        { "x", 150 },
        { "y", 50 },
    };
    switch (argument.type) {
    case VORNIX_TYPE_COLOR:
        return Integer(0xFFFFFF);
    case VORNIX_TYPE_TEXT:
        return Text(u"1");
    case VORNIX_TYPE_BOOLEAN:
        return Boolean(true);
    case VORNIX_TYPE_ARRAY:
        return TheObjects().Array();
    default: {
        const auto found = numbers.find(argument.name);
        return Integer(found == numbers.end() ? 0 : found->second);
    }
    }
}

Values RightArguments(const Member& member)
{
    Values arguments;
    for (std::size_t i = 0; i < member.info.argument_count; ++i)
        arguments.push_back(RightArgument(member.info.arguments[i]));
    return arguments;
}

// Written to a property, and what it reads then, where that is not the same in the property's type.
struct Writing {
    vornix_value value;
    std::string read = "";
    // What has to be so before.
    std::function<void(vornix_grid*)> before = {};
};

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

vornix_value RightValue(int type)
{
    switch (type) {
    case VORNIX_TYPE_I16:
        return Integer(2, VORNIX_I16);
    case VORNIX_TYPE_I32:
        return Integer(1);
    case VORNIX_TYPE_BOOLEAN:
        return Boolean(true);
    case VORNIX_TYPE_TEXT:
        return Text(u"written");
    case VORNIX_TYPE_COLOR:
        return Integer(0x123456);
    case VORNIX_TYPE_FONT:
        return TheObjects().Font();
    case VORNIX_TYPE_PICTURE:
        return TheObjects().Picture();
    default:
        ADD_FAILURE() << "no value for the type " << type;
        return {};
    }
}

Writing WritingOf(const Member& member)
{
    const auto showSplit
        = [](vornix_grid* grid) { EXPECT_EQ(Let(grid, "ShowSplit", { Boolean(true) }), 0) << vornix_last_error(); };
    const std::map<std::string, Writing> special {
        // Off is what the default is not.
        { "Redraw", { Boolean(false) } },
        { "CellEnabled", { Boolean(false) } },
        { "ColEnabled", { Boolean(false) } },
        { "ColResize", { Boolean(false) } },
        { "RowResize", { Boolean(false) } },
        { "RowEnabled", { Boolean(false) } },
        { "CheckEnable", { Boolean(false) } },
        { "ResizingRows", { Boolean(false) } },
        // vxNoPrefix is always among the common flags.
        { "CommonTextAlign", { Integer(vxTxtVCenter), "i32 " + std::to_string(vxTxtVCenter | vxNoPrefix) } },
        // Writing does nothing.
        { "ScrollBarSize", { Integer(5), "i16 17" } },
        // Only while a split is shown, and below the last column.
        { "SplitCols", { Integer(1), "", showSplit } },
        { "ColWidth", { Integer(55) } },
        { "RowHeight", { Integer(33) } },
        { "Rows", { Integer(6) } },
        { "Cols", { Integer(5) } },
        { "FirstRow", { Integer(1) } },
        { "FirstCol", { Integer(1) } },
        { "Caption", { Text(u"title") } },
    };
    const auto found = special.find(member.info.name);
    return found == special.end() ? Writing { RightValue(member.info.type) } : found->second;
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
    const auto found = readers.find(member.info.name);
    if (found == readers.end()) {
        ADD_FAILURE() << member.info.name << " is read back nowhere";
        return {};
    }
    return Get(grid, found->second.c_str(), { Integer(1), Integer(1) });
}

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
        if (ShownOnly.contains(member.Name()))
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

std::string DescribedGet(vornix_grid* grid, const char* name, Values arguments = {})
{
    return Described(Get(grid, name, std::move(arguments)).Value());
}

void LetOk(vornix_grid* grid, const char* name, Values arguments)
{
    EXPECT_EQ(Let(grid, name, std::move(arguments)), 0) << name << ": " << vornix_last_error();
}

void CallOk(vornix_grid* grid, const char* name, Values arguments = {})
{
    EXPECT_EQ(Call(grid, name, std::move(arguments)), 0) << name << ": " << vornix_last_error();
}

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
        { "CurrentRow", { "i32 -32767" } },
        { "CurrentCol", { "i16 -32767" } },
        { "VirtualOffset", { "i32 0" } },
        { "VirtualPageSize", { "i16 0" } },
        { "LastRow", { "i16 3" } },
        { "LastCol", { "i16 2" } },
        { "LoadFromArray", { "empty", {}, {}, Reads("Text", { Integer(4), Integer(1) }, "text 71") } },
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
        { "IsVisibleRow", { "true" } },
        { "IsVisibleCol", { "true" } },
        { "GetScaleWidth", { "single 640.000000" } },
        { "GetScaleHeight", { "single 480.000000" } },
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

std::map<std::string, Calling> AllCallings()
{
    std::map<std::string, Calling> all;
    for (auto&& part : { SpanCallings(), LineCallings(), PlaceCallings(), LookCallings() })
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

// -- Arguments that do not fit --

// A call and its right arguments, for a writing one with the value behind them.
struct RightCall {
    int kind;
    Values arguments;
    // The declared types of all of them.
    std::vector<int> types;
};

std::vector<RightCall> RightCalls(const Member& member)
{
    std::vector<RightCall> calls;
    const Values arguments = RightArguments(member);
    std::vector<int> types;
    for (std::size_t i = 0; i < member.info.argument_count; ++i)
        types.push_back(member.info.arguments[i].type);
    if (member.IsReadable())
        calls.push_back({ VORNIX_GET, arguments, types });
    if (member.IsWritable()) {
        calls.push_back({ VORNIX_LET, arguments, types });
        calls.back().arguments.push_back(WritingOf(member).value);
        calls.back().types.push_back(member.info.type);
    }
    return calls;
}

template <typename Step> void ForEachRightCall(const Step& step)
{
    for (const Member& member : AllMembers()) {
        for (const RightCall& call : RightCalls(member)) {
            SCOPED_TRACE(member.Name() + (call.kind == VORNIX_LET ? ", writing" : ""));
            step(member, call);
        }
    }
}

// A grid that nothing may change.
class Untouched {
public:
    Untouched()
        : grid_(MakeSmallGrid())
        , before_(Shape())
    {
        // An entry that can be given back to a cell.
        CallOk(grid_.get(), "StoreVisualCell", { Integer(1), Integer(1), Integer(1) });
    }
    ~Untouched() { EXPECT_EQ(Shape(), before_) << "a call that failed has changed the grid"; }
    vornix_grid* Grid() const { return grid_.get(); }

private:
    std::string Shape() const
    {
        std::string shape;
        for (const char* const name : { "Rows", "Cols", "FixedRows", "FixedCols" })
            shape += DescribedGet(grid_.get(), name) + ", ";
        for (int row = -1; row < 4; ++row)
            shape += DescribedGet(grid_.get(), "Text", { Integer(row), Integer(1) }) + ", ";
        return shape;
    }

    GridPtr grid_;
    std::string before_;
};

TEST(CMembers, RefuseMissingArguments)
{
    const Untouched untouched;
    ForEachRightCall([&](const Member& member, const RightCall& call) {
        for (std::size_t i = 0; i < call.arguments.size(); ++i) {
            const bool isOptional = i < member.info.argument_count && member.info.arguments[i].optional;
            if (isOptional)
                continue;
            Values missing = call.arguments;
            missing[i] = Typed(VORNIX_MISSING);
            EXPECT_EQ(InvokeMember(untouched.Grid(), member, call.kind, missing), 450) << "argument " << i;
            missing.resize(i);
            EXPECT_EQ(InvokeMember(untouched.Grid(), member, call.kind, missing), 450) << i << " arguments";
        }
    });
}

TEST(CMembers, TakeMissingArgumentsThatAreOptional)
{
    ForEachRightCall([](const Member& member, const RightCall& call) {
        std::size_t required = 0;
        while (required < member.info.argument_count && !member.info.arguments[required].optional)
            ++required;
        if (required == member.info.argument_count)
            return;
        Values arguments = call.arguments;
        arguments.resize(required);
        EXPECT_EQ(InvokeMember(MakeSmallGrid().get(), member, call.kind, arguments), 0) << vornix_last_error();
        arguments.push_back(Typed(VORNIX_MISSING));
        EXPECT_EQ(InvokeMember(MakeSmallGrid().get(), member, call.kind, arguments), 0) << vornix_last_error();
    });
}

TEST(CMembers, RefuseAnArgumentTooMany)
{
    const Untouched untouched;
    ForEachRightCall([&](const Member& member, const RightCall& call) {
        Values arguments = call.arguments;
        arguments.push_back(Integer(1));
        EXPECT_EQ(InvokeMember(untouched.Grid(), member, call.kind, arguments), 450);
        arguments.back() = Typed(VORNIX_MISSING);
        EXPECT_EQ(InvokeMember(untouched.Grid(), member, call.kind, arguments), 450);
    });
}

// A value that an argument of the type cannot be made of, and the error that it is.
std::vector<std::pair<vornix_value, int>> WrongValues(int type)
{
    switch (type) {
    case VORNIX_TYPE_TEXT:
        return { { Typed(VORNIX_NULL), 94 }, { TheObjects().Font(), 13 }, { TheObjects().Array(), 13 } };
    case VORNIX_TYPE_FONT:
        return { { Integer(1), 13 }, { Text(u"Sans"), 13 }, { TheObjects().Picture(), 13 } };
    case VORNIX_TYPE_PICTURE:
        return { { Integer(1), 13 }, { Text(u"x"), 13 }, { TheObjects().Font(), 13 } };
    case VORNIX_TYPE_ARRAY:
        return { { Integer(1), 13 }, { Typed(VORNIX_EMPTY), 13 } };
    default:
        return { { Text(u"x"), 13 }, { Text(u""), 13 }, { Typed(VORNIX_NULL), 94 }, { TheObjects().Picture(), 13 } };
    }
}

TEST(CMembers, RefuseArgumentsOfAnotherType)
{
    const Untouched untouched;
    ForEachRightCall([&](const Member& member, const RightCall& call) {
        for (std::size_t i = 0; i < call.arguments.size(); ++i) {
            for (const auto& [wrong, error] : WrongValues(call.types[i])) {
                Values arguments = call.arguments;
                arguments[i] = wrong;
                EXPECT_EQ(InvokeMember(untouched.Grid(), member, call.kind, arguments), error)
                    << "argument " << i << " as " << Described(wrong);
            }
        }
    });
}

TEST(CMembers, RefuseNumbersThatLeaveTheirWidth)
{
    const Untouched untouched;
    const std::map<int, std::vector<vornix_value>> wide {
        { VORNIX_TYPE_I16, { Integer(32768), Integer(-32769), Text(u"40000"), Number(32767.5), Number(1e300) } },
        { VORNIX_TYPE_I32, { Integer(2147483648LL, VORNIX_I64), Text(u"-3000000000"), Number(3e9) } },
        { VORNIX_TYPE_COLOR, { Integer(4294967296LL, VORNIX_I64), Number(1e18) } },
    };
    ForEachRightCall([&](const Member& member, const RightCall& call) {
        for (std::size_t i = 0; i < call.arguments.size(); ++i) {
            const auto found = wide.find(call.types[i]);
            if (found == wide.end())
                continue;
            for (const vornix_value& value : found->second) {
                Values arguments = call.arguments;
                arguments[i] = value;
                EXPECT_EQ(InvokeMember(untouched.Grid(), member, call.kind, arguments), 6)
                    << "argument " << i << " as " << Described(value);
            }
        }
    });
}

const std::set<std::string> TakeAnyIndex {
    // Nothing outside is visible, and no parent of anything.
    "IsVisibleCell",
    "IsVisibleRow",
    "IsVisibleCol",
    "IsParent",
    // The sum of the lines before the cell, as far as there are any.
    "GetPositionCell",
    // Does nothing.
    "getWidthHeightCell",
};

bool IsLine(const std::string& name)
{
    static const std::set<std::string> names { "Row", "Row1", "Row2", "Col", "Col1", "Col2" };
    return names.contains(name);
}

TEST(CMembers, RefuseIndicesOutsideTheTable)
{
    const Untouched untouched;
    ForEachRightCall([&](const Member& member, const RightCall& call) {
        for (std::size_t i = 0; i < member.info.argument_count; ++i) {
            const vornix_argument_info& argument = member.info.arguments[i];
            if (!IsLine(argument.name) || argument.by_reference)
                continue;
            for (const int index : { 30000, -3, -32768 }) {
                Values arguments = call.arguments;
                arguments[i] = Integer(index);
                EXPECT_EQ(InvokeMember(untouched.Grid(), member, call.kind, arguments),
                    TakeAnyIndex.contains(member.Name()) ? 0 : 9)
                    << argument.name << " " << index;
            }
        }
    });
}

TEST(CMembers, ThatAreNotBuiltSaySo)
{
    const Untouched untouched;
    std::size_t pending = 0;
    for (const Member& member : AllMembers()) {
        SCOPED_TRACE(member.Name());
        pending += member.info.read_pending || member.info.write_pending;
        if (member.info.read_pending) {
            EXPECT_EQ(InvokeMember(untouched.Grid(), member, VORNIX_GET, RightArguments(member)), 445);
        }
        if (member.info.write_pending) {
            EXPECT_EQ(InvokeMember(untouched.Grid(), member, VORNIX_LET, RightArguments(member)), 445);
        }
    }
    RecordProperty("pending", static_cast<int>(pending));
}

TEST(CMembers, RefuseKindsOfCallsThatTheyDoNotHave)
{
    const Untouched untouched;
    for (const Member& member : AllMembers()) {
        SCOPED_TRACE(member.Name());
        if (member.info.kind == VORNIX_WRITE_ONLY) {
            EXPECT_EQ(InvokeMember(untouched.Grid(), member, VORNIX_GET, RightArguments(member)), 438);
        }
        if (member.info.kind == VORNIX_METHOD || member.info.kind == VORNIX_READ_ONLY) {
            EXPECT_EQ(InvokeMember(untouched.Grid(), member, VORNIX_LET, RightArguments(member)), 438);
        }
    }
}

TEST(CMembers, AreFoundByTheirNamesInAnyCase)
{
    EXPECT_EQ(vornix_member_count(), 272u);
    for (const Member& member : AllMembers()) {
        std::string name = member.Name();
        EXPECT_EQ(vornix_find_member(name.c_str()), member.handle);
        for (char& letter : name)
            letter = static_cast<char>(std::toupper(letter));
        EXPECT_EQ(vornix_find_member(name.c_str()), member.handle) << name;
        EXPECT_STRNE(member.info.description, "");
    }
    EXPECT_EQ(vornix_find_member("Nonsense"), nullptr);
    EXPECT_EQ(vornix_find_member(nullptr), nullptr);
    EXPECT_EQ(vornix_member_at(272), nullptr);
    EXPECT_EQ(vornix_describe_member(nullptr), nullptr);
}

} // namespace
