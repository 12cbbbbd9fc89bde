#include "vornix/headless_bar_host.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace vornix {
namespace {

class Receiver : public ScrollBarEvents {
public:
    void Change(i32& Value, i32 Direction) override
    {
        if (onChange)
            onChange(Value, Direction);
    }
    void Scroll(i32& Value) override
    {
        if (onScroll)
            onScroll(Value);
    }
    std::function<void(i32&, i32)> onChange;
    std::function<void(i32&)> onScroll;
};

std::optional<int> ErrorOf(const std::function<void()>& step)
{
    try {
        step();
    } catch (const AutomationError& error) {
        return error.Number();
    }
    return std::nullopt;
}

class BarHost : public testing::Test {
protected:
    Variant Get(std::string_view name) { return host.Invoke(name, InvokeKind::Get, {}); }
    void Let(std::string_view name, Variant value) { host.Invoke(name, InvokeKind::Let, { &value, 1 }); }
    void Call(std::string_view name, std::vector<Variant> arguments = {})
    {
        host.Invoke(name, InvokeKind::Call, arguments);
    }
    // "Change 5 0" for each event since the last call.
    std::vector<std::string> Said()
    {
        std::vector<std::string> lines;
        for (const LoggedEvent& event : host.Log()) {
            lines.push_back(event.name);
            for (const auto& [name, value] : event.arguments)
                lines.back() += ' ' + std::to_string(value.ToI32());
        }
        host.ClearLog();
        return lines;
    }
    using Lines = std::vector<std::string>;

    Receiver receiver;
    HeadlessBarHost host { HeadlessBarOptions { .events = &receiver } };
};

TEST_F(BarHost, HasTheMembersOfTheInterface)
{
    EXPECT_EQ(ScrollBarMembers().size(), 11u);
    for (const MemberInfo& member : ScrollBarMembers()) {
        EXPECT_FALSE(member.readPending || member.writePending) << member.name;
        EXPECT_EQ(FindScrollBarMember(member.name), &member);
    }
    ASSERT_EQ(ScrollBarEventInfos().size(), 2u);
    EXPECT_EQ(ScrollBarEventInfos()[0].name, "Change");
    EXPECT_EQ(ScrollBarEventInfos()[1].name, "Scroll");
    EXPECT_TRUE(ScrollBarEventInfos()[0].arguments[0].byReference);
    EXPECT_EQ(FindScrollBarMember("Rows"), nullptr);
}

TEST_F(BarHost, MembersAreCalledByName)
{
    EXPECT_EQ(Get("Min").ToI32(), 0);
    EXPECT_EQ(Get("max").ToI32(), 100);
    EXPECT_TRUE(Get("Enabled").ToBool());
    Let("Value", Variant(i32 { 30 }));
    EXPECT_EQ(Get("VALUE").ToI32(), 30);
    Let("Value", Variant(i32 { 3000 }));
    EXPECT_EQ(Get("Value").ToI32(), 100) << "limited, and no event";
    Call("SetInfo", { Variant(i32 { 10 }), Variant(i32 { 50 }), Variant(i32 { 5 }) });
    EXPECT_EQ(Get("Min").ToI32(), 10);
    EXPECT_EQ(Get("Value").ToI32(), 50);
    EXPECT_EQ(Said(), Lines {});
}

TEST_F(BarHost, WhatItDoesNotHaveIsAnError)
{
    EXPECT_EQ(ErrorOf([&] { Get("Rows"); }), 438);
    EXPECT_EQ(ErrorOf([&] { Get("SmallChange"); }), 438) << "it can be written only";
    EXPECT_EQ(ErrorOf([&] { Let("Min", Variant(i32 { 1 })); }), 438) << "it can be read only";
    EXPECT_EQ(ErrorOf([&] { Call("SetInfo", { Variant(i32 { 1 }) }); }), 450);
    EXPECT_EQ(ErrorOf([&] { Let("Value", Variant(u"many")); }), 13);
    EXPECT_EQ(ErrorOf([&] { Let("Value", Variant(1e10)); }), 6);
}

TEST_F(BarHost, AnswersToItsUserBetweenSubclassAndUnSubclass)
{
    host.Window().Notify(1);
    EXPECT_EQ(Said(), Lines {});
    Call("Subclass");
    host.Window().Notify(1);
    host.Window().Notify(8);
    EXPECT_EQ(Said(), (Lines { "Change 2 0" })) << "a new bar stands at 1";
    EXPECT_EQ(Get("Value").ToI32(), 2);
    Call("UnSubclass");
    host.Window().Notify(1);
    EXPECT_EQ(Said(), Lines {});
}

TEST_F(BarHost, TheReceiverHasTheLastWord)
{
    Call("Subclass");
    receiver.onChange = [](i32& Value, i32 Direction) { Value = Direction == 1 ? 40 : Value; };
    receiver.onScroll = [](i32& Value) { Value = 70; };
    host.Window().Notify(3);
    EXPECT_EQ(Get("Value").ToI32(), 40);
    host.Window().Notify(5, 60);
    EXPECT_EQ(Get("Value").ToI32(), 70);
    EXPECT_EQ(Said(), (Lines { "Change 1 1", "Scroll 60" })) << "the values as they were raised";
}

TEST_F(BarHost, APersonScrollsIt)
{
    Call("Subclass");
    host.Window().MouseDown(1, 0, 95, 8);
    host.Window().MouseUp(1, 0, 95, 8);
    EXPECT_EQ(Get("Value").ToI32(), 2);
    host.Resize(300, 17);
    host.Window().MouseDown(1, 0, 295, 8);
    EXPECT_EQ(Get("Value").ToI32(), 3) << "the arrow is at the new end";
}

TEST_F(BarHost, IsSavedAndReadAgain)
{
    Call("SetInfo", { Variant(i32 { -5 }), Variant(i32 { 5 }), Variant(i32 { 1 }) });
    Let("Orientation", Variant(i32 { 1 }));
    const MemoryBag bag = host.Save();
    EXPECT_EQ(bag.values.size(), 3u);
    HeadlessBarHost other({ .length = 60, .bag = &bag });
    EXPECT_EQ(other.Bar().Min(), -5);
    EXPECT_EQ(other.Bar().Max(), 5);
    EXPECT_EQ(other.Bar().Orientation(), 1);
    EXPECT_EQ(other.Window().Place(), (Rect { 0, 0, HeadlessBarHost::Thickness, 60 })) << "it stands";
}

TEST_F(BarHost, HasItsLimits)
{
    EXPECT_EQ(ErrorOf([&] { HeadlessBarHost({ .length = -1 }); }), 5);
    EXPECT_EQ(ErrorOf([&] { HeadlessBarHost({ .length = 32768 }); }), 5);
    EXPECT_EQ(ErrorOf([&] { host.Resize(10, -1); }), 5);
    MemoryBag bag;
    bag.values.emplace("Max", BagValue(std::u16string(u"many")));
    EXPECT_EQ(ErrorOf([&] { HeadlessBarHost({ .bag = &bag }); }), 13);
}

} // namespace
} // namespace vornix
