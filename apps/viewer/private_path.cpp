#include "private_path.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>

namespace vornix::viewer {

std::string MakePrivatePath(const std::string& fileName)
{
    std::error_code error;
    std::filesystem::path parent = std::filesystem::temp_directory_path(error);
    if (error)
        parent = "/tmp";
    std::string folder = (parent / "vornix-view-XXXXXX").string();
    if (!::mkdtemp(folder.data()))
        throw std::runtime_error("no folder for the picture can be made in " + parent.string() + " ("
            + std::strerror(errno) + "); name a file with --snapshot");
    return folder + '/' + fileName;
}

} // namespace vornix::viewer
