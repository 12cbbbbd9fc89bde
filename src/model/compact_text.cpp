#include "model/compact_text.h"

#include "automation/checked.h"

#include <algorithm>
#include <limits>
#include <new>

namespace vornix {

namespace {

constexpr std::size_t LengthSize = sizeof(u32);

bool AllUnitsFitOneByte(std::u16string_view text)
{
    // Or-ing all units keeps the loop free of branches.
    char16_t seen = 0;
    for (const char16_t unit : text)
        seen = static_cast<char16_t>(seen | unit);
    return seen < 0x100;
}

void Narrow(std::u16string_view text, u8* target)
{
    for (std::size_t index = 0; index < text.size(); ++index)
        target[index] = static_cast<u8>(text[index]);
}

std::size_t BlockSize(std::size_t length, bool wide)
{
    return LengthSize + length * (wide ? sizeof(char16_t) : 1);
}

const char16_t* WideUnits(const u8* block)
{
    return reinterpret_cast<const char16_t*>(block + LengthSize);
}

} // namespace

CompactText::CompactText(const CompactText& other)
{
    *this = other;
}

CompactText& CompactText::operator=(const CompactText& other)
{
    if (this == &other)
        return *this;
    if (!other.IsOnHeap()) {
        Clear();
        std::memcpy(bytes_, other.bytes_, sizeof bytes_);
        return *this;
    }
    const u8 tag = other.bytes_[TagIndex];
    const std::size_t size = BlockSize(other.BlockLength(), tag == WideTag);
    u8* block = static_cast<u8*>(OrOutOfMemory([&] { return ::operator new(size); }));
    std::memcpy(block, other.Block(), size);
    Clear();
    PointTo(block, tag);
    return *this;
}

CompactText& CompactText::operator=(CompactText&& other) noexcept
{
    if (this == &other)
        return *this;
    Clear();
    std::memcpy(bytes_, other.bytes_, sizeof bytes_);
    other.Forget();
    return *this;
}

std::size_t CompactText::Length() const
{
    return IsOnHeap() ? BlockLength() : bytes_[TagIndex];
}

std::u16string CompactText::ToString() const
{
    std::u16string scratch;
    const std::u16string_view view = View(scratch);
    if (view.data() == scratch.data())
        return scratch;
    return OrOutOfMemory([&] { return std::u16string(view); });
}

std::u16string_view CompactText::View(std::u16string& scratch) const
{
    if (bytes_[TagIndex] == WideTag)
        return { WideUnits(Block()), BlockLength() };
    const u8* units = IsOnHeap() ? Block() + LengthSize : bytes_;
    const std::size_t length = Length();
    OrOutOfMemory([&] { scratch.resize(length); });
    std::copy_n(units, length, scratch.data());
    return scratch;
}

bool CompactText::Equals(std::u16string_view text) const
{
    if (text.size() != Length())
        return false;
    if (bytes_[TagIndex] == WideTag)
        return text == std::u16string_view(WideUnits(Block()), text.size());
    const u8* units = IsOnHeap() ? Block() + LengthSize : bytes_;
    return std::equal(text.begin(), text.end(), units, [](char16_t a, u8 b) { return a == b; });
}

void CompactText::Assign(std::u16string_view text)
{
    if (text.size() > InlineCapacity) {
        AssignToHeap(text, !AllUnitsFitOneByte(text));
        return;
    }
    u8 units[sizeof bytes_] = {};
    char16_t seen = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        seen = static_cast<char16_t>(seen | text[index]);
        units[index] = static_cast<u8>(text[index]);
    }
    if (seen >= 0x100) {
        AssignToHeap(text, true);
        return;
    }
    units[TagIndex] = static_cast<u8>(text.size());
    if (IsOnHeap())
        Free();
    std::memcpy(bytes_, units, sizeof bytes_);
}

void CompactText::Clear()
{
    if (IsOnHeap())
        Free();
    Forget();
}

std::size_t CompactText::HeapBytes() const
{
    return IsOnHeap() ? BlockSize(BlockLength(), bytes_[TagIndex] == WideTag) : 0;
}

u8* CompactText::Block() const
{
    u8* block;
    std::memcpy(&block, bytes_, sizeof block);
    return block;
}

void CompactText::PointTo(u8* block, u8 tag)
{
    std::memcpy(bytes_, &block, sizeof block);
    bytes_[TagIndex] = tag;
}

std::size_t CompactText::BlockLength() const
{
    u32 length;
    std::memcpy(&length, Block(), sizeof length);
    return length;
}

void CompactText::AssignToHeap(std::u16string_view text, bool wide)
{
    if (text.size() > std::numeric_limits<u32>::max())
        RaiseError(ErrorNumber::OutOfMemory);
    u8* block = static_cast<u8*>(OrOutOfMemory([&] { return ::operator new(BlockSize(text.size(), wide)); }));
    const u32 length = static_cast<u32>(text.size());
    std::memcpy(block, &length, sizeof length);
    if (wide)
        std::memcpy(block + LengthSize, text.data(), text.size() * sizeof(char16_t));
    else
        Narrow(text, block + LengthSize);
    Clear();
    PointTo(block, wide ? WideTag : NarrowTag);
}

void CompactText::Free()
{
    ::operator delete(Block());
}

} // namespace vornix
