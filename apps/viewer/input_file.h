// A regular file open for reading.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace vornix::viewer {

// Every member raises LoadError.
class InputFile {
public:
    // Only a regular file with something in it: a folder, a pipe, a device or an empty file is an error, and opening
    // never waits.
    explicit InputFile(const std::string& path);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    std::uint64_t Size() const { return size_; }
    // Fills the buffer from the current place on; less than its size only at the end of the file.
    std::size_t Read(std::span<char> buffer);
    void Rewind();

private:
    int descriptor_ = -1;
    std::uint64_t size_ = 0;
};

} // namespace vornix::viewer
