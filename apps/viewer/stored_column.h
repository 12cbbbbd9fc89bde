// What a database says about one column, and what its values turn out to be.
#pragma once

#include "column_content.h"
#include "table.h"

#include "vornix/sqlite/statement.h"

namespace vornix::viewer {

// The declared type holds as long as every value fits it; otherwise the values decide: numbers that were stored as
// numbers, texts that are dates as ISO 8601 writes them, and plain text for everything else.
class StoredColumn {
public:
    explicit StoredColumn(sqlite::DeclaredKind declared)
        : declared_(declared)
    {
    }

    void Add(sqlite::ValueType type, std::u16string_view text);
    ColumnKind Kind() const;
    // Sets the table's kind and rewrites the texts that this kind shows in its own way; numbers stay as they are when
    // they are `plain`.
    void Settle(Table& table, int column, bool plain) const;

private:
    void NoteNumber(std::u16string_view text);
    ColumnKind NumberKind() const;
    ColumnKind TextKind() const;

    static constexpr int MaxDecimals = 4; // to which the texts of a column are made equally long

    sqlite::DeclaredKind declared_;
    bool hasTexts_ = false;
    bool hasBlobs_ = false;
    bool hasNumbers_ = false;
    bool hasReals_ = false; // among them
    bool hasPlainDecimals_ = true; // no exponents, no infinity
    bool allTruthValues_ = true;
    int decimals_ = 0; // the most of any number
    ColumnContent content_; // of the texts
};

} // namespace vornix::viewer
