// The cells of the grid that a document lets be changed.
#pragma once

#include "column_inputs.h"
#include "shown_rows.h"
#include "vornix/vornix.h"

namespace vornix::viewer {

// Gives the grid, which shows the document's table, text boxes where something can be typed, and lists where there is
// something to choose from. Check boxes stay; where a column of them has no truth value, its text can be typed. The rest
// stays as it is shown.
void MakeEditable(Vornix& grid, const Document& document, const ColumnInputs& inputs);

// The same for columns that have got a list since then, or have none any more; an editor that is open in one of them closes.
void UpdateEditors(Vornix& grid, const Document& document, const ColumnInputs& inputs, const ShownRows& rows);

// Fills the list of a cell that has one, before its editor opens.
void FillList(Vornix& grid, const ColumnInputs& inputs, i16 Row, i16 Col);

// A cell of the grid that now reads otherwise, without an event. Its editor closes if it has one. In a column of truth
// values it is a check box where it has one.
void ShowText(Vornix& grid, const Document& document, const ColumnInputs& inputs, i16 Row, const CellText& cell);

// The same for a cell, or all cells and the name, of a row of the document, as they are now.
void ShowCell(Vornix& grid, const Document& document, const ColumnInputs& inputs, i16 Row, int row, int column);
void ShowRow(Vornix& grid, const Document& document, const ColumnInputs& inputs, i16 Row, int row);
// What the row is called, in front of it; new ones stand out.
void ShowName(Vornix& grid, const Document& document, i16 Row, int row);

// What a changed cell says, as the document takes it.
std::u16string TextForDocument(const Vornix& grid, i16 Row, i16 Col);

} // namespace vornix::viewer
