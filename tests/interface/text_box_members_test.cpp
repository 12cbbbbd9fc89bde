// The text box called by the names of its members.
#include "textbox/unseen_boxes.h"
#include "vornix/picture.h"
#include "vornix/text_box_members.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <vector>

namespace vornix {
namespace {

class StillWindow final : public ChildWindow {
public:
    void Move(const Rect& value) override { place = value; }
    Rect Place() const override { return place; }
    void Show(bool) override { }
    bool IsVisible() const override { return true; }
    void SetEnabled(bool enabled) override { isEnabled = enabled; }
    bool IsEnabled() const override { return isEnabled; }
    void Raise() override { }
    bool SetFocus() override { return true; }

    Rect place;
    bool isEnabled = true;
};

class ReportingSite final : public TextBoxSite {
public:
    const Locale& GetLocale() const override { return BuiltinLocale(); }
    const SystemColors& Colors() const override { return colors; }
    FontPtr AmbientFont() const override { return font; }
    void PropertyChanged(std::string_view name) override { reports.emplace_back(name); }

    SystemColors colors;
    FontPtr font = std::make_shared<const FontObject>();
    std::vector<std::string> reports;
};

class TextBoxMembersTest : public testing::Test {
protected:
    TextBoxMembersTest() { Box.InitProperties(); }

    Variant Invoke(std::string_view name, InvokeKind kind, std::vector<Variant> arguments = {})
    {
        return vornix::Invoke(Box, BuiltinLocale(), name, kind, arguments);
    }
    Variant Get(std::string_view name) { return Invoke(name, InvokeKind::Get); }
    void Let(std::string_view name, Variant value) { Invoke(name, InvokeKind::Let, { std::move(value) }); }
    std::optional<int> ErrorOf(const std::function<void()>& step)
    {
        try {
            step();
        } catch (const AutomationError& error) {
            return error.Number();
        }
        return std::nullopt;
    }

    StillWindow Window;
    UnseenEditBox Native;
    ReportingSite Site;
    TextBoxEvents Events;
    TextBox Box { Window, Native, Site, Events };
};

TEST_F(TextBoxMembersTest, HasTheMembersOfTheInterface)
{
    EXPECT_EQ(TextBoxMembers().size(), 45u);
    for (const MemberInfo& member : TextBoxMembers()) {
        EXPECT_EQ(member.readPending || member.writePending, member.name == "OLEDrag") << member.name;
        EXPECT_EQ(FindTextBoxMember(member.name), &member);
    }
    EXPECT_EQ(FindTextBoxMember("Rows"), nullptr);
}

TEST_F(TextBoxMembersTest, HasTheEventsOfTheInterface)
{
    ASSERT_EQ(TextBoxEventInfos().size(), 17u);
    for (std::size_t index = 0; index < 17; ++index)
        EXPECT_EQ(TextBoxEventInfos()[index].number, static_cast<int>(index) + 1);
    EXPECT_EQ(TextBoxEventInfos()[15].name, "Resize");
    const EventInfo& keyPress = TextBoxEventInfos()[12];
    EXPECT_EQ(keyPress.name, "KeyPress");
    ASSERT_EQ(keyPress.arguments.size(), 1u);
    EXPECT_TRUE(keyPress.arguments[0].byReference);
}

TEST_F(TextBoxMembersTest, EveryPropertyTakesWhatItGives)
{
    for (const MemberInfo& member : TextBoxMembers()) {
        if (member.kind == MemberKind::Method)
            continue;
        const Variant value = Get(member.name);
        if (member.kind == MemberKind::ReadOnly) {
            EXPECT_EQ(ErrorOf([&] { Let(member.name, value); }), ErrorNumber::NoSuchMember) << member.name;
            continue;
        }
        Let(member.name, value);
        EXPECT_EQ(Get(member.name), value) << member.name;
    }
}

TEST_F(TextBoxMembersTest, MembersAreCalledByNameInAnyCase)
{
    Let("PROMPTCHAR", Variant(u"*"));
    Let("mask", Variant(u"(00)"));
    Let("Text", Variant(u"12"));
    EXPECT_EQ(Get("Text").ToText(), u"12");
    EXPECT_EQ(Native.Text(), u"(12)");
    Let("SelStart", Variant(i32 { 1 }));
    Let("SelLength", Variant(i32 { 2 }));
    EXPECT_EQ(Get("SelText").ToText(), u"12");
    Invoke("InitializeTextBox", InvokeKind::Call, { Variant(i16 { 1 }), Variant(true) });
    EXPECT_EQ(Get("Alignment").ToI16(), 1);
    EXPECT_TRUE(Get("MultiLine").ToBool());
    Let("FontSize", Variant(8.25));
    EXPECT_EQ(Get("FontSize").ToSingle(), 8.25F);
    Let("Enabled", Variant(false));
    EXPECT_FALSE(Window.isEnabled);
    EXPECT_EQ(Site.reports, (std::vector<std::string> { "Text", "SelStart", "SelLength", "FontSize", "Enabled" }));
}

TEST_F(TextBoxMembersTest, WhatDoesNotFitIsAnError)
{
    EXPECT_EQ(ErrorOf([&] { Get("Rows"); }), ErrorNumber::NoSuchMember);
    EXPECT_EQ(ErrorOf([&] { Invoke("OLEDrag", InvokeKind::Call); }), ErrorNumber::ActionNotSupported);
    EXPECT_EQ(ErrorOf([&] { Let("MaxWidth", Variant(i32 { 32768 })); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { Let("MaxWidth", Variant(u"wide")); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { Let("SelStart", Variant(i32 { -1 })); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([&] { Let("SelLength", Variant(i32 { -1 })); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([&] { Let("Font", Variant(FontPtr())); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([&] { Let("FontSize", Variant(0)); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([&] { Invoke("InitializeTextBox", InvokeKind::Call, { Variant(0) }); }),
        ErrorNumber::WrongArgumentCount);
    EXPECT_EQ(ErrorOf([&] { Let("Text", Variant::Null()); }), ErrorNumber::InvalidUseOfNull);
}

} // namespace
} // namespace vornix
