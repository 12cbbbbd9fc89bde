// A property bag and a settings store that live in memory.
#pragma once

#include "vornix/platform/container.h"

#include <map>
#include <string>
#include <tuple>

namespace vornix {

class MemoryBag : public PropertyBag {
public:
    std::map<std::string, BagValue, std::less<>> values;

    std::optional<BagValue> ReadProperty(std::string_view name) const override;
    void WriteProperty(std::string_view name, const BagValue& value) override;
};

class MemorySettings : public SettingsStore {
public:
    // By application, section and key.
    std::map<std::tuple<std::u16string, std::u16string, std::u16string>, std::u16string> values;

    std::u16string GetSetting(std::u16string_view application, std::u16string_view section, std::u16string_view key,
        std::u16string_view fallback) override;
    void SaveSetting(std::u16string_view application, std::u16string_view section, std::u16string_view key,
        std::u16string_view value) override;
};

} // namespace vornix
