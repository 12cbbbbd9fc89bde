#include "caller_settings.h"

#include "values.h"

namespace vornix::c {

std::u16string CallerSettings::GetSetting(
    std::u16string_view application, std::u16string_view section, std::u16string_view key, std::u16string_view fallback)
{
    if (get_ == nullptr)
        return MemorySettings::GetSetting(application, section, key, fallback);
    vornix_setting setting { ViewOf(application), ViewOf(section), ViewOf(key), {} };
    return get_(user_, &setting) == 0 ? std::u16string(fallback) : ToText(setting.value);
}

void CallerSettings::SaveSetting(
    std::u16string_view application, std::u16string_view section, std::u16string_view key, std::u16string_view value)
{
    if (save_ == nullptr)
        return MemorySettings::SaveSetting(application, section, key, value);
    const vornix_setting setting { ViewOf(application), ViewOf(section), ViewOf(key), ViewOf(value) };
    save_(user_, &setting);
}

} // namespace vornix::c
