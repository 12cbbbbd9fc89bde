#include "file_replacement.h"

#include "saver.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace vornix::viewer {

namespace {

[[noreturn]] void RaiseSystemError(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        throw SaveError(std::string("there is no room for the new file (") + std::strerror(error) + ")");
    default:
        throw SaveError(std::string("the new file cannot be written (") + std::strerror(error) + ")");
    }
}

std::string Resolved(const std::string& path)
{
    char* const resolved = ::realpath(path.c_str(), nullptr);
    if (!resolved)
        throw SaveError(errno == ENOENT ? "the file is gone"
                                        : std::string("the file cannot be found (") + std::strerror(errno) + ")");
    const std::string target = resolved;
    std::free(resolved);
    return target;
}

bool MayWrite(const std::string& path)
{
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

std::string FolderOf(const std::string& path)
{
    return std::filesystem::path(path).parent_path().string();
}

std::string WhyNotReplaced(const std::string& target)
{
    if (!MayWrite(target))
        return "no permission to write the file";
    if (!MayWrite(FolderOf(target)))
        return "no permission to put a new file into its folder";
    return {};
}

} // namespace

std::string WhyNotReplaceable(const std::string& path)
{
    try {
        return WhyNotReplaced(Resolved(path));
    } catch (const SaveError& error) {
        return error.what();
    }
}

FileReplacement::FileReplacement(const std::string& path)
    : target_(Resolved(path))
{
    if (const std::string reason = WhyNotReplaced(target_); !reason.empty())
        throw SaveError(reason);
    struct stat old = {};
    if (::stat(target_.c_str(), &old) != 0)
        RaiseSystemError(errno);
    if (!S_ISREG(old.st_mode))
        throw SaveError("it is no regular file any more");

    std::string name = FolderOf(target_) + "/.vornix-view.XXXXXX";
    temporary_.descriptor = ::mkostemp(name.data(), O_CLOEXEC);
    if (temporary_.descriptor < 0)
        RaiseSystemError(errno);
    temporary_.path = name;
    TakeOver(old);
}

FileReplacement::Temporary::~Temporary()
{
    if (descriptor >= 0)
        ::close(descriptor);
    if (!path.empty())
        ::unlink(path.c_str());
}

// Where the group cannot be kept, its members get no more than everybody.
void FileReplacement::TakeOver(const struct stat& old)
{
    mode_t mode = old.st_mode & 07777;
    const bool keepsAll = ::fchown(temporary_.descriptor, old.st_uid, old.st_gid) == 0;
    const bool keepsGroup = keepsAll || ::fchown(temporary_.descriptor, static_cast<uid_t>(-1), old.st_gid) == 0;
    if (!keepsAll)
        mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    if (!keepsGroup)
        mode = (mode & ~static_cast<mode_t>(S_IRWXG)) | ((mode & S_IRWXO) << 3);
    if (::fchmod(temporary_.descriptor, mode) != 0)
        RaiseSystemError(errno);
}

void FileReplacement::Write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(temporary_.descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            RaiseSystemError(errno);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void FileReplacement::Commit()
{
    if (::fsync(temporary_.descriptor) != 0)
        RaiseSystemError(errno);
    if (::rename(temporary_.path.c_str(), target_.c_str()) != 0)
        RaiseSystemError(errno);
    temporary_.path.clear();
    SyncFolder();
}

// The new name is there already; should the disk not take it now, the old one comes back at the worst.
void FileReplacement::SyncFolder() const
{
    const int folder = ::open(FolderOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

} // namespace vornix::viewer
