#include "automation/number_section.h"

#include "automation/pattern_text.h"

#include <utility>

namespace vornix {

namespace {

bool IsPlaceUnit(char16_t unit)
{
    return unit == u'0' || unit == u'#';
}

class SectionParser {
public:
    explicit SectionParser(std::u16string_view text)
        : cursor_(text)
    {
    }

    NumberSection Parse()
    {
        while (!cursor_.AtEnd())
            ReadPiece();
        ApplyCommas(false);
        return std::move(section_);
    }

private:
    void ReadPiece()
    {
        const char16_t unit = cursor_.Peek();
        std::u16string literal;
        if (TakeLiteral(cursor_, literal)) {
            AddLiteral(literal);
        } else if (IsPlaceUnit(unit)) {
            AddPlace(unit);
        } else if (unit == u'.' && !section_.hasPoint) {
            AddPoint();
        } else if (unit == u',') {
            AddComma();
        } else if (!ReadExponent()) {
            section_.scale += unit == u'%' ? 2 : 0;
            AddLiteral(std::u16string(1, unit));
            cursor_.Advance();
        }
    }

    void AddLiteral(std::u16string_view text)
    {
        ApplyCommas(false);
        if (section_.pieces.empty() || section_.pieces.back().kind != NumberPiece::Kind::Literal)
            section_.pieces.push_back({});
        section_.pieces.back().literal += text;
    }

    void AddPlace(char16_t unit)
    {
        ApplyCommas(true);
        const bool isMandatory = unit == u'0';
        section_.pieces.push_back({ isMandatory ? NumberPiece::Kind::Mandatory : NumberPiece::Kind::Optional, {} });
        int& places = section_.hasPoint ? section_.fractionPlaces : section_.integerPlaces;
        ++places;
        if (section_.hasPoint && isMandatory)
            section_.mandatoryFraction = section_.fractionPlaces;
        cursor_.Advance();
    }

    void AddPoint()
    {
        ApplyCommas(false);
        section_.hasPoint = true;
        section_.pieces.push_back({ NumberPiece::Kind::Point, {} });
        cursor_.Advance();
    }

    // Between places a comma asks for groups; behind the last place left of the point each divides by 1000.
    void AddComma()
    {
        if (section_.integerPlaces > 0 && !section_.hasPoint)
            ++pendingCommas_;
        cursor_.Advance();
    }

    void ApplyCommas(bool betweenPlaces)
    {
        if (betweenPlaces)
            section_.hasGroups = section_.hasGroups || pendingCommas_ > 0;
        else
            section_.scale -= 3 * pendingCommas_;
        pendingCommas_ = 0;
    }

    // An E, a sign and at least one place.
    bool ReadExponent()
    {
        const std::u16string_view rest = cursor_.Rest();
        const bool isExponent = !section_.hasExponent && rest.size() >= 3 && (rest[0] == u'E' || rest[0] == u'e')
            && (rest[1] == u'+' || rest[1] == u'-') && IsPlaceUnit(rest[2]);
        if (!isExponent)
            return false;
        ApplyCommas(false);
        section_.hasExponent = true;
        section_.exponentLetter = rest[0];
        section_.showsPlus = rest[1] == u'+';
        section_.pieces.push_back({ NumberPiece::Kind::Exponent, {} });
        cursor_.Advance(2);
        for (; IsPlaceUnit(cursor_.Peek()); cursor_.Advance())
            section_.exponentWidth += cursor_.Peek() == u'0';
        return true;
    }

    TextCursor cursor_;
    NumberSection section_;
    int pendingCommas_ = 0;
};

} // namespace

NumberSection ParseNumberSection(std::u16string_view text)
{
    return SectionParser(text).Parse();
}

} // namespace vornix
