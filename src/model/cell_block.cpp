#include "model/cell_block.h"

#include "model/out_of_memory.h"

#include <algorithm>
#include <memory>
#include <new>

namespace vornix {

struct CellBlock::Header {
    i32 handles = 1;
    i32 cellsMade = 0;
};

namespace {

// Room for the header, a multiple of a cell's alignment.
constexpr std::size_t HeaderSize = 8;
static_assert(HeaderSize % alignof(Cell) == 0);

void* BlockOf(Cell* cells)
{
    return reinterpret_cast<std::byte*>(cells) - HeaderSize;
}

} // namespace

CellBlock::CellBlock(int count)
    : cells_(Allocate(count))
    , count_(count)
{
    std::uninitialized_value_construct_n(cells_, count);
    Counter().cellsMade = count;
}

CellBlock::CellBlock(const CellBlock& other) noexcept
    : cells_(other.cells_)
    , count_(other.count_)
{
    if (!cells_)
        return;
    other.Share();
    mayBeShared_ = true;
}

CellBlock::CellBlock(CellBlock&& other) noexcept
    : cells_(std::exchange(other.cells_, nullptr))
    , count_(std::exchange(other.count_, 0))
    , mayBeShared_(std::exchange(other.mayBeShared_, false))
{
}

CellBlock& CellBlock::operator=(const CellBlock& other) noexcept
{
    return *this = CellBlock(other);
}

CellBlock& CellBlock::operator=(CellBlock&& other) noexcept
{
    if (this == &other)
        return *this;
    Release();
    cells_ = std::exchange(other.cells_, nullptr);
    count_ = std::exchange(other.count_, 0);
    mayBeShared_ = std::exchange(other.mayBeShared_, false);
    return *this;
}

void CellBlock::Resize(int count)
{
    if (count < count_) {
        Shrink(count);
        return;
    }
    if (count == count_)
        return;
    CellBlock grown(count);
    if (IsShared())
        std::copy_n(cells_, count_, grown.cells_);
    else
        std::move(cells_, cells_ + count_, grown.cells_);
    *this = std::move(grown);
}

void CellBlock::Shrink(int count)
{
    if (IsShared()) {
        count_ = count;
        return;
    }
    try {
        CellBlock shrunk(count);
        std::move(cells_, cells_ + count, shrunk.cells_);
        *this = std::move(shrunk);
    } catch (const AutomationError&) {
        // No memory for a smaller block: the large one stays, its last cells emptied.
        std::fill(cells_ + count, cells_ + count_, Cell());
        count_ = count;
    }
}

std::size_t CellBlock::HeapBytes() const
{
    if (!cells_)
        return 0;
    std::size_t bytes = HeaderSize + sizeof(Cell) * static_cast<std::size_t>(count_);
    for (const Cell& cell : All())
        bytes += cell.HeapBytes();
    return bytes;
}

Cell* CellBlock::Allocate(int count)
{
    static_assert(sizeof(Header) <= HeaderSize);
    const std::size_t size = HeaderSize + sizeof(Cell) * static_cast<std::size_t>(count);
    void* block = OrOutOfMemory([&] { return ::operator new(size); });
    new (block) Header;
    return reinterpret_cast<Cell*>(static_cast<std::byte*>(block) + HeaderSize);
}

void CellBlock::Free(Cell* cells) noexcept
{
    std::destroy_n(cells, static_cast<Header*>(BlockOf(cells))->cellsMade);
    ::operator delete(BlockOf(cells));
}

CellBlock::Header& CellBlock::Counter() const
{
    return *static_cast<Header*>(BlockOf(cells_));
}

void CellBlock::Share() const noexcept
{
    ++Counter().handles;
    mayBeShared_ = true;
}

bool CellBlock::IsShareCounted() const
{
    if (Counter().handles > 1)
        return true;
    mayBeShared_ = false;
    return false;
}

void CellBlock::DetachShared()
{
    if (!IsShareCounted())
        return;
    CellBlock own;
    own.cells_ = Allocate(count_);
    // Should a copy fail, the cells made so far are destroyed there and `own` frees an empty block.
    std::uninitialized_copy_n(cells_, count_, own.cells_);
    own.Counter().cellsMade = count_;
    own.count_ = count_;
    *this = std::move(own);
}

void CellBlock::Release() noexcept
{
    if (!cells_)
        return;
    if (!mayBeShared_ || --Counter().handles == 0)
        Free(cells_);
    cells_ = nullptr;
    count_ = 0;
}

} // namespace vornix
