// Calls every member that is built through late binding, with arguments that fit and with ones that do not.
#include "invoke_fixture.h"

#include <limits>

namespace vornix {
namespace {

// One way to call a member: reading or calling it, or writing it.
struct Use {
    const MemberInfo* member;
    InvokeKind kind;
    friend void PrintTo(const Use& use, std::ostream* out)
    {
        *out << use.member->name << (use.kind == InvokeKind::Let ? " written" : "");
    }
};

bool IsReadable(const MemberInfo& member)
{
    return member.kind != MemberKind::WriteOnly;
}

bool IsWritable(const MemberInfo& member)
{
    return member.kind == MemberKind::Property || member.kind == MemberKind::WriteOnly;
}

std::vector<Use> Uses(bool pending)
{
    std::vector<Use> uses;
    for (const MemberInfo& member : Members()) {
        if (IsReadable(member) && member.readPending == pending)
            uses.push_back({ &member, InvokeKind::Call });
        if (IsWritable(member) && member.writePending == pending)
            uses.push_back({ &member, InvokeKind::Let });
    }
    return uses;
}

std::string NameOf(const testing::TestParamInfo<Use>& info)
{
    return std::string(info.param.member->name) + (info.param.kind == InvokeKind::Let ? "_Let" : "");
}

// The types of the arguments, the written value among them.
std::vector<ValueType> TypesOf(const Use& use)
{
    std::vector<ValueType> types;
    for (const ArgumentInfo& argument : use.member->arguments)
        types.push_back(argument.type);
    if (use.kind == InvokeKind::Let)
        types.push_back(use.member->type);
    return types;
}

Variant Right(ValueType type)
{
    switch (type) {
    case ValueType::I16:
        return i16 { 1 };
    case ValueType::I32:
    case ValueType::Color:
        return i32 { 1 };
    case ValueType::Single:
        return 1.0f;
    case ValueType::Boolean:
        return true;
    case ValueType::Text:
        return u"1";
    case ValueType::DeviceHandle:
    case ValueType::WindowHandle:
        return std::int64_t { 1 };
    case ValueType::Font:
        return MakeFont(u"DejaVu Sans", 9);
    case ValueType::Picture:
        return MakePicture(0);
    case ValueType::Object:
        return Variant::FromObject(std::make_shared<int>(1));
    case ValueType::Array: {
        auto array = std::make_shared<VariantArray>();
        array->columns = { { u"1" } };
        return Variant::FromArray(array);
    }
    default:
        return Variant();
    }
}

// A value that has no form of the type; null where every value has one.
std::optional<Variant> Wrong(ValueType type)
{
    switch (type) {
    case ValueType::Text:
        return MakePicture(0);
    case ValueType::Any:
        return std::nullopt;
    default:
        return u"x";
    }
}

// A number that the type is too narrow for.
std::optional<Variant> TooLarge(ValueType type)
{
    switch (type) {
    case ValueType::I16:
        return i32 { 40000 };
    case ValueType::I32:
    case ValueType::Color:
        return std::int64_t { 1 } << 40;
    case ValueType::Single:
        return 1e300;
    default:
        return std::nullopt;
    }
}

VariantType TypeOfResult(ValueType type)
{
    switch (type) {
    case ValueType::I16:
        return VariantType::I16;
    case ValueType::I32:
        return VariantType::I32;
    case ValueType::Single:
        return VariantType::Single;
    case ValueType::Boolean:
        return VariantType::Boolean;
    case ValueType::Text:
        return VariantType::Text;
    case ValueType::Color:
    case ValueType::DeviceHandle:
    case ValueType::WindowHandle:
        return VariantType::I64;
    case ValueType::Font:
        return VariantType::Font;
    case ValueType::Picture:
        return VariantType::Picture;
    case ValueType::Object:
        return VariantType::Object;
    default:
        return VariantType::Empty;
    }
}

class AnyMember : public InvokeTest, public testing::WithParamInterface<Use> {
protected:
    // With rows for members of the combo list.
    AnyMember()
    {
        Table(3, 4, 1, 1);
        Grid().ComboAddItem(u"0");
        Grid().ComboAddItem(u"1");
    }

    Arguments RightOnes() const
    {
        Arguments arguments;
        for (const ValueType type : TypesOf(GetParam()))
            arguments.push_back(Right(type));
        // A text that is nothing but the wildcard is an error.
        const std::span<const ArgumentInfo> infos = GetParam().member->arguments;
        for (std::size_t place = 0; place < infos.size(); ++place)
            if (infos[place].name == "Wildcard")
                arguments[place] = u"*";
        return arguments;
    }
    std::optional<int> ErrorWith(Arguments arguments)
    {
        return Error(GetParam().member->name, GetParam().kind, std::move(arguments));
    }
};

class BuiltMember : public AnyMember { };
class PendingMember : public AnyMember { };

TEST_P(BuiltMember, TakesArgumentsThatFit)
{
    Arguments arguments = RightOnes();
    const Variant result = Grid().Invoke(*GetParam().member, GetParam().kind, arguments);
    const bool isWritten = GetParam().kind == InvokeKind::Let;
    EXPECT_EQ(result.Type(), isWritten ? VariantType::Empty : TypeOfResult(GetParam().member->type));
    for (std::size_t place = 0; place < GetParam().member->arguments.size(); ++place) {
        const ArgumentInfo& argument = GetParam().member->arguments[place];
        if (argument.byReference)
            EXPECT_EQ(arguments[place].Type(), TypeOfResult(argument.type)) << argument.name;
        else
            EXPECT_EQ(arguments[place].Type(), Right(argument.type).Type()) << argument.name;
    }
}

TEST_P(BuiltMember, RefusesAWrongNumberOfArguments)
{
    Arguments arguments = RightOnes();
    arguments.push_back(i16 { 1 });
    EXPECT_EQ(ErrorWith(arguments), 450) << "one too many";
    arguments = RightOnes();
    // Optional ones are the last.
    for (const ArgumentInfo& argument : GetParam().member->arguments) {
        if (argument.optional)
            arguments.pop_back();
    }
    if (arguments.empty())
        return;
    arguments.pop_back();
    EXPECT_EQ(ErrorWith(arguments), 450) << "one too few";
}

TEST_P(BuiltMember, NeedsWhatIsNotOptional)
{
    for (std::size_t place = 0; place < RightOnes().size(); ++place) {
        Arguments arguments = RightOnes();
        arguments[place] = Variant::Missing();
        const std::span<const ArgumentInfo> infos = GetParam().member->arguments;
        const bool isOptional = place < infos.size() && infos[place].optional;
        EXPECT_EQ(ErrorWith(arguments), isOptional ? std::nullopt : std::optional(450)) << place;
    }
}

TEST_P(BuiltMember, RefusesValuesOfAnotherType)
{
    const std::vector<ValueType> types = TypesOf(GetParam());
    for (std::size_t place = 0; place < types.size(); ++place) {
        const std::optional<Variant> wrong = Wrong(types[place]);
        if (!wrong)
            continue;
        Arguments arguments = RightOnes();
        arguments[place] = *wrong;
        EXPECT_EQ(ErrorWith(arguments), 13) << "argument " << place;
    }
}

TEST_P(BuiltMember, RefusesNumbersOutOfRange)
{
    const std::vector<ValueType> types = TypesOf(GetParam());
    for (std::size_t place = 0; place < types.size(); ++place) {
        const std::optional<Variant> tooLarge = TooLarge(types[place]);
        if (!tooLarge)
            continue;
        Arguments arguments = RightOnes();
        arguments[place] = *tooLarge;
        EXPECT_EQ(ErrorWith(arguments), 6) << "argument " << place;
    }
}

TEST_P(BuiltMember, TakesItsArgumentsByName)
{
    std::vector<std::string_view> names;
    for (const ArgumentInfo& argument : GetParam().member->arguments)
        names.insert(names.begin(), argument.name);
    if (GetParam().kind == InvokeKind::Let)
        names.insert(names.begin(), "Value");
    Arguments arguments = RightOnes();
    std::reverse(arguments.begin(), arguments.end());
    EXPECT_NO_THROW(Grid().Invoke(GetParam().member->name, GetParam().kind, arguments, names));
}

TEST_P(BuiltMember, RefusesKindsThatItDoesNotHave)
{
    if (!IsReadable(*GetParam().member)) {
        EXPECT_EQ(Error(GetParam().member->name, InvokeKind::Get), 438);
        EXPECT_EQ(Error(GetParam().member->name, InvokeKind::Call), 438);
    } else if (!IsWritable(*GetParam().member)) {
        EXPECT_EQ(Error(GetParam().member->name, InvokeKind::Let, RightOnes()), 438);
    } else {
        EXPECT_NE(Error(GetParam().member->name, InvokeKind::Get), 438);
        EXPECT_NE(Error(GetParam().member->name, InvokeKind::Let), 438);
    }
}

TEST_P(BuiltMember, FailsOnAClosedControl)
{
    Grid().Terminate();
    EXPECT_EQ(ErrorWith(RightOnes()), 5);
}

INSTANTIATE_TEST_SUITE_P(Every, BuiltMember, testing::ValuesIn(Uses(false)), NameOf);

TEST_P(PendingMember, IsError445)
{
    EXPECT_EQ(ErrorWith(RightOnes()), 445);
    EXPECT_EQ(ErrorWith({}), 445);
}

INSTANTIATE_TEST_SUITE_P(Every, PendingMember, testing::ValuesIn(Uses(true)), NameOf);
// Once nothing is pending the suite is empty.
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PendingMember);

} // namespace
} // namespace vornix
