// A regular file open for reading.
#pragma once

#include <cstdint>
#include <span>
#include <string>

struct stat;

namespace vornix::viewer {

// Tells whether a name still leads to the same file, and whether that was written to since.
struct FileIdentity {
    static FileIdentity Of(const struct stat& status);

    bool operator==(const FileIdentity&) const = default;

    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::uint64_t size = 0;
    std::int64_t changed[4] = {}; // of the content and of the rest: seconds, nanoseconds
};

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
    // As it is now.
    FileIdentity Identity() const;
    // Fills the buffer from the current place on; less than its size only at the end of the file.
    std::size_t Read(std::span<char> buffer);
    void Rewind();

private:
    int descriptor_ = -1;
    std::uint64_t size_ = 0;
};

} // namespace vornix::viewer
