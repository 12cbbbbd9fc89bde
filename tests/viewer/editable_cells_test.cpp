#include "editable_cells.h"

#include "present.h"

#include "vornix/headless_container.h"

#include <gtest/gtest.h>

using namespace vornix;
using namespace vornix::viewer;

namespace {

// Lets everything be changed but the first row of the second column.
class FakeSaver final : public Saver {
public:
    explicit FakeSaver(std::optional<std::string> reason)
        : reason_(std::move(reason))
    {
    }

    std::optional<std::string> WhyReadOnly() const override { return reason_; }
    bool CanChange(int row, int column) const override { return row != 0 || column != 1; }
    SaveOutcome Save(const Changes&) override { return {}; }

private:
    std::optional<std::string> reason_;
};

ChangeableSource Source(std::optional<std::string> reason)
{
    auto table = std::make_unique<Table>();
    table->Columns() = { { u"a" }, { u"b" }, { u"c", ColumnKind::Boolean, u"yes", u"no" } };
    table->AppendRow(std::vector<Field> { { u"one" }, { u"<blob, 2 bytes>" }, { u"-1" } });
    table->AppendRow(std::vector<Field> { { u"two\nlines" }, { u"x" }, { {}, true } });
    return { std::move(table), std::make_unique<FakeSaver>(std::move(reason)) };
}

// With a column of few texts and one of keys, which may be null.
ChangeableSource SourceOfLists()
{
    auto table = std::make_unique<Table>();
    table->Columns() = { { u"city" }, { u"country" } };
    for (int row = 0; row < 9; ++row)
        table->AppendRow(std::vector<Field> { { row % 2 ? u"Roma" : u"Bern" }, { row % 2 ? u"39" : u"41" } });
    return { std::move(table), std::make_unique<FakeSaver>(std::nullopt), { { 1, { u"", u"39", u"41", u"47" } } } };
}

// A grid that shows a document whose cells can be changed.
class Desk {
public:
    explicit Desk(std::optional<std::string> reason = {})
        : Desk(Source(std::move(reason)))
    {
    }
    explicit Desk(ChangeableSource source)
        : document(std::move(source))
    {
        PresentTable(grid, container.WindowDevice(), container.Colors(), document.Saved());
        MakeEditable(grid, document, inputs);
    }

    HeadlessContainer container;
    Vornix& grid = container.Grid();
    Document document;
    const ColumnInputs inputs { document };
};

} // namespace

TEST(EditableCells, AreThoseThatCanBeSaved)
{
    Desk desk;
    EXPECT_EQ(desk.grid.CellMode(0, 0), vxTextBox);
    EXPECT_EQ(desk.grid.CellMode(0, 1), vxCellFixed);
    EXPECT_EQ(desk.grid.CellMode(1, 1), vxTextBox);
    EXPECT_EQ(desk.grid.CellMode(0, 2), vxCheckBox);
    EXPECT_EQ(desk.grid.CellMode(1, 2), vxTextBox);
    EXPECT_EQ(desk.grid.CellMode(-1, 0), vxCellFixed);
    EXPECT_EQ(desk.grid.CellMode(0, -1), vxCellFixed);
}

TEST(EditableCells, AreNoneOfASourceThatIsReadOnly)
{
    Desk desk("it is a view");
    for (i16 Row = 0; Row < 2; ++Row) {
        for (i16 Col = 0; Col < 3; ++Col)
            EXPECT_NE(desk.grid.CellMode(Row, Col), vxTextBox);
    }
}

TEST(EditableCells, HaveTheLineBreaksOfAnEditor)
{
    Desk desk;
    EXPECT_EQ(desk.grid.Text(1, 0), u"two\r\nlines");
    EXPECT_EQ(desk.grid.TextAlignment(1, 0) & vxSingleLine, 0);
    EXPECT_NE(desk.grid.TextAlignment(0, 0) & vxSingleLine, 0);
}

TEST(EditableCells, SayWhatTheDocumentTakes)
{
    Desk desk;
    EXPECT_EQ(TextForDocument(desk.grid, 0, 0), u"one");
    EXPECT_EQ(TextForDocument(desk.grid, 0, 2), u"-1");
    desk.grid.SetCellChecked(0, 2, false);
    EXPECT_EQ(TextForDocument(desk.grid, 0, 2), u"0");
    EXPECT_EQ(TextForDocument(desk.grid, 1, 2), u"");
}

TEST(EditableCells, ShowWhatTheSourceHasMadeOfThem)
{
    Desk desk;
    ShowText(desk.grid, desk.document, desk.inputs, 0, { 0, 0, u"ONE" });
    EXPECT_EQ(desk.grid.Text(0, 0), u"ONE");
    ShowText(desk.grid, desk.document, desk.inputs, 0, { 0, 2, u"0" });
    EXPECT_FALSE(desk.grid.CellChecked(0, 2));
    EXPECT_EQ(desk.grid.CellMode(0, 2), vxCheckBox);
}

TEST(EditableCells, AreCheckBoxesOnceTheyHaveATruthValue)
{
    Desk desk;
    desk.document.Change(1, 2, u"0");
    ShowCell(desk.grid, desk.document, desk.inputs, 1, 1, 2);
    EXPECT_EQ(desk.grid.CellMode(1, 2), vxTextBox) << "a text that was typed";
    ShowText(desk.grid, desk.document, desk.inputs, 1, { 1, 2, u"-1" });
    EXPECT_EQ(desk.grid.CellMode(1, 2), vxCheckBox);
    EXPECT_TRUE(desk.grid.CellChecked(1, 2));
    ShowText(desk.grid, desk.document, desk.inputs, 1, { 1, 2, u"" });
    EXPECT_EQ(desk.grid.CellMode(1, 2), vxTextBox) << "none any more";
    ShowText(desk.grid, desk.document, desk.inputs, 0, { 0, 0, u"-1" });
    EXPECT_EQ(desk.grid.Text(0, 0), u"-1") << "a number";
    EXPECT_EQ(desk.grid.CellMode(0, 0), vxTextBox);
}

TEST(EditableCells, CloseTheEditorOfACellThatReadsOtherwiseOnly)
{
    Desk desk;
    desk.grid.CurrentPos(0, 0);
    desk.grid.EnterEdit();
    ASSERT_TRUE(desk.grid.IsEditMode());
    ShowText(desk.grid, desk.document, desk.inputs, 1, { 1, 1, u"y" });
    EXPECT_TRUE(desk.grid.IsEditMode());
    ShowText(desk.grid, desk.document, desk.inputs, 0, { 0, 0, u"ONE" });
    EXPECT_FALSE(desk.grid.IsEditMode());
    EXPECT_EQ(desk.grid.Text(0, 0), u"ONE");
}

TEST(EditableCells, HaveListsWhereThereIsSomethingToChooseFrom)
{
    Desk desk(SourceOfLists());
    EXPECT_EQ(desk.grid.CellMode(0, 0), vxComboDropDownBox);
    EXPECT_EQ(desk.grid.CellMode(8, 0), vxComboDropDownBox);
    EXPECT_EQ(desk.grid.CellMode(0, 1), vxCellFixed) << "which cannot be changed";
    EXPECT_EQ(desk.grid.CellMode(1, 1), vxComboListBox);
    ShowText(desk.grid, desk.document, desk.inputs, 1, { 1, 1, u"47" });
    EXPECT_EQ(desk.grid.CellMode(1, 1), vxComboListBox);
}

TEST(EditableCells, HaveTheListOfTheirColumn)
{
    Desk desk(SourceOfLists());
    FillList(desk.grid, desk.inputs, 1, 1);
    ASSERT_EQ(desk.grid.ComboListCount(), 4);
    EXPECT_EQ(desk.grid.ComboList(0), u"") << "for a null";
    EXPECT_EQ(desk.grid.ComboList(3), u"47");
    EXPECT_EQ(desk.grid.ComboListIndex(), 1) << "the cell's";
    FillList(desk.grid, desk.inputs, 0, 0);
    ASSERT_EQ(desk.grid.ComboListCount(), 2);
    EXPECT_EQ(desk.grid.ComboList(0), u"Bern");
    EXPECT_EQ(desk.grid.ComboList(1), u"Roma");
    EXPECT_EQ(desk.grid.Text(0, 0), u"Bern") << "filling changes nothing";
}
