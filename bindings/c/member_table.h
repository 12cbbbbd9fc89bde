// Members and events behind the handles and numbers of callers.
#pragma once

#include "vornix/members.h"
#include "vornix/vornix_c.h"

#include <string_view>

namespace vornix::c {

// Errors 5 for null, 438 for what is no member.
const MemberInfo& MemberOf(const vornix_member* handle);

} // namespace vornix::c
