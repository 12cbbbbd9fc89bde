// Finds members by name without regard to case, in a table made at compile time.
#pragma once

#include "vornix/members.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace vornix {

// Names of members are ASCII.
constexpr char LowerAscii(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

constexpr bool EqualNames(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t place = 0; place < a.size(); ++place) {
        if (LowerAscii(a[place]) != LowerAscii(b[place]))
            return false;
    }
    return true;
}

template <std::size_t count> class NameIndex {
public:
    constexpr explicit NameIndex(std::span<const MemberInfo, count> members)
    {
        for (std::size_t member = 0; member < count; ++member) {
            std::size_t slot = Hash(members[member].name) % SlotCount;
            while (slots_[slot] != 0)
                slot = (slot + 1) % SlotCount;
            slots_[slot] = static_cast<u16>(member + 1);
        }
    }

    // Null where there is no member of the name.
    constexpr const MemberInfo* Find(std::string_view name, std::span<const MemberInfo, count> members) const
    {
        for (std::size_t slot = Hash(name) % SlotCount; slots_[slot] != 0; slot = (slot + 1) % SlotCount) {
            const MemberInfo& member = members[slots_[slot] - 1u];
            if (EqualNames(member.name, name))
                return &member;
        }
        return nullptr;
    }

private:
    // At most a quarter of the slots is taken, so that runs of taken ones stay short.
    static constexpr std::size_t SlotCount = [] {
        std::size_t slots = 1;
        while (slots < 4 * count)
            slots *= 2;
        return slots;
    }();

    static constexpr std::size_t Hash(std::string_view name)
    {
        u32 hash = 2166136261u;
        for (const char character : name)
            hash = (hash ^ static_cast<u8>(LowerAscii(character))) * 16777619u;
        return hash ^ (hash >> 15);
    }

    // The number of a member plus one; 0 is free.
    std::array<u16, SlotCount> slots_ {};
};

} // namespace vornix
