#include "document.h"

#include "line_breaks.h"

#include <stdexcept>

namespace vornix::viewer {

Document::Document(ChangeableSource source)
    : source_(std::move(source))
    , whyReadOnly_(source_.saver->WhyReadOnly())
    , edits_(*source_.table)
{
}

bool Document::CanChange(int row, int column) const
{
    return !whyReadOnly_ && source_.saver->CanChange(row, column);
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

std::vector<CellText> Document::Save()
{
    if (!IsChanged())
        return {};
    std::vector<CellText> others = source_.saver->Save(edits_);
    try {
        TakeOver(others);
    } catch (...) {
        edits_.Clear(); // saved they are
        throw;
    }
    edits_.Clear();
    return others;
}

void Document::TakeOver(const std::vector<CellText>& others)
{
    for (const auto& [row, cells] : edits_.Rows()) {
        for (const auto& [column, text] : cells)
            source_.table->ReplaceText(row, column, text);
    }
    for (const CellText& cell : others)
        source_.table->ReplaceText(cell.row, cell.column, cell.text);
}

} // namespace vornix::viewer
