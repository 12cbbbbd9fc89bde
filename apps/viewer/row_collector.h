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

    // The table with header, kinds and notices. Raises LoadError for a file without rows, and for rows that do
    // not all have the same number of fields.
    Table Finish();
    // Whether the first row was the header, once finished.
    bool HasHeader() const { return hasHeader_; }

private:
    bool HasRoom(std::size_t fields) const;
    void RequireEvenRows() const;
    void NameColumns(bool hasHeader, std::size_t columns);
    void TakeHeader();

    LoadLimits limits_;
    Table table_;
    bool isFull_ = false;
    bool hasHeader_ = false;
    std::uint64_t rowCount_ = 0;
    // The line where each number of fields was first met.
    std::map<std::size_t, std::uint64_t> firstLineOfCount_;
};

} // namespace vornix::viewer
