// The surface behind RasterSurface: a view onto pixels, with the state that drawing needs.
#pragma once

#include "frames.h"
#include "pixel_block.h"
#include "pixel_view.h"
#include "transfer.h"
#include "vornix/raster_surface.h"

#include <memory>

namespace vornix {

class PixelSurface final : public RasterSurface {
public:
    enum class Kind { Color, Monochrome };
    using ColorsPtr = std::shared_ptr<const SystemColors>;

    // On a block of its own, which may be longer than needed; `pixels` lies in it or, when it is empty, elsewhere.
    PixelSurface(PixelBlock block, u32* pixels, std::ptrdiff_t stride, Size logical, const ScaleMap& map, Kind kind,
        ColorsPtr colors);
    // Holds only the device pixels `stored` of its size; nothing is drawn on the others, and nothing is read there.
    PixelSurface(PixelBlock block, const Rect& stored, Size logical, const ScaleMap& map, Kind kind, ColorsPtr colors);
    // With memory from the pool; null when it is short. Negative sizes count as 0.
    static std::unique_ptr<PixelSurface> Allocate(Size logical, const ScaleMap& map, Kind kind, ColorsPtr colors);
    ~PixelSurface() override;
    PixelSurface(const PixelSurface&) = delete;
    PixelSurface& operator=(const PixelSurface&) = delete;

    Hdc Handle() const override;
    Size GetSize() const override { return size_; }
    double Scale() const override { return view_.map.Scale(); }

    std::unique_ptr<Surface> CreateCompatible(Size size, Point origin) override;
    std::unique_ptr<Surface> CreateMonochrome(Size size) override;
    std::unique_ptr<Surface> CreateFromPicture(const PictureObject& picture) override;
    std::unique_ptr<Surface> ComposeAt(Point origin, Size size, const Rect& visible) override;
    bool IsSamePicture(const Device& other) const override;

    void FillRect(const Rect& rect, ColorRef color) override;
    void FillPattern(const Rect& rect, const Surface& pattern) override;
    void FrameRect(const Rect& rect, ColorRef color) override;
    bool GradientFill(const GradientVertex& first, const GradientVertex& second, GradientDirection direction) override;

    void SelectPen(const Pen& pen) override { pen_ = pen; }
    void MoveTo(int x, int y) override { position_ = { x, y }; }
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

    void SelectFont(const FontDescription& font) override { font_ = font; }
    void SetTextColor(ColorRef color) override { textColor_ = color; }
    void SetBkColor(ColorRef color) override { backColor_ = color; }
    ColorRef GetBkColor() const override { return backColor_; }
    void SetBkMode(BackgroundMode mode) override { backMode_ = mode; }
    int DrawText(std::u16string_view text, Rect& rect, u32 format) override;
    int MeasureText(std::u16string_view text, Rect& rect, u32 format) override;

    void SetClip(const Rect* clip) override;

    DevicePixels Pixels() override;
    void SetSystemColors(const SystemColors& colors) override;
    void SavePng(const std::string& path) const override;

private:
    // The pixel that a colour becomes here: on two colours, white for the lighter half.
    u32 PixelFor(ColorRef color) const;
    Rect DeviceRect(const Rect& rect) const;
    Canvas GetCanvas() const { return { view_, size_ }; }
    // Puts pixels back to two colours after an operation that mixes.
    void KeepMonochrome(const Rect& deviceRect);
    bool OwnsAll(const Rect& rect) const;
    TransferSource AsSource() const { return { view_, size_, stored_ }; }
    std::unique_ptr<Surface> ComposePart(Point origin, Size size, const Rect& seen);
    PixelConversion ConversionFrom(const PixelSurface& source) const;
    bool CopyRect(const Rect& target, const PixelSurface& source, const Rect& sourceRect, RasterOp operation);

    PixelBlock block_;
    PixelView view_;
    Rect stored_;
    Size size_;
    Kind kind_;
    ColorsPtr colors_;
    Pen pen_;
    Point position_;
    FontDescription font_;
    ColorRef textColor_ = 0x000000;
    ColorRef backColor_ = 0xFFFFFF;
    BackgroundMode backMode_ = BackgroundMode::Opaque;
    mutable Hdc handle_ = 0;
};

} // namespace vornix
