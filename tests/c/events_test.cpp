// Events on their way to a callback, and what the callback may do.
#include "c_grid.h"

#include "vornix/vornix_constants.h"

#include <functional>
#include <stdexcept>

using namespace vornix::test;

namespace {

// A grid whose events go to a function.
class Host {
public:
    using Handler = std::function<void(std::int32_t number, vornix_value* arguments, std::size_t count)>;

    Host()
    {
        vornix_grid_options options = Options();
        options.callback
            = [](void* user, vornix_grid* from, std::int32_t number, vornix_value* arguments, std::size_t count) {
                  const auto* const host = static_cast<Host*>(user);
                  if (host->grid) {
                      EXPECT_EQ(from, host->grid.get());
                  }
                  if (host->handler)
                      host->handler(number, arguments, count);
              };
        options.user = this;
        grid = MakeSmallGrid(options);
    }

    Handler handler;
    GridPtr grid;
};

TEST(CEvents, BringTheirArguments)
{
    Host host;
    std::vector<std::int32_t> numbers;
    host.handler = [&](std::int32_t number, vornix_value* arguments, std::size_t count) {
        numbers.push_back(number);
        if (number != VORNIX_EVENT_MouseDown)
            return;
        ASSERT_EQ(count, 4u);
        EXPECT_EQ(arguments[0].type, VORNIX_I16);
        EXPECT_EQ(arguments[0].as.integer, 2);
        EXPECT_EQ(arguments[1].as.integer, 5);
        EXPECT_EQ(arguments[2].type, VORNIX_SINGLE);
        EXPECT_EQ(arguments[2].as.number, 10.5);
        EXPECT_EQ(arguments[3].as.number, -3);
        EXPECT_EQ(arguments[3].owned, 0);
    };
    ASSERT_EQ(vornix_host_mouse_down(host.grid.get(), 10.5, -3, 2, 5), 0);
    EXPECT_EQ(numbers, std::vector<std::int32_t> { VORNIX_EVENT_MouseDown });
}

TEST(CEvents, TakeBackWhatIsByReference)
{
    Host host;
    host.handler = [](std::int32_t, vornix_value* arguments, std::size_t) {
        arguments[0] = Text(u"66");
        arguments[1] = Integer(3);
    };
    std::int16_t code = 65;
    ASSERT_EQ(vornix_host_key_down(host.grid.get(), &code, 0), 0);
    EXPECT_EQ(code, 66);
}

TEST(CEvents, KeepAnArgumentThatDoesNotFitAndFailTheCall)
{
    Host host;
    int error = 0;
    vornix_value wrong = Text(u"x");
    host.handler = [&](std::int32_t, vornix_value* arguments, std::size_t) { arguments[0] = wrong; };
    const auto keyDown = [&] {
        std::int16_t code = 65;
        error = vornix_host_key_down(host.grid.get(), &code, 0);
        return code;
    };
    EXPECT_EQ(keyDown(), 65);
    EXPECT_EQ(error, 13);
    wrong = Integer(40000);
    EXPECT_EQ(keyDown(), 65);
    EXPECT_EQ(error, 6);
    wrong = Typed(1234);
    EXPECT_EQ(keyDown(), 65);
    EXPECT_EQ(error, 13);
    wrong = Integer(7);
    EXPECT_EQ(keyDown(), 7);
    EXPECT_EQ(error, 0) << "a failure belongs to one call";
}

TEST(CEvents, FailTheOutermostCall)
{
    Host host;
    int inner = -1;
    host.handler = [&](std::int32_t number, vornix_value* arguments, std::size_t) {
        if (number == VORNIX_EVENT_KeyDown)
            inner = vornix_host_click(host.grid.get());
        if (number == VORNIX_EVENT_KeyPress)
            arguments[0] = Text(u"x");
        if (number == VORNIX_EVENT_Click) {
            std::int16_t character = 65;
            EXPECT_EQ(vornix_host_key_press(host.grid.get(), &character), 0);
        }
    };
    std::int16_t code = 65;
    EXPECT_EQ(vornix_host_key_down(host.grid.get(), &code, 0), 13);
    EXPECT_EQ(inner, 0);
}

TEST(CEvents, TakeOverValuesThatAreOwned)
{
    Host host;
    host.handler = [&](std::int32_t, vornix_value* arguments, std::size_t) {
        vornix_value cell[] = { Integer(0), Integer(1) };
        // A text that the grid gave: "1".
        ASSERT_EQ(vornix_invoke(host.grid.get(), "Text", VORNIX_GET, cell, 2, &arguments[0]), 0);
        EXPECT_EQ(arguments[0].owned, 1);
    };
    std::int16_t code = 65;
    ASSERT_EQ(vornix_host_key_down(host.grid.get(), &code, 0), 0);
    EXPECT_EQ(code, 1);
}

TEST(CEvents, MayEmptyTheirValues)
{
    Host host;
    host.handler = [](std::int32_t, vornix_value* arguments, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            vornix_value_clear(&arguments[i]);
    };
    std::int16_t code = 65;
    ASSERT_EQ(vornix_host_key_down(host.grid.get(), &code, 0), 0);
    EXPECT_EQ(code, 0) << "an empty value is the number 0";
}

TEST(CEvents, RefuseTheEndOfTheirGrid)
{
    Host host;
    int error = 0;
    host.handler = [&](std::int32_t, vornix_value*, std::size_t) { error = vornix_grid_destroy(host.grid.get()); };
    ASSERT_EQ(vornix_host_click(host.grid.get()), 0);
    EXPECT_EQ(error, 5);
    EXPECT_EQ(Get(host.grid.get(), "Rows").ToInteger(), 4);
}

TEST(CEvents, MayCloseTheirGrid)
{
    Host host;
    int afterClose = 0;
    host.handler = [&](std::int32_t, vornix_value*, std::size_t) {
        EXPECT_EQ(vornix_host_close(host.grid.get()), 0);
        afterClose = Invoke(host.grid.get(), "Rows", VORNIX_GET, {});
    };
    EXPECT_EQ(vornix_host_click(host.grid.get()), 0);
    EXPECT_EQ(afterClose, 5);
    EXPECT_EQ(vornix_host_click(host.grid.get()), 5);
}

TEST(CEvents, MayEndAnotherGrid)
{
    Host host;
    GridPtr other = MakeGrid();
    host.handler = [&](std::int32_t, vornix_value*, std::size_t) { other.reset(); };
    EXPECT_EQ(vornix_host_click(host.grid.get()), 0);
    EXPECT_EQ(other, nullptr);
}

TEST(CEvents, DrawCellsThroughTheHost)
{
    Host host;
    std::vector<std::pair<std::int64_t, std::int64_t>> cells;
    host.handler = [&](std::int32_t number, vornix_value* arguments, std::size_t count) {
        if (number != VORNIX_EVENT_DrawCell)
            return;
        ASSERT_EQ(count, 4u);
        cells.emplace_back(arguments[0].as.integer, arguments[1].as.integer);
        EXPECT_NE(arguments[2].as.integer, 0);
        EXPECT_EQ(arguments[3].type, VORNIX_BOOLEAN);
        arguments[3] = Boolean(true);
    };
    ASSERT_EQ(Let(host.grid.get(), "CellStyle", { Integer(2), Integer(1), Integer(vxCustomDraw) }), 0);
    ASSERT_FALSE(cells.empty());
    EXPECT_EQ(cells.front(), (std::pair<std::int64_t, std::int64_t> { 2, 1 }));
}

TEST(CEvents, MayWriteIntoTheArrayThatIsBeingLoaded)
{
    Host host;
    ASSERT_EQ(Let(host.grid.get(), "ColStyle", { Integer(0), Integer(vxCustomDraw) }), 0);
    vornix_array* array = nullptr;
    ASSERT_EQ(vornix_array_create(3, 2, &array), 0);
    const vornix_value loaded = Text(u"loaded");
    ASSERT_EQ(vornix_array_set(array, 0, 1, &loaded), 0);
    int writes = 0;
    host.handler = [&](std::int32_t, vornix_value*, std::size_t) {
        const vornix_value later = Text(u"later");
        EXPECT_EQ(vornix_array_set(array, 0, 1, &later), 0);
        ++writes;
    };
    vornix_value argument = Typed(VORNIX_ARRAY);
    argument.as.array = array;
    ASSERT_EQ(Call(host.grid.get(), "LoadFromArray", { argument }), 0);
    vornix_array_release(array);
    EXPECT_GT(writes, 0) << "cells are drawn by the host";
    EXPECT_EQ(Get(host.grid.get(), "Text", { Integer(5), Integer(0) }).ToText(), u"loaded");
}

TEST(CEvents, ComeWhileAGridIsBeingMadeAndCannotCallItYet)
{
    struct Record {
        int events = 0;
        vornix_grid* grid = nullptr;
    } record;
    const vornix_bag_entry bag[] = { { "VirtualPageSize", Integer(10) } };
    vornix_grid_options options = Options();
    options.has_bag = 1;
    options.bag = bag;
    options.bag_count = 1;
    options.user = &record;
    options.callback = [](void* user, vornix_grid* grid, std::int32_t, vornix_value*, std::size_t) {
        auto& written = *static_cast<Record*>(user);
        ++written.events;
        written.grid = grid;
        EXPECT_EQ(vornix_grid_destroy(grid), 5);
    };
    const GridPtr grid = MakeGrid(options);
    EXPECT_EQ(record.events, 1) << "PopulateGrid";
    EXPECT_EQ(record.grid, grid.get());
}

TEST(CEvents, StopWithTheirCallback)
{
    Host host;
    int events = 0;
    host.handler = [&](std::int32_t, vornix_value*, std::size_t) { ++events; };
    ASSERT_EQ(vornix_set_event_callback(host.grid.get(), nullptr, nullptr), 0);
    ASSERT_EQ(vornix_host_click(host.grid.get()), 0);
    EXPECT_EQ(events, 0);
}

TEST(CEvents, OfACallbackThatThrowsFailTheCall)
{
    Host host;
    host.handler = [](std::int32_t, vornix_value*, std::size_t) { throw std::runtime_error("from the host"); };
    EXPECT_EQ(vornix_host_click(host.grid.get()), 5);
    EXPECT_STREQ(vornix_last_error(), "from the host");
}

TEST(CEvents, AreWrittenDownHandledOrNot)
{
    const GridPtr grid = MakeSmallGrid();
    ASSERT_EQ(vornix_host_clear_log(grid.get()), 0);
    ASSERT_EQ(vornix_host_mouse_down(grid.get(), 601.5, 402, 1, 4), 0) << "behind the cells, which have events too";
    std::size_t count = 0;
    ASSERT_EQ(vornix_host_log_count(grid.get(), &count), 0);
    ASSERT_EQ(count, 1u);
    std::int32_t number = 0;
    vornix_value arguments[2];
    ASSERT_EQ(vornix_host_log_at(grid.get(), 0, &number, arguments, 2, &count), 0);
    EXPECT_EQ(number, VORNIX_EVENT_MouseDown);
    EXPECT_EQ(count, 4u);
    EXPECT_EQ(arguments[0].as.integer, 1);
    EXPECT_EQ(arguments[1].as.integer, 4);
    EXPECT_EQ(vornix_host_log_at(grid.get(), 0, &number, nullptr, 0, &count), 0);
    EXPECT_EQ(vornix_host_log_at(grid.get(), 0, &number, nullptr, 1, &count), 5);
    EXPECT_EQ(vornix_host_log_at(grid.get(), 1, &number, arguments, 2, &count), 9);
}

TEST(CEvents, AreDescribedByTheirNumbers)
{
    ASSERT_EQ(vornix_event_count(), 36u);
    for (std::int32_t number = 1; number <= 36; ++number) {
        const vornix_event_info* const event = vornix_describe_event(number);
        ASSERT_NE(event, nullptr);
        EXPECT_EQ(event->number, number);
        EXPECT_LE(event->argument_count, 8u);
    }
    EXPECT_STREQ(vornix_describe_event(VORNIX_EVENT_CellChange)->name, "CellChange");
    EXPECT_EQ(vornix_describe_event(VORNIX_EVENT_CellChange)->arguments[2].by_reference, 1);
    EXPECT_EQ(vornix_describe_event(0), nullptr);
    EXPECT_EQ(vornix_describe_event(37), nullptr);
}

} // namespace
