// Files of separated values: a table or one clear line, and the same whatever pieces the text comes in.
#include "csv_parser.h"
#include "csv_reader.h"
#include "fuzz_input.h"
#include "input_file.h"

#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>

using namespace vornix;
using namespace vornix::viewer;

namespace {

// A file in memory, reached by a path.
class MemoryFile {
public:
    explicit MemoryFile(std::span<const std::uint8_t> bytes)
        : descriptor_(::memfd_create("table", MFD_CLOEXEC))
    {
        fuzz::Require(descriptor_ >= 0, "a file in memory can be made");
        const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
        fuzz::Require(written == static_cast<ssize_t>(bytes.size()), "a file in memory can be written");
    }
    ~MemoryFile() { ::close(descriptor_); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::string Path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
    int descriptor_;
};

bool IsOneLine(const std::string& message)
{
    return !message.empty() && message.find('\n') == std::string::npos;
}

void CheckTable(const Table& table, const LoadLimits& limits)
{
    fuzz::Require(table.RowCount() <= limits.maxRows && table.ColumnCount() <= limits.maxColumns, "limits hold");
    fuzz::Require(table.TotalRows() >= static_cast<std::uint64_t>(table.RowCount()), "no row is made up");
    for (int row = 0; row < table.RowCount(); ++row) {
        for (int column = 0; column < table.ColumnCount(); ++column)
            fuzz::Require(table.Text(row, column).size() <= limits.maxFieldLength, "fields are as long as allowed");
    }
    for (const std::string& notice : table.Notices())
        fuzz::Require(IsOneLine(notice), "a notice is one line");
}

void ReadFile(std::span<const std::uint8_t> bytes, const LoadLimits& limits)
{
    const MemoryFile memory(bytes);
    try {
        InputFile file(memory.Path());
        CheckTable(ReadCsv(file, limits, {}), limits);
    } catch (const LoadError& error) {
        fuzz::Require(IsOneLine(error.what()), "an error is one line");
    }
}

// What a parser makes of a text, as one text with a mark for an error at its end. Of two faults in one field, the pieces
// decide which is found first.
std::u16string Parsed(std::u16string_view text, char16_t separator, std::size_t piece, const LoadLimits& limits)
{
    std::u16string records;
    CsvParser parser(separator, limits, [&](const CsvParser::Record& record) {
        for (const Field& field : record.fields) {
            records += field.isNull ? u'0' : u'1';
            records += field.text;
            records += u'\x1';
        }
        records += static_cast<char16_t>(record.line);
    });
    try {
        while (!text.empty()) {
            parser.Feed(text.substr(0, piece));
            text.remove_prefix(std::min(piece, text.size()));
        }
        parser.Finish();
    } catch (const LoadError&) {
        records += u'!';
    }
    return records;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzInput input(data, size);
    LoadLimits limits;
    if (input.Bool()) {
        limits.maxRows = 5;
        limits.maxColumns = 4;
        limits.maxFieldLength = 20;
        limits.maxCells = 12;
        limits.maxTextLength = 60;
    }
    const char16_t separator = u",;\t|"[input.Byte() % 4];
    const std::size_t piece = static_cast<std::size_t>(input.Between(1, 7));
    const std::span<const std::uint8_t> bytes = input.RestBytes();
    ReadFile(bytes, limits);
    const std::u16string text(bytes.begin(), bytes.end());
    fuzz::Require(Parsed(text, separator, piece, limits) == Parsed(text, separator, text.size() + 1, limits),
        "pieces make no difference");
    return 0;
}
