#include "textbox/mask_form.h"

#include <algorithm>

namespace vornix {

namespace {

constexpr char16_t Backspace = 8;
constexpr i16 True = -1;

std::u16string_view Trimmed(std::u16string_view text)
{
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == std::u16string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

i16 CodeOf(char16_t character)
{
    return static_cast<i16>(character);
}

char16_t CharacterOf(i16 code)
{
    return static_cast<char16_t>(code);
}

struct Placeholder {
    char16_t sign;
    i16 required;
    u8 charClass;
};

constexpr Placeholder Placeholders[] = {
    { u'0', True, CharClasses::Digit },
    { u'9', 0, CharClasses::Digit | CharClasses::Blank },
    { u'L', True, CharClasses::Letter },
    { u'?', 0, CharClasses::Letter },
    { u'A', True, CharClasses::Letter | CharClasses::Digit },
    { u'a', 0, CharClasses::Letter | CharClasses::Digit },
    { u'&', True, CharClasses::Any },
    { u'C', 0, CharClasses::Any },
};

// A position of its kind, in neither case.
MaskPosition PlainPosition(char16_t sign)
{
    MaskPosition position;
    const auto* found = std::ranges::find(Placeholders, sign, &Placeholder::sign);
    if (found == std::end(Placeholders)) {
        position.Literal = CodeOf(sign);
        return position;
    }
    position.Required = found->required;
    position.CharClass = found->charClass;
    return position;
}

MaskPosition LiteralPosition(char16_t character)
{
    MaskPosition position;
    position.Literal = CodeOf(character);
    return position;
}

bool IsLetter(char16_t character)
{
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z');
}

} // namespace

bool IsInCharClass(char16_t character, u8 charClass)
{
    if (IsSurrogate(character))
        return false;
    if (charClass == CharClasses::Any || character == Backspace)
        return true;
    if ((charClass & CharClasses::Digit) && character >= u'0' && character <= u'9')
        return true;
    if ((charClass & CharClasses::Letter) && IsLetter(character))
        return true;
    if ((charClass & CharClasses::Sign) && (character == u'-' || character == u'+'))
        return true;
    return (charClass & CharClasses::Blank) && character == u' ';
}

void MaskForm::Reset()
{
    positions_.clear();
    maskDisplay_.clear();
}

void MaskForm::Parse(std::u16string_view mask, char16_t promptChar)
{
    Reset();
    mask = Trimmed(mask);
    MaskPosition inCase;
    for (std::size_t index = 0; index < mask.size(); ++index) {
        const char16_t sign = mask[index];
        if (sign == u'<' || sign == u'>') {
            inCase.ToLower = sign == u'<' ? True : i16 { 0 };
            inCase.ToUpper = sign == u'>' ? True : i16 { 0 };
            continue;
        }
        const bool escapes = sign == u'\\';
        if (escapes && ++index == mask.size())
            break;
        MaskPosition position = escapes ? LiteralPosition(mask[index]) : PlainPosition(sign);
        position.ToUpper = inCase.ToUpper;
        position.ToLower = inCase.ToLower;
        Append(position, promptChar);
    }
}

void MaskForm::Append(const MaskPosition& position, char16_t promptChar)
{
    positions_.push_back(position);
    maskDisplay_ += position.Literal == 0 ? promptChar : CharacterOf(position.Literal);
}

bool MaskForm::IsEditable(int position) const
{
    return position >= 0 && position < PositionCount() && Position(position).Literal == 0;
}

int MaskForm::NextEditable(int position) const
{
    for (int candidate = position; candidate < PositionCount(); ++candidate) {
        if (IsEditable(candidate))
            return candidate;
    }
    return position;
}

bool MaskForm::Accepts(int position, char16_t character) const
{
    return IsInCharClass(character, Position(position).CharClass);
}

void MaskForm::SetValue(int position, char16_t character)
{
    positions_.at(static_cast<std::size_t>(position)).Value = CodeOf(character);
}

void MaskForm::ClearValues(int first, int count)
{
    const int end = std::min(first + count, PositionCount());
    for (int position = std::max(first, 0); position < end; ++position)
        SetValue(position, 0);
}

std::vector<i16> MaskForm::Values() const
{
    std::vector<i16> values;
    for (const MaskPosition& position : positions_)
        values.push_back(position.Value);
    return values;
}

void MaskForm::SetValues(const std::vector<i16>& values)
{
    for (std::size_t index = 0; index < positions_.size(); ++index)
        positions_[index].Value = values.at(index);
}

std::u16string MaskForm::Store(std::u16string_view text, bool includeLiteral, char16_t promptChar)
{
    if (text.empty())
        return maskDisplay_;
    std::u16string shown(text.substr(0, positions_.size()));
    for (std::size_t index = 0; index < positions_.size(); ++index) {
        MaskPosition& position = positions_[index];
        position.Value = 0;
        // The text grows by the literals put into it.
        if (index >= shown.size())
            continue;
        if (position.Literal == 0) {
            position.Value = CodeOf(shown[index]);
            if (!IsInCharClass(shown[index], position.CharClass))
                shown[index] = promptChar;
        } else if (includeLiteral) {
            shown[index] = CharacterOf(position.Literal);
        } else {
            shown.insert(index, 1, CharacterOf(position.Literal));
        }
    }
    shown.resize(std::min(shown.size(), positions_.size()));
    return Completed(shown);
}

std::u16string MaskForm::Blanked(std::u16string_view shown, int first, int count) const
{
    const std::size_t begin = std::min(static_cast<std::size_t>(first), shown.size());
    const std::size_t length = std::min(static_cast<std::size_t>(count), shown.size() - begin);
    const std::size_t blank = std::min(begin, maskDisplay_.size());
    std::u16string result(shown);
    return result.replace(begin, length, maskDisplay_.substr(blank, length));
}

std::u16string MaskForm::Completed(std::u16string_view shown) const
{
    std::u16string result(shown);
    if (result.size() < maskDisplay_.size())
        result += maskDisplay_.substr(result.size());
    return result;
}

std::u16string MaskForm::Text(
    std::u16string_view shown, bool includeLiteral, char16_t promptChar, char16_t replaceChar) const
{
    std::u16string text;
    for (std::size_t index = 0; index < positions_.size(); ++index) {
        const MaskPosition& position = positions_[index];
        if (position.Literal != 0) {
            if (includeLiteral)
                text += CharacterOf(position.Literal);
        } else if (position.Value >= 1) {
            text += CharacterOf(position.Value);
        } else if (index < shown.size()) {
            text += shown[index] == promptChar ? replaceChar : shown[index];
        }
    }
    return text;
}

std::u16string MaskForm::TextInput(std::u16string_view shown, char16_t promptChar) const
{
    std::u16string text;
    for (std::size_t index = 0; index < std::min(positions_.size(), shown.size()); ++index) {
        const MaskPosition& position = positions_[index];
        if (position.Literal != 0 || shown[index] == promptChar)
            continue;
        text += position.Value >= 1 ? CharacterOf(position.Value) : shown[index];
    }
    return text;
}

} // namespace vornix
