#include "document.h"

#include "line_breaks.h"
#include "notices.h"

#include <stdexcept>

namespace vornix::viewer {

namespace {

std::uint64_t RowsNotHeld(const Table& table)
{
    const auto held = static_cast<std::uint64_t>(table.RowCount());
    return table.TotalRows() > held ? table.TotalRows() - held : 0;
}

} // namespace

Document::Document(ChangeableSource source)
    : source_(std::move(source))
    , whyReadOnly_(source_.saver->WhyReadOnly())
    , edits_(*source_.table)
    , records_(source_.table->RowCount())
    , rowsNotHeld_(RowsNotHeld(*source_.table))
{
}

bool Document::CanChange(int row, int column) const
{
    if (whyReadOnly_)
        return false;
    return records_.IsNew(row) ? source_.saver->CanFill(column) : source_.saver->CanChange(row, column);
}

const std::vector<std::u16string>* Document::KeysFor(int column) const
{
    const auto keys = source_.keys.find(column);
    return keys == source_.keys.end() ? nullptr : &keys->second;
}

void Document::Change(int row, int column, std::u16string_view text)
{
    const std::u16string_view old = Saved().Text(row, column);
    if (!CanChange(row, column))
        throw std::logic_error("this cell cannot be changed");
    edits_.Set(row, column, WithLineBreaksOf(old, text, source_.saver->LineBreak()));
}

std::optional<std::string> Document::WhyNoMoreRows(int count) const
{
    if (whyReadOnly_)
        return whyReadOnly_;
    if (RowCount() + count > LoadLimits().maxRows)
        return "the grid holds no more than " + Counted(static_cast<std::uint64_t>(LoadLimits().maxRows), "row");
    return {};
}

int Document::AddRow(int neighbour, Records::Side side)
{
    if (const auto reason = WhyNoMoreRows())
        throw std::logic_error(*reason);
    const int row = source_.table->RowCount();
    records_.Add(row, neighbour, side);
    const Field null { {}, true };
    source_.table->AppendRow(std::vector<Field>(source_.table->Columns().size(), null));
    return row;
}

bool Document::CanRemove(int row) const
{
    return !whyReadOnly_ && (records_.IsNew(row) || source_.saver->CanRemove(row));
}

void Document::RemoveRow(int row)
{
    if (!CanRemove(row))
        throw std::logic_error("this row cannot be removed");
    records_.Remove(row);
}

std::size_t Document::ChangeCount() const
{
    std::size_t count = records_.Removed().size() + records_.Added().size();
    for (const auto& [row, cells] : edits_.Rows())
        count += records_.IsThere(row) && !records_.IsNew(row) ? cells.size() : 0;
    return count;
}

std::vector<CellText> Document::Save()
{
    notice_.clear();
    if (!IsChanged())
        return {};
    SaveOutcome outcome = source_.saver->Save(Changes(edits_, records_));
    try {
        TakeOver(outcome);
    } catch (...) {
        NoteSaved(); // saved they are
        throw;
    }
    NoteSaved();
    notice_ = std::move(outcome.notice);
    return std::move(outcome.others);
}

void Document::TakeOver(SaveOutcome& outcome)
{
    for (const auto& [row, cells] : edits_.Rows()) {
        for (const auto& [column, text] : cells)
            source_.table->ReplaceText(row, column, text);
    }
    for (const CellText& cell : outcome.others)
        source_.table->ReplaceText(cell.row, cell.column, cell.text);
    for (const int row : outcome.removed)
        records_.Remove(row);
    source_.keys = std::move(outcome.keys);
}

void Document::NoteSaved()
{
    edits_.Clear();
    records_.NoteSaved();
}

} // namespace vornix::viewer
