// Memory that runs out when a test wants it to.
#pragma once

namespace vornix {

// Lets this many allocations of the program succeed while it lives; all further ones fail.
class LimitedMemory {
public:
    explicit LimitedMemory(int allocations);
    ~LimitedMemory();
    LimitedMemory(const LimitedMemory&) = delete;
    LimitedMemory& operator=(const LimitedMemory&) = delete;
};

} // namespace vornix
