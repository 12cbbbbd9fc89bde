#include "c_grid.h"

#include <functional>
#include <thread>

namespace vornix::test {
namespace {

class CScrollBar : public testing::Test {
protected:
    CScrollBar()
    {
        EXPECT_EQ(vornix_scroll_bar_create(nullptr, &bar), 0);
        EXPECT_EQ(vornix_scroll_bar_set_callback(bar, &CScrollBar::OnEvent, this), 0);
    }
    ~CScrollBar() override { EXPECT_EQ(vornix_scroll_bar_destroy(bar), 0); }

    std::int32_t Call(const char* name, Values arguments = {})
    {
        return vornix_scroll_bar_invoke(bar, name, VORNIX_CALL, arguments.data(), arguments.size(), nullptr);
    }
    std::int32_t Let(const char* name, vornix_value value)
    {
        return vornix_scroll_bar_invoke(bar, name, VORNIX_LET, &value, 1, nullptr);
    }
    std::int64_t Number(const char* name)
    {
        vornix_value result {};
        EXPECT_EQ(vornix_scroll_bar_invoke(bar, name, VORNIX_GET, nullptr, 0, &result), 0);
        return result.as.integer;
    }
    std::int32_t Notify(std::int32_t code) { return vornix_scroll_bar_notify(bar, code, nullptr); }

    vornix_scroll_bar* bar = nullptr;
    std::vector<std::string> said;
    std::function<void(vornix_value*)> handler;

private:
    static void OnEvent(
        void* user, vornix_scroll_bar* /*bar*/, std::int32_t number, vornix_value* arguments, std::size_t count)
    {
        auto& test = *static_cast<CScrollBar*>(user);
        std::string line = number == VORNIX_SCROLL_BAR_CHANGE ? "Change" : "Scroll";
        for (std::size_t i = 0; i < count; ++i)
            line += ' ' + std::to_string(arguments[i].as.integer);
        test.said.push_back(line);
        if (test.handler)
            test.handler(arguments);
    }
};

TEST_F(CScrollBar, HasMembersByName)
{
    EXPECT_EQ(Number("max"), 100);
    EXPECT_EQ(Let("Value", Integer(40)), 0);
    EXPECT_EQ(Number("Value"), 40);
    EXPECT_EQ(Call("SetInfo", { Integer(1), Integer(9), Integer(1) }), 0);
    EXPECT_EQ(Number("Value"), 9);
    EXPECT_EQ(Call("SetInfo", { Integer(1) }), 450);
    EXPECT_EQ(Let("Max", Integer(3)), 438);
    EXPECT_EQ(Call("Rows"), 438);
    EXPECT_EQ(Let("Value", Text(u"many")), 13);
    EXPECT_EQ(vornix_scroll_bar_invoke(bar, "Value", 7, nullptr, 0, nullptr), 5);
    EXPECT_EQ(vornix_scroll_bar_invoke(bar, nullptr, VORNIX_GET, nullptr, 0, nullptr), 5);
    EXPECT_EQ(vornix_scroll_bar_invoke(bar, "SetInfo", VORNIX_CALL, nullptr, 3, nullptr), 5);
    EXPECT_TRUE(said.empty());
}

TEST_F(CScrollBar, RaisesEventsWhoseValueIsTakenBack)
{
    EXPECT_EQ(Notify(VORNIX_SB_LINEDOWN), 0);
    EXPECT_TRUE(said.empty()) << "nothing before Subclass";
    ASSERT_EQ(Call("Subclass"), 0);
    handler = [](vornix_value* arguments) { arguments[0] = Integer(60, VORNIX_I16); };
    EXPECT_EQ(Notify(VORNIX_SB_PAGEDOWN), 0);
    EXPECT_EQ(Number("Value"), 60);
    handler = nullptr;
    const std::int32_t held = 33;
    EXPECT_EQ(vornix_scroll_bar_notify(bar, VORNIX_SB_THUMBTRACK, &held), 0);
    EXPECT_EQ(Number("Value"), 33);
    EXPECT_EQ(said, (std::vector<std::string> { "Change 1 1", "Scroll 33" }));
    EXPECT_EQ(Notify(9), 5);
}

TEST_F(CScrollBar, AValueThatIsNoneFailsTheCall)
{
    ASSERT_EQ(Call("Subclass"), 0);
    handler = [](vornix_value* arguments) { arguments[0] = Text(u"many"); };
    EXPECT_EQ(Notify(VORNIX_SB_LINEDOWN), 13);
    handler = nullptr;
    EXPECT_EQ(Notify(VORNIX_SB_LINEDOWN), 0) << "the next one does not";
}

TEST_F(CScrollBar, CannotBeDestroyedInItsOwnEvent)
{
    ASSERT_EQ(Call("Subclass"), 0);
    handler = [this](vornix_value*) { EXPECT_EQ(vornix_scroll_bar_destroy(bar), 5); };
    EXPECT_EQ(Notify(VORNIX_SB_LINEDOWN), 0);
    EXPECT_EQ(said.size(), 1u);
}

TEST_F(CScrollBar, BelongsToItsThread)
{
    std::thread other([&] { EXPECT_EQ(Notify(VORNIX_SB_LINEDOWN), 5); });
    other.join();
}

TEST_F(CScrollBar, IsSavedAndReadAgain)
{
    ASSERT_EQ(Call("SetInfo", { Integer(-3), Integer(7), Integer(1) }), 0);
    vornix_bag_entry entries[3] {};
    std::size_t count = 0;
    ASSERT_EQ(vornix_scroll_bar_save(bar, entries, 3, &count), 0);
    ASSERT_EQ(count, 3u);
    vornix_scroll_bar_options options {};
    options.size = sizeof options;
    options.has_bag = 1;
    options.bag = entries;
    options.bag_count = count;
    vornix_scroll_bar* other = nullptr;
    ASSERT_EQ(vornix_scroll_bar_create(&options, &other), 0);
    vornix_value result {};
    ASSERT_EQ(vornix_scroll_bar_invoke(other, "Min", VORNIX_GET, nullptr, 0, &result), 0);
    EXPECT_EQ(result.as.integer, -3);
    EXPECT_EQ(vornix_scroll_bar_destroy(other), 0);
    EXPECT_EQ(vornix_scroll_bar_save(bar, nullptr, 0, &count), 0);
    EXPECT_EQ(vornix_scroll_bar_save(bar, nullptr, 1, &count), 5);
}

TEST_F(CScrollBar, HasItsLimits)
{
    EXPECT_EQ(vornix_scroll_bar_resize(bar, 300, 17), 0);
    EXPECT_EQ(vornix_scroll_bar_resize(bar, -1, 17), 5);
    vornix_scroll_bar_options options {};
    vornix_scroll_bar* other = nullptr;
    EXPECT_EQ(vornix_scroll_bar_create(&options, &other), 5) << "the size of the options";
    options.size = sizeof options;
    options.length = 40000;
    EXPECT_EQ(vornix_scroll_bar_create(&options, &other), 5);
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(vornix_scroll_bar_create(nullptr, nullptr), 5);
    EXPECT_EQ(vornix_scroll_bar_destroy(nullptr), 0);
    EXPECT_EQ(vornix_scroll_bar_notify(nullptr, 1, nullptr), 5);
}

} // namespace
} // namespace vornix::test
