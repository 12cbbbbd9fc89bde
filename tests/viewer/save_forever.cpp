// Saves a file again and again until it is ended: save_forever FILE [rows]. The column "generation" of all rows goes up
// by one each time; with "rows", the first row goes too, and a new one with the same texts comes behind the last, whose
// column "id" is counted on. Writes a line once it was saved for the first time.
#include "document.h"
#include "unicode.h"

#include <cstdio>
#include <exception>
#include <iostream>

using namespace vornix::viewer;

namespace {

int ColumnOf(const Table& table, std::u16string_view name)
{
    for (int column = 0; column < table.ColumnCount(); ++column) {
        if (table.Columns()[static_cast<std::size_t>(column)].name == name)
            return column;
    }
    throw std::runtime_error("a column is missing");
}

void MoveFirstRowToTheEnd(Document& document)
{
    const std::vector<int> rows = document.Rows();
    const int id = ColumnOf(document.Saved(), u"id");
    const int last = std::stoi(ToUtf8(document.Text(rows.back(), id)));
    const int added = document.AddRow(rows.back(), Records::Side::Behind);
    for (int column = 0; column < document.Saved().ColumnCount(); ++column)
        document.Change(added, column, std::u16string(document.Text(rows.front(), column)));
    document.Change(added, id, ToUtf16(std::to_string(last + 1)));
    document.RemoveRow(rows.front());
}

void SaveForever(const std::string& path, bool movesRows)
{
    ViewerOptions options;
    options.file = path;
    Document document(OpenForChanging(options, LoadLimits(), {}));
    const int column = ColumnOf(document.Saved(), u"generation");
    const int first = std::stoi(ToUtf8(document.Text(0, column))) + 1;
    for (int generation = first;; ++generation) {
        for (const int row : document.Rows())
            document.Change(row, column, ToUtf16(std::to_string(generation)));
        if (movesRows)
            MoveFirstRowToTheEnd(document);
        document.Save();
        if (generation == first)
            std::cout << "saving" << std::endl;
    }
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 2)
        return 2;
    try {
        SaveForever(arguments[1], count > 2);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}
