// Fonts, pictures, objects, arrays and surfaces.
#include "c_grid.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <limits>

using namespace vornix::test;

namespace {

vornix_font_info FontInfo(std::u16string_view name, double size)
{
    vornix_font_info info {};
    info.name = View(name);
    info.size = size;
    info.charset = 1;
    return info;
}

struct ArrayDeleter {
    void operator()(vornix_array* array) const { vornix_array_release(array); }
};
using ArrayPtr = std::unique_ptr<vornix_array, ArrayDeleter>;

ArrayPtr MakeArray(std::size_t columns, std::size_t records)
{
    vornix_array* array = nullptr;
    EXPECT_EQ(vornix_array_create(columns, records, &array), 0);
    return ArrayPtr(array);
}

vornix_value ArrayValue(const ArrayPtr& array)
{
    vornix_value value = Typed(VORNIX_ARRAY);
    value.as.array = array.get();
    return value;
}

class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& name)
        : path_(std::filesystem::temp_directory_path() / (std::to_string(getpid()) + "_" + name))
    {
    }
    ~TemporaryFile() { std::filesystem::remove(path_); }
    std::string Path() const { return path_.string(); }

private:
    std::filesystem::path path_;
};

TEST(CFonts, GoIntoAGridAndComeOutAgain)
{
    const GridPtr grid = MakeSmallGrid();
    vornix_font_info info = FontInfo(u"DejaVu Sans Mono", 11.5);
    info.italic = 1;
    vornix_font* font = nullptr;
    ASSERT_EQ(vornix_font_create(&info, &font), 0);
    vornix_value value = Typed(VORNIX_FONT);
    value.as.font = font;
    ASSERT_EQ(Let(grid.get(), "Font", { value }), 0);
    vornix_font_release(font);

    const Result result = Get(grid.get(), "Font");
    ASSERT_EQ(result.Type(), VORNIX_FONT);
    vornix_font_info out {};
    ASSERT_EQ(vornix_font_describe(result.Value().as.font, &out), 0);
    EXPECT_EQ(ToString(out.name), u"DejaVu Sans Mono");
    EXPECT_EQ(out.size, 11.5);
    EXPECT_EQ(out.italic, 1);
    EXPECT_EQ(out.bold, 0);
    EXPECT_EQ(out.charset, 1);
}

TEST(CFonts, NeedASizeAndANumberForTheCharacterSet)
{
    vornix_font* font = nullptr;
    for (const double size : { 0.0, -1.0, std::numeric_limits<double>::quiet_NaN() }) {
        const vornix_font_info info = FontInfo(u"Sans", size);
        EXPECT_EQ(vornix_font_create(&info, &font), 5) << size;
    }
    vornix_font_info info = FontInfo(u"Sans", 40000);
    EXPECT_EQ(vornix_font_create(&info, &font), 6);
    info.size = 9;
    info.charset = 256;
    EXPECT_EQ(vornix_font_create(&info, &font), 5);
    EXPECT_EQ(font, nullptr);
}

TEST(CFonts, AreCounted)
{
    const vornix_font_info info = FontInfo(u"Sans", 9);
    vornix_font* font = nullptr;
    ASSERT_EQ(vornix_font_create(&info, &font), 0);
    vornix_font_retain(font);
    vornix_font_release(font);
    vornix_font_info out {};
    EXPECT_EQ(vornix_font_describe(font, &out), 0);
    vornix_font_release(font);
    vornix_font_retain(nullptr);
    vornix_font_release(nullptr);
}

TEST(CPictures, AreBitmapsUnlessTheyAreTransparent)
{
    const std::uint8_t opaque[] = { 255, 0, 0, 255, 0, 255, 0, 255 };
    const std::uint8_t clear[] = { 255, 0, 0, 255, 0, 255, 0, 254 };
    vornix_picture* bitmap = nullptr;
    vornix_picture* icon = nullptr;
    ASSERT_EQ(vornix_picture_from_rgba(2, 1, opaque, 8, &bitmap), 0);
    ASSERT_EQ(vornix_picture_from_rgba(1, 2, clear, 8, &icon), 0);
    vornix_picture_info info {};
    ASSERT_EQ(vornix_picture_describe(bitmap, &info), 0);
    EXPECT_EQ(info.type, 1);
    EXPECT_NE(info.handle, 0);
    EXPECT_EQ(info.pixel_width, 2);
    EXPECT_EQ(info.pixel_height, 1);
    EXPECT_EQ(info.width, 53);
    EXPECT_EQ(info.height, 26);
    ASSERT_EQ(vornix_picture_describe(icon, &info), 0);
    EXPECT_EQ(info.type, 3);
    vornix_picture_release(bitmap);
    vornix_picture_release(icon);
}

TEST(CPictures, OfNoPixelsAreEmpty)
{
    vornix_picture* picture = nullptr;
    ASSERT_EQ(vornix_picture_from_rgba(0, 0, nullptr, 0, &picture), 0);
    vornix_picture_info info {};
    ASSERT_EQ(vornix_picture_describe(picture, &info), 0);
    EXPECT_EQ(info.handle, 0);
    EXPECT_EQ(info.type, 0);
    vornix_picture_release(picture);
}

TEST(CPictures, NeedAsManyBytesAsPixels)
{
    vornix_picture* picture = nullptr;
    const std::uint8_t rgba[8] = {};
    EXPECT_EQ(vornix_picture_from_rgba(2, 2, rgba, 8, &picture), 5);
    EXPECT_EQ(vornix_picture_from_rgba(-1, -2, rgba, 8, &picture), 5);
    EXPECT_EQ(vornix_picture_from_rgba(2, 1, nullptr, 8, &picture), 5);
    EXPECT_EQ(vornix_picture_from_rgba(2, 1, rgba, 8, nullptr), 5);
    EXPECT_EQ(picture, nullptr);
}

TEST(CPictures, ComeFromPngFilesThatASurfaceWrote)
{
    const TemporaryFile file("surface.png");
    vornix_surface* surface = nullptr;
    ASSERT_EQ(vornix_surface_create(5, 3, 2, &surface), 0);
    ASSERT_EQ(vornix_surface_save_png(surface, file.Path().c_str()), 0);
    vornix_surface_destroy(surface);
    vornix_picture* picture = nullptr;
    ASSERT_EQ(vornix_picture_load(file.Path().c_str(), &picture), 0) << vornix_last_error();
    vornix_picture_info info {};
    ASSERT_EQ(vornix_picture_describe(picture, &info), 0);
    EXPECT_EQ(info.pixel_width, 10);
    EXPECT_EQ(info.pixel_height, 6);
    vornix_picture_release(picture);
}

TEST(CPictures, ThatCannotBeLoadedAreErrors)
{
    vornix_picture* picture = nullptr;
    EXPECT_EQ(vornix_picture_load("/nowhere/at/all.png", &picture), 53);
    EXPECT_EQ(vornix_picture_load("/", &picture), 75);
    const TemporaryFile file("no_picture.png");
    std::ofstream(file.Path()) << "no picture";
    EXPECT_EQ(vornix_picture_load(file.Path().c_str(), &picture), 481);
    EXPECT_EQ(vornix_picture_load(nullptr, &picture), 5);
    EXPECT_EQ(picture, nullptr);
}

TEST(CObjects, AreReleasedWhenTheLastHolderLetsGo)
{
    int released = 0;
    vornix_object* object = nullptr;
    ASSERT_EQ(vornix_object_create(
                  &released, [](void* pointer) { ++*static_cast<int*>(pointer); }, &object),
        0);
    EXPECT_EQ(vornix_object_pointer(object), &released);
    vornix_object_retain(object);
    vornix_object_release(object);
    EXPECT_EQ(released, 0);
    vornix_object_release(object);
    EXPECT_EQ(released, 1);
    EXPECT_EQ(vornix_object_pointer(nullptr), nullptr);
    EXPECT_EQ(vornix_object_create(nullptr, nullptr, &object), 5);
}

TEST(CArrays, BecomeTheRowsOfAGrid)
{
    const GridPtr grid = MakeGrid();
    const ArrayPtr array = MakeArray(4, 2);
    const std::uint32_t codePoints[] = { 'a', 0x1F600, 0xD800 };
    const std::uint32_t lengths[] = { 2, 1 };
    ASSERT_EQ(vornix_array_set_texts(array.get(), 0, codePoints, 3, lengths, 2), 0);
    const std::int64_t integers[] = { -12345, 5 };
    ASSERT_EQ(vornix_array_set_integers(array.get(), 1, VORNIX_CURRENCY, integers, 2), 0);
    const double numbers[] = { 2, 3.5 };
    ASSERT_EQ(vornix_array_set_numbers(array.get(), 2, VORNIX_DATE, numbers, 2), 0);
    const vornix_value values[] = { Boolean(true), Typed(VORNIX_NULL) };
    ASSERT_EQ(vornix_array_set_values(array.get(), 3, values, 2), 0);
    const int before = static_cast<int>(Get(grid.get(), "Rows").ToInteger());
    ASSERT_EQ(Call(grid.get(), "LoadFromArray", { ArrayValue(array) }), 0) << vornix_last_error();

    EXPECT_EQ(Get(grid.get(), "Cols").ToInteger(), 4);
    const auto text = [&](int record, int col) {
        return Get(grid.get(), "Text", { Integer(before + record), Integer(col) }).ToText();
    };
    EXPECT_EQ(text(0, 0), u"a\U0001F600");
    EXPECT_EQ(text(1, 0), std::u16string(1, 0xD800));
    EXPECT_EQ(text(0, 1), u"-1.2345");
    EXPECT_EQ(text(1, 1), u"0.0005");
    EXPECT_EQ(text(0, 2), u"1/1/1900");
    EXPECT_EQ(text(1, 2), u"1/2/1900 12:00:00 PM");
    EXPECT_EQ(text(0, 3), u"True");
    EXPECT_EQ(text(1, 3), u"");
}

TEST(CArrays, TakeSingleValuesAndNullTexts)
{
    const GridPtr grid = MakeGrid();
    const ArrayPtr array = MakeArray(1, 2);
    const std::uint32_t lengths[] = { UINT32_MAX, 0 };
    ASSERT_EQ(vornix_array_set_texts(array.get(), 0, nullptr, 0, lengths, 2), 0);
    EXPECT_EQ(Call(grid.get(), "LoadFromArray", { ArrayValue(array), Boolean(false) }), 94);
    const vornix_value value = Integer(7);
    ASSERT_EQ(vornix_array_set(array.get(), 0, 0, &value), 0);
    EXPECT_EQ(Call(grid.get(), "LoadFromArray", { ArrayValue(array), Boolean(false) }), 0);
}

TEST(CArrays, StayAsTheyWereWhenAValueDoesNotFit)
{
    const GridPtr grid = MakeGrid();
    const ArrayPtr array = MakeArray(2, 2);
    const std::int64_t good[] = { 1, 2 };
    ASSERT_EQ(vornix_array_set_integers(array.get(), 0, VORNIX_I16, good, 2), 0);
    const std::int64_t wide[] = { 1, 40000 };
    EXPECT_EQ(vornix_array_set_integers(array.get(), 0, VORNIX_I16, wide, 2), 6);
    EXPECT_EQ(vornix_array_set_integers(array.get(), 0, VORNIX_TEXT, good, 2), 13);
    EXPECT_EQ(vornix_array_set_integers(array.get(), 2, VORNIX_I16, good, 2), 9);
    EXPECT_EQ(vornix_array_set_integers(array.get(), 0, VORNIX_I16, good, 1), 5);
    const double number = 1;
    EXPECT_EQ(vornix_array_set_numbers(array.get(), 0, VORNIX_I16, &number, 2), 13);
    const std::uint32_t beyond[] = { 0x110000 };
    const std::uint32_t lengths[] = { 1, 0 };
    EXPECT_EQ(vornix_array_set_texts(array.get(), 0, beyond, 1, lengths, 2), 5);
    const std::uint32_t tooLong[] = { 1, 1 };
    EXPECT_EQ(vornix_array_set_texts(array.get(), 0, beyond, 1, tooLong, 2), 5);
    const vornix_value values[] = { Integer(1), Typed(99) };
    EXPECT_EQ(vornix_array_set_values(array.get(), 0, values, 2), 13);
    EXPECT_EQ(vornix_array_set(array.get(), 0, 2, values), 9);
    EXPECT_EQ(vornix_array_set(array.get(), 0, 0, nullptr), 5);

    const int before = static_cast<int>(Get(grid.get(), "Rows").ToInteger());
    ASSERT_EQ(Call(grid.get(), "LoadFromArray", { ArrayValue(array) }), 0);
    EXPECT_EQ(Get(grid.get(), "Text", { Integer(before + 1), Integer(0) }).ToText(), u"2");
}

TEST(CArrays, LargerThanMemoryAreRefused)
{
    vornix_array* array = nullptr;
    EXPECT_EQ(vornix_array_create(SIZE_MAX, SIZE_MAX, &array), 7);
    EXPECT_EQ(vornix_array_create(std::size_t { 1 } << 39, std::size_t { 1 } << 39, &array), 7);
    EXPECT_EQ(array, nullptr);
}

TEST(CSurfaces, AreWhiteUntilTheyAreFilled)
{
    vornix_surface* surface = nullptr;
    ASSERT_EQ(vornix_surface_create(4, 3, 1.5, &surface), 0);
    std::uint32_t color = 0;
    ASSERT_EQ(vornix_surface_pixel(surface, 3, 2, &color), 0);
    EXPECT_EQ(color, 0xFFFFFFu);
    ASSERT_EQ(vornix_surface_fill(surface, 0x102030), 0);
    ASSERT_EQ(vornix_surface_pixel(surface, 0, 0, &color), 0);
    EXPECT_EQ(color, 0x102030u);
    ASSERT_EQ(vornix_surface_pixel(surface, 4, 0, &color), 0);
    EXPECT_EQ(color, 0xFFFFFFFFu);
    std::intptr_t hdc = 0;
    ASSERT_EQ(vornix_surface_hdc(surface, &hdc), 0);
    EXPECT_NE(hdc, 0);
    EXPECT_EQ(vornix_surface_save_png(surface, "/nowhere/at/all.png"), 75);
    vornix_surface_destroy(surface);
    vornix_surface_destroy(nullptr);
}

TEST(CSurfaces, AreFilledWithSystemColors)
{
    vornix_surface* surface = nullptr;
    ASSERT_EQ(vornix_surface_create(2, 2, 1, &surface), 0);
    const auto filled = [&](std::uint32_t given) {
        std::uint32_t color = 0;
        EXPECT_EQ(vornix_surface_fill(surface, given), 0);
        EXPECT_EQ(vornix_surface_pixel(surface, 1, 1, &color), 0);
        return color;
    };
    EXPECT_EQ(filled(0x8000000D), 0xD77800u);
    EXPECT_EQ(filled(0x8000000F), 0xF0F0F0u);
    EXPECT_EQ(filled(0x7F102030), 0x102030u);
    EXPECT_EQ(filled(0x800000FF), 0u);
    vornix_surface_destroy(surface);
}

TEST(CSurfaces, HaveASizeAndAScaleWithinLimits)
{
    vornix_surface* surface = nullptr;
    EXPECT_EQ(vornix_surface_create(0, 3, 1, &surface), 5);
    EXPECT_EQ(vornix_surface_create(3, 32768, 1, &surface), 5);
    EXPECT_EQ(vornix_surface_create(3, 3, 0.5, &surface), 5);
    EXPECT_EQ(vornix_surface_create(3, 3, std::numeric_limits<double>::quiet_NaN(), &surface), 5);
    EXPECT_EQ(vornix_surface_create(3, 3, 1, nullptr), 5);
    EXPECT_EQ(surface, nullptr);
}

} // namespace
