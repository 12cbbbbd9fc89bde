// Lines made anew from the defaults.
#include "model/store_support.h"
#include "vornix/picture.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

FormatEdit PaintWith(OleColor color)
{
    return [color](CellFormat& format) { format.BackColor = color; };
}

PicturePtr OnePixel()
{
    return PictureObject::FromRgba(1, 1, std::vector<u8>(4));
}

TEST(GridStoreInitTest, BuildsFixedAndPlainLines)
{
    const auto store = BuildStore(2, 2, 1, 1);
    EXPECT_EQ(store->HeightOf(0), 21);
    EXPECT_EQ(store->WidthOf(0), 30);
    EXPECT_EQ(store->WidthOf(1), 120);
    EXPECT_EQ(store->ColumnAt(0).Order, -1);
    EXPECT_EQ(store->ColumnAt(2).Order, 1);
    EXPECT_TRUE(store->ColumnAt(1).Resizable);
    EXPECT_TRUE(store->RowAt(1).Resizable);
    EXPECT_EQ(store->RowAt(1).LineColor, 0x8000000Fu);
    EXPECT_EQ(store->ColDefaults(0), store->Defaults.DefaultCellFormatFixed);
    EXPECT_EQ(store->ColDefaults(1), store->Defaults.DefaultCellFormat);
    EXPECT_EQ(store->Format(0, 1), store->Defaults.DefaultCellFormatFixed);
    EXPECT_EQ(store->Format(1, 0), store->Defaults.DefaultCellFormatFixed);
    EXPECT_EQ(store->Format(1, 1), store->Defaults.DefaultCellFormat);
}

TEST(GridStoreInitTest, ResizeFlagsComeFromTheDefaults)
{
    GridStore store;
    store.Defaults.ColsResizable = false;
    store.InitGridStore(SystemColors());
    EXPECT_FALSE(store.ColumnAt(0).Resizable);
    EXPECT_TRUE(store.RowAt(0).Resizable);
}

TEST(GridStoreInitTest, FillersAreSetUpWhenAdjusted)
{
    const auto store = BuildStore(2, 2, 1, 1);
    EXPECT_EQ(store->WidthOf(3), 0);
    EXPECT_EQ(store->HeightOf(3), 0);
    EXPECT_FALSE(store->ColumnAt(3).Resizable);
    EXPECT_FALSE(store->RowAt(3).Resizable);
    EXPECT_EQ(store->Format(3, 0), store->Defaults.DefaultCellFormatFixed);
    EXPECT_EQ(store->Format(3, 1), store->Defaults.DefaultCellFormat);
}

TEST(GridStoreInitTest, FillersAreOrdinaryLinesWhenNotAdjusted)
{
    GridStore store;
    store.Defaults.AdjustLastCol = store.Defaults.AdjustLastRow = false;
    store.InitGridStore(SystemColors());
    EXPECT_EQ(store.WidthOf(1), 120);
    EXPECT_EQ(store.HeightOf(1), 21);
    EXPECT_TRUE(store.RowAt(1).Resizable);
}

TEST(GridStoreInitTest, BuildingAgainStartsOver)
{
    const auto store = BuildStore(2, 2);
    store->EditCell(0, 0).SetText(u"old");
    store->RowAt(0).Hidden = true;
    store->StoreRows(3);
    store->InitGridStore(SystemColors());
    EXPECT_EQ(store->MaxRow(), 3);
    EXPECT_FALSE(store->CellAt(0, 0).HasText());
    EXPECT_FALSE(store->RowAt(0).Hidden);
}

TEST(GridStoreInitTest, NegativeFixedRowsCannotBeBuilt)
{
    EXPECT_EQ(ErrorOf([] { BuildStore(3, 1, -1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([] { BuildStore(-1, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([] { BuildStore(1, -1); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(GridStoreInitTest, NewRowsTakeTheirColumnsDefaultsFixedOnesIncluded)
{
    const auto store = BuildStore(1, 1, 0, 1);
    store->EditColDefaults(0, PaintWith(3));
    store->EditColDefaults(1, PaintWith(4));
    ChangeRows(*store, 2);
    EXPECT_EQ(store->Format(1, 0).BackColor, 3u);
    EXPECT_EQ(store->Format(1, 1).BackColor, 4u);
}

TEST(GridStoreInitTest, NewRowsKeepTheHiddenMarkOfTheirSlot)
{
    const auto store = BuildStore(3, 1);
    Row& row = store->RowAt(1);
    row.Hidden = true;
    row.SavedHeight = 44;
    row.RecordPos = 9;
    row.NextSkip = row.PrevSkip = 2;
    store->EditCell(1, 0).SetText(u"text");
    store->EditCell(1, 0).SetKey(u"key");
    store->InitRows(1, 1);
    EXPECT_TRUE(store->RowAt(1).Hidden);
    EXPECT_EQ(store->RowAt(1).SavedHeight, 44);
    EXPECT_EQ(store->RowAt(1).RecordPos, 0);
    EXPECT_EQ(store->RowAt(1).NextSkip, 0);
    EXPECT_EQ(store->RowAt(1).PrevSkip, 0);
    EXPECT_EQ(store->HeightOf(1), 21);
    EXPECT_FALSE(store->CellAt(1, 0).HasText());
    EXPECT_EQ(store->CellAt(1, 0).Key(), u"");
}

TEST(GridStoreInitTest, NewFixedRowsKeepTheirLinks)
{
    const auto store = BuildStore(3, 1, 1);
    store->RowAt(0).NextSkip = 1;
    store->RowAt(0).RecordPos = 4;
    store->InitFixedRows(0, 0);
    EXPECT_EQ(store->RowAt(0).NextSkip, 1);
    EXPECT_EQ(store->RowAt(0).RecordPos, 0);
}

TEST(GridStoreInitTest, RangesThatAreEmptyOrFixedAreLeftAlone)
{
    const auto store = BuildStore(2, 2, 1, 1);
    store->EditCell(0, 0).SetText(u"fixed");
    store->EditCell(1, 1).SetText(u"plain");
    store->InitRows(0, 2);
    store->InitRows(2, 1);
    store->InitCols(0, 2);
    store->InitCols(2, 1);
    store->InitFixedRows(1, 0);
    store->InitFixedCols(1, 0);
    EXPECT_EQ(store->CellAt(0, 0).Text(), u"fixed");
    EXPECT_EQ(store->CellAt(1, 1).Text(), u"plain");
    EXPECT_EQ(ErrorOf([&] { store->InitRows(2, 9); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->InitCols(2, 9); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->InitFixedCols(-1, 0); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(GridStoreInitTest, NewColumnsEmptyTextAndPictureButKeepKeyAndSpan)
{
    const auto store = BuildStore(2, 2, 1);
    Cell& cell = store->EditCell(1, 1);
    cell.SetText(u"text");
    cell.SetKey(u"key");
    cell.SetPicture(OnePixel());
    cell.SetRowSpan(2);
    store->ColumnAt(1).Width = 5;
    store->ColumnAt(1).Name = u"name";
    store->InitCols(1, 1);
    EXPECT_FALSE(store->CellAt(1, 1).HasText());
    EXPECT_EQ(store->CellAt(1, 1).Picture(), nullptr);
    EXPECT_EQ(store->CellAt(1, 1).Key(), u"key");
    EXPECT_EQ(store->CellAt(1, 1).RowSpan(), 2);
    EXPECT_EQ(store->WidthOf(1), 120);
    EXPECT_EQ(store->ColumnAt(1).Name, u"name");
    EXPECT_EQ(store->Format(0, 1), store->Defaults.DefaultCellFormatFixed);
    EXPECT_EQ(store->Format(1, 1), store->Defaults.DefaultCellFormat);
}

TEST(GridStoreInitTest, NewColumnsHaveNoModeInTheFillerRow)
{
    GridStore store;
    store.Defaults.DefaultMode = vxTextBox;
    store.StoreRows(2);
    store.InitGridStore(SystemColors());
    store.InitCols(0, 0);
    EXPECT_EQ(store.Format(1, 0).Mode, vxTextBox);
    EXPECT_EQ(store.Format(2, 0).Mode, vxCellFixed);
    EXPECT_EQ(store.Format(2, 0).BackColor, store.Defaults.DefaultCellFormat.BackColor);
}

TEST(GridStoreInitTest, FixedColumnsAreFixedInEveryRow)
{
    const auto store = BuildStore(2, 2);
    store->EditCell(1, 0).SetText(u"moves");
    ChangeFixedCols(*store, 1);
    EXPECT_EQ(store->MaxCol(), 3);
    EXPECT_EQ(store->WidthOf(0), 30);
    EXPECT_EQ(store->CellAt(1, 1).Text(), u"moves");
    for (int row = 0; row <= store->MaxRow(); ++row)
        EXPECT_EQ(store->Format(row, 0), store->Defaults.DefaultCellFormatFixed);
}

TEST(GridStoreInitTest, TheFillerColumnTakesOnlyTheBackColourOfItsNeighbour)
{
    const auto store = BuildStore(2, 2, 1, 1);
    const auto restyle = [](CellFormat& format) {
        format.BackColor = 77;
        format.ForeColor = 78;
    };
    store->EditFormat(0, 2, restyle);
    store->EditFormat(1, 2, restyle);
    store->EditCell(1, 3).SetText(u"gone");
    store->EditCell(1, 3).SetColSpan(2);
    store->ColumnAt(3).UseAsField[1] = 4;
    store->InitFillerCol();
    EXPECT_EQ(store->Format(0, 3), store->Format(0, 2)) << "whole in a fixed row";
    CellFormat expected = store->Defaults.DefaultCellFormat;
    expected.BackColor = 77;
    EXPECT_EQ(store->Format(1, 3), expected);
    EXPECT_EQ(store->Format(2, 3), store->Defaults.DefaultCellFormat);
    EXPECT_FALSE(store->CellAt(1, 3).HasText());
    EXPECT_EQ(store->CellAt(1, 3).ColSpan(), 0);
    EXPECT_EQ(store->ColumnAt(3).UseAsField[1], 0);
}

TEST(GridStoreInitTest, TheFillerRowCopiesFixedColumnsFromAnotherRowThanTheLast)
{
    const auto store = BuildStore(2, 1, 2, 1);
    store->EditFormat(1, 0, PaintWith(11)); // internal row Rows - 1
    store->EditFormat(3, 0, PaintWith(12)); // the last row
    store->InitFillerRow();
    EXPECT_EQ(store->Format(4, 0).BackColor, 11u);
    EXPECT_EQ(store->Format(4, 1), store->Defaults.DefaultCellFormat);
}

TEST(GridStoreInitTest, ResettingAttributesKeepsContents)
{
    const auto store = BuildStore(3, 3, 1, 1);
    const PicturePtr picture = OnePixel();
    Cell& cell = store->EditCell(2, 2);
    cell.SetText(u"text");
    cell.SetKey(u"key");
    cell.SetPicture(picture);
    cell.SetRowSpan(2);
    cell.SetParentCol(-1);
    cell.SetButtonPressed(true);
    store->EditFormat(2, 2, [](CellFormat& format) { format.Disabled = true; });
    Row& row = store->RowAt(2);
    row.Hidden = true;
    row.Height = 0;
    row.SavedHeight = 30;
    row.NextSkip = 1;
    Column& column = store->ColumnAt(2);
    column.Hidden = true;
    column.Width = 0;
    column.WidthPercent = 50;
    column.Order = 7;
    column.Name = u"name";
    column.Title = column.Format = column.Mask = u"gone";
    column.SpanRows = true;
    store->EditColDefaults(2, PaintWith(5));

    store->ResetAttributes();

    const Cell& after = store->CellAt(2, 2);
    EXPECT_EQ(after.Text(), u"text");
    EXPECT_EQ(after.Key(), u"key");
    EXPECT_EQ(after.Picture(), picture);
    EXPECT_EQ(after.RowSpan(), 0);
    EXPECT_EQ(after.ParentCol(), 0);
    EXPECT_FALSE(after.ButtonPressed());
    EXPECT_EQ(store->Format(2, 2), store->Defaults.DefaultCellFormat);
    EXPECT_EQ(store->Format(0, 2), store->Defaults.DefaultCellFormatFixed);
    EXPECT_EQ(store->Format(2, 0), store->Defaults.DefaultCellFormatFixed);
    EXPECT_FALSE(store->RowAt(2).Hidden);
    EXPECT_EQ(store->HeightOf(2), 21);
    EXPECT_EQ(store->RowAt(2).SavedHeight, 0);
    EXPECT_EQ(store->RowAt(2).NextSkip, 1) << "the chain is left alone";
    EXPECT_TRUE(store->ColumnAt(2).Hidden) << "columns stay marked";
    EXPECT_EQ(store->WidthOf(2), 120);
    EXPECT_EQ(store->ColumnAt(2).WidthPercent, 0);
    EXPECT_EQ(store->ColumnAt(2).Order, 1);
    EXPECT_EQ(store->ColumnAt(2).Name, u"name");
    EXPECT_EQ(store->ColumnAt(2).Title + store->ColumnAt(2).Format + store->ColumnAt(2).Mask, u"");
    EXPECT_EQ(store->ColDefaults(2), store->Defaults.DefaultCellFormat);
}

// Names its columns and gives them a title.
class TitleSettings : public ColumnSettings {
public:
    bool ApplyTo(GridStore& store, int first, int last) override
    {
        ranges.emplace_back(first, last);
        for (int col = first; col <= last; ++col) {
            store.ColumnAt(col).Title = u"Title";
            store.ColumnAt(col).Width = 55;
            store.EditColDefaults(col, PaintWith(21));
        }
        return applies;
    }
    bool applies = true;
    std::vector<std::pair<int, int>> ranges;
};

TEST(GridStoreInitTest, ColumnSettingsShapeNewColumns)
{
    TitleSettings settings;
    GridStore store;
    store.StoreCols(2);
    store.StoreFixedRows(2);
    store.StoreFixedCols(1);
    store.SetColumnSettings(&settings);
    store.InitGridStore(SystemColors());
    EXPECT_EQ(settings.ranges, (std::vector<std::pair<int, int>> { { 1, 2 } }));
    EXPECT_EQ(store.WidthOf(1), 55);
    EXPECT_EQ(store.Format(2, 1).BackColor, 21u);
    EXPECT_EQ(store.CellAt(1, 1).Text(), u"Title") << "in the last fixed row";
    EXPECT_EQ(store.CellAt(0, 1).Text(), u"");
    EXPECT_EQ(store.CellAt(1, 0).Text(), u"");
    ChangeCols(store, 3);
    EXPECT_EQ(settings.ranges.back(), std::pair(3, 3));
    EXPECT_EQ(store.WidthOf(3), 55);
    EXPECT_EQ(store.Format(2, 3).BackColor, 21u);
    settings.applies = false;
    ChangeCols(store, 4);
    EXPECT_EQ(store.WidthOf(4), 120);
    EXPECT_EQ(store.Format(2, 4), store.Defaults.DefaultCellFormat);
}

} // namespace
} // namespace vornix
