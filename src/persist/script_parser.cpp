#include "persist/script_parser.h"

#include <algorithm>

namespace vornix {

namespace {

constexpr std::size_t None = std::u16string::npos;
constexpr char16_t Blank = u' ';
constexpr std::u16string_view CommentStart = u"<!--";
constexpr std::u16string_view CommentEnd = u"-->";

} // namespace

std::u16string_view TrimBlanks(std::u16string_view text)
{
    const std::size_t first = text.find_first_not_of(Blank);
    if (first == None)
        return {};
    return text.substr(first, text.find_last_not_of(Blank) - first + 1);
}

ScriptParser::ScriptParser(std::u16string_view script)
    : text_(TrimBlanks(script))
{
    FindComment(0);
}

void ScriptParser::FindComment(std::size_t from)
{
    comment_ = text_.find(CommentStart, from);
}

bool ScriptParser::MayHoldComments() const
{
    return comment_ != None && comment_ < open_;
}

bool ScriptParser::RemoveComments()
{
    if (!MayHoldComments())
        return comment_ == None;
    // Text moves to the left over what is removed: [cursor_, kept) stays, [next, end) is to come.
    const std::size_t firstRemoved = comment_;
    std::size_t kept = comment_;
    std::size_t next = comment_;
    std::size_t start = comment_;
    open_ = None;
    while (start != None) {
        const std::size_t end = text_.find(CommentEnd, start);
        std::copy(text_.begin() + next, text_.begin() + start, text_.begin() + kept);
        kept += start - next;
        next = start;
        if (end == None) {
            open_ = kept;
            break;
        }
        next = end + CommentEnd.size();
        // Blanks that come to the front are trimmed.
        if (kept == cursor_)
            next = std::min(text_.find_first_not_of(Blank, next), text_.size());
        start = text_.find(CommentStart, next);
    }
    text_.erase(kept, next - kept);
    text_.resize(std::max(text_.find_last_not_of(Blank) + 1, cursor_));
    FindComment(firstRemoved - std::min(firstRemoved - cursor_, CommentStart.size() - 1));
    return open_ == None;
}

std::optional<ScriptTag> ScriptParser::Next()
{
    const std::size_t start = text_.find(u'<', cursor_);
    if (start != None)
        cursor_ = start;
    if (comment_ != None && comment_ < cursor_)
        FindComment(cursor_);
    RemoveComments();
    const std::u16string_view rest = Rest();
    if (!rest.starts_with(u'<'))
        return std::nullopt;
    const std::size_t tagEnd = rest.find(u'>');
    if (tagEnd == None)
        return std::nullopt;
    const std::u16string_view tag = TrimBlanks(rest.substr(1, tagEnd - 1));
    const std::size_t blank = tag.find(Blank);
    const std::u16string_view name = tag.substr(0, blank);
    if (name.empty())
        return std::nullopt;
    const std::u16string_view attributes = blank == None ? std::u16string_view() : tag.substr(blank + 1);
    const std::u16string closing = std::u16string(u"</").append(name).append(u">");
    const std::size_t valueEnd = rest.find(closing, tagEnd);
    if (valueEnd == None)
        return std::nullopt;
    cursor_ += valueEnd + closing.size();
    return ScriptTag { name, attributes, rest.substr(tagEnd + 1, valueEnd - tagEnd - 1) };
}

} // namespace vornix
