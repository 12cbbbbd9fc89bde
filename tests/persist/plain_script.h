// The batch script read step by step as it is described: each element is cut off the front of the text. Slow, and too
// plain to be wrong.
#pragma once

#include "persist/batch_script.h"

#include <string>
#include <string_view>

namespace vornix {

class PlainScript {
public:
    void Add(std::u16string_view text) { buffer_ += text; }
    void Clear() { buffer_.clear(); }
    // -1 or 0.
    i32 Execute(ScriptTarget& target, const Locale& locale);

private:
    bool Dispatch(std::u16string_view name, std::u16string attributes, std::u16string_view value, ScriptTarget& target,
        const Locale& locale);

    std::u16string buffer_;
    i32 scriptRow_ = 0;
    i32 scriptCol_ = 0;
};

} // namespace vornix
