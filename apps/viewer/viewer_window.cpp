#include "viewer_window.h"

#include "present.h"
#include "status_text.h"

#include <QEvent>
#include <QLabel>
#include <QStatusBar>

namespace vornix::viewer {

namespace {

constexpr int SpaceBeside = 6;

QString ToQString(const std::string& text)
{
    return QString::fromStdString(text);
}

bool IsInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return true;
    default:
        return false;
    }
}

// What a picture has no use for.
void GiveToUser(Vornix& grid)
{
    grid.SetRedraw(false);
    grid.SetScrollHBar(vxScrollTrack);
    grid.SetScrollVBar(vxScrollTrack);
    grid.SetCellSelection(true);
    grid.SetSelectMode(vxBoth);
    grid.SetResizeMode(vxColumn); // half of a row's number would be for sizing the row
    grid.SetShowSplit(true);
    // The keyboard begins here.
    grid.CurrentPos(0, 0);
    grid.SetRedraw(true);
}

} // namespace

bool UsedGrid::event(QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool handled = QVornix::event(event);
    if (IsInput(type))
        emit Used();
    return handled;
}

ViewerWindow::ViewerWindow(const Table& table)
    : grid_(new UsedGrid(handlers_, this))
{
    setCentralWidget(grid_);
    setWindowTitle(QString::fromStdU16String(table.Name()) + QStringLiteral(" - Vornix"));
    currentCell_ = AddLabel("currentCell", 0);
    selection_ = AddLabel("selection", 1);
    QLabel* const extent = new QLabel(ToQString(StatusLine(table)), this);
    extent->setObjectName(QStringLiteral("extent"));
    statusBar()->addPermanentWidget(extent);

    PresentTable(grid_->Grid(), grid_->MeasuringDevice(), grid_->Colors(), table);
    GiveToUser(grid_->Grid());
    // A check box that is clicked shows what the table holds.
    handlers_.OnTextChange = [this, &table](i16 Row, i16 Col) { ResetCheckBox(table, Row, Col); };
    connect(grid_, &UsedGrid::Used, this, &ViewerWindow::TellState);
    grid_->setFocus();
    TellState();
}

// The grid tells its handlers to the last.
ViewerWindow::~ViewerWindow()
{
    delete grid_;
}

// Titles are of any length and may look like markup; the window can be narrower than the line.
QLabel* ViewerWindow::AddLabel(const char* name, int stretch)
{
    auto* const label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(1);
    label->setContentsMargins(SpaceBeside, 0, SpaceBeside, 0);
    statusBar()->addWidget(label, stretch);
    return label;
}

void ViewerWindow::ResetCheckBox(const Table& table, i16 Row, i16 Col)
{
    grid_->Grid().SetCellChecked(Row, Col, table.IsTrue(Row, Col));
}

void ViewerWindow::TellState()
{
    currentCell_->setText(ToQString(CurrentCellText(grid_->Grid())));
    selection_->setText(ToQString(SelectionText(grid_->Grid())));
}

} // namespace vornix::viewer
