#include "fingerprint.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace vornix::viewer;

namespace {

std::uint64_t PrintOf(std::string_view bytes, std::size_t piece)
{
    Fingerprint print;
    for (std::size_t start = 0; start < bytes.size(); start += piece)
        print.Add(bytes.substr(start, piece));
    return print.Value();
}

} // namespace

TEST(Fingerprint, IsTheSameInAnyPieces)
{
    const std::string bytes = "The quick brown fox jumps over the lazy dog.";
    for (std::size_t piece = 1; piece < bytes.size(); ++piece)
        EXPECT_EQ(PrintOf(bytes, piece), PrintOf(bytes, bytes.size())) << piece;
}

TEST(Fingerprint, ChangesWithEveryBitEveryPlaceAndTheLength)
{
    std::set<std::uint64_t> prints;
    std::string bytes = "0123456789abcdefghij";
    prints.insert(PrintOf(bytes, 7));
    for (char& byte : bytes) {
        for (int bit = 0; bit < 8; ++bit) {
            byte = static_cast<char>(byte ^ (1 << bit));
            EXPECT_TRUE(prints.insert(PrintOf(bytes, 7)).second);
            byte = static_cast<char>(byte ^ (1 << bit));
        }
    }
    for (std::size_t zeros = 0; zeros < 20; ++zeros)
        EXPECT_TRUE(prints.insert(PrintOf(std::string(zeros, '\0'), 7)).second);
}
