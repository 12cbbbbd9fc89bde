#include "interact/combo_cell_editor.h"

#include "automation/checked.h"
#include "automation/colors.h"
#include "automation/key_codes.h"
#include "automation/scoped_flag.h"
#include "interact/keyboard.h"
#include "interact/mouse.h"

#include <string>

namespace vornix {

namespace {

std::u16string DecimalText(i32 number)
{
    const std::string digits = std::to_string(number);
    return { digits.begin(), digits.end() };
}

bool IsTyped(i16 shift)
{
    return (shift & Shifts::Ctrl) == 0 || (shift & Shifts::Alt) != 0;
}

} // namespace

ComboCellEditor::ComboCellEditor(EditedCell& edited, EditContext& context)
    : edited_(edited)
    , context_(context)
    , frame_(context.container.Child(ChildName::fraEdit))
    , window_(context.container.Child(ChildName::cboTmp))
    , native_(OrUnseen(context.container.ComboEditor(), unseen_))
{
    native_.SetItems(&list_);
}

ComboCellEditor::~ComboCellEditor()
{
    native_.SetItems(nullptr);
}

// -- Opening --

const CellFormat& ComboCellEditor::Format() const
{
    const auto [row, col] = edited_.Cell();
    return context_.store.Format(row, col);
}

Cell& ComboCellEditor::EditCell()
{
    const auto [row, col] = edited_.Cell();
    return context_.store.EditCell(row, col);
}

bool ComboCellEditor::IsListOnly() const
{
    return Format().Mode == vxComboListBox;
}

void ComboCellEditor::Prepare(CellIndex cell)
{
    native_.SetText({});
    search_.clear();
    context_.lists.FillCombo(cell);
}

bool ComboCellEditor::Open()
{
    if (edited_.Place().ListFrame().IsEmpty())
        return false;
    PlaceAnew(false);
    SetStartText();
    window_.SetEnabled(true);
    edited_.ShowFrame(frame_.Place());
    window_.Show(true);
    SetFocus();
    edited_.TakePendingSelection(native_);
    return true;
}

void ComboCellEditor::PlaceBox()
{
    native_.SetRightToLeft((Format().TextAlignment & static_cast<i32>(DT_RTLREADING)) != 0);
    if (edited_.Place().ListWidth() > 0) {
        const Rect frame = edited_.Place().ListFrame();
        frame_.Move(frame);
        window_.Move({ 0, 0, frame.Width(), frame.Height() });
    }
    TakeLook();
}

void ComboCellEditor::TakeLook()
{
    const CellFormat& format = Format();
    FontObject font;
    font.Name = format.FontName.View();
    font.Size = format.FontSize;
    font.Bold = format.FontBold;
    font.Italic = format.FontItalic;
    const SystemColors& colors = context_.container.Colors();
    native_.SetFont(font);
    native_.SetColors(OleTranslateColor(format.ForeColor, colors), OleTranslateColor(format.BackColor, colors));
}

// A host may have set a text before.
void ComboCellEditor::SetStartText()
{
    if (native_.Text().empty()) {
        const std::u16string text = EditCell().Text();
        const int found = IsListOnly() && !text.empty() ? list_.Find(text) : ComboList::None;
        if (!IsListOnly())
            native_.SetText(text);
        else if (found != ComboList::None)
            native_.SetListIndex(found);
    }
    lastText_ = native_.Text();
}

void ComboCellEditor::Hide()
{
    window_.Show(false);
}

void ComboCellEditor::PlaceAnew(bool withText)
{
    native_.SetListOnly(IsListOnly());
    PlaceBox();
    if (!withText)
        return;
    native_.SetText({});
    SetStartText();
}

void ComboCellEditor::Empty()
{
    native_.SetText({});
    lastText_.clear();
    const bool hadText = EditCell().HasText();
    EditCell().SetText({});
    EditCell().SetKey({});
    if (hadText)
        edited_.RaiseForCell(&VornixEvents::TextChange);
}

// -- The list, as hosts reach it --

void ComboCellEditor::AddItem(int index, std::u16string_view text)
{
    const int selected = native_.ListIndex();
    list_.Insert(index, text);
    native_.ItemsChanged();
    if (selected >= index)
        MoveSelectedRow(selected + 1);
}

void ComboCellEditor::RemoveItem(int index)
{
    const int selected = native_.ListIndex();
    list_.Remove(index);
    native_.ItemsChanged();
    if (selected == index)
        MoveSelectedRow(ComboList::None);
    else if (selected > index)
        MoveSelectedRow(selected - 1);
}

void ComboCellEditor::ClearList()
{
    const bool hasRow = native_.ListIndex() != ComboList::None;
    list_.Clear();
    native_.ItemsChanged();
    if (hasRow)
        MoveSelectedRow(ComboList::None);
}

// The row that is selected is at another place, or is no more. What the field shows and selects stays.
void ComboCellEditor::MoveSelectedRow(int index)
{
    const std::u16string text = native_.Text();
    const int start = native_.SelStart();
    const int length = native_.SelLength();
    if (index == ComboList::None)
        native_.SetText(text);
    else
        native_.SetListIndex(index);
    native_.SetSelStart(start);
    native_.SetSelLength(length);
}

void ComboCellEditor::SetItemText(int index, std::u16string_view text)
{
    list_.SetText(index, text);
    native_.ItemsChanged();
    if (native_.ListIndex() == index)
        native_.SetListIndex(index);
}

void ComboCellEditor::SetListIndex(int index)
{
    if (index < ComboList::None || index >= list_.Count())
        RaiseError(ErrorNumber::SubscriptOutOfRange);
    native_.SetListIndex(index);
    Click();
}

void ComboCellEditor::SetSelText(std::u16string_view text)
{
    if (IsListOnly() || (text.empty() && native_.SelLength() == 0))
        return;
    native_.SetSelText(text);
    TextChanged();
}

// -- What the user does --

// Rows of a record source have keys of their own in place of the number.
void ComboCellEditor::TakeKeyOfRow()
{
    if (context_.store.ColumnAt(edited_.Cell().col).Source.empty())
        EditCell().SetKey(DecimalText(list_.ItemData(native_.ListIndex())));
}

void ComboCellEditor::Click()
{
    if (!IsOpen())
        return;
    lastText_ = native_.Text();
    const std::u16string before = EditCell().Text();
    EditCell().SetText({});
    if (native_.ListIndex() >= 0) {
        EditCell().SetText(lastText_);
        TakeKeyOfRow();
    }
    if (!EditCell().TextEquals(before))
        edited_.RaiseForCell(&VornixEvents::TextChange);
    context_.mouse.ExitHover();
}

void ComboCellEditor::TextChanged()
{
    if (!IsOpen() || IsListOnly())
        return;
    const std::u16string text = native_.Text();
    if (EditCell().TextEquals(text))
        return;
    EditCell().SetText(text);
    if (native_.ListIndex() < 0)
        EditCell().SetKey({});
    else
        TakeKeyOfRow();
    edited_.RaiseForCell(&VornixEvents::TextChange);
}

void ComboCellEditor::KeyDown(i16& KeyCode, i16& Shift)
{
    if (isInKeyDown_)
        return;
    const ScopedFlag inKeyDown(isInKeyDown_);
    context_.current.HostMovedCurrent = false;
    context_.events.KeyDown(KeyCode, Shift);
    if (KeyCode == Keys::Escape)
        edited_.CloseByUser();
    if (Shift == Shifts::None)
        LeaveByArrow(KeyCode);
    if (context_.current.HostMovedCurrent)
        KeyCode = 0;
}

// Up and Down stay with the list.
void ComboCellEditor::LeaveByArrow(int key)
{
    if ((key == Keys::Left || key == Keys::Right) && IsAtEdge(key)) {
        try {
            context_.keyboard.PlainKey(key, Shifts::None);
        } catch (const AutomationError&) {
        }
    }
}

// A text that is selected whole is left at either end.
bool ComboCellEditor::IsAtEdge(int key) const
{
    const int length = static_cast<int>(native_.Text().size());
    const int selected = native_.SelLength();
    if (selected > 0)
        return selected == length;
    return native_.SelStart() == (key == Keys::Left ? 0 : length);
}

void ComboCellEditor::KeyPress(i16& KeyAscii, i16 Shift)
{
    context_.current.HostMovedCurrent = false;
    context_.events.KeyPress(KeyAscii);
    if (KeyAscii == 0)
        return;
    if (IsOpen()) {
        if (IsListOnly() && IsTyped(Shift))
            Search(static_cast<char16_t>(KeyAscii));
        lastText_ = native_.Text();
    }
    if (context_.current.HostMovedCurrent)
        KeyAscii = 0;
}

// Errors of handlers are ignored.
void ComboCellEditor::ClickRow(int index)
{
    try {
        SetListIndex(index);
    } catch (const AutomationError&) {
    }
}

// What was found counts as clicked.
void ComboCellEditor::Search(char16_t character)
{
    search_ += character;
    context_.container.SetTimer(SearchPause, true);
    const int length = static_cast<int>(search_.size());
    const int found = list_.FindStart(search_, context_.container.GetLocale());
    const std::uint32_t session = edited_.Session();
    if (found != ComboList::None)
        ClickRow(found);
    else if (native_.Text() != lastText_)
        native_.SetText(lastText_);
    if (edited_.Session() != session)
        return;
    native_.SetSelStart(0);
    native_.SetSelLength(length);
}

void ComboCellEditor::KeyUp(i16& KeyCode, i16& Shift)
{
    context_.current.HostMovedCurrent = false;
    context_.events.KeyUp(KeyCode, Shift);
    if (context_.current.HostMovedCurrent)
        KeyCode = 0;
}

void ComboCellEditor::MouseMove(i16 Button, i16 Shift, float x, float y)
{
    const Rect frame = frame_.Place();
    edited_.PointerOverEditor(Button, Shift, x + static_cast<float>(frame.left), y + static_cast<float>(frame.top));
}

} // namespace vornix
