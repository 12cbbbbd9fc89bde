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
    std::vector<CellText> Save(const Edits&) override { return {}; }

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

// A grid that shows a document whose cells can be changed.
class Desk {
public:
    explicit Desk(std::optional<std::string> reason = {})
        : document(Source(std::move(reason)))
    {
        PresentTable(grid, container.WindowDevice(), container.Colors(), document.Saved());
        MakeEditable(grid, document);
    }

    HeadlessContainer container;
    Vornix& grid = container.Grid();
    Document document;
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
    ShowText(desk.grid, desk.document, { 0, 0, u"ONE" });
    EXPECT_EQ(desk.grid.Text(0, 0), u"ONE");
    ShowText(desk.grid, desk.document, { 0, 2, u"0" });
    EXPECT_FALSE(desk.grid.CellChecked(0, 2));
    EXPECT_EQ(desk.grid.CellMode(0, 2), vxCheckBox);
}

TEST(EditableCells, CloseTheEditorOfACellThatReadsOtherwiseOnly)
{
    Desk desk;
    desk.grid.CurrentPos(0, 0);
    desk.grid.EnterEdit();
    ASSERT_TRUE(desk.grid.IsEditMode());
    ShowText(desk.grid, desk.document, { 1, 1, u"y" });
    EXPECT_TRUE(desk.grid.IsEditMode());
    ShowText(desk.grid, desk.document, { 0, 0, u"ONE" });
    EXPECT_FALSE(desk.grid.IsEditMode());
    EXPECT_EQ(desk.grid.Text(0, 0), u"ONE");
}
