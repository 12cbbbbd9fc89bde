// The text box as its hosts see it: each member keeps its value, gives it to the box, and reports it.
#include "vornix/text_box.h"

#include "automation/checked.h"
#include "textbox/text_box_parts.h"

namespace vornix {

TextBox::TextBox(ChildWindow& window, NativeEditBox& box, TextBoxSite& site, TextBoxEvents& events)
    : parts_(std::make_unique<Parts>(window, box, site, events))
{
}

TextBox::~TextBox() = default;

// -- For the container --

EditBoxListener& TextBox::Listener()
{
    return *parts_;
}

void TextBox::InitProperties()
{
    parts_->Load({});
}

void TextBox::ReadProperties(const PropertyBag& bag)
{
    parts_->Load(ReadTextBox(bag, parts_->AmbientFont()));
}

void TextBox::WriteProperties(PropertyBag& bag) const
{
    WriteTextBox(bag, parts_->Saved(), parts_->AmbientFont());
}

void TextBox::Show()
{
    parts_->SizeToText();
}

void TextBox::EnterFocus()
{
    parts_->EnterFocus();
}

void TextBox::FollowAmbient()
{
    parts_->ApplyColors();
    parts_->ApplyFont();
}

// -- Text and mask --

std::u16string TextBox::Mask() const
{
    return parts_->Engine().Mask();
}

void TextBox::SetMask(std::u16string_view Value)
{
    parts_->Engine().SetMask(Value);
}

bool TextBox::IncludeLiteral() const
{
    return parts_->Engine().IncludeLiteral();
}

void TextBox::SetIncludeLiteral(bool Value)
{
    parts_->Engine().SetIncludeLiteral(Value);
}

bool TextBox::NumericOnly() const
{
    return parts_->Engine().NumericOnly();
}

void TextBox::SetNumericOnly(bool Value)
{
    parts_->Engine().SetNumericOnly(Value);
    // MultiLine is off now.
    if (Value)
        parts_->ChooseBox();
}

std::u16string TextBox::PromptChar() const
{
    return parts_->Engine().PromptChar();
}

void TextBox::SetPromptChar(std::u16string_view Value)
{
    parts_->Engine().SetPromptChar(Value);
}

std::u16string TextBox::ReplaceChar() const
{
    return parts_->Engine().ReplaceChar();
}

void TextBox::SetReplaceChar(std::u16string_view Value)
{
    parts_->Engine().SetReplaceChar(Value);
}

std::u16string TextBox::Text() const
{
    return parts_->Engine().Text();
}

void TextBox::SetText(std::u16string_view Value)
{
    parts_->Engine().SetText(Value);
    parts_->Report("Text");
}

std::u16string TextBox::TextInput() const
{
    return parts_->Engine().TextInput();
}

i32 TextBox::SelStart() const
{
    return parts_->Engine().SelStart();
}

void TextBox::SetSelStart(i32 Value)
{
    CheckArgument(Value >= 0);
    parts_->Engine().SetSelStart(Value);
    parts_->Report("SelStart");
}

i32 TextBox::SelLength() const
{
    return parts_->Engine().SelLength();
}

void TextBox::SetSelLength(i32 Value)
{
    CheckArgument(Value >= 0);
    parts_->Engine().SetSelLength(Value);
    parts_->Report("SelLength");
}

std::u16string TextBox::SelText() const
{
    return parts_->Engine().SelText();
}

void TextBox::SetSelText(std::u16string_view Value)
{
    parts_->Engine().SetSelText(Value);
    parts_->Report("SelText");
}

// -- Size --

bool TextBox::AutoResize() const
{
    return parts_->settings.AutoResize;
}

void TextBox::SetAutoResize(bool Value)
{
    parts_->settings.AutoResize = Value;
    parts_->ChooseBox();
}

i16 TextBox::NormalWidth() const
{
    return parts_->limits.NormalWidth;
}

void TextBox::SetNormalWidth(i16 Value)
{
    parts_->limits.NormalWidth = Value;
}

i16 TextBox::NormalHeight() const
{
    return parts_->limits.NormalHeight;
}

void TextBox::SetNormalHeight(i16 Value)
{
    parts_->limits.NormalHeight = Value;
}

i16 TextBox::MaxWidth() const
{
    return parts_->limits.MaxWidth;
}

void TextBox::SetMaxWidth(i16 Value)
{
    parts_->limits.MaxWidth = Value;
}

i16 TextBox::MaxHeight() const
{
    return parts_->limits.MaxHeight;
}

void TextBox::SetMaxHeight(i16 Value)
{
    parts_->limits.MaxHeight = Value;
}

// -- Kind of box --

bool TextBox::MultiLine() const
{
    return parts_->Engine().MultiLine();
}

void TextBox::SetMultiLine(bool Value)
{
    parts_->Engine().SetMultiLine(Value);
    parts_->ChooseBox();
}

i16 TextBox::Alignment() const
{
    return parts_->settings.Alignment;
}

void TextBox::SetAlignment(i16 Value)
{
    parts_->settings.Alignment = Value;
    parts_->ChooseBox();
}

i16 TextBox::ScrollBars() const
{
    return parts_->settings.ScrollBars;
}

void TextBox::SetScrollBars(i16 Value)
{
    parts_->settings.ScrollBars = Value;
    parts_->ChooseBox();
}

void TextBox::InitializeTextBox(i16 Alignment, bool MultiLine)
{
    parts_->settings.Alignment = Alignment;
    parts_->Engine().SetMultiLine(MultiLine);
    parts_->ChooseBox();
}

// -- Look and behaviour of the box --

bool TextBox::RightToLeft() const
{
    return parts_->settings.RightToLeft;
}

void TextBox::SetRightToLeft(bool Value)
{
    parts_->settings.RightToLeft = Value;
    parts_->box.SetRightToLeft(Value);
    parts_->Report("RightToLeft");
}

std::u16string TextBox::PasswordChar() const
{
    const char16_t sign = parts_->settings.PasswordChar;
    return sign == 0 ? std::u16string() : std::u16string(1, sign);
}

void TextBox::SetPasswordChar(std::u16string_view Value)
{
    if (Value.empty())
        parts_->settings.PasswordChar = 0;
    else if (!IsSurrogate(Value.front()))
        parts_->settings.PasswordChar = Value.front();
    parts_->box.SetPasswordChar(parts_->settings.PasswordChar);
    parts_->Report("PasswordChar");
}

i32 TextBox::MousePointer() const
{
    return parts_->settings.MousePointer;
}

void TextBox::SetMousePointer(i32 Value)
{
    parts_->settings.MousePointer = Value;
    parts_->ApplyPointer();
    parts_->Report("MousePointer");
}

PicturePtr TextBox::MouseIcon() const
{
    return parts_->settings.MouseIcon;
}

void TextBox::SetMouseIcon(const PicturePtr& Value)
{
    parts_->settings.MouseIcon = Value;
    parts_->ApplyPointer();
    parts_->Report("MouseIcon");
}

OleColor TextBox::ForeColor() const
{
    return parts_->settings.ForeColor;
}

void TextBox::SetForeColor(OleColor Value)
{
    parts_->settings.ForeColor = Value;
    parts_->ApplyColors();
    parts_->Report("ForeColor");
}

OleColor TextBox::BackColor() const
{
    return parts_->settings.BackColor;
}

void TextBox::SetBackColor(OleColor Value)
{
    parts_->settings.BackColor = Value;
    parts_->ApplyColors();
    parts_->Report("BackColor");
}

FontPtr TextBox::Font() const
{
    return parts_->Font();
}

void TextBox::SetFont(const FontPtr& Value)
{
    CheckArgument(Value != nullptr);
    CheckFontSize(Value->Size);
    parts_->settings.Font = Value;
    parts_->ApplyFont();
    parts_->Report("Font");
}

float TextBox::FontSize() const
{
    return static_cast<float>(parts_->Font()->Size);
}

void TextBox::SetFontSize(float Value)
{
    CheckFontSize(double { Value });
    parts_->EditFont([&](FontObject& font) { font.Size = double { Value }; });
    parts_->Report("FontSize");
}

std::u16string TextBox::FontName() const
{
    return parts_->Font()->Name;
}

void TextBox::SetFontName(std::u16string_view Value)
{
    parts_->EditFont([&](FontObject& font) { font.Name = Value; });
    parts_->Report("FontName");
}

bool TextBox::FontItalic() const
{
    return parts_->Font()->Italic;
}

void TextBox::SetFontItalic(bool Value)
{
    parts_->EditFont([&](FontObject& font) { font.Italic = Value; });
    parts_->Report("FontItalic");
}

bool TextBox::FontBold() const
{
    return parts_->Font()->Bold;
}

void TextBox::SetFontBold(bool Value)
{
    parts_->EditFont([&](FontObject& font) { font.Bold = Value; });
    parts_->Report("FontBold");
}

bool TextBox::FontUnderline() const
{
    return parts_->Font()->Underline;
}

void TextBox::SetFontUnderline(bool Value)
{
    parts_->EditFont([&](FontObject& font) { font.Underline = Value; });
}

bool TextBox::FontStrikethru() const
{
    return parts_->Font()->Strikethrough;
}

void TextBox::SetFontStrikethru(bool Value)
{
    parts_->EditFont([&](FontObject& font) { font.Strikethrough = Value; });
}

bool TextBox::Enabled() const
{
    return parts_->window.IsEnabled();
}

void TextBox::SetEnabled(bool Value)
{
    parts_->window.SetEnabled(Value);
    parts_->Report("Enabled");
}

std::u16string TextBox::ToolTipText() const
{
    return parts_->settings.ToolTipText;
}

void TextBox::SetToolTipText(std::u16string_view Value)
{
    parts_->settings.ToolTipText = Value;
    parts_->box.SetToolTip(Value);
}

i32 TextBox::OLEDropMode() const
{
    return parts_->settings.OLEDropMode;
}

void TextBox::SetOLEDropMode(i32 Value)
{
    parts_->settings.OLEDropMode = Value;
}

i32 TextBox::OLEDragMode() const
{
    return parts_->settings.OLEDragMode;
}

void TextBox::SetOLEDragMode(i32 Value)
{
    parts_->settings.OLEDragMode = Value;
}

i32 TextBox::MaxLength() const
{
    return parts_->settings.MaxLength;
}

void TextBox::SetMaxLength(i32 Value)
{
    parts_->settings.MaxLength = Value;
    parts_->box.SetMaxLength(Value);
}

bool TextBox::Locked() const
{
    return parts_->settings.Locked;
}

void TextBox::SetLocked(bool Value)
{
    parts_->settings.Locked = Value;
    parts_->box.SetLocked(Value);
}

i32 TextBox::BorderStyle() const
{
    return parts_->settings.BorderStyle;
}

void TextBox::SetBorderStyle(i32 Value)
{
    parts_->SetBorderStyle(Value);
}

i32 TextBox::WhatsThisHelpID() const
{
    return parts_->settings.WhatsThisHelpID;
}

void TextBox::SetWhatsThisHelpID(i32 Value)
{
    parts_->settings.WhatsThisHelpID = Value;
}

std::intptr_t TextBox::hWnd() const
{
    return parts_->box.Handle();
}

Hdc TextBox::hDC() const
{
    const Device* const device = parts_->box.DrawingDevice();
    return device ? device->Handle() : 0;
}

bool TextBox::HideSelection() const
{
    return true;
}

void TextBox::Refresh()
{
    parts_->box.Refresh();
}

} // namespace vornix
