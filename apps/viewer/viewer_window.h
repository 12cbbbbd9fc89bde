// The window of the viewer: the grid, and below it a line about the current cell, the selection and the table.
#pragma once

#include "finder.h"
#include "shown_rows.h"
#include "sort_list.h"
#include "table.h"
#include "vornix/event_handlers.h"
#include "vornix/qvornix.h"

#include <QMainWindow>
#include <QTimer>

#include <vector>

class QLabel;
class QMenu;

namespace vornix::viewer {

class FindBar;

// A grid that tells when a person does something with it.
class UsedGrid final : public QVornix {
    Q_OBJECT

public:
    using QVornix::QVornix;

signals:
    // Before the grid has heard of a press, and after it has of that and all else.
    void AboutToBeUsed();
    void Used();

protected:
    bool event(QEvent* event) override;
};

// The table can be sorted by its titles, searched, copied from, its lines sized and its first columns split off, but not
// changed, unless a class derived from this lets it; the first cell is the current one. Refers to the table for as long as
// it lives.
class ViewerWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit ViewerWindow(const Table& table);
    ~ViewerWindow() override;

    UsedGrid& GridWidget() { return *grid_; }

public slots:
    // The selected cells, or the current one.
    void Copy();
    void SelectAll();
    // The rows as the source has them.
    void SortAsInSource();
    void OpenFindBar();
    void FindNext();
    void FindPrevious();

protected:
    Vornix& Grid() { return grid_->Grid(); }
    EventHandlers& Handlers() { return handlers_; }
    ShownRows& Rows() { return rows_; }
    QMenu* EditMenu() { return editMenu_; }
    // In the line below the table.
    QLabel* AddLabel(const char* name, int stretch);
    // About the current cell and the selection.
    void TellState();
    // Something that the person should know, until they do the next thing.
    void Tell(const std::string& line);
    void TellExtent(const std::string& line);
    // A check box as the table holds it.
    void ResetCheckBox(i16 Row, i16 Col);
    // The texts of the grid have changed: what was found may be another.
    void SearchAgainSoon();

    // The rows of the table in the order of their source.
    virtual std::vector<int> Order() const;
    // Closes an editor, before rows move.
    virtual void FinishEditing();

private:
    void AddMenus();
    void AddFindBar();
    void AddContextMenu();
    void ShowMenu(QPoint at);
    // As the current one, and alone.
    void SelectCell(i16 Row, i16 Col);
    void SelectRow(i16 Row);
    void ListenToTitles();
    void ClickTitle(i16 Col, bool isFurther);
    void Sort(const SortList& sort);
    // Sorts them; empty when it was done.
    std::string WhyNotSorted(const SortList& sort);
    void UnselectColumns();
    FoundCell CurrentCell();
    void SearchAsTyped();
    void Search();
    void GoTo(std::optional<FoundCell> cell);
    void TellFound();
    void CloseFindBar();

    const Table& table_;
    EventHandlers handlers_;
    UsedGrid* const grid_;
    ShownRows rows_;
    SortList sort_;
    Finder finder_;
    FindBar* findBar_ = nullptr;
    FoundCell searchStart_;
    bool isSearchStale_ = true;
    QTimer searchAgain_;
    QTimer searchTyped_;
    QMenu* editMenu_ = nullptr;
    QLabel* currentCell_ = nullptr;
    QLabel* selection_ = nullptr;
    QLabel* notice_ = nullptr;
    QLabel* extent_ = nullptr;
    // Of the press that was let go last.
    i16 releaseShift_ = 0;
    i16 clickedTitle_ = NoIndex;
};

} // namespace vornix::viewer
