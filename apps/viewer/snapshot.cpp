#include "snapshot.h"

#include "present.h"
#include "vornix/headless_container.h"

namespace vornix::viewer {

void SavePicture(const Table& table, const ViewerOptions& options, const std::string& path)
{
    HeadlessOptions window;
    window.width = options.width;
    window.height = options.height;
    window.scale = options.scale;
    window.mostPixels = std::int64_t { 1 } << 29; // the options are read with a lower limit
    HeadlessContainer container(window);
    PresentTable(container.Grid(), container.WindowDevice(), container.Colors(), table);
    container.SavePng(path);
}

} // namespace vornix::viewer
