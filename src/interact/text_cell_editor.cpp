#include "interact/text_cell_editor.h"

#include "automation/checked.h"
#include "automation/format_patterns.h"
#include "automation/key_codes.h"
#include "interact/keyboard.h"

#include <algorithm>

namespace vornix {

namespace {

// Pixels that a box which grows leaves free at the far edges of the area.
constexpr int FreeEdge = 20;

i16 InShort(int value)
{
    return static_cast<i16>(std::clamp(value, -32768, 32767));
}

bool IsArrow(int key)
{
    return key >= Keys::Left && key <= Keys::Down;
}

} // namespace

TextCellEditor::TextCellEditor(EditedCell& edited, EditContext& context)
    : edited_(edited)
    , context_(context)
    , frame_(context.container.Child(ChildName::fraEdit))
    , window_(context.container.Child(ChildName::txtTmp))
    , native_(OrUnseen(context.container.TextEditor(), unseen_))
    , box_(window_, native_, *this, *this)
{
}

// -- Opening --

const CellFormat& TextCellEditor::Format() const
{
    const auto [row, col] = edited_.Cell();
    return context_.store.Format(row, col);
}

// The text, or what the column's format makes of it. A mask has a place for each character, line ends among them.
std::u16string TextCellEditor::ShownText() const
{
    const auto [row, col] = edited_.Cell();
    std::u16string text = context_.store.CellAt(row, col).Text();
    const Column& column = context_.store.ColumnAt(col);
    if (!column.Format.empty())
        text = FormatText(text, column.Format, GetLocale());
    return box_.MultiLine() && column.Mask.empty() ? WithLineEnds(text) : text;
}

bool TextCellEditor::Open()
{
    if (edited_.Place().TextFrame().IsEmpty())
        return false;
    frame_.Move(edited_.Place().TextFrame());
    SetLimits();
    TakeKind();
    box_.SetMask(context_.store.ColumnAt(edited_.Cell().col).Mask);
    box_.SetText(ShownText());
    PlaceBox();
    box_.SetEnabled(true);
    edited_.ShowFrame(frame_.Place());
    window_.Show(true);
    box_.Show();
    SetFocus();
    edited_.TakePendingSelection(native_);
    return true;
}

void TextCellEditor::TakeKind()
{
    const i32 alignment = Format().TextAlignment;
    box_.InitializeTextBox((alignment & vxTxtRight) != 0 ? 1 : 0, (alignment & vxSingleLine) == 0);
}

// Between which sizes the box grows.
void TextCellEditor::SetLimits()
{
    if (!box_.AutoResize())
        return;
    const Rect frame = edited_.Place().TextFrame();
    box_.SetNormalWidth(InShort(frame.Width()));
    box_.SetNormalHeight(InShort(frame.Height()));
    box_.SetMaxWidth(InShort(context_.layout.ClientWidth() - context_.layout.FrozenColsWidth() - FreeEdge));
    box_.SetMaxHeight(InShort(context_.layout.ClientHeight() - context_.layout.FixedRowsHeight() - FreeEdge));
}

void TextCellEditor::PlaceBox()
{
    box_.SetRightToLeft((Format().TextAlignment & static_cast<i32>(DT_RTLREADING)) != 0);
    const EditPlace& place = edited_.Place();
    if (place.TextWidth() > 0) {
        const Rect target = place.TextFrame();
        const Size size = box_.AutoResize() ? frame_.Place().GetSize() : target.GetSize();
        frame_.Move({ target.left, target.top, target.left + size.width, target.top + size.height });
        window_.Move({ 0, 0, size.width, size.height });
        if (box_.AutoResize())
            KeepFrameInside();
    }
    TakeLook();
}

void TextCellEditor::TakeLook()
{
    const CellFormat format = Format();
    box_.SetFontName(format.FontName.View());
    box_.SetFontBold(format.FontBold);
    box_.SetFontItalic(format.FontItalic);
    if (format.FontSize > 0)
        box_.SetFontSize(format.FontSize);
    box_.SetForeColor(format.ForeColor);
    box_.SetBackColor(format.BackColor);
}

// A frame that has grown moves back over the edge that it has passed.
void TextCellEditor::KeepFrameInside()
{
    Rect place = frame_.Place();
    const int beyondX = std::max(0, place.right - context_.layout.ClientWidth());
    const int beyondY = std::max(0, place.bottom - context_.layout.ClientHeight());
    if (beyondX == 0 && beyondY == 0)
        return;
    place.left -= beyondX;
    place.right -= beyondX;
    place.top -= beyondY;
    place.bottom -= beyondY;
    frame_.Move(place);
}

void TextCellEditor::Hide()
{
    window_.Show(false);
}

void TextCellEditor::PlaceAnew(bool withText)
{
    SetLimits();
    TakeKind();
    PlaceBox();
    if (withText)
        box_.SetText(ShownText());
}

void TextCellEditor::SetAutoResize(bool autoResize)
{
    box_.SetAutoResize(autoResize);
    if (IsVisible() && edited_.IsOpen())
        SetLimits();
}

// -- What the user does --

void TextCellEditor::Empty()
{
    // A form keeps the values of its places where an empty text is assigned; one that is written anew has none.
    box_.SetMask(std::u16string(box_.Mask()));
    box_.SetText({});
    const CellIndex cell = edited_.Cell();
    if (context_.store.CellAt(cell.row, cell.col).HasText())
        edited_.WriteText({});
}

// The engine may have gone on behind a handler that has closed this editor and opened one of another kind.
void TextCellEditor::Change()
{
    if (IsVisible() && edited_.IsOpen())
        edited_.WriteText(box_.Text());
}

void TextCellEditor::KeyDown(i16& KeyCode, i16& Shift)
{
    context_.current.HostMovedCurrent = false;
    const bool wasVisible = IsVisible();
    context_.events.KeyDown(KeyCode, Shift);
    if (KeyCode == 0 && wasVisible && !IsVisible())
        context_.container.Child(ChildName::cPivot).SetFocus();
    if (KeyCode == Keys::Escape)
        edited_.CloseByUser();
}

// What was typed to come here must not be typed into the editor that opened by it.
void TextCellEditor::KeyPress(i16& KeyAscii)
{
    try {
        context_.events.KeyPress(KeyAscii);
    } catch (const AutomationError&) {
    }
    if (context_.current.HostMovedCurrent)
        KeyAscii = 0;
}

void TextCellEditor::KeyUp(i16& KeyCode, i16& Shift)
{
    try {
        context_.events.KeyUp(KeyCode, Shift);
    } catch (const AutomationError&) {
    }
    if (context_.current.HostMovedCurrent)
        KeyCode = 0;
}

void TextCellEditor::KeyArrowMove(i16& KeyCode)
{
    if (IsArrow(KeyCode))
        context_.keyboard.PlainKey(KeyCode, Shifts::None);
    if (context_.current.HostMovedCurrent)
        KeyCode = 0;
}

void TextCellEditor::DblClick()
{
    if (!edited_.IsOpen())
        return;
    edited_.RaiseForCell(&VornixEvents::CellDblClick);
    if (edited_.IsOpen())
        TakeLook();
}

void TextCellEditor::MouseMove(i16 Button, i16 Shift, float x, float y)
{
    const Rect frame = frame_.Place();
    const Rect place = window_.Place();
    edited_.PointerOverEditor(
        Button, Shift, x + static_cast<float>(frame.left + place.left), y + static_cast<float>(frame.top + place.top));
}

void TextCellEditor::Resize()
{
    if (!IsVisible())
        return;
    const Rect place = window_.Place();
    const Rect frame = frame_.Place();
    frame_.Move({ frame.left, frame.top, frame.left + place.Width(), frame.top + place.Height() });
    KeepFrameInside();
}

} // namespace vornix
