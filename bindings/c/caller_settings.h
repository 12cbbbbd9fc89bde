// Settings that the caller of the C library keeps.
#pragma once

#include "vornix/memory_stores.h"
#include "vornix/vornix_c.h"

namespace vornix::c {

// What has no function of the caller's is kept here.
class CallerSettings : public MemorySettings {
public:
    CallerSettings(vornix_get_setting get, vornix_save_setting save, void* user)
        : get_(get)
        , save_(save)
        , user_(user)
    {
    }

    std::u16string GetSetting(std::u16string_view application, std::u16string_view section, std::u16string_view key,
        std::u16string_view fallback) override;
    void SaveSetting(std::u16string_view application, std::u16string_view section, std::u16string_view key,
        std::u16string_view value) override;

private:
    vornix_get_setting get_;
    vornix_save_setting save_;
    void* user_;
};

} // namespace vornix::c
