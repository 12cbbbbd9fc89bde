// A hundred thousand calls of a host that means no good: every member, values of every type, nested in its own events.
#include "hostile_values.h"

#include "vornix/vornix_constants.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <set>
#include <string>

using namespace vornix::test;

namespace {

constexpr int Calls = 100000;
constexpr std::uint32_t UsualSeed = 20240229;
constexpr int DeepestCall = 3;
// What a table may grow to when it is wider than a few columns.
constexpr std::int64_t MostRows = 60;
constexpr std::int64_t MostCols = 40;
constexpr std::int64_t MostPixels = 200;

// Another series of calls: VORNIX_HOSTILE_SEED=7 c_library_tests
std::uint32_t Seed()
{
    const char* const wanted = std::getenv("VORNIX_HOSTILE_SEED");
    return wanted ? static_cast<std::uint32_t>(std::strtoul(wanted, nullptr, 10)) : UsualSeed;
}

const std::set<int> Known { 0, 5, 6, 7, 9, 13, 94, 438, 445, 448, 450 };

class HostileHost {
public:
    void Run()
    {
        MakeNewGrid();
        while (calls < Calls && !testing::Test::HasFailure()) {
            if (calls % 256 < DeepestCall)
                Renew();
            AnyCall();
        }
        Finish();
    }

    int calls = 0;
    std::map<int, int> statuses;
    std::set<std::size_t> members;
    std::set<std::int32_t> events;
    int deepest = 0;
    int paints = 0;

private:
    void MakeNewGrid();
    void Renew();
    void Finish();
    void AnyCall();
    void AnyMember();
    void AnyNamed();
    void AnyNotification();
    void AnyInput();
    void AnyEditing();
    void AnyQuestion();
    void MoreQuestions();
    bool IsTooMuch(const vornix_member_info& info, int kind, const Values& arguments);
    Values ArgumentsFor(const vornix_member_info& info, int kind);
    void Count(int status, const char* what);
    void OnEvent(std::int32_t number, vornix_value* arguments, std::size_t count);
    std::int64_t Read(const char* name);

    Chance chance_ { Seed() };
    HostileValues values_ { chance_ };
    vornix_grid* grid_ = nullptr;
    int depth_ = 0;
};

void HostileHost::Count(int status, const char* what)
{
    ++calls;
    ++statuses[status];
    EXPECT_TRUE(Known.contains(status)) << what << ", call " << calls << ": error " << status << ", "
                                        << vornix_last_error();
}

void HostileHost::MakeNewGrid()
{
    const vornix_bag_entry bag[] = { { "VirtualPageSize", Integer(chance_.Between(0, 3)) }, { "Rows", Integer(5) },
        { "Cols", Integer(4) }, { "FixedRows", Integer(1) }, { "FixedCols", Integer(1) } };
    vornix_grid_options options = Options();
    options.width = chance_.Between(1, 160);
    options.height = chance_.Between(1, 100);
    options.scale = chance_.OneIn(4) ? 1.5 : 1;
    options.design = chance_.OneIn(8);
    options.has_bag = 1;
    options.bag = bag;
    options.bag_count = std::size(bag);
    options.user = this;
    options.callback = [](void* user, vornix_grid*, std::int32_t number, vornix_value* arguments, std::size_t count) {
        static_cast<HostileHost*>(user)->OnEvent(number, arguments, count);
    };
    vornix_grid* made = nullptr;
    Count(vornix_grid_create(&options, &made), "vornix_grid_create");
    ASSERT_NE(made, nullptr);
    grid_ = made;
    for (int row = 0; row < 2; ++row)
        Let(grid_, "CellStyle", { Integer(row), Integer(row), Integer(vxCustomDraw) });
}

void HostileHost::Renew()
{
    std::int32_t closed = 0;
    Count(vornix_host_is_closed(grid_, &closed), "vornix_host_is_closed");
    std::int32_t repaints = 0;
    std::int32_t refreshes = 0;
    Count(vornix_host_paint_counts(grid_, &repaints, &refreshes), "vornix_host_paint_counts");
    paints += repaints + refreshes;
    if (!closed && !chance_.OneIn(8)) {
        Count(vornix_host_clear_log(grid_), "vornix_host_clear_log");
        return;
    }
    Count(vornix_grid_destroy(grid_), "vornix_grid_destroy");
    MakeNewGrid();
}

void HostileHost::Finish()
{
    EXPECT_EQ(vornix_grid_destroy(grid_), 0);
    EXPECT_EQ(depth_, 0);
}

// Two thirds are members, half of them by name.
void HostileHost::AnyCall()
{
    switch (chance_.Below(12)) {
    case 0:
        return AnyNotification();
    case 1:
    case 2:
        return AnyInput();
    case 3:
        return AnyQuestion();
    case 4:
    case 5:
        return AnyNamed();
    default:
        return AnyMember();
    }
}

std::int64_t HostileHost::Read(const char* name)
{
    vornix_value value {};
    vornix_invoke(grid_, name, VORNIX_GET, nullptr, 0, &value);
    return value.as.integer;
}

// Tables of a million cells, and cells of a million pixels, would take minutes and show nothing that small ones do not.
bool HostileHost::IsTooMuch(const vornix_member_info& info, int kind, const Values& arguments)
{
    const std::string name = info.name;
    if (name == "LoadFromArray")
        return Read("Rows") > MostRows;
    if (kind != VORNIX_LET || arguments.empty())
        return false;
    const vornix_value& value = arguments.back();
    const bool isInteger = value.type <= VORNIX_I64 || value.type == VORNIX_BOOLEAN;
    const auto isAbove = [&](std::int64_t most) { return !isInteger || value.as.integer > most; };
    // Many rows of few columns, and wide lines, now and then.
    if (name == "Rows" || name == "FixedRows")
        return isAbove(MostRows) && (Read("Cols") + Read("FixedCols") > 3 || !chance_.OneIn(40));
    if (name == "Cols" || name == "FixedCols")
        return isAbove(MostCols);
    if (name.find("Height") != std::string::npos)
        return isAbove(MostPixels);
    return name.find("Width") != std::string::npos && isAbove(MostPixels) && !chance_.OneIn(40);
}

Values HostileHost::ArgumentsFor(const vornix_member_info& info, int kind)
{
    Values arguments;
    for (std::size_t i = 0; i < info.argument_count; ++i)
        arguments.push_back(values_.For(info.arguments[i].type));
    if (kind == VORNIX_LET)
        arguments.push_back(values_.For(info.type));
    if (chance_.OneIn(30))
        arguments.push_back(values_.Any());
    if (chance_.OneIn(30) && !arguments.empty())
        arguments.pop_back();
    return arguments;
}

void HostileHost::AnyMember()
{
    const std::size_t index = chance_.Below(vornix_member_count());
    const vornix_member* const member = vornix_member_at(index);
    const vornix_member_info& info = *vornix_describe_member(member);
    const int kind = chance_.OneIn(100) ? chance_.Between(-1, 4) : chance_.Between(0, 1);
    Values arguments = ArgumentsFor(info, kind);
    if (IsTooMuch(info, kind, arguments))
        return;
    members.insert(index);
    vornix_value result {};
    Count(vornix_invoke_member(grid_, member, kind, arguments.data(), arguments.size(), &result), info.name);
    vornix_value_clear(&result);
    for (vornix_value& argument : arguments)
        vornix_value_clear(&argument);
}

void HostileHost::AnyNamed()
{
    const vornix_member_info& info = *vornix_describe_member(vornix_member_at(chance_.Below(vornix_member_count())));
    const int kind = chance_.Between(0, 2);
    Values arguments = ArgumentsFor(info, kind);
    if (IsTooMuch(info, kind, arguments))
        return;
    std::vector<const char*> names;
    for (std::size_t i = 0; i < info.argument_count && chance_.OneIn(2); ++i)
        names.push_back(chance_.OneIn(20) ? "Nonsense" : info.arguments[chance_.Below(info.argument_count)].name);
    const char* const name = chance_.OneIn(100) ? "\xFF\xC0" : info.name;
    vornix_value result {};
    Count(
        vornix_invoke_named(grid_, name, kind, arguments.data(), arguments.size(), names.data(), names.size(), &result),
        info.name);
    vornix_value_clear(&result);
    for (vornix_value& argument : arguments)
        vornix_value_clear(&argument);
}

void HostileHost::AnyNotification()
{
    switch (chance_.Below(10)) {
    case 0:
        return Count(vornix_host_show(grid_), "show");
    case 1:
        return Count(vornix_host_hide(grid_), "hide");
    case 2:
        return Count(vornix_host_paint(grid_), "paint");
    case 3:
        return Count(vornix_host_enter_focus(grid_), "enter_focus");
    case 4:
        return Count(vornix_host_exit_focus(grid_), "exit_focus");
    case 5:
        return Count(vornix_host_set_user_mode(grid_, chance_.Between(0, 3) != 0), "set_user_mode");
    case 6:
        return Count(vornix_host_resize(grid_, chance_.Between(-1, 160), chance_.Between(-1, 100)), "resize");
    case 7:
        return Count(vornix_host_resize(grid_, chance_.OneIn(2) ? 3000 : 40000, chance_.Between(0, 3)), "resize");
    case 8:
        return Count(chance_.OneIn(20) ? vornix_host_close(grid_) : vornix_host_tick(grid_), "close or tick");
    default:
        return Count(vornix_host_wheel(grid_, chance_.Between(-32768, 32767)), "wheel");
    }
}

void HostileHost::AnyInput()
{
    const float x = values_.Coordinate();
    const float y = values_.Coordinate();
    const auto button = static_cast<std::int16_t>(chance_.OneIn(4) ? values_.Index() : 1);
    const auto shift = static_cast<std::int16_t>(chance_.OneIn(4) ? values_.Index() : 0);
    auto code = static_cast<std::int16_t>(chance_.Between(-5, 300));
    switch (chance_.Below(15)) {
    case 0:
        return Count(vornix_host_mouse_down(grid_, x, y, button, shift), "mouse_down");
    case 1:
        return Count(vornix_host_mouse_move(grid_, x, y, button, shift), "mouse_move");
    case 2:
        return Count(vornix_host_mouse_up(grid_, x, y, button, shift), "mouse_up");
    case 3:
        return Count(vornix_host_click(grid_), "click");
    case 4:
        return Count(vornix_host_dbl_click(grid_), "dbl_click");
    case 5:
        return Count(vornix_host_key_down(grid_, &code, shift), "key_down");
    case 6:
        return Count(vornix_host_key_press(grid_, &code), "key_press");
    case 7:
        return Count(vornix_host_key_up(grid_, &code, shift), "key_up");
    case 8:
        return Count(vornix_host_click_at(grid_, x, y, button, shift), "click_at");
    case 9:
        return Count(vornix_host_dbl_click_at(grid_, x, y, button, shift), "dbl_click_at");
    case 10:
        return Count(vornix_host_drag(grid_, x, y, y, x, button, shift, chance_.Between(-1, 4)), "drag");
    case 11:
        return Count(vornix_host_type(grid_, View(values_.AnyText())), "type");
    case 12:
    case 13:
        return AnyEditing();
    default: {
        static const std::array<const char*, 6> keys { "Left", "F2", "Return", "Tab", "", "\xFF" };
        return Count(chance_.OneIn(2) ? vornix_host_press(grid_, chance_.Of(keys), shift)
                                      : vornix_host_press_code(grid_, code, shift),
            "press");
    }
    }
}

void HostileHost::AnyEditing()
{
    static const std::array<const char*, 4> names { "txtTmp", "cboTmp", "cboTmp", "fraEdit" };
    const char* const name = chance_.Of(names);
    const auto shift = static_cast<std::int16_t>(chance_.OneIn(4) ? values_.Index() : 0);
    auto code = static_cast<std::int16_t>(chance_.Between(-5, 130));
    std::int32_t start = chance_.Between(-5, 40);
    std::int32_t length = chance_.Between(-5, 40);
    vornix_combo_info info {};
    vornix_text text {};
    switch (chance_.Below(10)) {
    case 0:
    case 1:
        return Count(vornix_host_editor_key_down(grid_, name, &code, shift), "editor_key_down");
    case 2:
    case 3:
        return Count(vornix_host_editor_key_press(grid_, name, &code, shift), "editor_key_press");
    case 4:
        return Count(vornix_host_editor_key_up(grid_, name, &code, shift), "editor_key_up");
    case 5:
        return Count(vornix_host_set_editor_text(grid_, name, View(values_.AnyText())), "set_editor_text");
    case 6:
        Count(vornix_host_set_editor_selection(grid_, name, start, length), "set_editor_selection");
        return Count(vornix_host_get_editor_selection(grid_, name, &start, &length), "get_editor_selection");
    case 7:
        return Count(vornix_host_get_editor_text(grid_, name, &text), "get_editor_text");
    case 8:
        Count(vornix_host_combo(grid_, name, &info), "combo");
        return Count(vornix_host_combo_item(grid_, name, start, &text), "combo_item");
    default:
        return Count(vornix_host_click_combo_item(grid_, name, chance_.Between(-1, 3)), "click_combo_item");
    }
}

void HostileHost::AnyQuestion()
{
    const auto index = [&] { return static_cast<std::int16_t>(values_.Index()); };
    switch (chance_.Below(6)) {
    case 0: {
        vornix_text_block block {};
        const std::int16_t row = index();
        Count(vornix_read_texts(grid_, row, index(), index(), index(), &block), "read_texts");
        return vornix_text_block_clear(&block);
    }
    case 1: {
        std::int32_t number = 0;
        std::size_t count = 0;
        std::array<vornix_value, 8> arguments {};
        Count(vornix_host_log_at(grid_, chance_.Below(20), &number, arguments.data(), chance_.Below(9), &count),
            "log_at");
        for (vornix_value& argument : arguments)
            vornix_value_clear(&argument);
        return;
    }
    case 2: {
        std::uint32_t color = 0;
        return Count(vornix_host_pixel(grid_, chance_.Between(-9, 200), chance_.Between(-9, 200), &color), "pixel");
    }
    case 3:
        return Count(vornix_host_set_clipboard(grid_, View(values_.AnyText())), "set_clipboard");
    default:
        return MoreQuestions();
    }
}

void HostileHost::MoreQuestions()
{
    std::size_t count = 0;
    const char* name = nullptr;
    vornix_text text {};
    vornix_text title {};
    switch (chance_.Below(7)) {
    case 0:
        return Count(vornix_host_property_change_at(grid_, chance_.Below(20), &name), "property_change_at");
    case 1:
        return Count(vornix_host_message_box_at(grid_, chance_.Below(2), &title, &text, &name), "message_box_at");
    case 2:
        return Count(vornix_host_get_clipboard(grid_, &text), "get_clipboard");
    case 3:
        return Count(vornix_host_setting_count(grid_, &count), "setting_count");
    case 4: {
        vornix_setting setting { View(values_.AnyText()), View(u"s"), View(u"k"), View(values_.AnyText()) };
        Count(vornix_host_save_setting(grid_, &setting), "save_setting");
        return Count(vornix_host_setting_at(grid_, chance_.Below(4), &setting), "setting_at");
    }
    case 5: {
        const char* const bar = chance_.OneIn(4) ? "cPivot" : chance_.OneIn(2) ? "scrV" : "scrH";
        const std::int32_t held = chance_.Between(-32768, 32767);
        vornix_bar_info info {};
        Count(vornix_host_notify_bar(grid_, bar, chance_.Between(-1, 9), chance_.OneIn(2) ? &held : nullptr), "notify");
        return Count(vornix_host_bar(grid_, bar, &info), "bar");
    }
    default: {
        vornix_child_info info {};
        return Count(vornix_host_child(grid_, chance_.OneIn(2) ? "scrV" : "", &info), "child");
    }
    }
}

void HostileHost::OnEvent(std::int32_t number, vornix_value* arguments, std::size_t count)
{
    events.insert(number);
    if (grid_ == nullptr || depth_ == DeepestCall)
        return;
    ++depth_;
    deepest = std::max(deepest, depth_);
    if (chance_.OneIn(3)) {
        EXPECT_EQ(vornix_grid_destroy(grid_), 5);
    }
    for (int calling = chance_.Between(0, 2); calling > 0; --calling)
        AnyCall();
    for (std::size_t i = 0; i < count; ++i) {
        if (chance_.OneIn(3))
            arguments[i] = values_.Any();
    }
    --depth_;
}

TEST(CHostileCalls, EndInAResultOrAnErrorNumber)
{
    HostileHost host;
    host.Run();
    EXPECT_GE(host.calls, Calls);
    EXPECT_GT(host.paints, Calls / 20) << "tables that are seen";
    EXPECT_EQ(host.members.size(), vornix_member_count()) << "every member was called";
    EXPECT_EQ(host.deepest, DeepestCall);
    EXPECT_GT(host.statuses[0], Calls / 5) << "calls that do something";
    for (const int error : { 5, 6, 9, 13, 94, 438, 445, 448, 450 })
        EXPECT_GT(host.statuses[error], 0) << "error " << error;
    for (const int event : { VORNIX_EVENT_MouseDown, VORNIX_EVENT_KeyDown, VORNIX_EVENT_Click, VORNIX_EVENT_DrawCell,
             VORNIX_EVENT_PopulateGrid })
        EXPECT_TRUE(host.events.contains(event)) << "event " << event;
}

} // namespace
