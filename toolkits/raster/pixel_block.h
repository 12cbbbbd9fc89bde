// Memory for pixels, shared by the surfaces that draw on it, and kept for the next surface when the last one lets go.
#pragma once

#include "vornix/types.h"

#include <cstddef>
#include <utility>

namespace vornix {

// Refers to a block of pixels; copies refer to the same one. Blocks may be released on any thread.
class PixelBlock {
public:
    PixelBlock() = default;
    // At least `count` pixels, contents undefined; empty when memory is short.
    static PixelBlock Allocate(std::size_t count);

    PixelBlock(const PixelBlock& other) noexcept;
    PixelBlock(PixelBlock&& other) noexcept
        : header_(std::exchange(other.header_, nullptr))
    {
    }
    PixelBlock& operator=(PixelBlock other) noexcept
    {
        std::swap(header_, other.header_);
        return *this;
    }
    ~PixelBlock();

    explicit operator bool() const { return header_ != nullptr; }
    // Aligned to 64 bytes.
    u32* Data() const;

    // Bytes that wait in the pool for reuse. Bounded by MaxPooledBytes.
    static std::size_t PooledBytes();
    static constexpr std::size_t MaxPooledBytes = std::size_t { 64 } << 20;

    struct Header;

private:
    explicit PixelBlock(Header* header)
        : header_(header)
    {
    }

    Header* header_ = nullptr;
};

} // namespace vornix
