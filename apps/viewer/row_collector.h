// Makes a table of the records of a text file.
#pragma once

#include "csv_parser.h"
#include "loading.h"
#include "table.h"

#include <map>

namespace vornix::viewer {

class RowCollector {
public:
    explicit RowCollector(const LoadLimits& limits)
        : limits_(limits)
    {
    }

    void Add(const CsvParser::Record& record);
    std::uint64_t RowCount() const { return rowCount_; }

    // The table with header, kinds and notices. Raises LoadError for a file without rows, or where the rows have
    // next to nothing in common.
    Table Finish();

private:
    struct FieldCount {
        std::uint64_t rows = 0;
        std::uint64_t firstLine = 0;
    };

    bool HasRoom(std::size_t fields) const;
    // The number of fields that most rows have; the smallest where two are equally frequent.
    std::size_t UsualFieldCount() const;
    void JudgeUnevenRows();
    void NameColumns(bool hasHeader, std::size_t columns);
    void TakeHeader();

    LoadLimits limits_;
    Table table_;
    bool isFull_ = false;
    std::uint64_t rowCount_ = 0;
    std::map<std::size_t, FieldCount> fieldCounts_;
};

} // namespace vornix::viewer
