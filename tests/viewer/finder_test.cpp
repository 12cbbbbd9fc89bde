#include "finder.h"

#include "present.h"

#include "vornix/event_handlers.h"
#include "vornix/headless_container.h"

#include <gmock/gmock.h>

using namespace vornix;
using namespace vornix::viewer;

namespace {

HeadlessOptions WithEvents(VornixEvents& events)
{
    HeadlessOptions options;
    options.events = &events;
    return options;
}

class Desk {
public:
    Desk()
    {
        handlers.OnSearchResult = [this](i16 IdSearch, i16& Pos) { finder.Take(IdSearch, Pos); };
        Table table;
        table.Columns()
            = { { u"city" }, { u"n", ColumnKind::Integer }, { u"coast", ColumnKind::Boolean, u"yes", u"no" } };
        const auto add = [&](std::u16string_view city, std::u16string_view number) {
            table.AppendRow(std::vector<Field> { { city }, { number }, { u"-1" } });
        };
        add(u"Oslo", u"12");
        add(u"Cologne", u"21");
        add(u"a * b", u"100");
        add(u"OSLOFJORD", u"");
        PresentTable(grid, container.WindowDevice(), container.Colors(), table);
    }

    EventHandlers handlers;
    HeadlessContainer container { WithEvents(handlers) };
    Vornix& grid = container.Grid();
    Finder finder { grid };
};

} // namespace

TEST(Finder, FindsTextsInEveryColumnWithoutRegardToCase)
{
    Desk desk;
    desk.finder.Search(u"oslo");
    EXPECT_EQ(desk.finder.Count(), 2);
    EXPECT_EQ(desk.finder.PlaceOf({ 0, 0 }), 1);
    EXPECT_EQ(desk.finder.PlaceOf({ 3, 0 }), 2);
    EXPECT_EQ(desk.finder.PlaceOf({ 1, 0 }), 0);
    desk.finder.Search(u"lo");
    EXPECT_EQ(desk.finder.Count(), 3) << "anywhere in a text";
    desk.finder.Search(u"1");
    EXPECT_EQ(desk.finder.Count(), 3) << "a check box is no text";
    EXPECT_EQ(desk.finder.PlaceOf({ 1, 1 }), 2);
}

TEST(Finder, TakesEveryCharacterAsItIs)
{
    Desk desk;
    desk.finder.Search(u"*");
    EXPECT_EQ(desk.finder.Count(), 1);
    desk.finder.Search(u"**");
    EXPECT_EQ(desk.finder.Count(), 0);
    desk.finder.Search(u" * ");
    EXPECT_EQ(desk.finder.Count(), 1);
}

TEST(Finder, FindsNothingForNothing)
{
    Desk desk;
    desk.finder.Search(u"o");
    desk.finder.Search(u"");
    EXPECT_EQ(desk.finder.Count(), 0);
    EXPECT_EQ(desk.finder.Next({ 0, 0 }), std::nullopt);
    EXPECT_EQ(desk.finder.Previous({ 0, 0 }), std::nullopt);
    EXPECT_EQ(desk.finder.At({ 0, 0 }), std::nullopt);
}

TEST(Finder, GoesRoundInBothDirections)
{
    Desk desk;
    desk.finder.Search(u"lo");
    using Cell = FoundCell;
    EXPECT_EQ(desk.finder.Next({ 0, 0 }), (Cell { 1, 0 }));
    EXPECT_EQ(desk.finder.Next({ 1, 0 }), (Cell { 3, 0 }));
    EXPECT_EQ(desk.finder.Next({ 3, 0 }), (Cell { 0, 0 })) << "at the other end";
    EXPECT_EQ(desk.finder.Next({ 1, 2 }), (Cell { 3, 0 })) << "from a cell between";
    EXPECT_EQ(desk.finder.Previous({ 0, 0 }), (Cell { 3, 0 }));
    EXPECT_EQ(desk.finder.Previous({ 3, 0 }), (Cell { 1, 0 }));
    EXPECT_EQ(desk.finder.Previous({ 1, 2 }), (Cell { 1, 0 }));
    EXPECT_EQ(desk.finder.At({ 1, 0 }), (Cell { 1, 0 }));
    EXPECT_EQ(desk.finder.At({ 1, 1 }), (Cell { 3, 0 }));
    EXPECT_EQ(desk.finder.Next({ -1, 2 }), (Cell { 0, 0 })) << "from the header";
    EXPECT_EQ(desk.finder.Next({ NoIndex, NoIndex }), (Cell { 0, 0 })) << "without a current cell";
}
