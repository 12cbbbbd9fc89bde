#include "date_entry.h"

#include "typed_date.h"

#include <utility>

namespace vornix::viewer {

void DateEntry::Begin(i16 Row, i16 Col, int row)
{
    End();
    before_ = document_.Text(row, Col);
    isOpen_ = before_.empty() || IsWholeDate(before_);
    shownRow_ = Row;
    row_ = row;
    col_ = Col;
    grid_.SetColMask(Col, isOpen_ ? DateMask : std::u16string_view());
    if (!isOpen_)
        return;
    // Behind the form nothing can be typed.
    grid_.SetSelStart(0);
    grid_.SetSelLength(0);
}

// The cell's text may still have digits that the form shows no more, where one was typed over several.
std::u16string DateEntry::ShownText()
{
    if (!grid_.IsEditMode())
        return grid_.Text(shownRow_, col_);
    const i32 start = grid_.SelStart();
    const i32 length = grid_.SelLength();
    grid_.SetSelStart(0);
    grid_.SetSelLength(static_cast<i32>(DateMask.size()));
    std::u16string shown = grid_.SelText();
    grid_.SetSelStart(start);
    grid_.SetSelLength(length);
    return shown;
}

void DateEntry::Take()
{
    const std::u16string shown = ShownText();
    const bool isTaken = IsWholeDate(shown) || IsBlankDate(shown);
    unfinished_ = isTaken ? std::u16string() : shown;
    if (!isTaken)
        document_.Change(row_, col_, before_);
    else
        document_.Change(row_, col_, IsBlankDate(shown) ? std::u16string() : shown);
}

void DateEntry::Saved()
{
    if (isOpen_)
        before_ = document_.Text(row_, col_);
}

void DateEntry::End()
{
    if (!std::exchange(isOpen_, false))
        return;
    unfinished_.clear();
    grid_.SetText(shownRow_, col_, document_.Text(row_, col_));
}

} // namespace vornix::viewer
