#include "notices.h"

namespace vornix::viewer {

std::string WithGroups(std::uint64_t number)
{
    std::string digits = std::to_string(number);
    for (std::size_t end = digits.size(); end > 3; end -= 3)
        digits.insert(end - 3, 1, ',');
    return digits;
}

std::string Counted(std::uint64_t number, std::string_view noun)
{
    return WithGroups(number) + ' ' + std::string(noun) + (number == 1 ? "" : "s");
}

void AddMissingRowsNotice(Table& table)
{
    if (table.IsComplete())
        return;
    table.AddNotice("the first " + WithGroups(static_cast<std::uint64_t>(table.RowCount())) + " of "
        + WithGroups(table.TotalRows()) + " rows are shown");
}

} // namespace vornix::viewer
