// Pictures to files.
#pragma once

namespace vornix {
class RasterSurface;
}

namespace vornix::c {

// Error 75 when the file cannot be written.
void SavePng(const RasterSurface& surface, const char* path);

} // namespace vornix::c
