// For a build without the raster toolkit, which has nothing to draw with.
#include "report.h"
#include "show.h"

namespace vornix::viewer {

int ShowTable(const Table&, const ViewerOptions&)
{
    ReportLine("this build cannot draw; --list and --text work");
    return 1;
}

int EditDocument(Document&, const ViewerOptions&)
{
    ReportLine("this build opens no window, which --edit needs");
    return 1;
}

} // namespace vornix::viewer
