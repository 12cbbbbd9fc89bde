#include "report.h"

#include "unicode.h"

#include <exception>
#include <iostream>
#include <new>

namespace vornix::viewer {

void ReportLine(std::string_view message)
{
    std::cerr << "vornix-view: " + OneLine(message) + '\n';
}

int StatusOf(const std::function<void()>& step)
{
    try {
        step();
        return 0;
    } catch (const std::bad_alloc&) {
        ReportLine("it does not fit into memory");
    } catch (const std::exception& error) {
        ReportLine(error.what());
    }
    return 1;
}

} // namespace vornix::viewer
