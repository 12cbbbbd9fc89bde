// A hash table of flat records, bounded in size, that forgets what was not used for a while.
#pragma once

#include "arena.h"
#include "vornix/types.h"

#include <cstdint>
#include <cstring>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

namespace vornix {

// Records live in two generations. A record that is found moves to the young one; when the young one is full it becomes
// the old one and the former old one is dropped. So at most twice the limit is held.
//
// `Record` is trivially copyable, has a field `u64 hash` and a member `Bytes()`: its size with the data behind it.
// A pointer to a record is valid until a later Find or Add of the same cache.
template <typename Record> class GenerationCache {
public:
    GenerationCache(std::size_t byteLimit, std::size_t recordLimit)
        : byteLimit_(byteLimit)
        , recordLimit_(recordLimit)
    {
    }

    template <typename Same> Record* Find(std::uint64_t hash, const Same& same)
    {
        if (Record* record = young_.Find(hash, same))
            return record;
        Record* old = old_.Find(hash, same);
        if (!old)
            return nullptr;
        // A full young generation takes no more, and must not rotate here: that would drop the record just found.
        return IsFull() ? old : young_.Insert(*old);
    }

    // An uninitialised record of this size, entered under the hash; the caller fills it.
    Record* Add(std::uint64_t hash, std::size_t bytes)
    {
        if (IsFull())
            Rotate();
        return young_.Add(hash, bytes);
    }

    void Clear()
    {
        young_.Clear();
        old_.Clear();
        ++rotations_;
    }

    // How often records were dropped.
    std::size_t Rotations() const { return rotations_; }
    std::size_t Bytes() const { return young_.arena.Used() + old_.arena.Used(); }
    std::size_t Records() const { return young_.count + old_.count; }
    std::size_t ByteLimit() const { return byteLimit_; }
    std::size_t RecordLimit() const { return recordLimit_; }

private:
    static_assert(std::is_trivially_copyable_v<Record>);

    struct Generation {
        Arena arena;
        std::vector<Record*> slots;
        std::size_t count = 0;

        template <typename Same> Record* Find(std::uint64_t hash, const Same& same) const
        {
            if (count == 0)
                return nullptr;
            const std::size_t mask = slots.size() - 1;
            for (std::size_t slot = hash & mask; slots[slot]; slot = (slot + 1) & mask) {
                if (slots[slot]->hash == hash && same(*slots[slot]))
                    return slots[slot];
            }
            return nullptr;
        }

        Record* Add(std::uint64_t hash, std::size_t bytes)
        {
            if (slots.size() < 2 * (count + 1))
                Grow();
            Record* record = new (arena.Allocate(bytes)) Record;
            record->hash = hash;
            Enter(record);
            ++count;
            return record;
        }

        Record* Insert(const Record& other)
        {
            const std::size_t bytes = other.Bytes();
            Record* record = Add(other.hash, bytes);
            std::memcpy(static_cast<void*>(record), static_cast<const void*>(&other), bytes);
            return record;
        }

        void Enter(Record* record)
        {
            const std::size_t mask = slots.size() - 1;
            std::size_t slot = record->hash & mask;
            while (slots[slot])
                slot = (slot + 1) & mask;
            slots[slot] = record;
        }

        void Grow()
        {
            std::vector<Record*> before = std::move(slots);
            slots.assign(before.empty() ? 256 : 2 * before.size(), nullptr);
            for (Record* record : before) {
                if (record)
                    Enter(record);
            }
        }

        void Clear()
        {
            arena.Reset();
            slots.assign(slots.size(), nullptr);
            count = 0;
        }
    };

    bool IsFull() const { return young_.arena.Used() >= byteLimit_ || young_.count >= recordLimit_; }

    void Rotate()
    {
        std::swap(young_, old_);
        young_.Clear();
        ++rotations_;
    }

    std::size_t byteLimit_;
    std::size_t recordLimit_;
    std::size_t rotations_ = 0;
    Generation young_;
    Generation old_;
};

} // namespace vornix
