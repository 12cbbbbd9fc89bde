#include "vornix/headless_combo_box.h"

#include "headless/recording_listeners.h"
#include "virtual_keys.h"
#include "vornix/automation.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

class Fruit : public ComboItems {
public:
    int Count() const override { return static_cast<int>(rows.size()); }
    std::u16string_view Text(int index) const override
    {
        if (index < 0 || index >= Count())
            throw AutomationError(ErrorNumber::SubscriptOutOfRange);
        return rows[static_cast<std::size_t>(index)];
    }

    std::vector<std::u16string> rows { u"apple", u"banana", u"cherry" };
};

class ComboBoxTest : public testing::Test {
protected:
    ComboBoxTest()
    {
        box.Listen(&listener);
        box.SetItems(&fruit);
        box.Show(true);
    }
    i16 Down(i16 code, i16 shift = 0)
    {
        box.KeyDown(code, shift);
        return code;
    }
    i16 Character(char16_t character, i16 shift = 0)
    {
        auto code = static_cast<i16>(character);
        box.KeyPress(code, shift);
        return code;
    }
    // The row after a key.
    int After(i16 code, i16 shift = 0)
    {
        Down(code, shift);
        return box.ListIndex();
    }

    std::u16string clipboard;
    Fruit fruit;
    HeadlessComboBox box { { clipboard, 1, SystemColors(), std::make_shared<const FontObject>() } };
    RecordingComboListener listener;
};

TEST_F(ComboBoxTest, SettingARowTakesItsText)
{
    EXPECT_EQ(box.ListIndex(), -1);
    box.SetListIndex(1);
    EXPECT_EQ(box.Text(), u"banana");
    EXPECT_EQ(box.SelLength(), 0);
    box.SetListIndex(3);
    box.SetListIndex(-2);
    EXPECT_EQ(box.ListIndex(), 1) << "there are no such rows";
    box.SetListIndex(-1);
    EXPECT_EQ(box.Text(), u"");
    box.SetListIndex(2);
    box.SetText(u"cherry");
    EXPECT_EQ(box.ListIndex(), -1);
    box.SetListIndex(2);
    box.SetSelText(u"x");
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(listener.Said(), Lines {});
}

TEST_F(ComboBoxTest, TypingLeavesNoRowSelected)
{
    box.SetListIndex(0);
    listener.onTextChanged = [&] {
        EXPECT_EQ(box.ListIndex(), -1);
        EXPECT_EQ(box.Text(), u"xapple");
    };
    Character(u'x');
    EXPECT_EQ(listener.Said(), (Lines { "KeyPress 120 0", "TextChanged" }));
    listener.onTextChanged = nullptr;
    box.SetListIndex(0);
    Down(DeleteKey);
    EXPECT_EQ(box.Text(), u"pple");
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(listener.Said(), (Lines { "KeyDown 46 0", "TextChanged" }));
    box.Paste(u"a");
    EXPECT_EQ(box.Text(), u"apple");
    EXPECT_EQ(box.ListIndex(), -1);
    box.Replace(u"cherry");
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(listener.Said(), (Lines { "TextChanged", "TextChanged" }));
}

TEST_F(ComboBoxTest, KeysWalkTheList)
{
    box.SetText(u"some");
    listener.onClick = [&] { EXPECT_EQ(box.Text(), fruit.Text(box.ListIndex())); };
    EXPECT_EQ(After(DownKey), 0) << "the first row, where none is selected";
    EXPECT_EQ(box.SelText(), u"apple");
    EXPECT_EQ(After(DownKey), 1);
    EXPECT_EQ(listener.Said(), (Lines { "KeyDown 40 0", "Click", "KeyDown 40 0", "Click" }));
    EXPECT_EQ(After(UpKey), 0);
    listener.Said();
    EXPECT_EQ(After(UpKey), 0);
    EXPECT_EQ(listener.Said(), Lines { "KeyDown 38 0" }) << "no other row";
    EXPECT_EQ(After(PageDownKey), 2);
    EXPECT_EQ(After(DownKey), 2);
    EXPECT_EQ(After(PageUpKey), 0);
    box.SetListIndex(-1);
    EXPECT_EQ(After(UpKey), 0);
    fruit.rows.clear();
    box.ItemsChanged();
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.Text(), u"apple") << "the field keeps its text";
    listener.Said();
    EXPECT_EQ(After(DownKey), -1);
    EXPECT_EQ(After(UpKey), -1);
    EXPECT_EQ(listener.Said(), (Lines { "KeyDown 40 0", "KeyDown 38 0" }));
}

TEST_F(ComboBoxTest, APageIsTenRows)
{
    fruit.rows.assign(30, u"row");
    box.ItemsChanged();
    EXPECT_EQ(After(PageDownKey), 0);
    EXPECT_EQ(After(PageDownKey), 10);
    EXPECT_EQ(After(PageDownKey), 20);
    EXPECT_EQ(After(PageUpKey), 10);
    EXPECT_EQ(After(PageUpKey, ShiftDown), 10);
    EXPECT_EQ(After(DownKey, CtrlDown), 10) << "with other keys held none walks";
}

TEST_F(ComboBoxTest, HomeAndEndAreTheListsWhereOnlyRowsCanBePicked)
{
    box.SetListIndex(1);
    EXPECT_EQ(After(EndKey), 1);
    EXPECT_EQ(box.SelStart(), 6);
    EXPECT_EQ(After(HomeKey), 1);
    EXPECT_EQ(box.SelStart(), 0);
    box.SetListOnly(true);
    EXPECT_EQ(After(EndKey), 2);
    EXPECT_EQ(After(HomeKey), 0);
}

TEST_F(ComboBoxTest, WhereOnlyRowsCanBePickedTheFieldTakesNothing)
{
    box.SetListOnly(true);
    box.SetText(u"no row");
    EXPECT_EQ(Character(u'x'), u'x');
    Character(BackKey);
    Down(DeleteKey);
    box.Paste(u"x");
    EXPECT_EQ(box.Text(), u"no row");
    EXPECT_EQ(listener.Said(), (Lines { "KeyPress 120 0", "KeyPress 8 0", "KeyDown 46 0" }));
    Down(RightKey);
    EXPECT_EQ(box.SelStart(), 1) << "the caret moves";
}

TEST_F(ComboBoxTest, TheListenerMayTakeKeys)
{
    listener.onKeyDown = [](i16& code, i16&) { code = 0; };
    listener.onKeyPress = [](i16& character, i16) { character = 0; };
    EXPECT_EQ(Down(DownKey), 0);
    EXPECT_EQ(Character(u'x'), 0);
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.Text(), u"");
}

TEST_F(ComboBoxTest, AClickOnARowIsToldEvenIfItIsTheSame)
{
    listener.onClick = [&] {
        EXPECT_EQ(box.ListIndex(), 1);
        EXPECT_EQ(box.Text(), u"banana");
    };
    box.DropDown(true);
    box.ClickItem(1);
    EXPECT_FALSE(box.IsDroppedDown());
    EXPECT_EQ(box.SelText(), u"banana");
    box.ClickItem(1);
    EXPECT_EQ(listener.Said(), (Lines { "Click", "Click" }));
    EXPECT_THROW(box.ClickItem(3), AutomationError);
    EXPECT_THROW(box.ClickItem(-1), AutomationError);
    box.Show(false);
    box.ClickItem(0);
    EXPECT_EQ(box.ListIndex(), 1) << "a hidden box has no user";
    EXPECT_EQ(listener.Said(), Lines {});
}

TEST_F(ComboBoxTest, ThereIsAKeyForTheList)
{
    Down(F4Key);
    EXPECT_TRUE(box.IsDroppedDown());
    Down(DownKey, AltDown);
    EXPECT_FALSE(box.IsDroppedDown());
    Down(UpKey, AltDown);
    EXPECT_TRUE(box.IsDroppedDown());
    EXPECT_EQ(box.ListIndex(), -1);
}

TEST_F(ComboBoxTest, RowsAreReadFromTheControl)
{
    EXPECT_EQ(box.ItemCount(), 3);
    EXPECT_EQ(box.ItemText(2), u"cherry");
    EXPECT_THROW(box.ItemText(3), AutomationError);
    box.SetListIndex(2);
    box.SetItems(nullptr);
    EXPECT_EQ(box.ItemCount(), 0);
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_THROW(box.ItemText(0), AutomationError);
    EXPECT_EQ(After(DownKey), -1);
}

} // namespace
} // namespace vornix
