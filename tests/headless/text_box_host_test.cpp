#include "vornix/headless_text_box_host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>

namespace vornix {
namespace {

class Receiver : public TextBoxEvents {
public:
    void Change() override
    {
        if (onChange)
            onChange();
    }
    void KeyDown(i16& KeyCode, i16&) override
    {
        if (onKeyDown)
            onKeyDown(KeyCode);
    }
    void KeyPress(i16& KeyAscii) override
    {
        if (onKeyPress)
            onKeyPress(KeyAscii);
    }
    void KeyUp(i16& KeyCode, i16&) override { KeyCode = static_cast<i16>(KeyCode + addedToKeyUp); }

    std::function<void()> onChange;
    std::function<void(i16&)> onKeyDown;
    std::function<void(i16&)> onKeyPress;
    i16 addedToKeyUp = 0;
};

class TextBoxHost : public testing::Test {
protected:
    Variant Get(std::string_view name) { return host.Invoke(name, InvokeKind::Get, {}); }
    void Let(std::string_view name, Variant value) { host.Invoke(name, InvokeKind::Let, { &value, 1 }); }
    std::u16string Text() { return Get("Text").ToText(); }
    // "KeyDown 65 0" for each event since the last call.
    std::vector<std::string> Said()
    {
        std::vector<std::string> lines;
        for (const LoggedEvent& event : host.Log()) {
            std::ostringstream line;
            line << event.name;
            for (const auto& [name, value] : event.arguments)
                line << ' ' << value.ToDouble();
            lines.push_back(line.str());
        }
        host.ClearLog();
        return lines;
    }
    using Lines = std::vector<std::string>;

    Receiver receiver;
    HeadlessTextBoxHost host { HeadlessTextBoxOptions { .events = &receiver } };
};

TEST_F(TextBoxHost, ANewBoxIsEmptyAndShows)
{
    EXPECT_EQ(Text(), u"");
    EXPECT_TRUE(host.Window().IsVisible());
    EXPECT_FALSE(host.Window().HasFocus());
    EXPECT_EQ(host.Window().Place(), (Rect { 0, 0, 120, 21 }));
    EXPECT_EQ(host.Window().Font().Name, u"DejaVu Sans");
    EXPECT_EQ(host.Window().Font().Size, 9);
    EXPECT_EQ(Said(), Lines {});
}

TEST_F(TextBoxHost, TypingTellsItsEventsInOrder)
{
    host.Type(u"aB");
    EXPECT_TRUE(host.Window().HasFocus());
    EXPECT_EQ(Text(), u"aB");
    EXPECT_EQ(Said(),
        (Lines { "KeyDown 65 0", "KeyPress 97", "Change", "KeyUp 65 0", "KeyDown 66 1", "KeyPress 66", "Change",
            "KeyUp 66 1" }));
    host.Press("Back");
    EXPECT_EQ(Said(), (Lines { "KeyDown 8 0", "KeyPress 8", "Change", "KeyUp 8 0" }));
    host.Press(37);
    EXPECT_EQ(Said(), (Lines { "KeyDown 37 0", "KeyUp 37 0" }));
    host.Press("Left");
    EXPECT_EQ(Said(), (Lines { "KeyDown 37 0", "KeyArrowMove 37", "KeyUp 37 0" }));
}

TEST_F(TextBoxHost, ReceiversAreToldBehindTheLogAndMayTakeKeys)
{
    receiver.onKeyDown = [&](i16& code) {
        EXPECT_EQ(host.Log().back().name, "KeyDown");
        code = 0;
    };
    EXPECT_EQ(host.KeyDown(46, 0), 0);
    host.Type(u"x");
    EXPECT_EQ(Text(), u"");
    receiver.onKeyDown = nullptr;
    receiver.onKeyPress = [](i16& character) { character = u'y'; };
    EXPECT_EQ(host.KeyPress(u'x'), u'y');
    EXPECT_EQ(Text(), u"y");
    receiver.addedToKeyUp = 1;
    EXPECT_EQ(host.KeyUp(65, 0), 66);
}

TEST_F(TextBoxHost, AMaskTakesWhatIsTypedAndPasted)
{
    Let("Mask", Variant(u"00-00"));
    host.Type(u"1x2");
    EXPECT_EQ(host.Window().Text(), u"12-__");
    EXPECT_EQ(Get("TextInput").ToText(), u"12");
    Let("SelStart", Variant(i32 { 0 }));
    host.Paste(u"9");
    EXPECT_EQ(host.Window().Text(), u"91-2_") << "the whole text passes the mask, without literals";
    host.Press("Delete");
    EXPECT_EQ(host.Window().SelStart(), 2);
}

TEST_F(TextBoxHost, KeysCopyAndPaste)
{
    host.Type(u"abc");
    host.Press("a", 2);
    host.Press("c", 2);
    EXPECT_EQ(host.Clipboard(), u"abc");
    host.Press("End");
    host.Press("v", 2);
    EXPECT_EQ(Text(), u"abcabc");
    EXPECT_EQ(host.Clipboard(), u"abc");
}

TEST_F(TextBoxHost, ADisabledBoxHasNoUser)
{
    Let("Enabled", Variant(false));
    host.Type(u"x");
    host.Paste(u"x");
    EXPECT_EQ(host.KeyDown(46, 0), 46);
    EXPECT_EQ(Text(), u"");
    EXPECT_EQ(Said(), Lines {});
}

TEST_F(TextBoxHost, ItGrowsWithItsText)
{
    Let("NormalWidth", Variant(i16 { 40 }));
    Let("NormalHeight", Variant(i16 { 10 }));
    Let("MaxWidth", Variant(i16 { 200 }));
    Let("MaxHeight", Variant(i16 { 100 }));
    Let("AutoResize", Variant(true));
    host.ClearLog();
    host.Type(u"quite a long text");
    const Rect place = host.Window().Place();
    EXPECT_GT(place.Width(), 60) << "measured by the ambient font";
    EXPECT_LE(place.Width(), 200);
    EXPECT_TRUE(host.Window().HasBorder());
    const Lines said = Said();
    EXPECT_NE(std::ranges::find(said, "Resize"), said.end());
}

TEST_F(TextBoxHost, WhatIsSavedComesBack)
{
    Let("Text", Variant(u"kept"));
    Let("MaxLength", Variant(i32 { 9 }));
    const MemoryBag saved = host.Save();
    HeadlessTextBoxHost other({ .bag = &saved });
    EXPECT_EQ(other.Box().Text(), u"kept");
    EXPECT_EQ(other.Box().MaxLength(), 9);
    EXPECT_EQ(other.Save().values, saved.values);
}

TEST_F(TextBoxHost, WritingReportsItsProperty)
{
    Let("Text", Variant(u"x"));
    EXPECT_EQ(host.PropertyChanges(), std::vector<std::string> { "Text" });
    host.ClearLog();
    EXPECT_TRUE(host.PropertyChanges().empty());
}

TEST_F(TextBoxHost, WhatThereIsNotIsAnError)
{
    EXPECT_THROW(host.Resize(-1, 5), AutomationError);
    EXPECT_THROW(host.Resize(5, 32768), AutomationError);
    EXPECT_THROW(host.Press("NoKey"), AutomationError);
    EXPECT_THROW(host.Press("a", 8), AutomationError);
    EXPECT_THROW(host.Press(0), AutomationError);
    EXPECT_THROW(host.Press(255), AutomationError);
    EXPECT_THROW(Get("NoMember"), AutomationError);
    EXPECT_EQ(Said(), Lines {});
    host.Resize(50, 60);
    EXPECT_EQ(host.Window().Place(), (Rect { 0, 0, 50, 60 }));
}

} // namespace
} // namespace vornix
