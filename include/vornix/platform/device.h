// The drawing port: a surface to draw on, with the operations the painter needs under their usual names.
//
// All coordinates are logical pixels. A device has a scale (device pixels per logical pixel); a logical edge x lies at
// device pixel floor(x * scale + 0.5), whoever draws it, so neighbouring rectangles never leave a seam or overlap.
// Nothing here raises an error to the host: what cannot be drawn is not drawn, and what reports success does so by
// bool.
#pragma once

#include "vornix/types.h"

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

namespace vornix {

class Surface;

// The number by which a host names a device (PictureHdc, PrinterHdc, hDC). 0 is none.
using Hdc = std::intptr_t;

// Ternary raster operations, by their published codes. Where one asks for a pattern, it is white.
enum class RasterOp : u32 {
    Blackness = 0x00000042,
    NotSrcErase = 0x001100A6,
    NotSrcCopy = 0x00330008,
    SrcErase = 0x00440328,
    DstInvert = 0x00550009,
    PatInvert = 0x005A0049,
    SrcInvert = 0x00660046,
    SrcAnd = 0x008800C6,
    MergePaint = 0x00BB0226,
    MergeCopy = 0x00C000CA,
    SrcCopy = 0x00CC0020,
    SrcPaint = 0x00EE0086,
    PatCopy = 0x00F00021,
    PatPaint = 0x00FB0A09,
    Whiteness = 0x00FF0062
};

// A solid pen. Lines leave out their end point. Width in logical pixels, at least 1: a pen of width w covers the square
// of w by w pixels that begins w / 2 (truncated) left of and above each point of the line.
struct Pen {
    ColorRef color = 0;
    int width = 1;
};

// A font by its values. A negative height is the em height in logical pixels, a positive one the cell height.
struct FontDescription {
    std::u16string face;
    int height = 0;
    int weight = 400;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    i32 charset = 1;
    friend bool operator==(const FontDescription&, const FontDescription&) = default;
};

// A corner of a gradient: channels in the high byte of 16 bits.
struct GradientVertex {
    int x = 0;
    int y = 0;
    u16 red = 0;
    u16 green = 0;
    u16 blue = 0;
};

enum class GradientDirection { Horizontal = 0, Vertical = 1 };

enum class BackgroundMode { Transparent = 1, Opaque = 2 };

// DrawText format flags.
inline constexpr u32 DT_LEFT = 0x0;
inline constexpr u32 DT_TOP = 0x0;
inline constexpr u32 DT_CENTER = 0x1;
inline constexpr u32 DT_RIGHT = 0x2;
inline constexpr u32 DT_VCENTER = 0x4;
inline constexpr u32 DT_BOTTOM = 0x8;
inline constexpr u32 DT_WORDBREAK = 0x10;
inline constexpr u32 DT_SINGLELINE = 0x20;
inline constexpr u32 DT_EXPANDTABS = 0x40;
inline constexpr u32 DT_TABSTOP = 0x80;
inline constexpr u32 DT_NOCLIP = 0x100;
inline constexpr u32 DT_EXTERNALLEADING = 0x200;
inline constexpr u32 DT_CALCRECT = 0x400;
inline constexpr u32 DT_NOPREFIX = 0x800;
inline constexpr u32 DT_INTERNAL = 0x1000;
inline constexpr u32 DT_EDITCONTROL = 0x2000;
inline constexpr u32 DT_PATH_ELLIPSIS = 0x4000;
inline constexpr u32 DT_END_ELLIPSIS = 0x8000;
inline constexpr u32 DT_MODIFYSTRING = 0x10000;
inline constexpr u32 DT_RTLREADING = 0x20000;
inline constexpr u32 DT_WORD_ELLIPSIS = 0x40000;
inline constexpr u32 DT_NOFULLWIDTHCHARBREAK = 0x80000;
inline constexpr u32 DT_HIDEPREFIX = 0x100000;
inline constexpr u32 DT_PREFIXONLY = 0x200000;

// DrawEdge: edges and sides.
inline constexpr u32 BDR_RAISEDOUTER = 0x1;
inline constexpr u32 BDR_SUNKENOUTER = 0x2;
inline constexpr u32 BDR_RAISEDINNER = 0x4;
inline constexpr u32 BDR_SUNKENINNER = 0x8;
inline constexpr u32 BF_LEFT = 0x1;
inline constexpr u32 BF_TOP = 0x2;
inline constexpr u32 BF_RIGHT = 0x4;
inline constexpr u32 BF_BOTTOM = 0x8;
inline constexpr u32 BF_RECT = 0xF;
inline constexpr u32 BF_MIDDLE = 0x800;

// DrawFrameControl: kinds and states.
inline constexpr u32 DFC_BUTTON = 4;
inline constexpr u32 DFCS_BUTTONCHECK = 0x0;
inline constexpr u32 DFCS_INACTIVE = 0x100;
inline constexpr u32 DFCS_PUSHED = 0x200;
inline constexpr u32 DFCS_CHECKED = 0x400;
inline constexpr u32 DFCS_FLAT = 0x4000;

// BLENDFUNCTION packed into 32 bits: the constant alpha lies in bits 16 to 23.
inline constexpr u32 BlendFunction(int constantAlpha)
{
    return static_cast<u32>(constantAlpha & 0xFF) << 16;
}

class Device {
public:
    virtual ~Device() = default;

    virtual Hdc Handle() const = 0;
    // Logical pixels.
    virtual Size GetSize() const = 0;
    virtual double Scale() const = 0;

    // A surface of this device's kind and scale, contents undefined; null when memory is short.
    // `origin` is where the new surface's (0, 0) will lie on this device: it fixes how its edges are rounded at
    // fractional scales, so that a copy to that place fits to the device pixel.
    virtual std::unique_ptr<Surface> CreateCompatible(Size size, Point origin = {}) = 0;
    // The same with two colours only: a copy onto it turns the source's background colour into white and all other
    // colours into black.
    virtual std::unique_ptr<Surface> CreateMonochrome(Size size) = 0;
    // A surface that holds the picture at one device pixel a picture pixel; null when it has no bits.
    virtual std::unique_ptr<Surface> CreateFromPicture(const PictureObject& picture) = 0;

    // A surface to compose the rectangle `origin`, `size` of this device on before it is copied there. Where this
    // device is in memory it may be a window onto its own pixels, so that the copy costs nothing. `visible` is the
    // part, in this device's coordinates, that will be copied.
    virtual std::unique_ptr<Surface> ComposeAt(Point origin, Size size, const Rect& visible)
    {
        static_cast<void>(visible);
        return CreateCompatible(size, origin);
    }
    // Whether both are the same picture in memory, so that what is drawn on one is seen on the other.
    virtual bool IsSamePicture(const Device& other) const { return this == &other; }

    // Filling.
    virtual void FillRect(const Rect& rect, ColorRef color) = 0;
    // Tiles the surface over the rectangle, its first tile at (0, 0) of this device.
    virtual void FillPattern(const Rect& rect, const Surface& pattern) = 0;
    virtual void FrameRect(const Rect& rect, ColorRef color) = 0;
    // Fills the rectangle between the vertices, which come in either order. Pixel i of n along the direction takes of
    // each channel (first * (n - i) + last * i) / n, truncated, and of that the high byte. False for an unknown
    // direction.
    virtual bool GradientFill(const GradientVertex& first, const GradientVertex& second, GradientDirection direction)
        = 0;

    // Lines and pixels.
    virtual void SelectPen(const Pen& pen) = 0;
    virtual void MoveTo(int x, int y) = 0;
    virtual void LineTo(int x, int y) = 0;
    virtual void SetPixel(int x, int y, ColorRef color) = 0;
    // 0xFFFFFFFF outside the device.
    virtual ColorRef GetPixel(int x, int y) const = 0;

    // Frames. Where two sides of an edge meet, the right or bottom one is drawn over the left or top one.
    virtual void DrawEdge(const Rect& rect, u32 edge, u32 sides) = 0;
    virtual void DrawFrameControl(const Rect& rect, u32 kind, u32 state) = 0;
    // A dotted rectangle that inverts what is below: drawn twice it is gone.
    virtual void DrawFocusRect(const Rect& rect) = 0;

    // Copies. A source of another scale is stretched to this device's. A source in the same memory is read as it was
    // before. What lies outside the source or this device is left out, and that is no failure. From a monochrome source
    // black becomes the text colour and white the background colour of this device.
    virtual bool BitBlt(const Rect& target, const Surface& source, Point sourceOrigin, RasterOp operation) = 0;
    // Colours are taken from the source pixel below the centre of the target's (stretch mode 3). A rectangle with its
    // edges in reversed order mirrors.
    virtual bool StretchBlt(const Rect& target, const Surface& source, const Rect& sourceRect, RasterOp operation) = 0;
    // False, with nothing drawn, for rectangles with their edges in reversed order; the same holds for AlphaBlend.
    virtual bool TransparentBlt(const Rect& target, const Surface& source, const Rect& sourceRect, ColorRef transparent)
        = 0;
    // Each channel becomes (source * alpha + target * (255 - alpha)) / 255, rounded to the nearest. False, with nothing
    // drawn, when the source rectangle leaves the source.
    virtual bool AlphaBlend(const Rect& target, const Surface& source, const Rect& sourceRect, u32 blendFunction) = 0;
    // A picture with its own transparency, natural size.
    virtual void DrawIcon(int x, int y, const PictureObject& picture) = 0;

    // Text.
    virtual void SelectFont(const FontDescription& font) = 0;
    virtual void SetTextColor(ColorRef color) = 0;
    virtual void SetBkColor(ColorRef color) = 0;
    // White on a new device.
    virtual ColorRef GetBkColor() const = 0;
    virtual void SetBkMode(BackgroundMode mode) = 0;
    // Draws within the rectangle, or with DT_CALCRECT sets its right and bottom edges instead. Gives the text height.
    virtual int DrawText(std::u16string_view text, Rect& rect, u32 format) = 0;
    // DrawText with DT_CALCRECT, for texts of which many are measured that will not be drawn soon: a device that keeps
    // what it has laid out need not keep these.
    virtual int MeasureText(std::u16string_view text, Rect& rect, u32 format)
    {
        return DrawText(text, rect, format | DT_CALCRECT);
    }

    // Everything drawn later stays inside; an empty pointer takes the clip away.
    virtual void SetClip(const Rect* clip) = 0;

    // Lines through all points with one pen, the last point left out.
    void Polyline(const Pen& pen, std::initializer_list<Point> points);
};

// A device whose pixels can be copied elsewhere.
class Surface : public Device { };

// The device a host's number stands for; null when there is none (or none any more).
Device* DeviceFromHandle(Hdc handle);
// Gives a device its number, and takes it back. For toolkits: a device calls them in its constructor and destructor.
Hdc RegisterDevice(Device& device);
void UnregisterDevice(Hdc handle);

} // namespace vornix
