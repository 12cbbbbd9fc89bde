#include "check_mark.h"

#include "fill.h"

#include <array>
#include <cstdint>
#include <map>
#include <vector>

namespace vornix {

namespace {

constexpr int BoxUnits = 13;
constexpr int MarkLeft = 3;
constexpr int MarkTop = 3;
constexpr std::array<const char*, 7> Mark {
    "......#",
    ".....##",
    "#...###",
    "##.###.",
    "#####..",
    ".###...",
    "..#....",
};

// The same shape as a strip of constant height between two arms, in sixteenths of a thirteenth of the box.
constexpr int Unit = 16;
constexpr int ShapeLeft = 3 * Unit;
constexpr int ShapeRight = 10 * Unit;
constexpr int KneeX = 11 * Unit / 2;
constexpr int KneeTop = 7 * Unit;
constexpr int ArmHeight = 3 * Unit;

// Points tested along each axis of a pixel.
constexpr int Samples = 8;

void DrawBitmap(const PixelView& view, const Rect& box, u32 pixel)
{
    for (int row = 0; row < static_cast<int>(Mark.size()); ++row) {
        for (int column = 0; Mark[static_cast<std::size_t>(row)][column]; ++column) {
            if (Mark[static_cast<std::size_t>(row)][column] != '#')
                continue;
            const int x = box.left + MarkLeft + column;
            const int y = box.top + MarkTop + row;
            FillDeviceRect(view, { x, y, x + 1, y + 1 }, pixel);
        }
    }
}

// Coordinates in Unit, as fractions over `size` to stay exact.
bool IsInside(std::int64_t x, std::int64_t y, std::int64_t size)
{
    if (x < ShapeLeft * size || x >= ShapeRight * size)
        return false;
    const std::int64_t fromKnee = x < KneeX * size ? KneeX * size - x : x - KneeX * size;
    const std::int64_t top = KneeTop * size - fromKnee;
    return y >= top && y < top + ArmHeight * size;
}

// How many of the pixel's Samples * Samples points lie in the shape of a box of `size` pixels.
int Coverage(int x, int y, int size)
{
    // A sample lies at (2 * (pixel * Samples + k) + 1) / (2 * Samples) pixels.
    const std::int64_t divisor = std::int64_t { 2 * Samples } * size;
    int covered = 0;
    for (int row = 0; row < Samples; ++row) {
        const std::int64_t sampleY = (2LL * (std::int64_t { y } * Samples + row) + 1) * BoxUnits * Unit;
        for (int column = 0; column < Samples; ++column) {
            const std::int64_t sampleX = (2LL * (std::int64_t { x } * Samples + column) + 1) * BoxUnits * Unit;
            covered += IsInside(sampleX, sampleY, divisor) ? 1 : 0;
        }
    }
    return covered;
}

std::vector<u8> CoverageOf(int size)
{
    std::vector<u8> coverage;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x)
            coverage.push_back(static_cast<u8>(Coverage(x, y, size)));
    }
    return coverage;
}

// The coverage of every pixel of a box of `size` pixels, row by row. A column of check boxes asks for the same few
// sizes again and again, so some are kept.
const std::vector<u8>& KeptCoverageOf(int size)
{
    constexpr std::size_t MostKept = 8;
    thread_local std::map<int, std::vector<u8>> kept;
    const auto found = kept.find(size);
    if (found != kept.end())
        return found->second;
    if (kept.size() >= MostKept)
        kept.clear();
    return kept[size] = CoverageOf(size);
}

u32 Mix(u32 below, u32 above, int covered)
{
    constexpr u32 Whole = Samples * Samples;
    u32 mixed = 0xFF000000u;
    for (int shift = 0; shift < 24; shift += 8) {
        const u32 sum = (above >> shift & 0xFF) * static_cast<u32>(covered)
            + (below >> shift & 0xFF) * (Whole - static_cast<u32>(covered));
        mixed |= (sum + Whole / 2) / Whole << shift;
    }
    return mixed;
}

void DrawSmooth(const PixelView& view, const Rect& box, u32 pixel)
{
    const int size = box.Width() < box.Height() ? box.Width() : box.Height();
    const std::vector<u8>& coverage = KeptCoverageOf(size);
    const Rect area = Intersect({ box.left, box.top, box.left + size, box.top + size }, view.clip);
    for (int y = area.top; y < area.bottom; ++y) {
        u32* const row = view.Row(y);
        const u8* const covered = coverage.data() + std::ptrdiff_t { y - box.top } * size - box.left;
        for (int x = area.left; x < area.right; ++x)
            row[x] = Mix(row[x], pixel, covered[x]);
    }
}

} // namespace

void DrawCheckMark(const PixelView& view, const Rect& box, u32 pixel)
{
    if (box.Width() == BoxUnits && box.Height() == BoxUnits)
        DrawBitmap(view, box, pixel);
    else
        DrawSmooth(view, box, pixel);
}

} // namespace vornix
