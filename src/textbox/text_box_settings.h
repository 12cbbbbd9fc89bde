// What of a text box is kept with its form, and how it goes into a bag and comes back.
#pragma once

#include "vornix/platform/container.h"
#include "vornix/platform/system_colors.h"
#include "vornix/types.h"

#include <string>

namespace vornix {

// As long as it is new, it has these values.
struct TextBoxSettings {
    bool AutoResize = false;
    std::u16string ToolTipText;
    bool RightToLeft = false;
    // 0 shows the text.
    char16_t PasswordChar = 0;
    i32 OLEDropMode = 0;
    i32 OLEDragMode = 0;
    i32 MousePointer = 0;
    PicturePtr MouseIcon;
    i32 MaxLength = 0;
    bool Locked = false;
    OleColor ForeColor = SystemOleColor(SystemColor::WindowText);
    OleColor BackColor = SystemOleColor(SystemColor::Window);
    i32 BorderStyle = 0;
    i16 Alignment = 0;
    i16 ScrollBars = 0;
    // Null for the ambient one.
    FontPtr Font;
    i32 WhatsThisHelpID = 0;
};

struct SavedTextBox {
    TextBoxSettings settings;
    char16_t promptChar = u'_';
    char16_t replaceChar = 0;
    // Read and never written.
    bool multiLine = false;
    std::u16string text;
    bool enabled = true;
};

// Error 5 for a size that no font has: not above 0, or above 32767.
void CheckFontSize(double points);

// A value of another type is error 13, a number that does not fit error 6. `ambient` must not be null.
SavedTextBox ReadTextBox(const PropertyBag& bag, const FontPtr& ambient);
// Only what differs from a new text box.
void WriteTextBox(PropertyBag& bag, const SavedTextBox& saved, const FontPtr& ambient);

} // namespace vornix
