// The tables of reference values under tests/data.
#pragma once

#include "vornix/automation.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::test {

struct ReferenceRow {
    int line = 0;
    std::vector<std::u16string> fields;
};

// The rows below the heading, escapes resolved. Every row has `fieldCount` fields, or the table is refused.
std::vector<ReferenceRow> ReadReferenceTable(const std::string& fileName, std::size_t fieldCount);

std::string ToUtf8(std::u16string_view text);

// "text_order.tsv:12 [a] [b]": names a row in a failure.
std::string NameOf(const std::string& fileName, const ReferenceRow& row);

// The number of the automation error that the step ends in, 0 for none.
template <typename Step> int ErrorOf(Step&& step)
{
    try {
        step();
        return 0;
    } catch (const AutomationError& error) {
        return error.Number();
    }
}

} // namespace vornix::test
