#include "headless/person_fixture.h"

namespace vornix {
namespace {

// A handler closes the control while notifications are still to come.
class Closing : public PersonTest {
protected:
    // Closes the control in the event of this name, at its n-th time.
    void CloseIn(const std::string& event, int time = 1)
    {
        const auto close = [this, event, time](const char* name) {
            if (event == name && host->Count(event) == time)
                host->Close();
        };
        handlers.OnMouseDown = [close](i16, i16, float, float) { close("MouseDown"); };
        handlers.OnMouseMove = [close](i16, i16, float, float) { close("MouseMove"); };
        handlers.OnMouseUp = [close](i16, i16, float, float) { close("MouseUp"); };
        handlers.OnClick = [close] { close("Click"); };
        handlers.OnDblClick = [close] { close("DblClick"); };
        handlers.OnCellOver = [close](i16, i16) { close("CellOver"); };
        handlers.OnCellOut = [close](i16, i16) { close("CellOut"); };
        handlers.OnCellDown = [close](i16, i16) { close("CellDown"); };
        handlers.OnCellUp = [close](i16, i16) { close("CellUp"); };
        handlers.OnCellChange = [close](i16, i16, bool&) { close("CellChange"); };
        handlers.OnCellClick = [close](i16, i16) { close("CellClick"); };
        handlers.OnCellDblClick = [close](i16, i16) { close("CellDblClick"); };
        handlers.OnKeyDown = [close](i16&, i16&) { close("KeyDown"); };
        handlers.OnKeyPress = [close](i16&) { close("KeyPress"); };
        handlers.OnKeyUp = [close](i16&, i16&) { close("KeyUp"); };
    }
    // Does the step on a fresh control for each event that it raises, closing in that one: nothing follows, nothing is
    // held, and no error comes.
    void CloseInEachEventOf(const std::function<void()>& step)
    {
        handlers = {};
        Make({});
        host->ClearLog();
        step();
        const Lines all = SaidNames();
        ASSERT_FALSE(all.empty());
        for (std::size_t i = 0; i < all.size(); ++i) {
            SCOPED_TRACE(all[i] + " " + std::to_string(i));
            Make({});
            host->ClearLog();
            const auto upTo = all.begin() + static_cast<std::ptrdiff_t>(i) + 1;
            CloseIn(all[i], static_cast<int>(std::count(all.begin(), upTo, all[i])));
            EXPECT_EQ(ErrorOf(step), std::nullopt);
            EXPECT_TRUE(Grid().IsTerminated());
            EXPECT_EQ(SaidNames(), Lines(all.begin(), upTo));
            for (int code = 0; code < 256; ++code)
                EXPECT_FALSE(host->IsKeyDown(code)) << code;
        }
    }
};

TEST_F(Closing, EndsAClick)
{
    CloseInEachEventOf([&] { host->ClickAt(5, 5, 1, 7); });
}

TEST_F(Closing, EndsADoubleClick)
{
    CloseInEachEventOf([&] { host->DblClickAt(5, 5); });
}

TEST_F(Closing, EndsADrag)
{
    CloseInEachEventOf([&] { host->Drag(5, 5, 50, 50, 1, 1, 3); });
}

TEST_F(Closing, EndsTyping)
{
    CloseInEachEventOf([&] { host->Type(u"aB"); });
}

TEST_F(Closing, EndsAKey)
{
    CloseInEachEventOf([&] { host->Press("a", 3); });
}

TEST_F(Closing, EndsTheActionAroundTheOneThatItHappensIn)
{
    handlers.OnMouseMove = [&](i16, i16, float, float) { host->Type(u"ab"); };
    handlers.OnKeyUp = [&](i16&, i16&) { host->Close(); };
    EXPECT_EQ(ErrorOf([&] { host->ClickAt(5, 5); }), std::nullopt);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "KeyDown", "KeyPress", "KeyUp" }));
}

TEST_F(Closing, AnActionBegunAfterItInTheSameHandlerIsAnError)
{
    std::vector<std::optional<int>> errors;
    handlers.OnMouseDown = [&](i16, i16, float, float) {
        host->Close();
        errors.push_back(ErrorOf([&] { host->ClickAt(5, 5); }));
        errors.push_back(ErrorOf([&] { host->Type(u"a"); }));
        errors.push_back(ErrorOf([&] { host->MouseUp(5, 5); }));
    };
    EXPECT_EQ(ErrorOf([&] { host->ClickAt(5, 5); }), std::nullopt);
    EXPECT_EQ(errors, (std::vector<std::optional<int>> { 5, 5, 5 }));
    EXPECT_EQ(HeardNames(), (Lines { "MouseMove", "MouseDown" }));
}

TEST_F(Closing, GivesTheCodeOfTheKeyThatItHappenedIn)
{
    handlers.OnKeyDown = [&](i16& KeyCode, i16&) {
        host->Close();
        KeyCode = 7;
    };
    EXPECT_EQ(host->KeyDown(40), 7);
}

TEST_F(Closing, MakesEveryCallAnError)
{
    host->ClearLog();
    host->Close();
    host->Close();
    const std::vector<std::pair<const char*, std::function<void()>>> calls {
        { "Resize", [&] { host->Resize(640, 480); } },
        { "Show", [&] { host->Show(); } },
        { "Hide", [&] { host->Hide(); } },
        { "Paint", [&] { host->Paint(); } },
        { "EnterFocus", [&] { host->EnterFocus(); } },
        { "ExitFocus", [&] { host->ExitFocus(); } },
        { "MouseDown", [&] { host->MouseDown(1, 1); } },
        { "MouseMove", [&] { host->MouseMove(1, 1); } },
        { "MouseUp", [&] { host->MouseUp(1, 1); } },
        { "Click", [&] { host->Click(); } },
        { "DblClick", [&] { host->DblClick(); } },
        { "KeyDown", [&] { host->KeyDown(1); } },
        { "KeyPress", [&] { host->KeyPress(1); } },
        { "KeyUp", [&] { host->KeyUp(1); } },
        { "ClickAt", [&] { host->ClickAt(1, 1); } },
        { "ClickAt outside", [&] { host->ClickAt(-1, -1); } },
        { "DblClickAt", [&] { host->DblClickAt(1, 1); } },
        { "Drag", [&] { host->Drag(1, 1, 2, 2); } },
        { "Wheel", [&] { host->Wheel(120); } },
        { "Tick", [&] { host->Tick(); } },
        { "Type", [&] { host->Type(u"a"); } },
        { "Type nothing", [&] { host->Type(u""); } },
        { "Press", [&] { host->Press("a"); } },
        { "Press a code", [&] { host->Press(65); } },
    };
    for (const auto& [name, call] : calls)
        EXPECT_EQ(ErrorOf(call), 5) << name;
    EXPECT_TRUE(host->Log().empty());
}

TEST_F(Closing, LeavesTheRecordsAndThePicture)
{
    Table(2, 2);
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    host->ClickAt(5, 5);
    const std::size_t events = host->Log().size();
    const int refreshes = host->Refreshes();
    ASSERT_GT(events, 0u);
    ASSERT_GT(refreshes, 0);
    host->SetClipboardText(u"kept");
    const RgbaImage before = host->Image();
    host->Close();
    EXPECT_EQ(host->Log().size(), events);
    EXPECT_EQ(host->Refreshes(), refreshes);
    EXPECT_EQ(host->Image().bytes, before.bytes);
    EXPECT_EQ(host->ClipboardText(), u"kept");
    host->SetUserMode(false);
    EXPECT_FALSE(host->UserMode());
    host->ClearLog();
    EXPECT_TRUE(host->Log().empty());
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_NE(host->FindChild("scrV"), nullptr);
}

TEST_F(Closing, HappensInAResizeToo)
{
    Table(3, 3);
    Grid().SetRowStyle(0, vxCustomDraw);
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) { host->Close(); };
    EXPECT_EQ(ErrorOf([&] { host->Resize(500, 400); }), std::nullopt);
    EXPECT_TRUE(Grid().IsTerminated());
}

} // namespace
} // namespace vornix
