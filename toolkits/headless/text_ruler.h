// Measures text by a font, to find what character the pointer is on.
#pragma once

#include "vornix/platform/device.h"
#include "vornix/types.h"

#include <string_view>

namespace vornix {

class TextRuler {
public:
    // Selects the font into the device, which must outlive the ruler.
    TextRuler(Device& device, const FontObject& font);

    // Pixels.
    int LineHeight() const;
    int Width(std::u16string_view line) const;
    // How many characters of a line that begins at 0 lie in front of x: the boundary nearest to it.
    int CharactersBefore(std::u16string_view line, int x) const;

private:
    Device& device_;
};

} // namespace vornix
