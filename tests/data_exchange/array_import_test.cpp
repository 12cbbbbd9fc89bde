#include "data/array_import.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

template <typename Step> int ErrorOf(Step&& step)
{
    try {
        step();
        return 0;
    } catch (const AutomationError& error) {
        return error.Number();
    }
}

class ArrayImport : public testing::Test {
protected:
    ArrayImport()
    {
        store.StoreRows(4);
        store.StoreCols(3);
        store.InitGridStore(SystemColors());
    }

    void Write(const VariantArray& array, NullElements nulls = NullElements::Skip, CellIndex first = {})
    {
        WriteArray(store, array, ShapeOf(array), first, nulls, BuiltinLocale());
    }
    std::u16string Text(int row, int col) const { return store.CellAt(row, col).Text(); }

    GridStore store;
};

} // namespace

TEST_F(ArrayImport, TheShapeIsColumnsByRecords)
{
    const ArrayShape shape = ShapeOf({ { { Variant(u"a"), Variant(u"b") }, { Variant(), Variant() }, { {}, {} } } });
    EXPECT_EQ(shape.columns, 3);
    EXPECT_EQ(shape.records, 2);
    EXPECT_FALSE(shape.IsEmpty());
    EXPECT_TRUE(ShapeOf({}).IsEmpty());
    EXPECT_TRUE(ShapeOf({ { {}, {} } }).IsEmpty());
}

TEST_F(ArrayImport, ColumnsOfDifferentLengthAreErrorNine)
{
    EXPECT_EQ(ErrorOf([] { ShapeOf({ { { Variant() }, { Variant(), Variant() } } }); }), 9);
    EXPECT_EQ(ErrorOf([] { ShapeOf({ { {}, { Variant() } } }); }), 9);
    EXPECT_EQ(ErrorOf([] { ShapeOf({ { { Variant() }, {} } }); }), 9);
}

TEST_F(ArrayImport, RecordsBecomeRows)
{
    Write({ { { Variant(u"a0"), Variant(u"a1") }, { Variant(u"b0"), Variant(u"b1") } } }, NullElements::Skip, { 1, 1 });
    EXPECT_EQ(Text(0, 1), u"");
    EXPECT_EQ(Text(1, 0), u"");
    EXPECT_EQ(Text(1, 1), u"a0");
    EXPECT_EQ(Text(1, 2), u"b0");
    EXPECT_EQ(Text(2, 1), u"a1");
    EXPECT_EQ(Text(2, 2), u"b1");
    EXPECT_EQ(Text(1, 3), u"") << "the filler";
}

TEST_F(ArrayImport, RowsThatShareTheirCellsAreWrittenApart)
{
    ASSERT_TRUE(store.RowAt(1).Cells.IsShared()) << "a new table shares the cells of its rows";
    Write({ { { Variant(u"a"), Variant(u"b") } } });
    EXPECT_EQ(Text(0, 0), u"a");
    EXPECT_EQ(Text(1, 0), u"b");
    EXPECT_EQ(Text(2, 0), u"");
    EXPECT_EQ(Text(3, 0), u"");
    EXPECT_EQ(Text(4, 0), u"");
}

TEST_F(ArrayImport, KeepsEverythingButTheText)
{
    store.EditCell(0, 0).SetKey(u"key");
    store.EditCell(0, 0).SetColSpan(2);
    store.EditCell(0, 0).SetButtonPressed(true);
    store.EditFormat(0, 0, [](CellFormat& format) { format.ForeColor = 0x123456; });
    Write({ { { Variant(u"text") } } });
    const Cell& cell = store.CellAt(0, 0);
    EXPECT_EQ(cell.Text(), u"text");
    EXPECT_EQ(cell.Key(), u"key");
    EXPECT_EQ(cell.ColSpan(), 2);
    EXPECT_TRUE(cell.ButtonPressed());
    EXPECT_EQ(store.Format(0, 0).ForeColor, 0x123456u);
}

TEST_F(ArrayImport, SkippedNullsLeaveTheirCellsAlone)
{
    store.EditCell(0, 0).SetText(u"kept");
    store.EditCell(1, 0).SetText(u"gone");
    Write({ { { Variant::Null(), Variant() } } });
    EXPECT_EQ(Text(0, 0), u"kept");
    EXPECT_EQ(Text(1, 0), u"") << "an empty element is the empty text";
}

TEST_F(ArrayImport, ConvertedNullsAreErrorNinetyFourAfterWhatCameBefore)
{
    const VariantArray array { { { Variant(u"a0"), Variant(u"a1"), Variant(u"a2") },
        { Variant(u"b0"), Variant::Null(), Variant(u"b2") }, { Variant(u"c0"), Variant(u"c1"), Variant(u"c2") } } };
    EXPECT_EQ(ErrorOf([&] { Write(array, NullElements::Convert); }), 94);
    EXPECT_EQ(Text(0, 2), u"c0");
    EXPECT_EQ(Text(1, 0), u"a1");
    EXPECT_EQ(Text(1, 1), u"");
    EXPECT_EQ(Text(1, 2), u"");
    EXPECT_EQ(Text(2, 0), u"");
}

TEST_F(ArrayImport, CellsOutsideTheTableAreErrorNine)
{
    const VariantArray array { { { Variant(u"a"), Variant(u"b") } } };
    EXPECT_EQ(ErrorOf([&] { Write(array, NullElements::Skip, { 4, 0 }); }), 9);
    EXPECT_EQ(Text(4, 0), u"a");
    EXPECT_EQ(ErrorOf([&] { Write(array, NullElements::Skip, { 0, 4 }); }), 9);
}

TEST_F(ArrayImport, AnArrayThatHasBecomeSmallerIsErrorNine)
{
    const VariantArray array { { { Variant(u"a"), Variant(u"b") } } };
    const auto write
        = [&](ArrayShape shape) { WriteArray(store, array, shape, {}, NullElements::Skip, BuiltinLocale()); };
    EXPECT_EQ(ErrorOf([&] { write({ 1, 3 }); }), 9);
    EXPECT_EQ(ErrorOf([&] { write({ 2, 2 }); }), 9);
}

} // namespace vornix
