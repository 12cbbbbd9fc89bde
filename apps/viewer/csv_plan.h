// What is to become of the records of a text file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace vornix::viewer {

// Rows count from 0 behind the header. Texts are what the fields are to say, without the quotes that this may take.
struct CsvPlan {
    static constexpr std::int64_t Top = -1; // the header, or what is before the first row
    using Fields = std::map<int, std::u16string>; // by column
    using NewRecord = std::vector<std::u16string>; // a text for each column

    std::map<std::int64_t, Fields> changed;
    std::set<std::int64_t> removed;
    // Behind this row, which is not removed.
    std::map<std::int64_t, std::vector<NewRecord>> added;

    std::size_t AddedCount() const
    {
        std::size_t count = 0;
        for (const auto& [row, records] : added)
            count += records.size();
        return count;
    }
};

} // namespace vornix::viewer
