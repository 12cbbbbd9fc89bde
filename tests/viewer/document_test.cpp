#include "document.h"

#include <gmock/gmock.h>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// What a test wants of it, and what it was told to save.
class FakeSaver final : public Saver {
public:
    std::optional<std::string> WhyReadOnly() const override { return whyReadOnly; }
    bool CanChange(int, int column) const override { return column == 0; }
    std::u16string_view LineBreak() const override { return lineBreak; }
    bool CanRemove(int row) const override { return row != 2; }
    bool CanFill(int column) const override { return column == 1; }
    SaveOutcome Save(const Changes& changes) override
    {
        if (fails)
            throw SaveError("the disk is gone");
        ++saves;
        for (const auto& [row, cells] : changes.Changed()) {
            for (const auto& [column, text] : cells)
                saved.push_back({ row, column, text });
        }
        removed = changes.Removed();
        added.clear();
        for (const Records::Addition& addition : changes.Added()) {
            added.push_back(addition.record);
            behind.push_back(addition.behind);
            for (const auto& [column, text] : changes.CellsOf(addition))
                saved.push_back({ addition.record, column, text });
        }
        return { others, gone };
    }

    std::optional<std::string> whyReadOnly;
    bool fails = false;
    std::u16string lineBreak;
    int saves = 0;
    std::vector<CellText> saved;
    std::vector<int> removed;
    std::vector<int> added;
    std::vector<int> behind;
    std::vector<CellText> others;
    std::vector<int> gone;
};

class DocumentTest : public testing::Test {
protected:
    static ChangeableSource MakeSource(FakeSaver*& saver)
    {
        auto table = std::make_unique<Table>();
        table->Columns() = { { u"a" }, { u"b" } };
        table->AppendRow(std::vector<Field> { { u"one" }, { u"1" } });
        table->AppendRow(std::vector<Field> { { u"x\ny" }, { u"2" } });
        table->AppendRow(std::vector<Field> { { u"x\r\ny" }, { u"3" } });
        auto made = std::make_unique<FakeSaver>();
        saver = made.get();
        return { std::move(table), std::move(made) };
    }

    FakeSaver* saver = nullptr;
    Document document { MakeSource(saver) };
};

} // namespace

TEST_F(DocumentTest, SavesWhatWasChangedAndHasItAsItsTextThen)
{
    document.Change(0, 0, u"two");
    EXPECT_TRUE(document.IsChanged());
    EXPECT_EQ(document.Text(0, 0), u"two");
    EXPECT_EQ(document.Saved().Text(0, 0), u"one");
    EXPECT_THAT(document.Save(), IsEmpty());
    EXPECT_THAT(saver->saved, ElementsAre(CellText { 0, 0, u"two" }));
    EXPECT_FALSE(document.IsChanged());
    EXPECT_EQ(document.Saved().Text(0, 0), u"two");
    document.Change(0, 0, u"one");
    EXPECT_TRUE(document.IsChanged()) << "the old text is a change now";
}

TEST_F(DocumentTest, SavesNothingWithoutAChange)
{
    EXPECT_THAT(document.Save(), IsEmpty());
    document.Change(0, 0, u"two");
    document.Change(0, 0, u"one");
    EXPECT_THAT(document.Save(), IsEmpty());
    EXPECT_EQ(saver->saves, 0);
}

TEST_F(DocumentTest, TakesWhatTheSourceHasMadeOfIt)
{
    saver->others = { { 0, 0, u"TWO" }, { 1, 1, u"22" } };
    document.Change(0, 0, u"two");
    EXPECT_EQ(document.Save(), saver->others);
    EXPECT_EQ(document.Text(0, 0), u"TWO");
    EXPECT_EQ(document.Text(1, 1), u"22");
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(DocumentTest, KeepsEveryChangeWhenSavingFails)
{
    document.Change(0, 0, u"two");
    saver->fails = true;
    EXPECT_THROW(document.Save(), SaveError);
    EXPECT_EQ(document.ChangeCount(), 1u);
    EXPECT_EQ(document.Text(0, 0), u"two");
    saver->fails = false;
    document.Save();
    EXPECT_THAT(saver->saved, ElementsAre(CellText { 0, 0, u"two" }));
}

TEST_F(DocumentTest, LetsOnlyThoseCellsBeChangedThatCanBeSaved)
{
    EXPECT_TRUE(document.CanChange(0, 0));
    EXPECT_FALSE(document.CanChange(0, 1));
    EXPECT_THROW(document.Change(0, 1, u"x"), std::logic_error);
    EXPECT_THROW(document.Change(3, 0, u"x"), std::out_of_range);
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(DocumentTest, HasNoChangesLeftThatAreSavedButCannotBeTakenOver)
{
    saver->others = { { 99, 0, u"no such cell" } };
    document.Change(0, 0, u"two");
    EXPECT_THROW(document.Save(), std::out_of_range);
    EXPECT_EQ(saver->saves, 1);
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(DocumentTest, WritesLineBreaksAsTheSourceDoesWhereTheCellHadNone)
{
    saver->lineBreak = u"\n";
    document.Change(0, 0, u"a\r\nb");
    document.Change(2, 0, u"z\r\ny");
    EXPECT_EQ(document.Text(0, 0), u"a\nb");
    EXPECT_EQ(document.Text(2, 0), u"z\r\ny");
}

TEST_F(DocumentTest, WritesLineBreaksAsTheCellHadThem)
{
    document.Change(0, 0, u"a\r\nb");
    document.Change(1, 0, u"\r\nx\r\ny\rz\n");
    document.Change(2, 0, u"x\ny\r\n!");
    EXPECT_EQ(document.Text(0, 0), u"a\r\nb");
    EXPECT_EQ(document.Text(1, 0), u"\nx\ny\nz\n");
    EXPECT_EQ(document.Text(2, 0), u"x\r\ny\r\n!");
    document.Change(1, 0, u"x\r\ny");
    EXPECT_EQ(document.ChangeCount(), 2u) << "an editor's breaks alone are no change";
}

TEST_F(DocumentTest, AddsRows)
{
    const int first = document.AddRow(1, Records::Side::Before);
    const int last = document.AddRow(2, Records::Side::Behind);
    EXPECT_EQ(first, 3);
    EXPECT_THAT(document.Rows(), ElementsAre(0, first, 1, 2, last));
    EXPECT_EQ(document.RowCount(), 5);
    EXPECT_EQ(document.TotalRows(), 5u);
    EXPECT_EQ(document.NameOf(last), "+2");
    EXPECT_EQ(document.Text(first, 1), u"");
    EXPECT_EQ(document.ChangeCount(), 2u);
    EXPECT_TRUE(document.CanChange(first, 1));
    EXPECT_FALSE(document.CanChange(first, 0)) << "the source fills it";
    document.Change(first, 1, u"new");
    EXPECT_EQ(document.ChangeCount(), 2u) << "the texts of a new row are no changes of their own";
    EXPECT_THAT(document.Save(), IsEmpty());
    EXPECT_THAT(saver->saved, ElementsAre(CellText { first, 1, u"new" }));
    EXPECT_THAT(saver->added, ElementsAre(first, last));
    EXPECT_THAT(saver->behind, ElementsAre(0, 2));
    EXPECT_FALSE(document.IsChanged());
    EXPECT_EQ(document.Saved().Text(first, 1), u"new");
    EXPECT_EQ(document.NameOf(first), "2");
    EXPECT_TRUE(document.CanChange(first, 0)) << "it is a row like others now";
}

TEST_F(DocumentTest, RemovesRowsAndTakesThemBack)
{
    document.Change(1, 0, u"changed");
    document.RemoveRow(0);
    document.RemoveRow(1);
    EXPECT_FALSE(document.CanRemove(2));
    EXPECT_THROW(document.RemoveRow(2), std::logic_error);
    EXPECT_THAT(document.Rows(), ElementsAre(2));
    EXPECT_EQ(document.ChangeCount(), 2u) << "what was changed in it goes with it";
    EXPECT_TRUE(document.RestoreRow(1));
    EXPECT_EQ(document.Text(1, 0), u"changed");
    EXPECT_EQ(document.ChangeCount(), 2u);
    document.Save();
    EXPECT_THAT(saver->removed, ElementsAre(0));
    EXPECT_THAT(saver->saved, ElementsAre(CellText { 1, 0, u"changed" }));
    EXPECT_FALSE(document.RestoreRow(0));
    EXPECT_EQ(document.RowCount(), 2);
    EXPECT_EQ(document.NameOf(1), "1");
}

TEST_F(DocumentTest, HasNoChangeWhereANewRowWasRemoved)
{
    const int row = document.AddRow(-1, Records::Side::Behind);
    document.Change(row, 1, u"x");
    document.RemoveRow(row);
    EXPECT_FALSE(document.IsChanged());
    EXPECT_THAT(document.Save(), IsEmpty());
    EXPECT_EQ(saver->saves, 0);
    document.RestoreRow(row);
    EXPECT_THAT(document.Rows(), ElementsAre(row, 0, 1, 2));
    EXPECT_EQ(document.Text(row, 1), u"x");
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(DocumentTest, HasNotTheRowsThatTheSourceHasRemoved)
{
    saver->gone = { 1 };
    document.RemoveRow(0);
    document.Save();
    EXPECT_THAT(document.Rows(), ElementsAre(2));
    EXPECT_FALSE(document.IsThere(1));
    EXPECT_FALSE(document.IsChanged());
    EXPECT_FALSE(document.RestoreRow(1));
}

TEST_F(DocumentTest, KeepsAddedAndRemovedRowsWhenSavingFails)
{
    document.AddRow(0, Records::Side::Behind);
    document.RemoveRow(1);
    saver->fails = true;
    EXPECT_THROW(document.Save(), SaveError);
    EXPECT_EQ(document.ChangeCount(), 2u);
    EXPECT_THAT(document.Rows(), ElementsAre(0, 3, 2));
    EXPECT_TRUE(document.RestoreRow(1));
}

TEST(Document, AddsNoMoreRowsThanTheGridHolds)
{
    auto table = std::make_unique<Table>();
    table->Columns() = { { u"a" } };
    for (int row = 0; row < LoadLimits().maxRows - 1; ++row)
        table->AppendRow(std::vector<Field> { { u"x" } });
    table->SetTotalRows(40'000);
    Document document({ std::move(table), std::make_unique<FakeSaver>() });
    EXPECT_EQ(document.WhyNoMoreRows(), std::nullopt);
    document.AddRow(0, Records::Side::Before);
    EXPECT_EQ(document.TotalRows(), 40'001u);
    EXPECT_EQ(document.WhyNoMoreRows(), "the grid holds no more than 32,765 rows");
    EXPECT_THROW(document.AddRow(0, Records::Side::Before), std::logic_error);
    document.RemoveRow(5);
    EXPECT_EQ(document.WhyNoMoreRows(), std::nullopt);
    EXPECT_EQ(document.WhyNoMoreRows(2), "the grid holds no more than 32,765 rows");
}

TEST(Document, IsReadOnlyWhereItsSourceIs)
{
    auto table = std::make_unique<Table>();
    table->Columns() = { { u"a" } };
    table->AppendRow(std::vector<Field> { { u"one" } });
    auto saver = std::make_unique<FakeSaver>();
    saver->whyReadOnly = "it is carved in stone";
    const Document document({ std::move(table), std::move(saver) });
    EXPECT_EQ(document.WhyReadOnly(), "it is carved in stone");
    EXPECT_FALSE(document.CanChange(0, 0));
    EXPECT_FALSE(document.CanRemove(0));
    EXPECT_EQ(document.WhyNoMoreRows(), "it is carved in stone");
}
