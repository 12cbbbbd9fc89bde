#include "model/format_table.h"

#include "model/store_support.h"

#include <gtest/gtest.h>

#include <map>

namespace vornix {
namespace {

CellFormat WithForeColor(OleColor color)
{
    CellFormat format;
    format.ForeColor = color;
    return format;
}

// A format that differs from the zeroed one in the given field.
std::vector<CellFormat> OneFieldEach()
{
    std::vector<CellFormat> formats;
    const auto add = [&](auto write) {
        CellFormat format;
        write(format);
        formats.push_back(format);
    };
    add([](CellFormat& f) { f.Mode = 1; });
    add([](CellFormat& f) { f.Style = 1; });
    add([](CellFormat& f) { f.BackColor = 1; });
    add([](CellFormat& f) { f.ForeColor = 1; });
    add([](CellFormat& f) { f.PictureAlignment = 1; });
    add([](CellFormat& f) { f.TextAlignment = 1; });
    add([](CellFormat& f) { f.TextMarginLeft = 1; });
    add([](CellFormat& f) { f.TextMarginRight = 1; });
    add([](CellFormat& f) { f.FontName = FontName(u"A"); });
    add([](CellFormat& f) { f.FontBold = true; });
    add([](CellFormat& f) { f.FontItalic = true; });
    add([](CellFormat& f) { f.FontUnderline = true; });
    add([](CellFormat& f) { f.FontStrikeThrough = true; });
    add([](CellFormat& f) { f.FontSize = 1; });
    add([](CellFormat& f) { f.FontCharset = 1; });
    add([](CellFormat& f) { f.Disabled = true; });
    add([](CellFormat& f) { f.LightShade = 1; });
    add([](CellFormat& f) { f.BorderColor = 1; });
    add([](CellFormat& f) { f.DarkShade = 1; });
    add([](CellFormat& f) { f.GradientMode = 1; });
    add([](CellFormat& f) { f.GradientEnd = 1; });
    add([](CellFormat& f) { f.GradientStart.Color = 1; });
    add([](CellFormat& f) { f.GradientStart.Red = 1; });
    add([](CellFormat& f) { f.GradientStop.Color = 1; });
    add([](CellFormat& f) { f.GradientStop.Blue = 1; });
    return formats;
}

TEST(FormatTableTest, NumberZeroIsTheZeroedFormat)
{
    FormatTable table;
    EXPECT_EQ(table[FormatTable::ZeroFormat], CellFormat());
    EXPECT_EQ(table.Intern(CellFormat()), FormatTable::ZeroFormat);
    EXPECT_EQ(table.Count(), 1u);
}

TEST(FormatTableTest, EqualFormatsAreOneEntry)
{
    FormatTable table;
    CellFormat format = WithForeColor(5);
    format.FontName = FontName(u"Arial");
    const FormatId id = table.Intern(format);
    format.FontName = FontName(std::u16string(u"Ari") + u"al");
    EXPECT_EQ(table.Intern(format), id);
    EXPECT_EQ(table[id], format);
    EXPECT_EQ(table.Count(), 2u);
}

TEST(FormatTableTest, EveryFieldTellsFormatsApart)
{
    FormatTable table;
    std::map<FormatId, CellFormat> seen { { 0, CellFormat() } };
    for (const CellFormat& format : OneFieldEach())
        EXPECT_TRUE(seen.emplace(table.Intern(format), format).second);
    for (const auto& [id, format] : seen)
        EXPECT_EQ(table[id], format);
}

TEST(FormatTableTest, EditsMakeOtherEntriesAndLeaveTheOld)
{
    FormatTable table;
    const FormatId before = table.Intern(WithForeColor(1));
    const FormatId after = table.Edited(before, [](CellFormat& format) { format.BackColor = 9; });
    EXPECT_NE(after, before);
    EXPECT_EQ(table[before], WithForeColor(1));
    EXPECT_EQ(table[after].BackColor, 9u);
    EXPECT_EQ(table[after].ForeColor, 1u);
    EXPECT_EQ(table.Edited(before, [](CellFormat&) {}), before);
}

TEST(FormatTableTest, HoldsManyFormats)
{
    FormatTable table;
    std::vector<FormatId> ids;
    for (OleColor color = 1; color <= 5000; ++color)
        ids.push_back(table.Intern(WithForeColor(color)));
    EXPECT_EQ(table.Count(), 5001u);
    for (OleColor color = 1; color <= 5000; ++color) {
        ASSERT_EQ(table[ids[color - 1]].ForeColor, color);
        ASSERT_EQ(table.Intern(WithForeColor(color)), ids[color - 1]);
    }
}

TEST(FormatTableTest, AMapperRunsTheEditOnceForEachEntry)
{
    FormatTable table;
    const FormatId first = table.Intern(WithForeColor(1));
    const FormatId second = table.Intern(WithForeColor(2));
    int runs = 0;
    const FormatEdit edit = [&](CellFormat& format) {
        ++runs;
        format.BackColor = 7;
    };
    FormatTable::Mapper mapper(table, edit);
    const FormatId firstEdited = mapper(first);
    const FormatId secondEdited = mapper(second);
    for (int again = 0; again < 3; ++again) {
        EXPECT_EQ(mapper(first), firstEdited);
        EXPECT_EQ(mapper(first), firstEdited);
        EXPECT_EQ(mapper(second), secondEdited);
    }
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(table[firstEdited].ForeColor, 1u);
    EXPECT_EQ(table[secondEdited].BackColor, 7u);
    // Entries that came while mapping can be mapped as well.
    EXPECT_EQ(mapper(secondEdited), secondEdited);
    EXPECT_EQ(runs, 3);
}

TEST(FormatTableTest, SweepingKeepsMarkedNumbersAndFreesOthers)
{
    FormatTable table;
    const FormatId kept = table.Intern(WithForeColor(1));
    const FormatId dropped = table.Intern(WithForeColor(2));
    const FormatId beyond = table.Intern(WithForeColor(3));
    std::vector<bool> marked(beyond);
    marked[kept] = true;
    table.Sweep(marked);
    EXPECT_EQ(table.Count(), 2u);
    EXPECT_EQ(table[kept], WithForeColor(1));
    EXPECT_EQ(table[FormatTable::ZeroFormat], CellFormat()) << "never swept";
    EXPECT_EQ(table.Intern(WithForeColor(1)), kept);

    const FormatId reused = table.Intern(WithForeColor(4));
    const FormatId alsoReused = table.Intern(WithForeColor(2));
    EXPECT_TRUE(reused == dropped || reused == beyond);
    EXPECT_TRUE(alsoReused == dropped || alsoReused == beyond);
    EXPECT_NE(reused, alsoReused);
    EXPECT_EQ(table[reused], WithForeColor(4));
    EXPECT_EQ(table.NumberLimit(), 4u);
}

TEST(FormatTableTest, AsksForASweepAgainOnlyWhenTheEntriesHaveDoubled)
{
    FormatTable table;
    OleColor color = 1;
    while (!table.WantsSweep())
        table.Intern(WithForeColor(color++));
    const std::size_t count = table.Count();
    table.Sweep(std::vector<bool>(table.NumberLimit(), true));
    EXPECT_EQ(table.Count(), count);
    EXPECT_FALSE(table.WantsSweep());
    while (!table.WantsSweep())
        table.Intern(WithForeColor(color++));
    EXPECT_EQ(table.Count(), 2 * count);
}

TEST(FormatTableTest, FollowsAPlainMapThroughRandomSweeps)
{
    RandomNumbers random(3);
    FormatTable table;
    std::map<FormatId, OleColor> model; // entries somebody uses
    for (int step = 0; step < 3000; ++step) {
        if (random.OneIn(40)) {
            std::vector<bool> marked(table.NumberLimit());
            for (auto entry = model.begin(); entry != model.end();) {
                const bool keep = random.OneIn(2);
                marked[entry->first] = keep;
                entry = keep ? std::next(entry) : model.erase(entry);
            }
            table.Sweep(marked);
            ASSERT_EQ(table.Count(), model.size() + 1);
        } else {
            const OleColor color = static_cast<OleColor>(random.Between(1, 300));
            const FormatId id = table.Intern(WithForeColor(color));
            const auto [entry, isNew] = model.emplace(id, color);
            ASSERT_EQ(entry->second, color);
        }
        for (const auto& [id, color] : model)
            ASSERT_EQ(table[id].ForeColor, color);
    }
}

} // namespace
} // namespace vornix
