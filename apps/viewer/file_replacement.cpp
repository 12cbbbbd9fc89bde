#include "file_replacement.h"

#include "saver.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/xattr.h>
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

constexpr const char* AccessList = "system.posix_acl_access";

// Empty where the file system knows none.
std::vector<std::string> AttributesOf(const std::string& path)
{
    const ssize_t size = ::listxattr(path.c_str(), nullptr, 0);
    std::string list(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
    const ssize_t length = size > 0 ? ::listxattr(path.c_str(), list.data(), list.size()) : size;
    if (length < 0 && errno != ENOTSUP)
        throw SaveError(std::string("its extended attributes cannot be read (") + std::strerror(errno) + ")");
    list.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    std::vector<std::string> names;
    for (std::size_t start = 0; start < list.size(); start += names.back().size() + 1)
        names.emplace_back(list.c_str() + start);
    return names;
}

std::string AttributeOf(const std::string& path, const std::string& name)
{
    const ssize_t size = ::getxattr(path.c_str(), name.c_str(), nullptr, 0);
    std::string value(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
    const ssize_t length = size > 0 ? ::getxattr(path.c_str(), name.c_str(), value.data(), value.size()) : size;
    if (length < 0)
        throw SaveError("its extended attribute " + name + " cannot be read (" + std::strerror(errno) + ")");
    value.resize(static_cast<std::size_t>(length));
    return value;
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
    , folder_(FolderOf(target_))
{
    if (const std::string reason = WhyNotReplaced(target_); !reason.empty())
        throw SaveError(reason);
    struct stat old = {};
    if (::stat(target_.c_str(), &old) != 0)
        RaiseSystemError(errno);
    if (!S_ISREG(old.st_mode))
        throw SaveError("it is no regular file any more");

    std::string name = folder_ + "/.vornix-view.XXXXXX";
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
    TakeOverAttributes();
    if (::fchmod(temporary_.descriptor, mode) != 0)
        RaiseSystemError(errno);
}

// Before the mode is set, which an access list has a part of. What the folder gives to new files is taken away again.
void FileReplacement::TakeOverAttributes() const
{
    const std::vector<std::string> names = AttributesOf(target_);
    if (std::find(names.begin(), names.end(), AccessList) == names.end()
        && ::fremovexattr(temporary_.descriptor, AccessList) != 0 && errno != ENODATA && errno != ENOTSUP)
        RaiseSystemError(errno);
    for (const std::string& name : names) {
        const std::string value = AttributeOf(target_, name);
        const bool isKept = ::fsetxattr(temporary_.descriptor, name.c_str(), value.data(), value.size(), 0) == 0;
        // Those are the system's own, and no program's.
        if (!isKept && !name.starts_with("security.") && !name.starts_with("trusted."))
            throw SaveError("the new file cannot get the old one's " + name + " (" + std::strerror(errno) + ")");
    }
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

void FileReplacement::Commit(const FileIdentity& read)
{
    if (::fsync(temporary_.descriptor) != 0)
        RaiseSystemError(errno);
    RequireSame(read);
    if (::rename(temporary_.path.c_str(), target_.c_str()) != 0)
        RaiseSystemError(errno);
    temporary_.path.clear();
    SyncFolder();
}

void FileReplacement::RequireSame(const FileIdentity& read) const
{
    struct stat status = {};
    if (::stat(target_.c_str(), &status) != 0 || FileIdentity::Of(status) != read)
        throw SaveError(ChangedMeanwhile);
}

// The new name is there already; should the disk not take it now, the old one comes back at the worst.
void FileReplacement::SyncFolder() const
{
    const int folder = ::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

} // namespace vornix::viewer
