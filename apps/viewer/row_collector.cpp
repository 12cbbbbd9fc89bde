#include "row_collector.h"

#include "column_content.h"
#include "csv_format.h"
#include "notices.h"
#include "unicode.h"

#include <iterator>
#include <map>

namespace vornix::viewer {

void RowCollector::Add(const CsvParser::Record& record)
{
    ++rowCount_;
    firstLineOfCount_.try_emplace(record.fields.size(), record.line);
    isFull_ = isFull_ || !HasRoom(record.fields.size());
    if (!isFull_)
        table_.AppendRow(record.fields);
}

bool RowCollector::HasRoom(std::size_t fields) const
{
    // One more than fits: the first may turn out to be the header.
    return table_.RowCount() <= limits_.maxRows && table_.CellCount() + fields <= limits_.maxCells
        && table_.TextLength() <= limits_.maxTextLength;
}

Table RowCollector::Finish()
{
    if (rowCount_ == 0)
        throw LoadError("there is nothing in it but blank lines");
    RequireEvenRows();
    NameColumns(false, firstLineOfCount_.rbegin()->first);
    hasHeader_ = viewer::HasHeader(table_);
    if (hasHeader_)
        TakeHeader();
    while (table_.RowCount() > limits_.maxRows)
        table_.DropLastRow();
    table_.SetTotalRows(rowCount_);
    AddMissingRowsNotice(table_);
    SetKindsByContent(table_);
    return std::move(table_);
}

// A row with a field too few or too many has lost its place: guessing which column is missing would show wrong data.
void RowCollector::RequireEvenRows() const
{
    if (firstLineOfCount_.size() == 1)
        return;
    std::map<std::uint64_t, std::size_t> fieldsByFirstLine;
    for (const auto& [fields, line] : firstLineOfCount_)
        fieldsByFirstLine.emplace(line, fields);
    const auto first = fieldsByFirstLine.begin();
    const auto other = std::next(first);
    throw LoadError("line " + std::to_string(other->first) + ": the rows are ragged: this one has "
        + Counted(other->second, "field") + ", line " + std::to_string(first->first) + " has "
        + std::to_string(first->second));
}

void RowCollector::NameColumns(bool hasHeader, std::size_t columns)
{
    std::vector<Column>& all = table_.Columns();
    all.resize(columns);
    for (std::size_t column = 0; column < columns; ++column) {
        const std::u16string_view name = hasHeader ? table_.Text(0, static_cast<int>(column)) : std::u16string_view();
        all[column].name = name.empty() ? u"Column " + ToUtf16(std::to_string(column + 1)) : std::u16string(name);
    }
}

void RowCollector::TakeHeader()
{
    NameColumns(true, table_.Columns().size());
    table_.DropFirstRow();
    --rowCount_;
}

} // namespace vornix::viewer
