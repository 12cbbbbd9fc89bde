#include "sample_path.h"

#include "loading.h"

#include <filesystem>

namespace vornix::viewer {

std::string SamplePath()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::filesystem::path installed = (program.parent_path() / VORNIX_SAMPLE_BESIDE_PROGRAM).lexically_normal();
    if (!error && std::filesystem::exists(installed, error))
        return installed.string();
    if (std::filesystem::exists(VORNIX_SAMPLE_IN_SOURCES, error))
        return VORNIX_SAMPLE_IN_SOURCES;
    throw LoadError("the sample database is neither at " + installed.string() + " nor at " VORNIX_SAMPLE_IN_SOURCES);
}

} // namespace vornix::viewer
