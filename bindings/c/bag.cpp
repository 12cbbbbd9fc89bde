#include "bag.h"

#include "status.h"
#include "values.h"

#include <limits>
#include <span>
#include <variant>

namespace vornix::c {

namespace {

// An integer, or a colour without a sign: either is a pattern of 32 bits.
i32 ToPattern(std::int64_t integer)
{
    if (integer < std::numeric_limits<i32>::min() || integer > std::numeric_limits<std::uint32_t>::max())
        Raise(ErrorNumber::Overflow);
    return static_cast<i32>(static_cast<std::uint32_t>(integer));
}

BagValue ToBagValue(const vornix_value& value)
{
    switch (value.type) {
    case VORNIX_BOOLEAN:
        return value.as.integer != 0;
    case VORNIX_I16:
    case VORNIX_I32:
    case VORNIX_I64:
        return ToPattern(value.as.integer);
    case VORNIX_TEXT:
        return ToText(value.as.text);
    case VORNIX_FONT:
        return ToVariant(value).ToFont();
    case VORNIX_PICTURE:
        return ToVariant(value).ToPicture();
    default:
        Raise(ErrorNumber::TypeMismatch, "A type that no bag holds");
    }
}

} // namespace

MemoryBag ToBag(const vornix_bag_entry* entries, std::size_t count)
{
    if (count > 0)
        Require(entries);
    MemoryBag bag;
    for (const vornix_bag_entry& entry : std::span(entries, count)) {
        Require(entry.name);
        bag.WriteProperty(entry.name, ToBagValue(entry.value));
    }
    return bag;
}

void GiveBag(const MemoryBag& bag, vornix_bag_entry* entries, std::size_t capacity)
{
    std::size_t made = 0;
    try {
        for (const auto& [name, value] : bag.values) {
            if (made == capacity)
                return;
            entries[made].value = ToValue(std::visit([](const auto& held) { return Variant(held); }, value));
            entries[made].name = name.c_str();
            ++made;
        }
    } catch (...) {
        while (made > 0)
            vornix_value_clear(&entries[--made].value);
        throw;
    }
}

} // namespace vornix::c
