// Turns the bytes that a fuzzer makes up into values. Behind the last byte there are only zeros.
#pragma once

#include "vornix/types.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <utility>

namespace vornix::fuzz {

// What must hold, in every build.
inline void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : bytes_(data, size)
    {
    }

    bool IsEmpty() const { return bytes_.empty(); }

    u8 Byte()
    {
        if (bytes_.empty())
            return 0;
        const u8 byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }
    bool Bool() { return Byte() & 1; }
    u16 Word() { return static_cast<u16>(Byte() | Byte() << 8); }
    u32 DoubleWord() { return Word() | static_cast<u32>(Word()) << 16; }
    // Both bounds included; at most 256 values.
    int Between(int low, int high) { return low + Byte() % (high - low + 1); }

    // Mostly small numbers, now and then the ends of the range or anything.
    i16 AnyI16()
    {
        const u8 kind = Byte();
        if (kind < 192)
            return static_cast<i16>(kind % 24 - 6);
        if (kind < 208)
            return kind % 2 ? i16 { 32767 } : i16 { -32768 };
        return static_cast<i16>(Word());
    }
    i32 AnyI32()
    {
        const u8 kind = Byte();
        if (kind < 192)
            return kind % 40 - 8;
        if (kind < 208)
            return kind % 2 ? i32 { 2147483647 } : i32 { -2147483647 - 1 };
        return static_cast<i32>(DoubleWord());
    }

    // Up to `longest` units: ASCII, or anything, lone surrogates too.
    std::u16string Text(std::size_t longest)
    {
        const u8 head = Byte();
        const bool wide = head & 1;
        std::u16string text;
        const std::size_t length = longest * (head >> 1) / 127;
        while (text.size() < length && !IsEmpty())
            text += static_cast<char16_t>(wide ? Word() : Byte() & 0x7F);
        return text;
    }
    // All that is left, as UTF-16.
    std::u16string Rest()
    {
        std::u16string text;
        while (!IsEmpty())
            text += static_cast<char16_t>(Word());
        return text;
    }
    std::span<const std::uint8_t> RestBytes() { return std::exchange(bytes_, {}); }

private:
    std::span<const std::uint8_t> bytes_;
};

} // namespace vornix::fuzz
