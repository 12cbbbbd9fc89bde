#include "model/cell_block.h"

#include "automation/checked.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace vornix {

CellBlock::CellBlock(int count)
    : cells_(Allocate(count))
    , count_(count)
{
    std::uninitialized_value_construct_n(cells_, count);
    Counter().cellsMade = count;
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
    std::size_t bytes = sizeof(Header) + sizeof(Cell) * static_cast<std::size_t>(count_);
    for (const Cell& cell : All())
        bytes += cell.HeapBytes();
    return bytes;
}

Cell* CellBlock::Allocate(int count)
{
    const std::size_t size = sizeof(Header) + sizeof(Cell) * static_cast<std::size_t>(count);
    Header* header = static_cast<Header*>(OrOutOfMemory([&] { return ::operator new(size); }));
    std::construct_at(header);
    return reinterpret_cast<Cell*>(header + 1);
}

void CellBlock::Free(Cell* cells) noexcept
{
    Header* header = reinterpret_cast<Header*>(cells) - 1;
    std::destroy_n(cells, header->cellsMade);
    ::operator delete(header);
}

void CellBlock::CopyCells()
{
    CellBlock own;
    own.cells_ = Allocate(count_);
    // Should a copy fail, the cells made so far are destroyed there and `own` frees an empty block.
    std::uninitialized_copy_n(cells_, count_, own.cells_);
    own.Counter().cellsMade = count_;
    own.count_ = count_;
    *this = std::move(own);
}

} // namespace vornix
