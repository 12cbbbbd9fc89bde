// Decides between a window and a picture.
#include "show.h"

#include "private_path.h"
#include "report.h"
#include "snapshot.h"
#ifdef VORNIX_VIEWER_WINDOW
#include "window.h"
#endif

#include <cstdlib>
#include <iostream>

namespace vornix::viewer {

namespace {

bool IsSet(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value && *value;
}

bool HasDisplay()
{
    return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM");
}

int WritePicture(const Table& table, const ViewerOptions& options)
{
    return StatusOf([&] {
        const std::string path = options.snapshot ? *options.snapshot : MakePrivatePath("picture.png");
        SavePicture(table, options, path);
        std::cout << path << '\n';
    });
}

} // namespace

int ShowTable(const Table& table, const ViewerOptions& options)
{
    if (options.snapshot)
        return WritePicture(table, options);
#ifdef VORNIX_VIEWER_WINDOW
    if (HasDisplay())
        return ShowWindow(table, options, [&] {
            ReportLine("the display cannot be reached; the picture is written instead");
            return WritePicture(table, options);
        });
    ReportLine("there is no display; the picture is written instead");
#else
    if (HasDisplay())
        ReportLine("this build opens no window; the picture is written instead");
    else
        ReportLine("there is no display; the picture is written instead");
#endif
    return WritePicture(table, options);
}

#ifdef VORNIX_VIEWER_WINDOW
int EditDocument(Document& document, const ViewerOptions& options)
{
    const auto fail = [](const char* reason) {
        ReportLine(reason);
        return 1;
    };
    if (!HasDisplay())
        return fail("there is no display, which --edit needs");
    return ShowWindow(document, options, [&] { return fail("the display cannot be reached, which --edit needs"); });
}
#else
int EditDocument(Document&, const ViewerOptions&)
{
    ReportLine("this build opens no window, which --edit needs");
    return 1;
}
#endif

} // namespace vornix::viewer
