// Finds where in a text file its changes go, and sees whether the new file says what it should.
#pragma once

#include "csv_layout.h"
#include "csv_parser.h"
#include "csv_plan.h"
#include "csv_splicer.h"
#include "fingerprint.h"
#include "table.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace vornix::viewer {

class TextFile;

// The second one quotes all that could be taken for a separator of the file.
enum class CsvQuoting { WhereNeeded, AllSeparators };

// Reads texts as records and hands them on by their row.
class CsvRowParser {
public:
    using RowFunction = std::function<void(std::int64_t row, const CsvParser::Record& record)>;

    CsvRowParser(const CsvLayout& layout, const LoadLimits& limits, RowFunction onRow);

    // The pieces of a whole file, the marker of its first line with them.
    void Feed(std::u16string_view text);
    // Gives the number of rows.
    std::int64_t Finish();

private:
    RowFunction onRow_;
    std::uint64_t markerLength_;
    std::int64_t row_;
    CsvParser parser_;
};

// All fields but those that change, in their order.
class CsvKeptFields {
public:
    void Add(const CsvParser::Record& record, const CsvPlan::Fields* changed);
    std::uint64_t Print() const { return print_.Value(); }

private:
    Fingerprint print_;
};

class CsvFinder {
public:
    CsvFinder(const CsvLayout& layout, const LoadLimits& limits, const CsvPlan& plan, CsvQuoting quoting);

    // Raises SaveError when the file is not the one that was read.
    std::vector<Splice> Find(TextFile& text);
    // Of the old file and of what is kept of it, once found.
    std::int64_t RowCount() const { return rowCount_; }
    std::uint64_t KeptPrint() const { return kept_.Print(); }

private:
    void Parse(TextFile& text);
    void Take(std::int64_t row, const CsvParser::Record& record);
    void ChangeFields(const CsvPlan::Fields& fields, const CsvParser::Record& record);
    void AddTop(const std::vector<CsvParser::Place>& example);
    void AddBehind(std::int64_t row, std::uint64_t place, const std::vector<CsvParser::Place>& example);
    std::u16string Written(const CsvPlan::NewRecord& fields, const std::vector<CsvParser::Place>& example) const;
    std::u16string Written(std::u16string_view text, bool isQuoted, bool isAlone) const;
    std::u16string_view LineBreak() const;

    const CsvLayout& layout_;
    const CsvPlan& plan_;
    const CsvQuoting quoting_;
    CsvRowParser parser_;
    std::vector<Splice> found_;
    CsvKeptFields kept_;
    std::vector<CsvParser::Place> headerPlaces_; // until the rows behind the header are placed
    bool isTopPlaced_ = false;
    std::int64_t rowCount_ = 0;
};

// Reads what is written, to see that it says what it should.
class CsvReadBack {
public:
    CsvReadBack(const CsvLayout& layout, const LoadLimits& limits, const CsvPlan& plan);

    void Feed(std::u16string_view text) { parser_.Feed(text); }
    // Raises SaveError when it does not.
    void Finish(std::int64_t oldRows, std::uint64_t keptPrint);
    // Whether the first row will be taken for names, once finished.
    bool HasHeader() const;

private:
    void Take(std::int64_t row, const CsvParser::Record& record);
    void KeepFirst(const CsvParser::Record& record);
    void TakeOld(const CsvParser::Record& record);
    void PassRemoved();

    const CsvPlan& plan_;
    Table firstRows_; // the names among them
    CsvKeptFields kept_;
    std::int64_t oldRow_ = 0; // the next one of the old file
    std::vector<CsvPlan::NewRecord> awaited_; // records that were added here, the last one first
    std::size_t rightChanges_ = 0;
    bool isRight_ = true;
    CsvRowParser parser_;
};

} // namespace vornix::viewer
