#include "model/format_table.h"

#include "automation/checked.h"

#include <algorithm>
#include <functional>

namespace vornix {

namespace {

constexpr std::size_t FirstSlotCount = 64;

class Hasher {
public:
    template <typename... Values> void Add(Values... values) { (AddOne(static_cast<u32>(values)), ...); }

    void AddText(std::u16string_view text) { Mix(std::hash<std::u16string_view> {}(text)); }

    // The low bits pick the slot, so the high ones are folded in.
    std::size_t Result() const { return static_cast<std::size_t>(state_ ^ state_ >> 32); }

private:
    void AddOne(u32 value) { Mix(value); }
    void Mix(std::uint64_t value)
    {
        state_ = (state_ ^ value) * 0x9E3779B97F4A7C15u;
        state_ ^= state_ >> 29;
    }

    std::uint64_t state_ = 0x243F6A8885A308D3u;
};

// The channels of a gradient colour follow from its colour unless somebody writes them apart; equality sees to that.
std::size_t HashOf(const CellFormat& format)
{
    Hasher hasher;
    hasher.Add(format.Mode, format.Style, format.BackColor, format.ForeColor, format.PictureAlignment,
        format.TextAlignment, format.TextMarginLeft, format.TextMarginRight, format.FontBold, format.FontItalic,
        format.FontUnderline, format.FontStrikeThrough, format.FontSize, format.FontCharset, format.Disabled,
        format.LightShade, format.BorderColor, format.DarkShade, format.GradientMode, format.GradientEnd,
        format.GradientStart.Color, format.GradientStop.Color);
    hasher.AddText(format.FontName.View());
    return hasher.Result();
}

} // namespace

FormatTable::FormatTable()
{
    OrOutOfMemory([&] { slots_.assign(FirstSlotCount, None); });
    Intern(CellFormat());
}

FormatId FormatTable::Intern(const CellFormat& format)
{
    const std::size_t hash = HashOf(format);
    const FormatId found = slots_[FindSlot(format, hash)];
    if (found != None)
        return found;
    return OrOutOfMemory([&] { return AddEntry(format, hash); });
}

FormatId FormatTable::Edited(FormatId id, const FormatEdit& edit)
{
    CellFormat format = At(id).format;
    edit(format);
    return Intern(format);
}

void FormatTable::Sweep(const std::vector<bool>& marked)
{
    const auto isKept = [&](FormatId id) { return id == ZeroFormat || (id < marked.size() && marked[id]); };
    OrOutOfMemory([&] { free_.reserve(size_); });
    for (FormatId id = 0; id < size_; ++id) {
        if (!inUse_[id] || isKept(id))
            continue;
        inUse_[id] = false;
        free_.push_back(id);
    }
    FillIndex();
    sweepAt_ = std::max(FirstSweepAt, Count() * 2);
}

std::size_t FormatTable::HeapBytes() const
{
    return chunks_.size() * ChunkSize * sizeof(Entry) + chunks_.capacity() * sizeof(chunks_[0])
        + free_.capacity() * sizeof(FormatId) + slots_.capacity() * sizeof(FormatId) + inUse_.capacity() / 8;
}

std::size_t FormatTable::FindSlot(const CellFormat& format, std::size_t hash) const
{
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hash & mask;
    while (slots_[slot] != None) {
        const Entry& entry = At(slots_[slot]);
        if (entry.hash == hash && entry.format == format)
            break;
        slot = (slot + 1) & mask;
    }
    return slot;
}

FormatId FormatTable::AddEntry(const CellFormat& format, std::size_t hash)
{
    // Everything that may run out of memory comes before the first change.
    if ((Count() + 1) * 4 > slots_.size() * 3)
        RebuildIndex(slots_.size() * 2);
    const FormatId id = TakeNumber();
    inUse_[id] = true;
    At(id) = { format, hash };
    PutIntoIndex(id);
    return id;
}

FormatId FormatTable::TakeNumber()
{
    if (!free_.empty()) {
        const FormatId id = free_.back();
        free_.pop_back();
        return id;
    }
    if (size_ == None)
        RaiseError(ErrorNumber::OutOfMemory);
    if (size_ == chunks_.size() * ChunkSize)
        chunks_.push_back(std::make_unique<Entry[]>(ChunkSize));
    inUse_.resize(size_ + 1);
    return static_cast<FormatId>(size_++);
}

void FormatTable::RebuildIndex(std::size_t slotCount)
{
    std::vector<FormatId> slots(slotCount, None);
    slots_.swap(slots);
    FillIndex();
}

void FormatTable::FillIndex()
{
    std::fill(slots_.begin(), slots_.end(), None);
    for (FormatId id = 0; id < size_; ++id)
        if (inUse_[id])
            PutIntoIndex(id);
}

void FormatTable::PutIntoIndex(FormatId id)
{
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = At(id).hash & mask;
    while (slots_[slot] != None)
        slot = (slot + 1) & mask;
    slots_[slot] = id;
}

FormatTable::Mapper::Mapper(FormatTable& table, const FormatEdit& edit)
    : table_(table)
    , edit_(edit)
    , lastFrom_(None)
    , lastTo_(None)
{
}

FormatId FormatTable::Mapper::LookUp(FormatId id)
{
    OrOutOfMemory([&] {
        if (id >= known_.size())
            known_.resize(std::max<std::size_t>(table_.NumberLimit(), id + 1), None);
    });
    if (known_[id] == None)
        known_[id] = table_.Edited(id, edit_);
    lastFrom_ = id;
    lastTo_ = known_[id];
    return lastTo_;
}

} // namespace vornix
