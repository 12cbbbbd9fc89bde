// What a control was saved with, as callers pass it.
#pragma once

#include "vornix/memory_stores.h"
#include "vornix/vornix_c.h"

#include <cstddef>

namespace vornix::c {

// Errors 5 for null pointers, 6 for an integer beyond 32 bits, 13 for a type that no bag holds.
MemoryBag ToBag(const vornix_bag_entry* entries, std::size_t count);

} // namespace vornix::c
