// What is in a text box: its settings, the mask engine, and the size that follows the text.
#pragma once

#include "textbox/mask_engine.h"
#include "textbox/text_box_settings.h"
#include "textbox/text_sizing.h"
#include "vornix/text_box.h"

#include <optional>

namespace vornix {

class TextBox::Parts final : public EditBoxListener {
public:
    Parts(ChildWindow& windowOfBox, NativeEditBox& editBox, TextBoxSite& siteOfBox, TextBoxEvents& events);

    ~Parts() override;

    // Everything as it is saved, and the rest as in a new text box.
    void Load(const SavedTextBox& saved);
    SavedTextBox Saved() const;

    // The font of the box; never null.
    FontPtr Font() const;
    FontPtr AmbientFont() const;
    // A font of its own, made of the one that it has.
    template <typename Edit> void EditFont(const Edit& edit)
    {
        auto font = std::make_shared<FontObject>(*Font());
        edit(*font);
        settings.Font = std::move(font);
        ApplyFont();
    }

    void ApplyFont();
    void ApplyColors();
    void ApplyPointer();
    void SetBorderStyle(i32 style);
    // Shows the box that the settings ask for.
    void ChooseBox();
    void SizeToText();
    void EnterFocus();

    // A persisted property was written.
    void Report(std::string_view name) { site.PropertyChanged(name); }

    // What the user does.
    void KeyDown(i16& KeyCode, i16& Shift) override;
    void KeyPress(i16& KeyAscii, i16 Shift) override;
    void KeyUp(i16& KeyCode, i16& Shift) override;
    void TextChanged(ChangeOrigin origin) override;
    void MouseDown(i16 Button, i16 Shift, float x, float y) override;
    void MouseMove(i16 Button, i16 Shift, float x, float y) override;
    void MouseUp(i16 Button, i16 Shift, float x, float y) override;
    void Click() override;
    void DblClick() override;

    MaskEngine& Engine() { return engine_; }
    const MaskEngine& Engine() const { return engine_; }

    ChildWindow& window;
    NativeEditBox& box;
    TextBoxSite& site;
    TextBoxSettings settings;
    SizeLimits limits;

private:
    class EngineOwner;

    void ApplyLook();
    void ShowBox(int index);
    bool IsFlat() const;
    void TakeSize(Size size);

    TextBoxEvents& events_;
    std::unique_ptr<EngineOwner> owner_;
    MaskEngine engine_;
    // None before the first choice.
    std::optional<EditBoxStyle> style_;
    // The size that the text has asked for last.
    std::optional<Size> grownSize_;
    bool sizingSelf_ = false;
    bool enteringFocus_ = false;
};

} // namespace vornix
