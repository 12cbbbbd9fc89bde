// What the viewer shows: named columns and rows of texts, independent of where they came from and of any toolkit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::viewer {

enum class ColumnKind { Text, Integer, Real, Money, Date, DateTime, Boolean };
enum class Alignment { Left, Center, Right };

// Numbers and dates to the right, check boxes in the middle, everything else to the left.
Alignment AlignmentOf(ColumnKind kind);

struct Column {
    std::u16string name;
    ColumnKind kind = ColumnKind::Text;
    // How the source writes truth values; of Boolean columns only.
    std::u16string trueText = {};
    std::u16string falseText = {};
};

// One value on its way into a table. The text is copied by Table::AppendRow.
struct Field {
    std::u16string_view text;
    bool isNull = false;
};

// Rows and columns count from 0 and hold data only: the header is Columns(), there is no column of row numbers.
// Text is UTF-16. A cell of a Boolean column holds "-1" or "0", as a check box cell does.
class Table {
public:
    // The table's, view's or file's name.
    const std::u16string& Name() const { return name_; }
    void SetName(std::u16string name) { name_ = std::move(name); }

    const std::vector<Column>& Columns() const { return columns_; }
    std::vector<Column>& Columns() { return columns_; }
    int ColumnCount() const { return static_cast<int>(columns_.size()); }

    // The rows held here, and the rows the source has; they differ when a limit was reached.
    int RowCount() const { return static_cast<int>(rowStarts_.size()) - firstRow_; }
    std::uint64_t TotalRows() const { return totalRows_; }
    void SetTotalRows(std::uint64_t rows) { totalRows_ = rows; }
    bool IsComplete() const { return TotalRows() == static_cast<std::uint64_t>(RowCount()); }

    // A row may hold fewer fields than there are columns: the missing ones are null.
    bool IsNull(int row, int column) const;
    // Empty for a null. Valid until the table changes.
    std::u16string_view Text(int row, int column) const;
    // The state of a check box cell; false for a null.
    bool IsTrue(int row, int column) const { return Text(row, column) == u"-1"; }
    // False in a Boolean column where there is no value: a null, or a text of blanks.
    bool HasTruthValue(int row, int column) const { return IsTrue(row, column) || Text(row, column) == u"0"; }

    // What a reader should be told, one line each, UTF-8: rows left out, rows filled up.
    const std::vector<std::string>& Notices() const { return notices_; }
    void AddNotice(std::string notice) { notices_.push_back(std::move(notice)); }

    void AppendRow(std::span<const Field> fields);
    // The cell must be one that AppendRow was given.
    void ReplaceText(int row, int column, std::u16string_view text);
    void DropFirstRow() { ++firstRow_; }
    void DropLastRow();
    std::size_t CellCount() const { return cells_.size(); }
    std::size_t TextLength() const { return texts_.size(); }

private:
    struct CellText {
        std::uint32_t start;
        std::uint32_t length; // NullLength for a null
    };
    static constexpr std::uint32_t NullLength = 0xFFFFFFFF;

    // Null when the row is shorter than that.
    const CellText* Find(int row, int column) const;
    CellText Store(std::u16string_view text);

    std::u16string name_;
    std::vector<Column> columns_;
    std::vector<std::size_t> rowStarts_; // into cells_
    std::vector<CellText> cells_;
    std::u16string texts_; // of all cells, one after the other
    int firstRow_ = 0; // 1 when the first row was the header
    std::uint64_t totalRows_ = 0;
    std::vector<std::string> notices_;
};

} // namespace vornix::viewer
