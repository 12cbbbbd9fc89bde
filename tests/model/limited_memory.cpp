#include "model/limited_memory.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int Unlimited = -1;
int allocationsLeft = Unlimited;

} // namespace

void* operator new(std::size_t size)
{
    if (allocationsLeft == 0)
        throw std::bad_alloc();
    if (allocationsLeft > 0)
        --allocationsLeft;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace vornix {

LimitedMemory::LimitedMemory(int allocations)
{
    allocationsLeft = allocations;
}

LimitedMemory::~LimitedMemory()
{
    allocationsLeft = Unlimited;
}

} // namespace vornix
