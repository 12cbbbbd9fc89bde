#include "persist/batch_script.h"

#include "automation/checked.h"
#include "automation/text_conversions.h"

namespace vornix {

namespace {

// A text that has no such value fails its element, and nothing else.
template <typename Step> auto ValueOrNothing(const Step& step) -> std::optional<decltype(step())>
{
    try {
        return step();
    } catch (const AutomationError&) {
        return std::nullopt;
    }
}

std::optional<i32> ReadNumber(std::u16string_view text, const Locale& locale)
{
    if (!IsNumeric(text, locale))
        return std::nullopt;
    return ValueOrNothing([&] { return TextToI4(text, locale); });
}

std::optional<bool> ReadBoolean(std::u16string_view text, const Locale& locale)
{
    return ValueOrNothing([&] { return TextToBool(text, locale); });
}

} // namespace

std::optional<ScriptValue> ReadScriptValue(std::u16string_view text, ScriptValueKind kind, const Locale& locale)
{
    switch (kind) {
    case ScriptValueKind::Number:
        return ReadNumber(text, locale);
    case ScriptValueKind::ShortNumber: {
        const std::optional<i32> number = ReadNumber(text, locale);
        if (!number)
            return std::nullopt;
        return ToI16(*number);
    }
    case ScriptValueKind::NumericBoolean:
        if (!IsNumeric(text, locale))
            return std::nullopt;
        return ReadBoolean(text, locale);
    case ScriptValueKind::Boolean:
        return ReadBoolean(text, locale);
    case ScriptValueKind::Text:
        return text;
    }
    return std::nullopt;
}

void BatchScript::Add(std::u16string_view text)
{
    OrOutOfMemory([&] { buffer_ += text; });
}

bool BatchScript::Execute(ScriptTarget& target, const Locale& locale)
{
    return OrOutOfMemory([&] {
        ScriptParser parser(buffer_);
        if (!parser.RemoveComments() || parser.IsAtEnd())
            return false;
        while (!parser.IsAtEnd()) {
            const std::optional<ScriptTag> tag = parser.Next();
            if (!tag || !Dispatch(*tag, target, locale) || !target.IsThere())
                return false;
        }
        return true;
    });
}

bool BatchScript::Dispatch(const ScriptTag& tag, ScriptTarget& target, const Locale& locale)
{
    // Ahead of everything else: a place beyond 16 bits is an error of whatever element comes next.
    const ScriptPlace cursor { ToI16(row_), ToI16(col_) };
    const ScriptElement* element = FindScriptElement(tag.name);
    if (element == nullptr)
        return false;
    const std::optional<ScriptPlace> place = ReadScriptPlace(tag.attributes, element->addressing, cursor, locale);
    if (!place)
        return false;
    const std::optional<ScriptValue> value = ReadScriptValue(tag.value, element->value, locale);
    if (!value)
        return false;
    switch (element->action) {
    case ScriptAction::MoveCursorRow:
        row_ = std::get<i32>(*value);
        break;
    case ScriptAction::MoveCursorCol:
        col_ = std::get<i32>(*value);
        break;
    case ScriptAction::CallMember:
        target.CallMember(*element, *place, *value);
        break;
    }
    return true;
}

} // namespace vornix
