// The page about scripts names the elements that there are.
#include "persist/script_elements.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace vornix {
namespace {

std::vector<std::string> CellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, '|');) {
        const std::size_t first = cell.find_first_not_of(' ');
        cells.push_back(first == std::string::npos ? "" : cell.substr(first, cell.find_last_not_of(' ') - first + 1));
    }
    return cells;
}

// What stands between pairs of backticks.
std::vector<std::string> NamesOf(const std::string& cell)
{
    std::vector<std::string> names;
    std::istringstream stream(cell);
    for (std::string part; std::getline(stream, part, '`') && std::getline(stream, part, '`');)
        names.push_back(part);
    return names;
}

// "cell, number: CellMode" for each element.
std::set<std::string> ElementsOfPage()
{
    std::ifstream page(VORNIX_DOCS "/script.md");
    EXPECT_TRUE(page.is_open());
    std::set<std::string> elements;
    for (std::string line; std::getline(page, line);) {
        const std::vector<std::string> cells = CellsOf(line);
        if (cells.size() != 4)
            continue;
        for (const std::string& name : NamesOf(cells[3]))
            EXPECT_TRUE(elements.insert(cells[1] + ", " + cells[2] + ": " + name).second) << name << " is there twice";
    }
    return elements;
}

std::set<std::string> ElementsOfTable()
{
    const std::map<ScriptAddressing, std::string> places { { ScriptAddressing::Cell, "cell" },
        { ScriptAddressing::Column, "column" }, { ScriptAddressing::Row, "row" }, { ScriptAddressing::Grid, "grid" } };
    const std::map<ScriptValueKind, std::string> kinds { { ScriptValueKind::Number, "number" },
        { ScriptValueKind::ShortNumber, "16-bit number" }, { ScriptValueKind::Boolean, "boolean" },
        { ScriptValueKind::NumericBoolean, "boolean number" }, { ScriptValueKind::Text, "text" } };
    std::set<std::string> elements;
    for (const ScriptElement& element : ScriptElements()) {
        const std::string name(element.name.begin(), element.name.end());
        elements.insert(places.at(element.addressing) + ", " + kinds.at(element.value) + ": " + name);
    }
    return elements;
}

} // namespace

TEST(ScriptPage, NamesEveryElementWithItsPlaceAndKind)
{
    EXPECT_EQ(ElementsOfPage(), ElementsOfTable());
}

} // namespace vornix
