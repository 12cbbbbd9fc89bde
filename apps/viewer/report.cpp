#include "report.h"

#include "unicode.h"

#include <iostream>

namespace vornix::viewer {

void ReportLine(std::string_view message)
{
    std::cerr << "vornix-view: " + OneLine(message) + '\n';
}

} // namespace vornix::viewer
