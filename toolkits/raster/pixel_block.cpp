#include "pixel_block.h"

#include <array>
#include <atomic>
#include <bit>
#include <limits>
#include <mutex>
#include <new>

namespace vornix {

struct alignas(64) PixelBlock::Header {
    std::atomic<int> references { 1 };
    int sizeClass = 0;
    Header* next = nullptr;
};

namespace {

using Header = PixelBlock::Header;

constexpr std::size_t SmallestBlock = 4096;
// Four classes for each doubling: at most a quarter of a block lies idle.
constexpr int StepsPerDoubling = 4;
constexpr int ClassCount = 20 * StepsPerDoubling;

std::size_t ClassBytes(int sizeClass)
{
    const std::size_t base = SmallestBlock << (sizeClass / StepsPerDoubling);
    return base + base / StepsPerDoubling * static_cast<std::size_t>(sizeClass % StepsPerDoubling);
}

// The smallest class of at least `bytes`, ClassCount when there is none.
int ClassFor(std::size_t bytes)
{
    if (bytes <= SmallestBlock)
        return 0;
    const int doublings = static_cast<int>(std::bit_width((bytes - 1) / SmallestBlock)) - 1;
    const std::size_t step = (SmallestBlock << doublings) / StepsPerDoubling;
    return doublings * StepsPerDoubling + static_cast<int>((bytes - (SmallestBlock << doublings) + step - 1) / step);
}

// Released blocks by size class, as single linked lists.
class Pool {
public:
    Header* Take(int sizeClass)
    {
        const std::lock_guard lock(mutex_);
        Header* const header = free_[static_cast<std::size_t>(sizeClass)];
        if (!header)
            return nullptr;
        free_[static_cast<std::size_t>(sizeClass)] = header->next;
        bytes_ -= ClassBytes(sizeClass);
        return header;
    }

    // False when the pool is full; the block stays the caller's.
    bool Put(Header* header)
    {
        const std::size_t size = ClassBytes(header->sizeClass);
        const std::lock_guard lock(mutex_);
        if (bytes_ + size > PixelBlock::MaxPooledBytes)
            return false;
        Header*& first = free_[static_cast<std::size_t>(header->sizeClass)];
        header->next = std::exchange(first, header);
        bytes_ += size;
        return true;
    }

    std::size_t Bytes()
    {
        const std::lock_guard lock(mutex_);
        return bytes_;
    }

private:
    std::mutex mutex_;
    std::array<Header*, ClassCount> free_ {};
    std::size_t bytes_ = 0;
};

// Never destroyed: a surface may live as long as the program.
Pool& ThePool()
{
    static Pool* const pool = new Pool;
    return *pool;
}

Header* NewBlock(int sizeClass)
{
    void* const memory
        = ::operator new (sizeof(Header) + ClassBytes(sizeClass), std::align_val_t { alignof(Header) }, std::nothrow);
    if (!memory)
        return nullptr;
    Header* const header = new (memory) Header;
    header->sizeClass = sizeClass;
    return header;
}

void Free(Header* header)
{
    header->~Header();
    ::operator delete (header, std::align_val_t { alignof(Header) });
}

} // namespace

PixelBlock PixelBlock::Allocate(std::size_t count)
{
    if (count > std::numeric_limits<std::size_t>::max() / sizeof(u32))
        return PixelBlock();
    const int sizeClass = ClassFor(count * sizeof(u32));
    if (sizeClass >= ClassCount)
        return PixelBlock();
    if (Header* const header = ThePool().Take(sizeClass)) {
        header->references.store(1, std::memory_order_relaxed);
        return PixelBlock(header);
    }
    return PixelBlock(NewBlock(sizeClass));
}

PixelBlock::PixelBlock(const PixelBlock& other) noexcept
    : header_(other.header_)
{
    if (header_)
        header_->references.fetch_add(1, std::memory_order_relaxed);
}

PixelBlock::~PixelBlock()
{
    if (!header_ || header_->references.fetch_sub(1, std::memory_order_acq_rel) != 1)
        return;
    if (!ThePool().Put(header_))
        Free(header_);
}

u32* PixelBlock::Data() const
{
    // The pixels follow their header.
    return header_ ? reinterpret_cast<u32*>(header_ + 1) : nullptr;
}

std::size_t PixelBlock::PooledBytes()
{
    return ThePool().Bytes();
}

} // namespace vornix
