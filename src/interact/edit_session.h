// Editing in place: one editor at most, over one cell. It writes into the cell while the user types, so that closing it
// only hides it. Internal indices.
//
// Handlers of the events may do anything, closing the session or the control included: what a step goes on with is
// tested anew behind each of them. A session that has ended, or has begun anew, is never gone on with.
#pragma once

#include "interact/combo_cell_editor.h"
#include "interact/edit_context.h"
#include "interact/edit_place.h"
#include "interact/text_cell_editor.h"

#include <cstdint>

namespace vornix {

// The text editor's properties as hosts know them.
struct EditSettings {
    bool TBoxAutoResize = false;
    bool TBoxIncludeLiteral = false;
    std::u16string TBoxPromptChar;
    std::u16string TBoxReplaceChar;
};

class EditSession final : public CellEditor, private EditedCell {
public:
    explicit EditSession(EditContext context);

    EditSettings Settings;
    // The editor of texts takes the settings over.
    void ApplySettings();

    // -- The session --

    bool IsEditorOpen() const override { return isShown_; }
    bool IsEditorOpenOn(CellIndex cell) const override { return isShown_ && cell_ == cell; }
    bool IsEditMode() const;
    void OpenEditor(int row, int col) override;
    void EnterEdit() override;
    void CloseEditor() override { Close(false); }
    void CloseEditorAndRepaint() override { Close(true); }
    // Before the cell under it changes places: one that the event opens is closed as well, without an event.
    void CloseEveryEditor();
    // Without an event.
    void ExitEdit();
    void HideEditor() override;
    void ForgetEditCell() override;
    // The table is no more. Nothing is painted or told.
    void Reset();
    // The control is closed: no editor opens any more, and the boxes are left alone.
    void Dispose();

    // The editor of the cell takes place, look and text of the cell anew.
    void Reload(CellIndex cell);
    void FollowLayout() override;
    // Columns were added in front of the cell, or taken away there.
    void AdjustForCols(int delta);
    void SetAutoResize(bool autoResize);
    // Of the editor that shows: its text goes, and with it that of the cell.
    void EmptyContent();
    // Gives the focus to the editor that the mode of the cell asks for, or to the one that shows.
    void TakeFocus();
    void TakeFocusShown();
    // The pointer over the frame or the box, in pixels of the client area.
    void PointerMoved(i16 button, i16 shift, float x, float y);
    void TimerTicked() { combo_.ForgetSearch(); }

    // -- What hosts reach of the editor --

    // Of the editor that shows. Without one, start and length are kept for the next.
    i32 SelStart() const;
    void WriteSelStart(i32 start);
    i32 SelLength() const;
    void WriteSelLength(i32 length);
    std::u16string SelText() const;
    void WriteSelText(std::u16string_view text);
    // Where the caret stands in an editor that shows.
    void SetSelStart(int place) override;
    void SetCustomWindow(std::intptr_t window) { customWindow_ = window; }

    TextCellEditor& Text() { return text_; }
    ComboCellEditor& Combo() { return combo_; }

private:
    // What of the cell its editors see.
    bool IsOpen() const override;
    CellIndex Cell() const override { return cell_; }
    std::uint32_t Session() const override { return session_; }
    const EditPlace& Place() const override { return place_; }
    void RaiseForCell(void (VornixEvents::*event)(i16 Row, i16 Col)) override;
    void WriteText(std::u16string_view text) override;
    void CloseByUser() override { Close(true); }
    void PointerOverEditor(i16 button, i16 shift, float x, float y) override { PointerMoved(button, shift, x, y); }
    void ShowFrame(const Rect& place) override;
    void TakePendingSelection(EditBox& box) override;

    i32 ModeOf(CellIndex cell) const { return context_.store.Format(cell.row, cell.col).Mode; }
    bool HasEditorFor(i32 mode) const;
    bool IsCurrent(std::uint32_t session) const;
    void EmptySelection();
    void AskHost();
    void ShowEditor();
    void ShowCustom();
    void ShowCustomFrame();
    void PlaceAnew(bool withText);
    void Close(bool repaint);
    void EndSession(std::uint32_t session);
    void RepaintCell();
    EditBox* ShownBox() const;

    EditContext context_;
    CellIndex cell_ { NoIndex, NoIndex };
    EditPlace place_;
    TextCellEditor text_;
    ComboCellEditor combo_;
    std::intptr_t customWindow_ = 0;
    // Counts the sessions that have begun or ended.
    std::uint32_t session_ = 0;
    bool isShown_ = false;
    bool isDisposed_ = false;
    bool hasPendingSelection_ = false;
    i32 pendingSelStart_ = 0;
    i32 pendingSelLength_ = 0;
};

} // namespace vornix
