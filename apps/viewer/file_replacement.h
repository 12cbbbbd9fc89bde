// A new file that takes an old one's place at once and whole.
#pragma once

#include "input_file.h"

#include <string>
#include <string_view>
#include <vector>

struct stat;

namespace vornix::viewer {

// Written under another name in the same folder, and renamed when it is complete and on the disk: whatever happens
// meanwhile, the name leads to the old file or to the new one. Symbolic links to the old file stay; other hard links to it
// keep leading to the old one. The new one has its permissions, access list and extended attributes, and its owner and
// group as far as the user may give them. What is killed in between leaves a file .vornix-view.XXXXXX behind. Every
// member raises SaveError.
class FileReplacement {
public:
    explicit FileReplacement(const std::string& path);
    // Without Commit() the old file stays as it is and nothing is left of the new one.
    ~FileReplacement() = default;
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    void Write(std::string_view bytes);
    // What the new file is called before it takes its place.
    const std::string& TemporaryPath() const { return temporary_.path; }
    // The old file must be the one that was read, as it was then. Only errors before the new one is there are raised.
    void Commit(const FileIdentity& read);

private:
    // The new file under its first name, as long as it has one.
    struct Temporary {
        ~Temporary();

        std::string path;
        int descriptor = -1;
    };

    void TakeOver(const struct stat& old);
    void TakeOverAttributes() const;
    void RequireSame(const FileIdentity& read) const;
    void SyncFolder() const;

    std::string target_; // what the path leads to
    std::string folder_; // where that is
    Temporary temporary_;
};

inline constexpr const char* ChangedMeanwhile = "another program has changed the file since it was read";

// Why the file could not be replaced, in one line; empty when nothing is known to be in the way.
std::string WhyNotReplaceable(const std::string& path);

} // namespace vornix::viewer
