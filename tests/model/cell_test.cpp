#include "model/cell.h"

#include "vornix/picture.h"

#include <array>
#include <gtest/gtest.h>

namespace vornix {
namespace {

PicturePtr OnePixel()
{
    const std::array<u8, 4> rgba { 1, 2, 3, 255 };
    return PictureObject::FromRgba(1, 1, rgba);
}

TEST(CellTest, IsSmall)
{
    EXPECT_LE(sizeof(Cell), 24u);
}

TEST(CellTest, StartsBlank)
{
    const Cell cell;
    EXPECT_EQ(cell.Text(), u"");
    EXPECT_FALSE(cell.HasText());
    EXPECT_EQ(cell.Key(), u"");
    EXPECT_EQ(cell.Picture(), nullptr);
    EXPECT_EQ(cell.FormatNumber(), 0u);
    EXPECT_EQ(cell.RowSpan(), 0);
    EXPECT_EQ(cell.ColSpan(), 0);
    EXPECT_EQ(cell.ParentRow(), 0);
    EXPECT_EQ(cell.ParentCol(), 0);
    EXPECT_FALSE(cell.IsChild());
    EXPECT_FALSE(cell.ButtonPressed());
}

TEST(CellTest, KeepsTextAndKeyApart)
{
    Cell cell;
    cell.SetText(u"text");
    cell.SetKey(std::u16string_view(u"k\0y", 3));
    EXPECT_EQ(cell.Text(), u"text");
    EXPECT_EQ(cell.Key(), std::u16string_view(u"k\0y", 3));
    EXPECT_TRUE(cell.TextEquals(u"text"));
    cell.SetKey(cell.Key().substr(1));
    EXPECT_EQ(cell.Key(), std::u16string_view(u"\0y", 2));
}

TEST(CellTest, IsAChildWithEitherOffset)
{
    Cell cell;
    cell.SetParentRow(-1);
    EXPECT_TRUE(cell.IsChild());
    cell.SetParentRow(0);
    EXPECT_FALSE(cell.IsChild());
    cell.SetParentCol(-3);
    EXPECT_TRUE(cell.IsChild());
}

TEST(CellTest, HoldsNothingExtraOnceEverythingIsPlainAgain)
{
    Cell cell;
    cell.SetText(u"text");
    cell.SetFormatNumber(7);
    EXPECT_FALSE(cell.HasExtras());

    cell.SetKey(u"");
    cell.SetPicture(nullptr);
    cell.SetRowSpan(0);
    cell.SetButtonPressed(false);
    EXPECT_FALSE(cell.HasExtras()) << "writing what a plain cell has";

    cell.SetKey(u"key");
    EXPECT_TRUE(cell.HasExtras());
    cell.SetKey(u"");
    EXPECT_FALSE(cell.HasExtras());

    cell.SetPicture(OnePixel());
    EXPECT_TRUE(cell.HasExtras());
    cell.SetPicture(nullptr);
    EXPECT_FALSE(cell.HasExtras());

    cell.SetButtonPressed(true);
    EXPECT_TRUE(cell.HasExtras());
    cell.SetButtonPressed(false);
    EXPECT_FALSE(cell.HasExtras());

    cell.SetRowSpan(2);
    cell.SetColSpan(3);
    cell.SetParentRow(-1);
    cell.SetParentCol(-2);
    cell.ClearSpan();
    EXPECT_FALSE(cell.HasExtras());
}

TEST(CellTest, ClearingASpanKeepsTheRest)
{
    Cell cell;
    cell.SetKey(u"key");
    cell.SetColSpan(3);
    cell.ClearSpan();
    EXPECT_EQ(cell.Key(), u"key");
    EXPECT_EQ(cell.ColSpan(), 0);
}

TEST(CellTest, ClearingContentsKeepsKeyAndSpan)
{
    Cell cell;
    cell.SetText(u"text");
    cell.SetKey(u"key");
    cell.SetPicture(OnePixel());
    cell.SetRowSpan(2);
    cell.ClearContents();
    EXPECT_FALSE(cell.HasText());
    EXPECT_EQ(cell.Picture(), nullptr);
    EXPECT_EQ(cell.Key(), u"key");
    EXPECT_EQ(cell.RowSpan(), 2);
}

TEST(CellTest, CopiesShareOnlyThePicture)
{
    const PicturePtr picture = OnePixel();
    Cell original;
    original.SetText(u"a text that is long enough for the heap");
    original.SetKey(u"key");
    original.SetPicture(picture);
    original.SetColSpan(2);
    Cell copy = original;
    EXPECT_EQ(picture.use_count(), 3);

    original.SetText(u"other");
    original.SetKey(u"other");
    original.SetPicture(nullptr);
    original.SetColSpan(0);
    EXPECT_EQ(copy.Text(), u"a text that is long enough for the heap");
    EXPECT_EQ(copy.Key(), u"key");
    EXPECT_EQ(copy.Picture(), picture);
    EXPECT_EQ(copy.ColSpan(), 2);
    copy = original;
    EXPECT_EQ(copy.Text(), u"other");
    EXPECT_EQ(copy.Picture(), nullptr);
    EXPECT_EQ(picture.use_count(), 1);
}

TEST(CellTest, CountsWhatItHoldsOnTheHeap)
{
    Cell cell;
    EXPECT_EQ(cell.HeapBytes(), 0u);
    cell.SetText(u"0123456789");
    EXPECT_EQ(cell.HeapBytes(), 0u);
    cell.SetText(u"0123456789AB");
    EXPECT_EQ(cell.HeapBytes(), 16u);
    cell.SetColSpan(2);
    EXPECT_EQ(cell.HeapBytes(), 16u + sizeof(CellExtras));
    cell.SetKey(std::u16string(100, u'k'));
    EXPECT_GE(cell.HeapBytes(), 16u + sizeof(CellExtras) + 200u);
}

} // namespace
} // namespace vornix
