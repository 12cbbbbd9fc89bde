// Every member, called with missing, wrong-typed and out-of-range arguments.
#include "member_calls.h"

#include <map>
#include <set>
#include <string>

using namespace vornix::test;

namespace {

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
        return { { Typed(VORNIX_NULL), 94 }, { SomeFont(), 13 }, { SomeArray(), 13 } };
    case VORNIX_TYPE_FONT:
        return { { Integer(1), 13 }, { Text(u"Sans"), 13 }, { SomePicture(), 13 } };
    case VORNIX_TYPE_PICTURE:
        return { { Integer(1), 13 }, { Text(u"x"), 13 }, { SomeFont(), 13 } };
    case VORNIX_TYPE_ARRAY:
        return { { Integer(1), 13 }, { Typed(VORNIX_EMPTY), 13 } };
    default:
        return { { Text(u"x"), 13 }, { Text(u""), 13 }, { Typed(VORNIX_NULL), 94 }, { SomePicture(), 13 } };
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
    // Lines that are not there may be selected, and fixed ones are refused in silence.
    "CellSelected",
    "ColSelected",
    "RowSelected",
    "RowsSelected",
    "SetSelectedCells",
    "CurrentPos",
    "IsCurrent",
    // The sum of the lines before the cell, as far as there are any.
    "GetPositionCell",
    // Writes as far as there is something to paste.
    "PasteFromClipboard",
    // Does nothing.
    "getWidthHeightCell",
    // A column that is not there is no key.
    "SortOrder",
    // Lines come and go at places that there are.
    "InsertRows",
    "InsertCols",
    "DeleteRows",
    "DeleteCols",
};

// They do nothing for lines before the first.
const std::set<std::string> TakeNegativeIndices { "MoveRow", "MoveCol", "SwapRows", "SwapCols" };

int ErrorExpectedOf(const std::string& member, int index)
{
    return TakeAnyIndex.contains(member) || (index < 0 && TakeNegativeIndices.contains(member)) ? 0 : 9;
}

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
                EXPECT_EQ(
                    InvokeMember(untouched.Grid(), member, call.kind, arguments), ErrorExpectedOf(member.Name(), index))
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
