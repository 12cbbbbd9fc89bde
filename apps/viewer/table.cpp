#include "table.h"

#include <stdexcept>

namespace vornix::viewer {

Alignment AlignmentOf(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Text:
        return Alignment::Left;
    case ColumnKind::Boolean:
        return Alignment::Center;
    default:
        return Alignment::Right;
    }
}

const Table::CellText* Table::Find(int row, int column) const
{
    const auto line = static_cast<std::size_t>(row + firstRow_);
    if (row < 0 || line >= rowStarts_.size() || column < 0)
        throw std::out_of_range("no such cell in the table");
    const std::size_t end = line + 1 < rowStarts_.size() ? rowStarts_[line + 1] : cells_.size();
    const std::size_t cell = rowStarts_[line] + static_cast<std::size_t>(column);
    return cell < end ? &cells_[cell] : nullptr;
}

bool Table::IsNull(int row, int column) const
{
    const CellText* cell = Find(row, column);
    return !cell || cell->length == NullLength;
}

std::u16string_view Table::Text(int row, int column) const
{
    const CellText* cell = Find(row, column);
    if (!cell || cell->length == NullLength)
        return {};
    return std::u16string_view(texts_).substr(cell->start, cell->length);
}

void Table::AppendRow(std::span<const Field> fields)
{
    rowStarts_.push_back(cells_.size());
    for (const Field& field : fields)
        cells_.push_back(field.isNull ? CellText { 0, NullLength } : Store(field.text));
}

void Table::ReplaceText(int row, int column, std::u16string_view text)
{
    const CellText* cell = Find(row, column);
    if (!cell)
        throw std::out_of_range("no such cell in the table");
    cells_[static_cast<std::size_t>(cell - cells_.data())] = Store(text);
}

void Table::DropLastRow()
{
    if (RowCount() == 0)
        return;
    cells_.resize(rowStarts_.back());
    rowStarts_.pop_back();
}

Table::CellText Table::Store(std::u16string_view text)
{
    if (texts_.size() + text.size() >= NullLength)
        throw std::length_error("the texts of the table are too long");
    const auto start = static_cast<std::uint32_t>(texts_.size());
    texts_.append(text);
    return { start, static_cast<std::uint32_t>(text.size()) };
}

} // namespace vornix::viewer
