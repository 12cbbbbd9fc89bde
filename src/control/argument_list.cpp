#include "control/argument_list.h"

#include "automation/checked.h"
#include "control/name_index.h"

#include <algorithm>
#include <utility>

namespace vornix {

namespace {

Variant ToVariant(const DefaultValue& value)
{
    return std::visit([](auto each) { return Variant(each); }, value);
}

} // namespace

ArgumentList::ArgumentList(const MemberInfo& member, std::span<const DefaultValue> defaults, bool isWriting,
    std::span<Variant> given, std::span<const std::string_view> names)
    : member_(member)
    , isWriting_(isWriting)
    , given_(given)
{
    if (given.size() > Count() || names.size() > given.size())
        RaiseError(ErrorNumber::WrongArgumentCount);
    isGiven_ = IsComplete(names);
    if (isGiven_)
        return;
    Order(names);
    FillIn(defaults);
}

bool ArgumentList::IsComplete(std::span<const std::string_view> names) const
{
    return names.empty() && given_.size() == Count()
        && std::none_of(given_.begin(), given_.end(), [](const Variant& value) { return value.IsMissing(); });
}

std::size_t ArgumentList::PlaceOf(std::string_view name) const
{
    const auto found = std::find_if(member_.arguments.begin(), member_.arguments.end(),
        [&](const ArgumentInfo& argument) { return EqualNames(argument.name, name); });
    if (found != member_.arguments.end())
        return static_cast<std::size_t>(found - member_.arguments.begin());
    if (isWriting_ && EqualNames(name, "Value"))
        return member_.arguments.size();
    RaiseError(ErrorNumber::NamedArgumentNotFound);
}

void ArgumentList::Order(std::span<const std::string_view> names)
{
    ordered_.assign(Count(), Variant::Missing());
    origins_.assign(Count(), nullptr);
    const std::size_t unnamed = given_.size() - names.size();
    for (std::size_t place = 0; place < unnamed; ++place)
        Place(place, given_[place]);
    for (std::size_t place = 0; place < names.size(); ++place)
        Place(PlaceOf(names[place]), given_[unnamed + place]);
}

void ArgumentList::Place(std::size_t place, Variant& value)
{
    if (origins_[place] != nullptr && !ordered_[place].IsMissing())
        RaiseError(ErrorNumber::WrongArgumentCount);
    origins_[place] = &value;
    ordered_[place] = value;
}

void ArgumentList::FillIn(std::span<const DefaultValue> defaults)
{
    const std::size_t required = member_.arguments.size() - defaults.size();
    for (std::size_t place = 0; place < ordered_.size(); ++place) {
        if (!ordered_[place].IsMissing())
            continue;
        if (place < required || place >= member_.arguments.size())
            RaiseError(ErrorNumber::WrongArgumentCount);
        ordered_[place] = ToVariant(defaults[place - required]);
        origins_[place] = nullptr;
    }
}

void ArgumentList::GiveBack()
{
    if (isGiven_)
        return;
    for (std::size_t place = 0; place < member_.arguments.size(); ++place) {
        if (member_.arguments[place].byReference && origins_[place] != nullptr)
            *origins_[place] = std::move(ordered_[place]);
    }
}

} // namespace vornix
