// Reads a batch script element by element. Exact in UTF-16 units; only U+0020 is a blank.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vornix {

// Without the blanks at both ends.
std::u16string_view TrimBlanks(std::u16string_view text);

// An element as it stands in the script. Views of the parser's text, up to its next step.
struct ScriptTag {
    std::u16string_view name;
    // What follows the first blank of the tag.
    std::u16string_view attributes;
    std::u16string_view value;
};

// What is left of a script is the text from a cursor on, so that time is linear in the script. Only comments that the
// removal of other comments puts together cost one pass over the rest for each depth of them.
class ScriptParser {
public:
    explicit ScriptParser(std::u16string_view script);

    // Takes the comments out of what is left, once from left to right: what the removal of one puts together with the
    // text ahead of it is left for the next time. False when a comment is left open, with those ahead of it removed.
    bool RemoveComments();
    bool IsAtEnd() const { return cursor_ == text_.size(); }
    // The next element, behind whatever stands ahead of its "<"; nothing when there is none. Removes comments first.
    std::optional<ScriptTag> Next();

private:
    std::u16string_view Rest() const { return std::u16string_view(text_).substr(cursor_); }
    bool MayHoldComments() const;
    void FindComment(std::size_t from);

    std::u16string text_;
    std::size_t cursor_ = 0;
    // The first "<!--" of what is left, or npos.
    std::size_t comment_ = 0;
    // From here on no comment is closed, and none will be.
    std::size_t open_ = std::u16string::npos;
};

} // namespace vornix
