// A table that can be changed and saved.
#pragma once

#include "edits.h"
#include "open_source.h"
#include "saver.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

// Rows, columns and texts as the table has them.
class Document {
public:
    explicit Document(ChangeableSource source);

    // As it was saved last.
    const Table& Saved() const { return *source_.table; }
    std::optional<std::string> WhyReadOnly() const { return whyReadOnly_; }
    bool CanChange(int row, int column) const;
    // Of the rows elsewhere that a cell of the column may refer to, as ReadForeignKeys gives them; null where it holds
    // anything.
    const std::vector<std::u16string>* KeysFor(int column) const;

    // An editor writes all line breaks as CR LF: they become those of the text that was saved where it still says the same,
    // its first one elsewhere, or that of the source if it has none. Throws
    // std::out_of_range when there is no such cell, std::logic_error when it cannot be changed.
    void Change(int row, int column, std::u16string_view text);
    std::u16string_view Text(int row, int column) const { return edits_.Text(row, column); }
    bool IsChanged() const { return !edits_.IsEmpty(); }
    std::size_t ChangeCount() const { return edits_.Count(); }

    // Saves all changes; nothing happens without one. Gives the cells that the source has given another text than they
    // had here. Raises SaveError; the changes are all still there then. After any other exception IsChanged() tells whether
    // they were saved: if so, they only could not be taken over.
    std::vector<CellText> Save();

private:
    void TakeOver(const std::vector<CellText>& others);

    ChangeableSource source_;
    std::optional<std::string> whyReadOnly_; // as it was when the source was opened
    Edits edits_;
};

} // namespace vornix::viewer
