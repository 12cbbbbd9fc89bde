// A grid as an assistive tool reads it: by public indices, and without an error on any way out.
#pragma once

#include "vornix/qvornix.h"

#include <QAccessible>
#include <QRect>
#include <QString>

#include <optional>
#include <vector>

namespace vornix {

class Container;

// A cell by its public indices, or the title.
struct AccessiblePlace {
    i16 Row = NoIndex;
    i16 Col = NoIndex;

    static AccessiblePlace Title() { return {}; }
    bool IsTitle() const { return Row == NoIndex; }
    bool IsFixed() const { return Row < 0 || Col < 0; }
    friend bool operator==(const AccessiblePlace&, const AccessiblePlace&) = default;
};

struct AccessibleBlock {
    AccessiblePlace first;
    AccessiblePlace last;

    int Rows() const { return last.Row - first.Row + 1; }
    int Cols() const { return last.Col - first.Col + 1; }
    friend bool operator==(const AccessibleBlock&, const AccessibleBlock&) = default;
};

// What is selected: a rectangle of cells, or lines.
struct AccessibleSelection {
    std::optional<AccessibleBlock> cells;
    std::vector<int> rows;
    std::vector<int> cols;
    friend bool operator==(const AccessibleSelection&, const AccessibleSelection&) = default;
};

// Every answer is empty for a place that the table does not have, and once the grid is closed.
class AccessibleReader {
public:
    // Both until Close.
    AccessibleReader(QVornix& widget, const Container& container);
    void Close();
    bool IsOpen() const;
    // Only while open.
    QVornix& Widget() const { return *widget_; }

    int Rows() const;
    int Cols() const;
    // Header rows above the table, the title left out, and header columns beside it.
    int HeaderRows() const;
    int HeaderCols() const;
    bool HasTitle() const;
    bool Has(AccessiblePlace place) const;

    QString Title() const;
    // What the cell shows; nothing for a check box.
    QString ShownText(AccessiblePlace place) const;
    // The header text beside a line of the table, or the name of a column without one.
    QString ColumnText(int col) const;
    QString RowText(int row) const;
    i32 Mode(AccessiblePlace place) const;
    bool IsEnabled(AccessiblePlace place) const;
    bool IsChecked(AccessiblePlace place) const;
    bool IsPressed(AccessiblePlace place) const;

    // The cell whose span covers this one, or the cell itself.
    AccessiblePlace Parent(AccessiblePlace place) const;
    // Lines that the cell covers, at least one.
    int RowExtent(AccessiblePlace place) const;
    int ColExtent(AccessiblePlace place) const;
    // In a hidden line, or covered by another cell.
    bool IsHidden(AccessiblePlace place) const;
    // What can be seen of the cell, in the widget.
    QRect Area(AccessiblePlace place) const;
    // Nothing beyond the cells.
    std::optional<AccessiblePlace> PlaceAt(QPoint inWidget) const;

    std::optional<AccessiblePlace> Current() const;
    bool IsSelected(AccessiblePlace place) const;
    bool IsRowSelected(int row) const;
    bool IsColSelected(int col) const;
    AccessibleSelection Selection() const;
    // Whether the user can select such lines, or anything.
    bool SelectsRows() const;
    bool SelectsCols() const;
    bool SelectsAny() const;
    void SelectRow(int row, bool selected) const;
    void SelectCol(int col, bool selected) const;

    // As a person clicks the cell, brought into view if need be: with all events, and handlers may refuse.
    void Click(AccessiblePlace place) const;
    // Gives the cell the keyboard.
    void MakeCurrent(AccessiblePlace place) const;

private:
    template <typename Answer, typename Step> Answer Read(Answer otherwise, const Step& step) const;
    template <typename Step> void Do(const Step& step) const;
    template <typename Answer, typename Step>
    Answer ReadCell(AccessiblePlace place, Answer otherwise, const Step& step) const;

    QRect TitleArea() const;
    std::optional<int> LeftOf(int col) const;
    std::optional<int> TopOf(int row) const;

    QVornix* widget_;
    const Container* container_;
};

} // namespace vornix
