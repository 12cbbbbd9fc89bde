// A window of the host's that edits a cell in place of the control's own editors. It takes pointer and keys and does
// nothing with them.
#pragma once

#include "vornix/headless_child.h"

#include <cstdint>

namespace vornix {

class HeadlessHostWindow final : public HeadlessChild {
public:
    explicit HeadlessHostWindow(std::intptr_t number)
        : number_(number)
    {
    }
    // What the control knows it by.
    std::intptr_t Number() const { return number_; }
    void MouseDown(i16 /*button*/, i16 /*shift*/, float /*x*/, float /*y*/) override { SetFocus(); }

private:
    std::intptr_t number_;
};

} // namespace vornix
