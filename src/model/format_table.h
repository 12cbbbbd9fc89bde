// Formats as shared values: equal formats are one entry, and a cell holds the entry's number.
#pragma once

#include "model/cell_format.h"

#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

namespace vornix {

using FormatId = u32;
using FormatEdit = std::function<void(CellFormat&)>;

// Numbers stay what they are until a sweep finds nobody using them. Memory of entries is reused, never given back, so a
// reference to a swept entry reads an old or another format but no freed memory.
class FormatTable {
public:
    // Number of the zeroed format, always there.
    static constexpr FormatId ZeroFormat = 0;

    // Error 7 when memory runs out, here and wherever an entry is added.
    FormatTable();

    // Unchecked: numbers come from this table.
    const CellFormat& operator[](FormatId id) const { return chunks_[id / ChunkSize][id % ChunkSize].format; }
    FormatId Intern(const CellFormat& format);
    // The number of the format that `edit` makes of entry `id`.
    FormatId Edited(FormatId id, const FormatEdit& edit);

    // Maps old entries to edited ones, running the edit once for each distinct entry.
    class Mapper {
    public:
        // Both must outlive the mapper; no sweep may come between its calls.
        Mapper(FormatTable& table, const FormatEdit& edit);
        FormatId operator()(FormatId id) { return id == lastFrom_ ? lastTo_ : LookUp(id); }

    private:
        FormatId LookUp(FormatId id);

        FormatTable& table_;
        const FormatEdit& edit_;
        std::vector<FormatId> known_;
        FormatId lastFrom_;
        FormatId lastTo_;
    };

    // Entries in use now, and whether there are enough new ones for the owner to mark and sweep.
    std::size_t Count() const { return size_ - free_.size(); }
    bool WantsSweep() const { return Count() >= sweepAt_; }
    // One more than the highest number given out so far.
    std::size_t NumberLimit() const { return size_; }
    // Keeps only the entries that `marked` names, under their numbers; other numbers become free. A short `marked`
    // names nothing beyond its end.
    void Sweep(const std::vector<bool>& marked);

    // Bytes held, font names not counted.
    std::size_t HeapBytes() const;

private:
    static constexpr std::size_t ChunkSize = 256;
    static constexpr std::size_t FirstSweepAt = 1024;
    static constexpr FormatId None = std::numeric_limits<FormatId>::max();

    struct Entry {
        CellFormat format;
        std::size_t hash = 0;
    };

    Entry& At(FormatId id) { return chunks_[id / ChunkSize][id % ChunkSize]; }
    const Entry& At(FormatId id) const { return chunks_[id / ChunkSize][id % ChunkSize]; }
    // Where the format is, or where it would go.
    std::size_t FindSlot(const CellFormat& format, std::size_t hash) const;
    FormatId AddEntry(const CellFormat& format, std::size_t hash);
    FormatId TakeNumber();
    void RebuildIndex(std::size_t slotCount);
    // Every entry in use, in slots as many as there are: needs no memory.
    void FillIndex();
    void PutIntoIndex(FormatId id);

    std::vector<std::unique_ptr<Entry[]>> chunks_;
    std::size_t size_ = 0;
    std::vector<FormatId> free_;
    std::vector<bool> inUse_;
    std::vector<FormatId> slots_; // open addressing, a power of two, at most three quarters full
    std::size_t sweepAt_ = FirstSweepAt;
};

} // namespace vornix
