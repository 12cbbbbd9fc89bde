#include "viewer_window.h"

#include "find_bar.h"
#include "loading.h"
#include "notices.h"
#include "present.h"
#include "selected_cells.h"
#include "status_text.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>
#include <new>
#include <numeric>

namespace vornix::viewer {

namespace {

constexpr int SpaceBeside = 6;
// Milliseconds behind the last change, and behind the last key where there is much to search.
constexpr int SearchDelay = 300;
constexpr int TypingDelay = 150;
constexpr std::size_t ManyCells = 200'000;
constexpr i16 CtrlKey = 2;

QString ToQString(const std::string& text)
{
    return QString::fromStdString(text);
}

bool IsPress(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
}

bool IsInput(QEvent::Type type)
{
    return IsPress(type) || type == QEvent::KeyRelease || type == QEvent::MouseButtonRelease;
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

QAction* AddAction(QMenu* menu, const char* name, const QString& text, const QList<QKeySequence>& keys)
{
    QAction* const action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    return action;
}

} // namespace

bool UsedGrid::event(QEvent* event)
{
    const QEvent::Type type = event->type();
    if (IsPress(type))
        emit AboutToBeUsed();
    const bool handled = QVornix::event(event);
    if (IsInput(type))
        emit Used();
    return handled;
}

ViewerWindow::ViewerWindow(const Table& table)
    : table_(table)
    , grid_(new UsedGrid(handlers_, this))
    , rows_(grid_->Grid(), table)
    , finder_(grid_->Grid())
{
    setWindowTitle(QString::fromStdU16String(table.Name()) + QStringLiteral(" - Vornix"));
    currentCell_ = AddLabel("currentCell", 0);
    selection_ = AddLabel("selection", 1);
    notice_ = AddLabel("notice", 0);
    extent_ = new QLabel(ToQString(StatusLine(table)), this);
    extent_->setObjectName(QStringLiteral("extent"));
    statusBar()->addPermanentWidget(extent_);
    AddMenus();
    AddFindBar();
    AddContextMenu();

    PresentTable(grid_->Grid(), grid_->MeasuringDevice(), grid_->Colors(), table);
    GiveToUser(grid_->Grid());
    // A check box that is clicked shows what the table holds.
    handlers_.OnTextChange = [this](i16 Row, i16 Col) { ResetCheckBox(Row, Col); };
    handlers_.OnSearchResult = [this](i16 IdSearch, i16& Pos) { finder_.Take(IdSearch, Pos); };
    ListenToTitles();
    connect(grid_, &UsedGrid::AboutToBeUsed, this, [this] { Tell({}); });
    connect(grid_, &UsedGrid::Used, this, &ViewerWindow::TellState);
    grid_->setFocus();
    TellState();
}

// The grid tells its handlers to the last.
ViewerWindow::~ViewerWindow()
{
    delete grid_;
}

void ViewerWindow::AddMenus()
{
    editMenu_ = menuBar()->addMenu(tr("&Edit"));
    connect(AddAction(editMenu_, "copy", tr("&Copy"), QKeySequence::keyBindings(QKeySequence::Copy)),
        &QAction::triggered, this, &ViewerWindow::Copy);
    connect(AddAction(editMenu_, "selectAll", tr("Select &All"), { QKeySequence::SelectAll }), &QAction::triggered,
        this, &ViewerWindow::SelectAll);

    QMenu* const view = menuBar()->addMenu(tr("&View"));
    connect(AddAction(view, "find", tr("&Find…"), { QKeySequence::Find }), &QAction::triggered, this,
        &ViewerWindow::OpenFindBar);
    connect(
        AddAction(view, "next", tr("Find &Next"), { Qt::Key_F3 }), &QAction::triggered, this, &ViewerWindow::FindNext);
    connect(AddAction(view, "previous", tr("Find &Previous"), { Qt::SHIFT | Qt::Key_F3 }), &QAction::triggered, this,
        &ViewerWindow::FindPrevious);
    view->addSeparator();
    connect(AddAction(view, "asInSource", tr("&Order of the File"), { Qt::CTRL | Qt::Key_0 }), &QAction::triggered,
        this, &ViewerWindow::SortAsInSource);
}

void ViewerWindow::AddFindBar()
{
    auto* const middle = new QWidget(this);
    auto* const layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(grid_, 1);
    findBar_ = new FindBar(middle);
    layout->addWidget(findBar_);
    setCentralWidget(middle);
    connect(findBar_, &FindBar::Changed, this, &ViewerWindow::SearchAsTyped);
    connect(findBar_, &FindBar::Next, this, &ViewerWindow::FindNext);
    connect(findBar_, &FindBar::Previous, this, &ViewerWindow::FindPrevious);
    connect(findBar_, &FindBar::Closed, this, &ViewerWindow::CloseFindBar);
    searchAgain_.setSingleShot(true);
    searchAgain_.setInterval(SearchDelay);
    connect(&searchAgain_, &QTimer::timeout, this, &ViewerWindow::TellFound);
    searchTyped_.setSingleShot(true);
    searchTyped_.setInterval(TypingDelay);
    connect(&searchTyped_, &QTimer::timeout, this, &ViewerWindow::Search);
}

void ViewerWindow::AddContextMenu()
{
    grid_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(grid_, &QWidget::customContextMenuRequested, this, &ViewerWindow::ShowMenu);
}

// A right press moves neither the current cell nor the selection; the menu is for what it lies on.
void ViewerWindow::ShowMenu(QPoint at)
{
    i16 Row = 0;
    i16 Col = 0;
    const QRect client = grid_->contentsRect();
    const bool isCell = Grid().GetCellAtPos(at.x() - client.x(), at.y() - client.y(), Row, Col) && Row >= 0;
    const bool isSelected = isCell
        && (Grid().RowSelected(Row) || (Col >= 0 && (Grid().ColSelected(Col) || Grid().CellSelected(Row, Col))));
    if (isCell && !isSelected) {
        FinishEditing();
        if (Col < 0)
            SelectRow(Row);
        else
            SelectCell(Row, Col);
    }
    editMenu_->popup(grid_->mapToGlobal(at));
}

void ViewerWindow::SelectCell(i16 Row, i16 Col)
{
    Grid().CurrentPos(Row, Col);
    Grid().SetSelectedCells(Row, Col, Row, Col);
    TellState();
}

void ViewerWindow::SelectRow(i16 Row)
{
    Grid().CurrentPos(Row, 0);
    if (Grid().SelectCountRow() > 0)
        Grid().SetRowsSelected(0, static_cast<i16>(Grid().Rows() - 1), false);
    Grid().SetRowSelected(Row, true);
    TellState();
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

void ViewerWindow::ResetCheckBox(i16 Row, i16 Col)
{
    if (const int row = rows_.At(Row); row >= 0)
        Grid().SetCellChecked(Row, Col, table_.IsTrue(row, Col));
}

void ViewerWindow::TellState()
{
    currentCell_->setText(ToQString(CurrentCellText(Grid())));
    selection_->setText(ToQString(SelectionText(Grid())));
}

void ViewerWindow::Tell(const std::string& line)
{
    notice_->setText(ToQString(line));
    notice_->setToolTip(ToQString(line)); // the window may be too narrow for it
}

void ViewerWindow::TellExtent(const std::string& line)
{
    extent_->setText(ToQString(line));
}

void ViewerWindow::Copy()
{
    const SelectedCells cells = SelectedCellsOf(Grid());
    if (cells.IsEmpty())
        return;
    const TextBlock block = TextsOf(Grid(), table_.Columns(), cells);
    QApplication::clipboard()->setText(QString::fromStdU16String(TextOf(block)));
}

void ViewerWindow::SelectAll()
{
    if (Grid().Rows() == 0 || Grid().Cols() == 0)
        return;
    FinishEditing();
    Grid().SetSelectedCells(0, 0, static_cast<i16>(Grid().Rows() - 1), static_cast<i16>(Grid().Cols() - 1));
    TellState();
}

std::vector<int> ViewerWindow::Order() const
{
    std::vector<int> order(static_cast<std::size_t>(table_.RowCount()));
    std::iota(order.begin(), order.end(), 0);
    return order;
}

void ViewerWindow::FinishEditing()
{
    Grid().ExitEdit();
}

// A double click on a title is two clicks, but on its border it is for the column's width: no click goes before then.
void ViewerWindow::ListenToTitles()
{
    handlers_.OnMouseUp = [this](i16, i16 Shift, float, float) {
        releaseShift_ = Shift;
        clickedTitle_ = NoIndex;
    };
    handlers_.OnCellClick = [this](i16 Row, i16 Col) {
        if (Row != -1 || Col < 0 || (releaseShift_ & ~CtrlKey) != 0)
            return;
        clickedTitle_ = Col;
        ClickTitle(Col, releaseShift_ == CtrlKey);
    };
    handlers_.OnCellDblClick = [this](i16 Row, i16 Col) {
        if (Row == -1 && Col == clickedTitle_)
            ClickTitle(Col, releaseShift_ == CtrlKey);
        clickedTitle_ = NoIndex;
    };
}

void ViewerWindow::ClickTitle(i16 Col, bool isFurther)
{
    SortList sort = sort_;
    isFurther ? sort.ChooseToo(Col) : sort.Choose(Col);
    UnselectColumns(); // the click was for the order alone
    Sort(sort);
}

void ViewerWindow::UnselectColumns()
{
    for (i16 Col = 0; Col < Grid().Cols(); ++Col) {
        if (Grid().ColSelected(Col))
            Grid().SetColSelected(Col, false);
    }
}

void ViewerWindow::SortAsInSource()
{
    Sort(SortList());
}

void ViewerWindow::Sort(const SortList& sort)
{
    FinishEditing();
    if (const std::string reason = WhyNotSorted(sort); reason.empty())
        sort_ = sort;
    else
        Tell("not sorted: " + reason);
    TellState();
    SearchAgainSoon();
}

std::string ViewerWindow::WhyNotSorted(const SortList& sort)
{
    if (!rows_.CanSort(sort))
        return Counted(static_cast<std::uint64_t>(rows_.Count()), "row") + " are more than the "
            + WithGroups(ShownRows::MostSorted) + " that can be sorted";
    try {
        rows_.Sort(sort, Order());
        return {};
    } catch (const std::bad_alloc&) {
        return "there is not enough memory";
    } catch (const std::exception& error) {
        return error.what();
    }
}

FoundCell ViewerWindow::CurrentCell()
{
    const i32 row = Grid().CurrentRow();
    return { static_cast<i16>(row), Grid().CurrentCol() };
}

void ViewerWindow::OpenFindBar()
{
    FinishEditing();
    searchStart_ = CurrentCell();
    findBar_->Open();
    TellFound();
}

void ViewerWindow::CloseFindBar()
{
    findBar_->hide();
    grid_->setFocus();
}

void ViewerWindow::SearchAsTyped()
{
    isSearchStale_ = true;
    if (table_.CellCount() < ManyCells)
        Search();
    else
        searchTyped_.start();
}

// From where the typing began.
void ViewerWindow::Search()
{
    searchTyped_.stop();
    TellFound();
    GoTo(finder_.At(searchStart_));
}

void ViewerWindow::FindNext()
{
    if (findBar_->Text().isEmpty())
        return OpenFindBar();
    if (searchTyped_.isActive())
        return Search();
    TellFound();
    GoTo(finder_.Next(CurrentCell()));
    searchStart_ = CurrentCell();
}

void ViewerWindow::FindPrevious()
{
    if (findBar_->Text().isEmpty())
        return OpenFindBar();
    if (searchTyped_.isActive())
        return Search();
    TellFound();
    GoTo(finder_.Previous(CurrentCell()));
    searchStart_ = CurrentCell();
}

void ViewerWindow::GoTo(std::optional<FoundCell> cell)
{
    if (!cell || rows_.At(cell->Row) < 0)
        return;
    FinishEditing();
    SelectCell(cell->Row, cell->Col);
    TellFound();
}

void ViewerWindow::TellFound()
{
    if (isSearchStale_)
        finder_.Search(findBar_->Text().toStdU16String());
    isSearchStale_ = false;
    findBar_->TellCount(finder_.PlaceOf(CurrentCell()), finder_.Count());
}

void ViewerWindow::SearchAgainSoon()
{
    isSearchStale_ = true;
    if (findBar_->isVisible())
        searchAgain_.start();
}

} // namespace vornix::viewer
