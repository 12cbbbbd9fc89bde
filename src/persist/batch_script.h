// The batch script: a text that sets many properties, and the place where elements without attributes apply.
#pragma once

#include "persist/script_attributes.h"
#include "persist/script_elements.h"
#include "persist/script_parser.h"
#include "vornix/platform/locale.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vornix {

using ScriptValue = std::variant<i32, i16, bool, std::u16string_view>;

// The value of an element's text; nothing for a text that is none of the kind. Error 6 for a short number beyond 16
// bits; a number beyond 32 bits is none. The text of a text is a view of it.
std::optional<ScriptValue> ReadScriptValue(std::u16string_view text, ScriptValueKind kind, const Locale& locale);

// What a script acts on.
class ScriptTarget {
public:
    virtual ~ScriptTarget() = default;
    virtual void CallMember(const ScriptElement& element, ScriptPlace place, const ScriptValue& value) = 0;
    // Whether the run goes on.
    virtual bool IsThere() const = 0;
};

class BatchScript {
public:
    void Add(std::u16string_view text);
    void Clear() { buffer_.clear(); }
    // Whether everything was applied, to the exact end of the script; an empty script was not. Errors of the target end
    // the run. The target may add, clear and execute meanwhile: this run goes on with the script as it was.
    bool Execute(ScriptTarget& target, const Locale& locale);

private:
    bool Dispatch(const ScriptTag& tag, ScriptTarget& target, const Locale& locale);

    std::u16string buffer_;
    i32 row_ = 0;
    i32 col_ = 0;
};

} // namespace vornix
