// What the counted handles hold. None of it is changed once it is made, but the table of an array.
#pragma once

#include "vornix/automation.h"
#include "vornix/picture.h"
#include "vornix/vornix_c.h"

#include <atomic>
#include <memory>

namespace vornix::c {

class Counted {
public:
    void Retain() { references_.fetch_add(1, std::memory_order_relaxed); }
    // True for the last one.
    bool Release() { return references_.fetch_sub(1, std::memory_order_acq_rel) == 1; }

private:
    std::atomic<int> references_ { 1 };
};

template <typename Handle> void ReleaseHandle(Handle* handle)
{
    if (handle != nullptr && handle->Release())
        delete handle;
}

} // namespace vornix::c

struct vornix_font : vornix::c::Counted {
    vornix::FontPtr font;
};

struct vornix_picture : vornix::c::Counted {
    vornix::PicturePtr picture;
};

struct vornix_object : vornix::c::Counted {
    vornix::ObjectPtr object;
};

struct vornix_array : vornix::c::Counted {
    // Shared with grids while they read it: written only while this is the only holder.
    std::shared_ptr<vornix::VariantArray> table;
    std::size_t records = 0;
};
