// Formats as shared values: equal formats are one entry, and a cell holds the entry's number.
#pragma once

#include "model/cell_format.h"

#include <functional>
#include <vector>

namespace vornix {

using FormatId = u32;
using FormatEdit = std::function<void(CellFormat&)>;

class FormatTable {
public:
    FormatTable();

    const CellFormat& operator[](FormatId id) const { return *entries_[id]; }
    FormatId Intern(const CellFormat& format);
    // The number of the format that `edit` makes of entry `id`.
    FormatId Edited(FormatId id, const FormatEdit& edit);

    // Maps old entries to edited ones, running the edit once for each distinct entry.
    class Mapper {
    public:
        Mapper(FormatTable& table, const FormatEdit& edit);
        FormatId operator()(FormatId id);

    private:
        FormatTable& table_;
        const FormatEdit& edit_;
        std::vector<FormatId> known_;
        FormatId lastFrom_;
        FormatId lastTo_;
    };

    // Entries in use now, and the number from which the owner should mark and sweep.
    std::size_t Count() const;
    bool WantsSweep() const;
    // Keeps only the entries that `marked` names, under their numbers; other numbers become free.
    void Sweep(const std::vector<bool>& marked);

private:
    std::vector<std::unique_ptr<CellFormat>> entries_;
    // ... hash index, free numbers
};

} // namespace vornix
