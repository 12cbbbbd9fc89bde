// Making grids and ending them, and the container around them.
#include "c_grid.h"

#include <limits>
#include <map>
#include <string>

using namespace vornix::test;

namespace {

TEST(CGrid, IsMadeWithTheUsualSizeWithoutOptions)
{
    vornix_grid* grid = nullptr;
    ASSERT_EQ(vornix_grid_create(nullptr, &grid), 0);
    std::int32_t width = 0;
    std::int32_t height = 0;
    ASSERT_EQ(vornix_host_image_size(grid, &width, &height), 0);
    EXPECT_EQ(width, 640);
    EXPECT_EQ(height, 480);
    std::int32_t mode = 0;
    ASSERT_EQ(vornix_host_get_user_mode(grid, &mode), 0);
    EXPECT_EQ(mode, 1);
    EXPECT_EQ(vornix_grid_destroy(grid), 0);
    EXPECT_EQ(vornix_grid_destroy(nullptr), 0);
    EXPECT_EQ(vornix_grid_create(nullptr, nullptr), 5);
}

TEST(CGrid, TakesSizeScaleAndMode)
{
    vornix_grid_options options = Options();
    options.width = 101;
    options.height = 50;
    options.scale = 2;
    options.design = 1;
    const GridPtr grid = MakeGrid(options);
    std::int32_t width = 0;
    std::int32_t height = 0;
    ASSERT_EQ(vornix_host_image_size(grid.get(), &width, &height), 0);
    EXPECT_EQ(width, 202);
    EXPECT_EQ(height, 100);
    std::int32_t mode = 1;
    ASSERT_EQ(vornix_host_get_user_mode(grid.get(), &mode), 0);
    EXPECT_EQ(mode, 0);
    ASSERT_EQ(vornix_host_set_user_mode(grid.get(), 1), 0);
    ASSERT_EQ(vornix_host_get_user_mode(grid.get(), &mode), 0);
    EXPECT_EQ(mode, 1);
}

TEST(CGrid, RefusesOptionsThatAreNone)
{
    vornix_grid* grid = nullptr;
    const auto create = [&](auto change) {
        vornix_grid_options options = Options();
        change(options);
        return vornix_grid_create(&options, &grid);
    };
    EXPECT_EQ(create([](auto& options) { options.size = 8; }), 5);
    EXPECT_EQ(create([](auto& options) { options.width = -1; }), 5);
    EXPECT_EQ(create([](auto& options) { options.height = 40000; }), 5);
    EXPECT_EQ(create([](auto& options) { options.scale = 5; }), 5);
    EXPECT_EQ(create([](auto& options) { options.scale = std::numeric_limits<double>::quiet_NaN(); }), 5);
    EXPECT_EQ(create([](auto& options) { options.has_bag = 1, options.bag_count = 1; }), 5);
    EXPECT_EQ(create([](auto& options) { options.setting_count = 1; }), 5);
    EXPECT_EQ(grid, nullptr);
}

TEST(CGrid, ReadsItsBag)
{
    const vornix_bag_entry bag[]
        = { { "Rows", Integer(7) }, { "Caption", Text(u"Kept") }, { "AltColorEnabled", Boolean(true) } };
    vornix_grid_options options = Options();
    options.has_bag = 1;
    options.bag = bag;
    options.bag_count = 3;
    const GridPtr grid = MakeGrid(options);
    EXPECT_EQ(Get(grid.get(), "Rows").ToInteger(), 7);
    EXPECT_EQ(Get(grid.get(), "Caption").ToText(), u"Kept");
    EXPECT_EQ(Get(grid.get(), "AltColorEnabled").ToInteger(), -1);
}

TEST(CGrid, IsNotMadeFromABagThatDoesNotFit)
{
    vornix_grid* grid = nullptr;
    vornix_grid_options options = Options();
    vornix_bag_entry entry { "Rows", Text(u"many") };
    options.has_bag = 1;
    options.bag = &entry;
    options.bag_count = 1;
    EXPECT_EQ(vornix_grid_create(&options, &grid), 13);
    entry.value = Integer(40000);
    EXPECT_EQ(vornix_grid_create(&options, &grid), 6);
    entry.value = Number(1);
    EXPECT_EQ(vornix_grid_create(&options, &grid), 13);
    entry.name = nullptr;
    EXPECT_EQ(vornix_grid_create(&options, &grid), 5);
    EXPECT_EQ(grid, nullptr);
}

TEST(CGrid, KeepsItsSettings)
{
    const vornix_setting given { View(u"app"), View(u"section"), View(u"key"), View(u"value") };
    vornix_grid_options options = Options();
    options.settings = &given;
    options.setting_count = 1;
    const GridPtr grid = MakeGrid(options);
    const vornix_setting more { View(u"app"), View(u"section"), View(u"other"), View(u"") };
    ASSERT_EQ(vornix_host_save_setting(grid.get(), &more), 0);
    std::size_t count = 0;
    ASSERT_EQ(vornix_host_setting_count(grid.get(), &count), 0);
    ASSERT_EQ(count, 2u);
    vornix_setting out {};
    ASSERT_EQ(vornix_host_setting_at(grid.get(), 0, &out), 0);
    EXPECT_EQ(ToString(out.key), u"key");
    EXPECT_EQ(ToString(out.value), u"value");
    ASSERT_EQ(vornix_host_setting_at(grid.get(), 1, &out), 0);
    EXPECT_EQ(ToString(out.key), u"other");
    EXPECT_EQ(vornix_host_setting_at(grid.get(), 2, &out), 9);
}

// Settings as a caller keeps them.
struct KeptSettings {
    std::map<std::u16string, std::u16string> texts;
    std::u16string read;

    static std::u16string NameOf(const vornix_setting& setting)
    {
        return ToString(setting.application) + u'/' + ToString(setting.section) + u'/' + ToString(setting.key);
    }
    static std::int32_t Read(void* user, vornix_setting* setting)
    {
        auto& kept = *static_cast<KeptSettings*>(user);
        const auto found = kept.texts.find(NameOf(*setting));
        if (found == kept.texts.end())
            return 0;
        kept.read = found->second;
        setting->value = View(kept.read);
        return 1;
    }
    static void Write(void* user, const vornix_setting* setting)
    {
        static_cast<KeptSettings*>(user)->texts[NameOf(*setting)] = ToString(setting->value);
    }
    vornix_grid_options GivenTo()
    {
        vornix_grid_options options = Options();
        options.get_setting = Read;
        options.save_setting = Write;
        options.settings_user = this;
        return options;
    }
};

// What the control reads, "none" where there is none.
std::u16string ReadSetting(vornix_grid* grid, std::u16string_view key)
{
    vornix_setting setting { View(u"app"), View(u"section"), View(key), View(u"none") };
    EXPECT_EQ(vornix_host_get_setting(grid, &setting), 0);
    return ToString(setting.value);
}

TEST(CGrid, ReadsAndWritesTheSettingsThatItsCallerKeeps)
{
    KeptSettings kept;
    const GridPtr grid = MakeGrid(kept.GivenTo());
    const GridPtr other = MakeGrid(kept.GivenTo());
    EXPECT_EQ(ReadSetting(grid.get(), u"key"), u"none");
    kept.texts[u"app/section/key"] = u"from the caller";
    EXPECT_EQ(ReadSetting(grid.get(), u"key"), u"from the caller");
    const vornix_setting setting { View(u"app"), View(u"section"), View(u"key"), View(u"from the grid") };
    ASSERT_EQ(vornix_host_save_setting(grid.get(), &setting), 0);
    EXPECT_EQ(kept.texts.at(u"app/section/key"), u"from the grid");
    EXPECT_EQ(ReadSetting(other.get(), u"key"), u"from the grid");
    kept.texts[u"app/section/key"] = u"";
    EXPECT_EQ(ReadSetting(grid.get(), u"key"), u"");
    std::size_t count = 1;
    ASSERT_EQ(vornix_host_setting_count(grid.get(), &count), 0);
    EXPECT_EQ(count, 0u);
}

TEST(CGrid, ReadsTheSettingsThatItKeepsItself)
{
    const vornix_setting given { View(u"app"), View(u"section"), View(u"key"), View(u"value") };
    vornix_grid_options options = Options();
    options.settings = &given;
    options.setting_count = 1;
    const GridPtr grid = MakeGrid(options);
    EXPECT_EQ(ReadSetting(grid.get(), u"key"), u"value");
    EXPECT_EQ(ReadSetting(grid.get(), u"other"), u"none");
    EXPECT_EQ(vornix_host_get_setting(grid.get(), nullptr), 5);
}

TEST(CGrid, TakesColorsOfItsBagWithAndWithoutASign)
{
    const auto colorOf = [](std::int64_t given) {
        const vornix_bag_entry entry { "BackColor", Integer(given, VORNIX_I64) };
        vornix_grid_options options = Options();
        options.has_bag = 1;
        options.bag = &entry;
        options.bag_count = 1;
        const GridPtr grid = MakeGrid(options);
        return static_cast<std::uint32_t>(Get(grid.get(), "BackColor").ToInteger());
    };
    EXPECT_EQ(colorOf(0x8000000F), 0x8000000Fu);
    EXPECT_EQ(colorOf(static_cast<std::int32_t>(0x8000000F)), 0x8000000Fu);
    EXPECT_EQ(colorOf(0xFFFFFFFF), 0xFFFFFFFFu);
    for (const std::int64_t beyond : { std::int64_t { 1 } << 32, -(std::int64_t { 1 } << 31) - 1 }) {
        const vornix_bag_entry entry { "BackColor", Integer(beyond, VORNIX_I64) };
        vornix_grid_options options = Options();
        options.has_bag = 1;
        options.bag = &entry;
        options.bag_count = 1;
        vornix_grid* grid = nullptr;
        EXPECT_EQ(vornix_grid_create(&options, &grid), 6);
        EXPECT_EQ(grid, nullptr);
    }
}

TEST(CGrid, IsErrorFiveAfterItsClose)
{
    const GridPtr grid = MakeSmallGrid();
    std::int32_t closed = 1;
    ASSERT_EQ(vornix_host_is_closed(grid.get(), &closed), 0);
    EXPECT_EQ(closed, 0);
    ASSERT_EQ(vornix_host_close(grid.get()), 0);
    ASSERT_EQ(vornix_host_is_closed(grid.get(), &closed), 0);
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(Invoke(grid.get(), "Rows", VORNIX_GET, {}), 5);
    EXPECT_EQ(vornix_host_click_at(grid.get(), 5, 5, 1, 0), 5);
    EXPECT_EQ(vornix_host_resize(grid.get(), 100, 100), 5);
    std::uint32_t color = 0;
    EXPECT_EQ(vornix_host_pixel(grid.get(), 1, 1, &color), 0) << "the picture stays";
    EXPECT_EQ(vornix_host_close(grid.get()), 0);
}

TEST(CGrid, IsErrorFiveAfterItsEnd)
{
    vornix_grid* grid = nullptr;
    ASSERT_EQ(vornix_grid_create(nullptr, &grid), 0);
    ASSERT_EQ(vornix_grid_destroy(grid), 0);
    EXPECT_EQ(Invoke(grid, "Rows", VORNIX_GET, {}), 5);
    EXPECT_STREQ(vornix_last_error(), "The grid has been destroyed");
    EXPECT_EQ(vornix_grid_destroy(grid), 5);
    const GridPtr other = MakeGrid();
    EXPECT_NE(other.get(), grid) << "a handle rests before it stands for another grid";
}

TEST(CGrid, RefusesNullWhereSomethingMustBeGiven)
{
    const GridPtr grid = MakeSmallGrid();
    vornix_value value = Integer(1);
    EXPECT_EQ(vornix_invoke(nullptr, "Rows", VORNIX_GET, nullptr, 0, &value), 5);
    EXPECT_EQ(vornix_invoke(grid.get(), nullptr, VORNIX_GET, nullptr, 0, &value), 5);
    EXPECT_EQ(vornix_invoke(grid.get(), "Rows", VORNIX_LET, nullptr, 1, nullptr), 5);
    EXPECT_EQ(vornix_invoke_member(grid.get(), nullptr, VORNIX_GET, nullptr, 0, &value), 5);
    EXPECT_EQ(vornix_host_child(grid.get(), "scrV", nullptr), 5);
    EXPECT_EQ(vornix_host_pixel(grid.get(), 0, 0, nullptr), 5);
    EXPECT_EQ(vornix_host_save_png(grid.get(), nullptr), 5);
    EXPECT_EQ(vornix_read_texts(grid.get(), 0, 0, 0, 0, nullptr), 5);
    EXPECT_EQ(vornix_host_key_down(grid.get(), nullptr, 0), 5);
    EXPECT_EQ(vornix_host_log_count(grid.get(), nullptr), 5);
}

TEST(CGrid, RefusesCallsThatThereAreNot)
{
    const GridPtr grid = MakeSmallGrid();
    EXPECT_EQ(Invoke(grid.get(), "Rows", 3, {}), 5);
    EXPECT_EQ(Invoke(grid.get(), "Rows", -1, {}), 5);
    EXPECT_EQ(Invoke(grid.get(), "Text", VORNIX_GET, Values(17, Integer(0))), 450);
    EXPECT_EQ(Invoke(grid.get(), "", VORNIX_GET, {}), 438);
    const auto* const beside
        = reinterpret_cast<const vornix_member*>(reinterpret_cast<const char*>(vornix_member_at(0)) + 1);
    EXPECT_EQ(vornix_invoke_member(grid.get(), beside, VORNIX_GET, nullptr, 0, nullptr), 438);
    EXPECT_EQ(vornix_invoke_member(
                  grid.get(), reinterpret_cast<const vornix_member*>(&grid), VORNIX_GET, nullptr, 0, nullptr),
        438);
}

TEST(CGrid, TellsOfItsChildWindows)
{
    const GridPtr grid = MakeSmallGrid();
    for (const char* const name :
        { "scrV", "scrH", "txtTmp", "cboTmp", "fraEdit", "cPivot", "picSplitCol", "picSplitMove" }) {
        vornix_child_info info {};
        EXPECT_EQ(vornix_host_child(grid.get(), name, &info), 0) << name;
        EXPECT_EQ(info.enabled, 1) << name;
        EXPECT_EQ(info.visible, 0) << name;
    }
    vornix_child_info info {};
    EXPECT_EQ(vornix_host_child(grid.get(), "scrX", &info), 5);
}

TEST(CGrid, TellsOfItsBars)
{
    const GridPtr grid = MakeSmallGrid();
    ASSERT_EQ(Let(grid.get(), "Rows", { Integer(500) }), 0);
    vornix_bar_info info {};
    ASSERT_EQ(vornix_host_bar(grid.get(), "scrV", &info), 0);
    EXPECT_EQ(info.min, 1) << "behind the fixed row";
    EXPECT_EQ(info.value, 1);
    EXPECT_EQ(info.page, 1);
    EXPECT_GT(info.max, 400);
    EXPECT_EQ(vornix_host_bar(grid.get(), "scrH", &info), 0);
    EXPECT_EQ(vornix_host_bar(grid.get(), "txtTmp", &info), 438);
    EXPECT_EQ(vornix_host_bar(grid.get(), "picSplitCol", &info), 438);
    EXPECT_EQ(vornix_host_bar(grid.get(), "scrX", &info), 5);
    EXPECT_EQ(vornix_host_bar(grid.get(), nullptr, &info), 5);
    EXPECT_EQ(vornix_host_bar(grid.get(), "scrV", nullptr), 5);
}

TEST(CGrid, HearsWhatIsDoneToItsBars)
{
    const GridPtr grid = MakeSmallGrid();
    ASSERT_EQ(Let(grid.get(), "Rows", { Integer(500) }), 0);
    ASSERT_EQ(vornix_host_notify_bar(grid.get(), "scrV", VORNIX_SB_LINEDOWN, nullptr), 0);
    ASSERT_EQ(vornix_host_notify_bar(grid.get(), "scrV", VORNIX_SB_ENDSCROLL, nullptr), 0);
    EXPECT_EQ(Get(grid.get(), "FirstRow").ToInteger(), 1);
    ASSERT_EQ(Let(grid.get(), "ScrollVBar", { Integer(2) }), 0);
    const std::int32_t held = 40;
    ASSERT_EQ(vornix_host_notify_bar(grid.get(), "scrV", VORNIX_SB_THUMBTRACK, &held), 0);
    EXPECT_EQ(Get(grid.get(), "FirstRow").ToInteger(), 39);
    vornix_bar_info info {};
    ASSERT_EQ(vornix_host_bar(grid.get(), "scrV", &info), 0);
    EXPECT_EQ(info.value, 40);
    ASSERT_EQ(vornix_host_notify_bar(grid.get(), "scrV", VORNIX_SB_TOP, nullptr), 0);
    EXPECT_EQ(Get(grid.get(), "FirstRow").ToInteger(), 0);
    for (const std::int32_t code : { -1, 9 })
        EXPECT_EQ(vornix_host_notify_bar(grid.get(), "scrV", code, nullptr), 5) << code;
    EXPECT_EQ(vornix_host_notify_bar(grid.get(), "fraEdit", VORNIX_SB_TOP, nullptr), 438);
    EXPECT_EQ(vornix_host_notify_bar(grid.get(), nullptr, VORNIX_SB_TOP, nullptr), 5);
    ASSERT_EQ(vornix_host_close(grid.get()), 0);
    EXPECT_EQ(vornix_host_notify_bar(grid.get(), "scrV", VORNIX_SB_TOP, nullptr), 5);
}

TEST(CGrid, LooksForThePointerAtATick)
{
    const GridPtr grid = MakeSmallGrid();
    const auto lastEvent = [&] {
        std::size_t count = 0;
        EXPECT_EQ(vornix_host_log_count(grid.get(), &count), 0);
        std::int32_t number = 0;
        vornix_value arguments[8] {};
        std::size_t given = 0;
        EXPECT_EQ(vornix_host_log_at(grid.get(), count - 1, &number, arguments, 8, &given), 0);
        return std::string(vornix_describe_event(number)->name);
    };
    ASSERT_EQ(vornix_host_mouse_move(grid.get(), 5, 5, 0, 0), 0);
    ASSERT_EQ(vornix_host_tick(grid.get()), 0);
    EXPECT_EQ(lastEvent(), "CellOver");
    ASSERT_EQ(vornix_host_click_at(grid.get(), -5, -5, 1, 0), 0) << "where the control hears nothing of it";
    EXPECT_EQ(lastEvent(), "CellOver");
    ASSERT_EQ(vornix_host_tick(grid.get()), 0);
    EXPECT_EQ(lastEvent(), "CellOut");
}

TEST(CGrid, HasAClipboardAndAPointer)
{
    const GridPtr grid = MakeSmallGrid();
    ASSERT_EQ(vornix_host_set_clipboard(grid.get(), View(u"copied")), 0);
    vornix_text text {};
    ASSERT_EQ(vornix_host_get_clipboard(grid.get(), &text), 0);
    EXPECT_EQ(ToString(text), u"copied");
    const char* shape = nullptr;
    ASSERT_EQ(vornix_host_pointer_shape(grid.get(), &shape), 0);
    EXPECT_STREQ(shape, "default");
}

TEST(CGrid, GivesItsPicture)
{
    vornix_grid_options options = Options();
    options.width = 30;
    options.height = 20;
    const GridPtr grid = MakeGrid(options);
    std::vector<std::uint8_t> rgba(30 * 20 * 4);
    EXPECT_EQ(vornix_host_image(grid.get(), rgba.data(), rgba.size() - 1), 5);
    ASSERT_EQ(vornix_host_image(grid.get(), rgba.data(), rgba.size()), 0);
    std::uint32_t color = 0;
    ASSERT_EQ(vornix_host_pixel(grid.get(), 7, 11, &color), 0);
    const std::size_t at = (11 * 30 + 7) * 4;
    EXPECT_EQ(rgba[at], color & 0xFF);
    EXPECT_EQ(rgba[at + 1], color >> 8 & 0xFF);
    EXPECT_EQ(rgba[at + 2], color >> 16 & 0xFF);
    EXPECT_EQ(rgba[at + 3], 255);
    ASSERT_EQ(vornix_host_pixel(grid.get(), 30, 0, &color), 0);
    EXPECT_EQ(color, 0xFFFFFFFFu);
    EXPECT_EQ(vornix_host_save_png(grid.get(), "/nowhere/at/all.png"), 75);
}

TEST(CGrid, CountsWhatItPaintsAndReports)
{
    const GridPtr grid = MakeSmallGrid();
    ASSERT_EQ(vornix_host_clear_log(grid.get()), 0);
    ASSERT_EQ(Let(grid.get(), "BackColor", { Integer(0x102030) }), 0);
    ASSERT_EQ(Let(grid.get(), "Text", { Integer(0), Integer(0), Text(u"new") }), 0);
    std::int32_t repaints = 0;
    std::int32_t refreshes = 0;
    ASSERT_EQ(vornix_host_paint_counts(grid.get(), &repaints, &refreshes), 0);
    EXPECT_EQ(repaints, 1);
    EXPECT_EQ(refreshes, 1);
    std::size_t count = 0;
    ASSERT_EQ(vornix_host_property_change_count(grid.get(), &count), 0);
    ASSERT_EQ(count, 1u);
    const char* name = nullptr;
    ASSERT_EQ(vornix_host_property_change_at(grid.get(), 0, &name), 0);
    EXPECT_STREQ(name, "BackColor");
    EXPECT_EQ(vornix_host_property_change_at(grid.get(), 1, &name), 9);
    std::size_t boxes = 1;
    ASSERT_EQ(vornix_host_message_box_count(grid.get(), &boxes), 0);
    EXPECT_EQ(boxes, 0u);
    vornix_text title {};
    vornix_text text {};
    const char* icon = nullptr;
    EXPECT_EQ(vornix_host_message_box_at(grid.get(), 0, &title, &text, &icon), 9);
}

TEST(CGrid, ReadsManyTextsAtOnce)
{
    const GridPtr grid = MakeSmallGrid();
    const std::u16string odd = { u'a', 0xD83D, 0xDE00, 0xDC00, 0xD800 };
    ASSERT_EQ(Let(grid.get(), "Text", { Integer(1), Integer(0), Text(odd) }), 0);
    ASSERT_EQ(Let(grid.get(), "Text", { Integer(2), Integer(0), Text(u"") }), 0);
    vornix_text_block block {};
    ASSERT_EQ(vornix_read_texts(grid.get(), 1, 0, 2, 1, &block), 0);
    ASSERT_EQ(block.count, 4u);
    EXPECT_EQ(
        std::vector<std::uint32_t>(block.lengths, block.lengths + 4), (std::vector<std::uint32_t> { 4, 0, 2, 2 }));
    EXPECT_EQ(std::vector<std::uint32_t>(block.code_points, block.code_points + block.code_point_count),
        (std::vector<std::uint32_t> { 'a', 0x1F600, 0xDC00, 0xD800, '1', '1', '2', '1' }));
    vornix_text_block_clear(&block);
    EXPECT_EQ(block.count, 0u);
    vornix_text_block_clear(&block);

    ASSERT_EQ(vornix_read_texts(grid.get(), 2, 0, 1, 1, &block), 0);
    EXPECT_EQ(block.count, 0u);
    vornix_text_block_clear(&block);
    EXPECT_EQ(vornix_read_texts(grid.get(), 0, 0, 100, 0, &block), 9);
    EXPECT_EQ(vornix_read_texts(grid.get(), -1, -1, 4, 3, &block), 0) << "fixed and filler cells are cells";
    EXPECT_EQ(block.count, 30u);
    vornix_text_block_clear(&block);
    vornix_text_block_clear(nullptr);
}

TEST(CGrid, TakesWhatAPersonDoes)
{
    const GridPtr grid = MakeSmallGrid();
    std::int16_t code = 65;
    EXPECT_EQ(vornix_host_key_down(grid.get(), &code, 0), 0);
    EXPECT_EQ(code, 65);
    EXPECT_EQ(vornix_host_key_press(grid.get(), &code), 0);
    EXPECT_EQ(vornix_host_key_up(grid.get(), &code, 0), 0);
    EXPECT_EQ(vornix_host_mouse_move(grid.get(), 5, 5, 0, 0), 0);
    EXPECT_EQ(vornix_host_mouse_down(grid.get(), 5, 5, 1, 0), 0);
    EXPECT_EQ(vornix_host_mouse_up(grid.get(), 5, 5, 1, 0), 0);
    EXPECT_EQ(vornix_host_click(grid.get()), 0);
    EXPECT_EQ(vornix_host_dbl_click(grid.get()), 0);
    EXPECT_EQ(vornix_host_click_at(grid.get(), 5, 5, 1, 0), 0);
    EXPECT_EQ(vornix_host_dbl_click_at(grid.get(), 5, 5, 2, 1), 0);
    EXPECT_EQ(vornix_host_drag(grid.get(), 5, 5, 50, 50, 1, 0, 3), 0);
    EXPECT_EQ(vornix_host_type(grid.get(), View(u"ab")), 0);
    EXPECT_EQ(vornix_host_press(grid.get(), "Left", 0), 0);
    EXPECT_EQ(vornix_host_press(grid.get(), "Nonsense", 0), 5);
    EXPECT_EQ(vornix_host_press_code(grid.get(), 113, 0), 0);
    EXPECT_EQ(vornix_host_wheel(grid.get(), 120), 0);
    EXPECT_EQ(vornix_host_tick(grid.get()), 0);
    for (const auto lifecycle :
        { vornix_host_hide, vornix_host_show, vornix_host_paint, vornix_host_enter_focus, vornix_host_exit_focus })
        EXPECT_EQ(lifecycle(grid.get()), 0);
    EXPECT_EQ(vornix_host_resize(grid.get(), 320, 200), 0);
    EXPECT_EQ(vornix_host_resize(grid.get(), -1, 200), 5);
    EXPECT_EQ(Get(grid.get(), "GetScaleWidth").ToNumber(), 320);
}

} // namespace
