// The grid control. A container (a toolkit's window) and a receiver of events are passed in; the control draws into the
// one and reports to the other, on the thread that calls it.
//
// Indices are public unless said otherwise: row and column 0 are the first that are not fixed, fixed ones count -1, -2,
// ... outward, and Rows and Cols address the filler row and column behind the last real ones. An index beyond them
// raises error 9, an index or a sum that leaves 16 bits error 6; nothing is rolled back. Sizes and places are logical
// pixels. After Terminate every member raises error 5.
//
// "Repaints" and "refreshes" below happen only while Redraw is on, where nothing else is said. "Reports X" means that
// the container is told of a change of the persisted property X. A property that is written with the value it has does
// nothing, where nothing else is said.
#pragma once

#include "vornix/automation.h"
#include "vornix/events.h"
#include "vornix/members.h"
#include "vornix/picture.h"
#include "vornix/platform/container.h"
#include "vornix/types.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace vornix {

class Control;

class Vornix {
public:
    // Both must outlive the control. A new control has no table yet: InitProperties or ReadProperties makes it.
    Vornix(Container& container, VornixEvents& events);
    // Terminates the control if that has not been done. A control must not be destroyed inside one of its own calls.
    ~Vornix();
    Vornix(const Vornix&) = delete;
    Vornix& operator=(const Vornix&) = delete;

    // -- For the container --
    // These are not for hosts: a toolkit calls them when its window has the news.

    // Makes the table of a new control from the defaults.
    void InitProperties();
    // Makes the table of a control that was saved, with the values in the bag; absent ones take the defaults. A value
    // of a type that cannot be converted is error 13, one that leaves its width error 6.
    void ReadProperties(const PropertyBag& bag);
    // The client size changed (or is known for the first time). Closes the editor and lays out anew.
    void Resize();
    // The control became visible. Raises PopulateGrid the first time, at run time in virtual mode.
    void Show();
    void Hide();
    // The window lost its picture: copies it from the back store, or paints it the first time.
    void Paint();
    void EnterFocus();
    // Closes the editor and takes the focus mark off the current cell.
    void ExitFocus();
    // Releases everything. Inside a handler of an event the release waits until the outermost call returns; no further
    // event is raised. A second call does nothing.
    void Terminate();
    bool IsTerminated() const noexcept;
    // Whether a call into the control is running, as it is inside every handler of an event.
    bool IsInCall() const noexcept;
    // The next four work on a terminated control too.
    // The picture of the whole grid, at least as large as the client area; null before the first Resize.
    const Surface* BackStore() const;
    // How often the whole grid was repainted, and how many cells were painted one by one, since ClearPaintCounters.
    int Repaints() const;
    int Refreshes() const;
    void ClearPaintCounters();

    // -- Late binding --

    // Calls a member by its name, in any case. Arguments are converted to the member's types in the container's locale
    // (error 13 where that cannot be, 6 where a value leaves its width); those by reference come back in their places,
    // unless the call fails. Optional ones may be left out at the end or be Variant::Missing(). Writing a property, the
    // value is the last argument. The result is empty where nothing comes back. Errors 438 for a name or a kind that
    // the control does not have, 450 for a wrong number of arguments, 445 for members that are not built yet.
    Variant Invoke(std::string_view name, InvokeKind kind, std::span<Variant> args);
    // The last arguments by name: names[i] is that of args[args.size() - names.size() + i]. The value that a property
    // is written with is called Value. Error 448 for a name that the member does not have, 450 for one that is given
    // twice. By-reference arguments come back where they were given.
    Variant Invoke(
        std::string_view name, InvokeKind kind, std::span<Variant> args, std::span<const std::string_view> names);
    // A member that FindMember gave, for calls that are made often.
    Variant Invoke(const MemberInfo& member, InvokeKind kind, std::span<Variant> args);

    // -- Input --
    // What happened to the control's window, in the platform's numbers: buttons 1 left, 2 right, 4 middle; shift 1
    // Shift, 2 Ctrl, 4 Alt; places in pixels of the client area. Each raises the event of its name; the codes that
    // handlers left come back.

    void MouseDown(i16 Button, i16 Shift, float x, float y);
    void MouseMove(i16 Button, i16 Shift, float x, float y);
    void MouseUp(i16 Button, i16 Shift, float x, float y);
    // Come after the release.
    void Click();
    void DblClick();
    // A code that the handlers do not set to 0 is then the grid's: arrows, Home, End and Page keys, Space and F2. They
    // may raise ValidateRow, CellChange, Scroll and TextChange.
    void KeyDown(i16& KeyCode, i16& Shift);
    void KeyPress(i16& KeyAscii);
    void KeyUp(i16& KeyCode, i16& Shift);
    // What the user did with one of the bars, scrV or scrH, as a number of ScrollBar::Notify, and 120 for each notch
    // that the wheel turns away from the user. Heard at run time while Redraw is on, by bars that show. Scroll the grid
    // and raise Scroll, ScrollTrackRow or ScrollTrackCol.
    void ScrollBarNotify(ChildName Bar, i32 Code);
    void MouseWheel(i32 Delta);
    // A wheel for one of the bars, scrV or scrH: positive toward the start of the table.
    void MouseWheel(ChildName Bar, i32 Delta);
    // So many of the bar's steps at once, as fingers move it on a touchpad: lines, or pixels in smooth mode. Positive
    // toward the end of the table. Raises Scroll as the wheel does.
    void MoveScrollBar(ChildName Bar, i32 Steps);
    // The interval of the timer has passed (Container::SetTimer).
    void Tick();
    // The pointer on one of the children, in its own pixels: the split is dragged by picSplitCol, and over the frame of
    // the editor, fraEdit, the pointer goes on being followed. Other children do
    // nothing with it. Raise SplitCols, MouseMove, CellOver and CellOut.
    void ChildMouseDown(ChildName Child, i16 Button, float x, float y);
    void ChildMouseMove(ChildName Child, i16 Button, i16 Shift, float x, float y);
    void ChildMouseUp(ChildName Child, i16 Button, float x, float y);
    // A child has to be drawn anew, or has got the focus.
    void PaintChild(ChildName Child);
    void EnterChildFocus(ChildName Child);

    // -- Drawing and the redraw gate --

    // While off, members change the table and paint nothing. On again: lays out and repaints once. Reports "Redraw".
    bool Redraw() const;
    void SetRedraw(bool Value);
    // Applies the border again, raises PopulateGrid in virtual mode without a record source, goes back to whole columns
    // and lays out anew.
    void Refresh();
    // Paints one cell, whether Redraw is on or not.
    void RefreshCell(i16 Row, i16 Col);
    // The number of the window's drawing device.
    Hdc hDC() const;
    // The native handle of the window.
    std::intptr_t hWnd() const;

    // Appearance of the whole grid. Each repaints and reports itself.
    OleColor BackColor() const;
    void SetBackColor(OleColor Value);
    OleColor BackColorSel() const;
    void SetBackColorSel(OleColor Value);
    OleColor ForeColorSel() const;
    void SetForeColorSel(OleColor Value);
    // Odd rows that are not fixed show these in place of the default colours; a colour of a cell's own is never
    // replaced.
    OleColor AltBkColor() const;
    void SetAltBkColor(OleColor Value);
    OleColor AltForeColor() const;
    void SetAltForeColor(OleColor Value);
    bool AltColorEnabled() const;
    void SetAltColorEnabled(bool Value);
    // vxCellsEnum: which lines are drawn.
    i32 GridLines() const;
    void SetGridLines(i32 Value);
    // Lines lie inside their cells, so no size changes. 0 is stored as 1.
    i16 GridLineWidth() const;
    void SetGridLineWidth(i16 Value);
    // vxFocusEnum.
    i32 FocusRect() const;
    void SetFocusRect(i32 Value);

    // Background picture behind the cells that are not fixed. None, or one whose handle is 0, takes it away. Repaints,
    // reports "Picture".
    PicturePtr Picture() const;
    void SetPicture(const PicturePtr& Value);
    // vxPictureModeEnum: how the cells take their piece. Repaints, reports itself.
    i32 PictureMode() const;
    void SetPictureMode(i32 Value);
    // 0 to 100, washing the picture toward white; other values are ignored. Repaints, reports itself.
    i32 PictureBrightness() const;
    void SetPictureBrightness(i32 Value);
    // 1 to 100; other values are ignored. Repaints, reports itself.
    i16 Opacity() const;
    void SetOpacity(i16 Value);
    // vxMaskModeEnum and the colour that is transparent in cell pictures, from their next paint on. Report themselves.
    i32 UseMask() const;
    void SetUseMask(i32 Value);
    OleColor MaskColor() const;
    void SetMaskColor(OleColor Value);
    // Percent for pictures taken of the grid.
    void SetPictureAlpha(i16 AlphaPourcent);
    // The colour moved toward white (Percent above 0) or black (below 0).
    OleColor ColorBrightness(OleColor Color, i16 Percent) const;

    // -- Counts and contents --

    // Lines that are not fixed. Negative values are ignored; others empty the selection, add lines like new ones at the
    // end or cut them off there. Setting Rows ends virtual mode. Each lays out and reports itself.
    i16 Rows() const;
    void SetRows(i16 Value);
    i16 Cols() const;
    void SetCols(i16 Value);
    // New fixed lines are added outside, surplus ones are taken away from there; the other lines keep their public
    // indices. No fixed row: no caption. A negative value is error 9. Each lays out and reports itself.
    i16 FixedRows() const;
    void SetFixedRows(i16 Value);
    i16 FixedCols() const;
    void SetFixedCols(i16 Value);

    // Two names of a cell's text. Always written; refreshes the cell.
    std::u16string Text(i16 Row, i16 Col) const;
    void SetText(i16 Row, i16 Col, std::u16string_view Value);
    std::u16string TextValue(i16 Row, i16 Col) const;
    void SetTextValue(i16 Row, i16 Col, std::u16string_view Value);
    // A second text that is never shown.
    std::u16string Key(i16 Row, i16 Col) const;
    void SetKey(i16 Row, i16 Col, std::u16string_view Value);
    // The text as a truth value; what is none reads false. Written as "-1" or "0", always. Refreshes the cell.
    bool CellChecked(i16 Row, i16 Col) const;
    void SetCellChecked(i16 Row, i16 Col, bool Value);
    std::u16string ColName(i16 Col) const;
    void SetColName(i16 Col, std::u16string_view Value);
    // Pattern that the column's texts are shown by. Always written; refreshes the column.
    std::u16string ColFormat(i16 Col) const;
    void SetColFormat(i16 Col, std::u16string_view Value);
    // Input mask of the column. Always written; refreshes the column.
    std::u16string ColMask(i16 Col) const;
    void SetColMask(i16 Col, std::u16string_view Value);

    // -- Attributes of one cell --
    // Each refreshes its cell. Enums are stored as they come.

    // Brings shades, border colour and gradient colours with it. Always written.
    OleColor CellBackColor(i16 Row, i16 Col) const;
    void SetCellBackColor(i16 Row, i16 Col, OleColor Value);
    OleColor CellForeColor(i16 Row, i16 Col) const;
    void SetCellForeColor(i16 Row, i16 Col, OleColor Value);
    // Two names of one colour.
    OleColor CellBorderColor(i16 Row, i16 Col) const;
    void SetCellBorderColor(i16 Row, i16 Col, OleColor Value);
    OleColor BoxBorder(i16 Row, i16 Col) const;
    void SetBoxBorder(i16 Row, i16 Col, OleColor Value);
    // Always written; refreshes nothing.
    bool CellEnabled(i16 Row, i16 Col) const;
    void SetCellEnabled(i16 Row, i16 Col, bool Value);
    // The same state as CellEnabled.
    bool CheckEnable(i16 Row, i16 Col) const;
    void SetCheckEnable(i16 Row, i16 Col, bool Value);
    std::u16string CellFontName(i16 Row, i16 Col) const;
    void SetCellFontName(i16 Row, i16 Col, std::u16string_view Value);
    bool CellFontBold(i16 Row, i16 Col) const;
    void SetCellFontBold(i16 Row, i16 Col, bool Value);
    bool CellFontItalic(i16 Row, i16 Col) const;
    void SetCellFontItalic(i16 Row, i16 Col, bool Value);
    bool CellFontUnderline(i16 Row, i16 Col) const;
    void SetCellFontUnderline(i16 Row, i16 Col, bool Value);
    bool CellFontStrikeThrough(i16 Row, i16 Col) const;
    void SetCellFontStrikeThrough(i16 Row, i16 Col, bool Value);
    // Points.
    i16 CellFontSize(i16 Row, i16 Col) const;
    void SetCellFontSize(i16 Row, i16 Col, i16 Value);
    // vxCellGradientEnum. Always written.
    i32 CellGradientMode(i16 Row, i16 Col) const;
    void SetCellGradientMode(i16 Row, i16 Col, i32 Value);
    // Always written. Reads back what was last written, even after a back colour has replaced it on the screen.
    OleColor CellGradientEnd(i16 Row, i16 Col) const;
    void SetCellGradientEnd(i16 Row, i16 Col, OleColor Value);
    // vxCellModeEnum. A check box also gets its text alignment set to vxTxtCenter.
    i32 CellMode(i16 Row, i16 Col) const;
    void SetCellMode(i16 Row, i16 Col, i32 Value);
    // Always written.
    PicturePtr CellPicture(i16 Row, i16 Col) const;
    void SetCellPicture(i16 Row, i16 Col, const PicturePtr& Value);
    // vxAlignPictureEnum flags.
    i32 CellPictureAlignment(i16 Row, i16 Col) const;
    void SetCellPictureAlignment(i16 Row, i16 Col, i32 Value);
    // vxCellStyleEnum.
    i32 CellStyle(i16 Row, i16 Col) const;
    void SetCellStyle(i16 Row, i16 Col, i32 Value);
    bool ButtonPressed(i16 Row, i16 Col) const;
    void SetButtonPressed(i16 Row, i16 Col, bool Value);
    // vxAlignTextEnum flags, without CommonTextAlign when read. A negative value toggles the flags of its absolute
    // value.
    i32 TextAlignment(i16 Row, i16 Col) const;
    void SetTextAlignment(i16 Row, i16 Col, i32 Value);
    // Pixels; negative values are ignored.
    i16 TextMarginLeft(i16 Row, i16 Col) const;
    void SetTextMarginLeft(i16 Row, i16 Col, i16 Value);
    i16 TextMarginRight(i16 Row, i16 Col) const;
    void SetTextMarginRight(i16 Row, i16 Col, i16 Value);

    // -- Attributes of a column --
    // Each writes all cells of the column, those in fixed rows only when the column is fixed, and what new rows take
    // from the column; always, without comparing. Each refreshes the column. Values are those of the cell's attributes.

    void SetColBackColor(i16 Col, OleColor Value);
    void SetColForeColor(i16 Col, OleColor Value);
    void SetColBorderColor(i16 Col, OleColor Value);
    // Refreshes nothing.
    bool ColEnabled(i16 Col) const;
    void SetColEnabled(i16 Col, bool Value);
    // Cells only: new rows do not take the font. Error 5 without a font.
    void SetColFont(i16 Col, const FontPtr& Value);
    void SetColGradientMode(i16 Col, i32 Value);
    void SetColGradientEnd(i16 Col, OleColor Value);
    // Never reaches fixed rows or the filler row.
    i32 ColMode(i16 Col) const;
    void SetColMode(i16 Col, i32 Value);
    // Real cells only: new rows do not take the picture.
    void SetColPicture(i16 Col, const PicturePtr& Value);
    i32 ColPictureAlignment(i16 Col) const;
    void SetColPictureAlignment(i16 Col, i32 Value);
    i32 ColStyle(i16 Col) const;
    void SetColStyle(i16 Col, i32 Value);
    i32 ColTextAlign(i16 Col) const;
    void SetColTextAlign(i16 Col, i32 Value);
    i16 ColTextMarginLeft(i16 Col) const;
    void SetColTextMarginLeft(i16 Col, i16 Value);
    i16 ColTextMarginRight(i16 Col) const;
    void SetColTextMarginRight(i16 Col, i16 Value);
    // The line at the right of the column's cells.
    void SetColLineColor(i16 Col, OleColor Value);
    // Whether the user may size the column. Refreshes nothing, reports itself.
    bool ColResize(i16 Col) const;
    void SetColResize(i16 Col, bool Value);

    // -- Attributes of a row --
    // Each writes all cells of the row, those in fixed columns only when the row is fixed; always, without comparing.
    // New columns do not see it. Each refreshes the row.

    void SetRowBackColor(i16 Row, OleColor Value);
    void SetRowForeColor(i16 Row, OleColor Value);
    void SetRowBorderColor(i16 Row, OleColor Value);
    // Refreshes nothing.
    void SetRowEnabled(i16 Row, bool Value);
    // Error 5 without a font.
    void SetRowFont(i16 Row, const FontPtr& Value);
    void SetRowGradientMode(i16 Row, i32 Value);
    void SetRowGradientEnd(i16 Row, OleColor Value);
    // Never reaches fixed columns or the filler column.
    void SetRowMode(i16 Row, i32 Value);
    void SetRowStyle(i16 Row, i32 Value);
    void SetRowTextAlign(i16 Row, i32 Value);
    // In a row that is not fixed these two leave out as many columns at the left as there are fixed rows.
    void SetRowTextMarginLeft(i16 Row, i16 Value);
    void SetRowTextMarginRight(i16 Row, i16 Value);
    // The line below the row's cells.
    void SetRowLineColor(i16 Row, OleColor Value);
    // Whether the user may size the row. Refreshes nothing, reports itself.
    bool RowResize(i16 Row) const;
    void SetRowResize(i16 Row, bool Value);

    // -- Attributes of a rectangle --
    // Corners in any order. Each refreshes the columns of the rectangle.

    // The back colour alone: shades and gradient colours stay.
    void SetCellsBackColor(i16 Row1, i16 Col1, i16 Row2, i16 Col2, OleColor Value);
    void SetCellsForeColor(i16 Row1, i16 Col1, i16 Row2, i16 Col2, OleColor Value);
    // Error 5 without a font.
    void SetCellsFont(i16 Row1, i16 Col1, i16 Row2, i16 Col2, const FontPtr& Value);

    // -- Templates --
    // What new columns and new fixed cells start with. At design time (ambient UserMode false) existing cells are
    // written too. Each reports itself; where nothing else is said, each also repaints, whether Redraw is on or not.

    OleColor DefaultBkColor() const;
    void SetDefaultBkColor(OleColor Value);
    OleColor DefaultForeColor() const;
    void SetDefaultForeColor(OleColor Value);
    OleColor DefaultBkColorFixed() const;
    void SetDefaultBkColorFixed(OleColor Value);
    OleColor DefaultForeColorFixed() const;
    void SetDefaultForeColorFixed(OleColor Value);
    i32 DefaultMode() const;
    void SetDefaultMode(i32 Value);
    // Always written, like DefaultTextAlignFixed.
    i32 DefaultTextAlign() const;
    void SetDefaultTextAlign(i32 Value);
    i32 DefaultTextAlignFixed() const;
    void SetDefaultTextAlignFixed(i32 Value);
    OleColor DefaultLineColor() const;
    void SetDefaultLineColor(OleColor Value);
    // Flags that every stored alignment carries; vxNoPrefix is always among them. Always written: the alignment of all
    // cells becomes the value as given. Repaints while Redraw is on.
    i32 CommonTextAlign() const;
    void SetCommonTextAlign(i32 Value);
    // Always written; error 5 without a font. These two repaint only while Redraw is on.
    FontPtr Font() const;
    void SetFont(const FontPtr& Value);
    FontPtr FontFixed() const;
    void SetFontFixed(const FontPtr& Value);
    // Pixels. At design time existing lines are written, hidden ones too, and the grid is laid out anew; at run time
    // only lines added later take them.
    i16 DefaultHeight() const;
    void SetDefaultHeight(i16 Value);
    i16 DefaultWidth() const;
    void SetDefaultWidth(i16 Value);
    i16 DefaultHeightFixed() const;
    void SetDefaultHeightFixed(i16 Value);
    i16 DefaultWidthFixed() const;
    void SetDefaultWidthFixed(i16 Value);
    // All attributes, sizes and spans back to the defaults. Contents, column names and hidden columns stay.
    void ResetGrid();

    // -- Spans --

    // Columns and rows that a cell covers; 0 for a plain cell. Written: older spans in the way are removed whole; a
    // span that would leave the table changes nothing. Always written; repaints.
    i16 ColSpan(i16 Row, i16 Col) const;
    void SetColSpan(i16 Row, i16 Col, i16 Value);
    i16 RowSpan(i16 Row, i16 Col) const;
    void SetRowSpan(i16 Row, i16 Col, i16 Value);
    // The cell whose span covers this one; of a plain cell its own index.
    i16 ParentRow(i16 Row, i16 Col) const;
    i16 ParentCol(i16 Row, i16 Col) const;
    // Whether the second cell is the parent of the first. False for a first cell outside the real lines.
    bool IsParent(i16 Row, i16 Col, i16 ParentRow, i16 ParentCol) const;
    // Merges runs of rows with equal texts (or keys), without regard to case, in one column. Repaints once.
    void SpanRows(i16 Col, bool& bUseKey);
    void SpanRows(i16 Col, bool&& bUseKey = false);
    // Undoes it in `Cols` columns from `Col` on. Repaints once.
    void RemoveSpanRows(i16 Col, i16 Cols = 1);

    // -- Hidden lines, column order, parked looks --

    // Hidden lines keep their place with a size of 0. Each lays out anew.
    void HideRow(i16 Row, i16 Rows = 1);
    void ShowRow(i16 Row, i16 Rows = 1);
    void HideCol(i16 Col, i16 Cols = 1);
    void ShowCol(i16 Col, i16 Cols = 1);
    // Report themselves, also when nothing changed.
    bool RowHide(i16 Row) const;
    void SetRowHide(i16 Row, bool Value);
    bool ColHide(i16 Col) const;
    void SetColHide(i16 Col, bool Value);
    // For a number: the index that this column had when it was made. For a name: the column's index now, -32767 if
    // there is none.
    i16 ColOrder(std::u16string_view index) const;
    // Brings the columns back to the order in which they were made. Repaints once.
    void ReOrderCols();
    // Parks the look of a cell in entry `index`, and gives it back to the place it came from or to another cell. The
    // store grows as needed; entries beyond its end give nothing back. A negative entry is error 9.
    void StoreVisualCell(i16 index, i16 Row, i16 Col);
    void RestoreVisualCell(i16 index);
    void RestoreVisualToCell(i16 index, i16 Row, i16 Col);
    void ClearVisualCell();

    // -- Structure --
    // All that refers to a place follows: spans, selection, current cell, first visible lines, and the title, which
    // keeps its cell. Selected cells are not selected any more where lines come, go or move.

    // New rows in front of a row, or with Row = Rows at the end; a span around them grows over them, and they are not
    // selected. A negative row, one behind the end and a count of 0 do nothing; a negative count is error 9. Lays out
    // anew.
    void InsertRows(i16 Row, i16 Rows = 1);
    // A new column holds in its record what stood at its place, size and look excepted: its Order is that of the column
    // it pushed aside.
    void InsertCols(i16 Col, i16 Cols = 1);
    // Spans shrink; what a span has left below the rows gets its first cell as a parent. A negative row, one that there
    // is not and a count of 0 do nothing; a count beyond the last row is error 9, and nothing has changed. Lays out
    // anew.
    void DeleteRows(i16 Row, i16 Rows = 1);
    // Without columns there is no title: CaptionEnabled is off then.
    void DeleteCols(i16 Col, i16 Cols = 1);
    // At the end the row has the index ToRow, and those between have closed up. Height, colour and record go along,
    // marks of hidden rows stay at their places, columns take all along. Negative indices do nothing, lines that there
    // are not are error 9. Lay out anew.
    void MoveRow(i16 Row, i16 ToRow);
    void MoveCol(i16 Col, i16 ToCol);
    // Fixed lines too. The links of merged cells go along as they are: a line leaves a span across it. The selection
    // follows the lines, the current cell stays, an editor closes with AfterEdit, SwapRows's before the rows change
    // places. Lines before the fixed ones do nothing, those behind the last are error 9. SwapRows repaints, SwapCols
    // lays out anew, as SwapRows does where fixed rows have another height then.
    void SwapRows(i16 Row1, i16 Row2);
    void SwapCols(i16 Col1, i16 Col2);
    // Text, key, picture and look; then the spans, which remove older ones in the way. Repaints.
    void CopyCell(i16 Row, i16 Col, i16 ToRow, i16 ToCol);
    // The same for the cells of a line, spans where the source has them; sizes and line colours stay. The title is left
    // out where its column is written. Lay out anew.
    void CopyRow(i16 Row, i16 ToRow);
    void CopyCol(i16 Col, i16 ToCol);
    // Texts and keys, those of fixed cells only when asked for. An open editor is emptied too, wherever it is, and
    // writes that to its cell: raises TextChange. Refreshes the line.
    void ClearRow(i16 Row, bool AlsoFixedCells = false);
    void ClearCol(i16 Col, bool AlsoFixedCells = false);
    // Looks and sizes of the rectangle go back to the defaults, and all that its columns say of themselves (names,
    // masks, formats, sorting, hidden marks); contents and spans stay. Corners in any order. Lays out anew.
    void ResetCells(i16 Row1, i16 Col1, i16 Row2, i16 Col2);

    // -- Selection --
    // Rectangles of cells, ranges of columns or ranges of rows: one kind at a time. Selecting another kind drops what
    // was selected. Ranges are not joined: a line in two of them counts twice, and is unselected only once. Lines that
    // the table does not have may be selected, too.

    // False for fixed cells, and for cells of selected columns and rows.
    bool CellSelected(i16 Row, i16 Col) const;
    // True adds a range of one line, and does nothing for a fixed line; false takes the line out of the first range
    // that holds it. Always written; repaint.
    bool ColSelected(i16 Col) const;
    void SetColSelected(i16 Col, bool Value);
    bool RowSelected(i16 Row) const;
    void SetRowSelected(i16 Row, bool Value);
    // True adds a range; false takes the rows out of all ranges, be it of rows or of columns. Ends in any order; a
    // fixed row among them does nothing. Repaints.
    void SetRowsSelected(i16 Row1, i16 Row2, bool Value);
    // Of what is selected; 0 where that is of another kind. A cell or line that lies in two ranges counts twice.
    i32 SelectCountCell() const;
    i32 SelectCountCol() const;
    i32 SelectCountRow() const;
    // The first rectangle, its corners as they were given. False, and the arguments unchanged, where none is selected.
    // Begins the walk below anew.
    bool GetSelectedCells(i16& Row1, i16& Col1, i16& Row2, i16& Col2);
    // Selects one rectangle and nothing else; with corners out of order it holds no cell. A fixed corner does nothing.
    // Repaints, whether Redraw is on or not.
    void SetSelectedCells(i16 Row1, i16 Col1, i16 Row2, i16 Col2);
    // A walk over the selected ranges. False, and the arguments unchanged, behind the last one and where lines of
    // another kind are selected.
    void StartSelectedItems();
    bool NextSelectedCols(i16& Col1, i16& Col2);
    bool NextSelectedRows(i16& Row1, i16& Row2);
    // The selected line at a place among all of them; 0 where there is none. To be asked for 0 first and upward from
    // there: a smaller place than the latest gives a line in front of its range.
    i32 SelectItem(i32 index) const;
    // Selects the lines that are not selected, of the kind that is; those that were are not any more. False, and
    // nothing done, without selected columns or rows. Repaints.
    bool InvertSelect();
    // Selects nothing. Lays out anew.
    void DeselectAll();
    // vxCellsEnum: which headers select. Reports itself.
    i32 SelectMode() const;
    void SetSelectMode(i32 Value);
    // Whether a press on a cell that is not fixed selects its row, or else cells. Report themselves.
    bool SelectByRowCol() const;
    void SetSelectByRowCol(bool Value);
    bool CellSelection() const;
    void SetCellSelection(bool Value);

    // -- Geometry --

    // Pixels; 0 while hidden. Negative values count as 0. Written to a hidden line they take effect when it is shown.
    // Lay out anew.
    i16 ColWidth(i16 Col) const;
    void SetColWidth(i16 Col, i16 Value);
    i16 RowHeight(i16 Row) const;
    void SetRowHeight(i16 Row, i16 Value);
    // Share of the room that the other columns leave, in percent; 0 is none. Always written; lays out anew.
    i16 ColWidthPercent(i16 Col) const;
    void SetColWidthPercent(i16 Col, i16 Value);
    // Whether percent widths follow the layout.
    bool ResizingWidth() const;
    void SetResizingWidth(bool Value);
    // Reports itself.
    bool ResizingRows() const;
    void SetResizingRows(bool Value);
    // vxCellsEnum: which lines the user may size. Writes the flags of all rows and columns; reports itself.
    i32 ResizeMode() const;
    void SetResizeMode(i32 Value);
    // vxCellsEnum: whether a filler column and row take the room behind the last ones. Lays out anew, reports itself.
    i32 AdjustLast() const;
    void SetAdjustLast(i32 Value);
    // vxBorderStyleEnum. Lays out anew, reports itself.
    i32 BorderStyle() const;
    void SetBorderStyle(i32 Value);
    // The title: the text of the top fixed row, drawn over the whole width. Cannot be turned on without a fixed row.
    // Lays out anew, reports itself.
    bool CaptionEnabled() const;
    void SetCaptionEnabled(bool Value);
    // At design time a first text adds a fixed row for it and an empty one takes it away. Refreshes the title, reports
    // itself.
    std::u16string Caption() const;
    void SetCaption(std::u16string_view Value);
    // Columns that stand still at the left. Ignored unless ShowSplit is on and the value is from 0 to below the last
    // column's internal index. Repaints, reports itself.
    i16 SplitCols() const;
    void SetSplitCols(i16 Value);
    // Reports itself.
    bool ShowSplit() const;
    void SetShowSplit(bool Value);

    // The cell under a pixel. False outside the cell area, with NoIndex in the direction that found nothing.
    bool GetCellAtPos(i32 x, i32 y, i16& Row, i16& Col) const;
    // The same, moved to the parent of the cell's span.
    bool GetCellParentAtPos(i32 x, i32 y, i16& Row, i16& Col) const;
    // Place of a cell in twips, border included. One that is scrolled out has the place of the first scrolling line.
    void GetPositionCell(i16 Row, i16 Col, i32& x, i32& y) const;
    // Pixels, spans included.
    void GetSizeCell(i16 Row, i16 Col, i16& Width, i16& Height) const;
    // Pixels of a block, spans left out unless it is one cell. Corners in any order.
    void GetSizeCells(i16 Row1, i16 Col1, i16 Row2, i16 Col2, i16& Width, i16& Height) const;
    // Does nothing.
    void getWidthHeightCell(i16 iRow, i16 iCol, i16& iWidth, i16& iHeight) const;
    // By the latest paint; fixed lines always, half-shown first columns not.
    bool IsVisibleCell(i16 Row, i16 Col) const;
    bool IsVisibleRow(i16 Row) const;
    bool IsVisibleCol(i16 Col) const;
    // Pixels of the client area that the bars leave.
    float GetScaleWidth() const;
    float GetScaleHeight() const;

    // -- Fitting to the text --
    // Sizes in pixels that follow from what the cells hold, in their fonts and formats. AdjustHeight and AdjustWidth do
    // not go beyond the area that shows the line, but for columns that scroll by pixels; the host has the last word on
    // what they offer in ResizeRow or ResizeCol. A hidden line takes the size for the time it is shown, a size below 0
    // counts as 0. Error 6 for a size beyond 16 bits, error 9 for a line that is not there. What changes a size lays
    // out anew.

    // The size that the text of one cell needs, with its padding, at the column's present width and the row's height.
    // Words break only where the cell breaks them. Changes nothing.
    void CalcRectText(i16 Row, i16 Col, i32& Width, i32& Height) const;
    // The height for the cells of a row, or for the one in column `Col`. With `AlsoWidth` a column that is too narrow
    // for what does not break is widened on the way, without an event. Raises ResizeRow.
    void AdjustHeight(i16 Row, i16 Col = NoIndex, bool AlsoWidth = false);
    // The width for the cells of a column, or for the one in row `Row`. The title is not measured: alone it changes
    // nothing. Raises ResizeCol.
    void AdjustWidth(i16 Col, i16 Row = NoIndex);
    // The height of `Lines` lines in the control's Font, to all rows that are not fixed and to those that come later.
    // Nothing for less than one line.
    void AutoSizeRows(i16 Lines);

    // -- Scrolling --

    // First scrolling line. Negative values are ignored; large ones go as far as the bar does, and without a bar the
    // view stays. Repaints.
    i16 FirstRow() const;
    void SetFirstRow(i16 Value);
    i16 FirstCol() const;
    void SetFirstCol(i16 Value);
    // Last line that is whole on the screen, from the latest paint. Written, the view moves so that the line comes
    // last; a line that there is not is ignored. Repaints.
    i16 LastRow() const;
    void SetLastRow(i16 Value);
    i16 LastCol() const;
    void SetLastCol(i16 Value);
    // vxScrollEnum. Go back to whole columns, lay out anew, report themselves. ScrollVBar refuses vxScrollSmooth and,
    // in virtual mode, takes vxScrollTrack as vxNormalScroll.
    i32 ScrollHBar() const;
    void SetScrollHBar(i32 Value);
    i32 ScrollVBar() const;
    void SetScrollVBar(i32 Value);
    // Pixels. Writing does nothing.
    i16 ScrollBarSize() const;
    void SetScrollBarSize(i16 Value);
    // Whether a bar takes input.
    bool ScrollHEnabled() const;
    void SetScrollHEnabled(bool Value);
    bool ScrollVEnabled() const;
    void SetScrollVEnabled(bool Value);
    // vxScrollBarStyleEnum; always vxSB3D. Writing does nothing.
    i32 ScrollBarStyle() const;
    void SetScrollBarStyle(i32 Value);
    // Whether a bar shows.
    bool IsVisibleScrollH() const;
    bool IsVisibleScrollV() const;

    // -- Tables in and out --

    // The texts of a rectangle, corners in any order, as plain text on the clipboard: tabs between the cells of a row,
    // CR LF between the rows and none behind the last. A text that holds a CR LF loses its CRs and stands between
    // double quotes; other double quotes stay as they are. When all cells of the last row are empty in a single column,
    // the clipboard stays as it is. Errors 6 and 9 for a corner outside the table.
    void CopyToClipboard(i16 Row1, i16 Col1, i16 Row2, i16 Col2);
    // The plain text on the clipboard as texts of a rectangle, corners in any order, from its first cell on. What does
    // not fit is dropped, cells for which there is nothing keep their text, an empty line leaves its row alone. A field
    // that begins with an odd number of double quotes goes on, over lines too, to one that ends with an odd number or
    // to the end; with more fields behind it in its first line it ends there. Repaints once; no event, mask or
    // validation, and no new rows. Error 6 for a corner beyond 16 bits, 9 for a cell outside the table, after the cells
    // ahead of it.
    void PasteFromClipboard(i16 Row1, i16 Col1, i16 Row2, i16 Col2);
    // Appends the records of an array as rows, and makes its columns the grid's: Cols becomes their number, Rows grows.
    // Every element becomes a text as conversions to text do in the container's locale. Null elements leave their cells
    // alone; with IsNullTest off they raise error 94, and the rows before stay. Repaints once. An array without columns
    // or without records does nothing.
    void LoadFromArray(const VariantArray& Arr, bool IsNullTest = true);

    // -- Batch script: many properties set by one text, see docs/script.md --

    // Adds a text to the script, which keeps it until it is cleared. Always -1.
    i32 VXScriptAdd(std::u16string_view vxScript);
    void VXScriptClear();
    // Runs the script: -1 when all of it was applied up to its very end, else 0, and what stands ahead of the fault
    // stays applied. The row and column that the script sets for what follows hold over runs. Does what the properties
    // it sets do: their errors come out and end the run, as error 6 for a number or place beyond 16 bits. Ends with 0
    // when the control is closed meanwhile.
    i32 VXScriptExecute();

    // -- Current cell --

    // Whether the control takes input from the user: without, its window gives no notice of mouse and keys.
    bool Enabled() const;
    void SetEnabled(bool Value);
    // Of the latest press, 0 behind the events of its click. Shift state of the latest press or move.
    i16 GetMouseButton() const;
    i16 GetMouseShift() const;
    // 0, or 99 while the pointer has the shape for sizing a line.
    i32 MousePointer() const;
    // Whether the user is sizing a line.
    bool IsSizingMode() const;
    // Public row, in virtual mode the place in the list, and public column; NoIndex without a current cell. Written,
    // the editor closes without an event, the cell moves, snaps to the parent of its span and comes into view; the
    // selection stays, and neither CellChange nor ValidateRow is raised. A hidden line, or one without a size, gives
    // way to the next visible one in the direction of the move: where only hidden rows are left the value is ignored,
    // while a column goes on in the row behind or before, and is ignored where there is none. Fixed lines and lines
    // that there are not are ignored, but for the mark of the current cell, which is off until the cell is painted
    // again.
    i32 CurrentRow() const;
    void SetCurrentRow(i32 Value);
    i16 CurrentCol() const;
    void SetCurrentCol(i16 Value);
    // Both at once. Fixed cells are reached, and hidden ones.
    void CurrentPos(i32 Row, i16 Col);
    // Whether the pair is exactly the current cell; a cell inside its span is not. Error 6 for an index beyond 16 bits.
    bool IsCurrent(i16 Row, i16 Col) const;

    // -- Editing in place --
    // A cell of mode vxTextBox, vxComboDropDownBox, vxComboListBox or vxCustom is edited by a window over it. What is
    // typed goes into the cell at once: closing the editor only hides it, and nothing is taken back.

    // Opens the editor of the current cell: BeforeEdit, which refuses by calling ExitEdit, and BeforeCustom. A disabled
    // cell has none. A cell that is not edited comes into view, and the control takes the focus.
    void EnterEdit();
    // Hides the editor without an event. Nothing without a current cell.
    void ExitEdit();
    bool IsEditMode() const;
    // Of the text in the editor, in UTF-16 units; without one they are kept for the next editor that opens. Negative
    // ones are error 5.
    i32 SelStart() const;
    void SetSelStart(i32 Value);
    i32 SelLength() const;
    void SetSelLength(i32 Value);
    // Writing takes the place of the selection and raises TextChange; nothing without an editor.
    std::u16string SelText() const;
    void SetSelText(std::u16string_view Value);
    // The window that edits a vxCustom cell, by the number that the toolkit knows it under; to be written in
    // BeforeCustom, which says where it goes.
    void SetCustomhWnd(std::intptr_t Value);
    // Of the text editor: whether it grows with its text, within the client area. False closes the editor and raises
    // AfterEdit.
    bool TBoxAutoResize() const;
    void SetTBoxAutoResize(bool Value);
    // Whether cells carry the literals of the column's mask.
    bool TBoxIncludeLiteral() const;
    void SetTBoxIncludeLiteral(bool Value);
    // What empty places of the mask show ("_"), and what they are in the cell's text (NUL). The first character counts;
    // "" leaves the one before in force.
    std::u16string TBoxPromptChar() const;
    void SetTBoxPromptChar(std::u16string_view Value);
    std::u16string TBoxReplaceChar() const;
    void SetTBoxReplaceChar(std::u16string_view Value);

    // The list of the combo editor: one for the whole grid, to be filled in BeforeEdit or before. Rows count from 0;
    // those outside the list are error 9.
    //
    // At the end without an index.
    void ComboAddItem(std::u16string_view Item, i16 index = -32767);
    void ComboRemoveItem(i16 index);
    void ComboClear();
    // A number kept with a row; it becomes the key of the cell when the row is chosen.
    i32 ComboItemData(i16 index) const;
    void SetComboItemData(i16 index, i32 Value);
    std::u16string ComboList(i16 index) const;
    void SetComboList(i16 index, std::u16string_view Value);
    // Error 6 for more than 32767 rows, as ComboListIndex for a row behind them.
    i16 ComboListCount() const;
    // -1 for none. Writing it while the combo shows counts as a click in the list and raises TextChange.
    i16 ComboListIndex() const;
    void SetComboListIndex(i16 Value);
    // The row that was added last; -1 when it is gone.
    i16 ComboNewIndex() const;

    // -- Sort --

    // Sorts the rows that are not fixed by the columns of SortOrder; hidden rows too. A row moves as a whole, with its
    // height; the current cell and the first row stay where they are. Takes back SpanRows everywhere, and spans over
    // rows that part; a selection of rows or cells ends. Closes the editor and raises AfterEdit. Repaints. The sort is
    // not stable: the order of rows with equal keys is the method's own, always the same. Without SortOrder a message
    // box says so, and nothing else happens. Error 9 for a key whose column now lies behind the filler, 6 for 29524
    // rows and more: no row has moved.
    void Sort();
    // The place of a column among the keys, from 1, the most significant; 0 for none. Writing it makes the column the
    // last key, at that place: keys behind are dropped, so that 1 begins anew; places that open before it are taken by
    // the outermost column. Each writing turns the column's SortCriteria around: first vxAsc, then vxDesc, vxAsc, ...
    // Values below 1 or above the number of columns, fixed ones counted twice, and columns that are not there are
    // ignored. The keys stay for good and do not follow columns that move.
    i16 SortOrder(i16 Col) const;
    void SetSortOrder(i16 Col, i16 Value);
    // How a column is sorted, whatever its place; they sort nothing themselves. vxOrderEnum: all but vxDesc is
    // ascending.
    i32 SortCriteria(i16 Col) const;
    void SetSortCriteria(i16 Col, i32 Value);
    // vxTypeColEnum. vxAlphaNum compares without regard to case, the first three characters before the whole; vxNumeric
    // and vxDate read the values in the container's locale, 0 for what is no number and ahead of all dates what is
    // none. Other values take no part in the order.
    i32 SortType(i16 Col) const;
    void SetSortType(i16 Col, i32 Value);
    // By keys instead of texts.
    bool SortUseKey(i16 Col) const;
    void SetSortUseKey(i16 Col, bool Value);

    // -- Search --

    // Walks a column down the rows that are not fixed, or a row across the columns that are not, hidden ones too, and
    // raises SearchResult for each text (eType vxText) or key (vxKey) that is the one looked for, with its row or
    // column in Pos; the walk goes on behind Pos, wherever the host moves it. Gives the number of hits. Nothing is
    // selected or scrolled.
    //
    // Case does not count. A Wildcard at the front of SearchString, at its end or at both finds texts that end with the
    // rest, begin with it or contain it; one that stands only inside finds nothing. SearchRow alone compares the ends
    // of keys to the letter. Error 5 for a SearchString that begins and ends with the Wildcard and is shorter than two
    // of them, 6 for more than 32767 hits and for a Pos that leaves 16 bits, 9 for a Row or Col behind the filler and
    // for a Pos ahead of its first line; one behind the last line ends the walk.
    i16 SearchRow(
        i32 eType, i16 Col, std::u16string_view SearchString, i16 IdSearch, std::u16string_view Wildcard = u"");
    i16 SearchCol(
        i32 eType, i16 Row, std::u16string_view SearchString, i16 IdSearch, std::u16string_view Wildcard = u"");

    // -- Virtual mode, as far as it is read --

    // Rows of the page, 0 without virtual mode; place of the page in the list.
    i16 VirtualPageSize() const;
    i32 VirtualOffset() const;

private:
    class Call;
    Call Enter() const;

    std::unique_ptr<Control> control_;
};

} // namespace vornix
