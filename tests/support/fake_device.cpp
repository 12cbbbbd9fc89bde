#include "support/fake_device.h"

#include "vornix/picture.h"

#include <algorithm>
#include <cstdio>

namespace vornix {

namespace {

std::string Text(int value)
{
    return std::to_string(value);
}

std::string Text(Point point)
{
    return Text(point.x) + "," + Text(point.y);
}

std::string Text(const Rect& rect)
{
    return Text(rect.left) + "," + Text(rect.top) + "," + Text(rect.right) + "," + Text(rect.bottom);
}

std::string Text(Size size)
{
    return Text(size.width) + "x" + Text(size.height);
}

std::string Hex(u32 value, int digits, const char* prefix)
{
    char text[16];
    std::snprintf(text, sizeof text, "%s%0*X", prefix, digits, value);
    return text;
}

std::string Color(ColorRef color)
{
    return Hex(color, 6, "#");
}

std::string Narrow(std::u16string_view text)
{
    std::string narrow;
    for (const char16_t unit : text)
        narrow += unit < 128 ? static_cast<char>(unit) : '?';
    return narrow;
}

std::string NameOf(const Surface& surface)
{
    const auto* const fake = dynamic_cast<const FakeDevice*>(&surface);
    return fake ? fake->Name() : "?";
}

std::string Operation(RasterOp operation)
{
    switch (operation) {
    case RasterOp::SrcCopy:
        return "SRCCOPY";
    case RasterOp::SrcAnd:
        return "SRCAND";
    case RasterOp::SrcPaint:
        return "SRCPAINT";
    case RasterOp::DstInvert:
        return "DSTINVERT";
    default:
        return Hex(static_cast<u32>(operation), 8, "0x");
    }
}

std::string Vertex(const GradientVertex& vertex)
{
    return Text(Point { vertex.x, vertex.y }) + ":" + Hex(vertex.red, 4, "") + "/" + Hex(vertex.green, 4, "") + "/"
        + Hex(vertex.blue, 4, "");
}

} // namespace

std::vector<std::string> FakeScreen::LinesOf(const std::string& name) const
{
    std::vector<std::string> lines;
    for (const std::string& line : journal) {
        if (line.starts_with(name + "."))
            lines.push_back(line.substr(name.size() + 1));
    }
    return lines;
}

int FakeScreen::Count(const std::string& text) const
{
    return static_cast<int>(std::count_if(
        journal.begin(), journal.end(), [&](const std::string& line) { return line.find(text) != std::string::npos; }));
}

FakeDevice::FakeDevice(std::shared_ptr<FakeScreen> screen, std::string name, Size size)
    : screen_(std::move(screen))
    , name_(std::move(name))
    , size_(size)
    , scale_(screen_->scale)
    , handle_(RegisterDevice(*this))
{
    ++screen_->surfacesAlive;
}

FakeDevice::~FakeDevice()
{
    --screen_->surfacesAlive;
    UnregisterDevice(handle_);
}

void FakeDevice::Note(const std::string& line) const
{
    screen_->journal.push_back(name_ + "." + line);
}

std::unique_ptr<Surface> FakeDevice::Make(const std::string& kind, Size size, double scale)
{
    if (screen_->surfacesLeft == 0)
        return nullptr;
    if (screen_->surfacesLeft > 0)
        --screen_->surfacesLeft;
    auto made = std::make_unique<FakeDevice>(screen_, kind + Text(++screen_->surfacesMade), size);
    made->scale_ = scale;
    return made;
}

std::unique_ptr<Surface> FakeDevice::CreateCompatible(Size size, Point origin)
{
    std::unique_ptr<Surface> made = Make("mem", size, screen_->scale);
    Note("CreateCompatible " + Text(size) + " at " + Text(origin) + (made ? " " + NameOf(*made) : " failed"));
    return made;
}

std::unique_ptr<Surface> FakeDevice::CreateMonochrome(Size size)
{
    std::unique_ptr<Surface> made = Make("mono", size, screen_->scale);
    Note("CreateMonochrome " + Text(size) + (made ? " " + NameOf(*made) : " failed"));
    return made;
}

std::unique_ptr<Surface> FakeDevice::CreateFromPicture(const PictureObject& picture)
{
    if (picture.Handle() == 0)
        return nullptr;
    std::unique_ptr<Surface> made = Make("pic", { picture.PixelWidth(), picture.PixelHeight() }, 1);
    Note("CreateFromPicture " + Text(Size { picture.PixelWidth(), picture.PixelHeight() })
        + (made ? " " + NameOf(*made) : " failed"));
    return made;
}

void FakeDevice::FillRect(const Rect& rect, ColorRef color)
{
    Note("FillRect " + Text(rect) + " " + Color(color));
}

void FakeDevice::FillPattern(const Rect& rect, const Surface& pattern)
{
    Note("FillPattern " + Text(rect) + " " + NameOf(pattern));
}

void FakeDevice::FrameRect(const Rect& rect, ColorRef color)
{
    Note("FrameRect " + Text(rect) + " " + Color(color));
}

bool FakeDevice::GradientFill(const GradientVertex& first, const GradientVertex& second, GradientDirection direction)
{
    const bool horizontal = direction == GradientDirection::Horizontal;
    Note("GradientFill " + Vertex(first) + " " + Vertex(second) + (horizontal ? " horizontal" : " vertical"));
    return true;
}

void FakeDevice::SelectPen(const Pen& pen)
{
    Note("SelectPen " + Color(pen.color) + " " + Text(pen.width));
}

void FakeDevice::MoveTo(int x, int y)
{
    Note("MoveTo " + Text(Point { x, y }));
}

void FakeDevice::LineTo(int x, int y)
{
    Note("LineTo " + Text(Point { x, y }));
}

void FakeDevice::SetPixel(int x, int y, ColorRef color)
{
    Note("SetPixel " + Text(Point { x, y }) + " " + Color(color));
}

ColorRef FakeDevice::GetPixel(int x, int y) const
{
    Note("GetPixel " + Text(Point { x, y }));
    return pixelSeen_;
}

void FakeDevice::DrawEdge(const Rect& rect, u32 edge, u32 sides)
{
    Note("DrawEdge " + Text(rect) + " " + Hex(edge, 1, "") + " " + Hex(sides, 1, ""));
}

void FakeDevice::DrawFrameControl(const Rect& rect, u32 kind, u32 state)
{
    Note("DrawFrameControl " + Text(rect) + " " + Hex(kind, 1, "") + " " + Hex(state, 1, ""));
}

void FakeDevice::DrawFocusRect(const Rect& rect)
{
    Note("DrawFocusRect " + Text(rect));
}

bool FakeDevice::BitBlt(const Rect& target, const Surface& source, Point sourceOrigin, RasterOp operation)
{
    Note("BitBlt " + Text(target) + " from " + NameOf(source) + " " + Text(sourceOrigin) + " " + Operation(operation));
    return true;
}

bool FakeDevice::StretchBlt(const Rect& target, const Surface& source, const Rect& sourceRect, RasterOp operation)
{
    Note(
        "StretchBlt " + Text(target) + " from " + NameOf(source) + " " + Text(sourceRect) + " " + Operation(operation));
    return true;
}

bool FakeDevice::TransparentBlt(const Rect& target, const Surface& source, const Rect& sourceRect, ColorRef transparent)
{
    Note("TransparentBlt " + Text(target) + " from " + NameOf(source) + " " + Text(sourceRect) + " "
        + Color(transparent));
    return !screen_->transparentBltFails;
}

bool FakeDevice::AlphaBlend(const Rect& target, const Surface& source, const Rect& sourceRect, u32 blendFunction)
{
    Note("AlphaBlend " + Text(target) + " from " + NameOf(source) + " " + Text(sourceRect) + " "
        + Text(static_cast<int>(blendFunction >> 16)));
    return --screen_->alphaBlendFailures < 0;
}

void FakeDevice::DrawIcon(int x, int y, const PictureObject& picture)
{
    Note("DrawIcon " + Text(Point { x, y }) + " " + Text(Size { picture.PixelWidth(), picture.PixelHeight() }));
}

void FakeDevice::SelectFont(const FontDescription& font)
{
    Note("SelectFont " + Narrow(font.face) + " " + Text(font.height) + " " + Text(font.weight)
        + (font.italic ? " italic" : "") + (font.underline ? " underline" : "") + (font.strikeOut ? " strikeout" : "")
        + " " + Text(font.charset));
}

void FakeDevice::SetTextColor(ColorRef color)
{
    Note("SetTextColor " + Color(color));
}

void FakeDevice::SetBkColor(ColorRef color)
{
    backColor_ = color;
    Note("SetBkColor " + Color(color));
}

void FakeDevice::SetBkMode(BackgroundMode mode)
{
    Note(mode == BackgroundMode::Opaque ? "SetBkMode opaque" : "SetBkMode transparent");
}

int FakeDevice::DrawText(std::u16string_view text, Rect& rect, u32 format)
{
    Note("DrawText \"" + Narrow(text) + "\" " + Text(rect) + " " + Hex(format, 1, ""));
    if (format & DT_CALCRECT && screen_->measure) {
        const Size size = screen_->measure(text, rect, format);
        rect.right = rect.left + size.width;
        rect.bottom = rect.top + size.height;
        return size.height;
    }
    if (format & DT_CALCRECT) {
        rect.right = rect.left + CharWidth * static_cast<int>(text.size());
        rect.bottom = rect.top + LineHeight;
    }
    return LineHeight;
}

void FakeDevice::SetClip(const Rect* clip)
{
    Note(clip ? "SetClip " + Text(*clip) : "SetClip none");
}

} // namespace vornix
