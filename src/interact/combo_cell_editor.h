// The editor of combo cells: the combo box cboTmp in the frame fraEdit, over one list for the whole grid. Cells of
// vxComboDropDownBox take what is typed, those of vxComboListBox search the list for it. Internal indices.
#pragma once

#include "interact/combo_list.h"
#include "interact/edit_context.h"
#include "textbox/unseen_boxes.h"

namespace vornix {

class ComboCellEditor final : public ComboBoxListener {
public:
    // Milliseconds without a key that end what is searched for.
    static constexpr int SearchPause = 500;

    ComboCellEditor(EditedCell& edited, EditContext& context);
    ~ComboCellEditor() override;

    NativeComboBox& Native() { return native_; }

    // Before the host is asked: without a text, and with the list of the record source where the column has one.
    void Prepare(CellIndex cell);
    // Over the cell of the session. False when the cell is too narrow, and nothing shows.
    bool Open();
    void Hide();
    void SetEnabled(bool enabled) { window_.SetEnabled(enabled); }
    bool IsVisible() const { return window_.IsVisible(); }
    bool SetFocus() { return window_.SetFocus(); }
    // Place and look of the cell, and its text where that may be another one.
    void PlaceAnew(bool withText);
    // Its text goes, and with it text and key of the cell. Raises TextChange where the cell had one.
    void Empty();
    void ForgetSearch() { search_.clear(); }

    // -- The list, as hosts reach it --

    const ComboList& List() const { return list_; }
    void AddItem(int index, std::u16string_view text);
    void RemoveItem(int index);
    void ClearList();
    void SetItemText(int index, std::u16string_view text);
    void SetItemData(int index, i32 data) { list_.SetItemData(index, data); }
    int ListIndex() const { return native_.ListIndex(); }
    // Counts as a click in the list. Error 9 outside it.
    void SetListIndex(int index);
    // Counts as typing.
    void SetSelText(std::u16string_view text);

    // -- What the user does --

    void KeyDown(i16& KeyCode, i16& Shift) override;
    void KeyPress(i16& KeyAscii, i16 Shift) override;
    void KeyUp(i16& KeyCode, i16& Shift) override;
    void TextChanged() override;
    void Click() override;
    void MouseMove(i16 Button, i16 Shift, float x, float y) override;

private:
    bool IsOpen() const { return IsVisible() && edited_.IsOpen(); }
    bool IsListOnly() const;
    const CellFormat& Format() const;
    Cell& EditCell();
    void TakeLook();
    void PlaceBox();
    void SetStartText();
    void MoveSelectedRow(int index);
    void TakeKeyOfRow();
    bool IsAtEdge(int key) const;
    void LeaveByArrow(int key);
    void ClickRow(int index);
    void Search(char16_t character);

    EditedCell& edited_;
    EditContext& context_;
    ChildWindow& frame_;
    ChildWindow& window_;
    UnseenComboBox unseen_;
    NativeComboBox& native_;
    ComboList list_;
    std::u16string search_;
    // The text of the box after the latest key or click.
    std::u16string lastText_;
    bool isInKeyDown_ = false;
};

} // namespace vornix
