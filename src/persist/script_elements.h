// The words of the batch script: which member an element sets, where, and from what kind of value.
#pragma once

#include "vornix/types.h"

#include <span>
#include <string_view>

namespace vornix {

// What an element is addressed by, and so which attributes it may have. Those of a grid element are not read.
enum class ScriptAddressing : u8 { Cell, Column, Row, Grid };

enum class ScriptValueKind : u8 {
    Number,
    ShortNumber,
    Boolean,
    // Without the words for true and false.
    NumericBoolean,
    Text
};

// What an element does with its value. The cursor is where elements without attributes apply.
enum class ScriptAction : u8 { CallMember, MoveCursorRow, MoveCursorCol };

struct ScriptElement {
    // In exactly this case.
    std::u16string_view name;
    ScriptAddressing addressing = ScriptAddressing::Grid;
    ScriptValueKind value = ScriptValueKind::Number;
    // As the interface names it; a property is written, a method called. Empty for those that move the cursor.
    std::string_view member;
    ScriptAction action = ScriptAction::CallMember;
};

// All elements, by name.
std::span<const ScriptElement> ScriptElements();
// Null for a name that is none.
const ScriptElement* FindScriptElement(std::u16string_view name);

} // namespace vornix
