#include "interact/edit_session.h"

#include "automation/checked.h"
#include "automation/colors.h"
#include "interact/current_cell_mover.h"
#include "interact/mouse.h"

#include <algorithm>
#include <limits>

namespace vornix {

namespace {

bool IsCombo(i32 mode)
{
    return mode == vxComboDropDownBox || mode == vxComboListBox;
}

bool IsEdited(i32 mode)
{
    return mode == vxTextBox || mode == vxCustom || IsCombo(mode);
}

// At the edge of the numbers where a host asks for more.
int EndOf(i32 start, i32 length)
{
    constexpr std::int64_t most = std::numeric_limits<i32>::max();
    constexpr std::int64_t least = std::numeric_limits<i32>::min();
    return static_cast<int>(std::clamp(std::int64_t { start } + length, least, most));
}

void RequireNotNegative(i32 value)
{
    if (value < 0)
        RaiseError(ErrorNumber::InvalidArgument);
}

} // namespace

EditSession::EditSession(EditContext context)
    : context_(context)
    , text_(*this, context_)
    , combo_(*this, context_)
{
    Settings.TBoxPromptChar = text_.Box().PromptChar();
    Settings.TBoxReplaceChar = text_.Box().ReplaceChar();
}

void EditSession::ApplySettings()
{
    TextBox& box = text_.Box();
    box.SetAutoResize(Settings.TBoxAutoResize);
    box.SetIncludeLiteral(Settings.TBoxIncludeLiteral);
    box.SetPromptChar(Settings.TBoxPromptChar);
    box.SetReplaceChar(Settings.TBoxReplaceChar);
}

// -- The cell, as its editors see it --

bool EditSession::IsOpen() const
{
    return IsEditMode() && context_.mover.IsReal(cell_);
}

bool EditSession::IsEditMode() const
{
    return context_.container.Child(ChildName::fraEdit).IsVisible();
}

void EditSession::RaiseForCell(void (VornixEvents::*event)(i16 Row, i16 Col))
{
    const CellIndex place = context_.mover.PublicPlaceOf(cell_);
    (context_.events.*event)(ToI16(place.row), ToI16(place.col));
}

void EditSession::WriteText(std::u16string_view text)
{
    context_.store.EditCell(cell_.row, cell_.col).SetText(text);
    RaiseForCell(&VornixEvents::TextChange);
}

void EditSession::ShowFrame(const Rect& place)
{
    ChildWindow& frame = context_.container.Child(ChildName::fraEdit);
    frame.Move(place);
    frame.Show(true);
    frame.Raise();
    isShown_ = true;
}

void EditSession::TakePendingSelection(EditBox& box)
{
    if (!hasPendingSelection_)
        return;
    hasPendingSelection_ = false;
    box.SetSelStart(pendingSelStart_);
    box.SetSelLength(pendingSelLength_);
}

void EditSession::EmptyContent()
{
    if (!IsOpen())
        return;
    if (text_.IsVisible())
        text_.Empty();
    else if (combo_.IsVisible())
        combo_.Empty();
}

// -- Opening --

bool EditSession::HasEditorFor(i32 mode) const
{
    if (mode == vxTextBox)
        return context_.container.TextEditor() != nullptr;
    return !IsCombo(mode) || context_.container.ComboEditor() != nullptr;
}

// Whether the session has neither ended nor begun anew since, and its cell is there still.
bool EditSession::IsCurrent(std::uint32_t session) const
{
    return session_ == session && context_.mover.IsReal(cell_);
}

void EditSession::OpenEditor(int row, int col)
{
    if (isDisposed_)
        return;
    const CellIndex cell { row, col };
    EmptySelection();
    if (isDisposed_ || !context_.mover.IsReal(cell))
        return;
    context_.scrolling.EnsureCellVisible(row, col);
    HideEditor();
    context_.repainter.RefreshCellUnderGate(row, col);
    if (isDisposed_ || !context_.mover.IsReal(cell) || !HasEditorFor(ModeOf(cell)))
        return;
    cell_ = cell;
    const std::uint32_t session = ++session_;
    if (IsCombo(ModeOf(cell)))
        combo_.Prepare(cell);
    if (IsEdited(ModeOf(cell)))
        AskHost();
    if (!IsCurrent(session)) {
        if (session_ == session)
            ForgetEditCell();
        return;
    }
    ShowEditor();
    pendingSelStart_ = pendingSelLength_ = 0;
}

void EditSession::EmptySelection()
{
    if (context_.selection.Ranges().Mode() == SelectionKind::None)
        return;
    context_.selection.Ranges().RemoveAll();
    context_.repainter.RepaintUnderGate();
}

// The host refuses by ending the session.
void EditSession::AskHost()
{
    const CurrentCell::EventGuard guard(context_.current);
    RaiseForCell(&VornixEvents::BeforeEdit);
}

void EditSession::ShowEditor()
{
    place_ = EditPlace(context_.layout, cell_, context_.store.Format(cell_.row, cell_.col));
    const std::uint32_t session = session_;
    bool isShown = false;
    switch (ModeOf(cell_)) {
    case vxTextBox:
        isShown = text_.Open();
        break;
    case vxComboDropDownBox:
    case vxComboListBox:
        isShown = combo_.Open();
        break;
    case vxCustom:
        return ShowCustom();
    default:
        return ForgetEditCell();
    }
    if (isShown && IsCurrent(session))
        RepaintCell();
}

void EditSession::ShowCustomFrame()
{
    const OleColor ground = context_.store.Format(cell_.row, cell_.col).BackColor;
    context_.container.Child(ChildName::fraEdit).SetBackColor(OleTranslateColor(ground, context_.container.Colors()));
    ShowFrame(place_.CustomFrame());
}

// The frame in the colour of the cell, and over it the window that the host names during the event.
void EditSession::ShowCustom()
{
    if (place_.ListWidth() < 1 || place_.cell.Height() < 1)
        return;
    const std::uint32_t session = session_;
    context_.container.HideHostWindow(customWindow_);
    ShowCustomFrame();
    RepaintCell();
    if (!IsCurrent(session))
        return;
    customWindow_ = 0;
    const CellIndex asked = context_.mover.PublicPlaceOf(cell_);
    const Rect frame = place_.CustomFrame();
    i32 x = frame.left;
    i32 y = frame.top;
    i32 width = frame.Width();
    i32 height = frame.Height();
    {
        const CurrentCell::EventGuard guard(context_.current);
        context_.events.BeforeCustom(ToI16(asked.row), ToI16(asked.col), x, y, width, height);
    }
    if (customWindow_ == 0 || !IsCurrent(session) || !isShown_)
        return;
    context_.container.ShowHostWindow(customWindow_, { x, y, EndOf(x, width), EndOf(y, height) });
    context_.container.FocusHostWindow(customWindow_);
}

// -- Entering and leaving --

void EditSession::EnterEdit()
{
    CurrentCellMover& mover = context_.mover;
    if (!mover.HasCurrent())
        return;
    const CellIndex cell = mover.Current();
    const CellFormat& format = context_.store.Format(cell.row, cell.col);
    if (!IsEdited(format.Mode)) {
        mover.BringIntoView();
        mover.Repaint();
        context_.container.SetFocus();
    } else if (!format.Disabled) {
        OpenEditor(cell.row, cell.col);
    }
}

// The focus moves while they go, and whoever hears of it must find no editor any more.
void EditSession::HideEditor()
{
    isShown_ = false;
    text_.Hide();
    combo_.Hide();
    context_.container.Child(ChildName::fraEdit).Show(false);
    context_.container.HideHostWindow(customWindow_);
}

void EditSession::ForgetEditCell()
{
    if (isShown_)
        HideEditor();
    cell_ = { NoIndex, NoIndex };
    ++session_;
}

void EditSession::ExitEdit()
{
    if (!context_.mover.HasCurrent())
        return;
    HideEditor();
    const std::uint32_t session = session_;
    RepaintCell();
    EndSession(session);
}

void EditSession::Close(bool repaint)
{
    if (!isShown_)
        return;
    const std::uint32_t session = session_;
    HideEditor();
    text_.SetEnabled(false);
    combo_.SetEnabled(false);
    if (repaint)
        RepaintCell();
    try {
        if (IsCurrent(session))
            RaiseForCell(&VornixEvents::AfterEdit);
    } catch (...) {
        const CellIndex left = cell_;
        EndSession(session);
        // Whoever was to paint it later will not.
        if (context_.mover.IsReal(left))
            context_.repainter.RefreshCellUnderGate(left.row, left.col);
        throw;
    }
    EndSession(session);
}

void EditSession::CloseEveryEditor()
{
    Close(false);
    if (isShown_)
        Reset();
}

// Unless a handler has opened the next editor.
void EditSession::EndSession(std::uint32_t session)
{
    if (session_ == session)
        ForgetEditCell();
}

void EditSession::Reset()
{
    HideEditor();
    ForgetEditCell();
}

void EditSession::Dispose()
{
    Reset();
    isDisposed_ = true;
}

void EditSession::AdjustForCols(int delta)
{
    if (cell_.col != NoIndex)
        cell_.col += delta;
}

void EditSession::SetAutoResize(bool autoResize)
{
    text_.SetAutoResize(autoResize);
    if (!autoResize)
        Close(true);
}

void EditSession::RepaintCell()
{
    if (context_.mover.IsReal(cell_))
        context_.repainter.RefreshCellUnderGate(cell_.row, cell_.col);
}

void EditSession::Reload(CellIndex cell)
{
    if (IsEditorOpenOn(cell))
        PlaceAnew(true);
}

void EditSession::FollowLayout()
{
    PlaceAnew(false);
}

void EditSession::PlaceAnew(bool withText)
{
    if (!isShown_ || !IsOpen())
        return;
    place_ = EditPlace(context_.layout, cell_, context_.store.Format(cell_.row, cell_.col));
    if (text_.IsVisible())
        text_.PlaceAnew(withText);
    else if (combo_.IsVisible())
        combo_.PlaceAnew(withText);
    else
        ShowCustomFrame();
}

// -- Focus and pointer --

void EditSession::TakeFocus()
{
    if (!IsOpen())
        return;
    const i32 mode = ModeOf(cell_);
    if (mode == vxTextBox)
        text_.SetFocus();
    else if (IsCombo(mode))
        combo_.SetFocus();
    else if (mode == vxCustom)
        context_.container.FocusHostWindow(customWindow_);
}

void EditSession::TakeFocusShown()
{
    if (text_.IsVisible())
        text_.SetFocus();
    else if (combo_.IsVisible())
        combo_.SetFocus();
    else if (customWindow_ != 0)
        context_.container.FocusHostWindow(customWindow_);
}

void EditSession::PointerMoved(i16 button, i16 shift, float x, float y)
{
    if (context_.sizing.IsCursorShown())
        context_.sizing.RestoreCursor();
    context_.mouse.Move(button, shift, x, y);
}

// -- What hosts reach of the editor --

EditBox* EditSession::ShownBox() const
{
    if (!isShown_)
        return nullptr;
    if (combo_.IsVisible())
        return context_.container.ComboEditor();
    return text_.IsVisible() ? context_.container.TextEditor() : nullptr;
}

i32 EditSession::SelStart() const
{
    const EditBox* const box = ShownBox();
    return box ? box->SelStart() : pendingSelStart_;
}

void EditSession::WriteSelStart(i32 start)
{
    RequireNotNegative(start);
    if (EditBox* const box = ShownBox())
        return box->SetSelStart(start);
    pendingSelStart_ = start;
    hasPendingSelection_ = true;
}

i32 EditSession::SelLength() const
{
    const EditBox* const box = ShownBox();
    return box ? box->SelLength() : pendingSelLength_;
}

void EditSession::WriteSelLength(i32 length)
{
    RequireNotNegative(length);
    if (EditBox* const box = ShownBox())
        return box->SetSelLength(length);
    pendingSelLength_ = length;
    hasPendingSelection_ = true;
}

std::u16string EditSession::SelText() const
{
    const EditBox* const box = ShownBox();
    return box ? box->SelText() : std::u16string();
}

void EditSession::WriteSelText(std::u16string_view text)
{
    if (!isShown_)
        return;
    if (combo_.IsVisible())
        combo_.SetSelText(text);
    else if (text_.IsVisible())
        text_.Box().SetSelText(text);
}

void EditSession::SetSelStart(int place)
{
    if (EditBox* const box = ShownBox())
        box->SetSelStart(place);
}

} // namespace vornix
