#include "textbox/text_box_parts.h"

#include "automation/colors.h"
#include "automation/font_description.h"
#include "automation/key_codes.h"
#include "automation/scoped_flag.h"
#include "textbox/box_choice.h"

#include <algorithm>
#include <utility>

namespace vornix {

// What the engine has to say, to the host or to the box.
class TextBox::Parts::EngineOwner final : public MaskEngineOwner {
public:
    EngineOwner(Parts& parts, TextBoxEvents& events)
        : parts_(parts)
        , events_(events)
    {
    }

    // The box itself keeps a text that is locked; the engine knows of no lock.
    void KeyDown(i16& KeyCode, i16& Shift) override
    {
        events_.KeyDown(KeyCode, Shift);
        if (parts_.settings.Locked && KeyCode == Keys::Delete)
            KeyCode = 0;
    }
    void KeyPress(i16& KeyAscii) override
    {
        events_.KeyPress(KeyAscii);
        const auto character = static_cast<char16_t>(KeyAscii);
        if (parts_.settings.Locked && (character == Keys::Backspace || character >= u' '))
            KeyAscii = 0;
    }
    void KeyArrowMove(i16& KeyCode) override { events_.KeyArrowMove(KeyCode); }
    void Change() override { events_.Change(); }
    void FlattenBorder() override { parts_.SetBorderStyle(0); }
    void SizeToText() override { parts_.SizeToText(); }
    const Locale& GetLocale() const override { return parts_.site.GetLocale(); }

private:
    Parts& parts_;
    TextBoxEvents& events_;
};

TextBox::Parts::Parts(ChildWindow& windowOfBox, NativeEditBox& editBox, TextBoxSite& siteOfBox, TextBoxEvents& events)
    : window(windowOfBox)
    , box(editBox)
    , site(siteOfBox)
    , events_(events)
    , owner_(std::make_unique<EngineOwner>(*this, events))
    , engine_(editBox, *owner_)
{
}

TextBox::Parts::~Parts() = default;

void TextBox::Parts::Load(const SavedTextBox& saved)
{
    settings = saved.settings;
    limits = {};
    grownSize_.reset();
    engine_.Initialize();
    engine_.SetPromptChar({ &saved.promptChar, 1 });
    engine_.SetReplaceChar({ &saved.replaceChar, 1 });
    engine_.SetMultiLine(saved.multiLine);
    style_.reset();
    ChooseBox();
    // Takes the border off: that of the settings comes behind it.
    engine_.SetText(saved.text);
    settings.BorderStyle = saved.settings.BorderStyle;
    ApplyLook();
    window.SetEnabled(saved.enabled);
}

SavedTextBox TextBox::Parts::Saved() const
{
    SavedTextBox saved;
    saved.settings = settings;
    saved.promptChar = engine_.PromptChar().front();
    saved.replaceChar = engine_.ReplaceChar().front();
    saved.multiLine = engine_.MultiLine();
    saved.text = engine_.Text();
    saved.enabled = window.IsEnabled();
    return saved;
}

FontPtr TextBox::Parts::Font() const
{
    return settings.Font ? settings.Font : AmbientFont();
}

FontPtr TextBox::Parts::AmbientFont() const
{
    const FontPtr font = site.AmbientFont();
    return font ? font : std::make_shared<const FontObject>();
}

void TextBox::Parts::ApplyFont()
{
    box.SetFont(*Font());
}

void TextBox::Parts::ApplyColors()
{
    const SystemColors& colors = site.Colors();
    box.SetColors(OleTranslateColor(settings.ForeColor, colors), OleTranslateColor(settings.BackColor, colors));
}

void TextBox::Parts::ApplyPointer()
{
    box.SetPointer(settings.MousePointer, settings.MouseIcon);
}

void TextBox::Parts::ApplyLook()
{
    box.SetToolTip(settings.ToolTipText);
    box.SetRightToLeft(settings.RightToLeft);
    box.SetPasswordChar(settings.PasswordChar);
    box.SetMaxLength(settings.MaxLength);
    box.SetLocked(settings.Locked);
    SetBorderStyle(settings.BorderStyle);
    ApplyPointer();
    ApplyColors();
    ApplyFont();
}

void TextBox::Parts::SetBorderStyle(i32 style)
{
    settings.BorderStyle = style;
    box.SetBorder(style != 0);
}

void TextBox::Parts::ChooseBox()
{
    ShowBox(ChosenBox({ settings.Alignment, settings.ScrollBars, engine_.MultiLine(), settings.AutoResize }));
}

void TextBox::Parts::ShowBox(int index)
{
    const EditBoxStyle style = StyleOf(index, settings.AutoResize);
    if (style_ == style)
        return;
    style_ = style;
    box.SetStyle(style);
}

void TextBox::Parts::SizeToText()
{
    if (!settings.AutoResize || sizingSelf_ || limits == SizeLimits())
        return;
    Device* const device = box.DrawingDevice();
    if (!device)
        return;
    const TextExtent extent = MeasureBoxText(*device, Described(*Font()), box.Text(), limits);
    if (extent.isCut)
        ShowBox(BoxWithScrollBar);
    const Size normal { limits.NormalWidth, limits.NormalHeight };
    if (extent.width < normal.width && extent.height < normal.height) {
        if (IsFlat())
            return;
        SetBorderStyle(0);
        TakeSize(normal);
        grownSize_.reset();
    } else {
        SetBorderStyle(1);
        TakeSize({ extent.width + BoxMargin, extent.height + BoxMargin });
        grownSize_ = window.Place().GetSize();
    }
    events_.Resize();
}

// A text that was written took the border off; the size that the text before it had asked for is still there.
bool TextBox::Parts::IsFlat() const
{
    return settings.BorderStyle == 0 && grownSize_ != window.Place().GetSize();
}

void TextBox::Parts::TakeSize(Size size)
{
    const ScopedFlag sizing(sizingSelf_);
    const Rect place = window.Place();
    window.Move({ place.left, place.top, place.left + std::max(size.width, 0), place.top + std::max(size.height, 0) });
}

// The window may tell that its box has the focus while it is given it.
void TextBox::Parts::EnterFocus()
{
    if (enteringFocus_ || !window.IsVisible())
        return;
    const ScopedFlag entering(enteringFocus_);
    window.SetEnabled(true);
    window.SetFocus();
}

void TextBox::Parts::KeyDown(i16& KeyCode, i16& Shift)
{
    engine_.KeyDown(KeyCode, Shift);
}

void TextBox::Parts::KeyPress(i16& KeyAscii, i16 Shift)
{
    engine_.KeyPress(KeyAscii, Shift);
}

void TextBox::Parts::KeyUp(i16& KeyCode, i16& Shift)
{
    events_.KeyUp(KeyCode, Shift);
}

void TextBox::Parts::TextChanged(ChangeOrigin origin)
{
    engine_.BoxChanged(origin);
}

void TextBox::Parts::MouseDown(i16 Button, i16 Shift, float x, float y)
{
    events_.MouseDown(Button, Shift, x, y);
}

void TextBox::Parts::MouseMove(i16 Button, i16 Shift, float x, float y)
{
    events_.MouseMove(Button, Shift, x, y);
}

void TextBox::Parts::MouseUp(i16 Button, i16 Shift, float x, float y)
{
    events_.MouseUp(Button, Shift, x, y);
}

void TextBox::Parts::Click()
{
    events_.Click();
}

void TextBox::Parts::DblClick()
{
    events_.DblClick();
}

} // namespace vornix
