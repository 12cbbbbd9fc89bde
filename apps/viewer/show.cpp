// Decides between a window and a picture.
#include "show.h"

#include "report.h"
#include "snapshot.h"
#ifdef VORNIX_VIEWER_WINDOW
#include "window.h"
#endif

#include <cstdlib>
#include <filesystem>
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

std::string PicturePath(const ViewerOptions& options)
{
    if (options.snapshot)
        return *options.snapshot;
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    return ((error ? std::filesystem::path(".") : folder) / "vornix-view.png").string();
}

int WritePicture(const Table& table, const ViewerOptions& options)
{
    const std::string path = PicturePath(options);
    try {
        SavePicture(table, options, path);
    } catch (const std::runtime_error& error) {
        ReportLine(error.what());
        return 1;
    }
    std::cout << path << '\n';
    return 0;
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

} // namespace vornix::viewer
