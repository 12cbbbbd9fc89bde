// A device that draws nothing and writes down, in text form, what it was asked to draw.
#pragma once

#include "vornix/platform/device.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vornix {

// What all fake devices of one test share: the journal, and the failures they play.
struct FakeScreen {
    // One line a call: "name.Operation arguments". Sizes and edges are numbers, colours #BBGGRR.
    std::vector<std::string> journal;
    bool transparentBltFails = false;
    // That many AlphaBlend calls fail, the next ones succeed.
    int alphaBlendFailures = 0;
    // Surfaces that can still be made; below 0 there is no limit.
    int surfacesLeft = -1;
    int surfacesAlive = 0;
    int surfacesMade = 0;
    double scale = 1;
    // How texts are measured: the size for a text, its rectangle and format. Without it, one line of the device's grid.
    std::function<Size(std::u16string_view, const Rect&, u32)> measure;

    // Lines that begin with the device's name.
    std::vector<std::string> LinesOf(const std::string& name) const;
    // How many lines have the text in them.
    int Count(const std::string& text) const;
};

class FakeDevice final : public Surface {
public:
    // Text is laid out in a grid of this size.
    static constexpr int CharWidth = 7;
    static constexpr int LineHeight = 13;

    FakeDevice(std::shared_ptr<FakeScreen> screen, std::string name, Size size);
    ~FakeDevice() override;
    FakeDevice(const FakeDevice&) = delete;
    FakeDevice& operator=(const FakeDevice&) = delete;

    const std::string& Name() const { return name_; }
    // What GetPixel gives.
    void SetPixelSeen(ColorRef color) { pixelSeen_ = color; }
    // Counts as the same picture as every other device.
    void ShowEveryPicture() { showsEveryPicture_ = true; }

    Hdc Handle() const override { return handle_; }
    Size GetSize() const override { return size_; }
    double Scale() const override { return scale_; }
    std::unique_ptr<Surface> CreateCompatible(Size size, Point origin) override;
    std::unique_ptr<Surface> CreateMonochrome(Size size) override;
    std::unique_ptr<Surface> CreateFromPicture(const PictureObject& picture) override;
    bool IsSamePicture(const Device& other) const override { return showsEveryPicture_ || this == &other; }

    void FillRect(const Rect& rect, ColorRef color) override;
    void FillPattern(const Rect& rect, const Surface& pattern) override;
    void FrameRect(const Rect& rect, ColorRef color) override;
    bool GradientFill(const GradientVertex& first, const GradientVertex& second, GradientDirection direction) override;
    void SelectPen(const Pen& pen) override;
    void MoveTo(int x, int y) override;
    void LineTo(int x, int y) override;
    void SetPixel(int x, int y, ColorRef color) override;
    ColorRef GetPixel(int x, int y) const override;
    void DrawEdge(const Rect& rect, u32 edge, u32 sides) override;
    void DrawFrameControl(const Rect& rect, u32 kind, u32 state) override;
    void DrawFocusRect(const Rect& rect) override;
    bool BitBlt(const Rect& target, const Surface& source, Point sourceOrigin, RasterOp operation) override;
    bool StretchBlt(const Rect& target, const Surface& source, const Rect& sourceRect, RasterOp operation) override;
    bool TransparentBlt(
        const Rect& target, const Surface& source, const Rect& sourceRect, ColorRef transparent) override;
    bool AlphaBlend(const Rect& target, const Surface& source, const Rect& sourceRect, u32 blendFunction) override;
    void DrawIcon(int x, int y, const PictureObject& picture) override;
    void SelectFont(const FontDescription& font) override;
    void SetTextColor(ColorRef color) override;
    void SetBkColor(ColorRef color) override;
    ColorRef GetBkColor() const override { return backColor_; }
    void SetBkMode(BackgroundMode mode) override;
    int DrawText(std::u16string_view text, Rect& rect, u32 format) override;
    void SetClip(const Rect* clip) override;

private:
    void Note(const std::string& line) const;
    std::unique_ptr<Surface> Make(const std::string& kind, Size size, double scale);

    std::shared_ptr<FakeScreen> screen_;
    std::string name_;
    Size size_;
    double scale_;
    Hdc handle_;
    ColorRef backColor_ = 0xFFFFFF;
    ColorRef pixelSeen_ = 0;
    bool showsEveryPicture_ = false;
};

} // namespace vornix
