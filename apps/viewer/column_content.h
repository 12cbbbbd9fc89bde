// What the texts of one column have in common.
#pragma once

#include "cell_content.h"
#include "table.h"

namespace vornix::viewer {

class ColumnContent {
public:
    // Blank texts say nothing, neither do NA, N/A and NULL, except that a column with one of these is no Boolean.
    void Add(std::u16string_view text);

    // Text as long as nothing was added. Single letters are truth values only where both of them occur.
    ColumnKind Kind() const;
    // The kinds that every text fits.
    Content Common() const { return count_ > 0 ? common_ : 0; }
    // True when the text would change nothing about the kind.
    bool Fits(std::u16string_view text) const;

private:
    bool HasTruthValues() const;

    Content common_ = ~Content(0);
    std::uint64_t count_ = 0;
    bool hasPlaceholder_ = false;
    bool hasTrue_ = false;
    bool hasFalse_ = false;
};

// Finds the kind of each column from its texts, and writes truth values as check boxes have them.
void SetKindsByContent(Table& table);

// Writes "-1" or "0" for every text of a Boolean column, and notes how the first ones were written. A text that is no
// truth value stays.
void WriteTruthValues(Table& table, int column);

} // namespace vornix::viewer
