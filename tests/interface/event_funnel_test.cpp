#include "vornix/event_funnel.h"

#include "control/event_relay.h"
#include "vornix/event_handlers.h"
#include "vornix/event_log.h"
#include "vornix/members.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace vornix {

class DataObject { };

namespace {

template <typename Parameter> std::remove_reference_t<Parameter> ValueOf(int place)
{
    if constexpr (std::is_same_v<Parameter, DataObject&>)
        return {};
    else
        return static_cast<std::remove_reference_t<Parameter>>(place);
}

// Raises an event with the arguments 1, 2, 3, ...
template <typename... Parameters, int... place>
void Raise(VornixEvents& receiver, void (VornixEvents::*event)(Parameters...), std::integer_sequence<int, place...>)
{
    std::tuple<std::remove_reference_t<Parameters>...> arguments { ValueOf<Parameters>(place + 1)... };
    std::apply([&](auto&... each) { (receiver.*event)(each...); }, arguments);
}

template <typename... Parameters> void Raise(VornixEvents& receiver, void (VornixEvents::*event)(Parameters...))
{
    Raise(receiver, event, std::make_integer_sequence<int, sizeof...(Parameters)>());
}

void RaiseAll(VornixEvents& receiver)
{
    ForEachEvent([&](auto, auto event) { Raise(receiver, event); });
}

template <typename Argument> double NumberOf(const Argument& argument)
{
    if constexpr (std::is_same_v<Argument, DataObject>)
        return 0;
    else
        return static_cast<double>(argument);
}

// Writes down what arrives.
class Arrivals : public EventFunnel<Arrivals> {
public:
    struct Arrival {
        int number;
        std::vector<double> arguments;
        std::vector<bool> isReference;
        std::vector<bool> isObject;
    };
    std::vector<Arrival> all;

private:
    friend EventFunnel<Arrivals>;
    template <typename Tag, typename... Parameters, typename... Arguments>
    void On(Tag tag, void (VornixEvents::*)(Parameters...), Arguments&... arguments)
    {
        static_assert((std::is_same_v<std::remove_reference_t<Parameters>, Arguments> && ...));
        all.push_back({ tag, { NumberOf(arguments)... }, { std::is_reference_v<Parameters>... },
            { std::is_same_v<Arguments, DataObject>... } });
    }
};

TEST(EventFunnel, HandsEveryEventOnWithItsNumber)
{
    Arrivals arrivals;
    RaiseAll(arrivals);
    ASSERT_EQ(arrivals.all.size(), 36u);
    ASSERT_EQ(Events().size(), 36u);
    for (std::size_t index = 0; index < arrivals.all.size(); ++index) {
        EXPECT_EQ(arrivals.all[index].number, static_cast<int>(index) + 1);
        EXPECT_EQ(Events()[index].number, static_cast<int>(index) + 1);
    }
}

TEST(EventFunnel, HandsTheArgumentsOnInOrder)
{
    Arrivals arrivals;
    RaiseAll(arrivals);
    for (const Arrivals::Arrival& arrival : arrivals.all) {
        const EventInfo& info = Events()[static_cast<std::size_t>(arrival.number) - 1];
        ASSERT_EQ(arrival.arguments.size(), info.arguments.size()) << info.name;
        for (std::size_t place = 0; place < info.arguments.size(); ++place) {
            const bool isObject = info.arguments[place].type == ValueType::Object;
            const double expected = info.arguments[place].type == ValueType::Boolean ? 1
                : isObject                                                           ? 0
                                                                                     : static_cast<double>(place + 1);
            EXPECT_EQ(arrival.arguments[place], expected) << info.name << " " << place;
            EXPECT_EQ(arrival.isObject[place], isObject) << info.name << " " << place;
            EXPECT_EQ(arrival.isReference[place], info.arguments[place].byReference || isObject)
                << info.name << " " << place;
        }
    }
}

TEST(EventFunnel, LetsTheReceiverWriteArgumentsByReference)
{
    EventHandlers handlers;
    handlers.OnKeyPress = [](i16& KeyAscii) { KeyAscii = 66; };
    VornixEvents& raiser = handlers;
    i16 character = 65;
    raiser.KeyPress(character);
    EXPECT_EQ(character, 66);
}

TEST(EventFunnel, NumbersTheEventsByName)
{
    EXPECT_EQ(EventNumber::ADOInProgress, 1);
    EXPECT_EQ(EventNumber::DrawCell, 36);
    EXPECT_EQ(Events()[EventNumber::CellChange - 1].name, "CellChange");
}

TEST(EventRelay, PassesEveryEventOnUntilItIsSilenced)
{
    Arrivals host;
    Arrivals direct;
    EventRelay relay(host);
    RaiseAll(relay);
    RaiseAll(direct);
    ASSERT_EQ(host.all.size(), direct.all.size());
    for (std::size_t index = 0; index < host.all.size(); ++index) {
        EXPECT_EQ(host.all[index].number, direct.all[index].number);
        EXPECT_EQ(host.all[index].arguments, direct.all[index].arguments);
    }
    relay.Silence();
    RaiseAll(relay);
    EXPECT_EQ(host.all.size(), 36u);
}

TEST(EventRelay, BringsArgumentsByReferenceBack)
{
    EventHandlers handlers;
    handlers.OnCellChange = [](i16, i16, bool& bCancel) { bCancel = true; };
    EventRelay relay(handlers);
    bool cancel = false;
    relay.CellChange(0, 0, cancel);
    EXPECT_TRUE(cancel);
}

TEST(EventLog, NamesEveryEventAndItsArguments)
{
    EventLog log;
    RaiseAll(log);
    ASSERT_EQ(log.Events().size(), 36u);
    for (std::size_t index = 0; index < 36; ++index) {
        const LoggedEvent& logged = log.Events()[index];
        const EventInfo& info = Events()[index];
        EXPECT_EQ(logged.name, info.name);
        ASSERT_EQ(logged.arguments.size(), info.arguments.size()) << info.name;
        for (std::size_t place = 0; place < info.arguments.size(); ++place)
            EXPECT_EQ(logged.arguments[place].first, info.arguments[place].name);
    }
}

TEST(EventHandlers, CallOnlyTheFunctionThatIsSet)
{
    EventHandlers handlers;
    RaiseAll(handlers);
    int clicks = 0;
    handlers.OnClick = [&] { ++clicks; };
    RaiseAll(handlers);
    EXPECT_EQ(clicks, 1);
}

TEST(EventHandlers, LetAHandlerDropItself)
{
    EventHandlers handlers;
    int clicks = 0;
    handlers.OnClick = [&] {
        handlers.OnClick = nullptr;
        ++clicks;
    };
    VornixEvents& raiser = handlers;
    raiser.Click();
    raiser.Click();
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace vornix
