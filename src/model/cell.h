// One cell, small: its text, the number of its format, and what few cells have.
#pragma once

#include "model/compact_text.h"
#include "vornix/types.h"

#include <memory>
#include <string>
#include <string_view>

namespace vornix {

// What most cells do not have.
struct CellExtras {
    std::u16string Key;
    PicturePtr Picture;
    i16 RowSpan = 0;
    i16 ColSpan = 0;
    i16 ParentRow = 0; // offset to the parent: 0 or negative
    i16 ParentCol = 0;
    bool ButtonPressed = false;
};

// A value: a copy shares nothing but the picture. Memory that runs out is error 7.
class Cell {
public:
    Cell() = default;
    Cell(const Cell& other);
    Cell(Cell&&) noexcept = default;
    Cell& operator=(const Cell& other);
    Cell& operator=(Cell&&) noexcept = default;
    ~Cell() = default;

    // The text as UTF-16; TextView avoids the copy by expanding into `scratch` where needed.
    std::u16string Text() const { return text_.ToString(); }
    std::u16string_view TextView(std::u16string& scratch) const { return text_.View(scratch); }
    bool HasText() const { return !text_.IsEmpty(); }
    std::size_t TextLength() const { return text_.Length(); }
    bool TextEquals(std::u16string_view text) const { return text_.Equals(text); }
    void SetText(std::u16string_view text) { text_.Assign(text); }

    // An entry of the format table of the store; 0 is the zeroed format.
    u32 FormatNumber() const { return format_; }
    void SetFormatNumber(u32 number) { format_ = number; }

    std::u16string_view Key() const { return extras_ ? std::u16string_view(extras_->Key) : std::u16string_view(); }
    void SetKey(std::u16string_view key);
    const PicturePtr& Picture() const;
    void SetPicture(PicturePtr picture);
    i16 RowSpan() const { return extras_ ? extras_->RowSpan : i16(0); }
    i16 ColSpan() const { return extras_ ? extras_->ColSpan : i16(0); }
    i16 ParentRow() const { return extras_ ? extras_->ParentRow : i16(0); }
    i16 ParentCol() const { return extras_ ? extras_->ParentCol : i16(0); }
    // ParentRow or ParentCol negative.
    bool IsChild() const { return extras_ && (extras_->ParentRow < 0 || extras_->ParentCol < 0); }
    void SetRowSpan(i16 value) { SetField(&CellExtras::RowSpan, value); }
    void SetColSpan(i16 value) { SetField(&CellExtras::ColSpan, value); }
    void SetParentRow(i16 value) { SetField(&CellExtras::ParentRow, value); }
    void SetParentCol(i16 value) { SetField(&CellExtras::ParentCol, value); }
    void ClearSpan(); // all four fields
    bool ButtonPressed() const { return extras_ && extras_->ButtonPressed; }
    void SetButtonPressed(bool pressed) { SetField(&CellExtras::ButtonPressed, pressed); }
    // Whether anything but text and format is set.
    bool HasExtras() const { return extras_ != nullptr; }

    // Takes text, key, picture and format number; span and pressed state stay.
    void CopyContents(const Cell& other);

    // Empties text and picture, as a line that is made anew does; key and span stay.
    void ClearContents();

    // Bytes beside the object itself, the shared picture not counted.
    std::size_t HeapBytes() const;

private:
    CellExtras& Extras();
    void ReleasePlainExtras();

    // Writing the value that a cell without extras has makes none.
    template <typename Value> void SetField(Value CellExtras::*field, Value value)
    {
        if (!extras_ && value == Value())
            return;
        Extras().*field = value;
        if (value == Value())
            ReleasePlainExtras();
    }

    CompactText text_;
    u32 format_ = 0;
    std::unique_ptr<CellExtras> extras_; // null when everything in it would be empty
};

static_assert(sizeof(Cell) <= 24, "a plain cell is at most 24 bytes, its text apart");

} // namespace vornix
