// The members of the control by name, for hosts that find out at run time what they call.
#pragma once

#include "vornix/types.h"

#include <span>
#include <string_view>

namespace vornix {

// What a call asks of a member. Get and Call are one to a member that gives a value without being a plain property, as
// automation hosts send them.
enum class InvokeKind : u8 { Get, Let, Call };

enum class MemberKind : u8 { Property, ReadOnly, WriteOnly, Method };

// What arguments and results are declared as. Enums are I32.
enum class ValueType : u8 {
    None,
    I16,
    I32,
    Single,
    Boolean,
    Text,
    Color,
    DeviceHandle,
    WindowHandle,
    Font,
    Picture,
    Object,
    Array,
    Any
};

struct ArgumentInfo {
    std::string_view name;
    ValueType type = ValueType::None;
    // Comes back in its place.
    bool byReference = false;
    bool optional = false;
};

struct MemberInfo {
    std::string_view name;
    MemberKind kind = MemberKind::Method;
    std::span<const ArgumentInfo> arguments;
    // The type of a property, the result of a method; None where nothing comes back.
    ValueType type = ValueType::None;
    // Error 445 for reading (or calling), and for writing.
    bool readPending = false;
    bool writePending = false;
    // One sentence.
    std::string_view description;
};

struct EventInfo {
    std::string_view name;
    // From 1.
    int number = 0;
    std::span<const ArgumentInfo> arguments;
};

// All members, in the order of the interface file, and all events, by number. Both live as long as the program.
std::span<const MemberInfo> Members();
std::span<const EventInfo> Events();

// The member of a name, in any case; null where there is none.
const MemberInfo* FindMember(std::string_view name);

} // namespace vornix
