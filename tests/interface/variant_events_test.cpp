#include "vornix/variant_events.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace vornix {

class DataObject { };

namespace {

class Recorder : public VariantEvents {
public:
    using VariantEvents::VariantEvents;

    const EventInfo* raised = nullptr;
    std::vector<Variant> arguments;
    std::function<void(std::span<Variant>)> handler;

private:
    void Raise(const EventInfo& event, std::span<Variant> values) override
    {
        raised = &event;
        arguments.assign(values.begin(), values.end());
        if (handler)
            handler(values);
    }
};

TEST(VariantEvents, GiveTheEventAndItsValues)
{
    Recorder events;
    VornixEvents& raiser = events;
    raiser.AfterEdit(2, -1);
    ASSERT_EQ(events.raised, &Events()[EventNumber::AfterEdit - 1]);
    EXPECT_EQ(events.arguments, (std::vector<Variant> { i16 { 2 }, i16 { -1 } }));
    raiser.MouseMove(1, 2, 3.5f, 4.5f);
    EXPECT_EQ(events.raised->name, "MouseMove");
    EXPECT_EQ(events.arguments, (std::vector<Variant> { i16 { 1 }, i16 { 2 }, 3.5f, 4.5f }));
    raiser.Click();
    EXPECT_EQ(events.raised->number, EventNumber::Click);
    EXPECT_TRUE(events.arguments.empty());
}

TEST(VariantEvents, BringArgumentsByReferenceBack)
{
    Recorder events;
    events.handler = [](std::span<Variant> values) {
        values[0] = i16 { 9 };
        values[2] = u"7";
        values[5] = 2.5;
    };
    VornixEvents& raiser = events;
    i32 x = 1;
    i32 y = 2;
    i32 width = 3;
    i32 height = 4;
    raiser.BeforeCustom(0, 0, x, y, width, height);
    EXPECT_EQ(x, 7);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(width, 3);
    EXPECT_EQ(height, 2) << "to the even one";
    EXPECT_FALSE(events.TakeFailure());
}

TEST(VariantEvents, BringEveryTypeBack)
{
    Recorder events;
    VornixEvents& raiser = events;
    events.handler = [](std::span<Variant> values) {
        values[2] = i32 { 1234567 };
        values[3] = u"True";
    };
    Hdc device = 1;
    bool cancel = false;
    raiser.DrawCell(0, 0, device, cancel);
    EXPECT_EQ(device, 1234567);
    EXPECT_TRUE(cancel);

    events.handler = [](std::span<Variant> values) { values[4] = u"1.5"; };
    DataObject data;
    i32 effect = 0;
    i16 button = 0;
    i16 shift = 0;
    float x = 0;
    float y = 0.25f;
    raiser.OLEDragDrop(data, effect, button, shift, x, y);
    EXPECT_EQ(x, 1.5f);
    EXPECT_EQ(y, 0.25f);
}

TEST(VariantEvents, PassObjectsThrough)
{
    Recorder events;
    VornixEvents& raiser = events;
    DataObject data;
    i32 effects = 3;
    raiser.OLEStartDrag(data, effects);
    ASSERT_EQ(events.arguments[0].Type(), VariantType::Object);
    EXPECT_EQ(events.arguments[0].ToObject().get(), &data);
    EXPECT_EQ(events.arguments[0].ToObject().use_count(), 0) << "not owned";
}

TEST(VariantEvents, LeaveAnArgumentThatDoesNotFitAndKeepTheFirstFailure)
{
    Recorder events;
    VornixEvents& raiser = events;
    events.handler = [](std::span<Variant> values) {
        values[0] = i32 { 40000 };
        values[1] = u"x";
    };
    i16 code = 65;
    i16 shift = 1;
    raiser.KeyDown(code, shift);
    EXPECT_EQ(code, 65);
    EXPECT_EQ(shift, 1);
    const std::optional<AutomationError> failure = events.TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), 6);
    EXPECT_FALSE(events.TakeFailure()) << "told once";
}

TEST(VariantEvents, TakeTheOthersBackBesideOneThatDoesNotFit)
{
    Recorder events;
    VornixEvents& raiser = events;
    events.handler = [](std::span<Variant> values) {
        values[0] = Variant::Null();
        values[1] = i16 { 4 };
    };
    i16 code = 65;
    i16 shift = 1;
    raiser.KeyUp(code, shift);
    EXPECT_EQ(code, 65);
    EXPECT_EQ(shift, 4);
    EXPECT_EQ(events.TakeFailure()->Number(), 94);
}

TEST(VariantEvents, LetExceptionsThrough)
{
    Recorder events;
    VornixEvents& raiser = events;
    events.handler = [](std::span<Variant> values) {
        values[0] = i16 { 0 };
        throw std::runtime_error("out of a handler");
    };
    i16 character = 65;
    EXPECT_THROW(raiser.KeyPress(character), std::runtime_error);
    EXPECT_EQ(character, 65);
}

} // namespace
} // namespace vornix
