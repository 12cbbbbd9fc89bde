// Sizes, places and hits.
#include "automation/checked.h"
#include "control/control.h"

namespace vornix {

i16 Vornix::ColWidth(i16 Col) const
{
    const auto control = Enter();
    return control->store.ColumnAt(control->InternalCol(Col)).Width;
}

void Vornix::SetColWidth(i16 Col, i16 Value)
{
    const auto control = Enter();
    if (control->layout.SetColWidth(control->InternalCol(Col), Value))
        control->funnel.RecalcLayout(false);
}

i16 Vornix::RowHeight(i16 Row) const
{
    const auto control = Enter();
    return control->store.RowAt(control->InternalRow(Row)).Height;
}

void Vornix::SetRowHeight(i16 Row, i16 Value)
{
    const auto control = Enter();
    if (control->layout.SetRowHeight(control->InternalRow(Row), Value))
        control->funnel.RecalcLayout(false);
}

i16 Vornix::ColWidthPercent(i16 Col) const
{
    const auto control = Enter();
    return control->store.ColumnAt(control->InternalCol(Col)).WidthPercent;
}

void Vornix::SetColWidthPercent(i16 Col, i16 Value)
{
    const auto control = Enter();
    control->layout.SetColWidthPercent(control->InternalCol(Col), Value);
    control->funnel.RecalcLayout();
}

bool Vornix::ResizingWidth() const
{
    return Enter()->layout.Settings.ResizingWidth;
}

void Vornix::SetResizingWidth(bool Value)
{
    Enter()->layout.Settings.ResizingWidth = Value;
}

bool Vornix::ResizingRows() const
{
    return Enter()->layout.Settings.ResizingRows;
}

void Vornix::SetResizingRows(bool Value)
{
    const auto control = Enter();
    control->SetSetting(control->layout.Settings.ResizingRows, Value, "ResizingRows");
}

i32 Vornix::ResizeMode() const
{
    return Enter()->settings.ResizeMode;
}

void Vornix::SetResizeMode(i32 Value)
{
    const auto control = Enter();
    if (Value == control->settings.ResizeMode)
        return;
    control->settings.ResizeMode = Value;
    control->ApplyResizeMode();
    GridStore& store = control->store;
    for (int row = 0; row <= store.LastRowIndex(); ++row)
        store.RowAt(row).Resizable = store.Defaults.RowsResizable;
    for (int col = 0; col <= store.LastColIndex(); ++col)
        store.ColumnAt(col).Resizable = store.Defaults.ColsResizable;
    control->Report("ResizeMode");
}

i32 Vornix::AdjustLast() const
{
    return Enter()->settings.AdjustLast;
}

void Vornix::SetAdjustLast(i32 Value)
{
    const auto control = Enter();
    if (Value == control->settings.AdjustLast)
        return;
    control->settings.AdjustLast = Value;
    control->ApplyAdjustLast();
    control->funnel.RecalcLayout(true);
    control->Report("AdjustLast");
}

i32 Vornix::BorderStyle() const
{
    return Enter()->settings.BorderStyle;
}

void Vornix::SetBorderStyle(i32 Value)
{
    const auto control = Enter();
    if (Value == control->settings.BorderStyle)
        return;
    control->settings.BorderStyle = Value;
    control->ApplyBorderStyle();
    control->funnel.RecalcLayout();
    control->Report("BorderStyle");
}

bool Vornix::GetCellAtPos(i32 x, i32 y, i16& Row, i16& Col) const
{
    const auto control = Enter();
    const HitResult hit = control->layout.HitTestCell(x, y);
    Row = hit.found ? control->PublicRow(hit.row) : ToI16(hit.row);
    Col = hit.found ? control->PublicCol(hit.col) : ToI16(hit.col);
    return hit.found;
}

bool Vornix::GetCellParentAtPos(i32 x, i32 y, i16& Row, i16& Col) const
{
    const auto control = Enter();
    Row = NoIndex;
    Col = NoIndex;
    const HitResult hit = control->layout.HitTestCell(x, y);
    if (!hit.found)
        return false;
    const CellIndex parent = control->spans.ParentOf(hit.row, hit.col);
    Row = control->PublicRow(parent.row);
    Col = control->PublicCol(parent.col);
    return true;
}

void Vornix::GetPositionCell(i16 Row, i16 Col, i32& x, i32& y) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    const Point origin
        = control->layout.CellOriginInTwips(row, col, control->twipsPerPixel, control->settings.BorderStyle);
    x = origin.x;
    y = origin.y;
}

void Vornix::GetSizeCell(i16 Row, i16 Col, i16& Width, i16& Height) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    const Size size = control->layout.CellSpanSize(row, col);
    Width = ToI16(size.width);
    Height = ToI16(size.height);
}

void Vornix::GetSizeCells(i16 Row1, i16 Col1, i16 Row2, i16 Col2, i16& Width, i16& Height) const
{
    const auto control = Enter();
    const auto [row1, col1] = control->Internal(Row1, Col1);
    const auto [row2, col2] = control->Internal(Row2, Col2);
    const Size size = control->layout.BlockSize(row1, col1, row2, col2);
    Width = ToI16(size.width);
    Height = ToI16(size.height);
}

void Vornix::getWidthHeightCell(i16 /*iRow*/, i16 /*iCol*/, i16& /*iWidth*/, i16& /*iHeight*/) const
{
    const auto control = Enter();
}

bool Vornix::IsVisibleCell(i16 Row, i16 Col) const
{
    return IsVisibleRow(Row) && IsVisibleCol(Col);
}

bool Vornix::IsVisibleRow(i16 Row) const
{
    const auto control = Enter();
    return Row < 0 || control->layout.IsVisibleRow(control->InternalRow(Row));
}

bool Vornix::IsVisibleCol(i16 Col) const
{
    const auto control = Enter();
    return Col < 0 || control->layout.IsVisibleCol(control->InternalCol(Col));
}

float Vornix::GetScaleWidth() const
{
    const auto control = Enter();
    const ChildWindow& bar = control->container.Child(ChildName::scrV);
    return static_cast<float>(control->container.ClientSize().width - (bar.IsVisible() ? bar.Place().Width() : 0));
}

float Vornix::GetScaleHeight() const
{
    const auto control = Enter();
    const ChildWindow& bar = control->container.Child(ChildName::scrH);
    return static_cast<float>(control->container.ClientSize().height - (bar.IsVisible() ? bar.Place().Height() : 0));
}

} // namespace vornix
