// Sorting and searching from outside: settings by name, hits through the callback.
#include "c_grid.h"

#include "vornix/vornix_constants.h"

#include <functional>

using namespace vornix::test;

namespace {

class CSortSearch : public testing::Test {
protected:
    CSortSearch()
    {
        vornix_grid_options options = Options();
        options.callback = [](void* user, vornix_grid*, std::int32_t number, vornix_value* arguments, std::size_t) {
            auto* const test = static_cast<CSortSearch*>(user);
            if (number != VORNIX_EVENT_SearchResult)
                return;
            test->ids.push_back(static_cast<int>(arguments[0].as.integer));
            test->hits.push_back(static_cast<int>(arguments[1].as.integer));
            if (test->steer)
                test->steer(arguments[1]);
        };
        options.user = this;
        grid = MakeSmallGrid(options);
    }

    void Write(int row, std::u16string_view text)
    {
        ASSERT_EQ(Let(grid.get(), "Text", { Integer(row), Integer(0), Text(text) }), 0);
    }
    std::vector<std::u16string> Column()
    {
        std::vector<std::u16string> texts;
        for (int row = 0; row < 4; ++row)
            texts.push_back(Get(grid.get(), "Text", { Integer(row), Integer(0) }).ToText());
        return texts;
    }
    int Search(std::u16string_view text, std::u16string_view wildcard)
    {
        Result result;
        EXPECT_EQ(Invoke(grid.get(), "SearchRow", VORNIX_CALL,
                      { Integer(vxText), Integer(0), Text(text), Integer(7), Text(wildcard) }, &result),
            0)
            << vornix_last_error();
        EXPECT_EQ(result.Type(), VORNIX_I16);
        return static_cast<int>(result.ToInteger());
    }

    std::vector<int> ids;
    std::vector<int> hits;
    std::function<void(vornix_value& Pos)> steer;
    GridPtr grid;
};

TEST_F(CSortSearch, ASortWithoutKeysShowsAMessage)
{
    ASSERT_EQ(Call(grid.get(), "Sort"), 0);
    std::size_t count = 0;
    ASSERT_EQ(vornix_host_message_box_count(grid.get(), &count), 0);
    ASSERT_EQ(count, 1u);
}

TEST_F(CSortSearch, RowsAreSortedByTheNamedColumns)
{
    const std::u16string_view texts[] = { u"10", u"9", u"word", u"-1" };
    for (int row = 0; row < 4; ++row)
        Write(row, texts[row]);
    ASSERT_EQ(Let(grid.get(), "SortType", { Integer(0), Integer(vxNumeric) }), 0);
    ASSERT_EQ(Let(grid.get(), "SortOrder", { Integer(0), Integer(1) }), 0);
    EXPECT_EQ(Get(grid.get(), "SortOrder", { Integer(0) }).ToInteger(), 1);
    EXPECT_EQ(Get(grid.get(), "SortCriteria", { Integer(0) }).ToInteger(), vxAsc);
    EXPECT_EQ(Get(grid.get(), "SortUseKey", { Integer(0) }).Type(), VORNIX_BOOLEAN);
    ASSERT_EQ(Call(grid.get(), "Sort"), 0);
    EXPECT_EQ(Column(), (std::vector<std::u16string> { u"-1", u"word", u"9", u"10" }));
    ASSERT_EQ(Let(grid.get(), "SortCriteria", { Integer(0), Integer(vxDesc) }), 0);
    ASSERT_EQ(Call(grid.get(), "Sort"), 0);
    EXPECT_EQ(Column(), (std::vector<std::u16string> { u"10", u"9", u"word", u"-1" }));
}

TEST_F(CSortSearch, HitsComeThroughTheCallback)
{
    const std::u16string_view texts[] = { u"ab", u"abc", u"CAB", u"x" };
    for (int row = 0; row < 4; ++row)
        Write(row, texts[row]);
    EXPECT_EQ(Search(u"AB", u""), 1);
    EXPECT_EQ(Search(u"*ab*", u"*"), 3);
    EXPECT_EQ(hits, (std::vector<int> { 0, 0, 1, 2 }));
    EXPECT_EQ(ids, std::vector<int>(4, 7));
}

TEST_F(CSortSearch, TheCallbackSteers)
{
    for (int row = 0; row < 4; ++row)
        Write(row, u"x");
    steer = [](vornix_value& Pos) {
        if (Pos.as.integer == 0)
            Pos = Integer(2);
    };
    EXPECT_EQ(Search(u"x", u""), 2);
    EXPECT_EQ(hits, (std::vector<int> { 0, 3 }));
}

TEST_F(CSortSearch, ErrorsComeBackAsNumbers)
{
    const auto search = [&](std::u16string_view text, int col) {
        return Call(grid.get(), "SearchRow", { Integer(vxText), Integer(col), Text(text), Integer(1), Text(u"*") });
    };
    EXPECT_EQ(search(u"*", 0), 5);
    EXPECT_EQ(search(u"x", 9), 9);
    EXPECT_EQ(search(u"x", 32767), 6);
    ASSERT_EQ(Let(grid.get(), "SortOrder", { Integer(2), Integer(1) }), 0);
    ASSERT_EQ(Let(grid.get(), "Cols", { Integer(1) }), 0);
    EXPECT_EQ(Call(grid.get(), "Sort"), 9);
}

} // namespace
