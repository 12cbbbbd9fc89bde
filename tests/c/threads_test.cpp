// A grid belongs to the thread that made it.
#include "c_grid.h"

#include "vornix/vornix_constants.h"

#include <future>
#include <memory>
#include <thread>

using namespace vornix::test;

namespace {

// Runs a step on a thread of its own and waits for its end.
template <typename Step> auto OnAnotherThread(Step step)
{
    decltype(step()) result;
    std::thread([&] { result = step(); }).join();
    return result;
}

vornix_object* CountingObject(int& released)
{
    vornix_object* object = nullptr;
    vornix_object_create(
        &released, [](void* pointer) { ++*static_cast<int*>(pointer); }, &object);
    return object;
}

bool HasEnded(vornix_grid* grid)
{
    std::int32_t closed = 0;
    return vornix_host_is_closed(grid, &closed) == 5
        && std::string(vornix_last_error()) == "The grid has been destroyed";
}

TEST(CThreads, RefuseCallsFromOtherThreads)
{
    const GridPtr grid = MakeSmallGrid();
    std::string error;
    const int status = OnAnotherThread([&] {
        const int failure = Let(grid.get(), "Rows", { Integer(9) });
        error = vornix_last_error();
        return failure;
    });
    EXPECT_EQ(status, 5);
    EXPECT_EQ(error, "Called from another thread than the one that made the grid");
    EXPECT_EQ(Get(grid.get(), "Rows").ToInteger(), 4);
    EXPECT_EQ(OnAnotherThread([&] { return vornix_host_close(grid.get()); }), 5);
    std::int32_t closed = 1;
    ASSERT_EQ(vornix_host_is_closed(grid.get(), &closed), 0);
    EXPECT_EQ(closed, 0);
}

TEST(CThreads, EndAGridAtTheNextCallOfItsOwnThread)
{
    vornix_grid* const grid = MakeSmallGrid().release();
    const GridPtr other = MakeGrid();
    ASSERT_EQ(OnAnotherThread([&] { return vornix_grid_destroy(grid); }), 0);
    EXPECT_EQ(OnAnotherThread([&] { return vornix_grid_destroy(grid); }), 5) << "it has been put down already";
    EXPECT_EQ(Get(other.get(), "Rows").Type(), VORNIX_I16);
    EXPECT_TRUE(HasEnded(grid));
}

TEST(CThreads, LetACallEndBeforeTheGridDoes)
{
    struct Host {
        vornix_grid* grid = nullptr;
        int inner = -1;
    } host;
    vornix_grid_options options = Options();
    options.user = &host;
    options.callback = [](void* user, vornix_grid* grid, std::int32_t, vornix_value*, std::size_t) {
        auto& mine = *static_cast<Host*>(user);
        EXPECT_EQ(OnAnotherThread([&] { return vornix_grid_destroy(grid); }), 0);
        mine.inner = Invoke(grid, "Rows", VORNIX_GET, {});
    };
    host.grid = MakeSmallGrid(options).release();
    EXPECT_EQ(vornix_host_click(host.grid), 0);
    EXPECT_EQ(host.inner, 0);
    EXPECT_TRUE(HasEnded(host.grid));
}

TEST(CThreads, EndWhatWasPutDownForThemWhenTheyEnd)
{
    std::promise<vornix_grid*> made;
    std::promise<void> mayEnd;
    std::thread owner([&, wait = mayEnd.get_future()]() mutable {
        made.set_value(MakeSmallGrid().release());
        wait.wait();
    });
    vornix_grid* const grid = made.get_future().get();
    EXPECT_EQ(vornix_grid_destroy(grid), 0);
    EXPECT_FALSE(HasEnded(grid));
    mayEnd.set_value();
    owner.join();
    EXPECT_TRUE(HasEnded(grid));
}

TEST(CThreads, LeaveGridsThatAnyThreadMayEndAfterwards)
{
    vornix_grid* const grid = OnAnotherThread([] { return MakeSmallGrid().release(); });
    EXPECT_EQ(Invoke(grid, "Rows", VORNIX_GET, {}), 5);
    EXPECT_STREQ(vornix_last_error(), "Called from another thread than the one that made the grid");
    EXPECT_EQ(vornix_grid_destroy(grid), 0);
    EXPECT_TRUE(HasEnded(grid));
}

TEST(CThreads, MayNotTakeTheGridsOfAThreadBeforeThem)
{
    vornix_grid* const grid = OnAnotherThread([] { return MakeSmallGrid().release(); });
    // The system is free to give the next thread the number of the last one.
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(OnAnotherThread([&] {
            const GridPtr own = MakeGrid();
            return Invoke(grid, "Rows", VORNIX_GET, {});
        }),
            5);
    }
    EXPECT_EQ(vornix_grid_destroy(grid), 0);
}

TEST(CThreads, HaveErrorTextsOfTheirOwn)
{
    EXPECT_EQ(vornix_picture_load("/nowhere", nullptr), 5);
    const std::string mine = vornix_last_error();
    const std::string theirs = OnAnotherThread([] { return std::string(vornix_last_error()); });
    EXPECT_EQ(theirs, "");
    EXPECT_EQ(vornix_last_error(), mine);
}

TEST(CThreads, ShareFontsAndObjects)
{
    int released = 0;
    vornix_object* const object = CountingObject(released);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([object] {
            for (int j = 0; j < 1000; ++j) {
                vornix_object_retain(object);
                vornix_object_release(object);
            }
        });
    }
    for (std::thread& each : threads)
        each.join();
    EXPECT_EQ(released, 0);
    vornix_object_release(object);
    EXPECT_EQ(released, 1);
}

// Fills a grid, paints it and reads it back, many times.
int WorkOnAGrid(int seed)
{
    const GridPtr grid = MakeSmallGrid();
    int failures = 0;
    for (int i = 0; i < 200; ++i) {
        const int row = (seed + i) % 4;
        const std::u16string text(static_cast<std::size_t>(1 + (seed * i) % 17), static_cast<char16_t>(u'a' + i % 26));
        failures += Let(grid.get(), "Text", { Integer(row), Integer(1), Text(text) }) != 0;
        failures += Let(grid.get(), "CellFontSize", { Integer(row), Integer(1), Integer(8 + i % 10) }) != 0;
        failures += Let(grid.get(), "CellStyle", { Integer(row), Integer(0), Integer(i % 6) }) != 0;
        failures += vornix_host_click_at(grid.get(), 30, 30, 1, 0) != 0;
        failures += Get(grid.get(), "Text", { Integer(row), Integer(1) }).ToText() != text;
    }
    return failures;
}

TEST(CThreads, WorkOnGridsOfTheirOwnAtOnce)
{
    std::vector<std::future<int>> works;
    for (int seed = 1; seed <= 4; ++seed)
        works.push_back(std::async(std::launch::async, WorkOnAGrid, seed));
    for (std::future<int>& work : works)
        EXPECT_EQ(work.get(), 0);
}

} // namespace
