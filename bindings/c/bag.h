// What a control was saved with, as callers pass it.
#pragma once

#include "vornix/memory_stores.h"
#include "vornix/vornix_c.h"

#include <cstddef>

namespace vornix::c {

// Errors 5 for null pointers, 6 for an integer beyond 32 bits, 13 for a type that no bag holds.
MemoryBag ToBag(const vornix_bag_entry* entries, std::size_t count);

// As many of its entries as there is room for, with values that are the caller's, or none when memory is short. Their
// names are those of the bag.
void GiveBag(const MemoryBag& bag, vornix_bag_entry* entries, std::size_t capacity);

} // namespace vornix::c
