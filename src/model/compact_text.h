// UTF-16 text in 12 bytes: short texts of one-byte units lie inside, others on the heap in the narrower width that
// fits.
#pragma once

#include "vornix/types.h"

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace vornix {

class CompactText {
public:
    static constexpr std::size_t InlineCapacity = 11;

    CompactText() = default;
    // Error 7 when memory runs out, here and in Assign.
    explicit CompactText(std::u16string_view text) { Assign(text); }
    CompactText(const CompactText& other);
    CompactText(CompactText&& other) noexcept
    {
        std::memcpy(bytes_, other.bytes_, sizeof bytes_);
        other.Forget();
    }
    CompactText& operator=(const CompactText& other);
    CompactText& operator=(CompactText&& other) noexcept;
    ~CompactText()
    {
        if (IsOnHeap())
            Free();
    }

    bool IsEmpty() const { return bytes_[TagIndex] == 0; }
    std::size_t Length() const;
    std::u16string ToString() const;
    // Points into the text itself where its units have 16 bits, otherwise into `scratch`.
    std::u16string_view View(std::u16string& scratch) const;
    bool Equals(std::u16string_view text) const;

    // `text` may be a view of this very text.
    void Assign(std::u16string_view text);
    void Clear();

    // Bytes beside the object itself.
    std::size_t HeapBytes() const;

private:
    static constexpr std::size_t TagIndex = 11;
    // The last byte is the length of an inline text or one of these.
    static constexpr u8 NarrowTag = 0xFE;
    static constexpr u8 WideTag = 0xFF;

    bool IsOnHeap() const { return bytes_[TagIndex] >= NarrowTag; }
    void Forget() { std::memset(bytes_, 0, sizeof bytes_); }
    // The heap block: a 32-bit length, then the units.
    u8* Block() const;
    void PointTo(u8* block, u8 tag);
    std::size_t BlockLength() const;
    void AssignToHeap(std::u16string_view text, bool wide);
    void Free();

    alignas(4) u8 bytes_[12] = {};
};

static_assert(sizeof(CompactText) == 12);

} // namespace vornix
