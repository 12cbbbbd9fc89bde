#include "persist/script_attributes.h"

#include "automation/text_conversions.h"
#include "persist/script_parser.h"

namespace vornix {

namespace {

constexpr std::u16string_view ValueStart = u"=\"";

struct Attribute {
    std::u16string_view name;
    std::u16string_view value;
};

// Cuts the first attribute off. One without a value has no name, and takes all that follows with it.
Attribute TakeAttribute(std::u16string_view& attributes)
{
    const std::size_t start = attributes.find(ValueStart);
    if (start != std::u16string_view::npos) {
        const std::u16string_view rest = attributes.substr(start + ValueStart.size());
        const std::size_t end = rest.find(u'"');
        if (end != std::u16string_view::npos) {
            const Attribute taken { TrimBlanks(attributes.substr(0, start)), rest.substr(0, end) };
            attributes = rest.substr(end + 1);
            return taken;
        }
    }
    attributes = {};
    return {};
}

class PlaceReader {
public:
    PlaceReader(ScriptAddressing addressing, ScriptPlace cursor, const Locale& locale)
        : addressing_(addressing)
        , place_(cursor)
        , locale_(locale)
    {
    }

    std::optional<ScriptPlace> Read(std::u16string_view attributes)
    {
        while (!attributes.empty()) {
            const auto [name, value] = TakeAttribute(attributes);
            if (!Takes(name)) {
                isWrong_ = true;
                continue;
            }
            if (!IsNumeric(value, locale_))
                break;
            Place(name, TextToI2(value, locale_));
        }
        if (!IsValid())
            return std::nullopt;
        return place_;
    }

private:
    bool IsCell() const { return addressing_ == ScriptAddressing::Cell; }
    bool Takes(std::u16string_view name) const
    {
        return (name == u"Row" && addressing_ != ScriptAddressing::Column)
            || (name == u"Col" && addressing_ != ScriptAddressing::Row);
    }
    void Place(std::u16string_view name, i16 index)
    {
        if (name == u"Row") {
            place_.Row = index;
            count_ += 1;
        } else {
            place_.Col = index;
            count_ += IsCell() ? 2 : 1;
        }
    }
    // A cell needs the sum of both attributes or of none. Row three times makes the same sum as both.
    bool IsValid() const { return !isWrong_ && (count_ == 0 || count_ == (IsCell() ? 3 : 1)); }

    ScriptAddressing addressing_;
    ScriptPlace place_;
    const Locale& locale_;
    int count_ = 0;
    // Found an attribute that the element does not have.
    bool isWrong_ = false;
};

} // namespace

std::optional<ScriptPlace> ReadScriptPlace(
    std::u16string_view attributes, ScriptAddressing addressing, ScriptPlace cursor, const Locale& locale)
{
    if (addressing == ScriptAddressing::Grid)
        return cursor;
    return PlaceReader(addressing, cursor, locale).Read(attributes);
}

} // namespace vornix
