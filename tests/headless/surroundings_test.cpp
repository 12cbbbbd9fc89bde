#include "headless/person_fixture.h"

namespace vornix {
namespace {

class Surroundings : public PersonTest { };

TEST_F(Surroundings, ChildrenAreKnownByTheirNames)
{
    HeadlessChild& bar = ShowChild(ChildName::scrH, { 10, 460, 500, 480 });
    bar.SetEnabled(false);
    const HeadlessChild& found = host->Child("scrH");
    EXPECT_EQ(&found, &bar);
    EXPECT_TRUE(found.IsVisible());
    EXPECT_FALSE(found.IsEnabled());
    EXPECT_EQ(found.Place(), (Rect { 10, 460, 500, 480 }));
    EXPECT_FALSE(host->Child("picSplitMove").IsVisible());
    for (const char* name : { "", "scrh", "scrX", "fraEdit " })
        EXPECT_EQ(ErrorOf([&] { host->Child(name); }), 5) << name;
}

TEST_F(Surroundings, PointerShapesHaveNames)
{
    EXPECT_EQ(NameOf(host->Pointer()), "default");
    host->SetPointerShape(PointerShape::SizeWE);
    EXPECT_EQ(NameOf(host->Pointer()), "size_we");
    host->SetPointerShape(PointerShape::SizeNS);
    EXPECT_EQ(NameOf(host->Pointer()), "size_ns");
}

TEST_F(Surroundings, MessageBoxesAreKeptAndDoNotBlock)
{
    host->ShowMessage(u"a", u"b", MessageIcon::Exclamation);
    host->ShowMessage(u"c", u"d", MessageIcon::Information);
    host->ShowMessage(u"", u"", MessageIcon::None);
    ASSERT_EQ(host->MessageBoxes().size(), 3u);
    EXPECT_EQ(host->MessageBoxes()[0].title, u"a");
    EXPECT_EQ(host->MessageBoxes()[0].text, u"b");
    EXPECT_EQ(NameOf(host->MessageBoxes()[0].icon), "exclamation");
    EXPECT_EQ(NameOf(host->MessageBoxes()[1].icon), "information");
    EXPECT_EQ(NameOf(host->MessageBoxes()[2].icon), "");
    host->ClearLog();
    EXPECT_EQ(host->MessageBoxes().size(), 3u) << "they are not part of the log";
}

TEST_F(Surroundings, TheClipboardIsReadAndWritten)
{
    EXPECT_EQ(host->ClipboardText(), u"");
    host->SetClipboardText(std::u16string(u"a\0b", 3));
    EXPECT_EQ(host->ClipboardText(), std::u16string(u"a\0b", 3));
    host->SetClipboardText(u"");
    EXPECT_EQ(host->ClipboardText(), u"");
}

TEST_F(Surroundings, SettingsAreThoseOfTheStoreGiven)
{
    const auto store = std::make_shared<MemorySettings>();
    store->SaveSetting(u"app", u"section", u"key", u"text");
    HeadlessOptions options;
    options.settings = store;
    Make(options);
    EXPECT_EQ(host->StoredSettings().values.size(), 1u);
    EXPECT_EQ(host->Settings().GetSetting(u"app", u"section", u"key", u""), u"text");
    host->Settings().SaveSetting(u"app", u"section", u"other", u"new");
    EXPECT_EQ(store->values.at({ u"app", u"section", u"other" }), u"new");
}

TEST_F(Surroundings, PropertyChangesStandInOrderUntilTheLogIsCleared)
{
    host->ClearLog();
    Grid().SetGridLineWidth(3);
    Grid().SetBackColor(0x123456);
    Grid().SetGridLineWidth(3);
    EXPECT_EQ(host->PropertyChanges(), (Lines { "GridLineWidth", "BackColor" }));
    host->ClearLog();
    EXPECT_TRUE(host->PropertyChanges().empty());
}

TEST_F(Surroundings, TheLogHoldsInputBesideOtherEventsInOrder)
{
    Table(1, 1);
    Grid().SetCellStyle(0, 0, vxCustomDraw);
    host->ClearLog();
    host->ClickAt(5, 5);
    EXPECT_EQ(SaidNames(),
        (Lines { "MouseMove", "CellOver", "MouseDown", "CellDown", "CellChange", "DrawCell", "DrawCell", "MouseUp",
            "CellUp", "CellClick", "DrawCell", "Click" }))
        << "the press, the selection at the release and the click paint";
}

} // namespace
} // namespace vornix
