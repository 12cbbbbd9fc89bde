// The viewer's window for changing a table: what is typed and clicked goes into a document, which can be saved.
#pragma once

#include "column_inputs.h"
#include "date_entry.h"
#include "document.h"
#include "grid_editor.h"
#include "viewer_window.h"

class QAction;
class QCloseEvent;

namespace vornix::viewer {

// The title carries a mark while something is not saved, and closing asks what to do with it. The line below the table
// says how much it is, or why nothing can be changed. Refers to the document for as long as it lives.
class EditorWindow final : public ViewerWindow {
    Q_OBJECT

public:
    explicit EditorWindow(Document& document);

    // False when it failed, or a date is unfinished; the reader has been told why, and nothing is lost.
    bool Save();

public slots:
    void Cut();
    // Into the selected cells, or from the current one on.
    void Paste();
    void Clear();
    void AddRowAbove();
    void AddRowBelow();
    // Those of the selection, or the current one.
    void RemoveRows();
    void RestoreRows();

protected:
    void closeEvent(QCloseEvent* event) override;
    std::vector<int> Order() const override { return document_.Rows(); }
    void FinishEditing() override;

private:
    void AddFileMenu();
    void AddEditActions();
    void ListenToGrid();
    void BeginEditing(i16 Row, i16 Col);
    void EndEditing();
    // Whether a key that an editor has heard is for the whole cell.
    bool TakeKey(i16 KeyCode, i16 Shift);
    void PasteBlock(const TextBlock& block);
    void TakeChange(i16 Row, i16 Col);
    void TakeDate();
    void AddRows(Records::Side side);
    // After a change of cells or rows that was made here.
    void Changed(const std::string& line);
    void TellStateLater();
    void TellChanges();
    void TellFailure(const QString& reason);
    // What the reader wants done with the changes: QMessageBox::Save, Discard or Cancel.
    int AskAboutChanges();

    Document& document_;
    QAction* save_ = nullptr;
    QAction* restoreRows_ = nullptr;
    QLabel* changes_ = nullptr;
    const ColumnInputs inputs_;
    DateEntry date_;
    GridEditor editor_;
    std::string notice_; // about a date that is none, until the next change
    bool wasSaved_ = false;
};

} // namespace vornix::viewer
