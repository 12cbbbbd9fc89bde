#include "editor_window.h"

#include "editable_cells.h"
#include "notices.h"
#include "present.h"
#include "unicode.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

#include <algorithm>

namespace vornix::viewer {

namespace {

// With the place for the mark of unsaved changes.
QString TitleFor(const Table& table)
{
    QString name = QString::fromStdU16String(table.Name());
    const QString mark = QStringLiteral("[*]");
    return name.replace(mark, mark + mark) + mark + QStringLiteral(" - Vornix");
}

QString NameOf(const Table& table)
{
    return QString::fromStdString(OneLine(ToUtf8(table.Name())));
}

class BusyPointer {
public:
    BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

// Names and reasons may look like markup.
class Box final : public QMessageBox {
public:
    Box(Icon icon, const QString& text, StandardButtons buttons, QWidget* parent)
        : QMessageBox(icon, QStringLiteral("Vornix"), {}, buttons, parent)
    {
        setTextFormat(Qt::PlainText);
        setText(text);
    }
};

} // namespace

EditorWindow::EditorWindow(Document& document)
    : ViewerWindow(document.Saved())
    , document_(document)
    , inputs_(document)
    , date_(GridWidget().Grid(), document)
    , editor_(GridWidget().Grid(), document, inputs_, Rows())
{
    setWindowTitle(TitleFor(document.Saved()));
    changes_ = AddLabel("changes", 0);
    AddFileMenu();
    AddEditActions();
    MakeEditable(GridWidget().Grid(), document, inputs_);
    ListenToGrid();
    TellChanges();
}

void EditorWindow::AddFileMenu()
{
    auto* const menu = new QMenu(tr("&File"), this);
    menuBar()->insertMenu(EditMenu()->menuAction(), menu);
    save_ = menu->addAction(tr("&Save"));
    save_->setObjectName(QStringLiteral("save"));
    save_->setShortcut(QKeySequence::Save);
    connect(save_, &QAction::triggered, this, &EditorWindow::Save);
    menu->addSeparator();
    connect(menu->addAction(tr("&Close")), &QAction::triggered, this, &QWidget::close);
}

void EditorWindow::AddEditActions()
{
    const bool isReadOnly = document_.WhyReadOnly().has_value();
    const auto add
        = [&](const char* name, const QString& text, const QList<QKeySequence>& keys, void (EditorWindow::*slot)()) {
              QAction* const action = EditMenu()->addAction(text);
              action->setObjectName(QLatin1String(name));
              action->setShortcuts(keys);
              action->setEnabled(!isReadOnly);
              connect(action, &QAction::triggered, this, slot);
              return action;
          };
    const auto cut = add("cut", tr("Cu&t"), QKeySequence::keyBindings(QKeySequence::Cut), &EditorWindow::Cut);
    const auto paste = add("paste", tr("&Paste"), QKeySequence::keyBindings(QKeySequence::Paste), &EditorWindow::Paste);
    const auto clear = add("clear", tr("C&lear"), { Qt::Key_Delete }, &EditorWindow::Clear);
    // In their usual order around Copy and Select All.
    const QList<QAction*> first = EditMenu()->actions();
    EditMenu()->insertAction(first.at(0), cut);
    EditMenu()->insertActions(first.at(1), { paste, clear });
    EditMenu()->addSeparator();
    // The plus sign takes Shift on many keyboards.
    add("addRowAbove", tr("Insert Row &Above"), { Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal },
        &EditorWindow::AddRowAbove);
    add("addRowBelow", tr("Insert Row &Below"), { Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter },
        &EditorWindow::AddRowBelow);
    add("removeRows", tr("&Delete Rows"), { Qt::CTRL | Qt::Key_Minus }, &EditorWindow::RemoveRows);
    restoreRows_ = add("restoreRows", tr("&Undelete Rows"), { QKeySequence::Undo }, &EditorWindow::RestoreRows);
    restoreRows_->setEnabled(false);
}

void EditorWindow::ListenToGrid()
{
    EventHandlers& handlers = Handlers();
    handlers.OnTextChange = [this](i16 Row, i16 Col) { TakeChange(Row, Col); };
    // The keys of an editor do not come by the grid's widget.
    handlers.OnBeforeEdit = [this](i16 Row, i16 Col) { BeginEditing(Row, Col); };
    handlers.OnAfterEdit = [this](i16, i16) { EndEditing(); };
    handlers.OnCellChange = [this](i16, i16, bool&) { TellStateLater(); };
    handlers.OnKeyDown = [this](i16& KeyCode, i16& Shift) {
        if (TakeKey(KeyCode, Shift))
            KeyCode = 0;
    };
}

void EditorWindow::BeginEditing(i16 Row, i16 Col)
{
    FillList(GridWidget().Grid(), inputs_, Row, Col);
    if (Row >= 0 && Col >= 0 && inputs_.Kind(Col) == InputKind::Date)
        date_.Begin(Row, Col, Rows().At(Row));
    TellStateLater();
}

void EditorWindow::EndEditing()
{
    if (!date_.Unfinished().empty()) {
        notice_ = OneLine(ToUtf8(date_.Unfinished())) + " is no date and was not taken";
        SearchAgainSoon(); // the old one comes back
    }
    date_.End();
    TellChanges();
    TellStateLater();
}

// The grid tells nothing when its members close an editor.
void EditorWindow::FinishEditing()
{
    ViewerWindow::FinishEditing();
    EndEditing();
}

bool EditorWindow::TakeKey(i16 KeyCode, i16 Shift)
{
    constexpr i16 ctrl = 2;
    if (!Grid().IsEditMode() || Shift != ctrl)
        return false;
    const bool hasSelectedText = Grid().SelLength() > 0;
    switch (KeyCode) {
    case 'C':
        return !hasSelectedText && (Copy(), true);
    case 'X':
        return !hasSelectedText && (Cut(), true);
    case 'V': {
        // What fills several cells is for no editor; an empty cell is nothing to insert, not the line break that ends it.
        const TextBlock block = BlockOf(QApplication::clipboard()->text().toStdU16String());
        if (block.size() == 1 && block.front().size() == 1)
            return block.front().front().empty();
        return !block.empty() && (PasteBlock(block), true);
    }
    default:
        return false;
    }
}

void EditorWindow::Cut()
{
    Copy();
    Clear();
}

void EditorWindow::Paste()
{
    PasteBlock(BlockOf(QApplication::clipboard()->text().toStdU16String()));
}

void EditorWindow::PasteBlock(const TextBlock& block)
{
    FinishEditing();
    Changed(editor_.Paste(SelectedCellsOf(Grid()), block));
}

void EditorWindow::Clear()
{
    FinishEditing();
    Changed(editor_.Clear(SelectedCellsOf(Grid())));
}

void EditorWindow::AddRowAbove()
{
    AddRows(Records::Side::Before);
}

void EditorWindow::AddRowBelow()
{
    AddRows(Records::Side::Behind);
}

void EditorWindow::AddRows(Records::Side side)
{
    FinishEditing();
    i16 first = 0;
    const std::string line = editor_.AddRows(side, first);
    if (first != NoIndex)
        Grid().CurrentPos(first, std::max<i16>(Grid().CurrentCol(), 0));
    Changed(line);
    if (first != NoIndex)
        Grid().EnterEdit(); // its texts can be typed at once
}

void EditorWindow::RemoveRows()
{
    FinishEditing();
    Changed(editor_.RemoveRows(SelectedRowsOf(Grid())));
}

void EditorWindow::RestoreRows()
{
    FinishEditing();
    Changed(editor_.RestoreRows());
}

void EditorWindow::Changed(const std::string& line)
{
    notice_.clear();
    wasSaved_ = false;
    Tell(line);
    TellChanges();
    TellState();
    SearchAgainSoon();
}

void EditorWindow::TakeDate()
{
    date_.Take();
    if (!date_.Unfinished().empty())
        notice_ = OneLine(ToUtf8(date_.Unfinished())) + " is no date yet";
}

void EditorWindow::TakeChange(i16 Row, i16 Col)
{
    notice_.clear();
    const int row = Rows().At(Row);
    if (date_.IsOf(Row, Col))
        TakeDate();
    else if (document_.CanChange(row, Col))
        document_.Change(row, Col, TextForDocument(Grid(), Row, Col));
    else
        ResetCheckBox(Row, Col);
    wasSaved_ = false;
    TellChanges();
    SearchAgainSoon();
}

// The grid tells before it acts.
void EditorWindow::TellStateLater()
{
    QMetaObject::invokeMethod(
        this, [this] { TellState(); }, Qt::QueuedConnection);
}

void EditorWindow::TellChanges()
{
    setWindowModified(document_.IsChanged());
    save_->setEnabled(document_.IsChanged() || !date_.Unfinished().empty());
    restoreRows_->setEnabled(editor_.CanRestoreRows());
    TellExtent(StatusLine(document_.RowCount(), document_.TotalRows(), document_.Saved().ColumnCount()));
    std::string text = wasSaved_ ? "saved" : "no changes";
    if (document_.IsChanged())
        text = Counted(document_.ChangeCount(), "change") + " not saved";
    if (const auto reason = document_.WhyReadOnly())
        text = "read only: " + *reason;
    changes_->setText(QString::fromStdString(notice_.empty() ? text : notice_ + "; " + text));
}

bool EditorWindow::Save()
{
    if (!date_.Unfinished().empty()) {
        notice_ = "not saved: " + OneLine(ToUtf8(date_.Unfinished())) + " is no date yet";
        TellChanges();
        return false;
    }
    notice_.clear();
    try {
        const BusyPointer busy;
        const int rows = document_.RowCount();
        const std::vector<CellText> others = document_.Save();
        if (document_.RowCount() != rows)
            FinishEditing(); // rows go with those that were deleted
        SearchAgainSoon();
        editor_.ShowSaved(others);
        date_.Saved();
        Tell(document_.NoticeOfSave());
    } catch (const std::bad_alloc&) {
        TellFailure(tr("there is not enough memory"));
    } catch (const std::exception& error) {
        TellFailure(QString::fromUtf8(error.what()));
    }
    wasSaved_ = !document_.IsChanged();
    TellChanges();
    return wasSaved_;
}

void EditorWindow::TellFailure(const QString& reason)
{
    const QString text = document_.IsChanged()
        ? tr("%1 is not saved:\n%2.\n\nThe changes are still here.")
        : tr("%1 is saved, but cannot be shown as it is now:\n%2.\n\nOpen it again to see it.");
    Box(QMessageBox::Critical, text.arg(NameOf(document_.Saved()), reason), QMessageBox::Ok, this).exec();
}

int EditorWindow::AskAboutChanges()
{
    const QString count = QString::fromStdString(Counted(document_.ChangeCount(), "change"));
    Box box(QMessageBox::Warning, tr("Save the changes to %1?\n\n%2 not saved.").arg(NameOf(document_.Saved()), count),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setDefaultButton(QMessageBox::Save);
    return box.exec();
}

void EditorWindow::closeEvent(QCloseEvent* event)
{
    // An unfinished date must not keep the rest from being saved.
    if (!date_.Unfinished().empty()) {
        GridWidget().Grid().ExitEdit();
        EndEditing();
    }
    const int answer = document_.IsChanged() ? AskAboutChanges() : QMessageBox::Discard;
    const bool wasSaved = answer == QMessageBox::Save && Save();
    if (wasSaved && !document_.NoticeOfSave().empty()) // the line below the table goes with the window
        Box(QMessageBox::Information,
            tr("%1 is saved, but\n%2.")
                .arg(NameOf(document_.Saved()), QString::fromStdString(document_.NoticeOfSave())),
            QMessageBox::Ok, this)
            .exec();
    event->setAccepted(answer == QMessageBox::Discard || wasSaved);
}

} // namespace vornix::viewer
