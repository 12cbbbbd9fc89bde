#include "row_collector.h"

#include "column_content.h"
#include "csv_format.h"
#include "notices.h"
#include "unicode.h"

#include <algorithm>

namespace vornix::viewer {

void RowCollector::Add(const CsvParser::Record& record)
{
    ++rowCount_;
    FieldCount& count = fieldCounts_[record.fields.size()];
    if (++count.rows == 1)
        count.firstLine = record.line;
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
    JudgeUnevenRows();
    NameColumns(false, fieldCounts_.rbegin()->first);
    if (HasHeader(table_))
        TakeHeader();
    while (table_.RowCount() > limits_.maxRows)
        table_.DropLastRow();
    table_.SetTotalRows(rowCount_);
    AddMissingRowsNotice(table_);
    SetKindsByContent(table_);
    return std::move(table_);
}

std::size_t RowCollector::UsualFieldCount() const
{
    const auto usual = std::max_element(fieldCounts_.begin(), fieldCounts_.end(),
        [](const auto& a, const auto& b) { return a.second.rows < b.second.rows; });
    return usual->first;
}

void RowCollector::JudgeUnevenRows()
{
    if (fieldCounts_.size() == 1)
        return;
    const std::size_t usual = UsualFieldCount();
    const std::uint64_t unevenRows = rowCount_ - fieldCounts_[usual].rows;
    const FieldCount* first = nullptr;
    std::size_t fields = 0;
    for (const auto& [count, rows] : fieldCounts_) {
        if (count == usual || (first && first->firstLine < rows.firstLine))
            continue;
        first = &rows;
        fields = count;
    }
    const std::string place = "line " + std::to_string(first->firstLine);
    if (unevenRows * 2 > rowCount_)
        throw LoadError(place + ": the rows are too uneven for a table: this one has " + Counted(fields, "field")
            + ", and fewer than half of all agree on any number");
    table_.AddNotice(Counted(unevenRows, "row") + (unevenRows == 1 ? " does" : " do") + " not have "
        + Counted(usual, "field") + " like the others (first " + place + " with " + std::to_string(fields)
        + "); what is missing is shown empty");
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
