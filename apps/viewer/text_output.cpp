#include "text_output.h"

#include "unicode.h"

namespace vornix::viewer {

namespace {

std::string Quoted(const std::string& text)
{
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c;
        if (c == '"')
            quoted += c;
    }
    return quoted + '"';
}

std::string FieldText(std::u16string_view text)
{
    const std::string bytes = ToUtf8(text);
    const bool needsQuotes
        = bytes.empty() || bytes.front() == '"' || bytes.find_first_of("\t\r\n") != std::string::npos;
    return needsQuotes ? Quoted(bytes) : bytes;
}

std::string CellText(const Table& table, int row, int column)
{
    if (table.IsNull(row, column))
        return {};
    const bool isBoolean = table.Columns()[static_cast<std::size_t>(column)].kind == ColumnKind::Boolean;
    if (isBoolean && table.HasTruthValue(row, column))
        return table.IsTrue(row, column) ? "true" : "false";
    return FieldText(table.Text(row, column));
}

} // namespace

void WriteAsText(const Table& table, std::ostream& output)
{
    for (int column = 0; column < table.ColumnCount(); ++column)
        output << (column > 0 ? "\t" : "") << FieldText(table.Columns()[static_cast<std::size_t>(column)].name);
    output << '\n';
    for (int row = 0; row < table.RowCount(); ++row) {
        for (int column = 0; column < table.ColumnCount(); ++column)
            output << (column > 0 ? "\t" : "") << CellText(table, row, column);
        output << '\n';
    }
}

} // namespace vornix::viewer
