// Saves a file again and again until it is ended: save_forever FILE. The column "generation" of all rows goes up by one
// each time. Writes a line once it was saved for the first time.
#include "document.h"
#include "unicode.h"

#include <cstdio>
#include <exception>
#include <iostream>

using namespace vornix::viewer;

namespace {

int GenerationColumn(const Table& table)
{
    for (int column = 0; column < table.ColumnCount(); ++column) {
        if (table.Columns()[static_cast<std::size_t>(column)].name == u"generation")
            return column;
    }
    throw std::runtime_error("there is no column \"generation\"");
}

void SaveForever(const std::string& path)
{
    ViewerOptions options;
    options.file = path;
    Document document(OpenForChanging(options, LoadLimits(), {}));
    const int column = GenerationColumn(document.Saved());
    const int first = std::stoi(ToUtf8(document.Text(0, column))) + 1;
    for (int generation = first;; ++generation) {
        for (int row = 0; row < document.Saved().RowCount(); ++row)
            document.Change(row, column, ToUtf16(std::to_string(generation)));
        document.Save();
        if (generation == first)
            std::cout << "saving" << std::endl;
    }
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    try {
        SaveForever(arguments[1]);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}
