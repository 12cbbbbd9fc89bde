#include "c_grid.h"

#include "vornix/vornix_constants.h"

namespace vornix::test {
namespace {

class CEditors : public testing::Test {
protected:
    CEditors()
    {
        EXPECT_EQ(Let(grid.get(), "CellMode", { Integer(0), Integer(0), Integer(vxTextBox) }), 0);
        EXPECT_EQ(Let(grid.get(), "CellMode", { Integer(0), Integer(1), Integer(vxComboDropDownBox) }), 0);
    }
    void Edit(int col)
    {
        ASSERT_EQ(Let(grid.get(), "CurrentRow", { Integer(0) }), 0);
        ASSERT_EQ(Let(grid.get(), "CurrentCol", { Integer(col) }), 0);
        ASSERT_EQ(Call(grid.get(), "EnterEdit"), 0);
    }
    std::u16string CellText(int col) { return Get(grid.get(), "Text", { Integer(0), Integer(col) }).ToText(); }
    std::u16string EditorText(const char* name)
    {
        vornix_text text {};
        EXPECT_EQ(vornix_host_get_editor_text(grid.get(), name, &text), 0);
        return ToString(text);
    }
    std::int16_t Down(std::int16_t code, const char* name = "txtTmp")
    {
        EXPECT_EQ(vornix_host_editor_key_down(grid.get(), name, &code, 0), 0);
        return code;
    }
    std::int16_t Press(std::int16_t character, const char* name = "txtTmp")
    {
        EXPECT_EQ(vornix_host_editor_key_press(grid.get(), name, &character, 0), 0);
        return character;
    }

    GridPtr grid = MakeSmallGrid();
};

TEST_F(CEditors, ABoxTakesKeysAndCharacters)
{
    Edit(0);
    EXPECT_EQ(EditorText("txtTmp"), u"0");
    EXPECT_EQ(Down(46), 46);
    EXPECT_EQ(Press(u'x'), u'x');
    std::int16_t up = 88;
    EXPECT_EQ(vornix_host_editor_key_up(grid.get(), "TXTTMP", &up, 0), 5) << "names are as they are";
    EXPECT_EQ(vornix_host_editor_key_up(grid.get(), "txtTmp", &up, 0), 0);
    EXPECT_EQ(up, 88);
    EXPECT_EQ(CellText(0), u"x");
}

TEST_F(CEditors, ATextThatIsSetIsTheUsers)
{
    Edit(0);
    ASSERT_EQ(vornix_host_set_editor_text(grid.get(), "txtTmp", View(u"whole \xD83D\xDE00")), 0);
    EXPECT_EQ(CellText(0), u"whole \xD83D\xDE00");
    std::int32_t start = 0;
    std::int32_t length = 0;
    ASSERT_EQ(vornix_host_set_editor_selection(grid.get(), "txtTmp", 2, 99), 0);
    ASSERT_EQ(vornix_host_get_editor_selection(grid.get(), "txtTmp", &start, &length), 0);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(length, 6);
    ASSERT_EQ(vornix_host_set_editor_selection(grid.get(), "txtTmp", -7, -1), 0);
    ASSERT_EQ(vornix_host_get_editor_selection(grid.get(), "txtTmp", &start, &length), 0);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(length, 0);
}

TEST_F(CEditors, AComboTellsOfItsListAndTakesClicks)
{
    Edit(1);
    vornix_combo_info info {};
    ASSERT_EQ(vornix_host_combo(grid.get(), "cboTmp", &info), 0);
    EXPECT_EQ(info.item_count, 3);
    EXPECT_EQ(info.list_index, -1);
    EXPECT_EQ(info.list_only, 0);
    vornix_text text {};
    ASSERT_EQ(vornix_host_combo_item(grid.get(), "cboTmp", 2, &text), 0);
    EXPECT_EQ(ToString(text), u"ColumnC");
    ASSERT_EQ(vornix_host_click_combo_item(grid.get(), "cboTmp", 2), 0);
    EXPECT_EQ(CellText(1), u"ColumnC");
    EXPECT_EQ(EditorText("cboTmp"), u"ColumnC");
    Down(38, "cboTmp");
    EXPECT_EQ(CellText(1), u"ColumnB");
    ASSERT_EQ(vornix_host_combo(grid.get(), "cboTmp", &info), 0);
    EXPECT_EQ(info.list_index, 1);
    for (const int index : { -1, 3 }) {
        EXPECT_EQ(vornix_host_combo_item(grid.get(), "cboTmp", index, &text), 9);
        EXPECT_EQ(vornix_host_click_combo_item(grid.get(), "cboTmp", index), 9);
    }
}

TEST_F(CEditors, AHiddenBoxHasNoUser)
{
    EXPECT_EQ(Down(46), 46);
    EXPECT_EQ(Press(u'x'), u'x');
    EXPECT_EQ(vornix_host_click_combo_item(grid.get(), "cboTmp", 0), 0);
    EXPECT_EQ(CellText(0), u"0");
    EXPECT_EQ(CellText(1), u"1");
}

TEST_F(CEditors, OtherChildrenAreNone)
{
    std::int16_t code = 46;
    std::int32_t number = 0;
    vornix_text text {};
    vornix_combo_info info {};
    for (const char* const name : { "scrV", "fraEdit", "picSplitCol" }) {
        EXPECT_EQ(vornix_host_get_editor_text(grid.get(), name, &text), 438);
        EXPECT_EQ(vornix_host_set_editor_text(grid.get(), name, View(u"")), 438);
        EXPECT_EQ(vornix_host_get_editor_selection(grid.get(), name, &number, &number), 438);
        EXPECT_EQ(vornix_host_set_editor_selection(grid.get(), name, 0, 0), 438);
        EXPECT_EQ(vornix_host_editor_key_down(grid.get(), name, &code, 0), 438);
        EXPECT_EQ(vornix_host_editor_key_press(grid.get(), name, &code, 0), 438);
        EXPECT_EQ(vornix_host_editor_key_up(grid.get(), name, &code, 0), 438);
    }
    EXPECT_EQ(vornix_host_combo(grid.get(), "txtTmp", &info), 438);
    EXPECT_EQ(vornix_host_combo_item(grid.get(), "txtTmp", 0, &text), 438);
    EXPECT_EQ(vornix_host_click_combo_item(grid.get(), "txtTmp", 0), 438);
}

TEST_F(CEditors, WhatMustBeGivenMustBeGiven)
{
    std::int16_t code = 46;
    std::int32_t number = 0;
    EXPECT_EQ(vornix_host_get_editor_text(grid.get(), "txtTmp", nullptr), 5);
    EXPECT_EQ(vornix_host_get_editor_text(grid.get(), nullptr, nullptr), 5);
    EXPECT_EQ(vornix_host_set_editor_text(grid.get(), "txtTmp", { nullptr, 3 }), 5);
    EXPECT_EQ(vornix_host_get_editor_selection(grid.get(), "txtTmp", &number, nullptr), 5);
    EXPECT_EQ(vornix_host_editor_key_down(grid.get(), "txtTmp", nullptr, 0), 5);
    EXPECT_EQ(vornix_host_editor_key_down(grid.get(), nullptr, &code, 0), 5);
    EXPECT_EQ(vornix_host_combo(grid.get(), "cboTmp", nullptr), 5);
    EXPECT_EQ(vornix_host_combo_item(grid.get(), "cboTmp", 0, nullptr), 5);
    EXPECT_EQ(vornix_host_click_combo_item(nullptr, "cboTmp", 0), 5);
}

TEST_F(CEditors, AClosedControlHasNoUser)
{
    Edit(0);
    ASSERT_EQ(vornix_host_close(grid.get()), 0);
    std::int16_t code = 46;
    EXPECT_EQ(vornix_host_editor_key_down(grid.get(), "txtTmp", &code, 0), 5);
    EXPECT_EQ(vornix_host_set_editor_text(grid.get(), "txtTmp", View(u"x")), 5);
    EXPECT_EQ(vornix_host_click_combo_item(grid.get(), "cboTmp", 0), 5);
    EXPECT_EQ(EditorText("txtTmp"), u"0") << "what is there can be read";
}

} // namespace
} // namespace vornix::test
