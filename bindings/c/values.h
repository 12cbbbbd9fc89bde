// Values on their way in and out.
#pragma once

#include "vornix/automation.h"
#include "vornix/vornix_c.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace vornix::c {

// In UTF-16 units.
inline constexpr std::size_t LongestText = std::size_t { 1 } << 30;

// A copy of what the caller passed. Errors 5 for a null pointer behind a length, 7 for a text that is too long.
std::u16string ToText(const vornix_text& text);
// The text seen from outside, valid as long as it is.
vornix_text ViewOf(std::u16string_view text);

// Error 13 for an unknown type, 6 for an integer or a number that its type does not hold.
Variant ToVariant(const vornix_value& value);
// With a copy of all it needs; to be given back with vornix_value_clear.
vornix_value ToValue(const Variant& value);

// Values that are given back unless the caller takes them: results in the making.
template <std::size_t Capacity> class ValueList {
public:
    ValueList() = default;
    ~ValueList()
    {
        for (std::size_t i = 0; i < count_; ++i)
            vornix_value_clear(&values_[i]);
    }
    ValueList(const ValueList&) = delete;
    ValueList& operator=(const ValueList&) = delete;

    void Add(const Variant& value)
    {
        values_[count_] = ToValue(value);
        ++count_;
    }
    std::size_t Count() const { return count_; }
    const vornix_value& operator[](std::size_t index) const { return values_[index]; }
    // From here on the value is the caller's.
    vornix_value Take(std::size_t index) { return std::exchange(values_[index], vornix_value {}); }

private:
    std::array<vornix_value, Capacity> values_;
    std::size_t count_ = 0;
};

} // namespace vornix::c
