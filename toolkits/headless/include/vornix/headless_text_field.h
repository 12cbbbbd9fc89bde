// What the edit box and the combo box of a container without a screen have in common: a child window with a text, and a
// record of how it looks. Nothing of it is drawn, on the control's picture or elsewhere.
#pragma once

#include "vornix/edited_text.h"
#include "vornix/headless_child.h"

#include <memory>

namespace vornix {

// DejaVu Sans, 9 points.
FontPtr MakeAmbientFont();

// What a box stands in. The clipboard must outlive the box.
struct FieldSurroundings {
    std::u16string& clipboard;
    // Device pixels a pixel.
    double scale;
    SystemColors colors;
    FontPtr font;
};

// Port is NativeEditBox or NativeComboBox. What the user does with a box that is hidden or disabled goes unheard.
template <typename Port> class HeadlessTextField : public HeadlessChild, public Port {
public:
    explicit HeadlessTextField(const FieldSurroundings& surroundings)
        : text_(surroundings.clipboard)
        , font_(*surroundings.font)
        , scale_(surroundings.scale)
        , colors_(surroundings.colors)
    {
    }

    std::u16string Text() const override { return text_.Text(); }
    void SetText(std::u16string_view text) override { text_.SetText(text); }
    int SelStart() const override { return text_.SelStart(); }
    void SetSelStart(int start) override { text_.SetSelStart(start); }
    int SelLength() const override { return text_.SelLength(); }
    void SetSelLength(int length) override { text_.SetSelLength(length); }
    std::u16string SelText() const override { return text_.SelText(); }
    void SetSelText(std::u16string_view text) override { text_.SetSelText(text); }

    void SetRightToLeft(bool rightToLeft) override { isRightToLeft_ = rightToLeft; }
    bool IsRightToLeft() const { return isRightToLeft_; }
    // The ambient font at first.
    void SetFont(const FontObject& font) override { font_ = font; }
    const FontObject& Font() const { return font_; }
    void SetColors(ColorRef foreColor, ColorRef backColor) override
    {
        foreColor_ = foreColor;
        backColor_ = backColor;
    }
    ColorRef ForeColor() const { return foreColor_; }
    ColorRef BackColor() const { return backColor_; }
    std::intptr_t Handle() const override { return reinterpret_cast<std::intptr_t>(this); }

protected:
    EditedText text_;
    FontObject font_;

    // For measuring; null when memory is short.
    RasterSurface* MeasuringDevice()
    {
        if (!device_)
            device_ = RasterSurface::Create({ 1, 1 }, scale_, colors_);
        return device_.get();
    }

private:
    double scale_;
    SystemColors colors_;
    std::unique_ptr<RasterSurface> device_;
    bool isRightToLeft_ = false;
    ColorRef foreColor_ = 0;
    ColorRef backColor_ = 0xFFFFFF;
};

} // namespace vornix
