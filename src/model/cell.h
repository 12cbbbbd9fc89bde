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

class Cell {
public:
    // The text as UTF-16; TextView avoids the copy by expanding into `scratch` where needed.
    std::u16string Text() const;
    std::u16string_view TextView(std::u16string& scratch) const;
    bool HasText() const;
    void SetText(std::u16string_view text);

    u32 FormatNumber() const;
    void SetFormatNumber(u32 number);

    std::u16string_view Key() const;
    void SetKey(std::u16string_view key);
    const PicturePtr& Picture() const;
    void SetPicture(PicturePtr picture);
    i16 RowSpan() const;
    i16 ColSpan() const;
    i16 ParentRow() const;
    i16 ParentCol() const;
    bool IsChild() const; // ParentRow or ParentCol negative
    void SetRowSpan(i16 value);
    void SetColSpan(i16 value);
    void SetParentRow(i16 value);
    void SetParentCol(i16 value);
    void ClearSpan(); // all four fields
    bool ButtonPressed() const;
    void SetButtonPressed(bool pressed);
};

// A row's cells. Copies share memory until one of them is written; each behaves as a copy of its own.
class CellBlock { };

} // namespace vornix
