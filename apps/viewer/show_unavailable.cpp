// For a build without the raster toolkit, which has nothing to draw with.
#include "report.h"
#include "show.h"

namespace vornix::viewer {

int ShowTable(const Table&, const ViewerOptions&)
{
    ReportLine("this build cannot draw; --list and --text work");
    return 1;
}

} // namespace vornix::viewer
