// A folder for one test's files, gone with it.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace vornix::viewer {

class ScratchFolder {
public:
    ScratchFolder()
    {
        static int count = 0;
        path_ = std::filesystem::temp_directory_path()
            / ("vornix-viewer-" + std::to_string(::getpid()) + "-" + std::to_string(++count));
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::string Path(const std::string& name) const { return (path_ / name).string(); }
    std::string Write(const std::string& name, std::string_view bytes) const
    {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        return Path(name);
    }

    // The names of what is in it.
    std::vector<std::string> Files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.push_back(entry.path().filename().string());
        return names;
    }

private:
    std::filesystem::path path_;
};

// Of a file.
inline std::string Content(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

// As the bytes of a file.
inline std::string Utf16Bytes(std::u16string_view text, bool isBig)
{
    std::string bytes;
    for (const char16_t unit : text) {
        const auto low = static_cast<char>(unit & 0xFF);
        const auto high = static_cast<char>(unit >> 8);
        bytes += isBig ? high : low;
        bytes += isBig ? low : high;
    }
    return bytes;
}

} // namespace vornix::viewer
