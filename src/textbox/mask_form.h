// The form that a mask makes of a text: one record for each position, and the text that an empty form shows.
//
//     0 digit          L letter      A letter or digit     & any character     < lower case from here on
//     9 digit, blank   ? letter      a letter or digit     C any character     > upper case from here on
//
// A backslash makes a literal of what follows; everything else is a literal.
#pragma once

#include "vornix/types.h"

#include <string>
#include <string_view>
#include <vector>

namespace vornix {

// Bits of MaskPosition::CharClass. A position without any takes every character.
namespace CharClasses {
constexpr u8 Any = 0;
constexpr u8 Digit = 1;
constexpr u8 Letter = 2;
// No mask character asks for signs.
constexpr u8 Sign = 4;
constexpr u8 Blank = 8;
} // namespace CharClasses

// Booleans are 0 and -1.
struct MaskPosition {
    // Kept for the reader of the mask: an incomplete text is taken too.
    i16 Required = 0;
    u8 CharClass = CharClasses::Any;
    i16 ToUpper = 0;
    i16 ToLower = 0;
    // The character of a literal position; 0 where a character can be entered.
    i16 Literal = 0;
    // The character stored; 0 or less means none.
    i16 Value = 0;
};

// Half of a character of two units.
constexpr bool IsSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

// Whether a character may stand at a place of this class. Backspace may stand everywhere; half of a character nowhere,
// since a place holds one unit.
bool IsInCharClass(char16_t character, u8 charClass);

class MaskForm {
public:
    // A form without positions.
    void Reset();
    void Parse(std::u16string_view mask, char16_t promptChar);

    int PositionCount() const { return static_cast<int>(positions_.size()); }
    const MaskPosition& Position(int position) const { return positions_.at(static_cast<std::size_t>(position)); }
    // The empty form, as long as there are positions.
    const std::u16string& MaskDisplay() const { return maskDisplay_; }

    // False for literals, and from the end of the form on.
    bool IsEditable(int position) const;
    // The first editable position from this one on; this one itself when there is none.
    int NextEditable(int position) const;
    bool Accepts(int position, char16_t character) const;

    void SetValue(int position, char16_t character);
    // Positions outside the form are skipped.
    void ClearValues(int first, int count);
    void ClearValues() { ClearValues(0, PositionCount()); }
    std::vector<i16> Values() const;
    // As many as there are positions.
    void SetValues(const std::vector<i16>& values);

    // Stores a text in the positions and returns what the form then shows. `text` comes with its literals, or without.
    // A character that its position refuses is stored, but not shown. An empty text leaves what is stored.
    std::u16string Store(std::u16string_view text, bool includeLiteral, char16_t promptChar);
    // `shown` with the empty form in the places first .. first + count - 1; what lies behind the form is taken out.
    std::u16string Blanked(std::u16string_view shown, int first, int count) const;
    // `shown`, and what it lacks of the empty form.
    std::u16string Completed(std::u16string_view shown) const;

    // The value of a form that shows `shown`.
    std::u16string Text(
        std::u16string_view shown, bool includeLiteral, char16_t promptChar, char16_t replaceChar) const;
    // What was entered: neither literals nor places that show the prompt.
    std::u16string TextInput(std::u16string_view shown, char16_t promptChar) const;

private:
    void Append(const MaskPosition& position, char16_t promptChar);

    std::vector<MaskPosition> positions_;
    std::u16string maskDisplay_;
};

} // namespace vornix
