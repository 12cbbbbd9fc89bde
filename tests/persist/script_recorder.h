// What a batch script does, as a text that can be compared.
#pragma once

#include "persist/batch_script.h"
#include "vornix/automation.h"

#include <string>

namespace vornix {

class ScriptRecorder : public ScriptTarget {
public:
    // Calls with this row are error 9.
    static constexpr i16 MissingRow = 13;

    void CallMember(const ScriptElement& element, ScriptPlace place, const ScriptValue& value) override
    {
        story += std::string(element.member) + PlaceOf(element.addressing, place) + " = " + ToWords(value) + "\n";
        if (place.Row == MissingRow && element.addressing != ScriptAddressing::Grid)
            throw AutomationError(ErrorNumber::SubscriptOutOfRange);
    }
    bool IsThere() const override { return true; }

    std::string story;

private:
    static std::string PlaceOf(ScriptAddressing addressing, ScriptPlace place)
    {
        switch (addressing) {
        case ScriptAddressing::Cell:
            return "(" + std::to_string(place.Row) + ", " + std::to_string(place.Col) + ")";
        case ScriptAddressing::Column:
            return "(" + std::to_string(place.Col) + ")";
        case ScriptAddressing::Row:
            return "(" + std::to_string(place.Row) + ")";
        case ScriptAddressing::Grid:
            return "";
        }
        return "?";
    }
    static std::string ToWords(i32 value) { return std::to_string(value); }
    static std::string ToWords(i16 value) { return std::to_string(value) + "s"; }
    static std::string ToWords(bool value) { return value ? "true" : "false"; }
    static std::string ToWords(std::u16string_view value)
    {
        std::string words = "\"";
        for (const char16_t unit : value)
            words += unit < 0x7F ? std::string(1, static_cast<char>(unit)) : "\\" + std::to_string(unit);
        return words + "\"";
    }
    static std::string ToWords(const ScriptValue& value)
    {
        return std::visit([](auto each) { return ToWords(each); }, value);
    }
};

// Runs a script, the fast or the plain one: what it calls, then its result or the number of its error.
template <typename Script> std::string StoryOf(Script& script, const Locale& locale = BuiltinLocale())
{
    ScriptRecorder recorder;
    try {
        const bool isWhole = script.Execute(recorder, locale);
        return recorder.story + (isWhole ? "applied" : "not applied");
    } catch (const AutomationError& error) {
        return recorder.story + "error " + std::to_string(error.Number());
    }
}

} // namespace vornix
