#include "textbox/text_box_settings.h"

#include "automation/checked.h"
#include "textbox/mask_form.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace vornix {

namespace {

template <typename Type> Type Held(const BagValue& value)
{
    const Type* const held = std::get_if<Type>(&value);
    if (!held)
        RaiseError(ErrorNumber::TypeMismatch);
    return *held;
}

i16 Short(const BagValue& value)
{
    return ToI16(Held<i32>(value));
}

// Forms also keep truth values as numbers, 0 and -1.
bool Truth(const BagValue& value)
{
    const bool* const truth = std::get_if<bool>(&value);
    return truth ? *truth : Held<i32>(value) != 0;
}

std::u16string Text(const BagValue& value)
{
    return Held<std::u16string>(value);
}

std::u16string TextOf(char16_t character)
{
    return character == 0 ? std::u16string() : std::u16string(1, character);
}

// The first character; an empty text leaves what is there, and so does a character of two units.
void TakeFirst(char16_t& character, const BagValue& value)
{
    const std::u16string text = Text(value);
    if (!text.empty() && !IsSurrogate(text.front()))
        character = text.front();
}

template <typename Edit> void EditFont(SavedTextBox& saved, const Edit& edit)
{
    FontObject font = *saved.settings.Font;
    edit(font);
    saved.settings.Font = std::make_shared<const FontObject>(std::move(font));
}

bool IsSameFont(const FontObject& one, const FontObject& other)
{
    return one.Name == other.Name && one.Size == other.Size && one.Bold == other.Bold && one.Italic == other.Italic
        && one.Underline == other.Underline && one.Strikethrough == other.Strikethrough && one.Charset == other.Charset;
}

// What a key holds of a text box. One without a value is read only.
struct Key {
    std::string_view name;
    void (*read)(SavedTextBox& saved, const BagValue& value);
    BagValue (*value)(const SavedTextBox& saved) = nullptr;
};

using Saved = SavedTextBox;
using Value = BagValue;

// In the order in which they are read: the whole font replaces what its parts have made.
const std::array keys {
    Key { "PromptChar", [](Saved& s, const Value& v) { TakeFirst(s.promptChar, v); },
        [](const Saved& s) -> Value { return std::u16string(1, s.promptChar); } },
    Key { "ReplaceChar", [](Saved& s, const Value& v) { TakeFirst(s.replaceChar, v); },
        [](const Saved& s) -> Value { return TextOf(s.replaceChar); } },
    Key { "AutoResize", [](Saved& s, const Value& v) { s.settings.AutoResize = Truth(v); },
        [](const Saved& s) -> Value { return s.settings.AutoResize; } },
    Key { "Multiline", [](Saved& s, const Value& v) { s.multiLine = Truth(v); } },
    // No part of the text box asks for it: only its type is looked at.
    Key { "CausesValidation", [](Saved&, const Value& v) { static_cast<void>(Truth(v)); } },
    Key { "ToolTipText", [](Saved& s, const Value& v) { s.settings.ToolTipText = Text(v); },
        [](const Saved& s) -> Value { return s.settings.ToolTipText; } },
    Key { "Text", [](Saved& s, const Value& v) { s.text = Text(v); }, [](const Saved& s) -> Value { return s.text; } },
    Key { "RightToLeft", [](Saved& s, const Value& v) { s.settings.RightToLeft = Truth(v); },
        [](const Saved& s) -> Value { return s.settings.RightToLeft; } },
    Key { "PasswordChar", [](Saved& s, const Value& v) { TakeFirst(s.settings.PasswordChar, v); },
        [](const Saved& s) -> Value { return TextOf(s.settings.PasswordChar); } },
    Key { "OLEDropMode", [](Saved& s, const Value& v) { s.settings.OLEDropMode = Held<i32>(v); },
        [](const Saved& s) -> Value { return s.settings.OLEDropMode; } },
    Key { "OLEDragMode", [](Saved& s, const Value& v) { s.settings.OLEDragMode = Held<i32>(v); },
        [](const Saved& s) -> Value { return s.settings.OLEDragMode; } },
    Key { "MousePointer", [](Saved& s, const Value& v) { s.settings.MousePointer = Held<i32>(v); },
        [](const Saved& s) -> Value { return s.settings.MousePointer; } },
    Key { "MouseIcon", [](Saved& s, const Value& v) { s.settings.MouseIcon = Held<PicturePtr>(v); },
        [](const Saved& s) -> Value { return s.settings.MouseIcon; } },
    Key { "MaxLength", [](Saved& s, const Value& v) { s.settings.MaxLength = Held<i32>(v); },
        [](const Saved& s) -> Value { return s.settings.MaxLength; } },
    Key { "Locked", [](Saved& s, const Value& v) { s.settings.Locked = Truth(v); },
        [](const Saved& s) -> Value { return s.settings.Locked; } },
    Key { "ForeColor", [](Saved& s, const Value& v) { s.settings.ForeColor = static_cast<OleColor>(Held<i32>(v)); },
        [](const Saved& s) -> Value { return static_cast<i32>(s.settings.ForeColor); } },
    Key { "BackColor", [](Saved& s, const Value& v) { s.settings.BackColor = static_cast<OleColor>(Held<i32>(v)); },
        [](const Saved& s) -> Value { return static_cast<i32>(s.settings.BackColor); } },
    Key { "FontUnderline",
        [](Saved& s, const Value& v) { EditFont(s, [&](FontObject& font) { font.Underline = Truth(v); }); },
        [](const Saved& s) -> Value { return s.settings.Font->Underline; } },
    Key { "FontStrikethru",
        [](Saved& s, const Value& v) { EditFont(s, [&](FontObject& font) { font.Strikethrough = Truth(v); }); },
        [](const Saved& s) -> Value { return s.settings.Font->Strikethrough; } },
    Key { "FontSize",
        [](Saved& s, const Value& v) {
            CheckFontSize(Held<i32>(v));
            EditFont(s, [&](FontObject& font) { font.Size = Held<i32>(v); });
        },
        // A bag has no fractions: the key Font keeps them.
        [](const Saved& s) -> Value { return std::max(RoundToI32(s.settings.Font->Size), 1); } },
    Key { "FontName", [](Saved& s, const Value& v) { EditFont(s, [&](FontObject& font) { font.Name = Text(v); }); },
        [](const Saved& s) -> Value { return s.settings.Font->Name; } },
    Key { "FontItalic",
        [](Saved& s, const Value& v) { EditFont(s, [&](FontObject& font) { font.Italic = Truth(v); }); },
        [](const Saved& s) -> Value { return s.settings.Font->Italic; } },
    Key { "FontBold", [](Saved& s, const Value& v) { EditFont(s, [&](FontObject& font) { font.Bold = Truth(v); }); },
        [](const Saved& s) -> Value { return s.settings.Font->Bold; } },
    Key { "Enabled", [](Saved& s, const Value& v) { s.enabled = Truth(v); },
        [](const Saved& s) -> Value { return s.enabled; } },
    Key { "BorderStyle", [](Saved& s, const Value& v) { s.settings.BorderStyle = Held<i32>(v); },
        [](const Saved& s) -> Value { return s.settings.BorderStyle; } },
    Key { "Alignment", [](Saved& s, const Value& v) { s.settings.Alignment = Short(v); },
        [](const Saved& s) -> Value { return i32 { s.settings.Alignment }; } },
    Key { "ScrollBars", [](Saved& s, const Value& v) { s.settings.ScrollBars = Short(v); },
        [](const Saved& s) -> Value { return i32 { s.settings.ScrollBars }; } },
    Key { "Font",
        [](Saved& s, const Value& v) {
            if (const FontPtr font = Held<FontPtr>(v))
                s.settings.Font = font;
        },
        [](const Saved& s) -> Value { return s.settings.Font; } },
    Key { "WhatsThisHelpID", [](Saved& s, const Value& v) { s.settings.WhatsThisHelpID = Held<i32>(v); },
        [](const Saved& s) -> Value { return s.settings.WhatsThisHelpID; } },
};

} // namespace

void CheckFontSize(double points)
{
    CheckArgument(points > 0 && points <= 32767);
}

SavedTextBox ReadTextBox(const PropertyBag& bag, const FontPtr& ambient)
{
    SavedTextBox saved;
    saved.settings.Font = ambient;
    for (const Key& key : keys) {
        if (const std::optional<BagValue> value = bag.ReadProperty(key.name))
            key.read(saved, *value);
    }
    if (saved.settings.Font == ambient)
        saved.settings.Font = nullptr;
    return saved;
}

void WriteTextBox(PropertyBag& bag, const SavedTextBox& saved, const FontPtr& ambient)
{
    SavedTextBox fresh;
    fresh.settings.Font = ambient;
    // Fonts of the same values count as the same object.
    SavedTextBox written = saved;
    if (!written.settings.Font || IsSameFont(*written.settings.Font, *ambient))
        written.settings.Font = ambient;
    for (const Key& key : keys) {
        if (!key.value)
            continue;
        const BagValue value = key.value(written);
        if (value != key.value(fresh))
            bag.WriteProperty(key.name, value);
    }
}

} // namespace vornix
