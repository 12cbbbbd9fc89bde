#include "made_database.h"

#include "vornix/sqlite/database.h"
#include "vornix/sqlite/table_layout.h"

#include <gmock/gmock.h>

using namespace vornix;
using namespace vornix::sqlite;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TableLayout LayoutOf(const std::string& sql)
{
    const MadeDatabase made(sql);
    return sqlite::LayoutOf(Database(made.Path()), "t");
}

std::string Flags(const TableLayout& layout, bool ColumnLayout::*flag)
{
    std::string flags;
    for (const ColumnLayout& column : layout.columns)
        flags += column.*flag ? '1' : '0';
    return flags;
}

} // namespace

TEST(TableLayout, NamesColumnsAndWhatIdentifiesARow)
{
    const TableLayout layout = LayoutOf("CREATE TABLE t(\"a b\" TEXT, c)");
    EXPECT_EQ(layout.name, "t");
    EXPECT_EQ(layout.kind, "table");
    ASSERT_EQ(layout.columns.size(), 2u);
    EXPECT_EQ(layout.columns[0].name, "a b");
    EXPECT_THAT(layout.key, ElementsAre("rowid"));
    EXPECT_THAT(LayoutOf("CREATE TABLE t(a, b, c, PRIMARY KEY(c, a)) WITHOUT ROWID").key, ElementsAre("c", "a"));
    EXPECT_THAT(LayoutOf("CREATE TABLE t(ROWID, b)").key, ElementsAre("_rowid_"));
    EXPECT_THAT(LayoutOf("CREATE TABLE t(ROWID, _rowid_)").key, ElementsAre("oid"));
    EXPECT_THAT(LayoutOf("CREATE TABLE t(rowid, _rowid_, oid UNIQUE)").key, IsEmpty());
    EXPECT_THAT(LayoutOf("CREATE TABLE t(rowid, _rowid_ PRIMARY KEY, oid)").key, ElementsAre("_rowid_"));
}

TEST(TableLayout, HasNoKeyForWhatIsNoTable)
{
    const TableLayout view = LayoutOf("CREATE TABLE u(a); CREATE VIEW t AS SELECT a FROM u");
    EXPECT_EQ(view.kind, "view");
    EXPECT_THAT(view.key, IsEmpty());
    const TableLayout search = LayoutOf("CREATE VIRTUAL TABLE t USING fts5(a)");
    EXPECT_EQ(search.kind, "virtual");
    EXPECT_THAT(search.key, IsEmpty());
    EXPECT_THROW(LayoutOf("CREATE TABLE u(a)"), Error);
}

TEST(TableLayout, KnowsComputedColumns)
{
    const TableLayout layout = LayoutOf("CREATE TABLE t(a, b AS (a), c AS (a) STORED, d)");
    EXPECT_EQ(Flags(layout, &ColumnLayout::isComputed), "0110");
}

TEST(TableLayout, KnowsColumnsThatTakeAnyType)
{
    const TableLayout layout
        = LayoutOf("CREATE TABLE t(a, b BLOB, c INT, d VARCHAR(9), e DOUBLE, f DATE, g BLOBINT, h ANY)");
    EXPECT_EQ(Flags(layout, &ColumnLayout::takesAnyType), "11000000");
    EXPECT_EQ(Flags(LayoutOf("CREATE TABLE t(a ANY, b TEXT) STRICT"), &ColumnLayout::takesAnyType), "10");
}
