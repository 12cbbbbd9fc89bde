// Basic types of the interface: integers, colours, rectangles, fonts and the enums of the properties.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace vornix {

using i16 = std::int16_t;
using i32 = std::int32_t;
using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;

// A host's colour: 0x00BBGGRR, or 0x80000000 + the index of a system colour.
using OleColor = u32;
// A colour ready to draw with: 0x00BBGGRR.
using ColorRef = u32;

// Means "no row" or "no column" in hit tests, in the edit cell and in the paint cache.
inline constexpr i16 NoIndex = -32767;

struct Point {
    int x = 0;
    int y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    int width = 0;
    int height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

// Half open, in pixels: the right and bottom edges lie outside.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    Size GetSize() const { return { Width(), Height() }; }
    bool IsEmpty() const { return right <= left || bottom <= top; }
    Rect Inflated(int dx, int dy) const { return { left - dx, top - dy, right + dx, bottom + dy }; }
    friend bool operator==(const Rect&, const Rect&) = default;
};

// A font as a host hands it over. Size is in points.
struct FontObject {
    std::u16string Name;
    double Size = 9;
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethrough = false;
    i16 Charset = 1;
};
using FontPtr = std::shared_ptr<const FontObject>;

class PictureObject;
using PicturePtr = std::shared_ptr<const PictureObject>;

enum vxCellModeEnum : i32 {
    vxCellFixed = 0,
    vxCheckBox = 1,
    vxCommandButton = 2,
    vxTextBox = 3,
    vxComboDropDownBox = 4,
    vxComboListBox = 5,
    vxCustom = 6,
    vxPressButton = 7
};

enum vxCellStyleEnum : i32 {
    vxCellFlat = 0,
    vxCellInset = 1,
    vxCellRaised = 2,
    vxCellButton = 3,
    vxCellBox = 4,
    vxCellRoundBox = 5,
    vxCustomDraw = 16
};

enum vxAlignTextEnum : i32 {
    vxTxtDefault = 0,
    vxTxtCenter = 1,
    vxTxtRight = 2,
    vxTxtVCenter = 4,
    vxTxtBottom = 8,
    vxWordBreak = 16,
    vxSingleLine = 32,
    vxNoPrefix = 2048,
    vxWordEllipsis = 262144,
    vxCheck3D = 524288,
    vxAlwaysTop = 1048576,
    vxAlwaysVCenter = 2097152
};

enum vxAlignPictureEnum : i32 {
    vxPicLeft = 0,
    vxPicCenter = 1,
    vxPicRight = 2,
    vxPicTop = 0,
    vxPicVCenter = 4,
    vxPicBottom = 8,
    vxStretch = 16
};

enum vxCellGradientEnum : i32 {
    vxGradientNone = 0,
    vxGradientLR = 1,
    vxGradientRL = 2,
    vxGradientTB = 3,
    vxGradientBT = 4
};

enum vxCellsEnum : i32 { vxNone = 0, vxRow = 1, vxColumn = 2, vxBoth = 3 };

enum vxBorderStyleEnum : i32 { vxNoBorder = 0, vxInset = 1, vxInsetThin = 2 };

enum vxFocusEnum : i32 { vxFocusNone = 0, vxFocusLight = 1, vxFocusHeavy = 2, vxFocusSelect = 3 };

enum vxScrollEnum : i32 { vxNoScrollBar = 0, vxNormalScroll = 1, vxScrollTrack = 2, vxScrollSmooth = 3 };

enum vxScrollBarStyleEnum : i32 { vxSB3D = 0, vxSBFlat = 1, vxSB3DTrack = 2 };

enum vxPictureModeEnum : i32 { vxDefault = 0, vxPicRow = 1, vxPicColumn = 2, vxPicCell = 3 };

enum vxMaskModeEnum : i32 { vxNoMask = 0, vxMaskColor = 1, vxTopLeftPixel = 2 };

enum vxOrderEnum : i32 { vxNoOrder = 0, vxAsc = 1, vxDesc = 2 };

enum vxTypeColEnum : i32 { vxAlphaNum = 0, vxNumeric = 1, vxDate = 2 };

enum vxTextOrKey : i32 { vxText = 0, vxKey = 1 };

} // namespace vornix
