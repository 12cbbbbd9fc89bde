#include "editable_cells.h"

#include "line_breaks.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

class CellOpener {
public:
    CellOpener(Vornix& grid, const Document& document, const ColumnInputs& inputs)
        : grid_(grid)
        , document_(document)
        , table_(document.Saved())
        , inputs_(inputs)
    {
    }

    void OpenColumn(int column)
    {
        const i16 Col = static_cast<i16>(column);
        const bool isBoolean = table_.Columns()[static_cast<std::size_t>(column)].kind == ColumnKind::Boolean;
        if (!isBoolean && CanChangeAny(column))
            grid_.SetColMode(Col, EditorOf(column));
        for (int row = 0; row < table_.RowCount(); ++row)
            OpenCell(static_cast<i16>(row), row, Col);
    }

    // Where its editor is another one now.
    void ReopenColumn(int column, const ShownRows& rows)
    {
        const i16 Col = static_cast<i16>(column);
        const bool isBoolean = table_.Columns()[static_cast<std::size_t>(column)].kind == ColumnKind::Boolean;
        if (isBoolean || grid_.ColMode(Col) == EditorOf(column) || !CanChangeAny(column))
            return;
        if (grid_.IsEditMode() && grid_.CurrentCol() == Col)
            grid_.ExitEdit();
        grid_.SetColMode(Col, EditorOf(column));
        for (int Row = 0; Row < rows.Count(); ++Row)
            OpenCell(static_cast<i16>(Row), rows.At(Row), Col);
    }

    void OpenCell(i16 Row, int row, i16 Col)
    {
        if (grid_.CellMode(Row, Col) == vxCheckBox)
            return;
        const bool hasLines = !LineBreakOf(document_.Text(row, Col)).empty();
        SetMode(Row, Col, document_.CanChange(row, Col) ? (hasLines ? vxTextBox : EditorOf(Col)) : vxCellFixed);
        if (hasLines)
            MakeRoomForLines(Row, row, Col);
    }

private:
    vxCellModeEnum EditorOf(int column) const
    {
        switch (inputs_.Kind(column)) {
        case InputKind::Choice:
            return vxComboDropDownBox;
        case InputKind::Key:
            return vxComboListBox;
        default:
            return vxTextBox;
        }
    }

    // An editor of one line could not keep the breaks; those that it has are CR LF.
    void MakeRoomForLines(i16 Row, int row, i16 Col)
    {
        grid_.SetTextAlignment(Row, Col, grid_.TextAlignment(Row, Col) & ~(vxSingleLine | vxTxtVCenter));
        grid_.SetText(Row, Col, WithLineBreaks(document_.Text(row, Col), u"\r\n"));
    }

    bool CanChangeAny(int column) const
    {
        const std::vector<int> rows = document_.Rows();
        return rows.empty()
            || std::any_of(rows.begin(), rows.end(), [&](int row) { return document_.CanChange(row, column); });
    }

    void SetMode(i16 Row, i16 Col, vxCellModeEnum mode)
    {
        if (grid_.CellMode(Row, Col) != mode)
            grid_.SetCellMode(Row, Col, mode);
    }

    Vornix& grid_;
    const Document& document_;
    const Table& table_;
    const ColumnInputs& inputs_;
};

bool IsBeingEdited(const Vornix& grid, int row, int column)
{
    return grid.IsEditMode() && grid.CurrentRow() == row && grid.CurrentCol() == column;
}

bool IsTruthValue(std::u16string_view text)
{
    return text == u"-1" || text == u"0";
}

void Show(Vornix& grid, const Document& document, const ColumnInputs& inputs, i16 Row, const CellText& cell, bool isBox)
{
    if (IsBeingEdited(grid, Row, cell.column))
        grid.ExitEdit();
    const i16 Col = static_cast<i16>(cell.column);
    if ((grid.CellMode(Row, Col) == vxCheckBox) != isBox)
        grid.SetCellMode(Row, Col, isBox ? vxCheckBox : vxTextBox);
    if (isBox)
        grid.SetCellChecked(Row, Col, cell.text == u"-1");
    else
        grid.SetText(Row, Col, cell.text);
    CellOpener(grid, document, inputs).OpenCell(Row, cell.row, Col);
}

} // namespace

void MakeEditable(Vornix& grid, const Document& document, const ColumnInputs& inputs)
{
    if (document.WhyReadOnly())
        return;
    grid.SetRedraw(false);
    grid.SetTBoxAutoResize(true); // a text longer than its cell is seen whole while it is typed
    // Of a date that is typed.
    grid.SetTBoxIncludeLiteral(true);
    grid.SetTBoxReplaceChar(u" ");
    CellOpener opener(grid, document, inputs);
    for (int column = 0; column < document.Saved().ColumnCount(); ++column)
        opener.OpenColumn(column);
    grid.SetRedraw(true);
}

void UpdateEditors(Vornix& grid, const Document& document, const ColumnInputs& inputs, const ShownRows& rows)
{
    CellOpener opener(grid, document, inputs);
    for (int column = 0; column < document.Saved().ColumnCount(); ++column)
        opener.ReopenColumn(column, rows);
}

void FillList(Vornix& grid, const ColumnInputs& inputs, i16 Row, i16 Col)
{
    const i32 mode = grid.CellMode(Row, Col);
    if (mode != vxComboDropDownBox && mode != vxComboListBox)
        return;
    grid.ComboClear();
    const std::vector<std::u16string> texts = inputs.List(Col);
    for (const std::u16string& text : texts)
        grid.ComboAddItem(text);
    // The keys of the list go on from here.
    const auto found = std::find(texts.begin(), texts.end(), grid.Text(Row, Col));
    if (found != texts.end() && !found->empty())
        grid.SetComboListIndex(static_cast<i16>(found - texts.begin()));
}

void ShowText(Vornix& grid, const Document& document, const ColumnInputs& inputs, i16 Row, const CellText& cell)
{
    const ColumnKind kind = document.Saved().Columns()[static_cast<std::size_t>(cell.column)].kind;
    Show(grid, document, inputs, Row, cell, kind == ColumnKind::Boolean && IsTruthValue(cell.text));
}

void ShowCell(Vornix& grid, const Document& document, const ColumnInputs& inputs, i16 Row, int row, int column)
{
    const std::u16string text(document.Text(row, column));
    // In a new row of the grid all of them are boxes. What was typed elsewhere is a text until it is saved.
    const bool isBox = grid.CellMode(Row, static_cast<i16>(column)) == vxCheckBox && IsTruthValue(text);
    Show(grid, document, inputs, Row, { row, column, text }, isBox);
}

void ShowRow(Vornix& grid, const Document& document, const ColumnInputs& inputs, i16 Row, int row)
{
    ShowName(grid, document, Row, row);
    for (int column = 0; column < document.Saved().ColumnCount(); ++column)
        ShowCell(grid, document, inputs, Row, row, column);
}

// The corner of the header looks as the number of a row does.
void ShowName(Vornix& grid, const Document& document, i16 Row, int row)
{
    const std::string name = document.NameOf(row);
    const std::u16string text(name.begin(), name.end());
    if (grid.Text(Row, -1) == text)
        return;
    const bool isNew = document.IsNew(row);
    grid.SetText(Row, -1, text);
    grid.SetCellFontSize(Row, -1, grid.CellFontSize(-1, -1));
    grid.SetCellFontBold(Row, -1, isNew);
    grid.SetCellForeColor(Row, -1, isNew ? grid.DefaultForeColorFixed() : grid.CellForeColor(-1, -1));
}

std::u16string TextForDocument(const Vornix& grid, i16 Row, i16 Col)
{
    if (grid.CellMode(Row, Col) == vxCheckBox)
        return grid.CellChecked(Row, Col) ? u"-1" : u"0";
    return grid.Text(Row, Col);
}

} // namespace vornix::viewer
