// Members called late bound.
#include "grid.h"
#include "member_table.h"
#include "values.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>
#include <span>
#include <string_view>

namespace vornix::c {

namespace {

// No member has as many arguments, its value included.
constexpr std::size_t MostArguments = 16;

// Values of a call in place, made one after the other.
class Arguments {
public:
    Arguments() = default;
    ~Arguments() { std::destroy_n(First(), count_); }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    void Add(const vornix_value& value)
    {
        new (storage_.data() + count_ * sizeof(Variant)) Variant(ToVariant(value));
        ++count_;
    }
    std::span<Variant> All() { return { First(), count_ }; }

private:
    Variant* First() { return std::launder(reinterpret_cast<Variant*>(storage_.data())); }

    alignas(Variant) std::array<std::byte, MostArguments * sizeof(Variant)> storage_;
    std::size_t count_ = 0;
};

struct Request {
    const MemberInfo& member;
    InvokeKind kind;
    std::span<vornix_value> values;
    std::span<const std::string_view> names;
    vornix_value* result;
};

bool AreSameName(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c; };
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(), [&](char left, char right) { return lower(left) == lower(right); });
}

bool IsByReference(const Request& request, std::size_t index)
{
    const std::span<const ArgumentInfo> arguments = request.member.arguments;
    const std::size_t positional = request.values.size() - request.names.size();
    if (index < positional)
        return index < arguments.size() && arguments[index].byReference;
    const std::string_view name = request.names[index - positional];
    const auto named = std::find_if(arguments.begin(), arguments.end(),
        [&](const ArgumentInfo& argument) { return AreSameName(argument.name, name); });
    return named != arguments.end() && named->byReference;
}

// All that comes out is made before any of it is given, so that a failure gives nothing.
void GiveResults(Call& call, const Request& request, const Variant& result, std::span<const Variant> arguments)
{
    ValueList<MostArguments + 1> made;
    std::array<vornix_value*, MostArguments + 1> places;
    const auto give = [&](const Variant& value, vornix_value& place) {
        places[made.Count()] = &place;
        made.Add(value);
    };
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (IsByReference(request, i))
            give(arguments[i], request.values[i]);
    }
    if (request.result != nullptr)
        give(result, *request.result);
    call.Finish();
    for (std::size_t i = 0; i < made.Count(); ++i)
        *places[i] = made.Take(i);
}

void Invoke(Call& call, const Request& request)
{
    Vornix& control = call->Control();
    if (request.values.size() > MostArguments)
        Raise(ErrorNumber::WrongArgumentCount);
    Arguments arguments;
    for (const vornix_value& value : request.values)
        arguments.Add(value);
    const Variant result = request.names.empty()
        ? control.Invoke(request.member, request.kind, arguments.All())
        : control.Invoke(request.member.name, request.kind, arguments.All(), request.names);
    GiveResults(call, request, result, arguments.All());
}

InvokeKind ToKind(std::int32_t kind)
{
    if (kind < VORNIX_GET || kind > VORNIX_CALL)
        Raise(ErrorNumber::InvalidArgument, "A kind of call that there is not");
    return static_cast<InvokeKind>(kind);
}

const MemberInfo& MemberNamed(const char* name)
{
    Require(name);
    const MemberInfo* const member = FindMember(name);
    if (member == nullptr)
        Raise(ErrorNumber::NoSuchMember);
    return *member;
}

std::span<vornix_value> ToSpan(vornix_value* arguments, std::size_t count)
{
    if (count > 0)
        Require(arguments);
    return { arguments, count };
}

// Names of arguments, at most as many as there may be arguments.
class Names {
public:
    Names(const char* const* names, std::size_t count, std::size_t argumentCount)
        : count_(count)
    {
        if (count > argumentCount)
            Raise(ErrorNumber::InvalidArgument, "More names than arguments");
        if (argumentCount > MostArguments)
            Raise(ErrorNumber::WrongArgumentCount);
        if (count > 0)
            Require(names);
        for (std::size_t i = 0; i < count; ++i) {
            Require(names[i]);
            names_[i] = names[i];
        }
    }
    std::span<const std::string_view> All() const { return { names_.data(), count_ }; }

private:
    std::array<std::string_view, MostArguments> names_;
    std::size_t count_;
};

} // namespace

} // namespace vornix::c

using namespace vornix::c;

std::int32_t vornix_invoke(vornix_grid* grid, const char* name, std::int32_t kind, vornix_value* arguments,
    std::size_t count, vornix_value* result)
{
    return GridCall(grid, [&](Call& call) {
        Invoke(call, { MemberNamed(name), ToKind(kind), ToSpan(arguments, count), {}, result });
    });
}

std::int32_t vornix_invoke_named(vornix_grid* grid, const char* name, std::int32_t kind, vornix_value* arguments,
    std::size_t count, const char* const* names, std::size_t name_count, vornix_value* result)
{
    return GridCall(grid, [&](Call& call) {
        const Names known(names, name_count, count);
        Invoke(call, { MemberNamed(name), ToKind(kind), ToSpan(arguments, count), known.All(), result });
    });
}

std::int32_t vornix_invoke_member(vornix_grid* grid, const vornix_member* member, std::int32_t kind,
    vornix_value* arguments, std::size_t count, vornix_value* result)
{
    return GridCall(grid, [&](Call& call) {
        Invoke(call, { MemberOf(member), ToKind(kind), ToSpan(arguments, count), {}, result });
    });
}
