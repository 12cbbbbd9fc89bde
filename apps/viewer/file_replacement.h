// A new file that takes an old one's place at once and whole.
#pragma once

#include <string>
#include <string_view>

struct stat;

namespace vornix::viewer {

// Written under another name in the same folder, and renamed when it is complete and on the disk: whatever happens
// meanwhile, the name leads to the old file or to the new one. Symbolic links to the old file stay; the new one has its
// permissions, and its owner and group as far as the user may give them. What is killed in between leaves a file
// .vornix-view.XXXXXX behind. Every member raises SaveError.
class FileReplacement {
public:
    explicit FileReplacement(const std::string& path);
    // Without Commit() the old file stays as it is and nothing is left of the new one.
    ~FileReplacement() = default;
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    void Write(std::string_view bytes);
    void Commit();

private:
    // The new file under its first name, as long as it has one.
    struct Temporary {
        ~Temporary();

        std::string path;
        int descriptor = -1;
    };

    void TakeOver(const struct stat& old);
    void SyncFolder() const;

    std::string target_; // what the path leads to
    Temporary temporary_;
};

// Why the file could not be replaced, in one line; empty when nothing is known to be in the way.
std::string WhyNotReplaceable(const std::string& path);

} // namespace vornix::viewer
