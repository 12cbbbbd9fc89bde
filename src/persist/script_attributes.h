// Where an element of the batch script applies.
#pragma once

#include "persist/script_elements.h"
#include "vornix/platform/locale.h"

#include <optional>
#include <string_view>

namespace vornix {

// Public indices.
struct ScriptPlace {
    i16 Row = 0;
    i16 Col = 0;
};

// The place that attributes give, each index taken from `cursor` where they do not. Nothing when they break the rules of
// the addressing: a name that is none of them, one index of a cell without the other. An index that is no number ends
// the reading, and those before it count. Error 6 for an index beyond 16 bits.
std::optional<ScriptPlace> ReadScriptPlace(
    std::u16string_view attributes, ScriptAddressing addressing, ScriptPlace cursor, const Locale& locale);

} // namespace vornix
