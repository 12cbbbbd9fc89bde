// A surface that only grows.
#pragma once

#include "vornix/platform/device.h"

#include <memory>

namespace vornix {

class cMemDC {
public:
    Surface* hMemDC() const { return surface_.get(); }
    void ClearMemDC();
    // The surface, at least this large; null when it cannot be had. `rebuilt` tells whether its contents are undefined.
    Surface* BuildMemDC(Device& reference, int width, int height, bool& rebuilt);
    // Free when the colour is that of the latest fill.
    void FillBkGround(ColorRef color);
    Surface* FillBkGroundRect(Device& reference, ColorRef color, int width, int height);

private:
    ColorRef lastColor_ = 0;
    int width_ = 0;
    int height_ = 0;
    std::unique_ptr<Surface> surface_;
};

} // namespace vornix
