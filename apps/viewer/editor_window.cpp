#include "editor_window.h"

#include "editable_cells.h"
#include "notices.h"
#include "unicode.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

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
{
    setWindowTitle(TitleFor(document.Saved()));
    changes_ = AddLabel("changes", 0);
    AddFileMenu();
    MakeEditable(GridWidget().Grid(), document, inputs_);
    ListenToGrid();
    TellChanges();
}

void EditorWindow::AddFileMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&File"));
    save_ = menu->addAction(tr("&Save"));
    save_->setObjectName(QStringLiteral("save"));
    save_->setShortcut(QKeySequence::Save);
    connect(save_, &QAction::triggered, this, &EditorWindow::Save);
    menu->addSeparator();
    connect(menu->addAction(tr("&Close")), &QAction::triggered, this, &QWidget::close);
}

void EditorWindow::ListenToGrid()
{
    EventHandlers& handlers = Handlers();
    handlers.OnTextChange = [this](i16 Row, i16 Col) { TakeChange(Row, Col); };
    // The keys of an editor do not come by the grid's widget.
    handlers.OnBeforeEdit = [this](i16 Row, i16 Col) { BeginEditing(Row, Col); };
    handlers.OnAfterEdit = [this](i16, i16) { EndEditing(); };
    handlers.OnCellChange = [this](i16, i16, bool&) { TellStateLater(); };
}

void EditorWindow::BeginEditing(i16 Row, i16 Col)
{
    FillList(GridWidget().Grid(), inputs_, Row, Col);
    if (Row >= 0 && Col >= 0 && inputs_.Kind(Col) == InputKind::Date)
        date_.Begin(Row, Col);
    TellStateLater();
}

void EditorWindow::EndEditing()
{
    if (!date_.Unfinished().empty())
        notice_ = OneLine(ToUtf8(date_.Unfinished())) + " is no date and was not taken";
    date_.End();
    TellChanges();
    TellStateLater();
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
    if (date_.IsOf(Row, Col))
        TakeDate();
    else if (document_.CanChange(Row, Col))
        document_.Change(Row, Col, TextForDocument(GridWidget().Grid(), Row, Col));
    else
        ResetCheckBox(document_.Saved(), Row, Col);
    wasSaved_ = false;
    TellChanges();
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
        for (const CellText& cell : document_.Save())
            ShowText(GridWidget().Grid(), document_, inputs_, cell);
        date_.Saved();
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
    event->setAccepted(answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save()));
}

} // namespace vornix::viewer
