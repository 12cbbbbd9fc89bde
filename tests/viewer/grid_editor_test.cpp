#include "grid_editor.h"

#include "editable_cells.h"
#include "present.h"

#include "vornix/headless_container.h"

#include <gmock/gmock.h>

using namespace vornix;
using namespace vornix::viewer;
using testing::ElementsAre;

using Side = Records::Side;

namespace {

// Lets everything be changed but the last column; the row of number 3 stays.
class FakeSaver final : public Saver {
public:
    std::optional<std::string> WhyReadOnly() const override { return {}; }
    bool CanChange(int, int column) const override { return column != 3; }
    bool CanRemove(int row) const override { return row != 3; }
    SaveOutcome Save(const Changes&) override { return outcome; }

    SaveOutcome outcome;
};

class Desk {
public:
    Desk()
        : document(Source(saver))
    {
        PresentTable(grid, container.WindowDevice(), container.Colors(), document.Saved());
        MakeEditable(grid, document, inputs);
        grid.SetCellSelection(true);
        grid.SetSelectMode(vxBoth);
        grid.CurrentPos(0, 0);
    }

    std::u16string Column(i16 Col) const
    {
        std::u16string texts;
        for (i16 Row = 0; Row < grid.Rows(); ++Row)
            texts += (Row > 0 ? u" " : u"") + grid.Text(Row, Col);
        return texts;
    }
    std::u16string Names() const { return Column(-1); }
    std::string Paste(const TextBlock& block) { return editor.Paste(SelectedCellsOf(grid), block); }

    FakeSaver* saver = nullptr;
    HeadlessContainer container;
    Vornix& grid = container.Grid();
    Document document;
    const ColumnInputs inputs { document };
    ShownRows rows { grid, document.Saved() };
    GridEditor editor { grid, document, inputs, rows };

private:
    static ChangeableSource Source(FakeSaver*& made)
    {
        auto table = std::make_unique<Table>();
        table->Columns()
            = { { u"a" }, { u"day", ColumnKind::Date }, { u"paid", ColumnKind::Boolean, u"yes", u"no" }, { u"fixed" } };
        for (const char16_t* name : { u"A", u"B", u"C", u"D" })
            table->AppendRow(std::vector<Field> { { name }, { u"2024-12-31" }, { u"-1" }, { u"f" } });
        table->SetTotalRows(4);
        auto saver = std::make_unique<FakeSaver>();
        made = saver.get();
        return { std::move(table), std::move(saver) };
    }
};

} // namespace

TEST(GridEditor, PastesFromTheCurrentCellOn)
{
    Desk desk;
    desk.grid.CurrentPos(1, 0);
    EXPECT_EQ(desk.Paste({ { u"x", u"2025-01-01", u"No" }, { u"y", u"2025-01-02", u"TRUE" } }), "");
    EXPECT_EQ(desk.Column(0), u"A x y D");
    EXPECT_EQ(desk.document.Text(2, 1), u"2025-01-02");
    EXPECT_FALSE(desk.grid.CellChecked(1, 2));
    EXPECT_TRUE(desk.grid.CellChecked(2, 2));
    EXPECT_EQ(desk.document.Text(1, 2), u"0");
    EXPECT_EQ(desk.document.ChangeCount(), 5u) << "one was true before";
}

TEST(GridEditor, PastesOneTextIntoAllThatIsSelected)
{
    Desk desk;
    desk.grid.SetSelectedCells(0, 0, 3, 0);
    EXPECT_EQ(desk.Paste({ { u"same" } }), "");
    EXPECT_EQ(desk.Column(0), u"same same same same");
}

TEST(GridEditor, GivesColumnsTheirListsAsTheyAreSaved)
{
    Desk desk;
    SortList sort;
    sort.Choose(0);
    sort.Choose(0);
    desk.rows.Sort(sort, desk.document.Rows());
    const auto save = [&desk](const std::u16string& text) {
        desk.document.Change(0, 0, text);
        desk.grid.EnterEdit();
        desk.editor.ShowSaved(desk.document.Save());
    };
    desk.grid.CurrentPos(0, 0);
    ASSERT_EQ(desk.grid.CellMode(0, 0), vxTextBox);
    desk.saver->outcome.keys = { { 0, { u"A", u"B" } } };
    save(u"B");
    for (i16 Row = 0; Row < 4; ++Row)
        EXPECT_EQ(desk.grid.CellMode(Row, 0), vxComboListBox) << Row;
    EXPECT_EQ(desk.grid.CellMode(0, 1), vxTextBox);
    EXPECT_FALSE(desk.grid.IsEditMode()) << "it was an editor of another kind";
    save(u"A");
    EXPECT_TRUE(desk.grid.IsEditMode()) << "the list is still there";
    desk.saver->outcome.keys = {};
    save(u"B");
    for (i16 Row = 0; Row < 4; ++Row)
        EXPECT_EQ(desk.grid.CellMode(Row, 0), vxTextBox) << Row;
    i16 first = 0;
    desk.grid.ExitEdit();
    desk.editor.AddRows(Side::Before, first);
    EXPECT_EQ(desk.grid.CellMode(first, 0), vxTextBox);
}

TEST(GridEditor, TellsWhatItDidNotPaste)
{
    Desk desk;
    EXPECT_EQ(desk.Paste({ { u"x", u"soon" } }),
        "1 of 2 cells not pasted (row 1, day: \"soon\" is no date such as 2024-12-31)");
    EXPECT_EQ(desk.Column(0), u"x B C D");
    desk.grid.CurrentPos(3, 2);
    EXPECT_EQ(desk.Paste({ { u"no", u"x", u"y" }, { u"yes" } }),
        "3 of 4 cells not pasted (row 4, fixed: the cell cannot be changed)");
    EXPECT_FALSE(desk.grid.CellChecked(3, 2));
    desk.grid.CurrentPos(3, 0);
    EXPECT_EQ(desk.Paste({ { u"z" }, { u"1" }, { u"2" } }), "2 of 3 cells not pasted (there are no more rows)");
    desk.grid.CurrentPos(0, 3);
    EXPECT_EQ(desk.Paste({ { u"z" } }), "1 cell not pasted (row 1, fixed: the cell cannot be changed)");
    desk.grid.CurrentPos(-1, 0);
    EXPECT_EQ(desk.Paste({ { u"z" } }), "") << "a title";
    EXPECT_EQ(desk.grid.Text(-1, 0), u"a");
}

TEST(GridEditor, PastesTextsOfSeveralLines)
{
    Desk desk;
    desk.Paste({ { u"two\nlines" } });
    EXPECT_EQ(desk.grid.Text(0, 0), u"two\r\nlines") << "as its editor needs it";
    EXPECT_EQ(desk.grid.TextAlignment(0, 0) & vxSingleLine, 0);
    EXPECT_EQ(desk.document.Text(0, 0), u"two\nlines");
}

TEST(GridEditor, Clears)
{
    Desk desk;
    EXPECT_EQ(desk.editor.Clear({ { 0, 1 }, { 0, 1, 2, 3 } }),
        "4 of 8 cells not emptied (row 1, paid: \"\" is neither true nor false)");
    EXPECT_EQ(desk.Column(0), u"  C D");
    EXPECT_EQ(desk.document.Text(1, 1), u"");
    EXPECT_EQ(desk.editor.Clear({}), "");
}

TEST(GridEditor, AddsRowsBesideTheCurrentOne)
{
    Desk desk;
    desk.grid.CurrentPos(1, 0);
    i16 first = 0;
    EXPECT_EQ(desk.editor.AddRows(Side::Before, first), "");
    EXPECT_EQ(first, 1);
    EXPECT_EQ(desk.Names(), u"1 +1 2 3 4");
    EXPECT_TRUE(desk.grid.CellFontBold(1, -1)) << "it stands out";
    EXPECT_FALSE(desk.grid.CellFontBold(2, -1));
    desk.grid.CurrentPos(1, 0);
    EXPECT_EQ(desk.editor.AddRows(Side::Behind, first), "");
    EXPECT_EQ(first, 2);
    EXPECT_EQ(desk.Names(), u"1 +1 +2 2 3 4");
    EXPECT_EQ(desk.Column(0), u"A   B C D");
    EXPECT_EQ(desk.grid.CellMode(2, 0), vxTextBox);
    EXPECT_EQ(desk.grid.CellMode(2, 2), vxTextBox) << "no truth value yet: its text can be typed";
    EXPECT_EQ(desk.grid.CellMode(3, 2), vxCheckBox);
    desk.grid.CurrentPos(-1, 0);
    desk.editor.AddRows(Side::Behind, first);
    EXPECT_EQ(first, 0) << "the header is above all of them";
    EXPECT_EQ(desk.Names(), u"+3 1 +1 +2 2 3 4");
    EXPECT_THAT(desk.document.Rows(), ElementsAre(6, 0, 4, 5, 1, 2, 3));
}

TEST(GridEditor, AddsAsManyRowsAsAreSelected)
{
    Desk desk;
    desk.grid.SetRowsSelected(1, 2, true);
    i16 first = 0;
    desk.editor.AddRows(Side::Behind, first);
    EXPECT_EQ(first, 3);
    EXPECT_EQ(desk.Names(), u"1 2 3 +1 +2 4");
    EXPECT_THAT(desk.document.Rows(), ElementsAre(0, 1, 2, 4, 5, 3));
}

TEST(GridEditor, AddsRowsBesideTheCurrentOneWhereColumnsAreSelected)
{
    Desk desk;
    desk.grid.CurrentPos(1, 0);
    desk.grid.SetColSelected(2, true);
    i16 first = 0;
    desk.editor.AddRows(Side::Behind, first);
    EXPECT_EQ(first, 2);
    desk.editor.AddRows(Side::Before, first);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(desk.Names(), u"1 +2 2 +1 3 4");
}

TEST(GridEditor, AddsNoMoreRowsThanTheGridHolds)
{
    Desk desk;
    for (int row = desk.document.RowCount(); row < LoadLimits().maxRows - 1; ++row)
        desk.document.AddRow(0, Side::Before); // not shown, which does not matter here
    desk.grid.SetRowsSelected(0, 1, true);
    i16 first = 0;
    const std::string line = "no more rows added: the grid holds no more than 32,765 rows";
    EXPECT_EQ(desk.editor.AddRows(Side::Before, first), line);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(desk.grid.Rows(), 5) << "one there was room for";
    EXPECT_EQ(desk.editor.AddRows(Side::Before, first), line);
    EXPECT_EQ(first, NoIndex);
    EXPECT_EQ(desk.grid.Rows(), 5);
}

TEST(GridEditor, RemovesRowsAndBringsThemBack)
{
    Desk desk;
    desk.document.Change(2, 0, u"changed");
    EXPECT_EQ(desk.editor.RemoveRows({ 0, 2, 3 }), "1 row cannot be deleted");
    EXPECT_EQ(desk.Names(), u"2 4");
    EXPECT_TRUE(desk.editor.CanRestoreRows());
    EXPECT_EQ(desk.editor.RemoveRows({ 0 }), "");
    EXPECT_EQ(desk.Names(), u"4");
    EXPECT_EQ(desk.editor.RestoreRows(), "");
    EXPECT_EQ(desk.Names(), u"2 4");
    EXPECT_EQ(desk.editor.RestoreRows(), "");
    EXPECT_EQ(desk.Names(), u"1 2 3 4");
    EXPECT_EQ(desk.Column(0), u"A B changed D");
    EXPECT_TRUE(desk.grid.CellChecked(2, 2));
    EXPECT_FALSE(desk.editor.CanRestoreRows());
    EXPECT_EQ(desk.editor.RestoreRows(), "");
    EXPECT_EQ(desk.document.ChangeCount(), 1u);
}

TEST(GridEditor, BringsBackNoMoreRowsThanTheGridHolds)
{
    Desk desk;
    desk.editor.RemoveRows({ 0, 2 });
    while (desk.document.RowCount() < LoadLimits().maxRows - 1)
        desk.document.AddRow(1, Side::Behind); // not shown, which does not matter here
    EXPECT_EQ(desk.editor.RestoreRows(), "no rows undeleted: the grid holds no more than 32,765 rows");
    EXPECT_EQ(desk.document.RowCount(), LoadLimits().maxRows - 1) << "all or none";
    EXPECT_EQ(desk.Names(), u"2 4");
    EXPECT_TRUE(desk.editor.CanRestoreRows());
    desk.document.RemoveRow(4);
    EXPECT_EQ(desk.editor.RestoreRows(), "");
    EXPECT_EQ(desk.Names(), u"1 2 3 4");
}

TEST(GridEditor, BringsBackNoRowsWhoseEndWasSaved)
{
    Desk desk;
    desk.editor.RemoveRows({ 0 });
    desk.saver->outcome.others = { { 99, 0, u"no such cell" } };
    EXPECT_THROW(desk.document.Save(), std::out_of_range) << "so that it cannot be shown";
    desk.editor.RemoveRows({ 0 });
    EXPECT_EQ(desk.editor.RestoreRows(), "");
    EXPECT_EQ(desk.editor.RestoreRows(), "");
    EXPECT_EQ(desk.Column(0), u"B C D");
    EXPECT_FALSE(desk.editor.CanRestoreRows());
}

TEST(GridEditor, FillsAnEmptyTable)
{
    Desk desk;
    desk.saver->outcome.removed = { 3 };
    desk.editor.RemoveRows({ 0, 1, 2 });
    desk.editor.ShowSaved(desk.document.Save());
    EXPECT_EQ(desk.grid.Rows(), 0);
    i16 first = 5;
    desk.editor.AddRows(Side::Behind, first);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(desk.Names(), u"+1");
}

TEST(GridEditor, KeepsToTheRowsThatASortHasMoved)
{
    Desk desk;
    SortList sort;
    sort.Choose(0);
    sort.Choose(0);
    desk.rows.Sort(sort, desk.document.Rows());
    EXPECT_EQ(desk.Names(), u"4 3 2 1");
    desk.grid.CurrentPos(1, 0);
    desk.Paste({ { u"x" } });
    EXPECT_EQ(desk.document.Text(2, 0), u"x");
    i16 first = 0;
    desk.editor.AddRows(Side::Behind, first);
    EXPECT_EQ(desk.Names(), u"4 3 +1 2 1");
    EXPECT_THAT(desk.document.Rows(), ElementsAre(0, 1, 2, 4, 3)) << "behind that row in the source";
    desk.editor.RemoveRows({ 3 });
    EXPECT_THAT(desk.document.Rows(), ElementsAre(0, 2, 4, 3));
    sort.Clear();
    desk.rows.Sort(sort, desk.document.Rows());
    EXPECT_EQ(desk.Names(), u"1 3 +1 4");
}

TEST(GridEditor, ShowsWhatSavingHasMade)
{
    Desk desk;
    desk.grid.CurrentPos(0, 0);
    i16 first = 0;
    desk.editor.AddRows(Side::Before, first);
    desk.editor.RemoveRows({ 2 });
    desk.saver->outcome = { { { 4, 0, u"given" }, { 0, 2, u"0" }, { 0, 3, u"g" } }, { 2 } };
    desk.editor.ShowSaved(desk.document.Save());
    EXPECT_EQ(desk.Names(), u"1 2 3") << "counted anew";
    EXPECT_FALSE(desk.grid.CellFontBold(0, -1));
    EXPECT_EQ(desk.grid.CellForeColor(0, -1), desk.grid.CellForeColor(2, -1));
    EXPECT_EQ(desk.Column(0), u"given A D");
    EXPECT_FALSE(desk.grid.CellChecked(1, 2));
    EXPECT_EQ(desk.grid.Text(1, 3), u"g");
    EXPECT_FALSE(desk.editor.CanRestoreRows()) << "that has been saved";
}
