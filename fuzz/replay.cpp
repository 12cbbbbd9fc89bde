// Feeds files to a target without a fuzzer: replay FILE-OR-FOLDER...
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

int fed = 0;

void Feed(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes { std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>() };
    std::printf("%s\n", path.filename().c_str());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++fed;
}

} // namespace

int main(int argc, char** argv)
{
    for (int index = 1; index < argc; ++index) {
        if (!std::filesystem::is_directory(argv[index])) {
            Feed(argv[index]);
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(argv[index]))
            Feed(entry.path());
    }
    std::printf("%d inputs\n", fed);
    // A folder without seeds tests nothing.
    return fed > 0 ? 0 : 1;
}
