#include "grid_editor.h"

#include "editable_cells.h"
#include "entered_text.h"
#include "notices.h"
#include "redraw_pause.h"
#include "unicode.h"

#include <algorithm>
#include <optional>

namespace vornix::viewer {

namespace {

// Runs of numbers that follow one another, the last run first.
template <typename Step> void ForEachRunFromTheEnd(const std::vector<int>& sorted, Step step)
{
    std::size_t end = sorted.size();
    while (end > 0) {
        std::size_t begin = end - 1;
        while (begin > 0 && sorted[begin - 1] == sorted[begin] - 1)
            --begin;
        step(sorted[begin], static_cast<int>(end - begin));
        end = begin;
    }
}

} // namespace

std::string GridEditor::Paste(const SelectedCells& cells, const TextBlock& block)
{
    if (cells.IsEmpty() || block.empty())
        return {};
    const RedrawPause pause(grid_);
    Refusals refusals;
    if (block.size() == 1 && block.front().size() == 1) {
        for (const i16 Row : cells.Rows) {
            for (const i16 Col : cells.Cols)
                Enter(Row, Col, block.front().front(), refusals);
        }
        return Line(refusals, static_cast<int>(cells.Rows.size() * cells.Cols.size()), "pasted");
    }
    int count = 0;
    for (std::size_t row = 0; row < block.size(); ++row) {
        count += static_cast<int>(block[row].size());
        for (std::size_t column = 0; column < block[row].size(); ++column)
            Enter(cells.Rows.front() + static_cast<int>(row), cells.Cols.front() + static_cast<int>(column),
                block[row][column], refusals);
    }
    return Line(refusals, count, "pasted");
}

std::string GridEditor::Clear(const SelectedCells& cells)
{
    const RedrawPause pause(grid_);
    Refusals refusals;
    for (const i16 Row : cells.Rows) {
        for (const i16 Col : cells.Cols)
            Enter(Row, Col, {}, refusals);
    }
    return Line(refusals, static_cast<int>(cells.Rows.size() * cells.Cols.size()), "emptied");
}

void GridEditor::Enter(int Row, int column, std::u16string_view text, Refusals& refusals)
{
    const auto refuse = [&](const std::string& reason) {
        if (refusals.cells++ == 0)
            refusals.first = reason;
    };
    if (Row >= rows_.Count())
        return refuse("there are no more rows");
    if (column >= document_.Saved().ColumnCount())
        return refuse("there are no more columns");
    const int row = rows_.At(Row);
    const EnteredText entered = EnterText(document_, inputs_, row, column, text);
    if (!entered.text) {
        const std::u16string& name = document_.Saved().Columns()[static_cast<std::size_t>(column)].name;
        return refuse("row " + document_.NameOf(row) + ", " + OneLine(ToUtf8(name)) + ": " + entered.reason);
    }
    document_.Change(row, column, *entered.text);
    ShowCell(grid_, document_, inputs_, static_cast<i16>(Row), row, column);
}

std::string GridEditor::Line(const Refusals& refusals, int cells, const char* done)
{
    if (refusals.cells == 0)
        return {};
    const std::string count = refusals.cells == cells ? Counted(static_cast<std::uint64_t>(cells), "cell")
                                                      : WithGroups(static_cast<std::uint64_t>(refusals.cells)) + " of "
            + Counted(static_cast<std::uint64_t>(cells), "cell");
    return count + " not " + done + " (" + refusals.first + ")";
}

std::string GridEditor::AddRows(Records::Side side, i16& first)
{
    const std::vector<i16> Rows = SelectedRowsOf(grid_);
    const bool isTop = Rows.empty();
    const int count = grid_.SelectCountRow() > 0 ? static_cast<int>(Rows.size()) : 1;
    const bool isBefore = isTop || side == Records::Side::Before;
    const int beside = isTop ? 0 : (isBefore ? Rows.front() : Rows.back());
    int neighbour = rows_.At(beside); // -1 in an empty table
    Records::Side next = isBefore ? Records::Side::Before : Records::Side::Behind;
    std::vector<int> added;
    std::string reason;
    for (int row = 0; row < count; ++row) {
        reason = document_.WhyNoMoreRows().value_or("");
        if (!reason.empty())
            break;
        neighbour = document_.AddRow(neighbour, next);
        next = Records::Side::Behind;
        added.push_back(neighbour);
    }
    first = added.empty() ? NoIndex : static_cast<i16>(isBefore ? beside : beside + 1);
    Insert(first, added);
    return reason.empty() ? reason : "no more rows added: " + reason;
}

void GridEditor::Insert(int Row, const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    const RedrawPause pause(grid_);
    rows_.Insert(Row, rows);
    for (std::size_t place = 0; place < rows.size(); ++place)
        ShowRow(grid_, document_, inputs_, static_cast<i16>(Row + static_cast<int>(place)), rows[place]);
}

std::string GridEditor::RemoveRows(const std::vector<i16>& Rows)
{
    std::vector<RemovedRow> removed;
    std::vector<int> places;
    for (const i16 Row : Rows) {
        const int row = rows_.At(Row);
        if (!document_.CanRemove(row))
            continue;
        document_.RemoveRow(row);
        removed.push_back({ Row, row });
        places.push_back(Row);
    }
    Remove(places);
    if (!removed.empty())
        removed_.push_back(removed);
    const std::size_t left = Rows.size() - removed.size();
    return left == 0 ? std::string() : Counted(left, "row") + " cannot be deleted";
}

void GridEditor::Remove(const std::vector<int>& Rows)
{
    if (Rows.empty())
        return;
    const RedrawPause pause(grid_);
    ForEachRunFromTheEnd(Rows, [this](int Row, int count) { rows_.Remove(Row, count); });
}

std::string GridEditor::RestoreRows()
{
    if (removed_.empty())
        return {};
    if (const auto reason = document_.WhyNoMoreRows(static_cast<int>(removed_.back().size())))
        return "no rows undeleted: " + *reason;
    std::vector<RemovedRow> last = std::move(removed_.back());
    removed_.pop_back();
    std::erase_if(last, [this](const RemovedRow& removed) { return !document_.RestoreRow(removed.row); });
    const RedrawPause pause(grid_);
    for (std::size_t begin = 0; begin < last.size();) {
        std::vector<int> run;
        for (std::size_t place = begin;
             place < last.size() && last[place].Row == last[begin].Row + static_cast<int>(run.size()); ++place)
            run.push_back(last[place].row);
        Insert(std::min(last[begin].Row, rows_.Count()), run);
        begin += run.size();
    }
    return {};
}

void GridEditor::ShowSaved(const std::vector<CellText>& others)
{
    std::optional<RedrawPause> pause;
    if (!grid_.IsEditMode()) // which it would end
        pause.emplace(grid_);
    removed_.clear();
    std::vector<int> gone;
    for (int Row = 0; Row < rows_.Count(); ++Row) {
        if (!document_.IsThere(rows_.At(Row)))
            gone.push_back(Row);
    }
    Remove(gone);
    UpdateEditors(grid_, document_, inputs_, rows_);
    std::vector<i16> places(static_cast<std::size_t>(document_.Saved().RowCount()), NoIndex);
    for (int Row = 0; Row < rows_.Count(); ++Row) {
        places.at(static_cast<std::size_t>(rows_.At(Row))) = static_cast<i16>(Row);
        ShowName(grid_, document_, static_cast<i16>(Row), rows_.At(Row));
    }
    for (const CellText& cell : others) {
        if (const i16 Row = places.at(static_cast<std::size_t>(cell.row)); Row != NoIndex)
            ShowText(grid_, document_, inputs_, Row, cell);
    }
}

} // namespace vornix::viewer
