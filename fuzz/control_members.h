// The public members of the control as calls with arguments out of a fuzzer's bytes.
#pragma once

#include "fuzz_input.h"
#include "vornix/vornix.h"

#include <span>

namespace vornix::fuzz {

using MemberCall = void (*)(Vornix& grid, FuzzInput& input);

std::span<const MemberCall> ActingMembers();
std::span<const MemberCall> QueryMembers();

} // namespace vornix::fuzz
