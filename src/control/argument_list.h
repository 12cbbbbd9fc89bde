// The arguments of one late-bound call in the order of the member, complete.
#pragma once

#include "control/member_code.h"
#include "vornix/members.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace vornix {

class ArgumentList {
public:
    // Names are those of the last values given. In a writing call the value stands behind the member's own arguments and
    // its name is "Value". Errors 450 for too few or too many, or one that is given twice, and 448 for a name that the
    // member does not have.
    ArgumentList(const MemberInfo& member, std::span<const DefaultValue> defaults, bool isWriting,
        std::span<Variant> given, std::span<const std::string_view> names);
    ArgumentList(const ArgumentList&) = delete;
    ArgumentList& operator=(const ArgumentList&) = delete;

    // One for each argument of the member, in its order; the values given themselves where they are that already.
    std::span<Variant> InOrder() { return isGiven_ ? given_ : std::span<Variant>(ordered_); }
    // Puts what came back by reference to where it was given.
    void GiveBack();

private:
    std::size_t Count() const { return member_.arguments.size() + (isWriting_ ? 1 : 0); }
    bool IsComplete(std::span<const std::string_view> names) const;
    std::size_t PlaceOf(std::string_view name) const;
    void Order(std::span<const std::string_view> names);
    void Place(std::size_t place, Variant& value);
    void FillIn(std::span<const DefaultValue> defaults);

    const MemberInfo& member_;
    const bool isWriting_;
    const std::span<Variant> given_;
    bool isGiven_ = false;
    std::vector<Variant> ordered_;
    // Where each came from; null where it was left out.
    std::vector<Variant*> origins_;
};

} // namespace vornix
