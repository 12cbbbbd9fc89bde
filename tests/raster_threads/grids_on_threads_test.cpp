#include "vornix/headless_container.h"

#include <gtest/gtest.h>

#include <barrier>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace vornix {
namespace {

constexpr i16 RowCount = 18;
constexpr i16 ColCount = 6;

// What a person would see, and what a file of it holds.
struct Page {
    std::vector<u32> pixels;
    std::string png;
    friend bool operator==(const Page&, const Page&) = default;
};

// Each kind has a table, fonts, pictures and a scale of its own.
using PageKind = int;

PicturePtr Stripes(PageKind kind)
{
    constexpr int Side = 16;
    std::vector<u8> rgba;
    for (int y = 0; y < Side; ++y)
        for (int x = 0; x < Side; ++x)
            for (const int channel : { x * 16, y * 16, kind * 60, (x + y) % 3 ? 255 : 128 })
                rgba.push_back(static_cast<u8>(channel));
    return PictureObject::FromRgba(Side, Side, rgba, kind % 2 ? PictureType::Icon : PictureType::Bitmap);
}

// All threads draw with this one, too.
const PicturePtr& SharedPicture()
{
    static const PicturePtr picture = Stripes(2);
    return picture;
}

VariantArray Records(PageKind kind)
{
    static const std::u16string words[]
        = { u"plain", u"\u0627\u0644\u0633\u0644\u0627\u0645 12", u"\u4E2D\u6587\u8868", u"\u05E9\u05DC\u05D5\u05DD",
              u"\u0928\u092E\u0938\u094D\u0924\u0947", u"e\u0301a\u0308 AVAWA", u"\U0001F600\U0001F680" };
    VariantArray records;
    for (int column = 0; column < ColCount - 2; ++column) {
        std::vector<Variant>& made = records.columns.emplace_back();
        for (int record = 0; record < RowCount; ++record)
            made.emplace_back(words[static_cast<std::size_t>(kind + column + record) % std::size(words)]);
    }
    std::vector<Variant>& dates = records.columns.emplace_back();
    std::vector<Variant>& amounts = records.columns.emplace_back();
    for (int record = 0; record < RowCount; ++record) {
        dates.push_back(Variant::FromDate(Variant(u"3/4/2021").ToDate() + record + kind));
        amounts.push_back(
            Variant::FromDecimal({ static_cast<std::uint64_t>(record + 1) * 12345, 0, 2, kind % 2 != 0 }));
    }
    return records;
}

void GiveFonts(Vornix& grid, PageKind kind)
{
    static const char16_t* const names[]
        = { u"DejaVu Sans", u"Times New Roman", u"Courier New", u"No Such Font", u"Arial", u"" };
    for (i16 row = 0; row < RowCount; ++row)
        for (i16 col = 0; col < ColCount; ++col) {
            const int number = row + col + kind;
            grid.SetCellFontName(row, col, names[static_cast<std::size_t>(number) % std::size(names)]);
            grid.SetCellFontSize(row, col, static_cast<i16>(7 + number % 7));
            grid.SetCellFontBold(row, col, number % 2 == 0);
            grid.SetCellFontItalic(row, col, number % 3 == 0);
            grid.SetCellFontUnderline(row, col, number % 5 == 0);
        }
}

void GiveLooks(Vornix& grid, PageKind kind)
{
    grid.SetPicture(Stripes(kind));
    grid.SetOpacity(60);
    for (i16 row = 0; row < RowCount; ++row) {
        grid.SetCellPicture(row, 1, row % 2 ? SharedPicture() : Stripes(kind + row));
        grid.SetCellGradientMode(row, 2, row % 5);
        grid.SetCellBackColor(row, 2, static_cast<OleColor>(0x1040FF + row * 0x0A0500 + kind));
        grid.SetCellStyle(row, 3, row % 4);
    }
    grid.SetCellMode(0, 0, vxCheckBox);
    grid.SetCellChecked(0, 0, true);
    grid.SetColSpan(2, 2, 2);
}

std::string FileContents(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

Page PageOf(HeadlessContainer& container, const std::string& name)
{
    Page page;
    const DevicePixels pixels = container.Window().Pixels();
    for (int y = 0; y < pixels.height; ++y)
        page.pixels.insert(
            page.pixels.end(), pixels.data + y * pixels.stride, pixels.data + y * pixels.stride + pixels.width);
    const std::filesystem::path path = std::filesystem::path(testing::TempDir()) / name;
    container.SavePng(path.string());
    page.png = FileContents(path);
    std::filesystem::remove(path);
    return page;
}

std::unique_ptr<HeadlessContainer> MakeGrid(PageKind kind)
{
    HeadlessOptions options;
    options.width = 600 + kind * 20;
    options.scale = 1.0 + 0.25 * kind;
    auto container = std::make_unique<HeadlessContainer>(options);
    Vornix& grid = container->Grid();
    grid.SetRows(0);
    grid.SetFixedRows(1);
    grid.LoadFromArray(Records(kind));
    GiveFonts(grid, kind);
    GiveLooks(grid, kind);
    return container;
}

// A file that no other thread, and no other test run at the same time, writes.
std::string FileName(PageKind kind, int thread)
{
    return "grids_on_threads_" + std::to_string(getpid()) + "_" + std::to_string(kind) + "_" + std::to_string(thread)
        + ".png";
}

Page DrawPage(PageKind kind, int thread)
{
    const auto container = MakeGrid(kind);
    // The text of the last change is in the picture as well.
    container->Grid().SetText(1, 0, container->Grid().Text(1, 4));
    container->Resize(580, 400);
    return PageOf(*container, FileName(kind, thread));
}

// Runs `step(thread)` on so many threads that all start at once.
void RunOnThreads(int count, const std::function<void(int thread)>& step)
{
    std::barrier start(count);
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < count; ++thread)
        threads.emplace_back([&, thread] {
            start.arrive_and_wait();
            step(thread);
        });
}

class GridsOnThreads : public testing::TestWithParam<int> { };

} // namespace

// The threads come first, so that they also race for everything that is made on its first use.
TEST_P(GridsOnThreads, DrawWhatOneThreadDraws)
{
    constexpr int Rounds = 3;
    const int count = GetParam();
    std::vector<std::vector<Page>> drawn(static_cast<std::size_t>(count));
    RunOnThreads(count, [&](int thread) {
        for (int round = 0; round < Rounds; ++round)
            drawn[static_cast<std::size_t>(thread)].push_back(DrawPage((thread + round) % count, thread));
    });
    std::vector<Page> expected;
    for (PageKind kind = 0; kind < count; ++kind)
        expected.push_back(DrawPage(kind, count));
    ASSERT_NE(expected[0], expected[1]) << "pages of different kinds look different";
    for (int thread = 0; thread < count; ++thread)
        for (int round = 0; round < Rounds; ++round) {
            const Page& page = drawn[static_cast<std::size_t>(thread)][static_cast<std::size_t>(round)];
            const Page& wanted = expected[static_cast<std::size_t>((thread + round) % count)];
            EXPECT_FALSE(page.png.empty());
            EXPECT_TRUE(page == wanted) << "thread " << thread << ", round " << round;
        }
}

INSTANTIATE_TEST_SUITE_P(TwoAndFour, GridsOnThreads, testing::Values(2, 4), testing::PrintToStringParamName());

TEST(GridsOnThreads, AGridDrawsTheSameOnAnotherThread)
{
    const auto container = MakeGrid(1);
    container->Grid().Refresh();
    const Page here = PageOf(*container, FileName(1, 0));
    Page there;
    std::jthread([&] {
        container->Grid().Refresh();
        there = PageOf(*container, FileName(1, 1));
    }).join();
    EXPECT_TRUE(here == there);
    container->Grid().SetText(0, 1, u"back again");
    EXPECT_FALSE(PageOf(*container, FileName(1, 0)) == here);
}

TEST(GridsOnThreads, EveryDeviceAndPictureHasANumberOfItsOwn)
{
    constexpr int Threads = 4;
    constexpr int Each = 200;
    std::vector<std::set<Hdc>> devices(Threads);
    std::vector<std::set<i32>> pictures(Threads);
    RunOnThreads(Threads, [&](int thread) {
        const auto place = static_cast<std::size_t>(thread);
        std::vector<std::unique_ptr<Surface>> kept;
        for (int number = 0; number < Each; ++number) {
            auto surface = RasterSurface::Create({ 2, 2 }, 1.0, SystemColors());
            const Hdc handle = surface->Handle();
            if (DeviceFromHandle(handle) == surface.get())
                devices[place].insert(handle);
            kept.push_back(std::move(surface));
            pictures[place].insert(Stripes(thread)->Handle());
        }
    });
    std::set<Hdc> allDevices;
    std::set<i32> allPictures;
    for (std::size_t thread = 0; thread < Threads; ++thread) {
        EXPECT_EQ(devices[thread].size(), std::size_t { Each });
        allPictures.merge(pictures[thread]);
        allDevices.merge(devices[thread]);
    }
    EXPECT_EQ(allPictures.size(), std::size_t { Threads * Each });
    EXPECT_EQ(allDevices.size(), std::size_t { Threads * Each });
}

TEST(GridsOnThreads, ThreadsComeAndGo)
{
    const Page expected = DrawPage(0, 0);
    for (int generation = 0; generation < 6; ++generation) {
        Page page;
        std::jthread([&] { page = DrawPage(0, 1); }).join();
        ASSERT_TRUE(page == expected) << generation;
    }
}

TEST(GridsOnThreads, TextsAreReadOnAllThreadsAtOnce)
{
    RunOnThreads(4, [](int thread) {
        for (int number = 0; number < 500; ++number) {
            ASSERT_EQ(Variant(u"5 March 2020").ToDate(), 43895);
            // The year of the clock.
            ASSERT_NO_THROW(Variant(u"5 March").ToDate());
            ASSERT_EQ(Variant(u"1,234.5").ToCurrency(), 12345000) << thread;
        }
    });
}

} // namespace vornix
