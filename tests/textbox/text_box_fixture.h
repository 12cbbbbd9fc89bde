// A text box in a window, on a box that a person can type into and a form that remembers what it was told.
#pragma once

#include "support/fake_device.h"
#include "textbox/simulated_box.h"
#include "vornix/automation.h"
#include "vornix/text_box.h"

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vornix {

// Size of a text in the grid of a fake device: lines end at CR LF, and with DT_WORDBREAK before words that do not fit.
Size SizeInGrid(std::u16string_view text, const Rect& rect, u32 format);

// Remembers how it looks.
class LookingBox final : public SimulatedBox {
public:
    void SetStyle(const EditBoxStyle& value) override
    {
        style = value;
        ++styleCount;
    }
    void SetRightToLeft(bool value) override { isRightToLeft = value; }
    void SetPasswordChar(char16_t value) override { passwordChar = value; }
    void SetMaxLength(i32 value) override { maxLength = value; }
    void SetLocked(bool value) override { isLocked = value; }
    void SetFont(const FontObject& value) override { font = value; }
    void SetColors(ColorRef fore, ColorRef back) override
    {
        foreColor = fore;
        backColor = back;
    }
    void SetBorder(bool value) override { hasBorder = value; }
    void SetToolTip(std::u16string_view value) override { toolTip = value; }
    void SetPointer(i32 shape, const PicturePtr& picture) override
    {
        pointer = shape;
        pointerPicture = picture;
    }
    void Refresh() override { ++refreshCount; }
    std::intptr_t Handle() const override { return 4711; }
    Device* DrawingDevice() override { return device; }

    EditBoxStyle style;
    int styleCount = 0;
    bool isRightToLeft = false;
    char16_t passwordChar = 0;
    i32 maxLength = 0;
    bool isLocked = false;
    FontObject font;
    ColorRef foreColor = 0;
    ColorRef backColor = 0;
    bool hasBorder = false;
    std::u16string toolTip;
    i32 pointer = 0;
    PicturePtr pointerPicture;
    int refreshCount = 0;
    Device* device = nullptr;
};

class FakeWindow final : public ChildWindow {
public:
    void Move(const Rect& value) override
    {
        place = value;
        ++moveCount;
        if (onMove)
            onMove();
    }
    Rect Place() const override { return place; }
    void Show(bool visible) override { isVisible = visible; }
    bool IsVisible() const override { return isVisible; }
    void SetEnabled(bool enabled) override { isEnabled = enabled; }
    bool IsEnabled() const override { return isEnabled; }
    void Raise() override { }
    bool SetFocus() override
    {
        ++focusCount;
        if (onFocus)
            onFocus();
        return true;
    }

    Rect place { 10, 20, 110, 40 };
    bool isVisible = true;
    bool isEnabled = true;
    int moveCount = 0;
    int focusCount = 0;
    std::function<void()> onMove;
    std::function<void()> onFocus;
};

class FakeSite final : public TextBoxSite {
public:
    const Locale& GetLocale() const override { return BuiltinLocale(); }
    const SystemColors& Colors() const override { return colors; }
    FontPtr AmbientFont() const override { return font; }
    void PropertyChanged(std::string_view name) override { reports.emplace_back(name); }

    SystemColors colors;
    FontPtr font = std::make_shared<const FontObject>(FontObject { .Name = u"Ambient", .Size = 9 });
    std::vector<std::string> reports;
};

// Writes down each event with its numbers: "KeyDown 65 1".
class LoggingEvents final : public TextBoxEvents {
public:
    void Change() override { Note("Change"); }
    void Click() override { Note("Click"); }
    void MouseUp(i16 Button, i16 Shift, float x, float y) override { Note("MouseUp", Button, Shift, x, y); }
    void MouseMove(i16 Button, i16 Shift, float x, float y) override { Note("MouseMove", Button, Shift, x, y); }
    void MouseDown(i16 Button, i16 Shift, float x, float y) override { Note("MouseDown", Button, Shift, x, y); }
    void KeyUp(i16& KeyCode, i16& Shift) override
    {
        Note("KeyUp", KeyCode, Shift);
        if (onKeyUp)
            onKeyUp(KeyCode);
    }
    void KeyPress(i16& KeyAscii) override
    {
        Note("KeyPress", KeyAscii);
        if (onKeyPress)
            onKeyPress(KeyAscii);
    }
    void KeyDown(i16& KeyCode, i16& Shift) override
    {
        Note("KeyDown", KeyCode, Shift);
        if (onKeyDown)
            onKeyDown(KeyCode);
    }
    void DblClick() override { Note("DblClick"); }
    void Resize() override { Note("Resize"); }
    void KeyArrowMove(i16& KeyCode) override
    {
        Note("KeyArrowMove", KeyCode);
        if (onKeyArrowMove)
            onKeyArrowMove(KeyCode);
    }

    std::vector<std::string> log;
    std::function<void(const std::string&)> onAny;
    std::function<void(i16&)> onKeyDown;
    std::function<void(i16&)> onKeyPress;
    std::function<void(i16&)> onKeyUp;
    std::function<void(i16&)> onKeyArrowMove;

private:
    template <typename... Numbers> void Note(const std::string& name, Numbers... numbers)
    {
        std::string line = name;
        ((line += " " + std::to_string(static_cast<int>(numbers))), ...);
        log.push_back(line);
        if (onAny)
            onAny(name);
    }
};

class FakeBag final : public PropertyBag {
public:
    std::optional<BagValue> ReadProperty(std::string_view name) const override
    {
        const auto found = values.find(name);
        return found == values.end() ? std::nullopt : std::optional<BagValue>(found->second);
    }
    void WriteProperty(std::string_view name, const BagValue& value) override
    {
        values.insert_or_assign(std::string(name), value);
    }

    std::map<std::string, BagValue, std::less<>> values;
};

inline std::optional<int> ErrorOf(const std::function<void()>& step)
{
    try {
        step();
    } catch (const AutomationError& error) {
        return error.Number();
    }
    return std::nullopt;
}

// A character takes 7 by 13 pixels.
class TextBoxTest : public testing::Test {
protected:
    TextBoxTest()
    {
        Native.device = &Paper;
        Screen->measure = SizeInGrid;
        Native.Listen(&Box.Listener());
        Box.InitProperties();
    }

    // Lets the box grow from 100 by 20 to 200 by 60.
    void Grow()
    {
        Box.SetNormalWidth(100);
        Box.SetNormalHeight(20);
        Box.SetMaxWidth(200);
        Box.SetMaxHeight(60);
        Box.SetAutoResize(true);
    }
    long Count(const std::string& event) const { return std::ranges::count(Events.log, event); }
    void Forget()
    {
        Events.log.clear();
        Site.reports.clear();
    }
    void ReadFrom(std::map<std::string, BagValue, std::less<>> values)
    {
        FakeBag bag;
        bag.values = std::move(values);
        Box.ReadProperties(bag);
    }
    std::map<std::string, BagValue, std::less<>> Written() const
    {
        FakeBag bag;
        Box.WriteProperties(bag);
        return bag.values;
    }

    std::shared_ptr<FakeScreen> Screen = std::make_shared<FakeScreen>();
    FakeDevice Paper { Screen, "paper", { 100, 100 } };
    LookingBox Native;
    FakeWindow Window;
    FakeSite Site;
    LoggingEvents Events;
    TextBox Box { Window, Native, Site, Events };
};

} // namespace vornix
