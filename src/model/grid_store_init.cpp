// Lines of the store made anew from the defaults.
#include "model/grid_store.h"

#include "automation/checked.h"
#include "model/rewrite_blocks.h"

#include <utility>

namespace vornix {

namespace {

void ResetCell(Cell& cell, FormatId format)
{
    cell.SetFormatNumber(format);
    cell.ClearContents();
}

void ResetFillerCell(Cell& cell, FormatId format)
{
    cell.ClearSpan();
    ResetCell(cell, format);
}

} // namespace

void GridStore::InitGridStore(const SystemColors& colors)
{
    Defaults.BuildFormats(colors);
    const i16 maxRow = ToI16(rowCount_ + fixedRowCount_);
    const i16 maxCol = ToI16(colCount_ + fixedColCount_);
    if (maxRow < 0 || maxCol < 0 || fixedRowCount_ < 0)
        RaiseError(ErrorNumber::SubscriptOutOfRange);
    OrOutOfMemory([&] {
        GapArray<Row> rows(static_cast<std::size_t>(maxRow) + 1);
        std::vector<Column> columns(static_cast<std::size_t>(maxCol) + 1);
        const CellBlock blank(maxCol + 1);
        for (Row& row : rows)
            row.Cells = blank;
        rows_ = std::move(rows);
        columns_ = std::move(columns);
    });
    maxRow_ = maxRow;
    maxCol_ = maxCol;
    RefreshLastIndices();
    BuildColumns();
    if (columnSettings_ && fixedColCount_ <= lastColIndex_)
        columnSettings_->ApplyTo(*this, fixedColCount_, lastColIndex_);
    BuildRows();
    CopyTitlesToHeader();
    InitFillerCol();
    InitFillerRow();
}

void GridStore::ResetLine(Row& row, i16 height) const
{
    row.Resizable = Defaults.RowsResizable;
    row.LineColor = Defaults.DefaultLineColor;
    row.Height = height;
}

void GridStore::ResetLine(Column& column, i16 width) const
{
    column.Resizable = Defaults.ColsResizable;
    column.LineColor = Defaults.DefaultLineColor;
    column.Width = width;
}

void GridStore::BuildColumns()
{
    const FormatId formats[]
        = { formats_.Intern(Defaults.DefaultCellFormat), formats_.Intern(Defaults.DefaultCellFormatFixed) };
    for (int col = 0; col < ColArraySize(); ++col) {
        const bool isFixed = col < fixedColCount_;
        Column& column = ColumnAt(col);
        ResetLine(column, isFixed ? Defaults.DefaultWidthFixed : Defaults.DefaultWidth);
        column.Order = ToI16(col - fixedColCount_);
        column.CellDefaults = formats[isFixed];
    }
}

void GridStore::BuildRows()
{
    const CellBlock fixedCells = NewFixedRowCells();
    CellBlock cells = NewRowCells();
    const FormatId fixedFormat = formats_.Intern(Defaults.DefaultCellFormatFixed);
    for (int col = 0; col < fixedColCount_; ++col)
        cells.Edit(col).SetFormatNumber(fixedFormat);
    for (int row = 0; row < RowArraySize(); ++row) {
        const bool isFixed = row < fixedRowCount_;
        RowAt(row).Cells = isFixed ? fixedCells : cells;
        ResetLine(RowAt(row), isFixed ? Defaults.DefaultHeightFixed : Defaults.DefaultHeight);
    }
}

void GridStore::CopyTitlesToHeader()
{
    if (fixedRowCount_ < 1)
        return;
    for (int col = fixedColCount_; col < ColArraySize(); ++col)
        EditCell(fixedRowCount_ - 1, col).SetText(ColumnAt(col).Title);
}

CellBlock GridStore::NewRowCells()
{
    CellBlock cells(ColArraySize());
    for (int col = 0; col < ColArraySize(); ++col)
        cells.Edit(col).SetFormatNumber(ColumnAt(col).CellDefaults);
    return cells;
}

CellBlock GridStore::NewFixedRowCells()
{
    CellBlock cells(ColArraySize());
    const FormatId format = formats_.Intern(Defaults.DefaultCellFormatFixed);
    for (Cell& cell : cells.EditAll())
        cell.SetFormatNumber(format);
    return cells;
}

void GridStore::InitRows(int first, int last)
{
    if (first > last || first < fixedRowCount_)
        return;
    const CellBlock cells = NewRowCells();
    for (int row = first; row <= last; ++row)
        MakeNew(RowAt(row), cells);
}

void GridStore::MakeNew(Row& row, const CellBlock& cells) const
{
    ResetLine(row, Defaults.DefaultHeight);
    row.RecordPos = 0;
    row.NextSkip = row.PrevSkip = 0;
    row.Cells = cells;
}

void GridStore::InitFixedRows(int first, int last)
{
    if (first > last)
        return;
    SweepFormats();
    const CellBlock cells = NewFixedRowCells();
    for (int index = first; index <= last; ++index) {
        Row& row = RowAt(index);
        ResetLine(row, Defaults.DefaultHeightFixed);
        row.RecordPos = 0;
        row.Cells = cells;
    }
}

void GridStore::ResetCells(int firstRow, int lastRow, int firstCol, int lastCol, const FormatOfCol& formatOf)
{
    RewriteBlocks(rows_, firstRow, lastRow, NoPrefetch, [&](CellBlock& block) {
        for (int col = firstCol; col <= lastCol; ++col)
            ResetCell(block.Edit(col), formatOf(col));
    });
}

void GridStore::InitCols(int first, int last)
{
    if (first > last || first < fixedColCount_)
        return;
    SweepFormats();
    if (!columnSettings_ || !columnSettings_->ApplyTo(*this, first, last)) {
        const FormatId format = formats_.Intern(Defaults.DefaultCellFormat);
        for (int col = first; col <= last; ++col) {
            ResetLine(ColumnAt(col), Defaults.DefaultWidth);
            ColumnAt(col).CellDefaults = format;
        }
    }
    const FormatId fixedFormat = formats_.Intern(Defaults.DefaultCellFormatFixed);
    ResetCells(0, fixedRowCount_ - 1, first, last, [=](int) { return fixedFormat; });
    ResetCells(fixedRowCount_, RowArraySize() - 1, first, last, [this](int col) { return ColumnAt(col).CellDefaults; });
    EditRowFormats(maxRow_, first, last, [](CellFormat& format) { format.Mode = vxCellFixed; });
}

void GridStore::InitFixedCols(int first, int last)
{
    if (first > last)
        return;
    SweepFormats();
    const FormatId format = formats_.Intern(Defaults.DefaultCellFormatFixed);
    for (int col = first; col <= last; ++col) {
        ResetLine(ColumnAt(col), Defaults.DefaultWidthFixed);
        ColumnAt(col).CellDefaults = format;
    }
    ResetCells(0, RowArraySize() - 1, first, last, [=](int) { return format; });
}

void GridStore::InitFillerCol()
{
    if (!Defaults.AdjustLastCol)
        return;
    SweepFormats();
    const int filler = maxCol_;
    Column& column = ColumnAt(filler);
    column.Width = 0;
    column.UseAsField[0] = column.UseAsField[1] = 0;
    column.Resizable = false;
    column.LineColor = Defaults.DefaultLineColor;

    const FormatId fixedFormat = formats_.Intern(Defaults.DefaultCellFormatFixed);
    RewriteBlocks(rows_, 0, fixedRowCount_ - 1, filler, [&](CellBlock& block) {
        const FormatId format = colCount_ != 0 ? block.At(lastColIndex_).FormatNumber() : fixedFormat;
        ResetFillerCell(block.Edit(filler), format);
    });

    const FormatId plainFormat = formats_.Intern(Defaults.DefaultCellFormat);
    const FormatEdit keepBackColor = [&](CellFormat& format) {
        const OleColor backColor = format.BackColor;
        format = Defaults.DefaultCellFormat;
        format.BackColor = backColor;
    };
    FormatTable::Mapper besideLeft(formats_, keepBackColor);
    RewriteBlocks(rows_, fixedRowCount_, maxRow_, filler, [&](CellBlock& block) {
        const FormatId format = colCount_ > 0 ? besideLeft(block.At(lastColIndex_).FormatNumber()) : plainFormat;
        ResetFillerCell(block.Edit(filler), format);
    });
}

void GridStore::InitFillerRow()
{
    if (!Defaults.AdjustLastRow)
        return;
    SweepFormats();
    Row& row = RowAt(maxRow_);
    row.Height = 0;
    row.Resizable = false;
    row.LineColor = Defaults.DefaultLineColor;

    const FormatId fixedFormat = formats_.Intern(Defaults.DefaultCellFormatFixed);
    const FormatId plainFormat = formats_.Intern(Defaults.DefaultCellFormat);
    for (int col = 0; col < ColArraySize(); ++col) {
        FormatId format = plainFormat;
        if (col < fixedColCount_)
            format = rowCount_ != 0 ? CellAt(rowCount_ - 1, col).FormatNumber() : fixedFormat;
        ResetFillerCell(EditCell(maxRow_, col), format);
    }
}

void GridStore::ResetAttributes()
{
    SweepFormats();
    const FormatId plainFormat = formats_.Intern(Defaults.DefaultCellFormat);
    const FormatId fixedFormat = formats_.Intern(Defaults.DefaultCellFormatFixed);
    for (int col = 0; col < ColArraySize(); ++col) {
        const bool isFixed = col < fixedColCount_;
        Column& column = ColumnAt(col);
        column.LineColor = Defaults.DefaultLineColor;
        column.Title.clear();
        column.Format.clear();
        column.Mask.clear();
        column.WidthPercent = 0;
        column.CellDefaults = isFixed ? fixedFormat : plainFormat;
        column.Width = isFixed ? Defaults.DefaultWidthFixed : Defaults.DefaultWidth;
        column.Order = ToI16(col - fixedColCount_);
    }
    for (int row = 0; row < RowArraySize(); ++row) {
        RowAt(row).Hidden = false;
        RowAt(row).SavedHeight = 0;
        ResetLine(RowAt(row), row < fixedRowCount_ ? Defaults.DefaultHeightFixed : Defaults.DefaultHeight);
    }
    const auto resetRows = [&](int first, int last, FormatId format) {
        RewriteBlocks(rows_, first, last, NoPrefetch, [&](CellBlock& block) {
            int col = 0;
            for (Cell& cell : block.EditAll()) {
                cell.ClearSpan();
                cell.SetButtonPressed(false);
                cell.SetFormatNumber(col++ < fixedColCount_ ? fixedFormat : format);
            }
        });
    };
    resetRows(0, fixedRowCount_ - 1, fixedFormat);
    resetRows(fixedRowCount_, RowArraySize() - 1, plainFormat);
}

} // namespace vornix
