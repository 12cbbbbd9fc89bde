#include "persist/plain_script.h"

#include "automation/checked.h"
#include "automation/text_conversions.h"

namespace vornix {

namespace {

void Trim(std::u16string& text)
{
    while (!text.empty() && text.front() == u' ')
        text.erase(0, 1);
    while (!text.empty() && text.back() == u' ')
        text.pop_back();
}

// Positions count from 1; 0 is not found.
std::size_t PositionOf(std::u16string_view part, const std::u16string& text, std::size_t from = 1)
{
    if (from > text.size())
        return 0;
    return text.find(part, from - 1) + 1;
}

bool RemoveComments(std::u16string& text)
{
    std::size_t position = 1;
    while (!text.empty()) {
        Trim(text);
        const std::size_t start = PositionOf(u"<!--", text, position);
        if (start == 0)
            return true;
        position = start;
        const std::size_t end = PositionOf(u"-->", text, position);
        if (end == 0)
            return false;
        text = text.substr(0, start - 1) + text.substr(end + 2);
    }
    return true;
}

struct Element {
    std::u16string name;
    std::u16string attributes;
    std::u16string value;
};

Element ParseElement(std::u16string& text)
{
    const std::size_t start = PositionOf(u"<", text);
    if (start != 0)
        text = text.substr(start - 1);
    RemoveComments(text);
    if (text.empty() || text.front() != u'<')
        return {};
    const std::size_t end = PositionOf(u">", text);
    if (end < 2)
        return {};
    std::u16string tag = text.substr(1, end - 2);
    Trim(tag);
    Element element;
    const std::size_t blank = PositionOf(u" ", tag);
    element.name = blank == 0 ? tag : tag.substr(0, blank - 1);
    element.attributes = blank == 0 ? u"" : tag.substr(blank);
    if (element.name.empty())
        return {};
    const std::u16string closing = u"</" + element.name + u">";
    const std::size_t close = PositionOf(closing, text, end);
    if (close == 0)
        return {};
    element.value = text.substr(end, close - end - 1);
    text = text.substr(close + closing.size() - 1);
    return element;
}

// Cuts an attribute off; the name is empty where there is none.
void ParseAttribute(std::u16string& attributes, std::u16string& name, std::u16string& value)
{
    name.clear();
    value.clear();
    Trim(attributes);
    const std::size_t start = PositionOf(u"=\"", attributes);
    const std::size_t end = start == 0 ? 0 : PositionOf(u"\"", attributes, start + 2);
    if (end == 0) {
        attributes.clear();
        return;
    }
    name = attributes.substr(0, start - 1);
    Trim(name);
    value = attributes.substr(start + 1, end - start - 2);
    attributes = attributes.substr(end);
}

bool ParsePlace(std::u16string attributes, bool takesRow, bool takesCol, ScriptPlace& place, const Locale& locale)
{
    int rows = 0;
    int cols = 0;
    int errors = 0;
    while (!attributes.empty()) {
        std::u16string name;
        std::u16string value;
        ParseAttribute(attributes, name, value);
        if (name == u"Row" && takesRow) {
            if (!IsNumeric(value, locale))
                break;
            place.Row = TextToI2(value, locale);
            rows += 1;
        } else if (name == u"Col" && takesCol) {
            if (!IsNumeric(value, locale))
                break;
            place.Col = TextToI2(value, locale);
            cols += takesRow ? 2 : 1;
        } else {
            errors += 1;
        }
    }
    const int complete = takesRow && takesCol ? 3 : 1;
    return errors == 0 && (rows + cols == 0 || rows + cols == complete);
}

bool ReadNumber(std::u16string_view text, i32& number, const Locale& locale)
{
    if (!IsNumeric(text, locale))
        return false;
    try {
        number = TextToI4(text, locale);
        return true;
    } catch (const AutomationError&) {
        return false;
    }
}

bool ReadBoolean(std::u16string_view text, bool& truth, const Locale& locale)
{
    try {
        truth = TextToBool(text, locale);
        return true;
    } catch (const AutomationError&) {
        return false;
    }
}

bool ReadValue(std::u16string_view text, ScriptValueKind kind, ScriptValue& value, const Locale& locale)
{
    if (kind == ScriptValueKind::Text) {
        value = text;
        return true;
    }
    if (kind == ScriptValueKind::Number || kind == ScriptValueKind::ShortNumber) {
        i32 number = 0;
        if (!ReadNumber(text, number, locale))
            return false;
        value = number;
        if (kind == ScriptValueKind::ShortNumber)
            value = ToI16(number);
        return true;
    }
    bool truth = false;
    if (kind == ScriptValueKind::NumericBoolean && !IsNumeric(text, locale))
        return false;
    if (!ReadBoolean(text, truth, locale))
        return false;
    value = truth;
    return true;
}

const ScriptElement* ElementNamed(std::u16string_view name)
{
    for (const ScriptElement& element : ScriptElements())
        if (element.name == name)
            return &element;
    return nullptr;
}

} // namespace

i32 PlainScript::Execute(ScriptTarget& target, const Locale& locale)
{
    std::u16string text = buffer_;
    Trim(text);
    if (!RemoveComments(text))
        return 0;
    i32 result = 0;
    while (!text.empty()) {
        const Element element = ParseElement(text);
        if (element.name.empty())
            return 0;
        if (!Dispatch(element.name, element.attributes, element.value, target, locale))
            return 0;
        result = -1;
    }
    return result;
}

bool PlainScript::Dispatch(std::u16string_view name, std::u16string attributes, std::u16string_view value,
    ScriptTarget& target, const Locale& locale)
{
    ScriptPlace place { ToI16(scriptRow_), ToI16(scriptCol_) };
    const ScriptElement* element = ElementNamed(name);
    if (element == nullptr)
        return false;
    const bool takesRow = element->addressing == ScriptAddressing::Cell || element->addressing == ScriptAddressing::Row;
    const bool takesCol
        = element->addressing == ScriptAddressing::Cell || element->addressing == ScriptAddressing::Column;
    if ((takesRow || takesCol) && !ParsePlace(attributes, takesRow, takesCol, place, locale))
        return false;
    ScriptValue converted;
    if (!ReadValue(value, element->value, converted, locale))
        return false;
    if (name == u"Row")
        scriptRow_ = std::get<i32>(converted);
    else if (name == u"Col")
        scriptCol_ = std::get<i32>(converted);
    else
        target.CallMember(*element, place, converted);
    return true;
}

} // namespace vornix
