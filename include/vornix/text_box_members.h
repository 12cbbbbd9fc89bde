// The members and events of a text box by name, as vornix/members.h has those of the grid.
#pragma once

#include "vornix/automation.h"
#include "vornix/members.h"
#include "vornix/text_box.h"

namespace vornix {

// In the order of the interface file, and by number. They live as long as the program.
std::span<const MemberInfo> TextBoxMembers();
std::span<const EventInfo> TextBoxEventInfos();
// In any case; null where there is none.
const MemberInfo* FindTextBoxMember(std::string_view name);

// Calls a member by its name, in any case, with the rules and errors of Vornix::Invoke.
Variant Invoke(TextBox& box, const Locale& locale, std::string_view name, InvokeKind kind, std::span<Variant> args);

} // namespace vornix
