#include "input_file.h"

#include "loading.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vornix::viewer {

namespace {

[[noreturn]] void RaiseSystemError(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        throw LoadError("there is no such file");
    case EACCES:
    case EPERM:
        throw LoadError("no permission to read it");
    default:
        throw LoadError(std::string("it cannot be read (") + std::strerror(error) + ")");
    }
}

void CheckIsUsable(const struct stat& status)
{
    if (S_ISDIR(status.st_mode))
        throw LoadError("it is a folder, not a file");
    if (!S_ISREG(status.st_mode))
        throw LoadError("it is a pipe, a socket or a device, not a regular file");
    if (status.st_size == 0)
        throw LoadError("the file is empty");
}

} // namespace

FileIdentity FileIdentity::Of(const struct stat& status)
{
    return { status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
        { status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_ctim.tv_sec, status.st_ctim.tv_nsec } };
}

InputFile::InputFile(const std::string& path)
{
    // Looked at before opening: a socket cannot be opened, and its own error would say little.
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        RaiseSystemError(errno);
    CheckIsUsable(status);
    // Should a pipe have taken the file's place meanwhile, O_NONBLOCK keeps open() from waiting for a writer.
    descriptor_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor_ < 0)
        RaiseSystemError(errno);
    size_ = static_cast<std::uint64_t>(status.st_size);
}

InputFile::~InputFile()
{
    ::close(descriptor_);
}

FileIdentity InputFile::Identity() const
{
    struct stat status = {};
    if (::fstat(descriptor_, &status) != 0)
        RaiseSystemError(errno);
    return FileIdentity::Of(status);
}

std::size_t InputFile::Read(std::span<char> buffer)
{
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        const ssize_t count = ::read(descriptor_, buffer.data() + filled, buffer.size() - filled);
        if (count == 0)
            break;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            RaiseSystemError(errno);
        filled += static_cast<std::size_t>(count);
    }
    return filled;
}

void InputFile::Rewind()
{
    if (::lseek(descriptor_, 0, SEEK_SET) < 0)
        RaiseSystemError(errno);
}

} // namespace vornix::viewer
