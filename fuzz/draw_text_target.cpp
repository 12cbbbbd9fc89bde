// Text drawn in any rectangle with any flags: it stays inside its clip, and measuring draws nothing.
#include "fuzz_input.h"
#include "vornix/raster_surface.h"

#include <algorithm>

using namespace vornix;

namespace {

constexpr Size Whole { 120, 60 };
constexpr ColorRef Ground = 0x123456;
constexpr Rect Clip { 20, 10, 90, 50 };

const char16_t* const faces[] = { u"DejaVu Sans", u"", u"No Such Font", u"Noto Sans Arabic", u"DejaVu Sans Mono" };

FontDescription AnyFont(fuzz::FuzzInput& input)
{
    FontDescription font;
    font.face = faces[input.Byte() % std::size(faces)];
    font.height = input.Between(-40, 40);
    font.weight = input.Bool() ? 700 : 400;
    font.italic = input.Bool();
    font.underline = input.Bool();
    font.strikeOut = input.Bool();
    return font;
}

Rect AnyRect(fuzz::FuzzInput& input)
{
    // Edges stay within what 32 bits hold at the largest scale.
    if (input.Byte() % 8 == 0)
        return { input.AnyI32() / 4, input.AnyI32() / 4, input.AnyI32() / 4, input.AnyI32() / 4 };
    const int left = input.Between(-40, 130);
    const int top = input.Between(-40, 90);
    return { left, top, left + input.Between(-5, 150), top + input.Between(-5, 90) };
}

bool IsGround(RasterSurface& surface, const Rect& except)
{
    const DevicePixels pixels = surface.Pixels();
    const double scale = surface.Scale();
    const auto edge = [scale](int logical) { return static_cast<int>(logical * scale + 0.5); };
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            const bool inside
                = x >= edge(except.left) && x < edge(except.right) && y >= edge(except.top) && y < edge(except.bottom);
            if (!inside && (pixels.data[y * pixels.stride + x] & 0xFFFFFF) != 0x563412)
                return false;
        }
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzInput input(data, size);
    constexpr double scales[] = { 1, 1.25, 1.5, 2 };
    const auto surface = RasterSurface::Create(Whole, scales[input.Byte() % 4], SystemColors());
    surface->FillRect({ 0, 0, Whole.width, Whole.height }, Ground);
    surface->SelectFont(AnyFont(input));
    surface->SetBkMode(input.Bool() ? BackgroundMode::Opaque : BackgroundMode::Transparent);
    surface->SetTextColor(input.DoubleWord() & 0xFFFFFF);
    const Rect rect = AnyRect(input);
    const u32 format = input.DoubleWord();
    const std::u16string text = input.Bool() ? input.Text(400) : input.Rest().substr(0, 2000);

    // With DT_TABSTOP, DT_CALCRECT would be part of a number.
    const u32 measuring = (format & ~DT_TABSTOP) | DT_CALCRECT;
    Rect extent = rect;
    surface->DrawText(text, extent, measuring);
    fuzz::Require(IsGround(*surface, {}), "measuring draws nothing");
    Rect again = rect;
    surface->DrawText(text, again, measuring);
    fuzz::Require(again == extent, "measuring twice gives the same");

    surface->SetClip(&Clip);
    Rect target = rect;
    surface->DrawText(text, target, format & ~DT_CALCRECT);
    fuzz::Require(IsGround(*surface, Clip), "nothing is drawn outside the clip");
    return 0;
}
