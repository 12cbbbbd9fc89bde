// An array with its spare room wherever items last came or went: a change there moves only the items between the last
// place and the next, not all up to the end.
#pragma once

#include <algorithm>
#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

namespace vornix {

// Positions are not checked. References hold until the next Insert, Remove or Resize.
template <typename T> class GapArray {
    static_assert(std::is_nothrow_move_constructible_v<T> && std::is_nothrow_move_assignable_v<T>);

public:
    // As much of an iterator as a loop over all items needs.
    template <typename Array> struct Walk {
        Array* Items;
        std::size_t Index;

        auto& operator*() const { return (*Items)[Index]; }
        Walk& operator++()
        {
            ++Index;
            return *this;
        }
        bool operator==(const Walk&) const = default;
    };

    GapArray() = default;
    explicit GapArray(std::size_t size)
        : slots_(size)
    {
    }
    GapArray(GapArray&& other) noexcept { *this = std::move(other); }
    GapArray& operator=(GapArray&& other) noexcept
    {
        std::swap(slots_, other.slots_);
        std::swap(gapBegin_, other.gapBegin_);
        std::swap(gapLength_, other.gapLength_);
        return *this;
    }

    std::size_t size() const { return slots_.size() - gapLength_; }
    std::size_t capacity() const { return slots_.capacity(); }
    T& operator[](std::size_t index) { return slots_[Slot(index)]; }
    const T& operator[](std::size_t index) const { return slots_[Slot(index)]; }
    Walk<GapArray> begin() { return { this, 0 }; }
    Walk<GapArray> end() { return { this, size() }; }
    Walk<const GapArray> begin() const { return { this, 0 }; }
    Walk<const GapArray> end() const { return { this, size() }; }

    // Default items at the end, or none of the last ones any more; no gap stays. Growing that fails changes
    // nothing, shrinking cannot fail.
    void Resize(std::size_t size)
    {
        CloseGap();
        slots_.reserve(size);
        slots_.resize(size);
        GiveBackMemory();
    }

    // `count` default items in front of `position`, with some room for more. Failing changes nothing.
    void Insert(std::size_t position, std::size_t count)
    {
        if (count > gapLength_)
            MakeRoom(count);
        MoveGap(position);
        Clear(gapBegin_, count);
        gapBegin_ += count;
        gapLength_ -= count;
    }

    // Cannot fail.
    void Remove(std::size_t position, std::size_t count)
    {
        MoveGap(position);
        Clear(gapBegin_ + gapLength_, count);
        gapLength_ += count;
        if (gapLength_ > size() * 3) {
            CloseGap();
            GiveBackMemory();
        }
    }

private:
    // A spare slot for so many items.
    static constexpr std::size_t ItemsPerSpare = 32;

    std::size_t Slot(std::size_t index) const { return index < gapBegin_ ? index : index + gapLength_; }

    void MoveGap(std::size_t position)
    {
        const auto at = [&](std::size_t slot) { return slots_.begin() + static_cast<std::ptrdiff_t>(slot); };
        if (gapLength_ != 0 && position < gapBegin_)
            std::move_backward(at(position), at(gapBegin_), at(gapBegin_ + gapLength_));
        else if (gapLength_ != 0)
            std::move(at(gapBegin_ + gapLength_), at(position + gapLength_), at(gapBegin_));
        gapBegin_ = position;
    }
    void Clear(std::size_t slot, std::size_t count)
    {
        for (const std::size_t end = slot + count; slot < end; ++slot)
            slots_[slot] = T();
    }
    void CloseGap()
    {
        MoveGap(size());
        slots_.resize(size());
        gapLength_ = 0;
    }
    void MakeRoom(std::size_t count)
    {
        const std::size_t length = count + size() / ItemsPerSpare;
        MoveGap(size());
        slots_.reserve(size() + length);
        slots_.resize(size() + length);
        gapLength_ = length;
    }
    void GiveBackMemory()
    {
        if (slots_.capacity() <= slots_.size() * 4)
            return;
        try {
            slots_.shrink_to_fit();
        } catch (const std::bad_alloc&) {
            // The items stay where they are.
        }
    }

    std::vector<T> slots_; // those of the gap are of no use to anyone
    std::size_t gapBegin_ = 0;
    std::size_t gapLength_ = 0;
};

} // namespace vornix
