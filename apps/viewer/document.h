// A table that can be changed and saved.
#pragma once

#include "edits.h"
#include "open_source.h"
#include "records.h"
#include "saver.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

// Rows, columns and texts as the table has them; a row is a record of it, and some of them are not there any more.
class Document {
public:
    explicit Document(ChangeableSource source);

    // As it was saved last, with a row of nulls for each one that was added since, and the rows that were removed.
    const Table& Saved() const { return *source_.table; }
    // The rows that are there, as they follow one another in the source.
    std::vector<int> Rows() const { return records_.InOrder(); }
    int RowCount() const { return records_.Count(); }
    // Of the source, with those that are not held here.
    std::uint64_t TotalRows() const { return static_cast<std::uint64_t>(RowCount()) + rowsNotHeld_; }
    bool IsThere(int row) const { return records_.IsThere(row); }
    bool IsNew(int row) const { return records_.IsNew(row); }
    // As a person counts: "12", or "+2" for a new one.
    std::string NameOf(int row) const { return records_.NameOf(row); }
    std::optional<std::string> WhyReadOnly() const { return whyReadOnly_; }
    bool CanChange(int row, int column) const;
    // Of the rows that a cell of the column may refer to, as ReadForeignKeys gave them last, when the source was opened or
    // saved; null where it holds anything.
    const std::vector<std::u16string>* KeysFor(int column) const;

    // An editor writes all line breaks as CR LF: they become those of the text that was saved where it still says the same,
    // its first one elsewhere, or that of the source if it has none. Throws
    // std::out_of_range when there is no such cell, std::logic_error when it cannot be changed.
    void Change(int row, int column, std::u16string_view text);
    std::u16string_view Text(int row, int column) const { return edits_.Text(row, column); }

    // Why so many rows more cannot be, in one line; nothing when they can.
    std::optional<std::string> WhyNoMoreRows(int count = 1) const;
    // Beside one that is there, or as the first of all beside -1; gives its number. Throws std::logic_error when none can
    // be added.
    int AddRow(int neighbour, Records::Side side);
    bool CanRemove(int row) const;
    // Throws std::logic_error when it cannot be removed.
    void RemoveRow(int row);
    // With its texts, where there is room for it. False when the removal has been saved.
    bool RestoreRow(int row) { return records_.Restore(row); }

    bool IsChanged() const { return ChangeCount() > 0; }
    // Of cells; a row that was added or removed is one change.
    std::size_t ChangeCount() const;

    // Saves all changes; nothing happens without one. Gives the cells that the source has given another text than they
    // had here; rows that the source has removed are not there any more. Raises SaveError; the changes are all still there then. After any other exception IsChanged() tells whether
    // they were saved: if so, they only could not be taken over.
    std::vector<CellText> Save();
    // What the person should know about the last time, in one line; mostly nothing.
    const std::string& NoticeOfSave() const { return notice_; }

private:
    void TakeOver(SaveOutcome& outcome);
    void NoteSaved();

    ChangeableSource source_;
    std::optional<std::string> whyReadOnly_; // as it was when the source was opened
    Edits edits_;
    Records records_;
    std::uint64_t rowsNotHeld_;
    std::string notice_;
};

} // namespace vornix::viewer
