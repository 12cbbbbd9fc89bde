// The code behind the members of a control, beside their descriptions in vornix/members.h: of the grid, or of one of the
// controls that come with it.
#pragma once

#include "vornix/automation.h"

#include <span>
#include <string_view>
#include <variant>

namespace vornix {

class ScrollBar;
class TextBox;
class Vornix;

// Calls a member with arguments that are complete and in its order, for a writing call with the value behind them. Those
// by reference are written back once the member has returned.
template <typename Control>
using MemberThunk = Variant (*)(Control& control, std::span<Variant> arguments, const Locale& locale);

// What an argument is that was left out.
using DefaultValue = std::variant<bool, i32, std::u16string_view>;

template <typename Control> struct MemberCode {
    // Reads a property or calls a method; null where that cannot be done or is pending, as for `write`.
    MemberThunk<Control> read = nullptr;
    MemberThunk<Control> write = nullptr;
    // Of the optional arguments, which are the last ones.
    std::span<const DefaultValue> defaults;
};

// In the order of Members(), of ScrollBarMembers(), and of TextBoxMembers().
std::span<const MemberCode<Vornix>> MemberCodes();
std::span<const MemberCode<ScrollBar>> ScrollBarCodes();
std::span<const MemberCode<TextBox>> TextBoxCodes();

} // namespace vornix
