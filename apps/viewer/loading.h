// What every reader shares: limits, progress, and the error that ends loading.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>

namespace vornix::viewer {

// A grid holds at most 32767 rows and columns, and some of them are no data.
inline constexpr int MaxGridLines = 32767;
inline constexpr int HeaderRows = 2; // the caption and the column names
inline constexpr int HeaderColumns = 1; // the row numbers

struct LoadLimits {
    int maxRows = MaxGridLines - HeaderRows;
    int maxColumns = MaxGridLines - HeaderColumns;
    // UTF-16 units of one field; a longer one ends loading.
    std::size_t maxFieldLength = 1 << 20;
    // Rows beyond either of these are left out, like those beyond maxRows.
    std::size_t maxCells = 20'000'000;
    std::size_t maxTextLength = std::size_t(256) << 20;
};

struct Progress {
    std::uint64_t rows = 0; // read so far
    std::uint64_t bytes = 0; // read so far
    std::uint64_t totalBytes = 0; // 0 when not known
};

// Called often; does its own timing.
using ProgressFunction = std::function<void(const Progress&)>;

// what() is one line of UTF-8 for the person at the screen, without the file's name.
class LoadError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace vornix::viewer
