// A date that is being typed.
#pragma once

#include "document.h"
#include "vornix/vornix.h"

#include <string>

namespace vornix::viewer {

// The grid writes each key into the cell; the document gets nothing but whole dates, or none. While it is unfinished, the
// document has what the cell had before.
class DateEntry {
public:
    // Both must outlive this.
    DateEntry(Vornix& grid, Document& document)
        : grid_(grid)
        , document_(document)
    {
    }

    // Before the editor of a date's cell opens, which shows this row of the document. The cell gets a form if what it holds
    // fits. The row of the grid must not move until the end.
    void Begin(i16 Row, i16 Col, int row);
    bool IsOf(i16 Row, i16 Col) const { return isOpen_ && Row == shownRow_ && Col == col_; }
    // When the text in the editor has changed.
    void Take();
    // As the form shows it; empty where the document has what is shown.
    const std::u16string& Unfinished() const { return unfinished_; }
    // What was typed up to now has been saved.
    void Saved();
    // When the editor has closed: the cell reads as the document has it. Does nothing when that was done.
    void End();

private:
    std::u16string ShownText();

    Vornix& grid_;
    Document& document_;
    bool isOpen_ = false;
    i16 shownRow_ = 0;
    i16 col_ = 0;
    int row_ = 0; // of the document
    std::u16string before_;
    std::u16string unfinished_;
};

} // namespace vornix::viewer
