// A text box with an input mask, a filter for numbers, and a size that grows with its text: a component of its own. The
// grid edits its cells in one; a host may place others. The box itself is the platform's, behind NativeEditBox.
//
// What the user does reaches the component by the listener that it gives to the box. Any event may change the settings
// and the text; the component must not be destroyed inside one.
#pragma once

#include "vornix/events.h"
#include "vornix/platform/container.h"
#include "vornix/platform/edit_box.h"
#include "vornix/types.h"

#include <memory>
#include <string>
#include <string_view>

namespace vornix {

// Every function does nothing until overridden. A key, a character or an arrow that is set to 0 goes no further.
class TextBoxEvents {
public:
    virtual ~TextBoxEvents() = default;

    // The user has changed the text, or a host through SelText. Behind a mask only what differs from the Change before.
    virtual void Change() { }
    virtual void Click() { }
    virtual void OLEStartDrag(DataObject& /*Data*/, i32& /*AllowedEffects*/) { }
    virtual void OLESetData(DataObject& /*Data*/, i16& /*DataFormat*/) { }
    virtual void OLEGiveFeedback(i32& /*Effect*/, bool& /*DefaultCursors*/) { }
    virtual void OLEDragOver(DataObject& /*Data*/, i32& /*Effect*/, i16& /*Button*/, i16& /*Shift*/, float& /*x*/,
        float& /*y*/, i16& /*State*/)
    {
    }
    virtual void OLEDragDrop(
        DataObject& /*Data*/, i32& /*Effect*/, i16& /*Button*/, i16& /*Shift*/, float& /*x*/, float& /*y*/)
    {
    }
    virtual void OLECompleteDrag(i32& /*Effect*/) { }
    // Places in pixels of the box.
    virtual void MouseUp(i16 /*Button*/, i16 /*Shift*/, float /*x*/, float /*y*/) { }
    virtual void MouseMove(i16 /*Button*/, i16 /*Shift*/, float /*x*/, float /*y*/) { }
    virtual void MouseDown(i16 /*Button*/, i16 /*Shift*/, float /*x*/, float /*y*/) { }
    virtual void KeyUp(i16& /*KeyCode*/, i16& /*Shift*/) { }
    virtual void KeyPress(i16& /*KeyAscii*/) { }
    virtual void KeyDown(i16& /*KeyCode*/, i16& /*Shift*/) { }
    virtual void DblClick() { }
    // The box has taken the size of its text.
    virtual void Resize() { }
    // An arrow key is about to leave the text, with no shift key held and nothing selected: Left at its start, Right at
    // its end, Up in its first line, Down in its last.
    virtual void KeyArrowMove(i16& /*KeyCode*/) { }
};

// What the component asks of the form that it stands on. Asked at the moment of use.
class TextBoxSite {
public:
    virtual ~TextBoxSite() = default;
    virtual const Locale& GetLocale() const = 0;
    virtual const SystemColors& Colors() const = 0;
    virtual FontPtr AmbientFont() const = 0;
    // A persisted property was written.
    virtual void PropertyChanged(std::string_view name) = 0;
};

class TextBox {
public:
    // All four must outlive the text box. `window` holds the box and nothing else: its place is that of the control.
    TextBox(ChildWindow& window, NativeEditBox& box, TextBoxSite& site, TextBoxEvents& events);
    ~TextBox();
    TextBox(const TextBox&) = delete;
    TextBox& operator=(const TextBox&) = delete;

    // -- For the container --

    // For the box to tell what happens to it.
    EditBoxListener& Listener();
    // A new box: left aligned, one line, ambient font, window colours.
    void InitProperties();
    // A saved one; absent values are those of a new box. A value of another type is error 13. The mask, IncludeLiteral,
    // NumericOnly and the four sizes are not kept; Multiline and CausesValidation are read and not written.
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;
    // The control was shown: with AutoResize on it takes the size of its text.
    void Show();
    // The control got the focus: the box takes it.
    void EnterFocus();
    // Colours, font or resolution of the surroundings are others.
    void FollowAmbient();

    // -- Text and mask --

    // Written as it comes; its language:
    //
    //     0 digit    9 digit or blank    L, ? letter    A, a letter or digit    &, C any character
    //     < from here on lower case    > upper case    \ the next character as it is    others as they are
    //
    // Writing it shows the empty form, without a Change, and ends NumericOnly; "" ends the mask and leaves the text.
    std::u16string Mask() const;
    void SetMask(std::u16string_view Value);
    // Whether Text has the literals of the mask, and expects them when it is written. False at the start.
    bool IncludeLiteral() const;
    void SetIncludeLiteral(bool Value);
    // Whether only what keeps the text a number can be typed. Writing it empties the box, without a Change; true ends the
    // mask and MultiLine.
    bool NumericOnly() const;
    void SetNumericOnly(bool Value);
    // What an empty place shows ("_"), and what it gives in Text (NUL). The first character counts; "" is ignored, and so
    // is a character of two units, which no place of a form holds. The form follows when Mask is written.
    std::u16string PromptChar() const;
    void SetPromptChar(std::u16string_view Value);
    std::u16string ReplaceChar() const;
    void SetReplaceChar(std::u16string_view Value);
    // The value. Writing shapes it by the mask and raises nothing; Escape comes back to it.
    std::u16string Text() const;
    void SetText(std::u16string_view Value);
    // What was typed, without literals and empty places.
    std::u16string TextInput() const;
    // UTF-16 units; limited to the text. A negative value is error 5.
    i32 SelStart() const;
    void SetSelStart(i32 Value);
    i32 SelLength() const;
    void SetSelLength(i32 Value);
    // Writing goes through the mask and raises Change: behind a mask if the text is another then, without one always but
    // for "" in place of nothing.
    std::u16string SelText() const;
    void SetSelText(std::u16string_view Value);

    // -- Size --

    // Whether the box grows with its text, between the normal size and the greatest one, pixels: when the user changes it,
    // on Escape, and when the box is shown. A text that needs more than the normal size gets a border, and Resize is
    // raised. At the greatest height the box gets a scroll bar, left aligned, and keeps it until AutoResize or a setting
    // of the kind is written. Lines break, whatever MultiLine says. All four sizes are 0 at the start, and the box
    // then stays as it is.
    bool AutoResize() const;
    void SetAutoResize(bool Value);
    i16 NormalWidth() const;
    void SetNormalWidth(i16 Value);
    i16 NormalHeight() const;
    void SetNormalHeight(i16 Value);
    i16 MaxWidth() const;
    void SetMaxWidth(i16 Value);
    i16 MaxHeight() const;
    void SetMaxHeight(i16 Value);

    // -- Kind of box --

    // Text, caret, selection and all settings stay when these change the kind.
    // Whether Enter begins a line.
    bool MultiLine() const;
    void SetMultiLine(bool Value);
    // 0 left, others right.
    i16 Alignment() const;
    void SetAlignment(i16 Value);
    // With AutoResize, values other than 0 give a box with a scroll bar.
    i16 ScrollBars() const;
    void SetScrollBars(i16 Value);
    // Both at once; reports no property.
    void InitializeTextBox(i16 Alignment, bool MultiLine);

    // -- Look and behaviour of the box --

    bool RightToLeft() const;
    void SetRightToLeft(bool Value);
    // The first character counts; "" shows the text, and a character of two units is ignored.
    std::u16string PasswordChar() const;
    void SetPasswordChar(std::u16string_view Value);
    i32 MousePointer() const;
    void SetMousePointer(i32 Value);
    PicturePtr MouseIcon() const;
    void SetMouseIcon(const PicturePtr& Value);
    OleColor ForeColor() const;
    void SetForeColor(OleColor Value);
    OleColor BackColor() const;
    void SetBackColor(OleColor Value);
    FontPtr Font() const;
    // Null is error 5, and so is a size that FontSize does not take.
    void SetFont(const FontPtr& Value);
    // Points. What is not above 0, or above 32767, is error 5.
    float FontSize() const;
    void SetFontSize(float Value);
    std::u16string FontName() const;
    void SetFontName(std::u16string_view Value);
    bool FontItalic() const;
    void SetFontItalic(bool Value);
    bool FontBold() const;
    void SetFontBold(bool Value);
    bool FontUnderline() const;
    void SetFontUnderline(bool Value);
    bool FontStrikethru() const;
    void SetFontStrikethru(bool Value);
    bool Enabled() const;
    void SetEnabled(bool Value);
    std::u16string ToolTipText() const;
    void SetToolTipText(std::u16string_view Value);
    i32 OLEDropMode() const;
    void SetOLEDropMode(i32 Value);
    i32 OLEDragMode() const;
    void SetOLEDragMode(i32 Value);
    // Characters that the user can type into a box without a mask; 0 for any.
    i32 MaxLength() const;
    void SetMaxLength(i32 Value);
    // Whether the user cannot change the text.
    bool Locked() const;
    void SetLocked(bool Value);
    // 0 none, others a single line.
    i32 BorderStyle() const;
    void SetBorderStyle(i32 Value);
    i32 WhatsThisHelpID() const;
    void SetWhatsThisHelpID(i32 Value);
    std::intptr_t hWnd() const;
    Hdc hDC() const;
    bool HideSelection() const;
    void Refresh();

private:
    class Parts;

    std::unique_ptr<Parts> parts_;
};

} // namespace vornix
