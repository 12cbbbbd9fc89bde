#include "control/grid_fixture.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace vornix {
namespace {

class Headless : public GridTest { };

TEST_F(Headless, HasTheScreenAndAmbientOfItsKind)
{
    EXPECT_EQ(host->ScreenSizeInTwips(), (Size { 1920 * 15, 1080 * 15 }));
    EXPECT_EQ(host->TwipsPerPixel(), (Size { 15, 15 }));
    EXPECT_EQ(host->AmbientFont()->Name, u"DejaVu Sans");
    EXPECT_EQ(host->AmbientFont()->Size, 9);
    EXPECT_TRUE(host->UserMode());
    EXPECT_EQ(host->Colors().values[5], 0xFFFFFFu);
    EXPECT_EQ(host->Colors().values[13], 0xD77800u);
    EXPECT_EQ(host->Colors().values[15], 0xF0F0F0u);
}

TEST_F(Headless, KeepsItsPictureWhileNothingIsPainted)
{
    Table(3, 3);
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    ASSERT_EQ(host->Pixel(40, 10), 0x00FFFFu);
    Grid().SetRedraw(false);
    host->Resize(200, 100);
    EXPECT_EQ(host->Pixel(40, 10), 0x00FFFFu);
    EXPECT_EQ(host->Pixel(200, 10), 0xFFFFFFFFu);
    host->Resize(640, 480);
    EXPECT_EQ(host->Pixel(40, 10), 0x00FFFFu);
}

TEST_F(Headless, LogsEventsInOrderWithTheirValuesAsRaised)
{
    Table(2, 1);
    Grid().SetCellStyle(0, 0, vxCustomDraw);
    Grid().SetCellStyle(1, 0, vxCustomDraw | vxCellBox);
    handlers.OnDrawCell = [](i16, i16, Hdc&, bool& bCancel) { bCancel = true; };
    host->ClearLog();
    Grid().Refresh();
    ASSERT_EQ(host->Log().size(), 2u);
    EXPECT_EQ(host->Log()[0].name, "DrawCell");
    EXPECT_EQ(host->Log()[0]["Row"].ToI16(), 0);
    EXPECT_EQ(host->Log()[1]["Row"].ToI16(), 1);
    EXPECT_EQ(host->Log()[1]["Col"].ToI16(), 0);
    EXPECT_FALSE(host->Log()[1]["bCancel"].ToBool()) << "as it was before the handler wrote it";
    EXPECT_EQ(host->Log()[0].arguments.size(), 4u);
    EXPECT_EQ(ErrorOf([&] { host->Log()[0]["Height"]; }), 5);
    EXPECT_EQ(host->Count("DrawCell"), 2);
}

TEST_F(Headless, ClearLogForgetsEventsReportsAndCounts)
{
    Grid().SetBackColor(1);
    host->ClearLog();
    EXPECT_TRUE(host->Log().empty());
    EXPECT_TRUE(host->PropertyChanges().empty());
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(Headless, KnowsItsChildrenByName)
{
    for (const char* name : { "scrV", "scrH", "txtTmp", "cboTmp", "fraEdit", "cPivot", "picSplitCol", "picSplitMove" })
        EXPECT_NE(host->FindChild(name), nullptr) << name;
    EXPECT_EQ(host->FindChild("other"), nullptr);
    EXPECT_EQ(&host->Child(ChildName::cPivot), host->FindChild("cPivot"));
    HeadlessChild& child = *host->FindChild("scrH");
    EXPECT_FALSE(child.IsVisible());
    EXPECT_TRUE(child.IsEnabled());
    EXPECT_FALSE(child.SetFocus());
    child.Show(true);
    child.SetEnabled(false);
    EXPECT_FALSE(child.SetFocus());
}

TEST_F(Headless, KeepsWhatTheControlGivesIt)
{
    host->ShowMessage(u"title", u"text", MessageIcon::Exclamation);
    ASSERT_EQ(host->MessageBoxes().size(), 1u);
    EXPECT_EQ(host->MessageBoxes()[0].text, u"text");
    host->SetClipboardText(u"clip");
    EXPECT_EQ(host->ClipboardText(), u"clip");
    host->SetPointerShape(PointerShape::SizeWE);
    EXPECT_EQ(host->Pointer(), PointerShape::SizeWE);
    host->Settings().SaveSetting(u"app", u"section", u"key", u"value");
    EXPECT_EQ(host->StoredSettings().values.size(), 1u);
    EXPECT_EQ(host->Settings().GetSetting(u"app", u"section", u"key", u"-"), u"value");
    EXPECT_EQ(host->Settings().GetSetting(u"app", u"section", u"other", u"-"), u"-");
    host->HoldKey(1, true);
    EXPECT_TRUE(host->IsKeyDown(1));
    host->HoldKey(1, false);
    EXPECT_FALSE(host->IsKeyDown(1));
}

TEST_F(Headless, PaintsAtAScale)
{
    HeadlessOptions options;
    options.width = 101;
    options.height = 61;
    options.scale = 1.5;
    Make(options);
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    EXPECT_EQ(host->Window().Pixels().width, 152);
    EXPECT_EQ(host->Window().Pixels().height, 92);
    EXPECT_EQ(host->Pixel(60, 10), 0x00FFFFu);
}

TEST_F(Headless, SavesItsPicture)
{
    const std::string path = testing::TempDir() + "/headless_container_test.png";
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    host->SavePng(path);
    const PicturePtr picture = LoadPng(path);
    EXPECT_EQ(picture->PixelWidth(), 640);
    EXPECT_EQ(picture->PixelHeight(), 480);
    EXPECT_EQ(picture->Pixels()[640 * 10 + 60] & 0xFFFFFFu, 0xFFFF00u);
    std::filesystem::remove(path);
    EXPECT_THROW(host->SavePng("/nowhere/at/all.png"), std::runtime_error);
}

TEST_F(Headless, GrowsAndShrinksToNothing)
{
    Table(50, 20);
    for (const auto& [width, height] : { std::pair(1, 1), std::pair(0, 0), std::pair(2000, 1500), std::pair(300, 200) })
        host->Resize(width, height);
    EXPECT_EQ(host->ClientSize(), (Size { 300, 200 }));
    EXPECT_EQ(host->Repaints(), 4);
    EXPECT_EQ(host->Pixel(300, 10), 0xFFFFFFFFu);
}

TEST_F(Headless, AnEqualSizeIsNoNews)
{
    host->ClearLog();
    host->Resize(640, 480);
    EXPECT_EQ(host->Repaints(), 0);
}

} // namespace
} // namespace vornix
