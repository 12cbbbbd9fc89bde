#include "qt_accessible_reader.h"

#include "automation/format_patterns.h"
#include "vornix/platform/container.h"

#include <algorithm>

namespace vornix {

namespace {

constexpr i16 LeftButton = 1;

i16 Narrow(int line)
{
    return static_cast<i16>(line);
}

QString ToQString(const std::u16string& text)
{
    return QString::fromStdU16String(text);
}

bool HasBit(i32 cells, vxCellsEnum bit)
{
    return (cells & bit) != 0;
}

template <typename Test> std::vector<int> LinesWith(int count, const Test& test)
{
    std::vector<int> lines;
    for (int line = 0; line < count; ++line) {
        if (test(Narrow(line)))
            lines.push_back(line);
    }
    return lines;
}

// The part of the rectangle that the table has.
std::optional<AccessibleBlock> SelectedCells(Vornix& grid)
{
    AccessibleBlock block;
    if (!grid.GetSelectedCells(block.first.Row, block.first.Col, block.last.Row, block.last.Col))
        return std::nullopt;
    block.first.Row = std::max<i16>(block.first.Row, 0);
    block.first.Col = std::max<i16>(block.first.Col, 0);
    block.last.Row = std::min(block.last.Row, Narrow(grid.Rows() - 1));
    block.last.Col = std::min(block.last.Col, Narrow(grid.Cols() - 1));
    const bool isEmpty = block.first.Row > block.last.Row || block.first.Col > block.last.Col;
    return isEmpty ? std::nullopt : std::optional(block);
}

void Include(Vornix& grid, AccessiblePlace place)
{
    if (place.Row >= 0 && !grid.IsVisibleRow(place.Row))
        grid.SetFirstRow(place.Row);
    if (place.Col >= 0 && !grid.IsVisibleCol(place.Col))
        grid.SetFirstCol(place.Col);
}

// A move comes first, as with a mouse: it puts an end to what the pointer was about to size. A handler may close the
// grid on the way.
void ClickAt(Vornix& grid, float x, float y)
{
    grid.MouseMove(0, 0, x, y);
    if (!grid.IsTerminated())
        grid.MouseDown(LeftButton, 0, x, y);
    if (!grid.IsTerminated())
        grid.MouseUp(LeftButton, 0, x, y);
    if (!grid.IsTerminated())
        grid.Click();
}

} // namespace

AccessibleReader::AccessibleReader(QVornix& widget, const Container& container)
    : widget_(&widget)
    , container_(&container)
{
}

void AccessibleReader::Close()
{
    widget_ = nullptr;
    container_ = nullptr;
}

bool AccessibleReader::IsOpen() const
{
    return widget_ && !widget_->Grid().IsTerminated();
}

template <typename Answer, typename Step> Answer AccessibleReader::Read(Answer otherwise, const Step& step) const
{
    if (!IsOpen())
        return otherwise;
    try {
        return step(widget_->Grid());
    } catch (const AutomationError&) {
        // Tools ask for what is gone by now; no answer is the answer.
        return otherwise;
    }
}

template <typename Step> void AccessibleReader::Do(const Step& step) const
{
    if (!IsOpen())
        return;
    try {
        step(widget_->Grid());
    } catch (const AutomationError& error) {
        qWarning("QVornix: error %d, %s", error.Number(), error.what());
    }
}

template <typename Answer, typename Step>
Answer AccessibleReader::ReadCell(AccessiblePlace place, Answer otherwise, const Step& step) const
{
    if (place.IsTitle() || !Has(place))
        return otherwise;
    return Read(otherwise, step);
}

int AccessibleReader::Rows() const
{
    return Read(0, [](Vornix& grid) -> int { return grid.Rows(); });
}

int AccessibleReader::Cols() const
{
    return Read(0, [](Vornix& grid) -> int { return grid.Cols(); });
}

int AccessibleReader::HeaderRows() const
{
    return Read(0, [](Vornix& grid) { return grid.FixedRows() - (grid.CaptionEnabled() ? 1 : 0); });
}

int AccessibleReader::HeaderCols() const
{
    return Read(0, [](Vornix& grid) -> int { return grid.FixedCols(); });
}

bool AccessibleReader::HasTitle() const
{
    return Read(false, [](Vornix& grid) { return grid.CaptionEnabled(); });
}

bool AccessibleReader::Has(AccessiblePlace place) const
{
    if (place.IsTitle())
        return HasTitle();
    return place.Row >= -HeaderRows() && place.Row < Rows() && place.Col >= -HeaderCols() && place.Col < Cols();
}

QString AccessibleReader::Title() const
{
    return Read(QString(), [](Vornix& grid) { return grid.CaptionEnabled() ? ToQString(grid.Caption()) : QString(); });
}

QString AccessibleReader::ShownText(AccessiblePlace place) const
{
    if (place.IsTitle())
        return Title();
    return ReadCell(place, QString(), [&](Vornix& grid) {
        if (grid.CellMode(place.Row, place.Col) == vxCheckBox)
            return QString();
        const std::u16string text = grid.Text(place.Row, place.Col);
        const std::u16string pattern = grid.ColFormat(place.Col);
        return ToQString(pattern.empty() ? text : FormatText(text, pattern, container_->GetLocale()));
    });
}

QString AccessibleReader::ColumnText(int col) const
{
    if (col < 0 || col >= Cols())
        return {};
    if (HeaderRows() > 0)
        return ShownText(Parent({ -1, Narrow(col) }));
    return Read(QString(), [&](Vornix& grid) { return ToQString(grid.ColName(Narrow(col))); });
}

QString AccessibleReader::RowText(int row) const
{
    if (row < 0 || row >= Rows() || HeaderCols() == 0)
        return {};
    return ShownText(Parent({ Narrow(row), -1 }));
}

i32 AccessibleReader::Mode(AccessiblePlace place) const
{
    return ReadCell(place, i32 { vxCellFixed }, [&](Vornix& grid) { return grid.CellMode(place.Row, place.Col); });
}

bool AccessibleReader::IsEnabled(AccessiblePlace place) const
{
    const bool gridIsEnabled = Read(false, [&](Vornix& grid) { return grid.Enabled() && widget_->isEnabled(); });
    if (place.IsTitle())
        return gridIsEnabled;
    return gridIsEnabled
        && ReadCell(place, false, [&](Vornix& grid) { return grid.CellEnabled(place.Row, place.Col); });
}

bool AccessibleReader::IsChecked(AccessiblePlace place) const
{
    return Mode(place) == vxCheckBox
        && ReadCell(place, false, [&](Vornix& grid) { return grid.CellChecked(place.Row, place.Col); });
}

bool AccessibleReader::IsPressed(AccessiblePlace place) const
{
    return ReadCell(place, false, [&](Vornix& grid) { return grid.ButtonPressed(place.Row, place.Col); });
}

AccessiblePlace AccessibleReader::Parent(AccessiblePlace place) const
{
    return ReadCell(place, place, [&](Vornix& grid) {
        return AccessiblePlace { grid.ParentRow(place.Row, place.Col), grid.ParentCol(place.Row, place.Col) };
    });
}

int AccessibleReader::RowExtent(AccessiblePlace place) const
{
    return ReadCell(place, 1, [&](Vornix& grid) { return std::max<int>(1, grid.RowSpan(place.Row, place.Col)); });
}

int AccessibleReader::ColExtent(AccessiblePlace place) const
{
    return ReadCell(place, 1, [&](Vornix& grid) { return std::max<int>(1, grid.ColSpan(place.Row, place.Col)); });
}

bool AccessibleReader::IsHidden(AccessiblePlace place) const
{
    if (place.IsTitle())
        return !HasTitle();
    return ReadCell(place, true, [&](Vornix& grid) {
        i16 width = 0;
        i16 height = 0;
        grid.GetSizeCell(place.Row, place.Col, width, height);
        return width == 0 || height == 0 || Parent(place) != place;
    });
}

// Places count from the outer edge of the widget: the border is in them.
std::optional<int> AccessibleReader::LeftOf(int col) const
{
    return Read(std::optional<int>(), [&](Vornix& grid) -> std::optional<int> {
        i32 x = 0;
        i32 y = 0;
        grid.GetPositionCell(Narrow(-grid.FixedRows()), Narrow(col), x, y);
        return x / container_->TwipsPerPixel().width;
    });
}

std::optional<int> AccessibleReader::TopOf(int row) const
{
    return Read(std::optional<int>(), [&](Vornix& grid) -> std::optional<int> {
        i32 x = 0;
        i32 y = 0;
        grid.GetPositionCell(Narrow(row), Narrow(-grid.FixedCols()), x, y);
        return y / container_->TwipsPerPixel().height;
    });
}

QRect AccessibleReader::TitleArea() const
{
    const std::optional<int> bottom = TopOf(-HeaderRows());
    const QRect client = widget_->contentsRect();
    if (!bottom || *bottom <= client.top())
        return {};
    return QRect(client.topLeft(), QPoint(client.right(), *bottom - 1)) & client;
}

// From the cell's own place to that of the next: a line that is scrolled out begins and ends where the scrolling lines
// begin, and one that is so in part ends where the next one begins.
QRect AccessibleReader::Area(AccessiblePlace place) const
{
    if (!IsOpen() || IsHidden(place))
        return {};
    if (place.IsTitle())
        return TitleArea();
    const std::optional<int> left = LeftOf(place.Col);
    const std::optional<int> top = TopOf(place.Row);
    if (!left || !top)
        return {};
    // Places end at 16 bits, far outside the window.
    constexpr int FarOutside = 32767;
    const int right = LeftOf(place.Col + ColExtent(place)).value_or(FarOutside);
    const int bottom = TopOf(place.Row + RowExtent(place)).value_or(FarOutside);
    const QRect client = widget_->contentsRect();
    const auto seen = Read(QSize(), [](Vornix& grid) {
        return QSize(static_cast<int>(grid.GetScaleWidth()), static_cast<int>(grid.GetScaleHeight()));
    });
    const QRect area = QRect(*left, *top, right - *left, bottom - *top) & QRect(client.topLeft(), seen);
    return area.isEmpty() ? QRect() : area;
}

std::optional<AccessiblePlace> AccessibleReader::PlaceAt(QPoint inWidget) const
{
    const auto found = Read(std::optional<AccessiblePlace>(), [&](Vornix& grid) -> std::optional<AccessiblePlace> {
        const QPoint client = inWidget - widget_->contentsRect().topLeft();
        AccessiblePlace place;
        if (!grid.GetCellParentAtPos(client.x(), client.y(), place.Row, place.Col))
            return std::nullopt;
        if (grid.CaptionEnabled() && place.Row == -grid.FixedRows())
            return AccessiblePlace::Title();
        return place;
    });
    if (found && Area(*found).contains(inWidget))
        return found;
    return std::nullopt;
}

std::optional<AccessiblePlace> AccessibleReader::Current() const
{
    const auto current = Read(std::optional<AccessiblePlace>(), [](Vornix& grid) -> std::optional<AccessiblePlace> {
        const i32 Row = grid.CurrentRow();
        const i16 Col = grid.CurrentCol();
        // In virtual mode the row is a place in the list, of which the table holds a page.
        const i32 inTable = Row - grid.VirtualOffset();
        if (Row == NoIndex || Col == NoIndex || inTable != Narrow(inTable))
            return std::nullopt;
        return AccessiblePlace { Narrow(inTable), Col };
    });
    if (current && Has(*current))
        return current;
    return std::nullopt;
}

// As it is painted: a cell over several rows is not part of a selected one, and so with columns.
bool AccessibleReader::IsSelected(AccessiblePlace place) const
{
    return ReadCell(place, false, [&](Vornix& grid) {
        const auto [Row, Col] = place;
        if (Row < 0 && Col < 0)
            return false;
        if (Row < 0)
            return grid.ColSelected(Col);
        if (Col < 0)
            return grid.RowSelected(Row);
        return grid.CellSelected(Row, Col) || (RowExtent(place) == 1 && grid.RowSelected(Row))
            || (ColExtent(place) == 1 && grid.ColSelected(Col));
    });
}

bool AccessibleReader::IsRowSelected(int row) const
{
    return Read(false, [&](Vornix& grid) { return grid.RowSelected(Narrow(row)); });
}

bool AccessibleReader::IsColSelected(int col) const
{
    return Read(false, [&](Vornix& grid) { return grid.ColSelected(Narrow(col)); });
}

// A host's walk over selected lines does not suffer: the rectangle is asked for only while there are none.
AccessibleSelection AccessibleReader::Selection() const
{
    return Read(AccessibleSelection(), [](Vornix& grid) {
        AccessibleSelection selection;
        if (grid.SelectCountRow() > 0)
            selection.rows = LinesWith(grid.Rows(), [&](i16 Row) { return grid.RowSelected(Row); });
        if (grid.SelectCountCol() > 0)
            selection.cols = LinesWith(grid.Cols(), [&](i16 Col) { return grid.ColSelected(Col); });
        if (grid.SelectCountCell() > 0)
            selection.cells = SelectedCells(grid);
        return selection;
    });
}

bool AccessibleReader::SelectsRows() const
{
    return Read(false, [](Vornix& grid) { return grid.SelectByRowCol() || HasBit(grid.SelectMode(), vxRow); });
}

bool AccessibleReader::SelectsCols() const
{
    return Read(false, [](Vornix& grid) { return HasBit(grid.SelectMode(), vxColumn); });
}

bool AccessibleReader::SelectsAny() const
{
    return SelectsRows() || SelectsCols() || Read(false, [](Vornix& grid) { return grid.CellSelection(); });
}

// A line may be in several ranges, and leaves one at a time.
void AccessibleReader::SelectRow(int row, bool selected) const
{
    Do([&](Vornix& grid) {
        for (int most = grid.SelectCountRow() + 1; most > 0 && grid.RowSelected(Narrow(row)) != selected; --most)
            grid.SetRowSelected(Narrow(row), selected);
    });
}

void AccessibleReader::SelectCol(int col, bool selected) const
{
    Do([&](Vornix& grid) {
        for (int most = grid.SelectCountCol() + 1; most > 0 && grid.ColSelected(Narrow(col)) != selected; --most)
            grid.SetColSelected(Narrow(col), selected);
    });
}

void AccessibleReader::Click(AccessiblePlace place) const
{
    Do([&](Vornix& grid) {
        Include(grid, place);
        const QRect area = Area(place);
        if (area.isEmpty() || !IsEnabled(place))
            return;
        const QPoint client = area.center() - widget_->contentsRect().topLeft();
        ClickAt(grid, static_cast<float>(client.x()), static_cast<float>(client.y()));
    });
}

void AccessibleReader::MakeCurrent(AccessiblePlace place) const
{
    Do([&](Vornix& grid) {
        widget_->setFocus(Qt::OtherFocusReason);
        if (IsOpen() && Has(place))
            grid.CurrentPos(place.Row + grid.VirtualOffset(), place.Col);
    });
}

} // namespace vornix
