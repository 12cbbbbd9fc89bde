#include "notices.h"

#include "digit_groups.h"

namespace vornix::viewer {

std::string WithGroups(std::uint64_t number)
{
    return WithDigitGroups(std::to_string(number));
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
