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
    CellBlock(const CellBlock& other) noexcept;
    CellBlock(CellBlock&& other) noexcept;
    CellBlock& operator=(const CellBlock& other) noexcept;
    CellBlock& operator=(CellBlock&& other) noexcept;
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
    struct Header;

    // Room for `count` cells behind a header that says so; the cells are made by the caller.
    static Cell* Allocate(int count);
    static void Free(Cell* cells) noexcept;
    void Shrink(int count);
    Header& Counter() const;
    void Share() const noexcept;
    bool IsShareCounted() const;
    void Detach()
    {
        if (mayBeShared_)
            DetachShared();
    }
    void DetachShared();
    void Release() noexcept;

    Cell* cells_ = nullptr; // behind the header
    i32 count_ = 0; // of this handle; the block may hold more
    // False only when no other handle exists: then a write need not look at the header, which lies in another cache
    // line.
    mutable bool mayBeShared_ = false;
};

} // namespace vornix
