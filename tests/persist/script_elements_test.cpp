#include "persist/script_elements.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace vornix {
namespace {

// One row of the language's tables: the names of one addressing and one kind of value.
struct Names {
    ScriptAddressing addressing;
    ScriptValueKind value;
    std::set<std::u16string_view> names;
};

using enum ScriptAddressing;
using enum ScriptValueKind;

const Names tables[] = {
    { Cell, Number,
        { u"BoxBorder", u"CellBackColor", u"CellBorderColor", u"CellForeColor", u"CellGradientEnd", u"CellGradientMode",
            u"CellMode", u"CellPictureAlignment", u"CellStyle", u"TextAlignment" } },
    { Cell, ShortNumber, { u"CellFontSize", u"ColSpan", u"RowSpan", u"TextMarginLeft", u"TextMarginRight" } },
    { Cell, Boolean,
        { u"ButtonPressed", u"CellEnabled", u"CellFontBold", u"CellFontItalic", u"CellFontStrikeThrough",
            u"CellFontUnderline", u"CheckEnable" } },
    { Cell, Text, { u"CellFontName" } },
    { Column, Number,
        { u"ColBackColor", u"ColBorderColor", u"ColForeColor", u"ColGradientEnd", u"ColGradientMode", u"ColLineColor",
            u"ColMode", u"ColPictureAlignment", u"ColStyle", u"ColTextAlign" } },
    { Column, ShortNumber, { u"ColTextMarginLeft", u"ColTextMarginRight", u"ColWidth", u"ColWidthPercent" } },
    { Column, NumericBoolean, { u"ColEnabled" } },
    { Column, Text, { u"ColFormat" } },
    { Row, Number,
        { u"RowBackColor", u"RowBorderColor", u"RowForeColor", u"RowGradientEnd", u"RowGradientMode", u"RowLineColor",
            u"RowMode", u"RowStyle", u"RowTextAlign" } },
    { Row, ShortNumber, { u"RowHeight", u"RowTextMarginLeft", u"RowTextMarginRight" } },
    { Grid, Number, { u"AltBkColor", u"AltForeColor", u"BorderStyle", u"Row", u"Col" } },
    { Grid, ShortNumber, { u"Cols", u"Rows", u"FixedCols", u"FixedRows", u"ColumnSetting", u"AutoSizeRows" } },
    { Grid, Boolean, { u"AltColorEnabled", u"CaptionEnabled", u"Redraw" } },
    { Grid, Text, { u"Caption" } },
};

} // namespace

TEST(ScriptElements, AreThoseOfTheTables)
{
    std::size_t count = 0;
    for (const Names& table : tables) {
        for (const std::u16string_view name : table.names) {
            const ScriptElement* element = FindScriptElement(name);
            ASSERT_NE(element, nullptr) << testing::PrintToString(name);
            EXPECT_EQ(element->name, name);
            EXPECT_EQ(element->addressing, table.addressing) << testing::PrintToString(name);
            EXPECT_EQ(element->value, table.value) << testing::PrintToString(name);
        }
        count += table.names.size();
    }
    EXPECT_EQ(count, 66u);
    EXPECT_EQ(ScriptElements().size(), count);
}

TEST(ScriptElements, SetTheMemberOfTheirNameButRowSpan)
{
    for (const ScriptElement& element : ScriptElements()) {
        const std::string name(element.name.begin(), element.name.end());
        if (element.action != ScriptAction::CallMember)
            EXPECT_EQ(element.member, "");
        else
            EXPECT_EQ(element.member, name == "RowSpan" ? "ColSpan" : name);
    }
}

TEST(ScriptElements, RowAndColMoveTheCursor)
{
    EXPECT_EQ(FindScriptElement(u"Row")->action, ScriptAction::MoveCursorRow);
    EXPECT_EQ(FindScriptElement(u"Col")->action, ScriptAction::MoveCursorCol);
    EXPECT_EQ(std::ranges::count(ScriptElements(), ScriptAction::CallMember, &ScriptElement::action), 64);
}

TEST(ScriptElements, AreFoundInExactlyTheirCase)
{
    for (const std::u16string_view name :
        { u"cols", u"COLS", u"Col ", u" Cols", u"Colss", u"Colt", u"", u"A", u"z", u"Text", u"Key" })
        EXPECT_EQ(FindScriptElement(name), nullptr) << testing::PrintToString(name);
}

} // namespace vornix
