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
    std::vector<CellText> Save(const Edits& edits) override
    {
        if (fails)
            throw SaveError("the disk is gone");
        ++saves;
        for (const auto& [row, cells] : edits.Rows()) {
            for (const auto& [column, text] : cells)
                saved.push_back({ row, column, text });
        }
        return others;
    }

    std::optional<std::string> whyReadOnly;
    bool fails = false;
    std::u16string lineBreak;
    int saves = 0;
    std::vector<CellText> saved;
    std::vector<CellText> others;
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
}
