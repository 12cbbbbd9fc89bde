#include "vornix/memory_stores.h"

namespace vornix {

std::optional<BagValue> MemoryBag::ReadProperty(std::string_view name) const
{
    const auto found = values.find(name);
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

void MemoryBag::WriteProperty(std::string_view name, const BagValue& value)
{
    values.insert_or_assign(std::string(name), value);
}

std::u16string MemorySettings::GetSetting(
    std::u16string_view application, std::u16string_view section, std::u16string_view key, std::u16string_view fallback)
{
    const auto found = values.find({ std::u16string(application), std::u16string(section), std::u16string(key) });
    return found == values.end() ? std::u16string(fallback) : found->second;
}

void MemorySettings::SaveSetting(
    std::u16string_view application, std::u16string_view section, std::u16string_view key, std::u16string_view value)
{
    values[{ std::u16string(application), std::u16string(section), std::u16string(key) }] = value;
}

} // namespace vornix
