// The editor of vxTextBox cells: the text box txtTmp in the frame fraEdit, with the mask of the column. What is typed
// goes into the cell at once. Internal indices.
#pragma once

#include "interact/edit_context.h"
#include "textbox/unseen_boxes.h"
#include "vornix/text_box.h"

namespace vornix {

class TextCellEditor final : private TextBoxEvents, private TextBoxSite {
public:
    TextCellEditor(EditedCell& edited, EditContext& context);

    TextBox& Box() { return box_; }
    const TextBox& Box() const { return box_; }
    NativeEditBox& Native() { return native_; }

    // Over the cell of the session. False when the cell is too narrow, and nothing shows.
    bool Open();
    void Hide();
    void SetEnabled(bool enabled) { box_.SetEnabled(enabled); }
    bool IsVisible() const { return window_.IsVisible(); }
    bool SetFocus() { return window_.SetFocus(); }
    // Place and look of the cell, and its text where that may be another one.
    void PlaceAnew(bool withText);
    // Its text goes, and with it that of the cell. Raises TextChange where the cell had one.
    void Empty();
    void SetAutoResize(bool autoResize);

private:
    void Change() override;
    void KeyDown(i16& KeyCode, i16& Shift) override;
    void KeyPress(i16& KeyAscii) override;
    void KeyUp(i16& KeyCode, i16& Shift) override;
    void KeyArrowMove(i16& KeyCode) override;
    void DblClick() override;
    void MouseMove(i16 Button, i16 Shift, float x, float y) override;
    void Resize() override;

    const Locale& GetLocale() const override { return context_.container.GetLocale(); }
    const SystemColors& Colors() const override { return context_.container.Colors(); }
    FontPtr AmbientFont() const override { return context_.container.AmbientFont(); }
    void PropertyChanged(std::string_view) override { }

    const CellFormat& Format() const;
    std::u16string ShownText() const;
    void TakeKind();
    void SetLimits();
    void PlaceBox();
    void KeepFrameInside();
    void TakeLook();

    EditedCell& edited_;
    EditContext& context_;
    ChildWindow& frame_;
    ChildWindow& window_;
    UnseenEditBox unseen_;
    NativeEditBox& native_;
    TextBox box_;
};

} // namespace vornix
