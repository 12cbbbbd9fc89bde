#include "changes.h"

namespace vornix::viewer {

Changes::Changes(const Edits& edits)
    : edits_(edits)
    , changed_(edits.Rows())
{
}

Changes::Changes(const Edits& edits, const Records& records)
    : edits_(edits)
    , records_(&records)
    , removed_(records.Removed())
    , added_(records.Added())
{
    for (const auto& [record, cells] : edits.Rows()) {
        if (records.IsThere(record) && !records.IsNew(record))
            changed_.emplace(record, cells);
    }
}

const Edits::RowEdits& Changes::CellsOf(const Records::Addition& addition) const
{
    static const Edits::RowEdits none;
    const auto found = edits_.Rows().find(addition.record);
    return found == edits_.Rows().end() ? none : found->second;
}

std::string Changes::NameOf(int record) const
{
    return "row " + (records_ ? records_->NameOf(record) : std::to_string(record + 1));
}

} // namespace vornix::viewer
