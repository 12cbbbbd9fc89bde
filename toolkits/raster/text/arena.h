// Memory handed out by moving a pointer and given back all at once.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace vornix {

class Arena {
public:
    // 16-byte aligned, uninitialised. Valid until Reset.
    std::byte* Allocate(std::size_t bytes)
    {
        bytes = (bytes + 15) & ~std::size_t { 15 };
        used_ += bytes;
        if (bytes > ChunkBytes / 4)
            return large_.emplace_back(new std::byte[bytes]).get();
        if (chunk_ == chunks_.size() || offset_ + bytes > ChunkBytes)
            NextChunk();
        std::byte* memory = chunks_[chunk_].get() + offset_;
        offset_ += bytes;
        return memory;
    }

    // Chunks are kept for the next round; large blocks go back.
    void Reset()
    {
        large_.clear();
        chunk_ = 0;
        offset_ = 0;
        used_ = 0;
    }

    std::size_t Used() const { return used_; }

private:
    static constexpr std::size_t ChunkBytes = std::size_t { 64 } * 1024;

    void NextChunk()
    {
        if (chunk_ < chunks_.size())
            ++chunk_;
        if (chunk_ == chunks_.size())
            chunks_.emplace_back(new std::byte[ChunkBytes]);
        offset_ = 0;
    }

    std::vector<std::unique_ptr<std::byte[]>> chunks_;
    std::vector<std::unique_ptr<std::byte[]>> large_;
    std::size_t chunk_ = 0;
    std::size_t offset_ = 0;
    std::size_t used_ = 0;
};

} // namespace vornix
