#include "entered_text.h"

#include "cell_content.h"
#include "loading.h"
#include "typed_date.h"
#include "unicode.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

// A beginning of it, in quotes.
std::string Quoted(std::u16string_view text)
{
    constexpr std::size_t longest = 40;
    const bool isLong = text.size() > longest;
    return "\"" + OneLine(ToUtf8(text.substr(0, longest))) + (isLong ? "…" : "") + "\"";
}

EnteredText Refused(std::string reason)
{
    return { {}, std::move(reason) };
}

EnteredText Taken(std::u16string_view text)
{
    return { std::u16string(text) };
}

bool IsCheckBox(const Document& document, int row, int column)
{
    const std::u16string_view text = document.Text(row, column);
    return document.Saved().Columns()[static_cast<std::size_t>(column)].kind == ColumnKind::Boolean
        && (text == u"-1" || text == u"0");
}

} // namespace

EnteredText EnterText(
    const Document& document, const ColumnInputs& inputs, int row, int column, std::u16string_view text)
{
    if (!document.CanChange(row, column))
        return Refused("the cell cannot be changed");
    if (text.size() > LoadLimits().maxFieldLength)
        return Refused("the text is too long for a cell");
    if (text.find(u'\0') != std::u16string_view::npos)
        return Refused("a NUL is no text");
    if (IsCheckBox(document, row, column)) {
        const auto value = text == u"-1" ? std::optional(true) : TruthValueOf(text);
        return value ? Taken(*value ? u"-1" : u"0") : Refused(Quoted(text) + " is neither true nor false");
    }
    if (inputs.Kind(column) == InputKind::Date) {
        if (text.find_first_not_of(u" ") == std::u16string_view::npos)
            return Taken({});
        return IsWholeDate(text) ? Taken(text) : Refused(Quoted(text) + " is no date such as 2024-12-31");
    }
    const std::vector<std::u16string>* const keys = document.KeysFor(column);
    if (keys && std::find(keys->begin(), keys->end(), text) == keys->end())
        return Refused(Quoted(text) + " is no key of the table that the column refers to");
    return Taken(text);
}

} // namespace vornix::viewer
