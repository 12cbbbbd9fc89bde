// A row's cells in one heap block. Copies share it until one of them is written; each behaves as a copy of its own.
#pragma once

#include "automation/checked.h"
#include "model/cell.h"
#include "vornix/types.h"

#include <span>
#include <utility>

namespace vornix {

// Counted without atomics: a table and all copies of its rows live on one thread.
class CellBlock {
public:
    CellBlock() = default;
    // `count` default cells. Error 7 when memory runs out, here and wherever a shared block is written.
    explicit CellBlock(int count);
    CellBlock(const CellBlock& other) noexcept
        : cells_(other.cells_)
        , count_(other.count_)
    {
        if (!cells_)
            return;
        ++other.Counter().handles;
        other.mayBeShared_ = mayBeShared_ = true;
    }
    CellBlock(CellBlock&& other) noexcept
        : cells_(std::exchange(other.cells_, nullptr))
        , count_(std::exchange(other.count_, 0))
        , mayBeShared_(std::exchange(other.mayBeShared_, false))
    {
    }
    CellBlock& operator=(const CellBlock& other) noexcept { return *this = CellBlock(other); }
    CellBlock& operator=(CellBlock&& other) noexcept
    {
        if (this == &other)
            return *this;
        std::swap(cells_, other.cells_);
        std::swap(count_, other.count_);
        std::swap(mayBeShared_, other.mayBeShared_);
        other.Release();
        return *this;
    }
    ~CellBlock() { Release(); }

    int Count() const { return count_; }
    // Unchecked, for loops that know their bounds.
    const Cell& operator[](int index) const { return cells_[index]; }
    // Error 9 outside.
    const Cell& At(int index) const { return cells_[CheckedIndex(index, count_)]; }
    std::span<const Cell> All() const { return { cells_, static_cast<std::size_t>(count_) }; }

    // Write access: the block becomes this row's own first. References hold until the block is copied or resized.
    Cell& Edit(int index)
    {
        CheckedIndex(index, count_);
        Detach();
        return cells_[index];
    }
    std::span<Cell> EditAll()
    {
        Detach();
        return { cells_, static_cast<std::size_t>(count_) };
    }
    // Cells that stay keep their contents, new ones are default cells. Shrinking cannot fail; growing that fails leaves
    // the block as it was.
    void Resize(int count);
    // Takes a growth back: this handle forgets its last cells, which must be default cells still.
    void ForgetTail(int count) noexcept { count_ = count; }

    bool IsShared() const { return mayBeShared_ && IsShareCounted(); }
    // Equal for two handles on the same cells.
    const void* Identity() const { return cells_; }
    // Asks for the memory of one cell ahead of its use; the index is not checked.
    void Prefetch(int index) const { __builtin_prefetch(cells_ + index, 1); }

    // Bytes of the block with what its cells hold.
    std::size_t HeapBytes() const;

private:
    // In front of the cells.
    struct Header {
        i32 handles = 1;
        i32 cellsMade = 0;
    };
    static_assert(sizeof(Header) % alignof(Cell) == 0);

    // Room for `count` cells behind a header that says none is made yet.
    static Cell* Allocate(int count);
    static void Free(Cell* cells) noexcept;
    void Shrink(int count);
    Header& Counter() const { return *(reinterpret_cast<Header*>(cells_) - 1); }
    bool IsShareCounted() const
    {
        mayBeShared_ = Counter().handles > 1;
        return mayBeShared_;
    }
    void Detach()
    {
        if (IsShared())
            CopyCells();
    }
    void CopyCells();
    void Release() noexcept
    {
        if (cells_ && (!mayBeShared_ || --Counter().handles == 0))
            Free(cells_);
        cells_ = nullptr;
        count_ = 0;
        mayBeShared_ = false;
    }

    Cell* cells_ = nullptr;
    i32 count_ = 0; // of this handle; the block may hold more
    // False only when no other handle exists: then a write need not look at the header, which lies in another cache
    // line.
    mutable bool mayBeShared_ = false;
};

} // namespace vornix
