// What is to be saved of a table: cells, and rows.
#pragma once

#include "edits.h"
#include "records.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

class Changes {
public:
    using Cells = std::map<int, Edits::RowEdits>; // by record

    // Of cells alone: every row is the record of its number.
    Changes(const Edits& edits); // NOLINT: edits are changes
    // Edits of records that were removed are none. Both must outlive this.
    Changes(const Edits& edits, const Records& records);

    // Of records that the source has and keeps.
    const Cells& Changed() const { return changed_; }
    const std::vector<int>& Removed() const { return removed_; }
    const std::vector<Records::Addition>& Added() const { return added_; }
    // The texts of an added record that were given.
    const Edits::RowEdits& CellsOf(const Records::Addition& addition) const;

    // What the cell says then.
    std::u16string_view Text(int record, int column) const { return edits_.Text(record, column); }
    // As messages call the row.
    std::string NameOf(int record) const;

private:
    const Edits& edits_;
    const Records* records_ = nullptr;
    Cells changed_;
    std::vector<int> removed_;
    std::vector<Records::Addition> added_;
};

} // namespace vornix::viewer
