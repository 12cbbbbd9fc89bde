// The sample database is what a newcomer sees first.
#include "open_source.h"
#include "scratch_folder.h"

#include "vornix/sqlite/database.h"

#include <gmock/gmock.h>

#include <cstdlib>

using namespace vornix;
using namespace vornix::viewer;

namespace {

const std::string Sample = VORNIX_DATA "/sample.db";

Table Open(const std::string& table = {})
{
    ViewerOptions options;
    options.file = Sample;
    if (!table.empty())
        options.table = table;
    return OpenSource(options, {}, {});
}

bool AnyText(const Table& table, const std::function<bool(std::u16string_view)>& test)
{
    for (int row = 0; row < table.RowCount(); ++row) {
        for (int column = 0; column < table.ColumnCount(); ++column) {
            if (test(table.Text(row, column)))
                return true;
        }
    }
    return false;
}

bool HasCharacterBetween(std::u16string_view text, char16_t first, char16_t last)
{
    return std::any_of(text.begin(), text.end(), [&](char16_t unit) { return unit >= first && unit <= last; });
}

} // namespace

TEST(SampleDatabase, IsSmall)
{
    EXPECT_LT(std::filesystem::file_size(Sample), 2'000'000u);
}

TEST(SampleDatabase, OpensWithTheOverviewOfOrders)
{
    const Table table = Open();
    EXPECT_EQ(table.Name(), u"orders_overview");
    EXPECT_EQ(table.RowCount(), 1600);
    std::vector<ColumnKind> kinds;
    for (const Column& column : table.Columns())
        kinds.push_back(column.kind);
    EXPECT_THAT(kinds,
        testing::ElementsAre(ColumnKind::Integer, ColumnKind::Date, ColumnKind::Text, ColumnKind::Text,
            ColumnKind::Text, ColumnKind::Integer, ColumnKind::Money, ColumnKind::Boolean, ColumnKind::Text,
            ColumnKind::Date, ColumnKind::Text, ColumnKind::Text));
}

TEST(SampleDatabase, WritesNamesInManyScripts)
{
    const Table customers = Open("customers");
    const std::pair<char16_t, char16_t> scripts[]
        = { { 0x370, 0x3FF }, { 0x400, 0x4FF }, { 0x590, 0x5FF }, { 0x600, 0x6FF }, { 0x900, 0x97F }, { 0xE00, 0xE7F },
              { 0x3040, 0x30FF }, { 0x4E00, 0x9FFF }, { 0xAC00, 0xD7A3 }, { 0x1E00, 0x1EFF }, { 0x300, 0x36F } };
    for (const auto& [first, last] : scripts)
        EXPECT_TRUE(AnyText(customers, [&](auto text) { return HasCharacterBetween(text, first, last); }))
            << std::hex << int(first);
}

TEST(SampleDatabase, HasLongNotesWithLineBreaksAndEmoji)
{
    const Table notes = Open("notes");
    EXPECT_TRUE(AnyText(notes, [](auto text) { return text.size() > 150 && text.find(u'\n') != text.npos; }));
    EXPECT_TRUE(AnyText(notes, [](auto text) { return HasCharacterBetween(text, 0xD83C, 0xD83E); }));
}

TEST(SampleDatabase, HasNoBrokenRelations)
{
    sqlite::Database database(Sample);
    sqlite::Statement broken = database.ReadQuery("PRAGMA foreign_key_check");
    EXPECT_FALSE(broken.Next());
    sqlite::Statement wrongTotals
        = database.ReadQuery("SELECT o.order_id FROM orders o JOIN order_lines l USING (order_id) GROUP BY o.order_id"
                             " HAVING abs(o.total - sum(round(l.unit_price * l.quantity * (1 - l.discount), 2))) > 0.1"
                             " OR o.item_count <> sum(l.quantity)");
    EXPECT_FALSE(wrongTotals.Next());
    sqlite::Statement unpaid = database.ReadQuery(
        "SELECT o.order_id FROM orders o LEFT JOIN payments p USING (order_id) GROUP BY o.order_id"
        " HAVING o.paid <> (count(p.payment_id) > 0) OR (o.paid AND abs(sum(p.amount) - o.total) > 0.001)");
    EXPECT_FALSE(unpaid.Next());
}

TEST(SampleDatabase, ReadsEveryTableAndView)
{
    ViewerOptions options;
    options.file = Sample;
    std::uint64_t rows = 0;
    for (const SourceEntry& entry : ListSource(options)) {
        const Table table = Open(entry.name);
        EXPECT_GT(table.RowCount(), 0) << entry.name;
        EXPECT_TRUE(table.IsComplete()) << entry.name;
        rows += table.TotalRows();
    }
    EXPECT_GT(rows, 8000u);
}

TEST(SampleDatabase, IsWhatItsScriptMakes)
{
    const ScratchFolder folder;
    const std::string made = folder.Path("made.db");
    const std::string command = "python3 -B " VORNIX_DATA "/make_sample.py " + made;
    if (std::system("python3 --version > /dev/null 2>&1") != 0)
        GTEST_SKIP() << "there is no python3";
    ASSERT_EQ(std::system(command.c_str()), 0);
    ViewerOptions options;
    options.file = made;
    for (const SourceEntry& entry : ListSource(options)) {
        options.table = entry.name;
        const Table fresh = OpenSource(options, {}, {});
        const Table committed = Open(entry.name);
        ASSERT_EQ(fresh.RowCount(), committed.RowCount()) << entry.name;
        for (int row = 0; row < fresh.RowCount(); ++row) {
            for (int column = 0; column < fresh.ColumnCount(); ++column)
                ASSERT_EQ(fresh.Text(row, column), committed.Text(row, column)) << entry.name << ' ' << row;
        }
    }
}
