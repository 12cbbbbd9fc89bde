#include "saved_document.h"

#include "unicode.h"

#include "vornix/sqlite/database.h"

namespace vornix::viewer {

Document Opened(const std::string& path, const std::optional<std::string>& table)
{
    ViewerOptions options;
    options.file = path;
    options.table = table;
    return Document(OpenForChanging(options, LoadLimits(), {}));
}

std::string MessageOfSave(Document& document)
{
    try {
        document.Save();
    } catch (const SaveError& error) {
        return error.what();
    }
    return "saved";
}

int Add(Document& document, const std::vector<std::u16string>& texts)
{
    const std::vector<int> rows = document.Rows();
    const int row = document.AddRow(rows.empty() ? -1 : rows.back(), Records::Side::Behind);
    for (std::size_t column = 0; column < texts.size(); ++column) {
        if (!texts[column].empty())
            document.Change(row, static_cast<int>(column), texts[column]);
    }
    return row;
}

std::vector<std::string> Rows(const std::string& path, const std::string& sql)
{
    const sqlite::Database database(path);
    sqlite::Statement statement = database.ReadQuery(sql);
    std::vector<std::string> rows;
    while (statement.Next()) {
        std::string row;
        for (int column = 0; column < statement.ColumnCount(); ++column) {
            row += column > 0 ? "|" : "";
            const sqlite::ValueType type = statement.Type(column);
            const std::string text = ToUtf8(statement.Text(column));
            row += type == sqlite::ValueType::Null ? "NULL" : type == sqlite::ValueType::Text ? "'" + text + "'" : text;
        }
        rows.push_back(row);
    }
    return rows;
}

} // namespace vornix::viewer
